#include "files/fileDialogRows.h"

#include "common/dialogFilter.h"

#include <gtest/gtest.h>

namespace
{
TEST(OpenFilter, HasItsElevenRows)
{
    EXPECT_EQ(openFilter(), QStringLiteral("All Files (*.*)|*.*"
                                           "|All Webpages (*.html; *.htm; *.asp; *.shtml)|*.html;*.htm;*.asp;*.shtml"
                                           "|HTML Files (*.html; *.htm)|*.html;*.htm"
                                           "|Unicode HTML Files (*.html; *.htm)|*.html;*.htm"
                                           "|Tagwrighter Template (*.tpl)|*.tpl"
                                           "|Tagwrighter Combined Template (*.ctp)|*.ctp"
                                           "|Cascading Style Sheets (*.css)|*.css"
                                           "|Text Files (*.txt)|*.txt"
                                           "|Unicode Text Files (*.txt)|*.txt"
                                           "|JavaScript Files (*.js)|*.js"
                                           "|Tagwrighter Site Project (*.tsp)|*.tsp"));
    EXPECT_EQ(parseDialogFilter(openFilter()).size(), 11);
}

TEST(SaveFilter, HasItsElevenRows)
{
    EXPECT_EQ(saveFilter(), QStringLiteral("All Files (*.*)|*.*"
                                           "|HTML Files (*.html; *.htm)|*.html;*.htm"
                                           "|Unicode HTML Files (*.html; *.htm)|*.html;*.htm"
                                           "|Tagwrighter Template (*.tpl)|*.tpl"
                                           "|Tagwrighter Combined Template (*.ctp)|*.ctp"
                                           "|Cascading Style Sheets (*.css)|*.css"
                                           "|Text Files (*.txt)|*.txt"
                                           "|Unicode Text Files (*.txt)|*.txt"
                                           "|Text Files - No Tags (*.txt)|*.txt"
                                           "|Active Server Pages (*.asp)|*.asp"
                                           "|JavaScript Files (*.js)|*.js"));
    EXPECT_EQ(parseDialogFilter(saveFilter()).size(), 11);
}

TEST(DialogRows, DecideWhatAFileIsOpenedAs)
{
    const OpenAs expected[] = {OpenAs::Text,        OpenAs::Text,       OpenAs::Text,
                               OpenAs::UnicodeText, OpenAs::Template,   OpenAs::CombinedTemplate,
                               OpenAs::Text,        OpenAs::Text,       OpenAs::UnicodeText,
                               OpenAs::Text,        OpenAs::SiteProject};
    for (int row = 1; row <= 11; ++row)
        EXPECT_EQ(openAs(row), expected[row - 1]) << row;
}

TEST(DialogRows, DecideWhatADocumentIsSavedAs)
{
    const SaveAs expected[] = {SaveAs::Text,
                               SaveAs::Text,
                               SaveAs::UnicodeText,
                               SaveAs::Text,
                               SaveAs::CombinedTemplate,
                               SaveAs::Text,
                               SaveAs::Text,
                               SaveAs::UnicodeText,
                               SaveAs::TextWithoutTags,
                               SaveAs::Text,
                               SaveAs::Text};
    for (int row = 1; row <= 11; ++row)
        EXPECT_EQ(saveAs(row), expected[row - 1]) << row;
}

TEST(DialogRows, TakeARowThatIsNotThereForText)
{
    for (const int row : {-1, 0, 12}) {
        EXPECT_EQ(openAs(row), OpenAs::Text);
        EXPECT_EQ(saveAs(row), SaveAs::Text);
    }
}
} // namespace
