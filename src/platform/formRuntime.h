#pragma once

#include <QList>
#include <memory>
#include <vector>

class Form;

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
};
