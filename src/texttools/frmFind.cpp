#include "texttools/frmFind.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "forms/dialogForm.h"
#include "forms/programContext.h"
#include "services/services.h"
#include "services/yielder.h"
#include "texttools/cornerPlace.h"
#include "widgets/layout.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>

namespace
{
constexpr int HistoryRows = 15;
constexpr int CharactersShown = 36;

QStringList rowsOf(const QComboBox &combo)
{
    QStringList rows;
    for (int row = 0; row < combo.count(); ++row)
        rows += combo.itemText(row);
    return rows;
}

void addToHistory(QComboBox &combo)
{
    const QSignalBlocker quiet(combo);
    const QString text = combo.currentText();
    const QStringList rows = withHistory(rowsOf(combo), text);
    if (rows.size() == combo.count() && rows == rowsOf(combo))
        return;
    combo.clear();
    combo.addItems(rows);
    combo.setCurrentIndex(-1);
    combo.setEditText(text);
}

SearchDirection reversed(SearchDirection direction)
{
    return direction == SearchDirection::Up ? SearchDirection::Down : SearchDirection::Up;
}

QPushButton *button(const char *name, const QString &caption, const ui::Handler &click)
{
    return ui::button(QLatin1String(name), caption, click);
}
} // namespace

QStringList withHistory(const QStringList &rows, const QString &text)
{
    if (rows.first(qMin<qsizetype>(rows.size(), HistoryRows)).contains(text))
        return rows;
    QStringList result = rows.size() > HistoryRows ? rows.first(HistoryRows - 1) : rows;
    result.prepend(text);
    return result;
}

frmFind::frmFind(ProgramContext &context)
    : Form(context, QStringLiteral("frmFind")),
      m_search(context, {.becomeEntire =
                             [this] {
                                 if (cboSearchType && isLoaded())
                                     cboSearchType->setCurrentIndex(int(SearchType::EntireDocument));
                             },
                         .showFound =
                             [this](const QString &found) {
                                 if (lblFound)
                                     lblFound->setText(found);
                             }})
{
}

void frmFind::Form_Load()
{
    setCaption(QStringLiteral("Find"));
    m_search.restart();
    setContent(ui::beside({ui::column({fields(), options()}), commands()}));
    setDefaultButton(cmdOK);
    setCancelButton(cmdClose);
    addShortcuts();
    lblFound->setVisible(context().state.habits.HabitFind);
    if (context().state.habits.HabitFind)
        fillAsLeft();
    fillFindString();
    enableButtons();
}

ui::Node frmFind::fields()
{
    cboFindString = ui::combo(QStringLiteral("cboFindString"), {}, [this] { cboFindString_Change(); });
    ui::onKeyDown(cboFindString, [this](const QKeyEvent &key) {
        const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
        if (isEnter)
            cmdOK->click();
        return isEnter;
    });
    cboReplace = ui::combo(QStringLiteral("cboReplace"));
    for (QComboBox *combo : {cboFindString, cboReplace})
        combo->setMinimumWidth(combo->fontMetrics().averageCharWidth() * CharactersShown);
    cboSearchDirection = ui::dropList(QStringLiteral("cboSearchDirection"),
                                      {QStringLiteral("Down"), QStringLiteral("Up"), QStringLiteral("All")});
    cboSearchDirection->setCurrentIndex(int(SearchDirection::All));
    cboSearchType =
        ui::dropList(QStringLiteral("cboSearchType"),
                     {QStringLiteral("Entire Document"), QStringLiteral("Text only"), QStringLiteral("Tags only")},
                     [this] { cboSearchType_Click(); });
    return ui::rows({
        ui::row(QStringLiteral("Find What:"), cboFindString),
        ui::row(QStringLiteral("Replace With:"), cboReplace, {}, QStringLiteral("lblReplace")),
        ui::row(QStringLiteral("Search Direction:"), cboSearchDirection),
        ui::row(QStringLiteral("Search Type:"), cboSearchType),
    });
}

