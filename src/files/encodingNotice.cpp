#include "files/encodingNotice.h"

#include "common/pageCharset.h"
#include "common/paths.h"

#include <QStringList>

namespace
{
constexpr qsizetype NamedCharacters = 3;

/// "é", "ł" and 4 others
QString named(const QStringList &characters)
{
    QStringList quoted;
    for (const QString &character : characters.first(qMin(characters.size(), NamedCharacters)))
        quoted.append(u'"' + character + u'"');
    const qsizetype others = characters.size() - quoted.size();
    if (others > 0)
        return QStringLiteral("%1 and %2 others").arg(quoted.join(QStringLiteral(", "))).arg(others);
    const QString last = quoted.takeLast();
    return quoted.isEmpty() ? last : quoted.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last;
}

QString reason(const QString &text, const FileFormat &wanted)
{
    const QStringList unfit = charactersThatDoNotFit(text, wanted);
    if (unfit.isEmpty())
        return QStringLiteral("in %1 this text would not read back the same.").arg(encodingName(wanted));
    return QStringLiteral("%1 has no place for %2.").arg(encodingName(wanted), named(unfit));
}

QString charsetLine(const QString &text)
{
    const QString charset = declaredCharset(text);
    if (namesEncoding(charset, {Encoding::Utf8}))
        return {};
    if (charset.isEmpty())
        return QStringLiteral(" The page names no encoding, so that browsers may guess another one.");
    return QStringLiteral(" The page still names \"%1\", which browsers go by.").arg(charset);
}

/// Whether what stands in the file is markup, as far as its name tells.
bool isPage(const QString &path)
{
    static const QStringList others{QStringLiteral("css"), QStringLiteral("js"), QStringLiteral("json"),
                                    QStringLiteral("txt")};
    return !others.contains(GetFileExtension(path).toLower());
}
} // namespace

QString encodingNoticeKey()
{
    return QStringLiteral("encoding");
}

MessageBox utf8Question(const QString &text, const FileFormat &wanted)
{
    return {.title = QStringLiteral("Save As UTF-8"),
            .text = QStringLiteral("The encoding that the page names can not hold its text: ") + reason(text, wanted) +
                    QStringLiteral("\r\nDo you want to save the page as UTF-8 instead?"
                                   "\r\n\r\nWith \"No\" nothing is saved, and the file stays as it is."),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNo};
}

Notice savedAsUtf8Notice(const QString &path, const QString &text, const FileFormat &wanted,
                         const std::function<void()> &writeReferences, const std::function<void()> &nameUtf8)
{
    Notice notice{
        encodingNoticeKey(), NoticeKind::Other, QStringLiteral("Saved as UTF-8: ") + reason(text, wanted), {}};
    if (!isPage(path)) {
        notice.buttons = {{QStringLiteral("OK")}};
        return notice;
    }
    const bool canName = withDeclaredCharset(text, QStringLiteral("utf-8")) != text;
    notice.text += charsetLine(text);
    notice.buttons = {{QStringLiteral("Write as &#N;"), writeReferences},
                      {QStringLiteral("Change the page's charset"), nameUtf8, canName},
                      {QStringLiteral("Keep it so")}};
    return notice;
}
