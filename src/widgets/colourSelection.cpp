#include "widgets/colourSelection.h"

#include "common/colourText.h"
#include "widgets/controls.h"
#include "widgets/themeColour.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIconEngine>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QPushButton>

namespace
{
/// Draws the swatch afresh each time: of an icon that has pixels, the toolkit keeps them long after the dialog is gone.
class SwatchEngine final : public QIconEngine
{
public:
    /// `crossed` is the swatch of no colour at all.
    SwatchEngine(const QColor &ground, const QColor &line, bool crossed)
        : m_ground(ground), m_line(line), m_crossed(crossed)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        painter->save();
        painter->fillRect(rect, m_ground);
        painter->setPen(m_line);
        if (m_crossed) {
            painter->setRenderHint(QPainter::Antialiasing);
            painter->drawLine(QLineF(QRectF(rect).bottomLeft(), QRectF(rect).topRight()));
        }
        painter->drawRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5));
        painter->restore();
    }
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        QPixmap picture(size);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), (QSizeF(size) / scale).toSize()), mode, state);
        return picture;
    }
    QIconEngine *clone() const override { return new SwatchEngine(*this); }

private:
    QColor m_ground;
    QColor m_line;
    bool m_crossed;
};
} // namespace

ColourSelection::ColourSelection(Pick pick, QWidget *parent)
    : QWidget(parent), m_pick(std::move(pick)), m_text(new QLineEdit), m_change(new QPushButton)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_text, 1);
    layout->addWidget(m_change);
    setFocusProxy(m_text);
    setFocusPolicy(Qt::StrongFocus); // tells those who ask the picker itself
    m_text->setMaxLength(7);
    m_change->setObjectName(QStringLiteral("cmdChange"));
    m_change->setAccessibleName(tr("Choose colour"));
    m_change->setToolTip(tr("Choose colour"));
    m_change->setAutoDefault(false);
    connect(m_text, &QLineEdit::textEdited, this, &ColourSelection::textTyped);
    connect(m_text, &QLineEdit::editingFinished, this, [this] { m_text->setText(shownText()); });
    connect(m_change, &QPushButton::clicked, this, &ColourSelection::cmdChange_Click);
    ui::onGotFocus(m_text, [this] { SelectAllText(m_text); });
    setColour(0);
}

QString ColourSelection::HexadecimalColour() const
{
    return colourText(m_colour);
}

QString ColourSelection::shownText() const
{
    return m_colour == m_unset ? QString() : HexadecimalColour();
}

void ColourSelection::setColour(ColourValue colour)
{
    m_colour = colour;
    m_text->setText(shownText());
    drawSwatch();
}

void ColourSelection::setUnsetColour(ColourValue colour)
{
    m_unset = colour;
    m_text->setPlaceholderText(tr("none"));
    setColour(colour);
}

/// The window may go while the user picks.
void ColourSelection::cmdChange_Click()
{
    const QPointer<ColourSelection> self(this);
    const std::optional<ColourValue> chosen = m_pick(m_colour);
    if (!self || !chosen)
        return;
    choose(*chosen);
    m_text->setText(shownText());
}

/// A text on its way to a colour changes nothing yet, and leaves no trace when the field is left.
void ColourSelection::textTyped(const QString &text)
{
    if (const std::optional<ColourValue> typed = text.isEmpty() ? m_unset : colourFromText(text))
        choose(*typed);
}

void ColourSelection::choose(ColourValue colour)
{
    const bool changed = colour != m_colour;
    m_colour = colour;
    drawSwatch();
    if (changed)
        Q_EMIT colourChanged();
}

void ColourSelection::drawSwatch()
{
    const bool unset = m_colour == m_unset;
    const QColor ground = unset ? palette().color(QPalette::Base) : shownColour(m_colour, palette());
    m_change->setIcon(QIcon(new SwatchEngine(ground, palette().color(QPalette::WindowText), unset)));
    m_change->setIconSize(QSize(fontMetrics().height() * 2, fontMetrics().height()));
}

void ColourSelection::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        drawSwatch();
}
