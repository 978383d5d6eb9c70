#pragma once

#include <QStringView>
#include <array>
#include <cstring>

/// The place of the first UTF-16 unit from a place on whose bits under `Mask` are those of `Value`; the text's length
/// where there is none.
///
/// Units are looked at in fours, as parts of one number, so a page of megabytes costs two to three instructions a
/// character, with any compiler and on any processor. `Value` is to be rare: a group that holds one is looked at unit
/// by unit.
template <char16_t Mask, char16_t Value>
qsizetype firstLike(QStringView text, qsizetype from = 0)
{
    static_assert((Value & ~Mask) == 0, "no unit could be like that");
    constexpr quint64 everyLowest = 0x0001'0001'0001'0001U;
    constexpr quint64 everyHighest = everyLowest << 15U;
    constexpr auto holdsLike = [](quint64 four) { // by a borrow from the unit that came to be zero
        const quint64 unlike = (four & (everyLowest * Mask)) ^ (everyLowest * Value);
        return (unlike - everyLowest) & ~unlike & everyHighest;
    };
    std::array<quint64, 2> numbers{};
    constexpr qsizetype step = sizeof(numbers) / sizeof(char16_t);
    const char16_t *const units = text.utf16();
    for (qsizetype end = from; end < text.size();) {
        for (; text.size() - from >= step; from += step) {
            std::memcpy(numbers.data(), units + from, sizeof(numbers));
            if ((holdsLike(numbers[0]) | holdsLike(numbers[1])) != 0)
                break;
        }
        for (end = qMin(from + step, text.size()); from < end; ++from) {
            if ((units[from] & Mask) == Value)
                return from;
        }
    }
    return text.size();
}
