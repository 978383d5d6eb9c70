#pragma once

#include "common/pageElement.h"

#include <QStringView>
#include <optional>

/// The elements that hold a position of a page's source, counted from 0; what stands inside a tag belongs to its
/// element. An element whose end tag may be left out ends at the next one of its kind.
ElementPath elementsAt(QStringView text, qsizetype position);

/// Where the caret goes for an element, or the first one around it that the source has for certain: behind its start
/// tag, or in front of the tag of an element without contents. Nothing where there is none.
std::optional<qsizetype> placeOfElement(QStringView text, const ElementPath &path);
