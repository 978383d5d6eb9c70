#pragma once

#include <QList>
#include <QString>

/// A value that is handed to an applet or object under a name.
struct ElementParameter {
    QString name;
    QString value;
};

/// What follows the opening tag of an applet or object: a `param` element a line, and the closing tag `close` on a line
/// of its own. An element that is edited goes on with the closing tag that it has: `close` is empty then.
QString parametersMarkup(const QList<ElementParameter> &parameters, const QString &close);
