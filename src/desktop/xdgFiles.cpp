#include "desktop/xdgFiles.h"

#include "desktop/fileClassTable.h"

namespace
{
QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

bool isOwnType(const FileClass &row)
{
    return row.use == FileClassUse::Owned || row.use == FileClassUse::Data;
}

bool opensFirst(const FileClass &row)
{
    return row.use == FileClassUse::Owned || row.use == FileClassUse::TakenOver;
}

QString ownEntry()
{
    return QStringLiteral("tagwrighter.desktop");
}

// The place of a section's line, -1 for none.
qsizetype placeOfSection(const QStringList &lines, const QString &section)
{
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].trimmed() == section)
            return i;
    }
    return -1;
}

qsizetype addSection(QStringList &lines, const QString &section)
{
    while (!lines.isEmpty() && lines.constLast().trimmed().isEmpty())
        lines.removeLast();
    if (!lines.isEmpty())
        lines += QString();
    lines += section;
    lines += QString();
    return lines.size() - 2;
}

// The line of `type` in the section that starts at `section`. Where there is none, `end` is the place for it.
qsizetype placeOfType(const QStringList &lines, qsizetype section, const QString &type, qsizetype &end)
{
    end = section + 1;
    for (qsizetype i = section + 1; i < lines.size() && !lines[i].trimmed().startsWith(u'['); ++i) {
        if (lines[i].section(u'=', 0, 0).trimmed() == type)
            return i;
        if (!lines[i].trimmed().isEmpty())
            end = i + 1;
    }
    return -1;
}

QStringList programsOf(const QString &line)
{
    return line.section(u'=', 1).trimmed().split(u';', Qt::SkipEmptyParts);
}

using Change = QStringList (*)(const QStringList &programs, const QStringList &others);

QStringList ownFirst(const QStringList &programs, const QStringList &)
{
    QStringList result = programs;
    result.removeAll(ownEntry());
    result.prepend(ownEntry());
    return result;
}

// Behind all others: the first program of the list is the one that opens the type where no default is named.
QStringList ownLast(const QStringList &programs, const QStringList &others)
{
    if (programs.contains(ownEntry()))
        return programs;
    QStringList result = programs + others;
    result.removeAll(ownEntry());
    result.removeDuplicates();
    return result << ownEntry();
}

void changeType(QStringList &lines, const QString &section, const QString &type, Change change,
                const QStringList &others)
{
    qsizetype start = placeOfSection(lines, section);
    if (start < 0)
        start = addSection(lines, section);
    qsizetype end = 0;
    const qsizetype place = placeOfType(lines, start, type, end);
    const QStringList before = place < 0 ? QStringList() : programsOf(lines[place]);
    const QStringList after = change(before, others);
    if (after == before)
        return;
    const QString line = type + QLatin1Char('=') + after.join(u';') + QLatin1Char(';');
    if (place < 0)
        lines.insert(end, line);
    else
        lines[place] = line;
}

QString mimeTypeElement(const FileClass &row)
{
    // The weight is above the usual 50, so that another type for the same ending does not get in front.
    return QStringLiteral("  <mime-type type=\"%1\">\n"
                          "    <comment>%2</comment>\n"
                          "    <icon name=\"tagwrighter-%3\"/>\n"
                          "    <glob pattern=\"*.%4\" weight=\"60\"/>\n"
                          "  </mime-type>\n")
        .arg(latin(row.mimeType), latin(row.description), QString::number(row.icon), latin(row.extension));
}
} // namespace

QString mimePackage()
{
    QString text = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                  "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n");
    for (const FileClass &row : fileClassTable) {
        if (isOwnType(row))
            text += mimeTypeElement(row);
    }
    return text + QStringLiteral("</mime-info>\n");
}

QString execWord(const QString &program)
{
    // Two rules one upon the other: the quoted word escapes these four and the percent sign stands for a field, and
    // then the value as a text of the file escapes backslashes once more.
    QString word;
    for (const QChar c : program) {
        if (c == u'"' || c == u'`' || c == u'$' || c == u'\\')
            word += QLatin1Char('\\');
        word += c;
        if (c == u'%')
            word += c;
    }
    const QString quoted = QLatin1Char('"') + word + QLatin1Char('"');
    return QString(quoted)
        .replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\n', QStringLiteral("\\n"))
        .replace(u'\r', QStringLiteral("\\r"))
        .replace(u'\t', QStringLiteral("\\t"));
}

QString desktopEntry(const QString &program)
{
    QString types;
    for (const FileClass &row : fileClassTable) {
        if (opensFirst(row))
            types += latin(row.mimeType) + QLatin1Char(';');
    }
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=Tagwrighter\n"
                          "GenericName=Web Page Editor\n"
                          "Exec=") +
           execWord(program) +
           QStringLiteral(" %f\n"
                          "Icon=tagwrighter\n"
                          "Terminal=false\n"
                          "Categories=Development;WebDevelopment;\n"
                          "MimeType=") +
           types + QLatin1Char('\n');
}

QString withAssociations(const QString &mimeApps, const QStringList &otherHtmlPrograms)
{
    QStringList lines = mimeApps.split(u'\n');
    for (const FileClass &row : fileClassTable) {
        const QString type = latin(row.mimeType);
        if (opensFirst(row))
            changeType(lines, QStringLiteral("[Default Applications]"), type, ownFirst, {});
        else if (row.use == FileClassUse::Offered)
            changeType(lines, QStringLiteral("[Added Associations]"), type, ownLast, otherHtmlPrograms);
    }
    return lines.join(u'\n');
}

QStringList programsInCache(const QString &cache, const QString &mimeType)
{
    for (const QString &line : cache.split(u'\n')) {
        if (line.section(u'=', 0, 0).trimmed() == mimeType)
            return programsOf(line);
    }
    return {};
}
