// What a document window does at the keys and changes of its edit surface.
#include "common/text.h"
#include "document/frmWrite.h"
#include "document/modClipboard.h"
#include "document/typing.h"
#include "platform/editSurface.h"
#include "platform/services.h"
#include "platform/timer.h"
#include "shell/settings.h"

namespace
{
constexpr Qt::KeyboardModifiers RealModifiers = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

bool isEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

/// The keys at which a word or an operation ends, so that the history takes a snapshot.
bool endsAStep(const SurfaceKey &key)
{
    switch (key.key) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Delete:
    case Qt::Key_Tab:
    case Qt::Key_Backspace:
        return true;
    case Qt::Key_Period:
    case Qt::Key_Comma:
        return key.modifiers.testFlag(Qt::KeypadModifier); // the decimal key of the numeric pad
    default:
        return false;
    }
}
} // namespace

void frmWrite::txtEdit_Change()
{
    if (ColouringActive)
        return;
    tmrRefresh->setEnabled(false);
    tmrRefresh->setEnabled(true);
    boolDirty = true;
}

void frmWrite::txtEdit_KeyDown(SurfaceKey &key)
{
    CancelColouring = true;
    if (isEnter(key.key) || isArrow(key.key))
        m_edit->setSelectionFormat(m_typed.leaveTag());
    if (m_edit->Locked())
        return;
    if (key.key == Qt::Key_Tab)
        key.discard = indentByTab(key);
    if (isEnter(key.key) && !frmMdi().MainWindowBusy) {
        key.discard = startIndentedLine();
        UndoRedoChange();
        if (key.discard)
            return;
    }
    if (endsAStep(key))
        UndoRedoChange();
    if (leavesForPane(key) || opensPopup(key))
        key.discard = true;
    if ((key.modifiers & RealModifiers) == Qt::ControlModifier && runEditingKey(key.key))
        key.discard = true;
}

bool frmWrite::leavesForPane(const SurfaceKey &key)
{
    constexpr int KeyF6 = 117;
    return key.key == Qt::Key_F6 && frmMdi().MoveToNextPane(KeyF6, QStringLiteral("editor"));
}

/// The keyboard's menu key does what a right click at the caret does.
bool frmWrite::opensPopup(const SurfaceKey &key)
{
    if (key.key != Qt::Key_Menu)
        return false;
    showPopup(m_edit->positionOfCharacter(m_edit->SelStart()).bottomLeft());
    return true;
}

bool frmWrite::indentByTab(const SurfaceKey &key)
{
    const Qt::KeyboardModifiers held = key.modifiers & RealModifiers;
    if (held.testFlag(Qt::ControlModifier) || held.testFlag(Qt::AltModifier))
        return false; // the desktop's own
    const bool outdent = held == Qt::ShiftModifier;
    if (m_edit->SelLength() > 0 || outdent)
        IndentText(!outdent);
    else
        m_edit->setSelText(QStringLiteral("   "));
    m_edit->SetFocus();
    return true;
}

bool frmWrite::startIndentedLine()
{
    if (!settings::isOn(services().settings, settings::MaintainIndent))
        return false;
    const qsizetype blanks = leadingBlanksBefore(m_edit->Text(), m_edit->SelStart());
    m_edit->setSelText(m_edit->SelText() + QStringLiteral("\r\n"));
    m_edit->setSelText(QString(blanks, u' '));
    return true;
}

bool frmWrite::runEditingKey(int key)
{
    switch (key) {
    case Qt::Key_V:
        if (!frmMdi().MainWindowBusy)
            PasteToDocument(context());
        return true;
    case Qt::Key_X:
        CutToClipboard(context());
        return true;
    case Qt::Key_Z:
        Undo();
        return true;
    case Qt::Key_Y:
        Redo();
        return true;
    default:
        return false;
    }
}

void frmWrite::txtEdit_KeyPress(SurfaceCharacter &character)
{
    if (m_edit->Locked())
        return;
    const auto part = [this](qsizetype start, qsizetype length) { return m_edit->textPart(start, length); };
    const TypedResult result = m_typed.keyPress(character.text, m_edit->SelStart(), part, frmMdi().colouring);
    if (result.writesClosingBracket) {
        m_edit->setSelText(QStringLiteral(">"));
        character.discard = true;
    }
    if (result.format != TextFormat())
        m_edit->setSelectionFormat(result.format);
}

void frmWrite::txtEdit_GotFocus()
{
    if (m_unloading)
        return;
    if (!ColouringActive)
        frmMdi().SetStatusReady();
    frmMdi().selectDocumentTab(DocKeyDescription);
}

void frmWrite::txtEdit_LostFocus()
{
    // Which document the focus goes to is only known once the windows have changed places.
    const auto clearForAnother = [this] {
        if (!isLoaded() || m_unloading)
            return;
        const Document *active = frmMdi().activeDocument();
        if (active && active->DocNumber != DocNumber)
            frmMdi().clearStructureTree();
    };
    QMetaObject::invokeMethod(this, clearForAnother, Qt::QueuedConnection);
}
