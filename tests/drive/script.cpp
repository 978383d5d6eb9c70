#include "drive/script.h"

#include <QRegularExpression>

namespace drive
{
namespace
{
struct Word {
    QString text;
    bool quoted = false;
};

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t';
}

/// Reads the words of one line.
class WordReader
{
public:
    explicit WordReader(const QString &line) : m_line(line) {}

    QList<Word> words()
    {
        QList<Word> found;
        skipBlanks();
        while (!atEnd() && m_error.isEmpty()) {
            found.append(m_line[m_at] == u'"' ? quotedWord() : plainWord());
            skipBlanks();
        }
        return found;
    }

    const QString &error() const { return m_error; }

private:
    bool atEnd() const { return m_at >= m_line.size(); }
    void skipBlanks()
    {
        while (!atEnd() && isBlank(m_line[m_at]))
            ++m_at;
    }

    Word plainWord()
    {
        const qsizetype start = m_at;
        while (!atEnd() && !isBlank(m_line[m_at]))
            ++m_at;
        return {m_line.mid(start, m_at - start), false};
    }

    Word quotedWord()
    {
        QString text;
        ++m_at;
        while (!atEnd() && m_line[m_at] != u'"')
            text += m_line[m_at] == u'\\' ? escaped() : QString(m_line[m_at++]);
        if (atEnd()) {
            m_error = QStringLiteral("a word that starts with a double quote has no closing one");
        } else {
            ++m_at;
            if (!atEnd() && !isBlank(m_line[m_at]))
                m_error = QStringLiteral("a blank is missing behind the closing double quote of \"%1\"").arg(text);
        }
        return {text, true};
    }

    /// What a backslash and what follows it stand for. Before any other character it stands for itself, so that regular
    /// expressions and the `\>` of tree paths read as they are meant.
    QString escaped()
    {
        const QChar kind = m_at + 1 < m_line.size() ? m_line[m_at + 1] : QChar();
        if (kind == u'u')
            return character();
        m_at += kind.isNull() ? 1 : 2;
        switch (kind.unicode()) {
        case u'"':
        case u'\\':
            return kind;
        case u'r':
            return QStringLiteral("\r");
        case u'n':
            return QStringLiteral("\n");
        case u't':
            return QStringLiteral("\t");
        default:
            return kind.isNull() ? QStringLiteral("\\") : QStringLiteral("\\") + kind;
        }
    }

    QString character()
    {
        static const QRegularExpression form(QStringLiteral(R"(\\u\{([0-9A-Fa-f]{1,6})\})"));
        const auto match =
            form.match(m_line, m_at, QRegularExpression::NormalMatch, QRegularExpression::AnchorAtOffsetMatchOption);
        const char32_t code = match.hasMatch() ? match.captured(1).toUInt(nullptr, 16) : 0x110000U;
        if (code > 0x10FFFFU) {
            m_error = QStringLiteral("\\u is to be followed by a character's code, as in \\u{A0}");
            ++m_at;
            return {};
        }
        m_at += match.capturedLength();
        return QString::fromUcs4(&code, 1);
    }

    const QString &m_line;
    qsizetype m_at = 0;
    QString m_error;
};

/// Builds the tree of commands from the lines of a text.
class ScriptReader
{
public:
    explicit ScriptReader(const QString &text) : m_lines(text.split(u'\n'))
    {
        for (QString &line : m_lines)
            if (line.endsWith(u'\r'))
                line.chop(1);
    }

    Script read()
    {
        Script script;
        script.lines = block(nullptr);
        script.error = m_error;
        return script;
    }

private:
    bool atEnd() const { return m_error || m_at >= m_lines.size(); }
    void fail(int line, const QString &reason)
    {
        if (!m_error)
            m_error = ScriptError{line, reason};
    }

    /// The commands up to the block's `end`, or up to the end of the text outside of any block.
    std::vector<Line> block(const Line *opening)
    {
        std::vector<Line> lines;
        while (!atEnd()) {
            std::optional<Line> line = command();
            if (!line)
                continue;
            if (line->command == QStringLiteral("end")) {
                if (!opening)
                    fail(line->number, QStringLiteral("there is no `when` or `during` for this `end`"));
                return lines;
            }
            if (opensBlock(*line))
                line->block = block(&*line);
            lines.push_back(std::move(*line));
        }
        if (opening)
            fail(opening->number, QStringLiteral("this `%1` has no `end`").arg(opening->command));
        return lines;
    }

    /// The next line's command; nothing for an empty line and a comment.
    std::optional<Line> command()
    {
        const QString text = m_lines[m_at++];
        const int number = static_cast<int>(m_at);
        if (text.trimmed().isEmpty() || text.trimmed().startsWith(u'#'))
            return std::nullopt;
        WordReader reader(text);
        const QList<Word> words = reader.words();
        if (!reader.error().isEmpty()) {
            fail(number, reader.error());
            return std::nullopt;
        }
        Line line;
        line.number = number;
        line.command = words.front().text;
        for (const Word &word : words.sliced(1))
            line.words.append(word.text);
        if (words.size() > 1 && !words.back().quoted && words.back().text == QStringLiteral("<<END"))
            line.words.back() = textUpToEnd(number);
        return line;
    }

    QString textUpToEnd(int opening)
    {
        QStringList lines;
        while (m_at < m_lines.size()) {
            const QString line = m_lines[m_at++];
            if (line == QStringLiteral("END"))
                return lines.join(QStringLiteral("\r\n"));
            lines.append(line);
        }
        fail(opening, QStringLiteral("the text that <<END starts has no line END"));
        return {};
    }

    QStringList m_lines;
    qsizetype m_at = 0;
    std::optional<ScriptError> m_error;
};
} // namespace

Script parseScript(const QString &text)
{
    const bool marked = text.startsWith(QChar(0xFEFF));
    return ScriptReader(marked ? text.mid(1) : text).read();
}

bool opensBlock(const Line &line)
{
    return line.command == QStringLiteral("when") || line.command == QStringLiteral("when-box") ||
           line.command == QStringLiteral("freely") ||
           (line.command == QStringLiteral("during") && line.words.size() == 1);
}

std::optional<TargetName> parseTargetName(const QString &text)
{
    TargetName name;
    const qsizetype dot = text.indexOf(u'.');
    name.form = text.left(dot);
    if (dot >= 0)
        name.control = text.mid(dot + 1);
    static const QRegularExpression numbered(QStringLiteral(R"(^doc\(([1-9][0-9]{0,4})\)$)"));
    if (const auto match = numbered.match(name.form); match.hasMatch()) {
        name.form = QStringLiteral("doc");
        name.document = match.captured(1).toInt();
    }
    static const QRegularExpression plain(QStringLiteral(R"(^[A-Za-z][A-Za-z0-9_]*$)"));
    if (!plain.match(name.form).hasMatch() || (dot >= 0 && name.control.isEmpty()))
        return std::nullopt;
    return name;
}
} // namespace drive
