#include "insertion/modFonts.h"

#include <QFontDatabase>

QStringList systemFonts()
{
    return QFontDatabase::families();
}
