// The two panes of a document window: the source, and the preview that follows it.
#include "browser/otherHosts.h"
#include "browser/webBrowser.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "document/codeAssistant.h"
#include "document/frmWrite.h"
#include "document/modBrowserControl.h"
#include "document/otherHostsNotice.h"
#include "document/previewCaret.h"
#include "document/viewingPanes.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/timer.h"
#include "surface/editSurface.h"
#include "widgets/tabStrip.h"

#include <QPointer>
#include <QVBoxLayout>

namespace
{
constexpr int EditorTab = 0;
}

void frmWrite::buildPanes()
{
    m_resized = false;
    IsSplit = false;
    m_panes = new ViewingPanes;
    buildNotices();
    contents().addWidget(m_panes, 1);
    buildSurface();
    buildBrowser();
    connect(m_panes, &ViewingPanes::resized, this, &frmWrite::Form_Resize);
    connect(m_panes, &ViewingPanes::tabClicked, this, &frmWrite::tabWindowDisplay_Click);
}

void frmWrite::buildBrowser()
{
    m_browser = new WebBrowser(services().pageViews);
    m_browser->setObjectName(QStringLiteral("brwWebBrowser"));
    m_browser->setAccessibleName(QStringLiteral("Preview"));
    m_panes->pane(1)->layout()->addWidget(m_browser);
    m_browser->setMaySend([this](const QUrl &where) { return maySendForm(where); });
    connect(m_browser, &WebBrowser::navigationStarted, this, &frmWrite::brwWebBrowser_Navigation);
    connect(m_browser, &WebBrowser::navigationFinished, this, &frmWrite::brwWebBrowser_Navigation);
    connect(m_browser, &WebBrowser::otherHostsNamed, this, &frmWrite::brwWebBrowser_OtherHosts);
    connect(m_browser, &WebBrowser::startAnewWanted, this, &frmWrite::brwWebBrowser_StartAnew, Qt::QueuedConnection);
    connect(m_browser, &WebBrowser::focusTaken, m_edit, &EditSurface::SetFocus);
    m_previewCaret = new PreviewCaret(*this, *m_edit, *m_browser, *window(), context());
    m_previewCaret->setParent(m_browser);
    m_previewCaret->setPreview([this] { tmrUpdateLiveSplitPreview_Timer(); });
}

void frmWrite::brwWebBrowser_Navigation()
{
    if (!m_unloading) // what the status bar says of the last window's end stays
        frmMdi().SetStatusReady();
}

Browser *frmWrite::brwWebBrowser()
{
    return m_browser;
}

bool frmWrite::maySendForm(const QUrl &where)
{
    const MessageBox box{.title = QStringLiteral("Send Form"),
                         .text =
                             QStringLiteral("The page in the preview wants to send what was entered into it to \"%1\". "
                                            "Do you want to send it?")
                                 .arg(where.host()),
                         .icon = MessageIcon::Question,
                         .buttons = MessageButtons::YesNo,
                         .byEnter = MessageAnswer::No};
    return services().messageBoxes.show(box) == MessageAnswer::Yes;
}

void frmWrite::brwWebBrowser_StartAnew()
{
    if (m_unloading)
        return;
    const MessageBox box{.title = QStringLiteral("Preview"),
                         .text = QStringLiteral("The preview shows pages again once Tagwrighter is started anew. Your "
                                                "documents come back as they are, with what is not saved; only what "
                                                "can be undone is forgotten. Start it anew now?"),
                         .icon = MessageIcon::Question,
                         .buttons = MessageButtons::YesNo,
                         .byEnter = MessageAnswer::No};
    if (services().messageBoxes.show(box) == MessageAnswer::Yes)
        context().startAnew();
}

/// Told once in a window, and once more when it has changed.
void frmWrite::brwWebBrowser_OtherHosts(bool shown)
{
    if (m_unloading || m_otherHostsTold == shown)
        return;
    m_otherHostsTold = shown;
    notices.put(shown ? otherHostsShownNotice([this] { showOtherHosts(false); })
                      : otherHostsHiddenNotice(!DocSavePath.isEmpty(), [this] { showOtherHosts(true); }));
}

void frmWrite::showOtherHosts(bool shown)
{
    otherHosts::setShown(services().settings, otherHosts::folderOf(DocSavePath), shown);
    m_otherHostsTold = shown;
    m_browser->Refresh();
}

void frmWrite::SplitEditingPreviewWindows()
{
    const bool split = settings::isOn(services().settings, settings::SplitEditPreview);
    if (IsSplit && split)
        return;
    settings::writeBoolean(services().settings, settings::SplitEditPreview, split);
    IsSplit = split;
    frmMdi().setSplitEditingChecked(split);
}

void frmWrite::RepositionEditingandPreviewWindows()
{
    m_panes->place(IsSplit);
    leadFocus();
}

/// A click beside the panes puts the keyboard into the one that is on show.
void frmWrite::leadFocus()
{
    QWidget *front = m_panes->pane(0)->isHidden() ? static_cast<QWidget *>(m_browser) : m_edit;
    window()->setFocusProxy(front);
}

void frmWrite::Form_Resize()
{
    RepositionEditingandPreviewWindows();
    if (!std::exchange(m_resized, true))
        UpdateLineInformation();
}

void frmWrite::tabWindowDisplay_Click(int tab)
{
    leadFocus();
    UpdateLineInformation();
    if (tab == EditorTab) {
        m_edit->SetFocus();
        return;
    }
    m_assistant->hideAll();
    UpdateLivePreview(context());
}

void frmWrite::tmrUpdateLiveSplitPreview_Timer()
{
    // Off before the preview is made: a change that comes in while it waits for events asks for another one.
    tmrUpdateLiveSplitPreview->setEnabled(false);
    const QPointer<frmWrite> self(this);
    if (IsSplit)
        FollowWithLivePreview(context());
    // A user who has moved into the assistant's list goes on there.
    if (self && isLoaded() && !context().state.habits.HabitFocus && frmMdi().activeDocument() == this &&
        !m_assistant->isListShown())
        m_edit->SetFocus();
}
