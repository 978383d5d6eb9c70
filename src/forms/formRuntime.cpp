#include "forms/formRuntime.h"

#include "forms/mdiForm.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <utility>

FormRuntime::FormRuntime() = default;

FormRuntime::~FormRuntime()
{
    end();
}

void FormRuntime::own(std::unique_ptr<Form> form)
{
    m_owned.push_back(std::move(form));
}

QStringList FormRuntime::names() const
{
    QStringList names;
    for (const std::unique_ptr<Form> &form : m_owned)
        names.append(form->Name());
    return names;
}

Form *FormRuntime::find(const QString &name) const
{
    const auto found =
        std::find_if(m_owned.begin(), m_owned.end(), [&](const auto &owned) { return owned->Name() == name; });
    return found == m_owned.end() ? loaded(name) : found->get();
}

void FormRuntime::missing(const char *name)
{
    qFatal("The session has no form of the class %s", name);
}

Form *FormRuntime::loaded(const QString &name) const
{
    const auto found = std::find_if(m_loaded.begin(), m_loaded.end(), [&](Form *form) { return form->Name() == name; });
    return found == m_loaded.end() ? nullptr : *found;
}

void FormRuntime::setActiveChild(MdiForm *child)
{
    if (m_activationHeld)
        return;
    m_activation.removeAll(child);
    m_activation.append(child);
    if (m_activated == child)
        return;
    MdiForm *left = std::exchange(m_activated, child);
    if (left)
        left->deactivated();
    child->activated();
}

void FormRuntime::forgetChild(MdiForm *child)
{
    m_activation.removeAll(child);
    if (m_activated == child)
        m_activated = nullptr;
}

void FormRuntime::deferChild(MdiForm *child)
{
    if (m_activation.removeAll(child))
        m_activation.prepend(child);
}

void FormRuntime::adopt(std::unique_ptr<Form> form)
{
    m_adopted.push_back(std::move(form));
}

void FormRuntime::discardAll()
{
    // The windows of dialogs and documents lie in the main window's, so that one goes last.
    while (!m_loaded.isEmpty())
        m_loaded.last()->discard();
}

void FormRuntime::end()
{
    discardAll();
    // Forms and windows that wait for the event loop to delete them still read what the session shares.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_adopted.clear();
    m_owned.clear();
}

void FormRuntime::add(Form *form)
{
    m_loaded.append(form);
}

void FormRuntime::remove(Form *form)
{
    m_loaded.removeAll(form);
}

void FormRuntime::releaseAdopted(Form *form)
{
    const auto found =
        std::find_if(m_adopted.begin(), m_adopted.end(), [form](const auto &owned) { return owned.get() == form; });
    if (found == m_adopted.end())
        return;
    found->release()->deleteLater();
    m_adopted.erase(found);
}
