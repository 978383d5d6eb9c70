// What a document window does at the mouse and at drops on its edit surface, and when that is scrolled.
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "document/assistantWords.h"
#include "document/codeAssistant.h"
#include "document/colourSquares.h"
#include "document/frmWrite.h"
#include "document/handCommands.h"
#include "document/linkTarget.h"
#include "document/pictureHands.h"
#include "document/viewingPanes.h"
#include "internet/modViewInBrowser.h"
#include "services/services.h"
#include "services/stillTimerSource.h"
#include "surface/editSurface.h"
#include "surface/lineMargin.h"

namespace
{
constexpr Qt::KeyboardModifiers RealModifiers = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
constexpr int LineCountMilliseconds = 1;

/// What stands at a point of the surface.
QString WordAtPoint(const EditSurface &box, const QPoint &point)
{
    return WordAtCharacter(box, box.characterFromPosition(point));
}
} // namespace

SurfaceHooks frmWrite::surfaceHooks()
{
    SurfaceHooks hooks;
    hooks.keyDown = [this](SurfaceKey &key) { txtEdit_KeyDown(key); };
    hooks.keyPress = [this](SurfaceCharacter &character) { txtEdit_KeyPress(character); };
    hooks.keyUp = [this](SurfaceKey &) { txtEdit_KeyUp(); };
    hooks.mouseMove = [this](SurfaceMouse &mouse) { txtEdit_MouseMove(mouse); };
    hooks.mouseUp = [this](SurfaceMouse &mouse) { txtEdit_MouseUp(mouse); };
    hooks.textDropped = [this](const QString &text) { txtEdit_TextDropped(text); };
    hooks.filesDropped = [this](const QStringList &paths, qsizetype place) { txtEdit_FilesDropped(paths, place); };
    hooks.filesHavePlace = [this](const QStringList &paths) {
        return !picturesAmong(context(), *this, paths).isEmpty();
    };
    hooks.squareClicked = [this](const MarkedRange &square) { m_colourSquares->click(square); };
    return hooks;
}

void frmWrite::buildAssistant()
{
    m_assistant = new CodeAssistant(*m_panes->pane(0), *m_edit, *this, context());
    m_edit->margin()->setObjectName(QStringLiteral("picLineInformation"));
    // Scrolling is told by the surface, so that an idle window need not look for it.
    StillTimerSource still;
    tmrLineCount = new Timer(
        still, QStringLiteral("tmrLineCount"), [this] { tmrLineCount_Timer(); }, window());
    tmrLineCount->setInterval(LineCountMilliseconds);
    tmrLineCount->setEnabled(true);
    connect(m_edit, &EditSurface::scrolled, tmrLineCount, &Timer::fire);
    UpdateLineInformation();
}

void frmWrite::tmrLineCount_Timer()
{
    if (m_edit->firstVisibleLine() != FirstVisibleLine)
        UpdateLineInformation();
}

void frmWrite::txtEdit_MouseMove(const SurfaceMouse &mouse)
{
    const bool looksForLink = (mouse.modifiers & RealModifiers) == Qt::ControlModifier;
    const QString target = looksForLink && context().state.habits.HandsFollow
                               ? linkTargetAt(m_edit->Text(), m_edit->characterFromPosition(mouse.position))
                               : QString();
    m_followsTarget = !target.isEmpty();
    if (m_followsTarget)
        setHoverLink(target);
    else
        setHoverLink(looksForLink ? linkIn(WordAtPoint(*m_edit, mouse.position)) : QString());
}

/// Keeps the address under the pointer, which is a hand over one.
void frmWrite::setHoverLink(const QString &link)
{
    const bool hadLink = !HoverLink.isEmpty();
    HoverLink = link;
    if (hadLink == !link.isEmpty())
        return;
    if (link.isEmpty()) {
        m_edit->unsetCursor();
        m_edit->viewport()->setCursor(Qt::IBeamCursor);
    } else {
        m_edit->setCursor(Qt::PointingHandCursor);
        m_edit->viewport()->setCursor(Qt::PointingHandCursor);
    }
}

void frmWrite::txtEdit_MouseUp(const SurfaceMouse &mouse)
{
    if (mouse.button == Qt::LeftButton)
        txtEdit_Click();
    CancelColouring = true;
    if (mouse.button == Qt::RightButton)
        showPopup(mouse.position);
}

void frmWrite::txtEdit_Click()
{
    UpdateLineInformation();
    const QString link = HoverLink; // the click may bring another window to the front
    if (m_followsTarget)
        QMetaObject::invokeMethod(
            this, [this, link] { FollowLink(context(), *this, link); }, Qt::QueuedConnection);
    else if (!link.isEmpty())
        OpenInBrowser(context(), link);
    txtEdit_KeyUp();
}

void frmWrite::showPopup(const QPoint &point)
{
    frmMdi().PopupMenu(QStringLiteral("mnuPopup"), m_edit->mapToGlobal(point));
}

void frmWrite::txtEdit_TextDropped(const QString &text)
{
    m_edit->setSelText(text);
    m_edit->SetFocus();
}

/// Pictures come behind the drop, for which another program is waiting.
void frmWrite::txtEdit_FilesDropped(const QStringList &paths, qsizetype place)
{
    const QStringList pictures = picturesAmong(context(), *this, paths);
    if (pictures.isEmpty()) {
        openFiles(paths);
        return;
    }
    const auto take = [this, paths, pictures, place] {
        WritePictures(context(), *this, pictures, {place, 0});
        QStringList others = paths;
        others.removeIf([&pictures](const QString &path) { return pictures.contains(path); });
        openFiles(others);
    };
    QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
}

void frmWrite::openFiles(const QStringList &paths)
{
    for (const QString &path : paths)
        if (context().files)
            context().files->OpenDocumentFile(path, false);
}
