// What a document window does at the keys and changes of its edit surface.
#include "browser/webBrowser.h"
#include "codeknowledge/tagHelp.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "common/unsavedText.h"
#include "document/codeAssistant.h"
#include "document/documentHistory.h"
#include "document/documentStructure.h"
#include "document/frmWrite.h"
#include "document/handCommands.h"
#include "document/lineHands.h"
#include "document/lineIndent.h"
#include "document/modClipboard.h"
#include "document/tagPairs.h"
#include "document/typing.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/timer.h"
#include "surface/editSurface.h"
#include "widgets/noticeBar.h"

#include <utility>

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

Qt::KeyboardModifiers heldKeys(const SurfaceKey &key)
{
    return key.modifiers & RealModifiers;
}

/// The surface does nothing with the key, and neither do the steps to come.
void useUp(SurfaceKey &key)
{
    key.key = 0;
    key.discard = true;
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
    if (ColouringActive || m_followsName)
        return;
    m_history->setLinked(followName());
    tmrRefresh->setEnabled(false);
    tmrRefresh->setEnabled(true);
    tmrUpdateLiveSplitPreview->setEnabled(false);
    tmrUpdateLiveSplitPreview->setEnabled(true);
    if (context().unsavedText)
        context().unsavedText->noteChange(*this);
    m_history->changed(!boolDirty);
    if (!boolDirty && context().files)
        context().files->noteFirstChange(*this);
    boolDirty = true; // by the assistant's own changes, too
    if (!std::exchange(SkipLineUpdate, false))
        UpdateLineInformation();
    m_assistant->followWord();
    if (std::exchange(m_tagEnds, false))
        writeEndTag();
}

void frmWrite::expectName()
{
    if (context().state.habits.HandsPair && commentSignsAt({}, 0, DocSavePath) == CommentSigns::Html)
        m_pairedNames.beforeKey(*m_edit);
}

bool frmWrite::followName()
{
    m_followsName = true;
    const bool followed = m_pairedNames.follow(*m_edit);
    m_followsName = false;
    return followed;
}

/// The end tag goes in behind the caret. Who writes it by hand takes the place of the one that is there.
void frmWrite::writeEndTag()
{
    if (commentSignsAt({}, 0, DocSavePath) != CommentSigns::Html)
        return;
    const qsizetype caret = m_edit->SelStart();
    const QString text = m_edit->Text();
    const QString tag = missingEndTag(text, caret);
    const qsizetype doubled = tag.isEmpty() ? doubledEndTagBehind(text, caret) : 0;
    if (tag.isEmpty() && doubled == 0)
        return;
    m_history->keyDown(); // a step of its own: one can do without it
    m_edit->setSelLength(doubled);
    m_edit->setSelText(tag);
    m_edit->setSelStart(caret);
}

void frmWrite::txtEdit_KeyDown(SurfaceKey &key)
{
    UpdateLineInformation();
    m_history->keyDown();
    m_assistant->keyGoesDown();
    if (key.key != Qt::Key_Delete)
        SkipLineUpdate = true;
    stopColouring(key);
    if (m_edit->Locked())
        return;
    assist(key);
    closeAssistant(key);
    indentByTab(key);
    breakLine(key);
    recordStep(key);
    leaveForPane(key);
    openHelp(key);
    openPopup(key);
    enterNotice(key);
    runEditingKey(key);
}

/// Whatever the key, it ends a running pass.
void frmWrite::stopColouring(const SurfaceKey &key)
{
    CancelColouring = true;
    if (isEnter(key.key) || isArrow(key.key))
        m_edit->setSelectionFormat(m_typed.leaveTag());
}

void frmWrite::assist(SurfaceKey &key)
{
    if (heldKeys(key) != Qt::NoModifier)
        return;
    if (m_assistant->takeKey(key.key)) {
        useUp(key);
        return;
    }
    if (key.key == Qt::Key_Delete)
        m_assistant->keyGoesIn();
    if (key.key == Qt::Key_Space || key.key == Qt::Key_Delete || isEnter(key.key)) {
        if (m_assistant->CommitAssistant(key.key))
            key.key = 0; // its character still goes in behind the name
    } else if (key.key == Qt::Key_Up || key.key == Qt::Key_Down) {
        if (m_assistant->moveIntoList(key.key))
            useUp(key);
    }
}

void frmWrite::closeAssistant(const SurfaceKey &key)
{
    if (key.key == Qt::Key_Escape)
        m_assistant->hideAll();
}

void frmWrite::indentByTab(SurfaceKey &key)
{
    const Qt::KeyboardModifiers held = heldKeys(key);
    if (key.key != Qt::Key_Tab || held.testFlag(Qt::ControlModifier) || held.testFlag(Qt::AltModifier))
        return; // with those it is the desktop's own
    const bool outdent = held == Qt::ShiftModifier;
    if (m_edit->SelLength() > 0 || outdent) {
        IndentText(!outdent);
    } else if (openAbbreviation()) {
        useUp(key);
    } else {
        context().state.habits.HabitKeys ? fillToNextStop() : fillWithThreeBlanks();
        key.key = Qt::Key_Space; // which is what it stands for from here on
    }
    key.discard = true;
    m_edit->SetFocus();
}

bool frmWrite::openAbbreviation()
{
    return context().state.habits.HandsAbbreviations && ExpandAbbreviation(context(), *this);
}

void frmWrite::fillWithThreeBlanks()
{
    m_edit->setSelText(QStringLiteral("   "));
}

