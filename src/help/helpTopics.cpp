#include "help/helpTopics.h"

#include <QStringList>
#include <algorithm>

namespace
{
const QString scheme = QStringLiteral("help");

// Topics are partly made of what a user's page holds, so that anything at all may come here.
bool staysInside(const QString &page)
{
    const QStringList steps = page.split(u'/');
    const auto odd = [](const QString &step) {
        return step.isEmpty() || step == QLatin1String(".") || step == QLatin1String("..") || step.contains(u'\\') ||
               step.contains(QChar(0));
    };
    return steps.size() > 1 && steps.first() == QLatin1String("topics") &&
           std::none_of(steps.begin(), steps.end(), odd);
}

std::optional<QString> checkedPage(const QString &page)
{
    return staysInside(page) ? std::optional(page) : std::nullopt;
}
} // namespace

std::optional<QString> helpPageOfTopic(const QString &topic)
{
    const QString mark = QStringLiteral("::/");
    return topic.startsWith(mark) ? checkedPage(topic.sliced(mark.size())) : std::nullopt;
}

QUrl helpUrl(const QString &page)
{
    QUrl url;
    url.setScheme(scheme);
    url.setPath(u'/' + page, QUrl::DecodedMode);
    return url;
}

std::optional<QString> helpPageOfUrl(const QUrl &url)
{
    const QString path = url.path(QUrl::FullyDecoded);
    return url.scheme() == scheme && path.startsWith(u'/') ? checkedPage(path.sliced(1)) : std::nullopt;
}
