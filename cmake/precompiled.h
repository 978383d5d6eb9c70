// The headers that nearly every source includes, parsed once a library.
#pragma once
#if __has_include(<QWidget>) // common knows no widgets
#include <QWidget>
#endif
#include <QHash>
#include <QList>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
