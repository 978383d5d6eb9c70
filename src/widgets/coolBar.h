#pragma once

#include <QWidget>
#include <vector>

/// Bars in bands that the user can move: each band has a grip at its left end. Bands keep their order; dragging a grip
/// along its row moves the band by widening or narrowing the one before it, dragging it down starts a new row with it,
/// dragging it up joins it to the row above. Bands are numbered from 1.
class CoolBar final : public QWidget
{
    Q_OBJECT
public:
    explicit CoolBar(QWidget *parent = nullptr);

    /// Adds a band around the widget, behind the others, and gives its number.
    int addBand(QWidget *child, bool newRow);
    int Count() const { return static_cast<int>(m_bands.size()); }

    bool NewRow(int band) const { return at(band).newRow; }
    void setNewRow(int band, bool newRow);
    /// The width in logical pixels that the band is given where its row has the room, the grip included: what its
    /// contents ask for as long as no other was set. What is left over goes to the row's band that wants to expand,
    /// else to its last.
    double Width(int band) const;
    void setWidth(int band, double width); ///< below the smallest width counts as that
    bool bandVisible(int band) const { return at(band).shown; }
    void setBandVisible(int band, bool visible);
    /// Where the band stands, its grip included; empty for one that is not shown.
    QRect bandRect(int band) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct Band {
        QWidget *child = nullptr;
        bool newRow = false;
        bool shown = true;
        double width = 0;
        QRect place;
    };
    using Row = std::vector<int>; ///< numbers of its visible bands

    Band &at(int band) { return m_bands[static_cast<size_t>(band - 1)]; }
    const Band &at(int band) const { return m_bands[static_cast<size_t>(band - 1)]; }
    int smallestWidth(int band) const;
    int naturalWidth(int band) const;
    int heightOf(const Row &row) const;
    std::vector<Row> rows() const;
    size_t stretching(const Row &row) const;
    std::vector<int> widthsIn(const Row &row) const;
    void arrange();
    void placeRow(const Row &row, int top, int height);
    QRect gripOf(int band) const;
    int bandOfGrip(const QPoint &point) const;
    bool dragAcrossRows(int band, int y);
    void dragAlongRow(int band, int x);
    int before(int band) const;

    std::vector<Band> m_bands;
    int m_dragged = 0; ///< the band whose grip is held; 0 for none
    int m_offset = 0;  ///< of the mouse from that band's left edge
};
