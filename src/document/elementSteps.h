#pragma once

class TextSurface;

/// Selects the next element's tag behind the selection, from its "<" to its ">". Of one that is not closed, only the
/// place of its "<" is taken; without one nothing changes.
void SelectNextElement(TextSurface &edit);

/// The same for the last tag whose "<" stands in front of the selection.
void SelectPreviousElement(TextSurface &edit);