void frmWrite::fillToNextStop()
{
    applyChange(*m_edit, filledToNextStop(m_edit->Text(), m_edit->SelStart(), indentStyle(services().settings)));
}

void frmWrite::breakLine(SurfaceKey &key)
{
    if (!isEnter(key.key) || frmMdi().MainWindowBusy)
        return;
    if (context().state.habits.HabitKeys ? replaceByLine() : startIndentedLine())
        useUp(key);
    m_history->takeAtKey(selection());
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

/// What is selected gives way to the break.
bool frmWrite::replaceByLine()
{
    if (!settings::isOn(services().settings, settings::MaintainIndent))
        return false;
    const QString text = m_edit->Text();
    const QString indentation = indentStyle(services().settings).tabs
                                    ? indentationBefore(text, m_edit->SelStart())
                                    : QString(leadingBlanksBefore(text, m_edit->SelStart()), u' ');
    m_edit->setSelText(QStringLiteral("\r\n") + indentation);
    return true;
}

void frmWrite::recordStep(const SurfaceKey &key)
{
    if (endsAStep(key))
        m_history->takeAtKey(selection());
    m_history->setTyping(key.key == Qt::Key_Delete); // it gives no character
    if (key.key == Qt::Key_Delete)
        expectName();
}

void frmWrite::leaveForPane(SurfaceKey &key)
{
    if (frmMdi().MoveToNextPane(static_cast<Qt::Key>(key.key), FocusPlace::Source))
        useUp(key);
}

void frmWrite::openHelp(SurfaceKey &key)
{
    if (key.key != Qt::Key_F1)
        return;
    ShowTagHelp(context());
    useUp(key);
}

/// The keyboard's menu key does what a right click at the caret does.
void frmWrite::openPopup(SurfaceKey &key)
{
    if (key.key != Qt::Key_Menu)
        return;
    showPopup(m_edit->positionOfCharacter(m_edit->SelStart()).bottomLeft());
    useUp(key);
}

/// The way to the line above the text without a mouse; Escape leads back.
void frmWrite::enterNotice(SurfaceKey &key)
{
    if (key.key == Qt::Key_F8 && heldKeys(key) == Qt::NoModifier && m_noticeBar->takeFocus())
        useUp(key);
}

void frmWrite::runEditingKey(SurfaceKey &key)
{
    if (heldKeys(key) != Qt::ControlModifier)
        return;
    switch (key.key) {
    case Qt::Key_V:
        if (frmMdi().MainWindowBusy)
            return;
        PasteToDocument(context());
        break;
    case Qt::Key_X:
        CutToClipboard(context());
        break;
    case Qt::Key_Z:
        Undo();
        break;
    case Qt::Key_Y:
        Redo();
        break;
    default:
        return;
    }
    useUp(key);
}

void frmWrite::txtEdit_KeyPress(SurfaceCharacter &character)
{
    if (m_edit->Locked())
        return;
    if (character.text == u"<")
        m_assistant->CommitAssistant(Qt::Key_Less);
    else if (character.text == u">")
        m_assistant->hideTip();
    else if (character.text == u" " && character.committed)
        m_assistant->CommitAssistant(Qt::Key_Space); // an input method's blank comes without a key
    m_history->setTyping(!character.committed);
    expectName();
    m_assistant->keyGoesIn();
    m_tagEnds = character.text == u">" && context().state.habits.HandsClose;
    const auto part = [this](qsizetype start, qsizetype length) { return m_edit->textPart(start, length); };
    const TypedResult result = m_typed.keyPress(character.text, m_edit->SelStart(), part, frmMdi().colouring);
    if (result.writesClosingBracket) {
        m_edit->setSelText(QStringLiteral(">"));
        character.discard = true;
    }
    if (result.format != TextFormat())
        m_edit->setSelectionFormat(result.format);
    else if (!result.writesClosingBracket)
        leaveTagBehind(character.text);
}

/// What is typed takes the looks of what stands before it. Behind a tag that would be the tag's, until the next pass:
/// text outside of tags is never bold.
void frmWrite::leaveTagBehind(QStringView typed)
{
    if (m_typed.TagOpen() || m_edit->selectionFormat().bold == false)
        return;
    const auto part = [this](qsizetype start, qsizetype length) { return m_edit->textPart(start, length); };
    if (!CaretInsideTag(part, m_edit->SelStart(), typed))
        m_edit->setSelectionFormat({WindowTextColour, false, {}});
}

void frmWrite::txtEdit_KeyUp()
{
    m_history->setTyping(false);
    m_assistant->followCaret();
}

void frmWrite::txtEdit_GotFocus()
{
    if (m_unloading)
        return;
    m_browser->releaseFocus();
    if (!ColouringActive)
        frmMdi().SetStatusReady();
    // While documents change places, the one that is left can have the keyboard for a moment yet.
    if (frmMdi().activeDocument() == this)
        frmMdi().selectDocumentTab(DocKeyDescription);
    if (context().files)
        context().files->lookAtFile(*this);
    txtEdit_KeyUp();
}

void frmWrite::txtEdit_LostFocus()
{
    // Which document the focus goes to is only known once the windows have changed places.
    const auto clearForAnother = [this] {
        if (!isLoaded() || m_unloading)
            return;
        const Document *active = frmMdi().activeDocument();
        if (active && active->DocNumber != DocNumber)
            m_structure->leave();
    };
    QMetaObject::invokeMethod(this, clearForAnother, Qt::QueuedConnection);
}
