#pragma once

#include "common/colour.h"

#include <QFrame>

/// A framed field of one colour; the colour's text is its accessible description, for those who cannot see it.
class ColourSwatch final : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(ColourValue FillColor READ BackColor)
public:
    explicit ColourSwatch(ColourValue colour = WindowColour, QWidget *parent = nullptr);

    ColourValue BackColor() const;
    void setBackColor(ColourValue colour);
    QSize sizeHint() const override;
};
