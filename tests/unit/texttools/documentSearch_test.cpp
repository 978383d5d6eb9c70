#include "texttools/documentSearch.h"

#include "unit/support/fakes.h"

#include <QTimer>

namespace
{
/// Large enough for several matches to be replaced at once.
class DocumentSearchTest : public FilesTest
{
protected:
    static constexpr int Matches = 4000;

    static SearchOrder order(const QString &find)
    {
        SearchOrder result;
        result.options.find = find;
        result.options.wholeWords = true;
        result.options.matchCase = true;
        return result;
    }
    static QString replaced()
    {
        // Only the last one of a line is a whole word.
        return QStringLiteral("<p class=\"thing\">thing and matter\r\n").repeated(Matches);
    }
    static QString unreplaced() { return QStringLiteral("<p class=\"thing\">thing and thing\r\n").repeated(Matches); }

    int asked = 0;
    QString found;
    DocumentSearch search{
        context, {.becomeEntire = [this] { ++asked; }, .showFound = [this](const QString &text) { found = text; }}};
};

TEST_F(DocumentSearchTest, ReplacesAllOfALargeDocument)
{
    FakeDocument &document = newDocument();
    document.surface.setText(unreplaced());
    int changes = 0;
    QObject::connect(&document.surface, &EditSurface::Change, &document.surface, [&] { ++changes; });
    SearchOrder all = order(QStringLiteral("thing"));
    search.ReplaceAll(all, QStringLiteral("matter"));
    EXPECT_TRUE(document.surface.Text() == replaced());
    EXPECT_LT(changes, Matches / 10); // several at once
    EXPECT_FALSE(document.surface.Locked());
    EXPECT_EQ(document.surface.SelStart(), replaced().size() - 8);
    EXPECT_EQ(document.surface.SelLength(), 0);
    ASSERT_EQ(boxes.shown.size(), 2);
    EXPECT_EQ(boxes.shown[1].text,
              QStringLiteral("The specified region has been searched. %1 replacements were made.").arg(Matches));
}

TEST_F(DocumentSearchTest, ReplacesUpwardsWhatItReplacesDownwards)
{
    FakeDocument &document = newDocument();
    document.surface.setText(unreplaced());
    document.surface.setSelStart(document.surface.textLength());
    SearchOrder all = order(QStringLiteral("thing"));
    all.options.direction = SearchDirection::Up;
    search.ReplaceAll(all, QStringLiteral("matter"));
    EXPECT_TRUE(document.surface.Text() == replaced());
    EXPECT_EQ(document.surface.SelStart(), 27);
}

/// What was replaced by then stays.
TEST_F(DocumentSearchTest, StopsWhereItIsCancelled)
{
    FakeDocument &document = newDocument();
    document.surface.setText(unreplaced().repeated(4));
    QTimer::singleShot(0, &document.surface, [this] { search.cancelReplacing(); });
    SearchOrder all = order(QStringLiteral("thing"));
    search.ReplaceAll(all, QStringLiteral("matter"));
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_FALSE(document.surface.Locked());
    EXPECT_FALSE(search.isReplacing());
    const QString text = document.surface.Text();
    EXPECT_TRUE(text.endsWith(QStringLiteral("thing and thing\r\n")));
    EXPECT_EQ(mainWindow.status, QStringLiteral("Stopped. Replaced: %L1").arg(text.count(QStringLiteral("matter"))));
}

TEST_F(DocumentSearchTest, LetsADocumentGoThatIsClosedMeanwhile)
{
    FakeDocument &document = newDocument();
    document.surface.setText(unreplaced().repeated(4));
    QTimer::singleShot(0, &document.surface, [this] {
        mainWindow.documents.clear();
        mainWindow.active = nullptr;
    });
    SearchOrder all = order(QStringLiteral("thing"));
    search.ReplaceAll(all, QStringLiteral("matter"));
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_FALSE(search.isReplacing());
}

TEST_F(DocumentSearchTest, AsksBeforeASingleCharacterUpwardsInTags)
{
    FakeDocument &document = newDocument();
    document.surface.setText(QStringLiteral("<a>a"));
    document.surface.setSelStart(4);
    SearchOrder single = order(QStringLiteral("a"));
    single.options.wholeWords = false;
    single.options.direction = SearchDirection::Up;
    single.options.type = SearchType::TagsOnly;
    boxes.answers = {MessageAnswer::No, MessageAnswer::Yes};
    search.FindNext(single);
    EXPECT_EQ(document.surface.SelLength(), 0);
    EXPECT_EQ(single.options.type, SearchType::TagsOnly);
    EXPECT_EQ(asked, 0);
    search.FindNext(single);
    EXPECT_EQ(document.surface.SelStart(), 3);
    EXPECT_EQ(single.options.type, SearchType::EntireDocument);
    EXPECT_EQ(asked, 1);
}
} // namespace
