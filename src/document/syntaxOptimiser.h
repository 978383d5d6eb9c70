#pragma once

#include "document/undoHistory.h"

#include <QString>
#include <optional>

struct BlockElement;

/// Indents the contents of block elements through a whole document, line by line, apart from any window.
///
///     SyntaxOptimiser optimiser(text, history);
///     while (optimiser.advance()) {
///         ... let events run
///     }
///     surface.setText(optimiser.text());
class SyntaxOptimiser
{
public:
    /// `text` has every line break as CR LF. Each element whose lines are moved leaves a snapshot in the history, which
    /// must outlive the run. The one at the run's end is the caller's to take.
    SyntaxOptimiser(const QString &text, UndoHistory &history);

    /// Goes on to the next line, and is true there: pending events may run. False once the run is over.
    bool advance();

    /// The text as it stands.
    const QString &text() const { return m_text; }
    bool hasChanged() const { return m_changed; }

private:
    enum class Place { Start, AtLine, End };

    struct Line {
        qsizetype start = 0; // from 0
        qsizetype end = 0;   // from 0; -1 where the text is one line
        const BlockElement *element = nullptr;
    };

    void lookAtLine();
    std::optional<qsizetype> nextLineStart() const;
    bool wouldTurnInACircle() const;
    Line lineAt(qsizetype start) const;
    qsizetype positionBehind(const Line &line) const;
    void indentContents(QStringView closing);
    void indent(TextSelection selection);

    QString m_text;
    UndoHistory &m_history;
    Place m_place = Place::Start;
    qsizetype m_pos = 0; // where the next line break is sought, from 1; 0 before the first line
    bool m_changed = false;
};
