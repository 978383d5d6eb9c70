// The line above a document's text.
#include "common/programState.h"
#include "document/frmWrite.h"
#include "services/services.h"
#include "services/settingsStore.h"
#include "surface/editSurface.h"
#include "widgets/noticeBar.h"

#include <QApplication>
#include <QVBoxLayout>

void frmWrite::buildNotices()
{
    m_noticeBar = new NoticeBar;
    contents().addWidget(m_noticeBar);
    connect(m_noticeBar, &NoticeBar::pressed, this, [this](int button) { notices.press(button); });
    connect(m_noticeBar, &NoticeBar::left, this, [this] { m_edit->SetFocus(); });
    notices.watch([this] { showNotice(); });
    showNotice();
    tellSetAside();
}

/// The first document that there is tells what happened before.
void frmWrite::tellSetAside()
{
    QStringList &untold = context().state.setAside;
    untold += services().settings.takeSetAside();
    for (const QString &path : std::as_const(untold))
        notices.put(
            {path,
             NoticeKind::Other,
             QStringLiteral("A file of the program's was far too large to be its own. It was set aside as \"%1\".")
                 .arg(path),
             {{QStringLiteral("OK")}}});
    untold.clear();
}

void frmWrite::showNotice()
{
    if (!isLoaded())
        return;
    const bool hadFocus = m_noticeBar->isAncestorOf(QApplication::focusWidget());
    const Notice *notice = notices.current();
    QList<NoticeBar::Button> buttons;
    if (notice)
        for (const NoticeButton &button : notice->buttons)
            buttons.append({button.caption, button.enabled});
    if (notice)
        m_noticeBar->tell(notice->text, buttons);
    else
        m_noticeBar->clear();
    if (hadFocus) // the button that had it may be another one now
        m_edit->SetFocus();
}
