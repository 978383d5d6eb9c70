#include "texttools/frmSyntaxCheck.h"

#include "common/codeKnowledge.h"
#include "common/document.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/programState.h"
#include "forms/formRuntime.h"
#include "forms/modLaunchHTMLHelp.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/yielder.h"
#include "texttools/cornerPlace.h"
#include "texttools/pageScan.h"
#include "texttools/syntaxScan.h"
#include "widgets/layout.h"
#include "widgets/screenPointer.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <algorithm>

namespace
{
constexpr int FewestNodes = 2;
const QString Title = QStringLiteral("Syntax Check");

MessageBox noTreeBox()
{
    return {Title,
            QStringLiteral("The code library file, \"HTML.tcb\", could not be located. This file is required before "
                           "syntax checking can begin.\r\n\r\nIf this problem persists, you might need to re-install "
                           "Tagwrighter."),
            MessageIcon::Exclamation, MessageButtons::OK};
}

bool isBefore(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) < 0;
}

/// The rows of a list that is kept in alphabetical order.
QStringList sorted(QStringList rows)
{
    std::stable_sort(rows.begin(), rows.end(), isBefore);
    return rows;
}

void insertSorted(QListWidget &list, const QString &row)
{
    int at = 0;
    while (at < list.count() && !isBefore(row, list.item(at)->text()))
        ++at;
    list.insertItem(at, row);
}

} // namespace

frmSyntaxCheck::frmSyntaxCheck(ProgramContext &context) : Form(context, QStringLiteral("frmSyntaxCheck"))
{
    setCaption(Title);
}

void frmSyntaxCheck::Form_Load()
{
    m_stands = false;
    m_checking = false;
    frmMdi().SetStatusText(QStringLiteral("Syntax checking in progress..."));
    build();
    readDictionaries();
    if (!context().codes || context().codes->nodeCount() < FewestNodes) {
        services().messageBoxes.show(noTreeBox());
        Unload();
        return;
    }
    followDocument();
    m_words = std::make_unique<CodeWords>(*context().codes);
    if (context().state.habits.HabitChecker)
        m_scan = std::make_shared<PageScan>(*m_words, m_dictionary);
    else
        m_scan = std::make_shared<SyntaxScan>(*m_words, m_dictionary);
    InitializeSyntaxCheck(false);
    if (!m_stands)
        Unload();
}

void frmSyntaxCheck::build()
{
    setContent(ui::beside({ui::column({words(), hiddenLists()}), commands()}));
    setDefaultButton(cmdChange);
}

ui::Node frmSyntaxCheck::words()
{
    txtSyntax = ui::text(QStringLiteral("txtSyntax"));
    txtSyntax->setReadOnly(true);
    txtChangeTo = ui::text(QStringLiteral("txtChangeTo"), [this] { txtChangeTo_Change(); });
    lstSuggestions = ui::list(
        QStringLiteral("lstSuggestions"), [this] { lstSuggestions_Click(); }, [this] { cmdChange->click(); });
    // The same row again, once the text is another.
    QObject::connect(lstSuggestions, &QListWidget::itemClicked, this, [this] { lstSuggestions_Click(); });
    QComboBox *cboAddWordsTo = ui::dropList(QStringLiteral("cboAddWordsTo"), {QStringLiteral("Syntax.dic")});
    return ui::column({
        ui::rows({
            ui::row(QStringLiteral("Not found:"), txtSyntax),
            ui::row(QStringLiteral("Change &to:"), txtChangeTo),
        }),
        ui::under(QStringLiteral("&Suggestions:"), lstSuggestions).stretched(),
        ui::rows({ui::row(QStringLiteral("Add &words to:"), cboAddWordsTo)}),
    });
}

ui::Node frmSyntaxCheck::commands()
{
    const auto button = [this](const char *name, const char *caption, void (frmSyntaxCheck::*click)()) {
        return ui::button(QLatin1String(name), QLatin1String(caption), [this, click] {
            if (canAct())
                (this->*click)();
        });
    };
    cmdChange = button("cmdChange", "&Change", &frmSyntaxCheck::cmdChange_Click);
    cmdChange->setEnabled(false);
    cmdAlwaysExclude = button("cmdAlwaysExclude", "Exclude", &frmSyntaxCheck::cmdAlwaysExclude_Click);
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { Unload(); });
    QPushButton *cmdHelp = ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/Function_Global_SyntaxCheck.htm"));
    });
    setCancelButton(cmdCancel);
    return ui::buttons({cmdChange, button("cmdIgnore", "&Ignore", &frmSyntaxCheck::cmdIgnore_Click),
                        button("cmdIgnoreAll", "Ignore All", &frmSyntaxCheck::cmdIgnoreAll_Click),
                        button("cmdAdd", "&Add", &frmSyntaxCheck::cmdAdd_Click), cmdAlwaysExclude, cmdCancel, cmdHelp});
}

