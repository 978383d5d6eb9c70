#include "common/quickDigest.h"

#include <QtEndian>
#include <cstring>

namespace
{
quint64 mixed(quint64 value, quint64 word)
{
    constexpr quint64 factor = 0x9E3779B97F4A7C15U; // odd, its bits evenly spread
    value = (value ^ word) * factor;
    return value ^ (value >> 32U);
}
} // namespace

void QuickDigest::add(QByteArrayView bytes)
{
    m_size += static_cast<quint64>(bytes.size());
    quint64 word = 0;
    const char *place = bytes.begin();
    for (; bytes.end() - place >= Step; place += Step) { // of a fixed length, which is one instruction
        std::memcpy(&word, place, Step);
        m_value = mixed(m_value, qFromLittleEndian(word));
    }
    if (place == bytes.end())
        return;
    word = 0;
    std::memcpy(&word, place, static_cast<size_t>(bytes.end() - place));
    m_value = mixed(m_value, qFromLittleEndian(word));
}

quint64 QuickDigest::value() const
{
    return mixed(m_value, m_size);
}

quint64 QuickDigest::of(QByteArrayView bytes)
{
    QuickDigest digest;
    digest.add(bytes);
    return digest.value();
}
