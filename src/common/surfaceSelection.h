#pragma once

#include "common/textSelection.h"
#include "common/textSurface.h"

inline TextSelection selectionOf(const TextSurface &edit)
{
    return {edit.SelStart(), edit.SelLength()};
}
