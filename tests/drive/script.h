#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace drive
{
/// One command of a script.
struct Line {
    int number = 0;          ///< counted from 1 in the script's file
    QString command;         ///< its first word
    QStringList words;       ///< the words behind it, escapes resolved, marks such as %SITE% not yet
    std::vector<Line> block; ///< the commands between `when`, `when-box` or `during N` and its `end`
};

/// Why a text is no script.
struct ScriptError {
    int line = 0;
    QString reason;
};

struct Script {
    std::vector<Line> lines;
    std::optional<ScriptError> error; ///< the first one; `lines` is not to be played then
};

/// Takes a script's text apart: one command a line, words parted by blanks, quoted words with escapes, `<<END` texts,
/// comments, and blocks (`when`, `when-box`, `during N` up to `end`) within each other.
Script parseScript(const QString &text);
/// Whether the commands up to an `end` belong to this one.
bool opensBlock(const Line &line);

/// A target as it is written: "frmInsList.picBullet(3)", "doc(2).txtEdit", "doc", "frmMdi".
struct TargetName {
    QString form;     ///< the form's name; "doc" for a document
    int document = 0; ///< of "doc(N)", counted from 1; 0 for the active document and for other forms
    QString control;  ///< empty for a form alone
    bool isDocument() const { return form == QStringLiteral("doc"); }
};
/// Nothing for a text that is no target: no form's name, or "doc(0)".
std::optional<TargetName> parseTargetName(const QString &text);
} // namespace drive
