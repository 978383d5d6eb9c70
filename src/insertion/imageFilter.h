#pragma once

#include <QString>

/// The filter of the dialogs that choose an image. `supported` names its second row, which holds every kind of image.
QString imageFilter(const QString &supported);
