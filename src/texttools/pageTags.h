#pragma once

#include <QStringView>
#include <QtGlobal>

/// The elements that the standard's rules of reading know by name.
enum class PageTag : quint8 {
    Other,
    Formatting, ///< b, i, font and their like, which a browser opens again where they were closed out of turn
    Closing,    ///< a block that ends a paragraph before it
    Special,    ///< no block, but one that end tags of words do not reach over
    A,
    Applet, ///< and what else is a world of its own: marquee, object, template
    Body,
    Button,
    Caption,
    Cell, ///< td and th
    Col,
    Colgroup,
    Description, ///< dd and dt
    Form,
    Frameset,
    Head,
    Heading,
    HeadMatter, ///< base, link, meta and their like, which may stand in the head
    Html,
    Input,
    Li,
    List, ///< ol and ul
    Optgroup,
    Option,
    P,
    Plaintext,
    Pre,
    Rows, ///< tbody, thead and tfoot
    Row,
    RubyPart, ///< rb, rt, rtc and rp
    Script,
    Select,
    Style,
    Svg,
    Math,
    Table,
    Template,
    Textarea,
    Title,
    Noscript,
    RawText, ///< xmp, iframe, noembed and noframes
    Hr,
};

PageTag pageTagOf(QStringView name);
/// Whether a browser closes it by itself where another element ends.
bool endsByItself(PageTag tag);
/// Whether its end tag may be left out.
bool mayLackEndTag(PageTag tag);
/// Whether an end tag of words, like that of span, does not reach over it.
bool isSpecial(PageTag tag);
/// Whether its start ends a paragraph.
bool endsParagraph(PageTag tag);
