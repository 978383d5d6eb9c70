#include "unit/codeknowledge/dataFiles.h"

#include <gmock/gmock.h>

namespace
{
using namespace datafiles;
using testing::IsSubsetOf;

// --- Single attributes, by the standards ---

struct AttributeRow {
    const char *element;
    const char *attribute; ///< led by "-" if it is deprecated
    const char *values;    ///< parted by blanks; those that are deprecated led by "-"
};

/// Whether just these values are told, in whichever order.
void expectAttribute(const AttributeRow &row)
{
    SCOPED_TRACE(QStringLiteral("%1 %2").arg(words(row.element), words(row.attribute)).toStdString());
    const Element *element = html().element(words(row.element));
    ASSERT_NE(element, nullptr);
    const bool deprecated = row.attribute[0] == '-';
    const Attribute *attribute = element->attribute(words(row.attribute + (deprecated ? 1 : 0)));
    ASSERT_NE(attribute, nullptr);
    EXPECT_EQ(attribute->deprecated, deprecated);
    QStringList expected = words(row.values).split(u' ', Qt::SkipEmptyParts);
    QStringList told = markedValues(*attribute);
    expected.sort();
    told.sort();
    EXPECT_EQ(told.join(u' '), expected.join(u' '));
}

TEST(CodeData, KnowsTheEnumeratedValues)
{
    for (const AttributeRow &row : std::initializer_list<AttributeRow>{
             {"p", "dir=", "ltr rtl auto"},
             {"p", "translate=", "yes no"},
             {"p", "contenteditable=", "true false plaintext-only"},
             {"p", "draggable=", "true false"},
             {"p", "spellcheck=", "true false"},
             {"p", "hidden=", "hidden until-found"},
             {"p", "popover=", "auto manual hint"},
             {"p", "inputmode=", "none text decimal numeric tel search email url"},
             {"p", "enterkeyhint=", "enter done go next previous search send"},
             {"p", "autocapitalize=", "off none on sentences words characters"},
             {"p", "-align=", "left center right justify"},
             {"input", "type=",
              "hidden text search tel url email password date month week time datetime-local number range color "
              "checkbox "
              "radio file submit image reset button -datetime"},
             {"input", "formmethod=", "get post dialog"},
             {"input", "capture=", "user environment"},
             {"form", "method=", "get post dialog"},
             {"form", "enctype=", "application/x-www-form-urlencoded multipart/form-data text/plain"},
             {"form", "autocomplete=", "on off"},
             {"form", "target=", "_blank _self _parent _top"},
             {"button", "type=", "submit reset button"},
             {"button", "command=", "toggle-popover show-popover hide-popover close request-close show-modal"},
             {"button", "popovertargetaction=", "toggle show hide"},
             {"textarea", "wrap=", "soft hard -off -physical -virtual"},
             {"a", "referrerpolicy=",
              "no-referrer no-referrer-when-downgrade same-origin origin strict-origin origin-when-cross-origin "
              "strict-origin-when-cross-origin unsafe-url"},
             {"a", "-shape=", "rect circle poly default"},
             {"area", "shape=", "rect circle poly default -circ -polygon -rectangle"},
             {"img", "loading=", "lazy eager"},
             {"img", "decoding=", "sync async auto"},
             {"img", "fetchpriority=", "high low auto"},
             {"img", "crossorigin=", "anonymous use-credentials"},
             {"img", "-start=", "fileopen mouseover"},
             {"iframe", "loading=", "lazy eager"},
             {"iframe", "sandbox=",
              "allow-downloads allow-forms allow-modals allow-orientation-lock allow-pointer-lock allow-popups "
              "allow-popups-to-escape-sandbox allow-presentation allow-same-origin allow-scripts "
              "allow-storage-access-by-user-activation allow-top-navigation allow-top-navigation-by-user-activation "
              "allow-top-navigation-to-custom-protocols"},
             {"iframe", "-scrolling=", "yes no auto"},
             {"track", "kind=", "subtitles captions descriptions chapters metadata"},
             {"video", "preload=", "none metadata auto"},
             {"th", "scope=", "row col rowgroup colgroup"},
             {"td", "-align=", "left center right justify char"},
             {"td", "-valign=", "top middle bottom baseline"},
             {"table", "-frame=", "void above below hsides vsides lhs rhs box border"},
             {"table", "-rules=", "none groups rows cols all"},
             {"table", "-align=", "left center right"},
             {"caption", "-align=", "top bottom left right"},
             {"br", "-clear=", "left all right none"},
             {"hr", "-align=", "left center right"},
             {"ol", "type=", "1 a A i I"},
             {"ul", "-type=", "disc square circle"},
             {"param", "-valuetype=", "data ref object"},
             {"meta", "charset=", "utf-8"},
             {"meta", "http-equiv=",
              "content-type default-style refresh x-ua-compatible content-security-policy -content-language "
              "-set-cookie "
              "-cache-control -content-script-type -content-style-type -expires -imagetoolbar -page-enter -page-exit "
              "-pics-label -pragma -window-target"},
             {"template", "shadowrootmode=", "open closed"},
             {"dialog", "closedby=", "any closerequest none"},
             {"marquee", "-behavior=", "scroll slide alternate"},
             {"body", "-bgproperties=", "fixed"},
             {"frame", "-frameborder=", "0 1 no yes"},
         })
        expectAttribute(row);
}

TEST(CodeData, KnowsWhichLinksThereAre)
{
    const auto values = [](const char *element) {
        return markedValues(*html().element(words(element))->attribute(words("rel=")));
    };
    const QStringList both{words("alternate"), words("author"), words("help"),   words("license"), words("next"),
                           words("prev"),      words("search"), words("-index"), words("-start")};
    EXPECT_THAT(both, IsSubsetOf(values("a")));
    EXPECT_THAT(both, IsSubsetOf(values("link")));
    EXPECT_THAT((QStringList{words("bookmark"), words("external"), words("nofollow"), words("noopener"),
                             words("noreferrer"), words("opener"), words("tag")}),
                IsSubsetOf(values("a")));
    EXPECT_THAT((QStringList{words("canonical"), words("dns-prefetch"), words("icon"), words("manifest"),
                             words("modulepreload"), words("pingback"), words("preconnect"), words("prefetch"),
                             words("preload"), words("stylesheet")}),
                IsSubsetOf(values("link")));
}

// An attribute that stands alone has no "=", so that the checker knows it as it is written.
TEST(CodeData, TellsFlagsFromAttributesWithAValue)
{
    for (const AttributeRow &row : std::initializer_list<AttributeRow>{
             {"input", "checked", ""},
             {"input", "disabled", ""},
             {"input", "readonly", ""},
             {"input", "required", ""},
             {"input", "multiple", ""},
             {"option", "selected", ""},
             {"select", "multiple", ""},
             {"form", "novalidate", ""},
             {"script", "async", ""},
             {"script", "defer", ""},
             {"script", "nomodule", ""},
             {"video", "autoplay", ""},
             {"video", "controls", ""},
             {"audio", "loop", ""},
             {"video", "muted", ""},
             {"video", "playsinline", ""},
             {"details", "open", ""},
             {"ol", "reversed", ""},
             {"iframe", "allowfullscreen", ""},
             {"img", "ismap", ""},
             {"track", "default", ""},
             {"p", "itemscope", ""},
             {"p", "inert", ""},
             {"hr", "-noshade", ""},
             {"td", "-nowrap", ""},
             {"ul", "-compact", ""},
             {"frame", "-noresize", ""},
             {"object", "-declare", ""},
             {"area", "-nohref", ""},
             {"img", "-controls", ""},
             {"a", "download", ""},
             {"p", "hidden", ""},
             {"table", "-border", ""},
         }) {
        expectAttribute(row);
        const char *name = row.attribute + (row.attribute[0] == '-' ? 1 : 0);
        const Attribute *valued = html().element(words(row.element))->attribute(words(name) + u'=');
        ASSERT_NE(valued, nullptr) << row.element << name;
        const bool flag = !QStringList{words("download"), words("border")}.contains(words(name));
        EXPECT_EQ(markedValues(*valued).contains(words(name)), flag) << row.element << name;
    }
}

TEST(CodeData, KnowsWhatIsDeprecated)
{
    for (const char *name : {"acronym", "applet",   "basefont", "bgsound",   "big",    "blink",   "center",  "dir",
                             "font",    "frame",    "frameset", "isindex",   "layer",  "listing", "marquee", "nobr",
                             "noembed", "noframes", "param",    "plaintext", "spacer", "strike",  "tt",      "xmp"})
        EXPECT_TRUE(html().element(words(name)) && html().element(words(name))->deprecated) << name;
    for (const char *name : {"a",     "b",      "i", "u",   "s",    "small", "menu",   "hr",     "iframe",   "object",
                             "embed", "hgroup", "q", "sub", "cite", "rp",    "search", "dialog", "noscript", "wbr"})
        EXPECT_TRUE(html().element(words(name)) && !html().element(words(name))->deprecated) << name;
}

// --- What the program's own dialogs write ---

TEST(CodeData, KnowsAllThatTheDialogsWrite)
{
    const std::initializer_list<std::pair<const char *, const char *>> written{
        {"a", "href= name= target="},
        {"img", "src= name= alt= usemap= align= width= height= border= hspace= vspace= dynsrc= start= controls loop= "
                "loopdelay="},
        {"bgsound", "src= loop="},
        {"table", "summary= align= width= frame= rules= border= cellspacing= cellpadding= class= id="},
        {"td", "width= bgcolor= class= id="},
        {"hr", "align= noshade size= width= color="},
        {"ul", "type= compact"},
        {"ol", "type= compact"},
        {"font", "face= size= color= style="},
        {"div", "align= id= class="},
        {"input", "type= name= value= size= maxlength= checked"},
        {"textarea", "name= rows= cols="},
        {"select", "name= multiple size="},
        {"option", "selected value="},
        {"form", "name= action= method="},
        {"applet", "codebase= code= name= archive= object= width= height= align= alt= vspace= hspace="},
        {"object",
         "classid= codebase= codetype= data= type= archive= name= align= width= height= border= hspace= vspace="},
        {"param", "name= value="},
        {"map", "name="},
        {"area", "shape= coords= href="},
        {"script", "language="},
        {"link", "rel= href= type="},
        {"body", "onload="},
    };
    for (const auto &[name, attributes] : written) {
        const Element *element = html().element(words(name));
        ASSERT_NE(element, nullptr) << name;
        for (const QString &attribute : words(attributes).split(u' '))
            EXPECT_NE(element->attribute(attribute), nullptr) << name << ' ' << qPrintable(attribute);
    }
    for (const char *name :
         {"b",   "i",   "u",    "tt",     "strike", "address", "blockquote", "cite", "code", "dfn", "em",
          "kbd", "pre", "samp", "strong", "sub",    "sup",     "var",        "br",   "li",   "tr",  "style"})
        EXPECT_NE(html().element(words(name)), nullptr) << name;
}

// Every page begins with it, and the checker knows no other words than these.
TEST(CodeData, KnowsTheDocumentTypeDeclaration)
{
    const Element *declaration = html().element(words("!doctype"));
    ASSERT_NE(declaration, nullptr);
    EXPECT_EQ(declaration->syntaxLine(), words("<!doctype html public system>"));
}

// --- Properties ---

TEST(CodeData, KnowsTheWordsOfProperties)
{
    struct PropertyRow {
        const char *name;
        const char *values;
    };
    for (const PropertyRow &row : std::initializer_list<PropertyRow>{
             {"display", "none block inline inline-block flex inline-flex grid table table-cell list-item contents"},
             {"position", "static relative absolute fixed sticky"},
             {"float", "left right none"},
             {"text-align", "left right center justify start end"},
             {"text-transform", "none capitalize uppercase lowercase"},
             {"font-style", "normal italic oblique"},
             {"font-weight", "normal bold bolder lighter"},
             {"border-style", "none hidden dotted dashed solid double groove ridge inset outset"},
             {"border", "thin medium thick solid red transparent"},
             {"background-repeat", "repeat repeat-x repeat-y no-repeat space round"},
             {"color", "red rebeccapurple transparent currentColor rgb() hsl()"},
             {"list-style-type", "disc circle square decimal lower-roman upper-alpha none"},
             {"overflow", "visible hidden scroll auto clip"},
             {"visibility", "visible hidden collapse"},
             {"white-space", "normal pre nowrap pre-wrap pre-line"},
             {"cursor", "auto default pointer wait text move help crosshair"},
             {"transform", "none rotate() scale() translate()"},
             {"width", "auto min-content max-content"},
         }) {
        const Property *property = css().property(words(row.name));
        ASSERT_NE(property, nullptr) << row.name;
        EXPECT_THAT(words(row.values).split(u' '), IsSubsetOf(property->values)) << row.name;
    }
    EXPECT_FALSE(css().property(words("position"))->values.contains(words("red")));
}
} // namespace
