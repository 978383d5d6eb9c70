#include "common/darkGround.h"

#include "common/colouringOptions.h"

ColourValue readableOnDark(ColourValue colour)
{
    constexpr ColouringOptions Defaults;
    switch (colour) {
    case Defaults.ColourCodeTag:
        return colourOf(130, 170, 255);
    case Defaults.ColourCodeAttribute:
        return colourOf(78, 201, 190);
    case Defaults.ColourCodeValue:
        return colourOf(184, 184, 184);
    case Defaults.ColourCodeComment:
        return colourOf(126, 200, 115);
    case Defaults.ColourASPCode:
        return colourOf(255, 140, 140);
    case Defaults.ColourCodeURL:
        return colourOf(105, 180, 255);
    default:
        return colour;
    }
}

ColourValue readableOnLight(ColourValue colour)
{
    constexpr ColouringOptions Defaults;
    return colour == Defaults.ColourCodeValue ? colourOf(105, 105, 105) : colour;
}
