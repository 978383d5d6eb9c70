#include "common/windows1252.h"

#include <algorithm>
#include <array>

namespace
{
// Windows-1252 from 0x80 to 0x9F; the rest of it is the same as the first 256 characters. The five bytes without a
// meaning keep their code, so that a file that holds them survives.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
} // namespace

QString fromWindows1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char c) {
        const auto byte = static_cast<uchar>(c);
        return QChar(byte >= 0x80U && byte < 0xA0U ? upperControls.at(byte - 0x80U) : char16_t(byte));
    });
    return text;
}

std::optional<char> windows1252Byte(char16_t code)
{
    if (code < 0x80 || (code >= 0xA0 && code < 0x100))
        return static_cast<char>(code);
    const auto *const place = std::find(upperControls.begin(), upperControls.end(), code);
    if (place == upperControls.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (place - upperControls.begin()));
}
