#pragma once

#include <QtGlobal>
#include <random>

/// The program's random numbers. Seeded, it gives the same ones at every run and on every machine.
class Random
{
public:
    Random(); ///< seeded by the machine
    explicit Random(quint32 value) : generator(value) {}

    void seed(quint32 value) { generator.seed(value); }
    /// A number from 0 to `bound` - 1; 0 for a bound below 1.
    int below(int bound);

private:
    std::mt19937 generator;
};
