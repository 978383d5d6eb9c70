#include "widgets/programIcon.h"

#include "widgets/iconPixels.h"

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QResource>
#include <algorithm>
#include <vector>

namespace
{
QString drawingPath(const QString &name)
{
    return QStringLiteral(":/icons/%1.svg").arg(name);
}

/// Draws one icon of the set. At the sizes of most screens the build has done so, and its pixels are taken out at each
/// painting, in a few microseconds; at others the drawing is read at the first use and kept as pixels for each size
/// and colour.
class DrawingEngine final : public QIconEngine
{
public:
    DrawingEngine(const QString &name, const QColor &light, const QColor &dark)
        : m_name(name), m_light(light), m_dark(dark)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap picture = drawn((QSizeF(rect.size()) * ratio).toSize(), colourFor(mode));
        picture.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect, picture);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override { return drawn(size, colourFor(mode)); }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State, qreal) override
    {
        return drawn(size, colourFor(mode));
    }

    QIconEngine *clone() const override { return new DrawingEngine(m_name, m_light, m_dark); }
    QString key() const override { return QStringLiteral("drawing"); }
    bool isNull() override { return false; }

private:
    struct Drawn {
        QSize size;
        QColor colour;
        QPixmap picture;
    };

    QColor colourFor(QIcon::Mode mode) const
    {
        const QPalette palette = QApplication::palette();
        if (mode == QIcon::Disabled)
            return palette.color(QPalette::Disabled, QPalette::ButtonText);
        if (mode == QIcon::Selected)
            return palette.color(QPalette::Active, QPalette::HighlightedText);
        if (!m_light.isValid())
            return palette.color(QPalette::Active, QPalette::ButtonText);
        const bool isDark =
            palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
        return isDark ? m_dark : m_light;
    }

    QPixmap drawn(const QSize &size, const QColor &colour)
    {
        QImage pixels = size.width() == size.height() ? drawnIcon(m_name, size.width(), colour) : QImage();
        if (!pixels.isNull())
            return QPixmap::fromImage(std::move(pixels));
        const auto isWanted = [&](const Drawn &one) { return one.size == size && one.colour == colour; };
        const auto found = std::find_if(m_pictures.begin(), m_pictures.end(), isWanted);
        if (found != m_pictures.end())
            return found->picture;
        QPixmap picture = draw(size, colour);
        constexpr int largest = 96; // pixels of a side; larger ones are windows', which the display is given once
        if (size.width() <= largest)
            m_pictures.push_back({size, colour, picture});
        return picture;
    }

    QPixmap draw(const QSize &size, const QColor &colour)
    {
        QByteArray coloured = QByteArray(drawing()).replace("currentColor", colour.name().toLatin1());
        QBuffer buffer(&coloured);
        QImageReader reader(&buffer, "svg"); // by a plug-in of the toolkit's, which few screens need
        reader.setScaledSize(size);
        return QPixmap::fromImage(reader.read());
    }

    const QByteArray &drawing()
    {
        if (m_drawing.isEmpty()) {
            QFile file(drawingPath(m_name));
            if (file.open(QIODevice::ReadOnly))
                m_drawing = file.readAll();
        }
        return m_drawing;
    }

    QString m_name;
    QColor m_light;
    QColor m_dark;
    QByteArray m_drawing;
    std::vector<Drawn> m_pictures; ///< few: a table would take a hundred times the room
};
} // namespace

QIcon programIcon(const QString &name)
{
    return programIcon(name, {}, {});
}

QIcon programIcon(const QString &name, const QColor &light, const QColor &dark)
{
    if (!QResource(drawingPath(name)).isValid())
        return {};
    return QIcon(new DrawingEngine(name, light, dark));
}

QIcon applicationIcon()
{
    return programIcon(QStringLiteral("tagwrighter"));
}
