#pragma once

#include "common/colour.h"

/// The colours of the source are chosen for a light ground. On a dark one, those that a user has left as they come are
/// drawn in readable counterparts of the same hue; colours of a user's own are drawn as they are on any ground.
ColourValue readableOnDark(ColourValue colour);
/// On a light one all can be read but the grey of values, which comes as it always has and is drawn a little darker.
ColourValue readableOnLight(ColourValue colour);
