#include "help/helpNavigator.h"

#include "help/helpFolder.h"
#include "help/helpHitList.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace
{
constexpr int pageRole = Qt::UserRole;

/// A field from which the arrow down leads into the list below it.
class FilterField final : public QLineEdit
{
public:
    explicit FilterField(QWidget &list) : m_list(list) {}

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Down)
            m_list.setFocus();
        else
            QLineEdit::keyPressEvent(event);
    }

private:
    QWidget &m_list;
};

QWidget *column(std::initializer_list<QWidget *> pieces)
{
    auto *tab = new QWidget;
    auto *layout = new QVBoxLayout(tab);
    layout->setContentsMargins(6, 6, 6, 6);
    for (QWidget *piece : pieces)
        layout->addWidget(piece);
    return tab;
}

QTreeWidgetItem *itemOf(QTreeWidgetItem *under, const QString &page)
{
    for (int i = 0; i < under->childCount(); ++i) {
        QTreeWidgetItem *child = under->child(i);
        if (child->data(0, pageRole).toString() == page)
            return child;
        if (QTreeWidgetItem *found = itemOf(child, page))
            return found;
    }
    return nullptr;
}
} // namespace

HelpNavigator::HelpNavigator(HelpFolder &folder, QWidget *parent) : QTabWidget(parent), m_folder(folder)
{
    setObjectName(QStringLiteral("helpNavigator"));
    setDocumentMode(true);
    addTab(contentsTab(), QStringLiteral("&Contents"));
    addTab(indexTab(), QStringLiteral("&Index"));
    addTab(searchTab(), QStringLiteral("&Search"));
    setMinimumWidth(tabBar()->sizeHint().width());
}

void HelpNavigator::openTab(Tab tab)
{
    setCurrentIndex(tab);
    entrance(tab)->setFocus();
}

QWidget *HelpNavigator::entrance(int tab) const
{
    if (tab == Contents)
        return m_contents;
    return tab == Index ? static_cast<QWidget *>(m_filter) : m_hits;
}

// --- Contents

QWidget *HelpNavigator::contentsTab()
{
    m_contents = new QTreeWidget;
    m_contents->setObjectName(QStringLiteral("helpContents"));
    m_contents->setAccessibleName(QStringLiteral("Contents"));
    m_contents->setHeaderHidden(true);
    fillContents(m_contents->invisibleRootItem(), m_folder.contents());
    connect(m_contents, &QTreeWidget::itemClicked, this, &HelpNavigator::chooseItem);
    connect(m_contents, &QTreeWidget::itemActivated, this, &HelpNavigator::chooseItem);
    return column({m_contents});
}

void HelpNavigator::fillContents(QTreeWidgetItem *parent, const QList<HelpEntry> &entries)
{
    for (const HelpEntry &entry : entries) {
        auto *item = new QTreeWidgetItem(parent, {entry.title});
        item->setData(0, pageRole, entry.page);
        fillContents(item, entry.children);
    }
}

void HelpNavigator::chooseItem(const QTreeWidgetItem *item)
{
    const QString page = item->data(0, pageRole).toString();
    if (!page.isEmpty())
        Q_EMIT pageChosen(page);
}

void HelpNavigator::markPage(const QString &page)
{
    const QTreeWidgetItem *current = m_contents->currentItem();
    if (current && current->data(0, pageRole).toString() == page)
        return; // of several entries with one page, the one that the user chose stays
    QTreeWidgetItem *item = page.isEmpty() ? nullptr : itemOf(m_contents->invisibleRootItem(), page);
    m_contents->setCurrentItem(item);
    if (item)
        m_contents->scrollToItem(item);
}

// --- Index

QWidget *HelpNavigator::indexTab()
{
    m_index = new QListWidget;
    m_index->setObjectName(QStringLiteral("helpIndex"));
    m_index->setAccessibleName(QStringLiteral("Index"));
    m_index->setUniformItemSizes(true);
    m_filter = new FilterField(*m_index);
    m_filter->setObjectName(QStringLiteral("helpIndexFilter"));
    m_filter->setPlaceholderText(QStringLiteral("Filter the index"));
    m_filter->setAccessibleName(QStringLiteral("Filter the index"));
    m_filter->setClearButtonEnabled(true);
    fillIndex();
    connect(m_filter, &QLineEdit::textChanged, this, &HelpNavigator::filterIndex);
    connect(m_filter, &QLineEdit::returnPressed, this, &HelpNavigator::chooseIndexRow);
    connect(m_index, &QListWidget::itemClicked, this, &HelpNavigator::chooseIndexRow);
    connect(m_index, &QListWidget::itemActivated, this, &HelpNavigator::chooseIndexRow);
    return column({m_filter, m_index});
}

void HelpNavigator::fillIndex()
{
    for (const HelpIndexRow &row : helpIndex(m_folder.contents())) {
        auto *item = new QListWidgetItem(row.word, m_index);
        item->setData(pageRole, row.page);
    }
}

void HelpNavigator::filterIndex(const QString &text)
{
    const QString sought = text.trimmed();
    int first = -1;
    for (int row = 0; row < m_index->count(); ++row) {
        const bool shown = m_index->item(row)->text().contains(sought, Qt::CaseInsensitive);
        m_index->item(row)->setHidden(!shown);
        if (shown && first < 0)
            first = row;
    }
    m_index->setCurrentRow(first);
}

void HelpNavigator::chooseIndexRow()
{
    const QListWidgetItem *row = m_index->currentItem();
    if (row && !row->isHidden())
        Q_EMIT pageChosen(row->data(pageRole).toString());
}

// --- Search

QWidget *HelpNavigator::searchTab()
{
    m_found = new QLabel(QStringLiteral("Type what you look for into the field above."));
    m_found->setObjectName(QStringLiteral("helpFound"));
    m_found->setWordWrap(true);
    m_hits = new HelpHitList;
    m_hits->setObjectName(QStringLiteral("helpHits"));
    m_hits->setAccessibleName(QStringLiteral("Pages found"));
    connect(m_hits, &QListWidget::itemClicked, this, &HelpNavigator::chooseHit);
    connect(m_hits, &QListWidget::itemActivated, this, &HelpNavigator::chooseHit);
    return column({m_found, m_hits});
}

void HelpNavigator::search(const QString &query)
{
    const QList<HelpHit> hits = searchHelp(m_folder.texts(), query);
    m_hits->setHits(hits);
    m_found->setText(hits.isEmpty()     ? QStringLiteral("No page holds these words.")
                     : hits.size() == 1 ? QStringLiteral("One page:")
                                        : QStringLiteral("%1 pages:").arg(hits.size()));
    setCurrentIndex(Search);
}

void HelpNavigator::chooseHit()
{
    const QString page = m_hits->pageAt(m_hits->currentRow());
    if (!page.isEmpty())
        Q_EMIT pageChosen(page);
}
