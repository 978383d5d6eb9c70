#pragma once

#include <QList>
#include <QSize>
#include <QString>

class QPainter;
class QWidget;

/// One of the pictures that lists are chosen by.
struct ListPicture {
    QString type;        ///< the list's `type`
    QString name;        ///< what it shows, in words
    QStringList markers; ///< in front of its three lines; none for the bullets, which are drawn
};

/// The three bullets, then the five numberings.
const QList<ListPicture> &listPictures();

/// A small page with three lines and their markers, in the theme's colours, over the whole widget.
void drawListPicture(QPainter &painter, const QWidget &widget, const ListPicture &picture);
/// How large it is to be in the widget's font, in logical pixels.
QSize listPictureSize(const QWidget &widget);
