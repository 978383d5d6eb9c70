#include "texttools/checkDictionary.h"

#include "common/encodings.h"
#include "common/text.h"

namespace
{
constexpr QChar ElementMark = u'\u00AB';
constexpr QChar AttributeMark = u'\u00BB';

QString attributeKey(const QString &tag, const QString &word)
{
    return tag + AttributeMark + LCase(word);
}
} // namespace

void CheckDictionary::add(const QString &row)
{
    if (row.startsWith(ElementMark)) {
        m_elements += LCase(QStringView(row).sliced(1));
        return;
    }
    const qsizetype second = row.indexOf(AttributeMark, 1);
    if (row.startsWith(AttributeMark) && second > 0)
        m_attributes += attributeKey(row.sliced(1, second - 1), row.sliced(second + 1));
}

void CheckDictionary::exclude(const QString &word)
{
    m_excluded += LCase(word);
}

void CheckDictionary::ignore(const QString &word)
{
    m_ignored += LCase(word);
}

bool CheckDictionary::accepts(const QString &tag, const QString &word) const
{
    const QString name = LCase(word);
    if (m_ignored.contains(name))
        return true;
    if (tag.isEmpty())
        return m_elements.contains(name);
    return m_attributes.contains(attributeKey(tag, word)) || m_excluded.contains(name);
}

QString dictionaryRow(const QString &tag, const QString &word)
{
    return tag.isEmpty() ? ElementMark + word : AttributeMark + tag + AttributeMark + word;
}

QStringList dictionaryLines(const QByteArray &file)
{
    return decodeOwnFile(file).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
}

QByteArray withLine(const QByteArray &file, const QString &line)
{
    if (line.contains(u'\r') || line.contains(u'\n'))
        return file;
    const QString end = QStringLiteral("\r\n");
    const QString before = decodeOwnFile(file);
    const QString added = (before.isEmpty() || before.endsWith(end) ? QString() : end) + line + end;
    for (const QByteArray &bytes : {encodeOwnFile(added), added.toUtf8()})
        if (decodeOwnFile(file + bytes) == before + added)
            return file + bytes;
    return encodeOwnFile(before + added);
}
