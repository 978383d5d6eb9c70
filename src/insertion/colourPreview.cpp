#include "insertion/colourPreview.h"

#include "common/colourText.h"
#include "widgets/colourSwatch.h"
#include "widgets/controls.h"

#include <QHBoxLayout>
#include <QLabel>

ColourPreview::ColourPreview(QWidget *parent)
    : QWidget(parent),
      m_swatch(ui::swatch(QStringLiteral("shpColour"))),
      m_text(ui::label(QStringLiteral("lblColour"), {}))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_swatch);
    layout->addWidget(m_text, 1);
    m_swatch->setAccessibleName(QStringLiteral("Colour"));
}

void ColourPreview::setColour(ColourValue colour)
{
    m_swatch->setBackColor(colour);
    m_text->setText(colourText(colour));
}
