#pragma once

#include <QString>

struct ProgramContext;

/// The filter of the dialogs that choose an image. `supported` names its second row, which holds every kind of image:
/// those that were always offered, or all that browsers show.
QString imageFilter(const ProgramContext &context, const QString &supported);
