#include "document/previewCaret.h"

#include "browser/webBrowser.h"
#include "common/document.h"
#include "common/programState.h"
#include "document/modBrowserControl.h"
#include "document/pageElements.h"
#include "forms/programContext.h"
#include "services/services.h"
#include "services/timer.h"
#include "surface/editSurface.h"

namespace
{
constexpr int PauseMilliseconds = 60;        // the page itself takes its time, too
constexpr int CaretMilliseconds = 60;        // a key that is held down moves the caret faster
constexpr qsizetype LongestText = 1'000'000; // reading the tags of a longer one would hold the keys up
} // namespace

PreviewCaret::PreviewCaret(Document &document, EditSurface &edit, WebBrowser &browser, QWidget &window,
                           ProgramContext &context)
    : m_document(document), m_edit(edit), m_browser(browser), m_context(context)
{
    tmrFollowCaret = new Timer(
        context.services.timers, QStringLiteral("tmrFollowCaret"), [this] { mark(); }, &window);
    tmrFollowCaret->setInterval(CaretMilliseconds);
    const auto preview = [this] {
        tmrPreviewSoon->setEnabled(false);
        if (m_preview)
            m_preview();
    };
    tmrPreviewSoon = new Timer(context.services.timers, QStringLiteral("tmrPreviewSoon"), preview, &window);
    tmrPreviewSoon->setInterval(PauseMilliseconds);
    connect(&edit, &EditSurface::Change, this, &PreviewCaret::textChanged);
    connect(&edit, &EditSurface::SelChange, this, &PreviewCaret::caretMoved);
    connect(&browser, &WebBrowser::navigationFinished, this, &PreviewCaret::pageShown);
    connect(&browser, &WebBrowser::clickedAt, this, &PreviewCaret::clicked);
}

/// The document's own timer for this runs, too, and later.
void PreviewCaret::textChanged()
{
    tmrPreviewSoon->setEnabled(false);
    tmrPreviewSoon->setEnabled(m_context.state.habits.HabitPreview);
}

bool PreviewCaret::showsOwnText() const
{
    return m_context.state.habits.HabitPreview && m_browser.isVisible() && m_edit.textLength() <= LongestText &&
           isShownUnder(m_document, m_browser.LocationURL());
}

void PreviewCaret::caretMoved()
{
    if (!showsOwnText())
        return;
    tmrFollowCaret->setEnabled(false);
    tmrFollowCaret->setEnabled(true);
}

/// A page that was loaded anew has lost its mark.
void PreviewCaret::pageShown()
{
    m_marked.clear();
    mark();
}

void PreviewCaret::mark()
{
    tmrFollowCaret->setEnabled(false);
    const ElementPath path = showsOwnText() ? elementsAt(m_edit.Text(), m_edit.SelStart()) : ElementPath();
    if (path == m_marked)
        return;
    m_marked = path;
    m_browser.mark(path);
}

/// The keyboard stays where the user has put it with the click.
void PreviewCaret::clicked(const ElementPath &path)
{
    if (!showsOwnText())
        return;
    if (const std::optional<qsizetype> place = placeOfElement(m_edit.Text(), path)) {
        m_edit.setSelStart(*place);
        m_edit.setSelLength(0);
    }
}
