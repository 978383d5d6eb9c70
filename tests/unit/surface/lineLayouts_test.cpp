// How lines are laid out.
#include "surface/lineLayouts.h"

#include <QFontDatabase>
#include <QGlyphRun>
#include <QRawFont>
#include <gtest/gtest.h>

namespace
{
class LineLayoutsTest : public ::testing::Test
{
protected:
    LineLayoutsTest() { layouts.setStyle({QFontDatabase::systemFont(QFontDatabase::FixedFont)}); }

    void setText(const QString &content)
    {
        text.load(content);
        looks.reset(content.size());
        layouts.forgetAll();
    }

    SurfaceText text;
    FormatRuns looks;
    TextMarks marks;
    LineLayouts layouts{text, looks, marks, [](ColourValue) { return QColor(Qt::black); }};
};

TEST_F(LineLayoutsTest, SignsThatStandForOthersAreOfTheFontItself)
{
    const QString surplus = u'e' + QString(70, QChar(0x301));
    setText(QString(QChar::LineSeparator) + QChar(QChar::ParagraphSeparator) +
            QChar(QChar::ObjectReplacementCharacter) + surplus);
    const QString family = QRawFont::fromFont(layouts.style().font).familyName();
    const QTextLayout &layout = *layouts.piece(0, 0).layout;
    for (const qsizetype place : {0, 1, 2, 73}) {
        const QList<QGlyphRun> glyphs = layout.glyphRuns(static_cast<int>(place), 1);
        ASSERT_EQ(glyphs.size(), 1) << place;
        EXPECT_EQ(glyphs.front().rawFont().familyName(), family) << place;
        EXPECT_NE(glyphs.front().glyphIndexes().value(0), 0U) << place << ": the box of what a font lacks";
    }
}

TEST_F(LineLayoutsTest, WhateverMayChangeTheHeightOfRowsIsCounted)
{
    setText(QStringLiteral("one\r\ntwo\r\nthree"));
    const auto counts = [this](const std::function<void()> &change) {
        layouts.piece(1, 0);
        const quint64 before = layouts.changeCount();
        change();
        return layouts.changeCount() != before;
    };
    EXPECT_FALSE(counts([this] { layouts.piece(1, 0); })) << "it is kept";
    EXPECT_TRUE(counts([this] { layouts.piece(2, 0); }));
    EXPECT_TRUE(counts([this] { layouts.forgetStretches({{5, 6}}); }));
    EXPECT_FALSE(counts([this] { layouts.forgetStretches({{0, 1}}); })) << "nobody had asked for that line";
    EXPECT_TRUE(counts([this] { layouts.replaceLines(1, 1, 1); }));
    EXPECT_TRUE(counts([this] { layouts.replaceLines(0, 1, 2); }));
    EXPECT_TRUE(counts([this] { layouts.setPreedit({1, 0, QStringLiteral("x"), {}}); }));
    EXPECT_TRUE(counts([this] { layouts.forgetAll(); }));
    EXPECT_FALSE(counts([this] { layouts.keepOnly(1, 1); })) << "what is on view stays";
}
} // namespace
