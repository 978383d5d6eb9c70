#include "insertion/frmInsJavaApplet.h"
#include "insertion/frmInsObject.h"

#include <functional>
#include <gtest/gtest.h>

namespace
{
QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// One field of an empty dialog, and what it adds to the opening tag.
template <class Fields>
struct Row {
    std::function<void(Fields &)> change;
    const char *attribute;
};

template <class Fields>
Row<Fields> filled(QString Fields::*field, const char *value, const char *attribute)
{
    return {[field, value](Fields &fields) { fields.*field = str(value); }, attribute};
}
} // namespace

TEST(AppletMarkup, eachFieldGivesItsAttribute)
{
    using F = AppletFields;
    const Row<F> rows[] = {
        {[](F &) {}, ""},
        filled(&F::codeBase, "b/", " codebase=\"b/\""),
        filled(&F::code, "A.class", " code=\"A.class\""),
        filled(&F::name, "n", " name=\"n\""),
        filled(&F::archive, "a.jar", " archive=\"a.jar\""),
        filled(&F::object, "o", " object=\"o\""),
        filled(&F::width, "0", " width=\"0\""),
        filled(&F::height, "50%", " height=\"50%\""),
        filled(&F::align, "left", " align=\"left\""),
        filled(&F::alt, "a \"b\"", " alt=\"a \"b\"\""),
        filled(&F::vSpace, "1", " vspace=\"1\""),
        filled(&F::hSpace, "2", " hspace=\"2\""),
        filled(&F::leftoverAttributes, " id=x", " id=x"),
    };
    for (const Row<F> &row : rows) {
        F fields;
        row.change(fields);
        EXPECT_EQ(appletMarkup(fields), str("<applet%1>\r\n</applet>").arg(str(row.attribute)));
    }
}

TEST(AppletMarkup, writesItsAttributesInOneOrder)
{
    const AppletFields fields{.codeBase = str("a"),
                              .code = str("b"),
                              .name = str("c"),
                              .archive = str("d"),
                              .object = str("e"),
                              .width = str("1"),
                              .height = str("2"),
                              .align = str("f"),
                              .alt = str("g"),
                              .vSpace = str("3"),
                              .hSpace = str("4"),
                              .leftoverAttributes = str(" h"),
                              .parameters = {{str("p"), str("q")}, {str("r"), QString()}},
                              .edited = false};
    const QString tag = str("<applet codebase=\"a\" code=\"b\" name=\"c\" archive=\"d\" object=\"e\" width=\"1\" "
                            "height=\"2\" align=\"f\" alt=\"g\" vspace=\"3\" hspace=\"4\" h>\r\n"
                            "    <param name=\"p\" value=\"q\">\r\n    <param name=\"r\" value=\"\">");
    EXPECT_EQ(appletMarkup(fields), tag + str("\r\n</applet>"));
    AppletFields edited = fields;
    edited.edited = true;
    EXPECT_EQ(appletMarkup(edited), tag);
}

TEST(ObjectMarkup, eachFieldGivesItsAttribute)
{
    using F = ObjectFields;
    const Row<F> rows[] = {
        {[](F &) {}, ""},
        filled(&F::classId, "c", " classid=\"c\""),
        filled(&F::codeBase, "b/", " codebase=\"b/\""),
        filled(&F::codeType, "text/css", " codetype=\"text/css\""),
        filled(&F::data, "0", " data=\"0\""),
        filled(&F::type, "image/png", " type=\"image/png\""),
        filled(&F::archive, "a", " archive=\"a\""),
        filled(&F::name, "n", " name=\"n\""),
        filled(&F::align, "left", " align=\"left\""),
        filled(&F::width, "0", ""),
        filled(&F::width, "00", " width=\"00\""),
        filled(&F::height, "0", ""),
        filled(&F::height, "5", " height=\"5\""),
        filled(&F::border, "0", ""),
        filled(&F::border, "1", " border=\"1\""),
        filled(&F::hSpace, "0", ""),
        filled(&F::hSpace, "2", " hspace=\"2\""),
        filled(&F::vSpace, "0", ""),
        filled(&F::vSpace, "3", " vspace=\"3\""),
        filled(&F::leftoverAttributes, " width=0", " width=0"),
    };
    for (const Row<F> &row : rows) {
        F fields;
        row.change(fields);
        EXPECT_EQ(objectMarkup(fields), str("<object%1>\r\n</object>").arg(str(row.attribute)));
    }
}

TEST(ObjectMarkup, writesItsAttributesInOneOrder)
{
    const ObjectFields fields{.classId = str("a"),
                              .codeBase = str("b"),
                              .codeType = str("c"),
                              .data = str("d"),
                              .type = str("e"),
                              .archive = str("f"),
                              .name = str("g"),
                              .align = str("h"),
                              .width = str("1"),
                              .height = str("2"),
                              .border = str("3"),
                              .hSpace = str("4"),
                              .vSpace = str("5"),
                              .leftoverAttributes = str(" i"),
                              .parameters = {{str("p"), str("q")}},
                              .edited = true};
    EXPECT_EQ(objectMarkup(fields),
              str("<object classid=\"a\" codebase=\"b\" codetype=\"c\" data=\"d\" type=\"e\" archive=\"f\" name=\"g\" "
                  "align=\"h\" width=\"1\" height=\"2\" border=\"3\" hspace=\"4\" vspace=\"5\" i>\r\n"
                  "    <param name=\"p\" value=\"q\">"));
}

TEST(EmbeddedElements, areReadBackWithWhatNoFieldKnows)
{
    const QString applet = str("<APPLET id=\"x\" HSpace=\"7\" code=\"A\" codebase=\"b\" width=\"50%\" alt=\"\">");
    const std::optional<TagUnderCaret> appletTag = readAppletTag(applet, 5, 0);
    ASSERT_TRUE(appletTag);
    EXPECT_EQ(appletMarkup(appletFields(*appletTag)),
              str("<applet codebase=\"b\" code=\"A\" width=\"50%\" hspace=\"7\" id=\"x\" alt=\"\">"));
    const QString object = str("<object TYPE=\"t\" codetype=\"c\" border=\"0\" usemap=\"#m\" data='d'>");
    const std::optional<TagUnderCaret> objectTag = readObjectTag(object, 5, 0);
    ASSERT_TRUE(objectTag);
    EXPECT_EQ(objectMarkup(objectFields(*objectTag)), str("<object codetype=\"c\" type=\"t\" usemap=\"#m\" data='d'>"));
    EXPECT_FALSE(readAppletTag(object, 5, 0));
    EXPECT_FALSE(readObjectTag(applet, 5, 0));
    EXPECT_FALSE(readObjectTag(object, 5, 1));
}
