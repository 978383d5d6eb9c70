#include "document/viewingPanes.h"

#include "document/paneDivider.h"
#include "forms/form.h"
#include "widgets/controlName.h"
#include "widgets/tabStrip.h"

#include <QHBoxLayout>
#include <algorithm>
#include <cmath>

namespace
{
constexpr double Twip = 1.0 / 15; ///< logical pixels
constexpr int TabRoom = 25;       ///< 375 twips
constexpr int TabSqueeze = 4;     ///< so much less than it asks for does the strip no harm
constexpr int SmallestPane = 40;
constexpr int DividerReach = 2; ///< the divider can be grabbed so far into the panes

int whole(double length)
{
    return std::max(0, static_cast<int>(std::lround(length)));
}
} // namespace

PanePlaces splitPlaces(const QSize &inside, double share)
{
    const int width = inside.width();
    const int upper = whole(inside.height() * share - 40 * Twip);
    const int lower = whole(inside.height() * (1 - share) - 40 * Twip);
    const int gap = whole(30 * Twip);
    const QRect divider(0, upper - DividerReach, width, gap + 2 * DividerReach);
    return {{QRect(0, 0, width, upper), QRect(0, upper + gap, width, lower)}, divider, {}};
}

PanePlaces tabbedPlaces(const QSize &inside, int tabHeight)
{
    const int height = std::max(0, inside.height() - tabHeight);
    const QRect pane(0, 0, inside.width(), height);
    return {{pane, pane}, {}, QRect(0, height, inside.width(), tabHeight)};
}

ViewingPanes::ViewingPanes(QWidget *parent)
    : QWidget(parent),
      m_panes{new QWidget(this), new QWidget(this)},
      m_tabs(new TabStrip(this)),
      m_divider(new PaneDivider(this))
{
    for (int i = 0; i < 2; ++i) {
        pane(i)->setObjectName(controlName(QStringLiteral("picViewingPane"), i));
        auto *layout = new QHBoxLayout(pane(i));
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
    }
    m_tabs->setObjectName(QStringLiteral("tabWindowDisplay"));
    m_tabs->setShape(QTabBar::RoundedSouth);
    m_tabs->addKeyedTab(QStringLiteral("Editor"), QStringLiteral("Editor"));
    m_tabs->addKeyedTab(QStringLiteral("Preview"), QStringLiteral("Live Preview"));
    connect(m_tabs, &TabStrip::tabClicked, this, [this](int index) {
        bringToFront(index);
        Q_EMIT tabClicked(index);
    });
    connect(m_divider, &PaneDivider::dragged, this, &ViewingPanes::drag);
    connect(m_divider, &PaneDivider::reset, this, [this] {
        m_share = UsualShare;
        place(true);
    });
}

void ViewingPanes::place(bool split)
{
    const PanePlaces places = split ? splitPlaces(size(), m_share) : tabbedPlaces(size(), tabHeight());
    for (int i = 0; i < 2; ++i)
        pane(i)->setGeometry(places.panes[static_cast<size_t>(i)]);
    m_tabs->setVisible(!split);
    m_divider->setVisible(split);
    m_tabs->setGeometry(places.tabs);
    m_divider->setGeometry(places.divider);
    if (split) {
        pane(0)->show();
        pane(1)->show();
        m_divider->raise();
    } else {
        bringToFront(m_tabs->currentIndex());
    }
}

/// A large font needs more than the usual room.
int ViewingPanes::tabHeight() const
{
    const int needed = m_tabs->sizeHint().height();
    return needed > TabRoom + TabSqueeze ? needed : TabRoom;
}

/// What stands behind is hidden, so that the keyboard cannot get lost in it.
void ViewingPanes::bringToFront(int index)
{
    pane(index)->show();
    pane(1 - index)->hide();
}

void ViewingPanes::drag(int y)
{
    const int most = std::max(SmallestPane, height() - SmallestPane);
    const int upper = std::clamp(y - whole(30 * Twip) / 2, SmallestPane, most);
    if (height() > 0)
        m_share = (upper + 40 * Twip) / height();
    place(true);
}

void ViewingPanes::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Q_EMIT resized();
}
