#include "services/random.h"

Random::Random() : generator(std::random_device{}()) {}

int Random::below(int bound)
{
    if (bound < 1)
        return 0;
    // The high part of a product rather than the library's distribution, which differs from one library to the next.
    const quint64 product = static_cast<quint64>(generator()) * static_cast<quint64>(bound);
    return static_cast<int>(product >> 32U);
}
