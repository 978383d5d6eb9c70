#pragma once

#include <QStringList>

/// The names of the desktop's fonts, in the order of the alphabet.
QStringList systemFonts();
