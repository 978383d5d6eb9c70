#pragma once

#include "services/settings.h"

#include <span>

/// One switch of the Options' list.
struct OptionRow {
    const char *text;
    const settings::Key *key;
};

/// The switches that need no control of their own, in their order.
std::span<const OptionRow> optionRows();

/// One colour that the Options let choose. Its controls are "shp", "cmd" and "lbl" with this name behind them.
struct ColourOption {
    const char *name;
    const char *label;
    const settings::Key *key;
};

std::span<const ColourOption> syntaxColours(); ///< those that go with the syntax colouring
ColourOption addressColour();                  ///< of Internet addresses
std::span<const ColourOption> siteMapColours();
