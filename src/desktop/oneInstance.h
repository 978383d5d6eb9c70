#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

class QSocketNotifier;

/// The place where further starts of the program find the one that runs: a socket in a folder of the user's own.
class OneInstance
{
public:
    /// `received` is given what another start hands over.
    OneInstance(const QString &path, std::function<void(const QString &)> received);
    OneInstance(const OneInstance &) = delete;
    OneInstance &operator=(const OneInstance &) = delete;
    ~OneInstance();

    /// Hands a line to the program that listens there. False if there is none, or it does not answer.
    static bool handOver(const QString &path, const QString &line);

private:
    void accept();

    QByteArray m_path;
    std::function<void(const QString &)> m_received;
    int m_socket = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
