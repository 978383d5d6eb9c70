#include "common/html/textMode.h"

namespace html
{
TextMode modeBehind(QStringView element)
{
    if (element == u"script")
        return TextMode::Script;
    if (element == u"textarea" || element == u"title")
        return TextMode::Rcdata;
    if (element == u"plaintext")
        return TextMode::Plain;
    const bool isRaw = element == u"style" || element == u"xmp" || element == u"iframe" || element == u"noembed" ||
                       element == u"noframes";
    return isRaw ? TextMode::Raw : TextMode::Markup;
}
} // namespace html
