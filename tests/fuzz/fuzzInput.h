#pragma once

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>

/// What each target is: it reads the bytes as the program would, and ends the process where the outcome is not as it
/// has to be. libFuzzer calls it under this name; among the seeds' test each target has a name of its own.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);

/// The bytes of one try. What a target has to choose beside the bytes themselves is taken from their front, so that an
/// input is the whole of a try.
class FuzzInput
{
public:
    FuzzInput(const uint8_t *data, std::size_t size)
        : m_bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size))
    {
    }

    /// A number from 0 to 255; 0 where the bytes have come to their end.
    int number();
    /// A number from 0 to 65535.
    int largeNumber() { return number() * 256 + number(); }
    /// One of the rows of a list, which is not empty.
    template <class List>
    auto oneOf(const List &list)
    {
        return list[number() % static_cast<int>(std::size(list))];
    }

    /// What has not been taken, in a memory block of its own, so that a read behind its end is seen.
    QByteArray rest() const { return {m_bytes.constData() + m_taken, m_bytes.size() - m_taken}; }
    /// The same as a page's text, every break as CR LF; with an odd number in front of it, as UTF-16, in which halves
    /// of surrogate pairs stand alone.
    QString text();

private:
    QByteArray m_bytes;
    qsizetype m_taken = 0;
};

/// Ends the process and tells what did not hold.
[[noreturn]] void doesNotHold(const char *what, const char *file, int line);

#define HAS_TO_HOLD(condition)                                                                                         \
    do {                                                                                                               \
        if (!(condition))                                                                                              \
            doesNotHold(#condition, __FILE__, __LINE__);                                                               \
    } while (false)
