#pragma once

#include <QByteArrayView>

/// Tells one content from another, at half an instruction a byte: two that differ have the same digest by accident
/// alone, once in 2^64. It is no guard against somebody who wants it so.
class QuickDigest
{
public:
    static constexpr qsizetype Step = 8; ///< bytes

    /// Adds the next bytes; but for the last ones their number is to be a multiple of Step.
    void add(QByteArrayView bytes);
    quint64 value() const; ///< the same on every machine

    static quint64 of(QByteArrayView bytes);

private:
    quint64 m_value = 0xCBF29CE484222325U;
    quint64 m_size = 0;
};
