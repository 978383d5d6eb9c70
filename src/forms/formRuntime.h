#pragma once

#include <QList>
#include <memory>
#include <vector>

class Form;
class MdiForm;
class QMdiArea;

/// The loaded forms of a session, in loading order.
class FormRuntime
{
public:
    FormRuntime();
    ~FormRuntime();
    FormRuntime(const FormRuntime &) = delete;
    FormRuntime &operator=(const FormRuntime &) = delete;

    /// The loaded forms from the first loaded to the last. A copy, so that a scan survives what it does.
    QList<Form *> loaded() const { return m_loaded; }
    Form *loaded(const QString &name) const; ///< the first loaded form of that name; nothing if there is none

    /// The form that owns the dialogs' windows.
    void setMainForm(Form *form) { m_mainForm = form; }
    Form *mainForm() const { return m_mainForm; }

    /// The area of the main window that holds the document windows.
    void setMdiArea(QMdiArea *area) { m_mdiArea = area; }
    QMdiArea *mdiArea() const { return m_mdiArea; }

    /// The child form that was active last, whether the main window is on show yet or not; nothing without children.
    MdiForm *activeChild() const { return m_activation.isEmpty() ? nullptr : m_activation.last(); }
    /// Makes a child the active one and runs the Deactivate and Activate of the two, once each change.
    void setActiveChild(MdiForm *child);
    void forgetChild(MdiForm *child);
    void setActivationHeld(bool held) { m_activationHeld = held; } ///< meanwhile setActiveChild does nothing

    /// Takes over a form that lives only as long as its window, such as a document; it is deleted once it is unloaded
    /// and the running handlers have returned.
    void adopt(std::unique_ptr<Form> form);

    /// Takes every window away without running a handler.
    void discardAll();

private:
    friend class Form;
    void add(Form *form);
    void remove(Form *form);
    void releaseAdopted(Form *form);

    QList<Form *> m_loaded;
    std::vector<std::unique_ptr<Form>> m_adopted;
    Form *m_mainForm = nullptr;
    QMdiArea *m_mdiArea = nullptr;
    bool m_activationHeld = false;
    MdiForm *m_activated = nullptr; ///< the child whose Activate ran last
    QList<MdiForm *> m_activation;  ///< the most recently active one last
};
