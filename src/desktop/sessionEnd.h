#pragma once

#include "desktop/endSignals.h"

#include <functional>

class Application;
class QGuiApplication;

/// What the desktop's session manager lets a program do before the session ends.
class SessionManager
{
public:
    SessionManager() = default;
    SessionManager(const SessionManager &) = delete;
    SessionManager &operator=(const SessionManager &) = delete;
    virtual ~SessionManager() = default;

    virtual bool allowsInteraction() = 0; ///< asks it to wait; true if it does
    virtual void release() = 0;           ///< it need not wait any longer
    virtual void cancel() = 0;            ///< the session is to go on
};

/// Answers the session manager. `mayEnd` brings unsaved text to the disk; given true, it asks the user too, and gives
/// false where the user stays.
void answerSessionEnd(SessionManager &manager, const std::function<bool(bool)> &mayEnd);

/// Has a program end as the desktop wants it to, for as long as this lives: by its session manager, or by a signal.
class SessionEnd
{
public:
    SessionEnd(QGuiApplication &desktop, Application &program);

private:
    EndSignals m_signals;
};
