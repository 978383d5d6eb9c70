#include "houseFiles.h"

#include <QRegularExpression>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

/// Where a text matches a pattern, each place as "line: match".
QStringList placesOf(const char *pattern, const QString &text)
{
    const QRegularExpression expression(QLatin1String{pattern});
    QStringList result;
    for (auto i = expression.globalMatch(text); i.hasNext();) {
        const QRegularExpressionMatch match = i.next();
        const qsizetype line = text.left(match.capturedStart()).count(u'\n') + 1;
        result << QStringLiteral("%1: %2").arg(line).arg(match.captured());
    }
    return result;
}

/// The same for each file of a folder of the source tree, this one excepted, as "path:line: match".
QStringList placesUnder(const char *folder, const char *pattern)
{
    const QString top = QStringLiteral(TEST_SOURCE_DIR "/") + QLatin1String{folder};
    const QString self = QStringLiteral(__FILE__).section(u'/', -1);
    QStringList result;
    for (const QString &path : filesUnder(top, {QStringLiteral("*")})) {
        if (path.endsWith(self))
            continue;
        for (const QString &place : placesOf(pattern, textOf(top + u'/' + path)))
            result << QStringLiteral("%1/%2:%3").arg(QLatin1String{folder}, path, place);
    }
    return result;
}

// Its reader has the source alone: no numbered parts of another text.
constexpr auto numberedPart = R"(\bParts? [0-9]+\.[0-9]+)";
// The program runs on other machines than the one that it was written on.
constexpr auto machineFolder = R"((?<![\w.%>])/(work|root|tmp)/)";

TEST(Wording, FindsNumberedParts)
{
    EXPECT_THAT(placesOf(numberedPart, QStringLiteral("int a;\n// see P"
                                                      "art 2.1\n// and P"
                                                      "arts 10.3, 4.2")),
                ElementsAre(QStringLiteral("2: P"
                                           "art 2.1"),
                            QStringLiteral("3: P"
                                           "arts 10.3")));
    EXPECT_THAT(placesOf(numberedPart, QStringLiteral("Part of 2.1 KB, part 2, departs 3.4")), IsEmpty());
}

TEST(Wording, FindsFoldersOfAMachine)
{
    EXPECT_THAT(placesOf(machineFolder, QStringLiteral("open(\"/tmp/a.txt\");\n\n// in /w"
                                                       "ork/main, /root/x")),
                ElementsAre(QStringLiteral("1: /tmp/"), QStringLiteral("3: /work/"), QStringLiteral("3: /root/")));
    EXPECT_THAT(placesOf(machineFolder, QStringLiteral("site/w"
                                                       "ork/a.htm, ../root/, %SITE%/tmp/a, /tmpl/")),
                IsEmpty());
}

TEST(Wording, OfEveryFileSpeaksOfNoNumberedPart)
{
    for (const char *folder : {"src", "tests", "bench", "cmake", "docs", "tools"})
        EXPECT_EQ(placesUnder(folder, numberedPart).join(u'\n'), QString());
}

TEST(Wording, OfTheSourcesNamesNoFolderOfAMachine)
{
    EXPECT_EQ(placesUnder("src", machineFolder).join(u'\n'), QString());
}
} // namespace
