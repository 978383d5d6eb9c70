#include "storage/settingsText.h"

#include "common/utf8.h"

namespace
{
bool needsCode(QStringView text, qsizetype i)
{
    const char16_t code = text[i].unicode();
    if (code < 0x20 || code == 0x7F || code == 0x85 || code == 0x2028 || code == 0x2029 || code == 0xFEFF)
        return true;
    if (!QChar::isSurrogate(code))
        return false;
    const bool pairBehind = QChar::isHighSurrogate(code) && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    const bool pairBefore = QChar::isLowSurrogate(code) && i > 0 && text[i - 1].isHighSurrogate();
    return !pairBehind && !pairBefore;
}

QString escaped(QStringView text, QStringView separators)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'\n')
            result += QLatin1String("\\n");
        else if (c == u'\r')
            result += QLatin1String("\\r");
        else if (needsCode(text, i))
            result += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else if (c == u'\\' || separators.contains(c))
            result += QLatin1Char('\\') + c;
        else
            result += c;
    }
    return result;
}

// The character that four hexadecimal digits stand for; nothing where they are not there.
std::optional<QChar> codeAt(QStringView text, qsizetype start)
{
    if (start + 4 > text.size())
        return std::nullopt;
    bool valid = false;
    const ushort code = text.sliced(start, 4).toUShort(&valid, 16);
    return valid ? std::optional(QChar(code)) : std::nullopt;
}

std::optional<QString> unescaped(QStringView text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\\') {
            result += text[i];
            continue;
        }
        if (++i == text.size())
            return std::nullopt;
        if (text[i] == u'u') {
            const std::optional<QChar> code = codeAt(text, i + 1);
            if (!code)
                return std::nullopt;
            result += *code;
            i += 4;
        } else {
            result += text[i] == u'n' ? QChar(u'\n') : text[i] == u'r' ? QChar(u'\r') : text[i];
        }
    }
    return result;
}

// The first place of `separator` that is not escaped, -1 for none.
qsizetype placeOf(QStringView line, QChar separator)
{
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'\\')
            ++i;
        else if (line[i] == separator)
            return i;
    }
    return -1;
}

struct ReadKey {
    std::optional<QString> section;
    std::optional<QString> key;
};

ReadKey readKey(QStringView text)
{
    const qsizetype slash = placeOf(text, u'/');
    if (slash < 0)
        return {};
    return {unescaped(text.first(slash)), unescaped(text.sliced(slash + 1))};
}

void readLine(SettingsMap &settings, QStringView line)
{
    const qsizetype equals = placeOf(line, u'=');
    const bool removal = equals < 0 && line.startsWith(u'-');
    if (equals < 0 && !removal)
        return;
    const ReadKey read = readKey(removal ? line.sliced(1) : line.first(equals));
    const std::optional<QString> value = removal ? std::nullopt : unescaped(line.sliced(equals + 1));
    if (!read.section || !read.key)
        return;
    if (removal)
        settings.remove({*read.section, *read.key});
    else if (value)
        settings.insert({*read.section, *read.key}, *value);
}
} // namespace

QByteArray settingsText(const SettingsMap &settings)
{
    QByteArray text;
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        text += settingLine(setting.key(), setting.value());
    return text;
}

QByteArray settingLine(const std::pair<QString, QString> &key, const std::optional<QString> &value)
{
    const QString minus = key.first.startsWith(u'-') ? QStringLiteral("\\") : QString();
    const QString name = minus + escaped(key.first, u"/=") + QLatin1Char('/') + escaped(key.second, u"=");
    const QString line = value ? name + QLatin1Char('=') + escaped(*value, u"") : QLatin1Char('-') + name;
    return line.toUtf8() + '\n';
}

SettingsMap parseSettings(const QByteArray &bytes)
{
    SettingsMap settings;
    for (const QByteArray &line : bytes.split('\n')) {
        if (!utf8Contents(line))
            continue;
        const QString text = QString::fromUtf8(line);
        // Real carriage returns are escapes: one at the end comes from an editor that ends lines with it.
        readLine(settings, text.endsWith(u'\r') ? QStringView(text).chopped(1) : QStringView(text));
    }
    return settings;
}
