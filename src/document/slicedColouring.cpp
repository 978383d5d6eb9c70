#include "document/slicedColouring.h"

#include "common/mainWindow.h"
#include "common/programState.h"
#include "document/pageColours.h"
#include "forms/programContext.h"
#include "services/services.h"
#include "services/timer.h"
#include "surface/editSurface.h"

#include <QElapsedTimer>

#include <algorithm>

namespace
{
constexpr qsizetype AtOnce = 16 * 1024; ///< of a text this long, more is not worth a second look
constexpr int PauseMilliseconds = 200;  ///< of the keys
constexpr qsizetype Piece = 4 * 1024;   ///< in characters, between two looks at the clock

} // namespace

SlicedColouring::SlicedColouring(EditSurface &edit, ProgramContext &context)
    : QObject(&edit), m_edit(&edit), m_context(context)
{
    tmrColourSoon = new Timer(
        context.services.timers, QStringLiteral("tmrColourSoon"), [this] { begin(); }, &edit);
    tmrColourSoon->setInterval(PauseMilliseconds);
    connect(&edit, &EditSurface::Change, this, &SlicedColouring::textChanged);
    connect(&edit, &EditSurface::scrolled, this, &SlicedColouring::colourView);
}

SlicedColouring::~SlicedColouring() = default;

/// What the keys have coloured by themselves waits for nothing; what came in otherwise has no colours yet.
void SlicedColouring::textChanged()
{
    stop();
    tmrColourSoon->setEnabled(false);
    tmrColourSoon->setEnabled(m_context.state.habits.HabitColouring);
}

void SlicedColouring::begin()
{
    stop();
    tmrColourSoon->setEnabled(false);
    if (!m_edit)
        return;
    m_page = std::make_unique<PageColours>(m_edit->Text(), m_context.mainWindow->colouring, m_context.state.habits);
    if (m_page->text().size() <= AtOnce) {
        m_edit->setFormats(m_page->advance(AtOnce));
        m_page.reset();
        return;
    }
    colourView();
    nextSlice();
}

void SlicedColouring::stop()
{
    ++m_round;
    m_page.reset();
}

void SlicedColouring::nextSlice()
{
    QMetaObject::invokeMethod(
        this, [this, round = m_round] { slice(round); }, Qt::QueuedConnection);
}

void SlicedColouring::slice(int round)
{
    if (round != m_round || !m_page || !m_edit)
        return;
    QElapsedTimer sinceBegin;
    sinceBegin.start();
    do
        m_edit->setFormats(m_page->advance(m_page->place() + Piece));
    while (!m_page->isAtEnd() && sinceBegin.nsecsElapsed() < SliceMilliseconds * 1'000'000);
    if (m_page->isAtEnd())
        m_page.reset();
    else
        nextSlice();
}

/// What the slices have not come to yet is read from nearby; they put right what that can not tell.
void SlicedColouring::colourView()
{
    if (!m_page || !m_edit)
        return;
    const QList<EditSurface::VisibleLine> lines = m_edit->visibleLines();
    if (lines.isEmpty())
        return;
    const qsizetype from = m_edit->characterFromLine(lines.constFirst().line).value_or(0);
    const qsizetype longest = 16 * 1024; // of a page without line breaks, no more is on show
    const qsizetype to =
        std::min(from + longest, m_edit->characterFromLine(lines.constLast().line + 1).value_or(m_page->text().size()));
    if (to <= m_page->place())
        return;
    m_edit->setFormats(
        formatsNearby(m_page->text(), from, to, m_context.mainWindow->colouring, m_context.state.habits));
}
