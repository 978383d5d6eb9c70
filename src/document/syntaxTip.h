#pragma once

#include "common/textSelection.h"

#include <QPlainTextEdit>

/// What is picked out in the syntax line of an element, in positions from 0.
struct TipFormats {
    TextSelection bold;          ///< the element's name
    QList<TextSelection> italic; ///< the hints, each range a character to the right of its brackets
    bool operator==(const TipFormats &) const = default;
};
TipFormats tipFormats(QStringView syntax);

/// The tip that shows the syntax line of an element. It takes no text and keeps no focus.
class SyntaxTip final : public QPlainTextEdit
{
    Q_OBJECT
public:
    explicit SyntaxTip(QWidget *parent);
    void setSyntax(const QString &syntax);
    /// What the tip's frame and margins take beside the text, on both sides together.
    int sideways() const;
    /// Shows a scroll bar for a text that is higher than the tip.
    void setCut(bool cut);

Q_SIGNALS:
    void clicked();
    void gotFocus();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void pickOut();
    bool m_pickingOut = false; ///< formats are told as changes of the text
};
