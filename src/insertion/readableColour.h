#pragma once

#include "common/colour.h"

/// Black or white, whichever is the easier to read on that ground.
ColourValue readableColour(ColourValue ground);
