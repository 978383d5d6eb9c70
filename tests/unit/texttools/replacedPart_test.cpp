#include "texttools/replacedPart.h"

#include "surface/editSurface.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace
{
TEST(ReplacedPart, LeavesWhatIsTheSame)
{
    EditSurface surface;
    surface.setText(QStringLiteral("one two three"));
    surface.setFormat(0, 3, {.colour = 255, .bold = {}, .underline = {}});
    surface.setFormat(8, 5, {.colour = 255, .bold = {}, .underline = {}});
    replacePart(surface, QStringLiteral("one 2 three"));
    EXPECT_EQ(surface.Text(), QStringLiteral("one 2 three"));
    EXPECT_EQ(surface.formatOf(0, 3).colour, 255);
    EXPECT_EQ(surface.formatOf(6, 5).colour, 255);
}

TEST(ReplacedPart, RaisesNoChangeWithoutADifference)
{
    EditSurface surface;
    surface.setText(QStringLiteral("one\r\ntwo"));
    int changes = 0;
    QObject::connect(&surface, &EditSurface::Change, &surface, [&] { ++changes; });
    replacePart(surface, QStringLiteral("one\r\ntwo"));
    EXPECT_EQ(changes, 0);
    replacePart(surface, QStringLiteral("one\r\n\r\ntwo"));
    EXPECT_EQ(changes, 1);
}

TEST(ReplacedPart, GivesAnyTextWhateverStoodThere)
{
    QRandomGenerator random(11);
    const auto text = [&] {
        QString result;
        for (int left = random.bounded(9); left > 0; --left)
            result += random.bounded(3) ? QString(QChar(u'a' + char16_t(random.bounded(2)))) : QStringLiteral("\r\n");
        return result;
    };
    EditSurface surface;
    for (int round = 0; round < 2000; ++round) {
        const QString next = text();
        replacePart(surface, next);
        ASSERT_EQ(surface.Text(), next);
    }
}
} // namespace
