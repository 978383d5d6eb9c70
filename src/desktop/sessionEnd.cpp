#include "desktop/sessionEnd.h"

#include "frame/application.h"

#include <QGuiApplication>
#include <QSessionManager>

namespace
{
class DesktopManager final : public SessionManager
{
public:
    explicit DesktopManager(QSessionManager &manager) : m_manager(manager) {}
    bool allowsInteraction() override { return m_manager.allowsInteraction(); }
    void release() override { m_manager.release(); }
    void cancel() override { m_manager.cancel(); }

private:
    QSessionManager &m_manager;
};
} // namespace

void answerSessionEnd(SessionManager &manager, const std::function<bool(bool)> &mayEnd)
{
    mayEnd(false); // whatever becomes of the question
    if (!manager.allowsInteraction())
        return;
    const bool ends = mayEnd(true);
    manager.release();
    if (!ends)
        manager.cancel();
}

SessionEnd::SessionEnd(QGuiApplication &desktop, Application &program)
    : m_signals([&program] { program.endKeepingText(); })
{
    QObject::connect(&desktop, &QGuiApplication::commitDataRequest, &program, [&program](QSessionManager &session) {
        DesktopManager manager(session);
        answerSessionEnd(manager, [&program](bool mayAsk) { return program.mayEndSession(mayAsk); });
    });
}
