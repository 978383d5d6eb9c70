#pragma once

#include <QString>

class TextSurface;

/// Gives a surface another text by replacing no more than what differs, in one piece, so that the rest keeps its
/// colours. No Change where nothing differs.
void replacePart(TextSurface &surface, const QString &text);
