#include "drive/freePlay.h"

#include "drive/events.h"
#include "drive/freeRules.h"
#include "drive/stage.h"
#include "drive/userInput.h"
#include "forms/form.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QWidget>

namespace drive
{
bool isAnswer(const Line &line)
{
    return line.command == QStringLiteral("answer") || line.command.startsWith(QStringLiteral("choose"));
}

FreePlay::FreePlay(Stage &stage, LineSource &source)
    : m_stage(stage), m_source(source), m_shownBefore(stage.desktop.modalLoop.shown)
{
    stage.desktop.modalLoop.shown = [this](Form &form) { playModally(form); };
    stage.desktop.boxes.freely = [this](const MessageBox &box) { return answerOf(box); };
    stage.desktop.dialogs.freely = [this](DialogKind kind) { return answerOf(kind); };
}

FreePlay::~FreePlay()
{
    m_stage.desktop.modalLoop.shown = m_shownBefore;
    m_stage.desktop.boxes.freely = nullptr;
    m_stage.desktop.dialogs.freely = nullptr;
}

void FreePlay::play()
{
    while (const std::optional<Line> line = m_source.next(m_stage, nullptr))
        playLine(*line);
    m_over = true;
}

std::optional<MessageAnswer> FreePlay::answerOf(const MessageBox &box)
{
    const std::optional<Line> line = m_over ? std::nullopt : m_source.answerTo(box);
    const std::optional<MessageAnswer> answer = line ? parseAnswer(line->words.value(0)) : std::nullopt;
    return answer && hasButton(box.buttons, *answer) ? answer : std::nullopt;
}

std::optional<DialogAnswer> FreePlay::answerOf(DialogKind kind)
{
    if (const std::optional<Line> line = m_over ? std::nullopt : m_source.answerTo(kind))
        m_stage.run(*line);
    return m_stage.desktop.dialogs.takeQueued(kind);
}

void FreePlay::playLine(const Line &line)
{
    if (isAnswer(line)) // of a box that has not come up this time
        return;
    m_stage.rules.enter(m_stage, line);
    leavePopups(line);
    insideEvent([&] {
        const QScopedValueRollback passes(m_stage.referee.passesOver, true);
        try {
            m_stage.run(line);
        } catch (const PassedOver &) {
        }
    });
    settle();
    m_stage.rules.check(m_stage);
    checkFreeRules(m_stage, m_modal);
}

/// What is done beside an open list or menu closes it first; its keys go on to it.
void FreePlay::leavePopups(const Line &line)
{
    if (line.command == QStringLiteral("key") || line.command == QStringLiteral("type"))
        return;
    insideEvent([] {
        for (int attempt = 0; attempt < 10 && QApplication::activePopupWidget(); ++attempt)
            QApplication::activePopupWidget()->close();
    });
    settle();
}

void FreePlay::playModally(Form &form)
{
    if (!form.Visible())
        return;
    const QScopedValueRollback passes(m_stage.referee.passesOver, false);
    const int outer = m_stage.referee.line();
    m_modal.append(&form);
    insideEvent([&] {
        settle();
        while (form.Visible()) {
            const std::optional<Line> line = m_source.next(m_stage, &form);
            if (!line)
                break;
            playLine(*line);
        }
    });
    m_over = m_over || form.Visible();
    leave(form);
    m_modal.removeLast();
    m_stage.referee.enterLine(outer);
}

/// By its close box, or by Escape.
void FreePlay::leave(Form &form)
{
    for (int attempt = 0; attempt < 3 && form.Visible(); ++attempt) {
        insideEvent([&] {
            if (attempt == 0)
                form.window()->close();
            else
                pressKey(*form.window(), Qt::Key_Escape);
        });
        settle();
    }
    if (form.Visible())
        m_stage.referee.fail(QStringLiteral("%1 to go when its user leaves it").arg(form.Name()),
                             QStringLiteral("it still on show"));
}
} // namespace drive
