#include "codeknowledge/ownLines.h"

#include "common/encodings.h"
#include "common/windows1252.h"

#include <algorithm>
#include <cstring>

namespace
{
constexpr char utf8Lead = '\xC2'; // of the characters from U+0080 to U+00BF, whose second byte is their code

bool endsLine(char c)
{
    return c == '\r' || c == '\n';
}

bool isOfAscii(char c)
{
    return static_cast<uchar>(c) < 0x80U;
}

bool isAscii(QByteArrayView bytes)
{
    constexpr quint64 highBits = 0x8080808080808080U;
    quint64 eight = 0;
    constexpr qsizetype step = sizeof eight;
    if (bytes.size() < step)
        return std::all_of(bytes.begin(), bytes.end(), isOfAscii);
    // The last eight overlap those in front of them, rather than being looked at one by one.
    for (const char *place = bytes.begin(), *last = bytes.end() - step;; place = std::min(place + step, last)) {
        std::memcpy(&eight, place, sizeof eight);
        if (eight & highBits)
            return false;
        if (place == last)
            return true;
    }
}

/// The next place from one on at which a line ends; the end if there is none. Lines are short, and there are tens of
/// thousands of them at a start: most characters are told from an end by one comparison.
const char *nextEnd(const char *place, const char *end)
{
    while (place != end && (static_cast<uchar>(*place) > '\r' || !endsLine(*place)))
        ++place;
    return place;
}
} // namespace

OwnLines::OwnLines(const QByteArray &bytes) : m_bytes(bytes)
{
    const bool marked = bytes.startsWith("\xEF\xBB\xBF");
    if (marked || (bytes.isValidUtf8() && !isAscii(bytes))) { // hardly ever: the marks alone make it Windows-1252
        m_bytes = decodeOwnFile(bytes).toUtf8();
        m_utf8 = true;
    }
    constexpr qsizetype shortLine = 10; // bytes; to count the lines would take as long as to find them
    m_starts.reserve(static_cast<size_t>(m_bytes.size() / shortLine) + 2);
    m_starts.push_back(0);
    const char *const start = m_bytes.constData();
    const char *const end = start + m_bytes.size();
    for (const char *place = start; place != end;) {
        const char *const found = nextEnd(place, end);
        const bool pair = end - found > 1 && found[0] == '\r' && found[1] == '\n';
        place = found + (pair ? 2 : found == end ? 0 : 1);
        m_starts.push_back(static_cast<int>(place - start));
    }
    m_starts.shrink_to_fit();
}

QByteArrayView OwnLines::bytesOf(int line) const
{
    const int start = m_starts[static_cast<size_t>(line)];
    int end = m_starts[static_cast<size_t>(line) + 1];
    const char *const bytes = m_bytes.constData();
    while (end > start && endsLine(bytes[end - 1]))
        --end;
    return {bytes + start, end - start};
}

QString OwnLines::text(int line) const
{
    const QByteArrayView bytes = bytesOf(line);
    return m_utf8 ? QString::fromUtf8(bytes) : fromWindows1252(bytes);
}

int OwnLines::count(int line, char16_t one, char16_t other) const
{
    const QByteArrayView bytes = bytesOf(line);
    const auto *const first = std::find_if(bytes.begin(), bytes.end(), isOfAscii);
    // In nearly every line such characters stand at the start alone.
    const auto *const last = isAscii(bytes.sliced(first - bytes.begin())) ? first : bytes.end();
    int found = 0;
    for (const auto *place = bytes.begin(); place != last; ++place) {
        const char16_t code = static_cast<uchar>(*place);
        const bool matches = code == one || code == other;
        found += matches && (!m_utf8 || (place != bytes.begin() && place[-1] == utf8Lead));
    }
    return found;
}

bool OwnLines::startsWithTwo(int line, char16_t character) const
{
    const QByteArrayView bytes = bytesOf(line);
    if (m_utf8)
        return QString::fromUtf8(bytes.first(std::min<qsizetype>(bytes.size(), 4))) == QString(2, QChar(character));
    return bytes.size() >= 2 && static_cast<uchar>(bytes[0]) == character && static_cast<uchar>(bytes[1]) == character;
}
