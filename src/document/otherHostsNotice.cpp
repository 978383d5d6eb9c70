#include "document/otherHostsNotice.h"

QString otherHostsNoticeKey()
{
    return QStringLiteral("otherHosts");
}

Notice otherHostsHiddenNotice(bool hasFolder, const std::function<void()> &allow)
{
    Notice notice{otherHostsNoticeKey(),
                  NoticeKind::Other,
                  QStringLiteral("Pictures, styles and scripts of other hosts are not shown in the preview."),
                  {}};
    if (hasFolder)
        notice.buttons = {{QStringLiteral("Show them for this folder"), allow}, {QStringLiteral("Not now")}};
    else
        notice.buttons = {{QStringLiteral("OK")}};
    return notice;
}

Notice otherHostsShownNotice(const std::function<void()> &forbid)
{
    return {otherHostsNoticeKey(),
            NoticeKind::Other,
            QStringLiteral("Pictures, styles and scripts of other hosts are shown in the preview of this folder."),
            {{QStringLiteral("Keep it so")}, {QStringLiteral("Show them no more"), forbid}}};
}
