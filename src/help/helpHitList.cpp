#include "help/helpHitList.h"

#include <QApplication>
#include <QPainter>
#include <QStyledItemDelegate>

namespace
{
constexpr int pageRole = Qt::UserRole;
constexpr int titleRole = Qt::UserRole + 1;
constexpr int contextRole = Qt::UserRole + 2;
constexpr int margin = 6;

QFont bold(QFont font)
{
    font.setBold(true);
    return font;
}

/// Draws a row as its title, and below it the context over at most two lines.
class HitDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        const int title = QFontMetrics(bold(option.font)).height();
        return {120, title + 2 * option.fontMetrics.lineSpacing() + 2 * margin};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        row.text.clear();
        const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
        drawText(*painter, row, index);
    }

private:
    static void drawText(QPainter &painter, const QStyleOptionViewItem &row, const QModelIndex &index)
    {
        const bool selected = row.state.testFlag(QStyle::State_Selected);
        QRect place = row.rect.adjusted(margin, margin, -margin, -margin);
        painter.save();
        painter.setPen(row.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter.setFont(bold(row.font));
        const QFontMetrics metrics = painter.fontMetrics();
        painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                         metrics.elidedText(index.data(titleRole).toString(), Qt::ElideRight, place.width()));
        place.setTop(place.top() + metrics.height());
        painter.setFont(row.font);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, index.data(contextRole).toString());
        painter.restore();
    }
};
} // namespace

HelpHitList::HelpHitList(QWidget *parent) : QListWidget(parent)
{
    setItemDelegate(new HitDelegate(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setUniformItemSizes(true);
}

void HelpHitList::setHits(const QList<HelpHit> &hits)
{
    clear();
    for (const HelpHit &hit : hits) {
        // The text is what a screen reader tells.
        auto *item = new QListWidgetItem(hit.title + QStringLiteral(": ") + hit.context, this);
        item->setData(pageRole, hit.page);
        item->setData(titleRole, hit.title);
        item->setData(contextRole, hit.context);
    }
    if (count() > 0)
        setCurrentRow(0);
}

QString HelpHitList::pageAt(int row) const
{
    const QListWidgetItem *hit = item(row);
    return hit ? hit->data(pageRole).toString() : QString();
}
