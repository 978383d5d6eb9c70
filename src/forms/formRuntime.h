#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>
#include <typeinfo>
#include <vector>

class Form;
class MdiForm;
class QMdiArea;

/// The forms of a session: those that it owns, loaded or not, and the loaded ones in loading order.
class FormRuntime
{
public:
    FormRuntime();
    ~FormRuntime();
    FormRuntime(const FormRuntime &) = delete;
    FormRuntime &operator=(const FormRuntime &) = delete;

    /// Takes over a form that lives as long as the session, loaded or not.
    void own(std::unique_ptr<Form> form);
    /// The session's form of that class. A session without it is a fault of the program, which ends at once.
    template <class T>
    T &get() const
    {
        for (const std::unique_ptr<Form> &form : m_owned)
            if (auto *wanted = dynamic_cast<T *>(form.get()))
                return *wanted;
        missing(typeid(T).name());
    }
    template <class T>
    void show() const
    {
        get<T>().Show();
    } ///< modeless
    template <class T>
    void showModal() const
    {
        get<T>().ShowModal();
    } ///< returns once it is unloaded or hidden
    /// A form of the session, loaded or not, or else the first loaded one of that name; nothing if there is none. For
    /// names that come from tables and scripts: where the class is known, ask by it.
    Form *find(const QString &name) const;
    QStringList names() const; ///< of all forms of the session, in the order in which it took them over

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
    /// Counts a child as the one that was active longest ago; who is active now is told by the next setActiveChild.
    void deferChild(MdiForm *child);
    void setActivationHeld(bool held) { m_activationHeld = held; } ///< meanwhile setActiveChild does nothing

    /// Takes over a form that lives only as long as its window, such as a document; it is deleted once it is unloaded
    /// and the running handlers have returned.
    void adopt(std::unique_ptr<Form> form);

    /// Takes every window away without running a handler.
    void discardAll();
    /// The same, and gives up the forms that the session owns and all that waits to be deleted by the event loop.
    void end();

private:
    friend class Form;
    [[noreturn]] static void missing(const char *name);
    void add(Form *form);
    void remove(Form *form);
    void releaseAdopted(Form *form);

    QList<Form *> m_loaded;
    std::vector<std::unique_ptr<Form>> m_owned;
    std::vector<std::unique_ptr<Form>> m_adopted;
    Form *m_mainForm = nullptr;
    QMdiArea *m_mdiArea = nullptr;
    bool m_activationHeld = false;
    MdiForm *m_activated = nullptr; ///< the child whose Activate ran last
    QList<MdiForm *> m_activation;  ///< the most recently active one last
};
