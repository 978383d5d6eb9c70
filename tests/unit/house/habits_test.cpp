#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace
{
/// The list of what is kept is worth something only as long as it leads somewhere.
TEST(KeptQuirks, AreDecidedAndPinnedInFilesThatAreThere)
{
    QFile list(QStringLiteral(TEST_SOURCE_DIR "/docs/habits.md"));
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(list.readAll());
    static const QRegularExpression row(
        QStringLiteral("^\\| [^|]+ \\| [^|]+ \\| `(src/[^`]+)` \\| `(tests/[^`]+)` \\|"),
        QRegularExpression::MultilineOption);
    int rows = 0;
    for (auto match = row.globalMatch(text); match.hasNext(); ++rows) {
        const QRegularExpressionMatch each = match.next();
        for (const QString &path : {each.captured(1), each.captured(2)})
            EXPECT_TRUE(QFile::exists(QStringLiteral(TEST_SOURCE_DIR "/") + path)) << qPrintable(path);
    }
    EXPECT_GE(rows, 40);
}
} // namespace
