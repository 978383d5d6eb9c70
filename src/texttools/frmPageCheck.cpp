#include "texttools/frmPageCheck.h"

#include "common/document.h"
#include "common/documentEncoding.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/replaceText.h"
#include "forms/formRuntime.h"
#include "forms/modLaunchHTMLHelp.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/habits.h"
#include "services/programFiles.h"
#include "services/services.h"
#include "services/timer.h"
#include "surface/editSurface.h"
#include "texttools/cornerPlace.h"
#include "texttools/pageChecker.h"
#include "texttools/pageMarks.h"
#include "widgets/layout.h"
#include "widgets/listView.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace
{
constexpr int Pause = 300; // milliseconds
constexpr int ErrorIcon = 1;
constexpr int HintIcon = 2;

QList<QIcon> kindIcons()
{
    const QStyle *style = QApplication::style();
    return {style->standardIcon(QStyle::SP_MessageBoxCritical), style->standardIcon(QStyle::SP_MessageBoxInformation)};
}
} // namespace

frmPageCheck::frmPageCheck(ProgramContext &context) : Form(context, QStringLiteral("frmPageCheck"))
{
    setCaption(QStringLiteral("Check Page"));
    tmrPageCheck =
        std::make_unique<Timer>(services().timers, QStringLiteral("tmrPageCheck"), [this] { tmrPageCheck_Timer(); });
    tmrPageCheck->setInterval(Pause);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { followFocus(now); });
}

frmPageCheck::~frmPageCheck() = default;

QObject *frmPageCheck::control(const QString &name) const
{
    return name == tmrPageCheck->objectName() ? tmrPageCheck.get() : Form::control(name);
}

void frmPageCheck::Form_Load()
{
    build();
}

void frmPageCheck::build()
{
    lstProblems =
        ui::listView(QStringLiteral("lstProblems"),
                     {QStringLiteral("Line"), QStringLiteral("What is wrong"), QStringLiteral("What would be right")},
                     {.selection = [this] { lstProblems_Click(); },
                      .dblClick = [this](int row) { goTo(row, true); },
                      .enter = [this](int row) { goTo(row, true); }});
    lstProblems->setSmallIcons(kindIcons());
    constexpr int LineWidth = 70;
    constexpr int WrongWidth = 310;
    lstProblems->setColumnWidth(0, LineWidth);
    lstProblems->setColumnWidth(1, WrongWidth);
    connect(lstProblems, &ListView::rowClicked, this, [this](int row) { goTo(row, false); });
    lblFound = ui::label(QStringLiteral("lblFound"), QString());
    cmdGoTo = ui::button(QStringLiteral("cmdGoTo"), QStringLiteral("&Go There"), [this] { cmdGoTo_Click(); });
    cmdPutRight =
        ui::button(QStringLiteral("cmdPutRight"), QStringLiteral("Put &right"), [this] { cmdPutRight_Click(); });
    QPushButton *cmdCheck = ui::button(QStringLiteral("cmdCheck"), QStringLiteral("&Check Again"), [this] {
        if (Document *document = frmMdi().activeDocument())
            check(*document);
    });
    QPushButton *cmdClose = ui::button(QStringLiteral("cmdClose"), QStringLiteral("Close"), [this] { Unload(); });
    QPushButton *cmdHelp = ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/PageCheck.htm"));
    });
    setContent(ui::beside(
        {ui::column({ui::under(QStringLiteral("&Problems:"), lstProblems.data()).stretched(), lblFound.data()}),
         ui::buttons({cmdGoTo, cmdPutRight, cmdCheck, cmdClose, cmdHelp})}));
    setDefaultButton(cmdGoTo);
    setCancelButton(cmdClose);
}

void frmPageCheck::presentWindow()
{
    const bool isNew = !Visible();
    Form::presentWindow();
    if (isNew) {
        constexpr int Width = 760;
        constexpr int Height = 320;
        window()->resize(window()->sizeHint().expandedTo({Width, Height}));
        placeInCorner(*window());
    }
    if (Document *document = frmMdi().activeDocument())
        check(*document);
}

