#pragma once

#include "common/pageElement.h"

#include <QObject>
#include <functional>

class Document;
class EditSurface;
class QWidget;
class Timer;
class WebBrowser;
struct ProgramContext;

/// Lets a document's preview follow the caret, and the caret a click in the preview, where the user wants that: the
/// element of the one is marked, and in view, in the other.
class PreviewCaret final : public QObject
{
public:
    /// All have to outlive it; the surface, the browser and the window are the document's. The window's timers
    /// `tmrFollowCaret` and `tmrPreviewSoon` come with it.
    PreviewCaret(Document &document, EditSurface &edit, WebBrowser &browser, QWidget &window, ProgramContext &context);

    /// What brings the preview up to date, a short pause behind a change.
    void setPreview(std::function<void()> preview) { m_preview = std::move(preview); }

private:
    void textChanged();
    void caretMoved();
    void pageShown();
    void mark();
    void clicked(const ElementPath &path);
    bool showsOwnText() const;

    const Document &m_document;
    EditSurface &m_edit;
    WebBrowser &m_browser;
    const ProgramContext &m_context;
    Timer *tmrFollowCaret;
    Timer *tmrPreviewSoon;
    std::function<void()> m_preview;
    ElementPath m_marked; ///< in the page on show
};
