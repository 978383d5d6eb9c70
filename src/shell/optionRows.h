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

/// One colour that the Options let choose, with the names of its controls.
struct ColourOption {
    const char *shape;
    const char *button;
    const char *label;
    const char *caption; ///< of the label
    const settings::Key *key;
};

std::span<const ColourOption> syntaxColours(); ///< those that go with the syntax colouring
ColourOption addressColour();                  ///< of Internet addresses
std::span<const ColourOption> siteMapColours();
