#include "insertion/dateWords.h"

#include <gtest/gtest.h>

namespace
{
const QLocale English(QLocale::English, QLocale::UnitedStates);

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

QDateTime moment(const char *text)
{
    return QDateTime::fromString(str(text), Qt::ISODate);
}
} // namespace

TEST(DateWords, eachFormatOfTheListInTheAfternoon)
{
    const char *expected[] = {"05/04/2026",
                              "5/4/26",
                              "Sunday, 05 April, 2026",
                              "05 April, 2026",
                              "04/05/2026",
                              "4/5/26",
                              "Sunday, April 05, 2026",
                              "April 05, 2026",
                              "Sunday",
                              "Sunday, April 2026",
                              "April, 2026",
                              "5-Apr",
                              "5-April-26",
                              "5 April",
                              "April 2026",
                              "05/04/2026 02:05:09 PM",
                              "04/05/2026 02:05:09 PM",
                              "Sunday, 05 April, 2026 02:05:09, PM",
                              "Sunday, April 05, 2026 02:05:09, PM",
                              "02:05:09 PM",
                              "02:05 PM",
                              "14:05:09",
                              "14:05"};
    const QStringList formats = dateFormats();
    ASSERT_EQ(formats.size(), std::size(expected));
    for (int i = 0; i < formats.size(); ++i)
        EXPECT_EQ(formattedDate(formats[i], moment("2026-04-05T14:05:09"), English), str(expected[i]))
            << formats[i].toStdString();
}

TEST(DateWords, hoursCountToTwelveOnlyBesideTheHalfOfTheDay)
{
    const struct {
        const char *moment;
        const char *twelve;
        const char *twentyFour;
    } rows[] = {
        {"2026-01-01T00:07:08", "12:07:08 AM", "0:07:08"},  {"2026-01-01T01:00:00", "01:00:00 AM", "1:00:00"},
        {"2026-01-01T11:59:59", "11:59:59 AM", "11:59:59"}, {"2026-01-01T12:00:00", "12:00:00 PM", "12:00:00"},
        {"2026-01-01T13:30:05", "01:30:05 PM", "13:30:05"}, {"2026-01-01T23:59:00", "11:59:00 PM", "23:59:00"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(formattedDate(str("hh:mm:ss AM/PM"), moment(row.moment), English), str(row.twelve));
        EXPECT_EQ(formattedDate(str("h:mm:ss"), moment(row.moment), English), str(row.twentyFour));
    }
}

TEST(DateWords, anMIsAMinuteOnlyBehindTheHour)
{
    const QDateTime when = moment("2026-11-03T09:42:00");
    EXPECT_EQ(formattedDate(str("m h:m m"), when, English), str("11 9:42 11"));
    EXPECT_EQ(formattedDate(str("mm hh, mm"), when, English), str("11 09, 42"));
    EXPECT_EQ(formattedDate(str("hh dd mm"), when, English), str("09 03 11"));
}

TEST(DateWords, namesComeInTheLanguageOfTheLocale)
{
    const QLocale german(QLocale::German, QLocale::Germany);
    const QLocale french(QLocale::French, QLocale::France);
    const QDateTime when = moment("2026-03-03T00:00:00");
    EXPECT_EQ(formattedDate(str("dddd, dd mmmm, yyyy"), when, german), str("Dienstag, 03 M\u00E4rz, 2026"));
    EXPECT_EQ(formattedDate(str("dddd, mmmm yyyy"), when, french), str("mardi, mars 2026"));
}

TEST(DateWords, whatIsNoWordStandsAsItIs)
{
    const QDateTime when = moment("2001-12-31T06:00:00");
    EXPECT_EQ(formattedDate(str("[yy] q/Q -- d."), when, English), str("[01] q/Q -- 31."));
    EXPECT_EQ(formattedDate({}, when, English), QString());
}