ui::Node frmSyntaxCheck::hiddenLists()
{
    lstAddedSyntaxes = ui::list(QStringLiteral("lstAddedSyntaxes"));
    lstExclusions = ui::list(QStringLiteral("lstExclusions"));
    lstIgnoreAll = ui::list(QStringLiteral("lstIgnoreAll"));
    return ui::column({ui::hidden(lstAddedSyntaxes), ui::hidden(lstExclusions), ui::hidden(lstIgnoreAll)});
}

/// The document may be closed while the window stands, and then the window has nothing to do any more.
void frmSyntaxCheck::followDocument()
{
    m_document = frmMdi().activeDocument();
    for (Form *form : context().forms.loaded()) {
        if (!m_document || dynamic_cast<Document *>(form) != m_document)
            continue;
        m_closing = connect(form, &Form::unloaded, this, [this] {
            m_document = nullptr;
            if (!m_checking)
                Unload();
        });
    }
}

QStringList frmSyntaxCheck::linesOf(const QString &path) const
{
    const FileContents file = services().files.readAll(path);
    return file.error ? QStringList() : dictionaryLines(file.bytes);
}

void frmSyntaxCheck::readDictionaries()
{
    DicPath = joinPath(services().appPath, QStringLiteral("Syntax.dic"));
    m_exclusionsPath = joinPath(services().appPath, QStringLiteral("SyntaxExclusions.dic"));
    m_dictionary = {};
    const QStringList added = linesOf(DicPath);
    for (const QString &row : added)
        m_dictionary.add(row);
    lstAddedSyntaxes->addItems(sorted(added));
    const QStringList excluded = linesOf(m_exclusionsPath);
    for (const QString &word : excluded)
        m_dictionary.exclude(word);
    lstExclusions->addItems(excluded);
}

/// False if the line is not on the disk.
bool frmSyntaxCheck::appendLine(const QString &path, const QString &line)
{
    FileSystem &files = services().files;
    const FileContents old = files.exists(path) ? files.readAll(path) : FileContents();
    if (old.error)
        return false;
    const QByteArray bytes = withLine(old.bytes, line);
    return bytes != old.bytes && !files.writeWhole(path, bytes);
}

void frmSyntaxCheck::addRow(const QString &row)
{
    m_dictionary.add(row);
    insertSorted(*lstAddedSyntaxes, row);
}

void frmSyntaxCheck::InitializeSyntaxCheck(bool resume)
{
    m_checking = true;
    m_stands = false;
    showBusy(true);
    services().yielder.beginPass();
    m_scan->begin(resume);
    const std::shared_ptr<CheckScan> own = m_scan;
    const CheckScan::Result result = scan(*own);
    showBusy(false);
    if (m_scan != own) // closed while it checked, and perhaps opened again
        return;
    m_checking = false;
    if (!m_document)
        Unload();
    else if (result == CheckScan::Result::Stopped)
        showWord();
    else if (result == CheckScan::Result::Finished)
        finish();
}

/// To the next stop, or the end; "Failed" also if the window or the document is closed meanwhile.
CheckScan::Result frmSyntaxCheck::scan(CheckScan &own)
{
    while (m_document && m_scan.get() == &own) {
        const CheckScan::Result result = own.advance(m_document->txtEdit().Text());
        if (result != CheckScan::Result::Yield)
            return result;
        services().yielder.yield();
    }
    return CheckScan::Result::Failed;
}

void frmSyntaxCheck::showWord()
{
    const CheckScan::Stop &stop = m_scan->stop();
    m_stands = true;
    txtSyntax->setText(stop.word);
    TextSurface &edit = m_document->txtEdit();
    edit.setSelStart(stop.selStart);
    edit.setSelLength(stop.selLength);
    cmdAlwaysExclude->setEnabled(!stop.isElement);
    showSuggestions(stop.isElement ? m_words->elements() : m_words->attributesOf(m_scan->TagName()));
    presentWindow();
    txtChangeTo->setFocus();
    SelectAllText(txtChangeTo);
}

