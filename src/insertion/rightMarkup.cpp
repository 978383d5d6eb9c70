#include "insertion/rightMarkup.h"

#include "common/html/tokenizer.h"

#include <QSet>
#include <QStringList>
#include <algorithm>
#include <optional>

namespace
{
struct MadeAttribute {
    QString before; ///< the blanks in front
    QString name;
    std::optional<QString> value;
};

const QSet<QString> &emptyElements()
{
    static const QSet<QString> names = [] {
        const QStringList list = QStringLiteral("area base basefont bgsound br col embed frame hr img input isindex "
                                                "link meta param source track wbr")
                                     .split(u' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return names;
}

const QSet<QString> &booleanAttributes()
{
    static const QSet<QString> names = [] {
        const QStringList list =
            QStringLiteral("async autofocus autoplay checked compact controls declare defer disabled hidden ismap "
                           "multiple muted nohref noresize noshade novalidate nowrap open readonly required reversed "
                           "selected")
                .split(u' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return names;
}

/// Whether what an element holds is read as text alone.
bool holdsText(const QString &element)
{
    return element == u"script" || element == u"style" || element == u"textarea" || element == u"title" ||
           element == u"xmp";
}

bool isReference(QStringView behindSign)
{
    const qsizetype end = behindSign.indexOf(u';');
    const QStringView name = end > 0 ? behindSign.first(end) : QStringView();
    return !name.isEmpty() &&
           std::all_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber() || c == u'#'; });
}

/// Takes markup apart as the dialogs make it: no broken tags, but values whose quotes may hold quotes.
class MarkupReading
{
public:
    MarkupReading(QStringView text, MarkupLanguage language) : m_text(text), m_language(language) {}

    QString written()
    {
        while (m_at < m_text.size()) {
            if (startsWith(u"<!--"))
                copyTo(u"-->");
            else if (startsWith(u"<!") || startsWith(u"<?"))
                copyTo(u">");
            else if (startsWith(u"</"))
                readEndTags();
            else if (m_text[m_at] == u'<' && m_at + 1 < m_text.size() && html::isLetter(m_text[m_at + 1].unicode()))
                readStartTag();
            else
                m_written += m_text[m_at++];
        }
        return m_written;
    }

private:
    bool startsWith(QStringView word) const { return m_text.sliced(m_at).startsWith(word); }
    bool blankAt(qsizetype place) const { return place < m_text.size() && html::isBlank(m_text[place].unicode()); }

    /// What stands up to that word and the word itself, as they are.
    void copyTo(QStringView word)
    {
        const qsizetype found = m_text.indexOf(word, m_at);
        const qsizetype end = found < 0 ? m_text.size() : found + word.size();
        m_written += m_text.sliced(m_at, end - m_at);
        m_at = end;
    }

    /// Up to the blank or sign that ends it.
    QString readName(QStringView endings)
    {
        const qsizetype start = m_at;
        while (m_at < m_text.size() && !blankAt(m_at) && !endings.contains(m_text[m_at]))
            ++m_at;
        return m_text.sliced(start, m_at - start).toString().toLower();
    }

    QString readBlanks()
    {
        const qsizetype start = m_at;
        while (blankAt(m_at))
            ++m_at;
        return m_text.sliced(start, m_at - start).toString();
    }

    /// A run of end tags with nothing between them closes what is open from the inside out. One that closes other
    /// elements than those that are open inside most stays.
    void readEndTags()
    {
        QStringList run;
        while (m_at < m_text.size() && startsWith(u"</")) {
            m_at += 2;
            run.append(readName(u">"));
            m_at = std::min(m_text.size(),
                            m_text.indexOf(u'>', m_at) < 0 ? m_text.size() : m_text.indexOf(u'>', m_at) + 1);
        }
        QStringList open = m_open.mid(std::max<qsizetype>(0, m_open.size() - run.size()));
        std::reverse(open.begin(), open.end());
        QStringList sortedRun = run, sortedOpen = open;
        sortedRun.sort();
        sortedOpen.sort();
        for (const QString &name : sortedRun == sortedOpen ? open : run) {
            m_written += QStringLiteral("</") + name + u'>';
            if (const qsizetype opened = m_open.lastIndexOf(name); opened >= 0)
                m_open.remove(opened, m_open.size() - opened);
        }
    }

    void readStartTag()
    {
        ++m_at;
        const QString element = readName(u"/>");
        QList<MadeAttribute> attributes;
        while (m_at < m_text.size()) {
            const QString blanks = readBlanks();
            if (m_at >= m_text.size() || m_text[m_at] == u'>')
                break;
            if (m_text[m_at] == u'/') {
                ++m_at;
                continue;
            }
            add(attributes, readAttribute(blanks));
        }
        ++m_at;
        complete(element, attributes);
        m_written += u'<' + element;
        for (const MadeAttribute &attribute : attributes)
            m_written += textOf(attribute);
        const bool empty = emptyElements().contains(element);
        m_written += empty && m_language == MarkupLanguage::Xhtml ? QStringLiteral(" />") : QStringLiteral(">");
        if (!empty)
            m_open.append(element);
        if (holdsText(element))
            copyContents(element);
    }

    MadeAttribute readAttribute(const QString &blanks)
    {
        const bool breaks = blanks.contains(u'\n') || blanks.contains(u'\r');
        MadeAttribute attribute{.before = breaks ? blanks : QStringLiteral(" "), .name = readName(u"=/>"), .value = {}};
        const qsizetype behindName = m_at;
        readBlanks();
        if (m_at >= m_text.size() || m_text[m_at] != u'=') {
            m_at = attribute.name.isEmpty() ? m_at + 1 : behindName;
            return attribute;
        }
        ++m_at;
        readBlanks();
        attribute.value = readValue();
        return attribute;
    }

    QString readValue()
    {
        const QChar quote = m_at < m_text.size() ? m_text[m_at] : QChar();
        const qsizetype start = m_at;
        if (quote != u'"' && quote != u'\'') {
            while (m_at < m_text.size() && !blankAt(m_at) && m_text[m_at] != u'>')
                ++m_at;
            return m_text.sliced(start, m_at - start).toString();
        }
        qsizetype end = m_text.indexOf(quote, start + 1);
        while (end >= 0 && !endsValue(end + 1)) {
            const qsizetype next = m_text.indexOf(quote, end + 1);
            if (next < 0)
                break;
            end = next;
        }
        m_at = end < 0 ? m_text.size() : end + 1;
        return m_text.sliced(start + 1, (end < 0 ? m_text.size() : end) - start - 1).toString();
    }

    /// Whether the tag ends or another attribute begins there, so that a quote in front of it closes a value.
    bool endsValue(qsizetype at) const
    {
        if (at >= m_text.size() || m_text[at] == u'>' || m_text.sliced(at).startsWith(u"/>"))
            return true;
        if (!blankAt(at))
            return false;
        while (blankAt(at))
            ++at;
        const qsizetype name = at;
        while (at < m_text.size() && (m_text[at].isLetterOrNumber() || m_text[at] == u'-' || m_text[at] == u':'))
            ++at;
        const QString word = m_text.sliced(name, at - name).toString().toLower();
        if (at >= m_text.size() || m_text[at] == u'>' || m_text.sliced(at).startsWith(u"/>"))
            return word.isEmpty() || booleanAttributes().contains(word);
        while (blankAt(at))
            ++at;
        return !word.isEmpty() && ((at < m_text.size() && m_text[at] == u'=') || booleanAttributes().contains(word));
    }

    static void add(QList<MadeAttribute> &attributes, const MadeAttribute &attribute)
    {
        const bool there = std::any_of(attributes.cbegin(), attributes.cend(),
                                       [&](const MadeAttribute &each) { return each.name == attribute.name; });
        if (!attribute.name.isEmpty() && !there)
            attributes.append(attribute);
    }

    static void complete(const QString &element, QList<MadeAttribute> &attributes)
    {
        const auto has = [&attributes](QStringView name) {
            return std::any_of(attributes.cbegin(), attributes.cend(),
                               [name](const MadeAttribute &each) { return each.name == name; });
        };
        if (element == u"select")
            attributes.removeIf([](const MadeAttribute &each) {
                return each.name == u"size" && each.value.value_or(QString()).toInt() < 1;
            });
        const bool needsAlt = element == u"img" || (element == u"area" && has(u"href"));
        if (!needsAlt || has(u"alt"))
            return;
        qsizetype place = element == u"img" ? 0 : attributes.size();
        while (place < attributes.size() && (attributes[place].name == u"src" || attributes[place].name == u"dynsrc" ||
                                             attributes[place].name == u"name"))
            ++place;
        attributes.insert(place, {.before = QStringLiteral(" "), .name = QStringLiteral("alt"), .value = QString()});
    }

    QString textOf(const MadeAttribute &attribute) const
    {
        const bool xhtml = m_language == MarkupLanguage::Xhtml;
        const bool boolean = booleanAttributes().contains(attribute.name);
        const bool bare =
            !attribute.value || (boolean && attribute.value->compare(attribute.name, Qt::CaseInsensitive) == 0);
        if (bare && !xhtml)
            return attribute.before + attribute.name;
        return attribute.before + attribute.name + QStringLiteral("=\"") +
               valueText(attribute.value.value_or(attribute.name)) + u'"';
    }

    QString valueText(const QString &value) const
    {
        QString text;
        for (qsizetype i = 0; i < value.size(); ++i) {
            const bool xhtml = m_language == MarkupLanguage::Xhtml;
            if (value[i] == u'"')
                text += QStringLiteral("&quot;");
            else if (xhtml && value[i] == u'<')
                text += QStringLiteral("&lt;");
            else if (xhtml && value[i] == u'&' && !isReference(QStringView(value).sliced(i + 1)))
                text += QStringLiteral("&amp;");
            else
                text += value[i];
        }
        return text;
    }

    void copyContents(const QString &element)
    {
        const qsizetype end = m_text.indexOf(QString(QStringLiteral("</") + element), m_at, Qt::CaseInsensitive);
        const qsizetype length = (end < 0 ? m_text.size() : end) - m_at;
        m_written += m_text.sliced(m_at, length);
        m_at += length;
    }

    QStringView m_text;
    MarkupLanguage m_language;
    qsizetype m_at = 0;
    QString m_written;
    QStringList m_open; ///< elements, the outermost first
};
} // namespace

QString rightMarkup(const QString &made, MarkupLanguage language)
{
    return MarkupReading(made, language).written();
}

MarkupPair rightMarkupAround(const MarkupPair &made, MarkupLanguage language)
{
    const QString opening = rightMarkup(made.opening, language);
    const QString whole = rightMarkup(made.opening + made.closing, language);
    return {.opening = opening, .closing = whole.sliced(opening.size())};
}