void frmPageCheck::Form_Unload()
{
    lstProblems = nullptr;
    lblFound = nullptr;
    cmdGoTo = cmdPutRight = nullptr;
    if (m_surface && !checksByItself())
        showPageMarks(*m_surface, {});
    if (Document *document = frmMdi().activeDocument())
        document->txtEdit().SetFocus();
}

// --- Following the pages ---------------------------------------------------------------------------------------------

/// The page that gets the keyboard is the one to look at.
void frmPageCheck::followFocus(QWidget *now)
{
    auto *surface = qobject_cast<EditSurface *>(now);
    if (!surface || surface == m_surface || !documentOf(surface))
        return;
    if (isLoaded() || checksByItself()) {
        follow(surface);
        txtEdit_Change();
    }
}

void frmPageCheck::takeOverHabits()
{
    if (checksByItself()) {
        followFocus(QApplication::focusWidget());
        if (m_surface)
            txtEdit_Change();
    } else if (m_surface && !isLoaded()) {
        tmrPageCheck->setEnabled(false);
        showPageMarks(*m_surface, {});
    }
}

void frmPageCheck::follow(EditSurface *surface)
{
    if (surface == m_surface)
        return;
    disconnect(m_change);
    disconnect(m_closing);
    if (m_surface)
        showPageMarks(*m_surface, {});
    m_surface = surface;
    if (!m_keys)
        addKeys(surface->window());
    forgetProblems();
    m_change = connect(surface, &EditSurface::Change, this, &frmPageCheck::txtEdit_Change);
    m_closing = connect(surface, &QObject::destroyed, this, &frmPageCheck::forget);
}

/// The page is closed, and its list with it.
void frmPageCheck::forget()
{
    tmrPageCheck->setEnabled(false);
    forgetProblems();
}

/// A row of the list stands for one of the problems, so they go together.
void frmPageCheck::forgetProblems()
{
    m_checker.reset();
    m_problems.clear();
    m_checked.clear();
    tell(QString());
    if (!lstProblems)
        return;
    lstProblems->clearRows();
    lstProblems_Click();
}

/// F4 and Shift+F4 go round, in the page and in the list.
void frmPageCheck::addKeys(QWidget *mainWindow)
{
    m_keys = new QObject(mainWindow);
    for (const auto &[keys, by] :
         {std::pair(QKeySequence(Qt::Key_F4), 1), std::pair(QKeySequence(Qt::SHIFT | Qt::Key_F4), -1)}) {
        auto *shortcut = new QShortcut(keys, mainWindow);
        shortcut->setContext(Qt::ApplicationShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, step = by] { goRound(step); });
    }
}

bool frmPageCheck::checksByItself() const
{
    return editsByToday(services().settings);
}

void frmPageCheck::txtEdit_Change()
{
    tmrPageCheck->setEnabled(false);
    tmrPageCheck->setEnabled(checksByItself());
}

void frmPageCheck::tmrPageCheck_Timer()
{
    tmrPageCheck->setEnabled(false);
    if (Document *document = m_surface ? documentOf(m_surface) : nullptr)
        check(*document);
}

Document *frmPageCheck::documentOf(const EditSurface *surface) const
{
    for (Document *document : frmMdi().openDocuments())
        if (&document->txtEdit() == surface)
            return document;
    return nullptr;
}

// --- Checking --------------------------------------------------------------------------------------------------------

bool frmPageCheck::readRules()
{
    if (!m_rules)
        m_rules =
            PageRules::read(services().files.readAll(programFile(services(), QStringLiteral("Page.rules"))).bytes);
    return m_rules != nullptr;
}

PageCheckContext frmPageCheck::contextOf(const Document &document) const
{
    PageCheckContext checked;
    checked.format = formatOfDocument(document, encodingOfDocument(document));
    if (document.DocSavePath.isEmpty())
        return checked;
    const QString folder = folderOf(document.DocSavePath);
    checked.exists = [&files = services().files, folder](const QString &path) {
        return files.exists(joinPath(folder, path)) || files.isFolder(joinPath(folder, path));
    };
    return checked;
}

