#pragma once

#include <QString>

/// How much of a page has been moved, as in "(300 KB of 4,000 KB)". Empty for little, which is there in no time.
QString progressText(qint64 done, qint64 total);
