#pragma once

#include <QPalette>

/// The colours of desktops that are not light, for tests and pictures.
namespace drive
{
inline QPalette darkPalette()
{
    const QColor window(45, 45, 48);
    const QColor base(30, 30, 30);
    const QColor text(220, 220, 220);
    QPalette palette(text, window, window.lighter(), window.darker(), Qt::gray, text, base);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Highlight, QColor(38, 79, 120));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(86, 156, 214));
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, Qt::gray);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(120, 120, 120));
    return palette;
}

/// As desktops have it for those who see little.
inline QPalette highContrastPalette()
{
    QPalette palette(Qt::black, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::PlaceholderText, QPalette::BrightText})
        palette.setColor(role, Qt::white);
    for (const auto role : {QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase})
        palette.setColor(role, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(128, 128, 128));
    palette.setColor(QPalette::Link, Qt::yellow);
    palette.setColor(QPalette::LinkVisited, Qt::yellow);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}
} // namespace drive
