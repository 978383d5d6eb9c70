#pragma once

#include <QString>
#include <QStringList>

struct ProgramContext;

/// The attributes of a font tag that stand for a point size: a blank and "size=" with one of the seven sizes, and a
/// style with the size itself where none of the seven is exactly it.
QString pointSizeAttributes(int points);

/// The point sizes that lists offer.
QStringList pointSizes();

/// The names in the list of headings, from none to the sixth level.
QStringList headingNames();
/// The level of a heading's name in that list, 0 for none.
int headingLevel(const QString &name);

/// Put a font tag with the face, or with the point size, around the active document's selection; the caret stands in
/// front of the end tag. An empty face, or a size that is no number, does nothing.
void ApplyFontFace(ProgramContext &context, const QString &face);
void ApplyPointSize(ProgramContext &context, const QString &points);
/// Puts the heading tag of that level, 1 to 6, around the selection; nothing for another level.
void ApplyHeading(ProgramContext &context, int level);
