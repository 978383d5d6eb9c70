#pragma once

#include <QAbstractButton>
#include <QStringList>
#include <QWidget>

/// What a screen reader says when the focus comes to the widget; the field of a combo speaks for it.
inline QString spokenName(const QWidget &widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    return button && !button->text().isEmpty() ? button->text() : widget.accessibleName();
}

/// Whether Tab leads there: not to the list behind a combo, which is a window of its own.
inline bool takesTheKeyboard(const QWidget &widget, const QWidget &window)
{
    return widget.window() == &window && (widget.focusPolicy() & Qt::TabFocus) && !widget.focusProxy() &&
           widget.isVisibleTo(&window);
}

/// The names of the controls that take the keyboard and would be met in silence.
inline QStringList silentControls(const QWidget &window)
{
    QStringList silent;
    for (const QWidget *widget : window.findChildren<QWidget *>())
        if (takesTheKeyboard(*widget, window) && spokenName(*widget).isEmpty())
            silent.append(widget->objectName() + u' ' + QLatin1String(widget->metaObject()->className()));
    return silent;
}
