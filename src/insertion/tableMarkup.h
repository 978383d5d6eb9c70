#pragma once

#include <QString>
#include <QStringList>

/// The fields of the table dialog, as they stand in it.
struct TableFields {
    QString rows = QStringLiteral("1");
    QString columns = QStringLiteral("1");
    bool specifyWidth = false;
    QString width = QStringLiteral("100");
    bool widthInPercent = true;
    QString align = QStringLiteral("left");
    QString border = QStringLiteral("0");
    QString cellPadding = QStringLiteral("0");
    QString cellSpacing = QStringLiteral("0");
    QString frame = QStringLiteral("(none)"); ///< which sides are visible, as the list names them
    QString rules = QStringLiteral("(none)");
    QString summary = {};
};

/// A table of empty cells. A number of rows or columns that is none counts as 0.
QString tableMarkup(const TableFields &fields);

/// A table without attributes.
QString plainTableMarkup(int rows, int columns);

/// The rows that the list of visible sides offers.
QStringList tableFrameNames();
