#include "insertion/dateWords.h"

#include <algorithm>

namespace
{
const QString HalfDay = QStringLiteral("AM/PM");

/// A number in the plain digits, with a zero in front if the word is doubled.
QString number(int value, qsizetype wordLength)
{
    return QStringLiteral("%1").arg(value, wordLength > 1 ? 2 : 1, 10, QLatin1Char('0'));
}

class Translation
{
public:
    Translation(const QString &format, const QDateTime &moment, const QLocale &locale)
        : m_format(format), m_date(moment.date()), m_time(moment.time()), m_locale(locale)
    {
    }

    QString text()
    {
        QString text;
        for (qsizetype at = 0; at < m_format.size();) {
            const QString word = wordAt(at);
            text += translated(word);
            at += word.size();
        }
        return text;
    }

private:
    /// The word at a place: the mark of the half day, or one character as often as it is repeated.
    QString wordAt(qsizetype at) const
    {
        if (QStringView(m_format).sliced(at).startsWith(HalfDay))
            return HalfDay;
        const QChar *const start = m_format.cbegin() + at;
        const QChar first = *start;
        const QChar *const end = std::find_if(start, m_format.cend(), [first](QChar c) { return c != first; });
        return m_format.mid(at, end - start);
    }

    QString translated(const QString &word)
    {
        if (word == HalfDay)
            return m_time.hour() < 12 ? QStringLiteral("AM") : QStringLiteral("PM");
        const bool behindHour = m_behindHour;
        if (word[0].isLetter())
            m_behindHour = word[0] == u'h';
        switch (word[0].unicode()) {
        case u'd':
            return day(word.size());
        case u'm':
            return behindHour ? number(m_time.minute(), word.size()) : month(word.size());
        case u'y':
            return number(word.size() > 2 ? m_date.year() : m_date.year() % 100, word.size());
        case u'h':
            return number(hour(), word.size());
        case u's':
            return number(m_time.second(), word.size());
        default:
            return word;
        }
    }

    QString day(qsizetype length) const
    {
        return length < 3 ? number(m_date.day(), length) : m_locale.dayName(m_date.dayOfWeek());
    }

    QString month(qsizetype length) const
    {
        if (length < 3)
            return number(m_date.month(), length);
        return m_locale.monthName(m_date.month(), length == 3 ? QLocale::ShortFormat : QLocale::LongFormat);
    }

    int hour() const
    {
        if (!m_format.contains(HalfDay))
            return m_time.hour();
        const int ofHalf = m_time.hour() % 12;
        return ofHalf == 0 ? 12 : ofHalf;
    }

    const QString &m_format;
    QDate m_date;
    QTime m_time;
    const QLocale &m_locale;
    bool m_behindHour = false;
};
} // namespace

QString formattedDate(const QString &format, const QDateTime &moment, const QLocale &locale)
{
    return Translation(format, moment, locale).text();
}

QStringList dateFormats()
{
    return {QStringLiteral("dd/mm/yyyy"),
            QStringLiteral("d/m/yy"),
            QStringLiteral("dddd, dd mmmm, yyyy"),
            QStringLiteral("dd mmmm, yyyy"),
            QStringLiteral("mm/dd/yyyy"),
            QStringLiteral("m/d/yy"),
            QStringLiteral("dddd, mmmm dd, yyyy"),
            QStringLiteral("mmmm dd, yyyy"),
            QStringLiteral("dddd"),
            QStringLiteral("dddd, mmmm yyyy"),
            QStringLiteral("mmmm, yyyy"),
            QStringLiteral("d-mmm"),
            QStringLiteral("d-mmmm-yy"),
            QStringLiteral("d mmmm"),
            QStringLiteral("mmmm yyyy"),
            QStringLiteral("dd/mm/yyyy hh:mm:ss AM/PM"),
            QStringLiteral("mm/dd/yyyy hh:mm:ss AM/PM"),
            QStringLiteral("dddd, dd mmmm, yyyy hh:mm:ss, AM/PM"),
            QStringLiteral("dddd, mmmm dd, yyyy hh:mm:ss, AM/PM"),
            QStringLiteral("hh:mm:ss AM/PM"),
            QStringLiteral("hh:mm AM/PM"),
            QStringLiteral("h:mm:ss"),
            QStringLiteral("h:mm")};
}
