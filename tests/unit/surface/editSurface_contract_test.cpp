// The properties of the surface other than its text: selection, lines, formats, signals, and what fails.
#include "surfaceFixture.h"

#include <cstdint>

namespace
{
constexpr ColourValue red = 0x0000FF;
constexpr ColourValue navy = 8388608; // 0x800000: blue is the high byte

// ab CR LF CR LF cde: the first break at 2, the second at 4, "cde" from 6 to 9
const QString threeLines = QStringLiteral("ab\r\n\r\ncde");

struct SelectRow {
    qsizetype start;
    bool startTaken;
    qsizetype length;
    bool lengthTaken;
    Selection result;
};

TEST_F(EditSurfaceTest, SelectionIsCutSnappedOrRefused)
{
    const SelectRow rows[] = {
        {0, true, 0, true, {0, 0}},
        {1, true, 1, true, {1, 1}},
        {3, true, 0, true, {2, 0}},
        {2, true, 1, true, {2, 0}},
        {2, true, 2, true, {2, 2}},
        {0, true, 3, true, {0, 2}},
        {3, true, 3, true, {2, 2}},
        {5, true, 2, true, {4, 2}},
        {9, true, 0, true, {9, 0}},
        {10, true, 5, true, {9, 0}},
        {7, true, 100, true, {7, 2}},
        {1000, true, 0, true, {9, 0}},
        {-1, false, 2, true, {0, 2}},
        {4, true, -1, false, {4, 0}},
        {-5, false, -5, false, {0, 0}},
        {0, true, PTRDIFF_MAX, true, {0, 9}},
        {PTRDIFF_MAX, true, PTRDIFF_MAX, true, {9, 0}},
    };
    for (const SelectRow &row : rows) {
        surface.setText(threeLines);
        EXPECT_EQ(surface.setSelStart(row.start), row.startTaken) << row.start;
        EXPECT_EQ(surface.setSelLength(row.length), row.lengthTaken) << row.length;
        EXPECT_EQ(selection(), row.result) << row.start << ' ' << row.length;
    }
}

TEST_F(EditSurfaceTest, ARefusedStartOrLengthChangesNothing)
{
    surface.setText(threeLines);
    select(6, 2);
    QSignalSpy moves(&surface, &EditSurface::SelChange);
    EXPECT_FALSE(surface.setSelStart(-1));
    EXPECT_EQ(selection(), Selection(6, 2));
    EXPECT_FALSE(surface.setSelLength(-1));
    EXPECT_EQ(selection(), Selection(6, 2));
    EXPECT_EQ(moves.count(), 0);
}

TEST_F(EditSurfaceTest, SettingTheStartCollapsesTheSelection)
{
    surface.setText(threeLines);
    select(6, 2);
    EXPECT_TRUE(surface.setSelStart(7));
    EXPECT_EQ(selection(), Selection(7, 0));
}

TEST_F(EditSurfaceTest, TheCaretStandsAtTheEndOfASelectionThatWasSet)
{
    surface.setText(threeLines);
    select(6, 2);
    sendKey(Qt::Key_Right, Qt::ShiftModifier, QString());
    EXPECT_EQ(selection(), Selection(6, 3));
}

TEST_F(EditSurfaceTest, ASelectionMadeBackwardsStartsAtItsLowerEnd)
{
    surface.setText(threeLines);
    surface.setSelStart(8);
    sendKey(Qt::Key_Left, Qt::ShiftModifier, QString());
    sendKey(Qt::Key_Left, Qt::ShiftModifier, QString());
    sendKey(Qt::Key_Left, Qt::ShiftModifier, QString()); // passes the break in one
    EXPECT_EQ(selection(), Selection(4, 4));
    EXPECT_EQ(surface.SelText(), QStringLiteral("\r\ncd"));
    surface.setSelStart(0); // a press on what is selected would begin to drag it
    const QPoint from = surface.positionOfCharacter(8).center();
    const QPoint to = surface.positionOfCharacter(6).center();
    const QPoint origin = surface.viewport()->pos();
    QTest::mousePress(surface.viewport(), Qt::LeftButton, {}, from - origin);
    QTest::mouseMove(surface.viewport(), to - origin);
    QMouseEvent move(QEvent::MouseMove, QPointF(to - origin), QPointF(surface.mapToGlobal(to)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(surface.viewport(), &move);
    QTest::mouseRelease(surface.viewport(), Qt::LeftButton, {}, to - origin);
    EXPECT_EQ(selection(), Selection(6, 2));
}

TEST_F(EditSurfaceTest, SelTextReplacesTheSelectionAndLeavesTheCaretBehind)
{
    surface.setText(threeLines);
    select(1, 6);
    surface.setSelText(QStringLiteral("x\ny"));
    EXPECT_EQ(surface.Text(), QStringLiteral("ax\r\nyde"));
    EXPECT_EQ(selection(), Selection(5, 0));
    surface.setSelText(QString());
    EXPECT_EQ(surface.Text(), QStringLiteral("ax\r\nyde"));
    select(0, 100);
    surface.setSelText(QString());
    EXPECT_EQ(surface.Text(), QString());
    EXPECT_EQ(surface.lineCount(), 1);
}

struct LineRow {
    qsizetype position;
    qsizetype line;
};

TEST_F(EditSurfaceTest, LinesAreOfTheSourceAndCountFromZero)
{
    surface.setText(threeLines);
    const LineRow rows[] = {{-3, 0}, {0, 0}, {2, 0}, {3, 0}, {4, 1}, {5, 1}, {6, 2}, {9, 2}, {10, 2}, {1000, 2}};
    for (const bool wrap : {false, true}) {
        surface.setWrapToWindow(wrap);
        EXPECT_EQ(surface.lineCount(), 3);
        for (const LineRow &row : rows)
            EXPECT_EQ(surface.lineFromCharacter(row.position), row.line) << row.position;
        EXPECT_EQ(surface.characterFromLine(0), 0);
        EXPECT_EQ(surface.characterFromLine(1), 4);
        EXPECT_EQ(surface.characterFromLine(2), 6);
        EXPECT_EQ(surface.characterFromLine(3), std::nullopt);
        EXPECT_EQ(surface.characterFromLine(-1), std::nullopt);
    }
}

TEST_F(EditSurfaceTest, ChangeTellsOfTextAndNeverOfFormats)
{
    QSignalSpy changes(&surface, &EditSurface::Change);
    const auto countOf = [&](const std::function<void()> &act) {
        changes.clear();
        act();
        return changes.count();
    };
    EXPECT_EQ(countOf([&] { surface.setText(threeLines); }), 1);
    EXPECT_EQ(countOf([&] { surface.setText(threeLines); }), 1) << "a write of the same text is a change, too";
    EXPECT_EQ(countOf([&] { surface.setText(QStringLiteral("a\u2028b\nc")); }), 1);
    EXPECT_EQ(countOf([&] { surface.setSelText(QStringLiteral("x\ny\u2029z")); }), 1);
    EXPECT_EQ(countOf([&] { surface.setSelText(QString()); }), 1);
    EXPECT_EQ(countOf([&] { select(0, 4); }), 0);
    EXPECT_EQ(countOf([&] { sendCharacter(u'k'); }), 1) << "over a selection";
    EXPECT_EQ(countOf([&] { select(0, 4), sendCharacter(u'\r'); }), 1) << "over a selection";
    EXPECT_EQ(countOf([&] { sendCharacter(u'k'); }), 1);
    EXPECT_EQ(countOf([&] { sendKey(Qt::Key_Backspace, {}, QStringLiteral("\b")); }), 1);
    EXPECT_EQ(countOf([&] { surface.setSelStart(0); }), 0);
    EXPECT_EQ(countOf([&] { sendKey(Qt::Key_Backspace, {}, QStringLiteral("\b")); }), 0) << "nothing to take away";
    EXPECT_EQ(countOf([&] { surface.setFormat(0, 3, {red, true, true}); }), 0);
    EXPECT_EQ(countOf([&] { surface.setFormats({{0, 1, {navy, {}, {}}}, {1, 1, {red, {}, {}}}}); }), 0);
    EXPECT_EQ(countOf([&] { select(0, 2), surface.setSelColor(navy); }), 0);
    EXPECT_EQ(countOf([&] { surface.setSelStart(1), surface.setSelBold(true); }), 0);
    EXPECT_EQ(countOf([&] { surface.setWrapToWindow(true); }), 0);
    EXPECT_EQ(countOf([&] { surface.setFont(QFont(QStringLiteral("DejaVu Sans"), 14)); }), 0);
    EXPECT_EQ(countOf([&] { surface.setLocked(true), surface.setText(QStringLiteral("x")); }), 1);
}

TEST_F(EditSurfaceTest, WhatChangeAndSelChangeShowIsTheNewState)
{
    surface.setText(threeLines);
    QString seen;
    Selection seenSelection;
    QObject::connect(&surface, &EditSurface::Change, &surface, [&] {
        seen = surface.Text();
        seenSelection = selection();
    });
    surface.setSelStart(9);
    surface.setSelText(QStringLiteral("\nf"));
    EXPECT_EQ(seen, QStringLiteral("ab\r\n\r\ncde\r\nf"));
    EXPECT_EQ(seenSelection, Selection(12, 0));
    surface.setText(QStringLiteral("new"));
    EXPECT_EQ(seen, QStringLiteral("new"));
    EXPECT_EQ(seenSelection, Selection(0, 0));
    sendCharacter(u'a');
    EXPECT_EQ(seen, QStringLiteral("anew"));
    EXPECT_EQ(seenSelection, Selection(1, 0));
}

TEST_F(EditSurfaceTest, AHandlerOfChangeMayChangeTheText)
{
    bool first = true;
    QObject::connect(&surface, &EditSurface::Change, &surface, [&] {
        if (std::exchange(first, false))
            surface.setSelText(QStringLiteral("div"));
    });
    sendCharacter(u'<');
    EXPECT_EQ(surface.Text(), QStringLiteral("<div"));
    EXPECT_EQ(selection(), Selection(4, 0));
}

TEST_F(EditSurfaceTest, SelChangeComesOnceForEachOtherSelection)
{
    surface.setText(threeLines);
    QSignalSpy moves(&surface, &EditSurface::SelChange);
    surface.setSelStart(6);
    EXPECT_EQ(moves.count(), 1);
    surface.setSelStart(6);
    EXPECT_EQ(moves.count(), 1);
    surface.setSelLength(2);
    EXPECT_EQ(moves.count(), 2);
    sendKey(Qt::Key_Left, {}, QString());
    EXPECT_EQ(moves.count(), 3);
    surface.setFormat(0, 9, {red, {}, {}});
    EXPECT_EQ(moves.count(), 3);
}

struct FormatRow {
    TextFormat set;
    TextFormat read;
};

TEST_F(EditSurfaceTest, FormatsReadBackAsGiven)
{
    const FormatRow rows[] = {
        {{red, {}, {}}, {red, false, false}},
        {{{}, true, {}}, {WindowTextColour, true, false}},
        {{{}, {}, true}, {WindowTextColour, false, true}},
        {{0U, true, true}, {0U, true, true}}, // black is a colour, and not the theme's
        {{0xFFFFFFU, false, false}, {0xFFFFFFU, false, false}},
        {{WindowTextColour, {}, {}}, {WindowTextColour, false, false}},
        {{HighlightColour, {}, {}}, {HighlightColour, false, false}},
        {{0x010203U, {}, {}}, {0x010203U, false, false}},
        {{}, {WindowTextColour, false, false}},
    };
    for (const FormatRow &row : rows) {
        surface.setText(threeLines);
        select(9, 0);
        EXPECT_TRUE(surface.setFormat(1, 6, row.set));
        EXPECT_EQ(surface.formatOf(1, 6), row.read);
        EXPECT_EQ(surface.formatOf(0, 1), (TextFormat{WindowTextColour, false, false}));
        EXPECT_EQ(surface.formatOf(7, 2), (TextFormat{WindowTextColour, false, false}));
        EXPECT_EQ(selection(), Selection(9, 0)) << "the selection stays";
        surface.setFormat(0, 9, {WindowTextColour, false, false});
        EXPECT_EQ(surface.formatOf(0, 9), (TextFormat{WindowTextColour, false, false}));
    }
}

TEST_F(EditSurfaceTest, AFieldThatDiffersWithinARangeReadsAsNothing)
{
    surface.setText(threeLines);
    surface.setFormat(0, 1, {red, true, {}});
    surface.setFormat(1, 1, {navy, true, {}});
    EXPECT_EQ(surface.formatOf(0, 2), (TextFormat{{}, true, false}));
    EXPECT_EQ(surface.formatOf(0, 9), (TextFormat{{}, {}, false}));
    select(0, 2);
    EXPECT_EQ(surface.selectionFormat(), (TextFormat{{}, true, false}));
}

TEST_F(EditSurfaceTest, AFormatOutsideTheTextIsCutOrRefused)
{
    surface.setText(threeLines);
    const TextFormat plain{WindowTextColour, false, false};
    EXPECT_FALSE(surface.setFormat(-1, 4, {red, {}, {}}));
    EXPECT_FALSE(surface.setFormat(1, -4, {red, {}, {}}));
    EXPECT_EQ(surface.formatOf(0, 9), plain);
    EXPECT_TRUE(surface.setFormat(100, 4, {red, {}, {}}));
    EXPECT_TRUE(surface.setFormat(3, 0, {red, {}, {}}));
    EXPECT_EQ(surface.formatOf(0, 9), plain);
    EXPECT_EQ(surface.formatOf(-1, 2), TextFormat());
    EXPECT_EQ(surface.formatOf(1, -2), TextFormat());
    EXPECT_TRUE(surface.setFormat(8, 100, {red, {}, {}}));
    EXPECT_EQ(surface.formatOf(8, 1), (TextFormat{red, false, false}));
    EXPECT_EQ(surface.formatOf(8, 100), (TextFormat{red, false, false}));
    EXPECT_EQ(surface.formatOf(7, 1), plain);
}

TEST_F(EditSurfaceTest, ManyFormatsAreLaidOneOverAnother)
{
    surface.setText(QStringLiteral("0123456789"));
    surface.setFormat(0, 2, {navy, {}, true});
    surface.setFormats({{0, 10, {red, true, {}}},
                        {-1, 5, {0x123456U, {}, {}}}, // left out, as setFormat would refuse it
                        {2, 5, {{}, false, {}}},
                        {5, 3, {navy, {}, true}},
                        {5, 0, {0x123456U, {}, {}}},
                        {9, 50, {WindowTextColour, {}, {}}}});
    const TextFormat expected[] = {{red, true, true},   {red, true, true},
                                   {red, false, false}, {red, false, false},
                                   {red, false, false}, {navy, false, true},
                                   {navy, false, true}, {navy, true, true},
                                   {red, true, false},  {WindowTextColour, true, false}};
    for (qsizetype i = 0; i < 10; ++i)
        EXPECT_EQ(surface.formatOf(i, 1), expected[i]) << i;
}

TEST_F(EditSurfaceTest, ManyFormatsComeToTheSameAsOneAfterAnother)
{
    const QString text = QStringLiteral("<p>one</p>\r\n\r\n<b>two\u2028</b>\r\n").repeated(20);
    QList<FormatRange> ranges;
    for (int i = 0; i < 300; ++i) {
        const TextFormat format{i % 3 ? std::optional<ColourValue>(static_cast<ColourValue>(i % 7)) : std::nullopt,
                                i % 2 ? std::optional<bool>(i % 4 == 1) : std::nullopt,
                                i % 5 ? std::nullopt : std::optional<bool>(i % 10 == 0)};
        ranges.append({(i * 7919) % text.size(), (i * 31) % 50, format});
    }
    surface.setText(text);
    for (const FormatRange &range : ranges)
        surface.setFormat(range.start, range.length, range.format);
    QList<TextFormat> single;
    for (qsizetype i = 0; i < text.size(); ++i)
        single.append(surface.formatOf(i, 1));
    surface.setText(text);
    surface.setFormats(ranges);
    for (qsizetype i = 0; i < text.size(); ++i)
        ASSERT_EQ(surface.formatOf(i, 1), single[i]) << i;
    EXPECT_EQ(surface.Text(), text);
}

TEST_F(EditSurfaceTest, FormatsStayWithTheirTextThroughEdits)
{
    surface.setText(QStringLiteral("ab cd ef"));
    surface.setFormat(3, 2, {red, true, {}});
    surface.setSelStart(0);
    surface.setSelText(QStringLiteral("x\n"));
    EXPECT_EQ(surface.formatOf(6, 2), (TextFormat{red, true, false}));
    EXPECT_EQ(surface.formatOf(0, 6), (TextFormat{WindowTextColour, false, false}));
    select(0, 3);
    surface.setSelText(QString());
    EXPECT_EQ(surface.formatOf(3, 2), (TextFormat{red, true, false}));
    surface.setText(QStringLiteral("ab cd ef"));
    EXPECT_EQ(surface.formatOf(0, 8), (TextFormat{WindowTextColour, false, false})) << "new text is neutral";
}

TEST_F(EditSurfaceTest, TheNextCharacterTakesTheFormatThatWasSetForIt)
{
    surface.setText(QStringLiteral("ab"));
    surface.setSelStart(1);
    surface.setSelColor(red);
    surface.setSelBold(true);
    EXPECT_EQ(surface.selectionFormat(), (TextFormat{red, true, false}));
    surface.setFormat(0, 2, {{}, {}, true}); // formats elsewhere do not take it away
    surface.setSelStart(1);                  // nor does a caret that stays where it is
    sendCharacter(u'x');
    sendCharacter(u'y');
    EXPECT_EQ(surface.Text(), QStringLiteral("axyb"));
    EXPECT_EQ(surface.formatOf(1, 2), (TextFormat{red, true, false}));
    EXPECT_EQ(surface.formatOf(0, 1), (TextFormat{WindowTextColour, false, true}));
    EXPECT_EQ(surface.formatOf(3, 1), (TextFormat{WindowTextColour, false, true}));
    surface.setSelColor(navy);
    surface.setSelStart(0); // the caret moves, and the format is forgotten
    surface.setSelStart(3);
    sendCharacter(u'z');
    EXPECT_EQ(surface.formatOf(3, 1), (TextFormat{red, true, false}));
}

TEST_F(EditSurfaceTest, SelTextTakesTheFormatOfTypedText)
{
    surface.setText(QStringLiteral("ab"));
    surface.setSelStart(1);
    surface.setSelColor(red);
    surface.setSelText(QStringLiteral(">\nx"));
    surface.setSelColor(WindowTextColour);
    sendCharacter(u'y');
    EXPECT_EQ(surface.Text(), QStringLiteral("a>\r\nxyb"));
    EXPECT_EQ(surface.formatOf(1, 4), (TextFormat{red, false, false}));
    EXPECT_EQ(surface.formatOf(5, 1), (TextFormat{WindowTextColour, false, false}));
}

TEST_F(EditSurfaceTest, SelTextOverASelectionTakesTheFormatOfItsFirstCharacter)
{
    surface.setText(QStringLiteral("abcd"));
    surface.setFormat(1, 1, {red, {}, {}});
    surface.setFormat(2, 1, {navy, {}, {}});
    select(1, 2);
    surface.setSelText(QStringLiteral("x"));
    EXPECT_EQ(surface.formatOf(1, 1), (TextFormat{red, false, false}));
}

TEST_F(EditSurfaceTest, TheThemesTextColourFollowsThePalette)
{
    surface.setText(QStringLiteral("\u2588"));
    surface.setFormat(0, 1, {red, {}, {}});
    EXPECT_EQ(drawnColour(0), QColor(255, 0, 0));
    surface.setFormat(0, 1, {navy, {}, {}});
    EXPECT_EQ(drawnColour(0), QColor(0, 0, 128));
    surface.setFormat(0, 1, {WindowTextColour, {}, {}});
    QPalette green = surface.palette();
    green.setColor(QPalette::Text, Qt::green);
    surface.setPalette(green);
    EXPECT_EQ(drawnColour(0), QColor(Qt::green));
}

TEST_F(EditSurfaceTest, NothingIsUndoneByTheWidgetItself)
{
    surface.setText(QStringLiteral("a"));
    sendCharacter(u'b');
    sendKey(Qt::Key_Z, Qt::ControlModifier, QStringLiteral("\x1a"));
    EXPECT_EQ(surface.Text(), QStringLiteral("ba"));
}
} // namespace
