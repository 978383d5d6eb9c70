#pragma once

#include <QObject>

class QWidget;

/// Tells a keyboard that the user has moved into a page from one that the engine takes by itself, as it does where it
/// makes a page's process anew; and keeps it in the page when the engine puts another part in place of the one that
/// had it.
class PageFocus final : public QObject
{
    Q_OBJECT
public:
    /// Watches the view's widget and those that the engine puts into it.
    explicit PageFocus(QWidget &view);

    /// The user has put the keyboard into the page and not moved it elsewhere in the window since.
    bool isHeld() const { return m_held; }
    /// Another part of the window has the keyboard now: the user has left the page, unless a window that goes to the
    /// back has only handed it on.
    void release();

Q_SIGNALS:
    void taken(); ///< the page has the keyboard and nobody has put it there

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isByUser(Qt::FocusReason reason) const;
    bool isHandedOn(Qt::FocusReason reason) const;
    bool isInView(const QObject *watched) const;
    void focusCame(Qt::FocusReason reason);
    void putBack();

    bool m_handedOn = false;   ///< the part that has the keyboard outside the view got it from a window on its way back
    bool m_tabPressed = false; ///< a Tab is down
    bool m_held = false;       ///< the user has put the keyboard into the page, where it comes back to with the window
};
