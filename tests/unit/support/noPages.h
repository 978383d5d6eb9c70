#pragma once

#include "services/pageView.h"

#include <QUrl>

/// Serves nothing: for views that load what they are given, and for none.
class NoPages final : public PageSource
{
public:
    QUrl servedAddress(const QUrl &address) override { return address; }
    QUrl ownAddress(const QUrl &served) const override { return served; }
    std::optional<PagePart> open(const QUrl &) override { return std::nullopt; }
    bool holdsBack(const QUrl &) const override { return false; }
    bool showsOtherHosts(const QUrl &) const override { return false; }
    void setText(const QString &, const QByteArray &) override {}
    void dropText(const QString &) override {}
    void setFolderOf(const QString &, const QString &) override {}
};
