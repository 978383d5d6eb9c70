#pragma once

#include <QLayout>
#include <QList>

/// A text that wraps, and the buttons that belong to it: beside it where there is room, otherwise in rows below. The
/// first item is the text.
class NoticeLayout final : public QLayout
{
public:
    using QLayout::QLayout;
    ~NoticeLayout() override;

    void addItem(QLayoutItem *item) override { m_items.append(item); }
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &place) override;

private:
    QList<QLayoutItem *> buttons() const;
    QSize buttonsSize() const;
    int gap() const;
    int textHeight(int width) const;
    int arrange(const QRect &place, bool apply) const;
    int arrangeBeside(const QRect &inside, bool apply) const;
    int arrangeBelow(const QRect &inside, bool apply) const;

    QList<QLayoutItem *> m_items;
};
