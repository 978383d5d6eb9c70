// The headers that most sources include, parsed once for all folders. Parsing Qt is most of what compiling costs, so this
// takes in the widgets as a whole where there are any: common knows none.
#pragma once
#if __has_include(<QtWidgets>)
#include <QtWidgets>
#else
#include <QHash>
#include <QList>
#include <QString>
#endif
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <vector>
