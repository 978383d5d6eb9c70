#pragma once

#include <QString>

class QPalette;

/// The style sheet of the help's pages under that palette: the pages hold no colours of their own.
QString helpStyleSheet(const QPalette &palette);
