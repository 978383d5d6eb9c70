#include "insertion/frmInsImage.h"

#include <gtest/gtest.h>
#include <random>

namespace
{
QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// The fields that a dialog shows which opens with the caret in this tag.
ImageFields readBack(const QString &tag)
{
    const std::optional<TagUnderCaret> read = readImageTag(tag, 1, 0);
    EXPECT_TRUE(read) << tag.toStdString();
    return read ? imageFields(*read) : ImageFields();
}

/// What OK writes where the dialog opened on this tag.
QString confirmed(const char *tag)
{
    return imageMarkup(readBack(str(tag)));
}

/// Random fields as a user may fill them, any of them empty; never with a quote, a line break or a bracket.
class RandomFields
{
public:
    explicit RandomFields(unsigned seed) : m_random(seed) {}

    ImageFields next()
    {
        ImageFields fields{.src = text(),
                           .name = text(),
                           .alt = text(),
                           .useMap = text(),
                           .align = text(),
                           .width = digits(),
                           .height = digits(),
                           .inPercent = below(2) == 1,
                           .border = digits(),
                           .hSpace = digits(),
                           .vSpace = digits(),
                           .leftoverAttributes = {}};
        return fields;
    }

private:
    unsigned below(unsigned limit) { return std::uniform_int_distribution<unsigned>(0, limit - 1)(m_random); }

    QString from(const QString &characters, unsigned longest)
    {
        QString result;
        for (unsigned left = below(longest + 1); left > 0; --left)
            result += characters[below(static_cast<unsigned>(characters.size()))];
        return result;
    }

    QString text() { return from(QString::fromUtf8("ab Zé#=/\\.<%&'\u00a0"), 12); }
    QString digits() { return from(str("0123456789"), 5); }

    std::mt19937 m_random;
};

/// What the tag reads back as: the map has its sign, the unit is the other one, and is pixels where there is no size.
ImageFields crossed(ImageFields fields)
{
    if (!fields.useMap.isEmpty() && !fields.useMap.startsWith(u'#'))
        fields.useMap.prepend(u'#');
    const bool hasSize = !fields.width.isEmpty() || !fields.height.isEmpty();
    fields.inPercent = hasSize && !fields.inPercent;
    return fields;
}

// NOLINTNEXTLINE(readability-function-size): most of it is what the expectations stand for
void expectSame(const ImageFields &got, const ImageFields &expected, unsigned round)
{
    EXPECT_EQ(got.src, expected.src) << round;
    EXPECT_EQ(got.name, expected.name) << round;
    EXPECT_EQ(got.alt, expected.alt) << round;
    EXPECT_EQ(got.useMap, expected.useMap) << round;
    EXPECT_EQ(got.align, expected.align) << round;
    EXPECT_EQ(got.width, expected.width) << round;
    EXPECT_EQ(got.height, expected.height) << round;
    EXPECT_EQ(got.inPercent, expected.inPercent) << round;
    EXPECT_EQ(got.border, expected.border) << round;
    EXPECT_EQ(got.hSpace, expected.hSpace) << round;
    EXPECT_EQ(got.vSpace, expected.vSpace) << round;
    EXPECT_EQ(got.leftoverAttributes, expected.leftoverAttributes) << round;
}
} // namespace

TEST(ImageMarkup, OfNoFieldsIsTheBareElement)
{
    EXPECT_EQ(imageMarkup({}), str("<img>"));
}

TEST(ImageMarkup, OfAllFieldsInTheirOrder)
{
    const ImageFields fields{.src = str("img/a.gif"),
                             .name = str("logo"),
                             .alt = str("The logo"),
                             .useMap = str("nav"),
                             .align = str("left"),
                             .width = str("50"),
                             .height = str("60"),
                             .inPercent = true,
                             .border = str("1"),
                             .hSpace = str("2"),
                             .vSpace = str("3"),
                             .leftoverAttributes = str(" onclick=\"go()\"")};
    EXPECT_EQ(imageMarkup(fields),
              str("<img src=\"img/a.gif\" name=\"logo\" alt=\"The logo\" usemap=\"#nav\" align=\"left\" width=\"50%\" "
                  "height=\"60%\" border=\"1\" hspace=\"2\" vspace=\"3\" onclick=\"go()\">"));
}

TEST(ImageMarkup, AMapHasItsSignOnce)
{
    ImageFields fields;
    fields.useMap = str("#nav");
    EXPECT_EQ(imageMarkup(fields), str("<img usemap=\"#nav\">"));
}

TEST(ImageMarkup, ReadAndConfirmedCrossesTheUnitsByIntent)
{
    EXPECT_EQ(confirmed("<img width=\"50%\">"), str("<img width=\"50\">"));
    EXPECT_EQ(confirmed("<img width=\"50\">"), str("<img width=\"50%\">"));
    EXPECT_EQ(confirmed("<img width=\"50%\" height=\"20\">"), str("<img width=\"50%\" height=\"20%\">"))
        << "the height decides for both";
    EXPECT_EQ(confirmed("<img height=\"20%\" width=\"50\">"), str("<img width=\"50\" height=\"20\">"))
        << "whatever their order in the tag";
}

TEST(ImageMarkup, ReadAndConfirmedKeepsWhatItDoesNotKnow)
{
    EXPECT_EQ(confirmed("<IMG onclick=\"go()\" SRC=\"A.gif\" class=x border=\"1\">"),
              str("<img src=\"A.gif\" border=\"1\" onclick=\"go()\" class=x>"));
    EXPECT_EQ(confirmed("<img src=\"a.gif\" alt=\"\">"), str("<img src=\"a.gif\" alt=\"\">"));
    EXPECT_EQ(confirmed("<img src='a.gif' src=\"b.gif\">"), str("<img src=\"b.gif\" src='a.gif'>"));
}

TEST(ImageMarkup, IsReadBackAsItWasFilled)
{
    RandomFields random(20010911);
    for (unsigned round = 0; round < 2000; ++round) {
        const ImageFields fields = random.next();
        const QString markup = imageMarkup(fields);
        // The bare element has no blank behind its name, and so is not known again.
        if (markup == u"<img>")
            continue;
        expectSame(readBack(markup), crossed(fields), round);
    }
}
