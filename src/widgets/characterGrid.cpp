#include "widgets/characterGrid.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>

CharacterGrid::CharacterGrid(QWidget *parent) : QTableWidget(parent)
{
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false); // Tab leaves the grid, as it leaves every other control
    for (QHeaderView *header : {horizontalHeader(), verticalHeader()}) {
        header->hide();
        header->setMinimumSectionSize(1);
        header->setSectionResizeMode(QHeaderView::Fixed);
    }
    connect(this, &QTableWidget::currentCellChanged, this, [this] { Q_EMIT cellPicked(); });
    connect(this, &QTableWidget::cellDoubleClicked, this, [this] { Q_EMIT cellChosen(); });
}

void CharacterGrid::setCharacters(const QString &characters, int columns)
{
    m_characters = characters;
    const int count = static_cast<int>(characters.size());
    clear();
    setColumnCount(columns);
    setRowCount((count + columns - 1) / columns);
    for (int cell = 0; cell < rowCount() * columns; ++cell)
        fillCell(cell);
    sizeCells();
    if (count > 0)
        selectCell(0);
}

void CharacterGrid::fillCell(int cell)
{
    const bool used = cell < m_characters.size();
    auto *item = new QTableWidgetItem(characterAt(cell));
    item->setTextAlignment(Qt::AlignCenter);
    item->setFlags(used ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
    setItem(cell / columnCount(), cell % columnCount(), item);
}

int CharacterGrid::selectedCell() const
{
    return currentRow() < 0 ? -1 : currentRow() * columnCount() + currentColumn();
}

QString CharacterGrid::characterAt(int cell) const
{
    const bool any = cell >= 0 && cell < m_characters.size() && m_characters[cell] != NoCharacter;
    return any ? QString(m_characters[cell]) : QString();
}

QString CharacterGrid::selectedCharacter() const
{
    return characterAt(selectedCell());
}

void CharacterGrid::selectCell(int cell)
{
    setCurrentCell(cell / columnCount(), cell % columnCount());
}

QModelIndex CharacterGrid::indexOf(int cell) const
{
    return model()->index(cell / columnCount(), cell % columnCount());
}

int CharacterGrid::cellSize() const
{
    return fontMetrics().lineSpacing() * 3 / 2;
}

void CharacterGrid::sizeCells()
{
    horizontalHeader()->setDefaultSectionSize(cellSize());
    verticalHeader()->setDefaultSectionSize(cellSize());
}

QSize CharacterGrid::sizeHint() const
{
    constexpr int MostRows = 12;
    const int frame = 2 * frameWidth();
    const int bar = rowCount() > MostRows ? verticalScrollBar()->sizeHint().width() : 0;
    return QSize(columnCount() * cellSize() + frame + bar, std::min(rowCount(), MostRows) * cellSize() + frame);
}

void CharacterGrid::changeEvent(QEvent *event)
{
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        sizeCells();
}
