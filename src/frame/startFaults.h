#pragma once

#include <QStringList>

struct Services;

/// What keeps the program from a part of its work: data that it should have brought along and cannot read, folders of
/// the user's that take nothing in. A sentence or two each, for the user; none where all is well.
QStringList startFaults(const Services &services);
