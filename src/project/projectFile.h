#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

/// What the file of a site project holds.
struct ProjectContents {
    QString siteName = {};
    QString siteAuthor = {};
    QStringList editorFiles = {}; ///< full paths, in the order of their list
    QStringList otherFiles = {};
    bool operator==(const ProjectContents &) const = default;
};

/// The text of a project file, lines ending in CR LF. What is empty is left out, its tag too.
QString projectFileText(const ProjectContents &contents);

/// One line of a list in a project file.
struct ProjectFileLine {
    QString path;
    bool isEditorFile = true;
    bool operator==(const ProjectFileLine &) const = default;
};

/// What the reading of a project file came to.
struct ProjectReading {
    enum class Verdict {
        Accepted,
        Invalid, ///< no project file
        Newer,   ///< of a version that this program does not know, older ones included
    };
    Verdict verdict = Verdict::Accepted;
    std::optional<QString> siteName; ///< nothing if the file names none
    std::optional<QString> siteAuthor;
    QList<ProjectFileLine> files; ///< in the order of their lines; of a refused file, those in front of the refusal
    bool operator==(const ProjectReading &) const = default;
};

/// Reads the text of a project file. Tags may stand anywhere, in any order, any number of times and in any case. A list
/// goes on until the next list or the next other tag, and a tag in it that is not written as the program writes the
/// list's own is taken for a file besides. Blank lines in a list are passed over.
ProjectReading readProjectFile(const QString &text);
