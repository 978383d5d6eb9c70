#include "frame/numberedEntries.h"

#include "widgets/controlWatch.h"

#include <QAction>
#include <QIconEngine>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>

namespace
{
/// An underlined digit in the colour of the menu's text, drawn for the theme and the scale at hand.
class DigitIcon final : public QIconEngine
{
public:
    explicit DigitIcon(int digit) : m_digit(digit) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        QFont font = painter->font();
        font.setUnderline(true);
        painter->setFont(font);
        painter->setPen(QPalette().color(group, QPalette::WindowText));
        painter->drawText(rect, Qt::AlignCenter, QString::number(m_digit));
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        QFont font = painter.font();
        font.setPixelSize(qMax(1, size.height() * 3 / 4));
        painter.setFont(font);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    QIconEngine *clone() const override { return new DigitIcon(m_digit); }

private:
    int m_digit;
};
} // namespace

void numberEntries(QMenu &menu, const QList<QAction *> &entries)
{
    QList<QPointer<QAction>> numbered;
    for (QAction *entry : entries) {
        numbered.append(entry);
        entry->setIcon(QIcon(new DigitIcon(static_cast<int>(numbered.size()))));
        entry->setIconVisibleInMenu(true);
    }
    new ControlWatch(&menu, QEvent::KeyPress, [&menu, numbered](const QEvent &event) {
        const int number = static_cast<const QKeyEvent &>(event).key() - Qt::Key_0;
        QAction *entry = number >= 1 && number <= numbered.size() ? numbered[number - 1].data() : nullptr;
        if (!entry || !entry->isVisible() || !entry->isEnabled())
            return false;
        menu.close();
        entry->trigger();
        return true;
    });
}
