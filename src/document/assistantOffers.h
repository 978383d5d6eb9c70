#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class Vocabulary;

/// No tag is longer for the assistant, in characters.
constexpr qsizetype LongestTag = 8192;

/// Where in the source the caret stands, as the assistant sees it. Positions count from 0.
struct TagPlace {
    enum class Kind {
        Elsewhere, ///< nothing is offered
        Element,   ///< in the name of a start tag
        EndTag,    ///< in the name of an end tag
        Attribute, ///< in the name of an attribute, or where one may begin
        Value,     ///< in the value of an attribute
    };
    Kind kind = Kind::Elsewhere;
    qsizetype tag = 0;           ///< the tag's "<"
    qsizetype start = 0;         ///< where what is typed of the name or value starts
    QString element = {};        ///< in lower case; of an attribute or a value
    QString attribute = {};      ///< in lower case; of a value
    QStringList attributes = {}; ///< those that stand in the tag already, in lower case
    bool quoted = false;         ///< the value has its opening quote
    bool operator==(const TagPlace &) const = default;
};
/// The place at the end of a text, which is what stands in front of the caret.
TagPlace tagPlaceAtEnd(QStringView before);

/// What the assistant may offer from, beside the page itself. What is not there is not offered.
struct OfferSources {
    const Vocabulary *vocabulary = nullptr;
    std::function<QStringList()> classes = {};                    ///< of the style sheets
    std::function<QStringList()> ids = {};                        ///< of the style sheets
    std::function<QStringList(const QString &folder)> files = {}; ///< in a folder as the page names it ("img/");
                                                                  ///< folders end with "/"
};

/// One thing that fits at the caret.
struct Offer {
    QString text;            ///< what is listed, and found by what is typed
    QString written;         ///< what takes the place of what is typed
    qsizetype caretBack = 0; ///< the caret stands so many characters in front of its end
    bool deprecated = false;
    bool goesOn = false; ///< behind it something else fits: a value, a file of the folder
    bool operator==(const Offer &) const = default;
};
struct Offers {
    qsizetype start = 0; ///< of what is typed, which reaches to the caret
    QList<Offer> rows;   ///< the best one first
};

/// What fits behind a text: elements that may stand there, the attributes of the element with its own first, values,
/// end tags, classes and ids, files. What begins with what is typed stands in front of what holds it, and all that is
/// deprecated behind all that is current.
Offers offersAtEnd(QStringView before, const OfferSources &sources);

/// The element's own attributes, and how many all elements take besides, for the tip; empty for an unknown element.
QString ownSyntax(const Vocabulary &vocabulary, const QString &element);

/// The names behind "." (a class) or "#" (an id) in the selectors of a style sheet, each once, by their letters.
QStringList namesInStyleSheet(QStringView sheet, QChar sign);
