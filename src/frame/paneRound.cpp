#include "frame/paneRound.h"

#include <QShortcut>
#include <QWidget>

PaneRound::PaneRound(QWidget &window, QList<Stop> stops) : QObject(&window), m_window(window), m_stops(std::move(stops))
{
    auto *key = new QShortcut(Qt::SHIFT | Qt::Key_F6, &window);
    connect(key, &QShortcut::activated, this, &PaneRound::goOn);
}

void PaneRound::goOn()
{
    const QWidget *focus = m_window.focusWidget();
    qsizetype at = -1; // in none of them: the round begins at the first
    for (qsizetype i = 0; i < m_stops.size(); ++i) {
        const QWidget *stop = m_stops[i]();
        if (stop && focus && (stop == focus || stop->isAncestorOf(focus)))
            at = i;
    }
    for (qsizetype step = 1; step <= m_stops.size(); ++step) {
        QWidget *stop = m_stops[(at + step) % m_stops.size()]();
        if (!stop || !stop->isVisible() || !stop->isEnabled())
            continue;
        stop->setFocus(Qt::TabFocusReason);
        return;
    }
}
