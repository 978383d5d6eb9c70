#pragma once

#include <QString>
#include <curl/curl.h>

/// Why a transfer broke off, as a sentence for its user. `detail` is the library's own account, told where it helps.
QString transferFailure(CURLcode code, const QString &detail);
