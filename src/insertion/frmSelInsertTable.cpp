#include "insertion/frmSelInsertTable.h"

#include "common/mainWindow.h"
#include "insertion/tableMarkup.h"
#include "widgets/arrowStep.h"
#include "widgets/pictureBox.h"
#include "widgets/screenPointer.h"
#include "widgets/themeColour.h"

#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace
{
constexpr int Size = 5;

QString tableText(int rows, int columns)
{
    return QStringLiteral("%1 \u00D7 %2 Table").arg(rows).arg(columns);
}
} // namespace

int tableCellNumber(int row, int column)
{
    const int shell = std::max(row, column);
    const int last = shell * shell; // the shell ends at the bottom of the first column
    return column == shell ? (shell - 1) * (shell - 1) + row : last - column + 1;
}

frmSelInsertTable::frmSelInsertTable(ProgramContext &context) : Form(context, QStringLiteral("frmSelInsertTable"))
{
    setCaption(QStringLiteral("Table"));
}

QWidget *frmSelInsertTable::createWindow()
{
    QWidget *window = Form::createWindow();
    window->setWindowFlag(Qt::FramelessWindowHint);
    return window;
}

void frmSelInsertTable::Form_Load()
{
    setContent(ui::Node(border()));
    window()->layout()->setContentsMargins(0, 0, 0, 0);
    window()->layout()->setSizeConstraint(QLayout::SetFixedSize);
    m_rows = m_columns = 0;
    lblProcess->setText(tableText(0, 0));
    place();
    frmMdi().setInsertBarPressed(true);
}

void frmSelInsertTable::Form_Unload()
{
    frmMdi().setInsertBarPressed(false);
}

QWidget *frmSelInsertTable::border()
{
    fmeBorder = new QFrame;
    fmeBorder->setObjectName(QStringLiteral("fmeBorder"));
    fmeBorder->setFrameStyle(QFrame::Box | QFrame::Plain);
    fmeBorder->setForegroundRole(QPalette::Mid);
    fmeBorder->setFocusPolicy(Qt::StrongFocus);
    fmeBorder->setAccessibleName(tableText(0, 0));
    ui::onLostFocus(fmeBorder, [this] { Form_LostFocus(); });
    ui::onKeyDown(fmeBorder, [this](const QKeyEvent &event) { return keyDown(event.key()); });
    ui::column({cellGrid(), ui::Node(processBar())}).addTo(*new QVBoxLayout(fmeBorder));
    return fmeBorder;
}

ui::Node frmSelInsertTable::cellGrid()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(2);
    m_cells.clear();
    for (int row = 1; row <= Size; ++row)
        for (int column = 1; column <= Size; ++column) {
            m_cells.append(cell(row, column));
            grid->addWidget(m_cells.last(), row, column);
        }
    return ui::Node(grid);
}

PictureBox *frmSelInsertTable::cell(int row, int column)
{
    const QString name = QStringLiteral("cel%1").arg(tableCellNumber(row, column), 3, 10, QLatin1Char('0'));
    PictureBox *box =
        ui::picture(name, {.mouseMove = [this, row, column](const PointerState &) { sweepTo(row, column); }});
    // The keyboard moves over the grid as a whole, so the cells take clicks alone.
    connect(box, &PictureBox::clicked, this, [this, row, column] { makeTable(row, column); });
    box->setAccessibleName(tableText(row, column));
    setBackColor(*box, WindowColour);
    box->setOutlined(true);
    const int side = box->fontMetrics().lineSpacing() * 3 / 2;
    box->setFixedSize(side, side);
    return box;
}

PictureBox *frmSelInsertTable::processBar()
{
    PictureBox *picProcess =
        ui::picture(QStringLiteral("picProcess"), {.mouseMove = [this](const PointerState &) { leaveCells(); }});
    picProcess->setAccessibleName(QStringLiteral("Size of the table"));
    lblProcess = ui::label(QStringLiteral("lblProcess"), {}, [this] { lblProcess_Click(); });
    lblProcess->setAlignment(Qt::AlignCenter);
    lblProcess->setMouseTracking(true); // so that the bar under it sees the mouse move
    auto *layout = new QVBoxLayout(picProcess);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lblProcess);
    picProcess->setFixedHeight(lblProcess->sizeHint().height() * 3 / 2);
    return picProcess;
}

/// Under the button that it drops down from, but never off the screen.
void frmSelInsertTable::place()
{
    window()->adjustSize();
    const QRect room = window()->screen()->availableGeometry();
    const QPoint wanted = frmMdi().insertBarDrop();
    window()->move(std::clamp(wanted.x(), room.left(), std::max(room.left(), room.right() - window()->width())),
                   std::clamp(wanted.y(), room.top(), std::max(room.top(), room.bottom() - window()->height())));
}

void frmSelInsertTable::Form_Activate()
{
    fmeBorder->setFocus();
}

void frmSelInsertTable::Form_Deactivate()
{
    Unload();
}

void frmSelInsertTable::Form_LostFocus()
{
    if (window() && window()->isEnabled()) // while a table is made, the disabled grid has no focus to lose
        Unload();
}

bool frmSelInsertTable::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == window() && event->type() == QEvent::KeyRelease &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        Unload();
        return true;
    }
    return Form::eventFilter(watched, event);
}

void frmSelInsertTable::sweepTo(int rows, int columns)
{
    m_rows = rows;
    m_columns = columns;
    for (int i = 0; i < m_cells.size(); ++i)
        setBackColor(*m_cells[i], i / Size < rows && i % Size < columns ? HighlightColour : WindowColour);
    lblProcess->setText(tableText(rows, columns));
    fmeBorder->setAccessibleName(lblProcess->text());
}

void frmSelInsertTable::leaveCells()
{
    sweepTo(0, 0);
    lblProcess->setText(QStringLiteral("Cancel"));
}

void frmSelInsertTable::lblProcess_Click()
{
    if (lblProcess->text() == u"Cancel")
        Unload();
}

/// The arrows grow and shrink the block, from the first cell on; Enter makes the table.
bool frmSelInsertTable::keyDown(int key)
{
    const QPoint step = arrowStep(key);
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!step.isNull())
        sweepTo(std::clamp(m_rows + step.y(), 1, Size), std::clamp(m_columns + step.x(), 1, Size));
    else if (isEnter && m_rows > 0)
        makeTable(m_rows, m_columns);
    else
        return false;
    return true;
}

void frmSelInsertTable::makeTable(int rows, int columns)
{
    window()->setEnabled(false);
    context().screenPointer.setMousePointer(PointerShape::Hourglass);
    frmMdi().SetStatusText(QStringLiteral("Creating Table..."));
    if (Document *document = frmMdi().activeDocument()) {
        document->UndoRedoChange();
        document->txtEdit().setSelText(plainTableMarkup(rows, columns));
    }
    Unload();
    if (Document *document = frmMdi().activeDocument())
        document->txtEdit().SetFocus();
    frmMdi().SetStatusReady();
    context().screenPointer.setMousePointer(PointerShape::Default);
}
