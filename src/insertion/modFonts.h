#pragma once

#include <QStringList>

/// The names of the desktop's fonts, each once and as pages know it, in the order of the alphabet.
QStringList systemFonts();

/// Such a list from the families that the desktop tells: what it adds in brackets to tell makers apart goes.
QStringList fontNames(const QStringList &families);
