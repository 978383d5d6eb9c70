#pragma once

#include <QString>
#include <QUrl>
#include <optional>

/// The pages of the help are known by their paths in its folder, as in "topics/using/About_Wizards.htm". A page's path
/// starts with "topics/" and cannot lead out of that folder.

/// The page of a topic ("::/topics/Index.htm"), in the case that the topic is given in. Nothing for a text that is no
/// topic. Whether there is such a page is another question.
std::optional<QString> helpPageOfTopic(const QString &topic);

/// A page's address in the help window, and the page of such an address, whatever place on the page it names. Nothing
/// for an address of another kind.
QUrl helpUrl(const QString &page);
std::optional<QString> helpPageOfUrl(const QUrl &url);
