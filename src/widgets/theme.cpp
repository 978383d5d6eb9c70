#include "widgets/theme.h"

#include <QApplication>
#include <QPalette>

namespace theme
{
namespace
{
struct Ground {
    QColor window;
    QColor base;
    QColor button;
    QColor text;
    QColor faint; ///< of what is disabled, and need not be read
    QColor hint;
    QColor link;
    QColor highlight;
};

QPalette paletteOn(const Ground &ground)
{
    QPalette palette(ground.button, ground.window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, ground.text);
    palette.setColor(QPalette::Base, ground.base);
    palette.setColor(QPalette::AlternateBase, ground.window);
    palette.setColor(QPalette::ToolTipBase, ground.button);
    palette.setColor(QPalette::PlaceholderText, ground.hint);
    palette.setColor(QPalette::Link, ground.link);
    palette.setColor(QPalette::LinkVisited, ground.link);
    palette.setColor(QPalette::Highlight, ground.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, ground.faint);
    return palette;
}

Ground light()
{
    return {.window = QColor(239, 239, 239),
            .base = Qt::white,
            .button = QColor(239, 239, 239),
            .text = Qt::black,
            .faint = QColor(128, 128, 128),
            .hint = QColor(100, 100, 100),
            .link = QColor(0, 0, 200),
            .highlight = QColor(38, 100, 168)};
}

Ground dark()
{
    return {.window = QColor(43, 43, 43),
            .base = QColor(30, 30, 30),
            .button = QColor(53, 53, 53),
            .text = QColor(225, 225, 225),
            .faint = QColor(130, 130, 130),
            .hint = QColor(160, 160, 160),
            .link = QColor(110, 170, 240),
            .highlight = QColor(38, 100, 168)};
}
} // namespace

void apply(const QString &name)
{
    if (name == Light)
        QApplication::setPalette(paletteOn(light()));
    else if (name == Dark)
        QApplication::setPalette(paletteOn(dark()));
    else
        QApplication::setPalette(QPalette()); // which has nothing of its own: the desktop's comes back
}
} // namespace theme
