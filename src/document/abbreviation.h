#pragma once

#include "common/html/markupLanguage.h"
#include "services/editorSettings.h"

#include <QString>
#include <functional>
#include <optional>

/// Abbreviations that stand for elements: "ul>li.item$*3>a[href=#]{Go}". A name, or none; "#id", ".class",
/// "[attribute=value]" and "{text}" behind it; ">" leads into an element, "+" to the one beside it, "^" out of it; "*3"
/// repeats, "(...)" groups. "$" is the number of the repetition, "$$" with leading zeros, "$@3" from 3, "$@-"
/// backwards.
namespace abbreviation
{
/// Whether a name is one of an element.
using IsElement = std::function<bool(const QString &)>;

/// What an abbreviation comes to, with its lines parted by CR LF.
struct Expansion {
    QString text;
    qsizetype caret = 0; ///< from 0: in the first empty attribute or element, else behind the text
    bool operator==(const Expansion &) const = default;
};

/// The length of the abbreviation that ends at `caret`, counted from 0; 0 where none does. It is an element's name, or
/// a text with a sign of the notation that can be read to its end.
qsizetype lengthBefore(QStringView text, qsizetype caret, const IsElement &isElement);

/// In XHTML, elements without contents are closed. Nothing where the text is no abbreviation, or comes to more than
/// anybody would want.
std::optional<Expansion> expanded(const QString &abbreviation, const IndentStyle &style,
                                  MarkupLanguage language = MarkupLanguage::Html);
/// The same around a text: it stands in place of "$#", or in the innermost element. An "*" without a number makes an
/// element of each line that is not blank.
std::optional<Expansion> wrapped(const QString &abbreviation, const QString &content, const IndentStyle &style,
                                 MarkupLanguage language = MarkupLanguage::Html);
} // namespace abbreviation
