#pragma once

#include "common/html/tokenizer.h"

namespace html
{
/// How the text behind the start tag of an element of HTML is read; its name in lower case.
TextMode modeBehind(QStringView element);
} // namespace html
