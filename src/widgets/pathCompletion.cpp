#include "widgets/pathCompletion.h"

#include "widgets/controlWatch.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace
{
constexpr int MostRows = 200;
constexpr int RowsOnShow = 8;

QString folderPart(const QString &typed)
{
    return typed.first(typed.lastIndexOf(u'/') + 1);
}

/// Below the box, or above it where the screen ends.
QRect placeOf(const QWidget &box, int height)
{
    const QRect below(box.mapToGlobal(QPoint(0, box.height())), QSize(box.width(), height));
    const QScreen *screen = box.screen();
    const bool fits = !screen || below.bottom() <= screen->availableGeometry().bottom();
    return fits ? below : QRect(box.mapToGlobal(QPoint(0, -height)), below.size());
}
} // namespace

QStringList namesBeginning(const QList<FolderEntry> &entries, const QString &typed)
{
    QStringList names;
    for (const FolderEntry &entry : entries) {
        const bool hidden = entry.name.startsWith(u'.') && !typed.startsWith(u'.');
        if (!hidden && entry.name.startsWith(typed, Qt::CaseInsensitive))
            names.append(entry.isFolder ? entry.name + u'/' : entry.name);
        if (names.size() == MostRows)
            break;
    }
    return names == QStringList(typed) ? QStringList() : names;
}

PathCompletion::PathCompletion(QWidget *control, FileSystem &files, StartFolder startFolder)
    : QObject(control),
      m_control(control),
      m_edit(lineEditOf(control)),
      m_files(files),
      m_startFolder(std::move(startFolder))
{
    connect(m_edit, &QLineEdit::textEdited, this, &PathCompletion::offer);
    keysOf(control)->installEventFilter(this);
}

QStringList PathCompletion::offered() const
{
    QStringList rows;
    for (int row = 0; m_list && m_list->isVisible() && row < m_list->count(); ++row)
        rows.append(m_list->item(row)->text());
    return rows;
}

bool PathCompletion::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return watched != m_control->window() && takesKey(static_cast<QKeyEvent *>(event)->key());
    case QEvent::FocusOut:
        m_listedFolder.clear(); // what has changed on the disk meanwhile is seen next time
        [[fallthrough]];
    case QEvent::Move:
    case QEvent::Hide:
        hide();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void PathCompletion::offer()
{
    const QStringList rows = rowsFor(m_edit->text());
    if (rows.isEmpty())
        hide();
    else
        show(rows);
}

QStringList PathCompletion::rowsFor(const QString &typed)
{
    const bool isWritten = !typed.isEmpty() && m_edit->cursorPosition() == typed.size();
    const QString folder = typed.startsWith(u'/') ? QString() : m_startFolder();
    if (!isWritten || typed.contains(QLatin1String("://")) || (folder.isEmpty() && !typed.startsWith(u'/')))
        return {};
    const QString whole = folder + folderPart(typed);
    if (whole != m_listedFolder) {
        m_listed = m_files.list(whole).entries;
        m_listedFolder = whole;
    }
    return namesBeginning(m_listed, typed.sliced(folderPart(typed).size()));
}

QListWidget &PathCompletion::list()
{
    if (!m_list) {
        m_list = new QListWidget(m_control->window());
        m_list->setWindowFlags(Qt::ToolTip); // never takes the focus, and no popup that takes the keys
        m_list->setAttribute(Qt::WA_ShowWithoutActivating);
        m_list->setFocusPolicy(Qt::NoFocus);
        m_list->setAccessibleName(tr("Files that match"));
        connect(m_list, &QListWidget::itemClicked, this, &PathCompletion::take);
        m_control->window()->installEventFilter(this);
    }
    return *m_list;
}

void PathCompletion::show(const QStringList &rows)
{
    QListWidget &shown = list();
    shown.clear();
    shown.addItems(rows);
    const int lines = static_cast<int>(std::min<qsizetype>(rows.size(), RowsOnShow));
    shown.setGeometry(placeOf(*m_control, lines * shown.sizeHintForRow(0) + 2 * shown.frameWidth()));
    shown.verticalScrollBar()->setValue(0);
    shown.show();
}

void PathCompletion::hide()
{
    if (m_list)
        m_list->hide();
}

/// True if the key is for the list.
bool PathCompletion::takesKey(int key)
{
    if (!m_list || !m_list->isVisible())
        return false;
    const int row = m_list->currentRow();
    switch (key) {
    case Qt::Key_Down:
        m_list->setCurrentRow(std::min(row + 1, m_list->count() - 1));
        return true;
    case Qt::Key_Up:
        m_list->setCurrentRow(row - 1);
        return row >= 0;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (row >= 0)
            take(m_list->currentItem());
        return row >= 0;
    case Qt::Key_Escape:
        hide();
        return row >= 0;
    default:
        return false;
    }
}

/// Typed as the user would, so that all that follows a change follows, and a folder leads on to what is in it.
void PathCompletion::take(const QListWidgetItem *row)
{
    const QString taken = folderPart(m_edit->text()) + row->text();
    hide();
    m_edit->selectAll();
    m_edit->insert(taken);
}
