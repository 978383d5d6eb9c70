#pragma once

#include <QString>

struct Services;

/// Where a file stands that the program brings along, as "Html.tcb": in the program's folder, where the user may have
/// put one of his own, else where the program is installed. Without either it is the path in the program's folder.
QString programFile(const Services &services, const QString &name);
