#pragma once

#include <QString>

/// A web page of exactly so many characters, breaks as CR LF: nested boxes, tables, attributes, comments, links, script
/// and style in line. The same seed gives the same page. Fewer than 500 characters are not given.
QString page(qsizetype characters, quint32 seed);
