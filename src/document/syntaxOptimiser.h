#pragma once

#include "document/undoHistory.h"

#include <QString>

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

    void lookAtLine();
    void indentContents(QStringView closing, qsizetype lineEnd);
    void indent(TextSelection selection);

    QString m_text;
    UndoHistory &m_history;
    Place m_place = Place::Start;
    qsizetype m_pos = 0; // where the next line break is sought, from 1; 0 before the first line
    bool m_changed = false;
};
