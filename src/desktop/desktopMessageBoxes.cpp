#include "desktop/desktopMessageBoxes.h"

#include "desktop/boxOwner.h"

#include <QApplication>
#include <QMessageBox>

namespace
{
QMessageBox::Icon iconOf(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(MessageButtons buttons)
{
    switch (buttons) {
    case MessageButtons::OKCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MessageButtons::RetryCancel:
        return QMessageBox::Retry | QMessageBox::Cancel;
    case MessageButtons::OK:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton buttonOf(MessageAnswer answer)
{
    switch (answer) {
    case MessageAnswer::Yes:
        return QMessageBox::Yes;
    case MessageAnswer::No:
        return QMessageBox::No;
    case MessageAnswer::Cancel:
        return QMessageBox::Cancel;
    case MessageAnswer::Retry:
        return QMessageBox::Retry;
    case MessageAnswer::OK:
        break;
    }
    return QMessageBox::Ok;
}

MessageAnswer answerOf(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    case QMessageBox::Retry:
        return MessageAnswer::Retry;
    case QMessageBox::Cancel:
        return MessageAnswer::Cancel;
    default:
        return MessageAnswer::OK;
    }
}
} // namespace

MessageAnswer DesktopMessageBoxes::show(const MessageBox &box)
{
    QMessageBox window(iconOf(box.icon), box.title, QString(), buttonsOf(box.buttons), boxOwner());
    // File names and pages are quoted in messages: none of it is ever markup.
    window.setTextFormat(Qt::PlainText);
    window.setText(QString(box.text).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    window.setDefaultButton(buttonOf(answerByEnter(box)));
    return answerOf(window.exec());
}
