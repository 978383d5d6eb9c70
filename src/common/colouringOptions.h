#pragma once

#include "common/colour.h"

#include <optional>

/// The settings of the colouring, as the main window holds them between two visits of the options dialog.
struct ColouringOptions {
    bool ColourCodeSyntax = true;    ///< tags are coloured, and the structure tree is filled
    bool ColourCodeHyperlink = true; ///< link texts are coloured
    int ColourCodeUpdateTime = 10;   ///< seconds without a change before a document is coloured
    ColourValue ColourCodeTag = 0x800000;
    ColourValue ColourCodeAttribute = 0x808000;
    ColourValue ColourCodeValue = 0x808080;
    ColourValue ColourCodeComment = 0x008000;
    ColourValue ColourASPCode = 0x000080;
    ColourValue ColourCodeURL = 0xFF0000;
    bool operator==(const ColouringOptions &) const = default;
};

/// The interval of a refresh timer in milliseconds. Nothing where the timer is to keep the one it has: the seconds are
/// multiplied in 16 bits, which 33 and more overflow, and an interval cannot be negative.
constexpr std::optional<int> refreshInterval(int updateTimeSeconds)
{
    constexpr int Largest16Bit = 32767;
    if (updateTimeSeconds < 0 || updateTimeSeconds > Largest16Bit / 1000)
        return std::nullopt;
    return updateTimeSeconds * 1000;
}
