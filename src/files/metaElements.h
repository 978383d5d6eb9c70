#pragma once

#include <QString>

/// The `content` of the `meta` element of that name ("author"), as written by this program: name before content, both
/// in double quotes, one blank between. Letter case is ignored. Empty if there is none.
QString metaContent(const QString &pageText, const QString &name);
