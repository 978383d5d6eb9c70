#pragma once

#include <QString>

/// The text without its tags: each runs from a "<" to the next ">". From a "<" on that has no ">" behind it all stays.
QString withoutTags(const QString &text);
