#pragma once

#include <QList>
#include <QObject>
#include <functional>

class QWidget;

/// Shift+F6 leads the keyboard round all that the main window has beside the text and the pane that F6 goes between:
/// its bars, the edges that can be moved, the document selector and the status bar. Each stop is asked for when it is
/// its turn, and passed over while it is not on show.
class PaneRound final : public QObject
{
    Q_OBJECT
public:
    using Stop = std::function<QWidget *()>;

    PaneRound(QWidget &window, QList<Stop> stops);

private:
    void goOn();

    QWidget &m_window;
    QList<Stop> m_stops;
};
