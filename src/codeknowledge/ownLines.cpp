#include "codeknowledge/ownLines.h"

#include "common/encodings.h"
#include "common/windows1252.h"

#include <algorithm>

namespace
{
constexpr char utf8Lead = '\xC2'; // of the characters from U+0080 to U+00BF, whose second byte is their code

bool endsLine(char c)
{
    return c == '\r' || c == '\n';
}

bool isAscii(const QByteArray &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<uchar>(c) < 0x80U; });
}
} // namespace

OwnLines::OwnLines(const QByteArray &bytes) : m_bytes(bytes)
{
    const bool marked = bytes.startsWith("\xEF\xBB\xBF");
    if (marked || (bytes.isValidUtf8() && !isAscii(bytes))) { // hardly ever: the marks alone make it Windows-1252
        m_bytes = decodeOwnFile(bytes).toUtf8();
        m_utf8 = true;
    }
    m_starts.reserve(static_cast<size_t>(m_bytes.count('\n')) + 2);
    m_starts.push_back(0);
    const char *const start = m_bytes.constData();
    const char *const end = start + m_bytes.size();
    for (const char *place = start; place != end;) {
        place = std::find_if(place, end, endsLine);
        const bool pair = end - place > 1 && place[0] == '\r' && place[1] == '\n';
        place += pair ? 2 : place == end ? 0 : 1;
        m_starts.push_back(static_cast<int>(place - start));
    }
}

QByteArrayView OwnLines::bytesOf(int line) const
{
    const int start = m_starts[static_cast<size_t>(line)];
    int end = m_starts[static_cast<size_t>(line) + 1];
    while (end > start && endsLine(m_bytes[end - 1]))
        --end;
    return QByteArrayView(m_bytes).sliced(start, end - start);
}

QString OwnLines::text(int line) const
{
    const QByteArrayView bytes = bytesOf(line);
    return m_utf8 ? QString::fromUtf8(bytes) : fromWindows1252(bytes);
}

int OwnLines::count(int line, char16_t one, char16_t other) const
{
    const QByteArrayView bytes = bytesOf(line);
    int found = 0;
    for (const char *place = bytes.begin(); place != bytes.end(); ++place) {
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
