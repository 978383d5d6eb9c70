#pragma once

#include "common/colour.h"

/// How the source is coloured, as the main window holds it in memory.
struct ColouringOptions {
    bool colourSyntax = true;
    bool colourLinks = true;
    qint16 updateTime = 10; ///< idle seconds before a full pass
    ColourValue tag = 8388608;
    ColourValue attribute = 8421376;
    ColourValue value = 8421504;
    ColourValue comment = 32768;
    ColourValue asp = 128;
    ColourValue url = 16711680;
};
