#pragma once

#include "common/colour.h"

#include <QString>
#include <optional>

/// A colour as pages write it: "#RRGGBB" in upper-case digits. Of a theme's colour only the low 24 bits count.
QString colourText(ColourValue colour);

/// The colour that such a text names, in digits of either case; nothing for any other text.
std::optional<ColourValue> colourFromText(const QString &text);
