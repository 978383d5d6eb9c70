#pragma once

#include <QString>
#include <optional>

enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageButtons { OK, OKCancel, YesNo, YesNoCancel, RetryCancel };
enum class MessageAnswer { OK, Yes, No, Cancel, Retry };

/// A question or a message to the user.
struct MessageBox {
    QString title;
    QString text; ///< plain text, whatever it looks like; breaks are CR LF
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::OK;
    /// What Enter answers, by default the first button. A question whose Yes takes something away that can't be had
    /// back, or sends it away, says No here.
    std::optional<MessageAnswer> byEnter = {};
};

/// What Enter answers to the box.
MessageAnswer answerByEnter(const MessageBox &box);

class MessageBoxes
{
public:
    MessageBoxes() = default;
    MessageBoxes(const MessageBoxes &) = delete;
    MessageBoxes &operator=(const MessageBoxes &) = delete;
    virtual ~MessageBoxes() = default;

    /// Shows the box in front of the active window and waits for the answer, which is one of its buttons. Leaving it by
    /// its close box is Cancel; OK or No where it has no such button.
    virtual MessageAnswer show(const MessageBox &box) = 0;
};
