#pragma once

#include "common/textSelection.h"

#include <QString>
#include <deque>
#include <optional>

/// The history of one document by edits: each step is what was taken out and what was put in, and where. A new edit
/// ends the steps that could be redone. Typing is one step from the start of a word to the next, unless there is a
/// pause; everything else is a step as long as it is not ended.
class EditHistory
{
public:
    static constexpr std::size_t MostSteps = 20'000; ///< beyond, the oldest are forgotten
    static constexpr qint64 Pause = 1000;            ///< milliseconds without a key, at which a step of typing ends

    /// How a change came about.
    enum class Kind {
        Typed,  ///< by a key that gives or takes a character
        Linked, ///< by such a key, at two places at once
        Other,
    };

    /// Forgets everything: the text as it stands is the base. `clean`: it is the text that was saved.
    void begin(const QString &text, TextSelection selection, bool clean);
    const QString &text() const { return m_text; }

    /// The text has become `text`. `selection` is the one after it; the one before is what selectionMoved told last.
    /// `now` counts milliseconds from any moment.
    void changed(const QString &text, TextSelection selection, Kind kind, qint64 now);
    /// The caret has moved, without a change of the text.
    void selectionMoved(TextSelection selection);
    /// The text as it stands is the one that was saved.
    void noteSaved();
    bool isAtSaved() const { return m_saved == m_position; }
    /// The next change is a step of its own, and the caret's moves are no longer the last step's.
    void endStep();
    /// The same, but for typing, which may go on.
    void settle();

    /// `length` characters from `start` give way to `text`; then `selection` is selected.
    struct Restored {
        qsizetype start = 0;
        qsizetype length = 0;
        QString text;
        TextSelection selection;
    };
    std::optional<Restored> undo(); ///< nothing at the base
    std::optional<Restored> redo(); ///< nothing at the newest step
    bool canUndo() const { return m_position > 0; }
    bool canRedo() const { return m_position < m_steps.size(); }
    /// The step that the document stands at, from 1 for the newest.
    int position() const { return static_cast<int>(m_steps.size() - m_position) + 1; }

private:
    struct Edit {
        qsizetype start = 0;
        QString removed;
        QString added;
        TextSelection before;
        TextSelection after;
    };

    bool joins(const Edit &edit, Kind kind, qint64 now) const;
    void push(const Edit &edit);
    static Edit difference(const QString &from, const QString &to, TextSelection before, TextSelection after);

    std::deque<Edit> m_steps;   ///< the oldest first
    std::size_t m_position = 0; ///< steps that are done
    std::optional<std::size_t> m_saved;
    QString m_text;
    QString m_stepBase; ///< the text in front of the open step
    TextSelection m_selection;
    bool m_open = false;      ///< the last step may still grow
    bool m_following = false; ///< the caret's moves are still the last step's
    Kind m_kind = Kind::Other;
    Edit m_last; ///< the last change within the open step
    qint64 m_lastTime = 0;
};
