#include "project/projectFile.h"

#include "common/text.h"

namespace
{
const QString FirstLine = QStringLiteral("Tagwrighter Site Project File");
const QString VersionTag = QStringLiteral("[VERSION]");
const QString Version = QStringLiteral("1.0.0");
const QString BeginTag = QStringLiteral("[BEGIN]");
const QString SiteNameTag = QStringLiteral("[SITENAME]");
const QString SiteAuthorTag = QStringLiteral("[SITEAUTHOR]");
const QString EditorFilesTag = QStringLiteral("[EDITORFILES]");
const QString OtherFilesTag = QStringLiteral("[OTHERFILES]");
const QString Break = QStringLiteral("\r\n");

void appendSection(QStringList &lines, const QString &tag, const QStringList &content)
{
    if (!content.isEmpty())
        lines << tag << content;
}

QStringList lineUnlessEmpty(const QString &line)
{
    return line.isEmpty() ? QStringList() : QStringList(line);
}

/// The lines of a text file; what ends in a break has no line behind it.
QStringList linesOf(const QString &text)
{
    QStringList lines = withCrLf(text).split(Break);
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

bool isListTag(const QString &upper)
{
    return upper == EditorFilesTag || upper == OtherFilesTag;
}

bool isTag(const QString &upper)
{
    return isListTag(upper) || upper == BeginTag || upper == SiteNameTag || upper == SiteAuthorTag;
}

/// Takes the lines one by one.
class ProjectReader
{
public:
    /// False if the file is refused at this line.
    bool take(const QString &line);
    ProjectReading reading;

private:
    bool refuse(ProjectReading::Verdict verdict);
    bool isHeadAccepted(const QString &line, const QString &upper);
    void takeName(const QString &line);
    void takeFile(const QString &line);

    int m_number = 0; ///< of the line, counted from 1
    QString m_section;
};

bool ProjectReader::take(const QString &line)
{
    ++m_number;
    const QString upper = line.toUpper();
    if (isListTag(upper))
        m_section = upper;
    if (!isHeadAccepted(line, upper))
        return false;
    takeName(line);
    takeFile(line);
    if (isTag(upper))
        m_section = upper;
    return true;
}

bool ProjectReader::refuse(ProjectReading::Verdict verdict)
{
    reading.verdict = verdict;
    return false;
}

bool ProjectReader::isHeadAccepted(const QString &line, const QString &upper)
{
    constexpr int VersionLine = 3;
    if (m_number == 1 && upper != FirstLine.toUpper())
        return refuse(ProjectReading::Verdict::Invalid);
    // The version is compared as it stands: there is no order of versions.
    if (m_number == VersionLine && line != Version)
        return refuse(ProjectReading::Verdict::Newer);
    if (m_number == 1 || m_number == VersionLine)
        m_section.clear();
    return true;
}

void ProjectReader::takeName(const QString &line)
{
    if (m_section == SiteNameTag)
        reading.siteName = line;
    else if (m_section == SiteAuthorTag)
        reading.siteAuthor = line;
    else
        return;
    m_section.clear(); // it takes one line, whatever that line is
}

void ProjectReader::takeFile(const QString &line)
{
    // A list's own tag is known here only as the program writes it: in lower case it has opened the list, and is taken
    // for a file of that list as well.
    if (isListTag(m_section) && line != m_section && !line.trimmed().isEmpty())
        reading.files.append({line, m_section == EditorFilesTag});
}
} // namespace

QString projectFileText(const ProjectContents &contents)
{
    QStringList lines{FirstLine, VersionTag, Version};
    appendSection(lines, SiteNameTag, lineUnlessEmpty(contents.siteName));
    appendSection(lines, SiteAuthorTag, lineUnlessEmpty(contents.siteAuthor));
    appendSection(lines, EditorFilesTag, contents.editorFiles);
    appendSection(lines, OtherFilesTag, contents.otherFiles);
    return lines.join(Break) + Break;
}

ProjectReading readProjectFile(const QString &text)
{
    ProjectReader reader;
    for (const QString &line : linesOf(text))
        if (!reader.take(line))
            break;
    return reader.reading;
}
