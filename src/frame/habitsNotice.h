#pragma once

#include "common/notices.h"

QString habitsNoticeKey();

/// Offers the two ways to edit: `choose` is given whether it is today's, `explain` shows what differs and leaves the
/// line where it is.
Notice habitsNotice(const std::function<void(bool today)> &choose, const std::function<void()> &explain);
