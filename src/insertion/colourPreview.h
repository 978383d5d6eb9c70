#pragma once

#include "common/colour.h"

#include <QWidget>

class ColourSwatch;
class QLabel;

/// A colour under consideration: a swatch, and its text beside it.
class ColourPreview final : public QWidget
{
    Q_OBJECT
public:
    explicit ColourPreview(QWidget *parent = nullptr);

    void setColour(ColourValue colour);

private:
    ColourSwatch *m_swatch;
    QLabel *m_text;
};
