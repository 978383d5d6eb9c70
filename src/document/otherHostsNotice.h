#pragma once

#include "common/notices.h"

QString otherHostsNoticeKey();

/// Tells that the preview does not show what the page names of other hosts. `allow` lets it for the page's folder; a
/// page without a folder cannot be let.
Notice otherHostsHiddenNotice(bool hasFolder, const std::function<void()> &allow);
/// Tells that it does, as the user has once allowed. `forbid` takes that back.
Notice otherHostsShownNotice(const std::function<void()> &forbid);
