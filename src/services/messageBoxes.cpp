#include "services/messageBoxes.h"

MessageAnswer answerByEnter(const MessageBox &box)
{
    if (box.byEnter)
        return *box.byEnter;
    switch (box.buttons) {
    case MessageButtons::YesNo:
    case MessageButtons::YesNoCancel:
        return MessageAnswer::Yes;
    case MessageButtons::RetryCancel:
        return MessageAnswer::Retry;
    case MessageButtons::OK:
    case MessageButtons::OKCancel:
        break;
    }
    return MessageAnswer::OK;
}