ui::Node frmFind::options()
{
    chkCase = ui::check(QStringLiteral("chkCase"), QStringLiteral("Match &Case"));
    chkWholeWords = ui::check(QStringLiteral("chkWholeWords"), QStringLiteral("Find &Whole Words Only"));
    optSearchCurrentDoc = ui::option(QStringLiteral("optSearchCurrentDoc"), QStringLiteral("Current &Document"));
    optSearchOpenDocs = ui::option(QStringLiteral("optSearchOpenDocs"), QStringLiteral("All &Open Documents"));
    optSearchCurrentDoc->setChecked(true);
    lblFound = ui::label(QStringLiteral("lblFound"), QString());
    return ui::column({
        ui::line({
            ui::column({chkCase, chkWholeWords}),
            ui::options({optSearchCurrentDoc, optSearchOpenDocs}),
            ui::space(),
        }),
        lblFound.data(),
    });
}

ui::Node frmFind::commands()
{
    cmdOK = button("cmdOK", QStringLiteral("&Find Next"), [this] { cmdOK_Click(); });
    cmdReplace = button("cmdReplace", QStringLiteral("&Replace..."), [this] { cmdReplace_Click(); });
    cmdReplaceAll = button("cmdReplaceAll", QStringLiteral("Replace &All"), [this] { cmdReplaceAll_Click(); });
    cmdClose = button("cmdClose", QStringLiteral("Close"), [this] { cmdClose_Click(); });
    return ui::buttons({cmdOK, cmdReplace, cmdReplaceAll, cmdClose});
}

/// The keys that repeat a search work here, too, though the main window has the commands.
void frmFind::addShortcuts()
{
    const auto shortcut = [this](const QKeySequence &keys, bool upwards) {
        QObject::connect(new QShortcut(keys, window()), &QShortcut::activated, this,
                         [this, upwards] { FindAgain(upwards); });
    };
    shortcut(QKeySequence(Qt::Key_F3), false);
    shortcut(QKeySequence(Qt::SHIFT | Qt::Key_F3), true);
    for (const char *name : {"cboReplace", "lblReplace", "cmdReplaceAll"})
        window()->findChild<QWidget *>(QLatin1String(name))->hide();
}

void frmFind::fillAsLeft()
{
    const QSignalBlocker quiet(cboFindString);
    cboFindString->addItems(m_lastTexts.find);
    cboReplace->addItems(m_lastTexts.replace);
    cboReplace->setEditText(m_lastTexts.replacement);
    cboSearchDirection->setCurrentIndex(int(m_lastOrder.options.direction));
    cboSearchType->setCurrentIndex(int(m_lastOrder.options.type));
}

/// A single selected character is hardly what is sought.
void frmFind::fillFindString()
{
    const Document *document = frmMdi().activeDocument();
    const bool isSelected = document && document->txtEdit().SelLength() > 1;
    cboFindString->setEditText(isSelected ? document->txtEdit().SelText() : frmMdi().LastFindText);
    SelectAllText(cboFindString);
}

void frmFind::SetFindReplace()
{
    for (const char *name : {"cboReplace", "lblReplace", "cmdReplaceAll"})
        window()->findChild<QWidget *>(QLatin1String(name))->show();
    cmdReplace->setText(QStringLiteral("&Replace"));
    setCaption(QStringLiteral("Replace"));
    window()->adjustSize();
}

void frmFind::FindAgain(bool upwards)
{
    if (m_search.isReplacing())
        return;
    if (!isLoaded())
        m_lastOrder.options.find = frmMdi().LastFindText;
    SearchOrder again = isLoaded() ? order() : m_lastOrder;
    if (again.options.find.isEmpty()) {
        Show();
        return;
    }
    if (!isLoaded())
        again.options.direction = SearchDirection::Down;
    if (upwards)
        again.options.direction = reversed(again.options.direction);
    if (isLoaded())
        AddFindHistory();
    find(again);
    if (!isLoaded()) // nobody could take them away
        m_search.clearMarks();
}

