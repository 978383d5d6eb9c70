#pragma once

#include <QColor>
#include <QList>
#include <QRect>
#include <QString>
#include <QWidget>

class QTextLayout;

/// What a preview of a menu shows: words and colours, as a browser would draw them.
struct MenuPicture {
    struct Caption {
        QString text;
        QStringList items;
    };
    QList<Caption> captions;
    QColor bar;
    QColor barText;
    QColor box;
    QColor itemText;
    int boxWidth = 120;      ///< in pixels
    int itemPadding = 0;     ///< around a caption and around an item
    bool itemBlanks = false; ///< a blank that is no part of its link stands before and behind each item
    bool hand = false;       ///< the pointer over a caption is a hand
};

/// A menu bar with one of its boxes open: the one that is asked for, or the one under the pointer.
class MenuPreview final : public QWidget
{
    Q_OBJECT
public:
    explicit MenuPreview(QWidget *parent = nullptr);

    void setPicture(const MenuPicture &picture);
    /// The caption whose box is open as long as the pointer is over none, counted from 0; -1 for none.
    void setOpen(int caption);

    QSize sizeHint() const override { return m_size; }
    QSize minimumSizeHint() const override { return m_size; }
    QRect captionRect(int caption) const { return m_captions.value(caption); }

Q_SIGNALS:
    void captionPicked(int caption);
    void itemPicked(int caption, int item);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    struct Box {
        QRect place;
        QList<QRect> items;
    };

    void arrange();
    Box boxOf(int caption) const;
    int shownBox() const { return m_pointed >= 0 ? m_pointed : m_open; }
    int captionAt(const QPoint &point) const;
    void point(int caption);
    void drawBox(QPainter &painter, int caption) const;
    void layOut(QTextLayout &item, int width) const;

    MenuPicture m_picture;
    QList<QRect> m_captions;
    int m_barHeight = 0;
    QSize m_size;
    int m_open = -1;
    int m_pointed = -1; ///< the caption whose box the pointer has opened; -1 for none
};
