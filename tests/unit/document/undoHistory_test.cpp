#include "document/undoHistory.h"

#include <gtest/gtest.h>
#include <malloc.h>

namespace
{
UndoSnapshot snapshot(int number)
{
    return {QStringLiteral("text %1").arg(number), {number, number + 1}};
}

/// A history with the snapshots 1 to `count`, the last being the newest.
UndoHistory historyOf(int count)
{
    UndoHistory history;
    for (int i = 1; i <= count; ++i)
        history.UndoRedoChange(snapshot(i));
    return history;
}

int numberOf(const std::optional<UndoSnapshot> &entry)
{
    return entry ? static_cast<int>(entry->selection.start) : 0;
}

TEST(UndoHistory, StartsAtEntryOneWithNothingToDo)
{
    UndoHistory history;
    EXPECT_EQ(history.UndoPosition(), 1);
    EXPECT_FALSE(history.Undo());
    EXPECT_FALSE(history.Redo());
    EXPECT_EQ(history.UndoPosition(), 1);
    EXPECT_EQ(history.IsUndoRedoPossible(), (UndoHistory::Possible{false, false}));
}

TEST(UndoHistory, StepsBackAndForth)
{
    UndoHistory history = historyOf(3);
    const std::optional<UndoSnapshot> undone = history.Undo();
    ASSERT_TRUE(undone);
    EXPECT_EQ(undone->text, QStringLiteral("text 2"));
    EXPECT_EQ(undone->selection, (TextSelection{2, 3}));
    EXPECT_EQ(history.UndoPosition(), 2);
    EXPECT_EQ(numberOf(history.Undo()), 1);
    EXPECT_EQ(numberOf(history.Undo()), 0);
    EXPECT_EQ(history.UndoPosition(), 3);
    EXPECT_EQ(numberOf(history.Redo()), 2);
    EXPECT_EQ(numberOf(history.Redo()), 3);
    EXPECT_EQ(numberOf(history.Redo()), 0);
    EXPECT_EQ(history.UndoPosition(), 1);
}

TEST(UndoHistory, TakesAStepWhereItStands)
{
    UndoHistory history = historyOf(5);
    for (int i = 0; i < 3; ++i)
        history.Undo();
    history.insertHere({snapshot(2).text, {2, 0}}); // stands there already
    history.insertHere(snapshot(6));
    EXPECT_EQ(history.UndoPosition(), 4);
    EXPECT_EQ(numberOf(history.Undo()), 2);
    EXPECT_EQ(numberOf(history.Undo()), 1);
    EXPECT_EQ(numberOf(history.Redo()), 2);
    EXPECT_EQ(numberOf(history.Redo()), 6);
    EXPECT_EQ(numberOf(history.Redo()), 3); // what could be redone before
}

TEST(UndoHistory, KeepsWhatAStepBeganWithWhenItIsFull)
{
    UndoHistory history = historyOf(30);
    for (int i = 0; i < 29; ++i)
        history.Undo();
    EXPECT_EQ(history.UndoPosition(), 30);
    history.insertHere(snapshot(31));
    EXPECT_EQ(history.UndoPosition(), 29);
    EXPECT_EQ(numberOf(history.Undo()), 1);
    EXPECT_EQ(numberOf(history.Redo()), 31);
    EXPECT_EQ(numberOf(history.Redo()), 2);
}

TEST(UndoHistory, CountsAnEmptyTextAsNoSnapshot)
{
    UndoHistory history;
    history.UndoRedoChange({QString(), {0, 0}}); // taken when the window was made
    history.UndoRedoChange(snapshot(1));
    EXPECT_EQ(history.UndoPosition(), 1);
    EXPECT_FALSE(history.Undo());
    EXPECT_EQ(history.UndoPosition(), 1);
}

TEST(UndoHistory, StopsAtAnEmptySnapshotOnTheWay)
{
    UndoHistory history = historyOf(1);
    history.UndoRedoChange({QString(), {0, 0}});
    history.UndoRedoChange(snapshot(2));
    EXPECT_FALSE(history.Undo());
    EXPECT_EQ(history.UndoPosition(), 1);
}

TEST(UndoHistory, HoldsThirtySnapshots)
{
    UndoHistory history = historyOf(31); // the first has fallen off
    int steps = 0;
    int last = 0;
    while (const auto entry = history.Undo()) {
        ++steps;
        last = numberOf(entry);
    }
    EXPECT_EQ(steps, 29);
    EXPECT_EQ(last, 2);
    EXPECT_EQ(history.UndoPosition(), 30);
    EXPECT_FALSE(history.Undo());
    EXPECT_EQ(history.UndoPosition(), 30);
    EXPECT_EQ(numberOf(history.Redo()), 3);
}

TEST(UndoHistory, IsMeantToMoveTowardsTheNewestWithASnapshotAfterAnUndo)
{
    UndoHistory history = historyOf(4); // 4 3 2 1
    history.Undo();
    EXPECT_EQ(numberOf(history.Undo()), 2);
    EXPECT_EQ(history.UndoPosition(), 3);
    history.UndoRedoChange(snapshot(5)); // 5 4 3 2 1
    EXPECT_EQ(history.UndoPosition(), 2);
    EXPECT_EQ(numberOf(history.Undo()), 3);
    EXPECT_EQ(history.UndoPosition(), 3);
    EXPECT_EQ(numberOf(history.Redo()), 4);
    EXPECT_EQ(numberOf(history.Redo()), 5);
    EXPECT_EQ(numberOf(history.Redo()), 0);
    EXPECT_EQ(history.UndoPosition(), 1);
}

TEST(UndoHistory, StaysAtEntryOneWhenASnapshotIsTakenThere)
{
    UndoHistory history = historyOf(2);
    history.UndoRedoChange(snapshot(3));
    EXPECT_EQ(history.UndoPosition(), 1);
    history.Undo(); // 2
    history.UndoRedoChange(snapshot(4));
    EXPECT_EQ(history.UndoPosition(), 1);
    history.UndoRedoChange(snapshot(5));
    EXPECT_EQ(history.UndoPosition(), 1);
}

TEST(UndoHistory, OffersUndoByTheEntryItStandsAt)
{
    UndoHistory history = historyOf(1);
    // Meant so: there is a snapshot at entry 1, but none behind it that could be written back.
    EXPECT_EQ(history.IsUndoRedoPossible(), (UndoHistory::Possible{true, false}));
    EXPECT_FALSE(history.Undo());

    history.UndoRedoChange(snapshot(2));
    history.Undo();
    EXPECT_EQ(history.IsUndoRedoPossible(), (UndoHistory::Possible{true, true}));
}

TEST(UndoHistory, SharesTheTextsThatDoNotDiffer)
{
    UndoHistory history;
    const QString text(1000, u'x');
    for (int i = 0; i < 30; ++i)
        history.UndoRedoChange({QString(text.constData(), text.size()), {0, 0}}); // an equal text, but another string
    const auto second = history.Undo();
    const auto third = history.Undo();
    ASSERT_TRUE(second && third);
    EXPECT_EQ(static_cast<const void *>(second->text.constData()), static_cast<const void *>(third->text.constData()));

    history.UndoRedoChange({text, {0, 0}});
    EXPECT_EQ(static_cast<const void *>(history.Redo()->text.constData()),
              static_cast<const void *>(second->text.constData()));
}

TEST(UndoHistory, KeepsASnapshotApartFromTheTextThatGoesOnChanging)
{
    UndoHistory history;
    QString text = QStringLiteral("abc");
    history.UndoRedoChange({text, {0, 0}});
    text += u'd';
    history.UndoRedoChange({text, {4, 0}});
    EXPECT_EQ(history.Undo()->text, QStringLiteral("abc"));
}

/// A page of ten million characters, no two lines of which are alike.
QString largePage()
{
    QString page;
    for (int line = 0; page.size() < 10'000'000; ++line)
        page += QStringLiteral("<p class=\"line%1\">And so it goes on for %2 lines.</p>\r\n").arg(line).arg(line * 7);
    return page;
}

std::size_t heapInUse()
{
    return mallinfo2().uordblks + mallinfo2().hblkhd;
}

// Whole texts would take 600 MB.
TEST(UndoHistory, CostsTheDifferenceOfItsSnapshots)
{
    const QString page = largePage();
    const auto changed = [&](int step) {
        QString text = page;
        text.insert(page.size() / 31 * step, QStringLiteral("new"));
        text.squeeze();
        return text;
    };
    UndoHistory history;
    const std::size_t before = heapInUse();
    for (int step = 0; step < 30; ++step)
        history.UndoRedoChange({changed(step), {step, 0}});
    // The newest text, which a document would share, and once what all have in common.
    EXPECT_LT(heapInUse() - before, 2 * sizeof(QChar) * 10'000'000 + 8'000'000);

    for (int step = 28; step >= 0; --step) {
        const auto entry = history.Undo();
        ASSERT_TRUE(entry);
        ASSERT_TRUE(entry->text == changed(step)) << step;
    }
    EXPECT_LT(heapInUse() - before, 2 * sizeof(QChar) * 10'000'000 + 8'000'000);
}
} // namespace