void frmPageCheck::check(Document &document)
{
    auto *surface = dynamic_cast<EditSurface *>(&document.txtEdit());
    if (!surface)
        return;
    follow(surface);
    m_checked = surface->Text();
    if (!readRules()) {
        forgetProblems();
        tell(QStringLiteral("The file Page.rules, by which pages are checked, cannot be read."));
        return;
    }
    if (!m_checker)
        m_checker = std::make_unique<PageChecker>(*m_rules);
    m_problems = m_checker->check(m_checked, contextOf(document));
    showPageMarks(*surface, m_problems);
    showProblems();
}

void frmPageCheck::tell(const QString &text)
{
    if (lblFound)
        lblFound->setText(text);
}

void frmPageCheck::showProblems()
{
    tell(problemsCounted(m_problems));
    if (!lstProblems)
        return;
    const int row = lstProblems->selectedRow().value_or(0);
    lstProblems->clearRows();
    for (const PageProblem &problem : std::as_const(m_problems))
        lstProblems->addRow({.key = {},
                             .text = QString::number(m_surface->lineFromCharacter(problem.start) + 1),
                             .smallIcon = problem.kind == PageProblem::Kind::Error ? ErrorIcon : HintIcon,
                             .subItems = {problem.message, problem.remedy}});
    selectRow(qMin(row, int(m_problems.size()) - 1));
    lstProblems_Click();
}

void frmPageCheck::selectRow(int row)
{
    if (lstProblems && row >= 0)
        lstProblems->selectRow(row);
}

// --- What the window's buttons do ------------------------------------------------------------------------------------

void frmPageCheck::lstProblems_Click()
{
    const auto row = lstProblems->selectedRow();
    cmdGoTo->setEnabled(row.has_value());
    cmdPutRight->setEnabled(row && !m_problems[*row].fix.isEmpty());
}

void frmPageCheck::cmdGoTo_Click()
{
    if (const auto row = lstProblems->selectedRow())
        goTo(*row, true);
}

void frmPageCheck::goTo(int row, bool focus)
{
    if (!m_surface || row < 0 || row >= m_problems.size())
        return;
    m_surface->setSelStart(m_problems[row].start);
    m_surface->setSelLength(m_problems[row].length);
    Document *document = documentOf(m_surface);
    if (!document || !focus)
        return;
    document->activate();
    m_surface->window()->activateWindow(); // the keyboard is in the list's window still
    m_surface->setFocus();
}

/// To the next problem behind the caret, or the last one in front of it; from the end to the start.
void frmPageCheck::goRound(int by)
{
    if (!m_surface || m_problems.isEmpty())
        return;
    const qsizetype caret = m_surface->SelStart();
    int row = -1;
    for (int i = 0; i < m_problems.size(); ++i)
        if (by > 0 ? m_problems[i].start > caret && row < 0 : m_problems[i].start < caret)
            row = i;
    if (row < 0)
        row = by > 0 ? 0 : int(m_problems.size()) - 1;
    selectRow(row);
    goTo(row, false);
}

/// Where the same problem stands in a text that has changed since.
std::optional<int> frmPageCheck::rowAfterCheck(const PageProblem &problem) const
{
    std::optional<int> nearest;
    for (int i = 0; i < m_problems.size(); ++i) {
        if (m_problems[i].rule != problem.rule || m_problems[i].message != problem.message)
            continue;
        if (!nearest || qAbs(m_problems[i].start - problem.start) < qAbs(m_problems[*nearest].start - problem.start))
            nearest = i;
    }
    return nearest;
}

void frmPageCheck::cmdPutRight_Click()
{
    auto row = lstProblems->selectedRow();
    Document *document = m_surface ? documentOf(m_surface) : nullptr;
    if (!row || !document)
        return;
    if (m_surface->Text() != m_checked) {
        const PageProblem wanted = m_problems[*row];
        check(*document);
        row = rowAfterCheck(wanted);
    }
    if (!row || m_problems[*row].fix.isEmpty())
        return;
    const QString text = withFix(m_checked, m_problems[*row]);
    const int next = *row;
    replaceText(*document, text);
    check(*document);
    selectRow(qMin(next, int(m_problems.size()) - 1));
}
