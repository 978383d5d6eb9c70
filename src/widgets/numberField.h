#pragma once

#include <QLineEdit>

/// A text box for a whole number: it takes digits from the keyboard and is as wide as its longest number.
class NumberField final : public QLineEdit
{
    Q_OBJECT
public:
    explicit NumberField(int maxLength, QWidget *parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
};