void frmFind::find(SearchOrder order)
{
    m_search.FindNext(order);
}

void frmFind::presentWindow()
{
    const bool isNew = !Visible();
    Form::presentWindow();
    if (isNew)
        placeInCorner(*window());
}

bool frmFind::Form_QueryUnload()
{
    if (!m_search.isReplacing())
        return true;
    m_closing = true;
    m_search.cancelReplacing();
    return false;
}

void frmFind::Form_Unload()
{
    m_lastOrder = order();
    m_lastTexts = {rowsOf(*cboFindString), rowsOf(*cboReplace), cboReplace->currentText()};
    lblFound = nullptr;
    m_search.clearMarks();
    frmMdi().LastFindText = cboFindString->currentText();
    ReturnFromDialog(context());
}

void frmFind::cboFindString_Change()
{
    m_search.restart();
    enableButtons();
}

void frmFind::enableButtons()
{
    const bool canSearch = !cboFindString->currentText().isEmpty() && !m_search.isReplacing();
    for (QPushButton *each : {cmdOK, cmdReplace, cmdReplaceAll})
        each->setEnabled(canSearch);
}

void frmFind::cboSearchType_Click()
{
    const bool inTags = cboSearchType->currentIndex() == int(SearchType::TagsOnly);
    if (inTags)
        chkWholeWords->setChecked(false);
    chkWholeWords->setEnabled(!inTags);
}

/// A search is a pass of its own, before which events run. False if the window is gone by then.
bool frmFind::letEventsRun()
{
    services().yielder.beginPass();
    services().yielder.yield();
    return isLoaded() && cmdOK->isEnabled();
}

void frmFind::cmdOK_Click()
{
    if (!letEventsRun())
        return;
    AddFindHistory();
    find(order());
}

bool frmFind::asksForReplace() const
{
    return cboReplace->isHidden();
}

void frmFind::cmdReplace_Click()
{
    if (asksForReplace()) {
        SetFindReplace();
        cboReplace->setFocus();
        return;
    }
    if (!letEventsRun())
        return;
    AddFindHistory();
    AddReplaceHistory();
    SearchOrder next = order();
    m_search.ReplaceCurrent(next, cboReplace->currentText());
}

void frmFind::cmdReplaceAll_Click()
{
    AddFindHistory();
    AddReplaceHistory();
    const QPointer<QWidget> shown = window();
    for (QPushButton *each : {cmdOK, cmdReplace, cmdReplaceAll})
        each->setEnabled(false);
    cmdClose->setText(QStringLiteral("Cancel"));
    cmdClose->setFocus();
    m_closing = false;
    SearchOrder all = order();
    m_search.ReplaceAll(all, cboReplace->currentText());
    if (!shown || !isLoaded()) // gone with the program
        return;
    cmdClose->setText(QStringLiteral("Close"));
    enableButtons();
    cmdReplaceAll->setFocus();
    if (m_closing)
        Unload();
}

/// While it replaces, the button stops that and no more.
void frmFind::cmdClose_Click()
{
    if (m_search.isReplacing())
        m_search.cancelReplacing();
    else
        Unload();
}

void frmFind::AddFindHistory()
{
    addToHistory(*cboFindString);
}

void frmFind::AddReplaceHistory()
{
    if (!cboReplace->currentText().isEmpty())
        addToHistory(*cboReplace);
}

SearchOrder frmFind::order() const
{
    return {.options = {.find = cboFindString->currentText(),
                        .direction = SearchDirection(cboSearchDirection->currentIndex()),
                        .type = SearchType(cboSearchType->currentIndex()),
                        .matchCase = chkCase->isChecked(),
                        .wholeWords = chkWholeWords->isChecked()},
            .openDocuments = optSearchOpenDocs->isChecked()};
}
