#pragma once

#include "drive/answers.h"
#include "drive/script.h"

#include <functional>
#include <optional>

class Form;

namespace drive
{
class Stage;

/// Where the lines of a free play come from.
class LineSource
{
public:
    LineSource() = default;
    LineSource(const LineSource &) = delete;
    LineSource &operator=(const LineSource &) = delete;
    virtual ~LineSource() = default;

    /// The next line to play; nothing at the end. `modal` is the form that is on show as a modal box; nothing without
    /// one.
    virtual std::optional<Line> next(Stage &stage, Form *modal) = 0;
    /// The line that answers a box or a dialog that has come up; nothing to leave it by its close box.
    virtual std::optional<Line> answerTo(const MessageBox &box) = 0;
    virtual std::optional<Line> answerTo(DialogKind kind) = 0;
};

/// Whether a line answers a box or a dialog.
bool isAnswer(const Line &line);

/// Plays lines as they come, for a user who does anything: what cannot be done just now is passed over, the lines
/// behind one that shows a modal form are played in that form until it has gone, and an `answer` or a choice stands
/// behind the line that brings up its box or dialog. So each line can be left out and the others still make a play.
///
/// After each line more has to hold than in a script; see freeRules.h.
class FreePlay
{
public:
    FreePlay(Stage &stage, LineSource &source);
    FreePlay(const FreePlay &) = delete;
    FreePlay &operator=(const FreePlay &) = delete;
    ~FreePlay();

    /// Up to the end of the lines; what is left on show then is left by its close box.
    void play();

private:
    void playLine(const Line &line);
    static void leavePopups(const Line &line);
    void playModally(Form &form);
    void leave(Form &form);
    std::optional<MessageAnswer> answerOf(const MessageBox &box);
    std::optional<DialogAnswer> answerOf(DialogKind kind);

    Stage &m_stage;
    LineSource &m_source;
    std::function<void(Form &)> m_shownBefore;
    QList<Form *> m_modal; ///< the innermost last
    bool m_over = false;   ///< there are no more lines
};
} // namespace drive
