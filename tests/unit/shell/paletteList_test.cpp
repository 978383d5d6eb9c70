#include "shell/paletteList.h"

#include <gtest/gtest.h>

namespace
{
QStringList found(const char *letters, const QStringList &texts)
{
    QList<PaletteEntry> entries;
    for (const QString &text : texts)
        entries.append({text, {}, {}});
    QStringList result;
    for (const qsizetype index : paletteMatches(QString::fromUtf8(letters), entries))
        result.append(texts[index]);
    return result;
}

TEST(PaletteMatches, PutsWhatFitsBestOnTop)
{
    const QStringList texts{QStringLiteral("sap.css"),    QStringLiteral("Landscape.png"),
                            QStringLiteral("my cap.htm"), QStringLiteral("Capital.htm"),
                            QStringLiteral("c.a.p.txt"),  QStringLiteral("cap.htm")};
    // Starts, the shorter one first; the start of a word; a part; letters with others between.
    EXPECT_EQ(found("cap", texts),
              (QStringList{QStringLiteral("cap.htm"), QStringLiteral("Capital.htm"), QStringLiteral("my cap.htm"),
                           QStringLiteral("Landscape.png"), QStringLiteral("c.a.p.txt")}));
    EXPECT_EQ(found("xyz", texts), QStringList());
    EXPECT_EQ(found("", texts), texts);
    EXPECT_EQ(found("  ", texts), texts);
}

TEST(PaletteMatches, LooksForEachWordByItself)
{
    const QStringList texts{QStringLiteral("Select All"), QStringLiteral("Print All"), QStringLiteral("Find Next")};
    EXPECT_EQ(found("all sel", texts), QStringList{QStringLiteral("Select All")});
    EXPECT_EQ(found("ALL", texts), (QStringList{QStringLiteral("Print All"), QStringLiteral("Select All")}));
}
} // namespace
