#include "document/pictureElement.h"

#include <gtest/gtest.h>

namespace
{
QString applied(const QString &text, const LineChange &change)
{
    return QString(text).replace(change.replacement->start, change.replacement->length, change.replacement->text);
}
} // namespace

TEST(PictureElement, holdsAddressAlternativeTextAndSize)
{
    EXPECT_EQ(
        pictureMarkup({.address = QStringLiteral("img/a.png"), .alt = {}, .size = QSize(3, 2)}, MarkupLanguage::Html),
        QStringLiteral("<img src=\"img/a.png\" alt=\"\" width=\"3\" height=\"2\">"));
    EXPECT_EQ(pictureMarkup({.address = QStringLiteral("a.avif"), .alt = QStringLiteral("A"), .size = {}},
                            MarkupLanguage::Html),
              QStringLiteral("<img src=\"a.avif\" alt=\"A\">"));
    EXPECT_EQ(
        pictureMarkup({.address = QStringLiteral("a.svg"), .alt = {}, .size = QSize(100, 50)}, MarkupLanguage::Xhtml),
        QStringLiteral("<img src=\"a.svg\" alt=\"\" width=\"100\" height=\"50\" />"));
}

TEST(PictureElement, holdsNothingThatWouldEndAValueOrBeAReference)
{
    EXPECT_EQ(pictureMarkup({.address = QStringLiteral("a&copy.png"), .alt = QStringLiteral("\"<b>\" & c"), .size = {}},
                            MarkupLanguage::Html),
              QStringLiteral("<img src=\"a&amp;copy.png\" alt=\"&quot;&lt;b&gt;&quot; &amp; c\">"));
}

TEST(PictureName, isKnownByItsEnding)
{
    for (const char *name : {"/a/b.png", "b.PNG", "b c.jpeg", "b.svg", "b.webp", "b.avif", "b.gif", "b.ico"})
        EXPECT_TRUE(isPictureName(QLatin1String(name))) << name;
    for (const char *name : {"/a.png/b", "b.html", "png", "b.xpm", "b.tif", "b.png.txt", ""})
        EXPECT_FALSE(isPictureName(QLatin1String(name))) << name;
}

TEST(WithPictures, replacesTheSelectionAndPutsTheCaretIntoTheAlternativeText)
{
    const QString text = QStringLiteral("<p>one</p>");
    const QString element = QStringLiteral("<img src=\"a\" alt=\"\">");
    const LineChange change = withPictures(text, {3, 3}, {element});
    EXPECT_EQ(applied(text, change), QStringLiteral("<p><img src=\"a\" alt=\"\"></p>"));
    // 3 to the element, 12 of `<img src="a"`, 6 of ` alt="`
    EXPECT_EQ(change.selection, (TextSelection{21, 0}));
}

TEST(WithPictures, putsTheCaretBehindWhatIsComplete)
{
    const QString element = QStringLiteral("<img alt=\"x\">");
    EXPECT_EQ(withPictures(QStringLiteral("ab"), {1, 0}, {element}).selection, (TextSelection{1 + element.size(), 0}));
}

TEST(WithPictures, givesEachFurtherPictureALineAsFarInAsTheFirst)
{
    const QString text = QStringLiteral("<ul>\r\n  </ul>");
    const LineChange change = withPictures(text, {8, 0}, {QStringLiteral("<img 1>"), QStringLiteral("<img 2>")});
    EXPECT_EQ(applied(text, change), QStringLiteral("<ul>\r\n  <img 1>\r\n  <img 2></ul>"));
}

TEST(WithPictures, tearsNoTagApart)
{
    const QString text = QStringLiteral("<p class=\"a>b\">c</p>");
    const QString element = QStringLiteral("<img>");
    EXPECT_EQ(applied(text, withPictures(text, {11, 0}, {element})), QStringLiteral("<p class=\"a>b\"><img>c</p>"));
    EXPECT_EQ(applied(text, withPictures(text, {0, 0}, {element})), QStringLiteral("<img>") + text);
    EXPECT_EQ(applied(text, withPictures(text, {15, 0}, {element})), QStringLiteral("<p class=\"a>b\"><img>c</p>"));
    EXPECT_EQ(applied(text, withPictures(text, {3, 5}, {element})), QStringLiteral("<p <img>=\"a>b\">c</p>"))
        << "what is selected is to be replaced";
}

TEST(FreePictureName, isTheFirstThatIsNotTaken)
{
    const auto takes = [](const QStringList &names) {
        return [names](const QString &name) { return names.contains(name); };
    };
    EXPECT_EQ(freePictureName(QStringLiteral("png"), takes({})), QStringLiteral("picture.png"));
    EXPECT_EQ(freePictureName(QStringLiteral("png"), takes({QStringLiteral("picture.png")})),
              QStringLiteral("picture-2.png"));
    EXPECT_EQ(freePictureName(QStringLiteral("svg"), takes({QStringLiteral("picture.png")})),
              QStringLiteral("picture.svg"));
    EXPECT_EQ(
        freePictureName(QStringLiteral("png"), takes({QStringLiteral("picture.png"), QStringLiteral("picture-2.png")})),
        QStringLiteral("picture-3.png"));
}

TEST(PictureName, getsAnEndingWhereItHasNone)
{
    const std::pair<const char *, const char *> rows[] = {
        {"logo", "logo.png"},
        {" logo ", "logo.png"},
        {"logo.jpg", "logo.jpg"},
        {"img/logo", "img/logo.png"},
        {"v1.2/a", "v1.2/a.png"},
        {"logo.old", "logo.old"},
        {"", ""},
        {"img/", "img/"},
    };
    for (const auto &[typed, name] : rows)
        EXPECT_EQ(pictureNameOf(QLatin1String(typed), QStringLiteral("png")), QLatin1String(name)) << typed;
}

TEST(PictureName, leadsNowhereButBelowThePage)
{
    for (const char *name : {"a.png", "img/a.png", "a b.JPG", "a..b.png"})
        EXPECT_EQ(pictureNameFault(QLatin1String(name)), QString()) << name;
    for (const char *name : {"", "../a.png", "/tmp/a.png", "img/../../a.png", ".png", ".hidden/a.png", "img//a.png",
                             "img/", "a.html", "a.old"})
        EXPECT_NE(pictureNameFault(QLatin1String(name)), QString()) << name;
}
