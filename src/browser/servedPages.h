#pragma once

#include "services/pageView.h"

#include <QHash>
#include <QSet>
#include <QStringList>

class SettingsStore;

/// The addresses under which pages see themselves and what stands beside them, and what they get there.
///
/// Each folder that holds a page of the program's is a host of its own with a name that cannot be guessed, so that the
/// pages of one folder are strangers to those of all others. The path begins with as many steps as the folder lies
/// deep, so that a way up leads to where there is nothing, and tells no page where it lies.
class ServedPages final : public PageSource
{
public:
    /// Out of the closed folders, the program's own, pages get themselves and nothing else.
    ServedPages(SettingsStore &settings, const QStringList &closedFolders);

    QUrl servedAddress(const QUrl &address) override;
    QUrl ownAddress(const QUrl &served) const override;
    std::optional<PagePart> open(const QUrl &served) override;
    bool holdsBack(const QUrl &served) const override;
    bool showsOtherHosts(const QUrl &served) const override;
    void setText(const QString &path, const QByteArray &bytes) override;
    void dropText(const QString &path) override;
    void setFolderOf(const QString &copy, const QString &folder) override;

private:
    struct Place {
        QString folder;      ///< as it was named
        QString allowedAs;   ///< the folder for which the user has allowed what its pages may
        int depth = 0;       ///< how many folders lie above
        bool alone = false;  ///< only pages that the program shows itself are handed out
        QSet<QString> pages; ///< the names of those
    };

    bool isClosed(const QString &folder) const;
    Place &placeOf(const QString &file, QString &host);
    /// The way from a place's folder to what the address names; nothing if it lies outside.
    static std::optional<QString> wayOf(const QUrl &served, const Place &place);
    const Place *knownPlace(const QUrl &served) const;
    std::unique_ptr<QIODevice> bytesOf(const Place &place, const QString &way) const;
    std::unique_ptr<QIODevice> bytesAt(const QUrl &served) const;

    SettingsStore &m_settings;
    QStringList m_closed;
    QHash<QString, Place> m_places;     ///< by host
    QHash<QString, QString> m_hosts;    ///< by folder; by file where that is alone
    QHash<QString, QString> m_folders;  ///< by copy
    QHash<QString, QByteArray> m_texts; ///< by path
};
