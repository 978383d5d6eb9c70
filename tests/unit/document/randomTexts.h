#pragma once

#include <QString>
#include <QStringList>
#include <random>

/// Texts and choices from a seed, the same on every machine.
class RandomTexts
{
public:
    explicit RandomTexts(unsigned seed) : m_engine(seed) {}

    int below(int bound) { return static_cast<int>(m_engine() % static_cast<unsigned>(bound)); }
    bool onceIn(int bound) { return below(bound) == 0; }

    /// Up to `longest` words of the alphabet.
    QString text(const QStringList &alphabet, int longest)
    {
        QString text;
        for (int i = below(longest + 1); i > 0; --i)
            text += alphabet[below(static_cast<int>(alphabet.size()))];
        return text;
    }

private:
    std::mt19937 m_engine;
};

/// The letters that markup is made of.
inline const QStringList MarkupCharacters = {
    QStringLiteral("<"), QStringLiteral(">"), QStringLiteral("="),    QStringLiteral("\""),
    QStringLiteral("'"), QStringLiteral(" "), QStringLiteral("\r"),   QStringLiteral("\n"),
    QStringLiteral("!"), QStringLiteral("-"), QStringLiteral("%"),    QStringLiteral("/"),
    QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("www."), QStringLiteral("http:"),
};
