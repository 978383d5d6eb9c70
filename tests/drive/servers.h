#pragma once

#include "servers/testServer.h"

#include <map>

namespace drive
{
/// The servers of one script's world, one of a kind.
class Servers
{
public:
    /// Starts the web server ("http") or the FTP server ("ftp") over a folder, which is the first of the words.
    bool serve(const QString &kind, const QStringList &words, QString &reason);
    /// False if there is no such server, or it does not know the command.
    bool tell(const QString &kind, const QString &command);
    bool kill(const QString &kind);

    /// The text with the marks of the ports replaced, as far as there are servers.
    QString expanded(QString text) const;

private:
    std::map<QString, std::unique_ptr<TestServer>> m_servers;
    std::map<QString, int> m_ports; ///< of those that are gone, too
};
} // namespace drive
