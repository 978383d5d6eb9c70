#include "help/helpStyle.h"

#include "widgets/contrast.h"

#include <QColor>
#include <QPalette>

namespace
{
/// The theme's colour of links, made lighter where it is meant for paper and the ground is dark.
QColor linkColour(const QPalette &palette)
{
    const QColor link = palette.color(QPalette::Link);
    const QColor ground = palette.color(QPalette::Base);
    const bool tooDark = ground.lightnessF() < 0.5F && link.lightnessF() < 0.6F;
    return tooDark ? QColor::fromHslF(link.hslHueF(), link.hslSaturationF() * 0.8F, 0.72F) : link;
}
} // namespace

QString helpStyleSheet(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::Text);
    const QColor ground = palette.color(QPalette::Base);
    return QStringLiteral("h1 { margin-top: 4px; margin-bottom: 10px; }"
                          "h2 { margin-top: 18px; margin-bottom: 6px; }"
                          "h3 { margin-top: 14px; margin-bottom: 4px; }"
                          "p { margin-top: 6px; margin-bottom: 8px; line-height: 125%; }"
                          "li { margin-bottom: 4px; line-height: 125%; }"
                          "a { color: %1; }"
                          "code, kbd, samp, tt { background-color: %2; }"
                          "pre { background-color: %2; margin-top: 8px; margin-bottom: 10px; }"
                          "table { border-collapse: collapse; border-style: solid; border-width: 1px; "
                          "border-color: %3; margin-top: 8px; margin-bottom: 10px; }"
                          "th { background-color: %2; text-align: left; }"
                          "th, td { padding: 5px; border-style: solid; border-width: 1px; border-color: %3; }")
        .arg(linkColour(palette).name(), mixed(ground, text, 0.08).name(), mixed(ground, text, 0.28).name());
}
