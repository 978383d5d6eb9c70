// Plays of a user who does anything, made up or repeated.
#include "drive/commands.h"
#include "drive/freePlay.h"
#include "drive/freeRules.h"
#include "drive/monkey.h"
#include "drive/stage.h"

#include <QScopedValueRollback>

namespace drive
{
namespace
{
/// The lines of a script, one after the other.
class Repeated final : public LineSource
{
public:
    explicit Repeated(const std::vector<Line> &lines) : m_lines(lines) {}

    std::optional<Line> next(Stage &, Form *) override
    {
        return m_next < m_lines.size() ? std::optional(m_lines[m_next++]) : std::nullopt;
    }
    std::optional<Line> answerTo(const MessageBox &) override { return answer(); }
    std::optional<Line> answerTo(DialogKind) override { return answer(); }

private:
    /// An answer stands behind what asks for it.
    std::optional<Line> answer()
    {
        return m_next < m_lines.size() && isAnswer(m_lines[m_next]) ? std::optional(m_lines[m_next++]) : std::nullopt;
    }

    const std::vector<Line> &m_lines;
    std::size_t m_next = 0;
};

uint numberOf(Stage &stage, const QString &word)
{
    bool ok = false;
    const uint number = word.toUInt(&ok);
    if (!ok)
        stage.referee.wrong(QStringLiteral("%1 is no number").arg(word));
    return number;
}

void freely(Stage &stage, const Line &line)
{
    Repeated lines(line.block);
    FreePlay(stage, lines).play();
}

void monkey(Stage &stage, const Line &line)
{
    Monkey source(numberOf(stage, line.words[0]), static_cast<int>(numberOf(stage, line.words[1])),
                  line.words.value(2));
    FreePlay(stage, source).play();
}

void undoLeadsBack(Stage &stage, const Line &)
{
    const QScopedValueRollback told(stage.referee.passesOver, false);
    checkUndoLeadsBack(stage);
}

constexpr Command commands[] = {
    {"freely", 0, 0, freely},
    {"monkey", 2, 3, monkey},
    {"expect-undo-leads-back", 0, 0, undoLeadsBack},
};
} // namespace

std::span<const Command> freeCommands()
{
    return commands;
}
} // namespace drive
