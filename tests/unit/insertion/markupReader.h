#pragma once

#include <QHash>
#include <QList>
#include <QString>

class QRandomGenerator;

/// An element's opening tag, as a reader of pages takes it that knows nothing of how it was written.
struct ReadElement {
    QString name;
    QHash<QString, QString> attributes; ///< an attribute without a value has an empty one
    qsizetype end = 0;                  ///< position behind its ">"
};

/// The opening tags of a text, in their order; end tags, comments and text are passed over. A value in quotes ends at
/// the next quote, any other value at a blank or the tag's end.
QList<ReadElement> elementsOf(const QString &text);

/// Words without quotes, brackets and breaks.
QString randomWords(QRandomGenerator &random);
