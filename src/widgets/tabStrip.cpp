#include "widgets/tabStrip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <utility>

TabStrip::TabStrip(QWidget *parent) : QTabBar(parent)
{
    setExpanding(false);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideMiddle); // pages of a site often begin alike
    setFocusPolicy(Qt::TabFocus);  // a click leaves the focus where the user works
}

bool TabStrip::addKeyedTab(const QString &key, const QString &caption, const QIcon &image, int place)
{
    if (find(key))
        return false;
    QString shown = caption;
    setTabData(insertTab(place, image, shown.replace(u'&', QStringLiteral("&&"))), key);
    return true;
}

bool TabStrip::removeKeyedTab(const QString &key)
{
    const std::optional<int> tab = find(key);
    if (tab)
        removeTab(*tab);
    return tab.has_value();
}

bool TabStrip::selectKey(const QString &key)
{
    const std::optional<int> tab = find(key);
    if (tab)
        setCurrentIndex(*tab);
    return tab.has_value();
}

QString TabStrip::selectedKey() const
{
    return keyAt(currentIndex());
}

QString TabStrip::keyAt(int tab) const
{
    return tabData(tab).toString();
}

std::optional<int> TabStrip::find(const QString &key) const
{
    for (int tab = 0; tab < count(); ++tab) {
        if (keyAt(tab) == key)
            return tab;
    }
    return {};
}

/// Where there is no room for all, the long names give way first; a short one stays whole.
QSize TabStrip::minimumTabSizeHint(int tab) const
{
    constexpr int KeptCharacters = 12;
    const QSize whole = tabSizeHint(tab);
    const int name = fontMetrics().horizontalAdvance(tabText(tab));
    const int kept = fontMetrics().horizontalAdvance(u'n') * KeptCharacters;
    return {whole.width() - qMax(0, name - kept), whole.height()};
}

/// The press selects the tab, which comes whole into sight and may leave the mouse by that.
void TabStrip::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_pressed = keyAt(tabAt(event->position().toPoint()));
    QTabBar::mousePressEvent(event);
}

void TabStrip::mouseReleaseEvent(QMouseEvent *event)
{
    QTabBar::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    const QString pressed = std::exchange(m_pressed, {});
    if (!pressed.isEmpty() && pressed == selectedKey())
        Q_EMIT tabClicked(currentIndex());
}

void TabStrip::keyPressEvent(QKeyEvent *event)
{
    watched([this, event] { QTabBar::keyPressEvent(event); });
}

void TabStrip::wheelEvent(QWheelEvent *event)
{
    watched([this, event] { QTabBar::wheelEvent(event); });
}

/// Raises the click if the handling of the event moved the selection.
template <class Handling>
void TabStrip::watched(const Handling &handling)
{
    const int before = currentIndex();
    handling();
    if (currentIndex() != before)
        Q_EMIT tabClicked(currentIndex());
}
