#include "insertion/tableMarkup.h"

#include "insertion/frmSelInsertTable.h"
#include "markupReader.h"

#include <QRandomGenerator>
#include <functional>
#include <gtest/gtest.h>

namespace
{
const QString OneCell = QStringLiteral("\r\n<tr>\r\n    <td></td>\r\n</tr>\r\n</table>");

/// One field changed from the design, and the opening tag that it gives.
struct Row {
    const char *what;
    std::function<void(TableFields &)> change;
    const char *tag;
};

QString str(const char *text)
{
    return QString::fromUtf8(text);
}
} // namespace

TEST(TableMarkup, eachFieldGivesItsAttribute)
{
    const Row rows[] = {
        {"the design", [](TableFields &) {}, "<table>"},
        {"summary", [](TableFields &f) { f.summary = str("prices"); }, "<table summary=\"prices\">"},
        {"a quote in the summary breaks it, by intent", [](TableFields &f) { f.summary = str("a \"b\" <c> & d"); },
         "<table summary=\"a \"b\" <c> & d\">"},
        {"left is the default", [](TableFields &f) { f.align = str("left"); }, "<table>"},
        {"centre", [](TableFields &f) { f.align = str("center"); }, "<table align=\"center\">"},
        {"a typed alignment in lower case", [](TableFields &f) { f.align = str("RIGHT"); }, "<table align=\"right\">"},
        {"Left is not left", [](TableFields &f) { f.align = str("Left"); }, "<table align=\"left\">"},
        {"an emptied alignment", [](TableFields &f) { f.align.clear(); }, "<table>"},
        {"width in percent", [](TableFields &f) { f.specifyWidth = true; }, "<table width=\"100%\">"},
        {"width in pixels",
         [](TableFields &f) {
             f.specifyWidth = true;
             f.width = str("300");
             f.widthInPercent = false;
         },
         "<table width=\"300\">"},
        {"an emptied width",
         [](TableFields &f) {
             f.specifyWidth = true;
             f.width.clear();
         },
         "<table width=\"%\">"},
        {"a width that is not switched on", [](TableFields &f) { f.width = str("5"); }, "<table>"},
        {"frame top", [](TableFields &f) { f.frame = str("top"); }, "<table frame=\"above\">"},
        {"frame bottom", [](TableFields &f) { f.frame = str("bottom"); }, "<table frame=\"below\">"},
        {"frame top and bottom", [](TableFields &f) { f.frame = str("top and bottom"); }, "<table frame=\"hsides\">"},
        {"frame right and left", [](TableFields &f) { f.frame = str("right and left"); }, "<table frame=\"vsides\">"},
        {"frame left", [](TableFields &f) { f.frame = str("left"); }, "<table frame=\"lhs\">"},
        {"frame right", [](TableFields &f) { f.frame = str("right"); }, "<table frame=\"rhs\">"},
        {"frame all (box)", [](TableFields &f) { f.frame = str("all (box)"); }, "<table frame=\"box\">"},
        {"frame all (border)", [](TableFields &f) { f.frame = str("all (border)"); }, "<table frame=\"border\">"},
        {"any other frame", [](TableFields &f) { f.frame = str("Top"); }, "<table frame=\"void\">"},
        {"an emptied frame", [](TableFields &f) { f.frame.clear(); }, "<table frame=\"void\">"},
        {"rules groups", [](TableFields &f) { f.rules = str("groups"); }, "<table rules=\"groups\">"},
        {"rules all", [](TableFields &f) { f.rules = str("all"); }, "<table rules=\"all\">"},
        {"typed rules in lower case", [](TableFields &f) { f.rules = str("Rows"); }, "<table rules=\"rows\">"},
        {"border", [](TableFields &f) { f.border = str("1"); }, "<table border=\"1\">"},
        {"an emptied border is written", [](TableFields &f) { f.border.clear(); }, "<table border=\"\">"},
        {"another nought is written", [](TableFields &f) { f.border = str("00"); }, "<table border=\"00\">"},
        {"spacing", [](TableFields &f) { f.cellSpacing = str("12"); }, "<table cellspacing=\"12\">"},
        {"an emptied spacing", [](TableFields &f) { f.cellSpacing.clear(); }, "<table cellspacing=\"\">"},
        {"padding", [](TableFields &f) { f.cellPadding = str("3"); }, "<table cellpadding=\"3\">"},
        {"an emptied padding", [](TableFields &f) { f.cellPadding.clear(); }, "<table cellpadding=\"\">"},
        {"all in their order",
         [](TableFields &f) {
             f = {.specifyWidth = true,
                  .width = str("50"),
                  .align = str("center"),
                  .border = str("1"),
                  .cellPadding = str("2"),
                  .cellSpacing = str("3"),
                  .frame = str("left"),
                  .rules = str("cols"),
                  .summary = str("s")};
         },
         "<table summary=\"s\" align=\"center\" width=\"50%\" frame=\"lhs\" rules=\"cols\" border=\"1\" "
         "cellspacing=\"3\" cellpadding=\"2\">"},
    };
    for (const Row &row : rows) {
        TableFields fields;
        row.change(fields);
        EXPECT_EQ(tableMarkup(fields), str(row.tag) + OneCell) << row.what;
    }
}

