#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

/// What the shipped data files hold, read strictly and by other code than the program's: anything that a reader could
/// take in two ways is a fault.
namespace datafiles
{
struct Value {
    QString text;
    bool deprecated = false;
};

struct Attribute {
    QString name; ///< with its "=" if it takes a value
    QString hint;
    bool deprecated = false;
    std::vector<Value> values;
};

struct Element {
    QString name;
    bool deprecated = false;
    std::vector<Attribute> attributes;

    /// The attribute of that name; nullptr if there is none.
    const Attribute *attribute(const QString &attributeName) const;
    /// What the code assistant shows of the element.
    QString syntaxLine() const;
};

struct Html {
    std::vector<Element> elements;
    std::vector<std::pair<QString, Element>> inner; ///< those of other languages, with the one that they stand under
    QStringList faults;                             ///< "LINE: what is wrong", counted from 1

    /// The element of that name; nullptr if there is none.
    const Element *element(const QString &name) const;
};

struct Property {
    QString name;
    QStringList values;
};

struct Css {
    std::vector<Property> properties;
    QStringList faults; ///< as above

    /// The property of that name; nullptr if there is none.
    const Property *property(const QString &name) const;
};

/// The bytes of a file of the source tree's data folder; empty if it cannot be read.
QByteArray bytesOf(const QString &name);

Html readHtml(const QByteArray &bytes);
Css readCss(const QByteArray &bytes);

/// The shipped files, read once.
const Html &html();
const Css &css();

/// Plain ASCII text, as tables of expected words hold it.
QString words(const char *text);

/// The values' texts, a deprecated one led by "-".
QStringList markedValues(const Attribute &attribute);
} // namespace datafiles
