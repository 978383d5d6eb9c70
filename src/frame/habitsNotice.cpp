#include "frame/habitsNotice.h"

QString habitsNoticeKey()
{
    return QStringLiteral("habits");
}

Notice habitsNotice(const std::function<void(bool today)> &choose, const std::function<void()> &explain)
{
    return {habitsNoticeKey(),
            NoticeKind::Other,
            QStringLiteral("Tagwrighter edits the classic way. Edit as today's editors do?"),
            {{QStringLiteral("Yes"), [choose] { choose(true); }},
             {QStringLiteral("No"), [choose] { choose(false); }},
             {.caption = QStringLiteral("What changes"), .pressed = explain, .answers = false}}};
}