TEST(TableMarkup, rowsAndColumnsThatAreNoNumberCountAsNone)
{
    const struct {
        const char *rows;
        const char *columns;
        const char *text;
    } cases[] = {
        {"2", "2",
         "<table>\r\n<tr>\r\n    <td></td>\r\n    <td></td>\r\n</tr>\r\n<tr>\r\n    <td></td>\r\n    <td></td>\r\n</tr>"
         "\r\n</table>"},
        {"", "3", "<table>\r\n</table>"},
        {"0", "3", "<table>\r\n</table>"},
        {"2", "", "<table>\r\n<tr>\r\n</tr>\r\n<tr>\r\n</tr>\r\n</table>"},
        {"1", "0", "<table>\r\n<tr>\r\n</tr>\r\n</table>"},
        {"ten", "1", "<table>\r\n</table>"},
        {"-1", "-1", "<table>\r\n</table>"},
    };
    for (const auto &row : cases)
        EXPECT_EQ(tableMarkup({.rows = str(row.rows), .columns = str(row.columns)}), str(row.text))
            << row.rows << " by " << row.columns;
}

TEST(TableMarkup, aRandomTableReadsBackAsItsFields)
{
    QRandomGenerator random(64);
    const auto digits = [&random](int most) { return QString::number(random.bounded(most)); };
    for (int i = 0; i < 300; ++i) {
        const TableFields fields{.rows = digits(12),
                                 .columns = digits(12),
                                 .specifyWidth = random.bounded(2) == 1,
                                 .width = digits(1000),
                                 .widthInPercent = random.bounded(2) == 1,
                                 .border = digits(3),
                                 .cellPadding = digits(3),
                                 .cellSpacing = digits(3),
                                 .summary = randomWords(random)};
        const QList<ReadElement> elements = elementsOf(tableMarkup(fields));
        const auto count = [&elements](const char *name) {
            return std::count_if(elements.begin(), elements.end(),
                                 [name](const ReadElement &element) { return element.name == QLatin1String(name); });
        };
        ASSERT_EQ(count("tr"), fields.rows.toInt());
        ASSERT_EQ(count("td"), fields.rows.toInt() * fields.columns.toInt());
        const ReadElement &table = elements.constFirst();
        ASSERT_EQ(table.name, QStringLiteral("table"));
        const auto expected = [](const QString &value, const char *leftOut) {
            return value == QLatin1String(leftOut) ? QString() : value;
        };
        EXPECT_EQ(table.attributes.value(str("summary")), fields.summary);
        EXPECT_EQ(table.attributes.value(str("border")), expected(fields.border, "0"));
        EXPECT_EQ(table.attributes.value(str("cellpadding")), expected(fields.cellPadding, "0"));
        EXPECT_EQ(table.attributes.value(str("cellspacing")), expected(fields.cellSpacing, "0"));
        const QString width = fields.width + (fields.widthInPercent ? str("%") : QString());
        EXPECT_EQ(table.attributes.value(str("width")), fields.specifyWidth ? width : QString());
    }
}

TEST(TableGrid, cellsAreNumberedInSquareShells)
{
    const int numbers[5][5] = {
        {1, 2, 5, 10, 17}, {4, 3, 6, 11, 18}, {9, 8, 7, 12, 19}, {16, 15, 14, 13, 20}, {25, 24, 23, 22, 21}};
    for (int row = 1; row <= 5; ++row)
        for (int column = 1; column <= 5; ++column)
            EXPECT_EQ(tableCellNumber(row, column), numbers[row - 1][column - 1]) << row << ", " << column;
}

TEST(TableGrid, makesATableWithoutAttributes)
{
    EXPECT_EQ(plainTableMarkup(1, 2), str("<table>\r\n<tr>\r\n    <td></td>\r\n    <td></td>\r\n</tr>\r\n</table>"));
    EXPECT_EQ(plainTableMarkup(2, 1),
              str("<table>\r\n<tr>\r\n    <td></td>\r\n</tr>\r\n<tr>\r\n    <td></td>\r\n</tr>\r\n</table>"));
}
