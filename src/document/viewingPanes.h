#pragma once

#include <QWidget>
#include <array>

class PaneDivider;
class TabStrip;

/// Where the two panes of a document window stand, in logical pixels from the top left of its inside.
struct PanePlaces {
    std::array<QRect, 2> panes; ///< the source, the preview
    QRect divider;              ///< empty without a split
    QRect tabs;                 ///< empty with a split
};

/// One above the other; `share` is the upper one's part of the height, from 0 to 1.
PanePlaces splitPlaces(const QSize &inside, double share);
/// One in the place of the other, above tabs of that height.
PanePlaces tabbedPlaces(const QSize &inside, int tabHeight);

/// The inside of a document window: the control array `picViewingPane`, which is the source (0) and the preview (1),
/// one above the other with a divider that the user can drag, or one at a time with the tabs `tabWindowDisplay`.
class ViewingPanes final : public QWidget
{
    Q_OBJECT
public:
    static constexpr double UsualShare = 0.75;

    explicit ViewingPanes(QWidget *parent = nullptr);

    QWidget *pane(int index) const { return m_panes[static_cast<size_t>(index)]; }
    TabStrip *tabs() const { return m_tabs; }
    /// Lays the panes out, as two or as one.
    void place(bool split);

Q_SIGNALS:
    void resized();
    void tabClicked(int index); ///< 0 for "Editor", 1 for "Live Preview"; the one on show can be clicked again, too

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void drag(int y);
    void bringToFront(int index);
    int tabHeight() const;

    std::array<QWidget *, 2> m_panes;
    TabStrip *m_tabs;
    PaneDivider *m_divider;
    double m_share = UsualShare; ///< changed by the divider alone
};