void frmSyntaxCheck::showSuggestions(const QStringList &names)
{
    lstSuggestions->addItems(sorted(names));
    if (lstSuggestions->count() > 0)
        lstSuggestions->setCurrentRow(0);
}

/// During the first pass there is nothing to show yet.
void frmSyntaxCheck::presentWindow()
{
    const bool isNew = !Visible();
    if (!m_stands && isNew)
        return;
    Form::presentWindow();
    if (isNew)
        placeInCorner(*window());
}

void frmSyntaxCheck::finish()
{
    Hide();
    services().messageBoxes.show(
        {Title, QStringLiteral("The syntax check is complete."), MessageIcon::Information, MessageButtons::OK});
    if (m_document)
        m_document->txtEdit().setSelLength(0);
    Unload();
}

void frmSyntaxCheck::Form_Unload()
{
    disconnect(m_closing);
    m_scan.reset();
    m_words.reset();
    m_stands = false;
    m_document = nullptr;
    frmMdi().SetStatusReady();
    if (Document *document = frmMdi().activeDocument())
        document->txtEdit().SetFocus();
}

bool frmSyntaxCheck::canAct() const
{
    return m_document && m_scan && !m_checking;
}

void frmSyntaxCheck::showBusy(bool busy)
{
    context().screenPointer.setMousePointer(busy ? PointerShape::ArrowHourglass : PointerShape::Default);
}

void frmSyntaxCheck::goOn()
{
    txtChangeTo->clear();
    txtSyntax->clear();
    lstSuggestions->clear();
    m_scan->clearWord();
    InitializeSyntaxCheck(true);
}

void frmSyntaxCheck::cmdIgnore_Click()
{
    goOn();
}

void frmSyntaxCheck::cmdIgnoreAll_Click()
{
    lstIgnoreAll->addItem(txtSyntax->text());
    m_dictionary.ignore(txtSyntax->text());
    goOn();
}

/// A word that cannot be written is still known to the end of this check.
void frmSyntaxCheck::cmdAdd_Click()
{
    const QString row = dictionaryRow(m_scan->TagName(), txtSyntax->text());
    if (!appendLine(DicPath, row))
        frmMdi().SetStatusText(QStringLiteral("The word could not be written to Syntax.dic."));
    addRow(row);
    goOn();
}

void frmSyntaxCheck::cmdAlwaysExclude_Click()
{
    const QString word = txtSyntax->text();
    if (!appendLine(m_exclusionsPath, word)) {
        frmMdi().SetStatusText(QStringLiteral("The word could not be written to SyntaxExclusions.dic."));
        return;
    }
    lstExclusions->addItem(word);
    m_dictionary.exclude(word);
    goOn();
}

void frmSyntaxCheck::cmdChange_Click()
{
    const QString text = m_document->txtEdit().Text();
    if (m_scan->findsWord(text)) {
        const CheckScan::Place place = m_scan->Change(text, txtSyntax->text(), txtChangeTo->text());
        context().state.habits.HabitChecker ? changeAsStep(place) : changeOnly(place);
    }
    goOn();
}

void frmSyntaxCheck::changeOnly(const CheckScan::Place &place)
{
    TextSurface &edit = m_document->txtEdit();
    edit.setSelStart(place.selStart);
    edit.setSelLength(place.selLength);
    edit.setSelText(txtChangeTo->text());
}

/// What stood there before is a step of the document's history, and so is what stands there now.
void frmSyntaxCheck::changeAsStep(const CheckScan::Place &place)
{
    m_document->UndoRedoChange();
    changeOnly(place);
    m_document->UndoRedoChange();
}

void frmSyntaxCheck::txtChangeTo_Change()
{
    cmdChange->setEnabled(!txtChangeTo->text().isEmpty());
}

void frmSyntaxCheck::lstSuggestions_Click()
{
    const QList<QListWidgetItem *> chosen = lstSuggestions->selectedItems();
    if (!chosen.isEmpty() && !chosen.constFirst()->text().isEmpty())
        txtChangeTo->setText(chosen.constFirst()->text());
}
