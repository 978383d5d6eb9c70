#include "texttools/pageTags.h"

#include <QHash>
#include <QString>

namespace
{
struct Named {
    PageTag tag;
    const char *names;
};
constexpr Named table[] = {
    {PageTag::Formatting, "b big code em font i nobr s small strike strong tt u"},
    {PageTag::Closing, "address article aside blockquote center details dialog dir div dl fieldset figcaption figure "
                       "footer header hgroup main menu nav search section summary listing"},
    {PageTag::Special, "area br embed img keygen param source track wbr iframe"},
    {PageTag::A, "a"},
    {PageTag::Applet, "applet marquee object"},
    {PageTag::Body, "body"},
    {PageTag::Button, "button"},
    {PageTag::Caption, "caption"},
    {PageTag::Cell, "td th"},
    {PageTag::Col, "col"},
    {PageTag::Colgroup, "colgroup"},
    {PageTag::Description, "dd dt"},
    {PageTag::Form, "form"},
    {PageTag::Frameset, "frameset"},
    {PageTag::Head, "head"},
    {PageTag::Heading, "h1 h2 h3 h4 h5 h6"},
    {PageTag::HeadMatter, "base basefont bgsound link meta"},
    {PageTag::Html, "html"},
    {PageTag::Input, "input"},
    {PageTag::Li, "li"},
    {PageTag::List, "ol ul"},
    {PageTag::Optgroup, "optgroup"},
    {PageTag::Option, "option"},
    {PageTag::P, "p"},
    {PageTag::Plaintext, "plaintext"},
    {PageTag::Pre, "pre"},
    {PageTag::Rows, "tbody thead tfoot"},
    {PageTag::Row, "tr"},
    {PageTag::RubyPart, "rb rt rtc rp"},
    {PageTag::Script, "script"},
    {PageTag::Select, "select"},
    {PageTag::Style, "style"},
    {PageTag::Svg, "svg"},
    {PageTag::Math, "math"},
    {PageTag::Table, "table"},
    {PageTag::Template, "template"},
    {PageTag::Textarea, "textarea"},
    {PageTag::Title, "title"},
    {PageTag::Noscript, "noscript"},
    {PageTag::RawText, "xmp iframe noembed noframes"},
    {PageTag::Hr, "hr"},
};
} // namespace

PageTag pageTagOf(QStringView name)
{
    for (const Named &row : table)
        for (const QString &word : QString::fromLatin1(row.names).split(u' '))
            if (name.compare(word, Qt::CaseInsensitive) == 0)
                return row.tag;
    return PageTag::Other;
}

bool endsByItself(PageTag tag)
{
    switch (tag) {
    case PageTag::Description:
    case PageTag::Li:
    case PageTag::Optgroup:
    case PageTag::Option:
    case PageTag::P:
    case PageTag::RubyPart:
        return true;
    default:
        return false;
    }
}

bool mayLackEndTag(PageTag tag)
{
    switch (tag) {
    case PageTag::Rows:
    case PageTag::Row:
    case PageTag::Cell:
    case PageTag::Colgroup:
    case PageTag::Body:
    case PageTag::Html:
    case PageTag::Head:
    case PageTag::Caption:
        return true;
    default:
        return endsByItself(tag);
    }
}

bool isSpecial(PageTag tag)
{
    switch (tag) {
    case PageTag::Other:
    case PageTag::Formatting:
    case PageTag::A:
    case PageTag::Optgroup:
    case PageTag::Option:
    case PageTag::RubyPart:
    case PageTag::Svg:
    case PageTag::Math:
        return false;
    default:
        return true;
    }
}

bool endsParagraph(PageTag tag)
{
    switch (tag) {
    case PageTag::Closing:
    case PageTag::Description:
    case PageTag::Form:
    case PageTag::Heading:
    case PageTag::Hr:
    case PageTag::Li:
    case PageTag::List:
    case PageTag::P:
    case PageTag::Plaintext:
    case PageTag::Pre:
    case PageTag::Table:
        return true;
    default:
        return false;
    }
}
