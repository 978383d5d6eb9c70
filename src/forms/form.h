#pragma once

#include "forms/programContext.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

class QAbstractButton;
class QPushButton;
namespace ui
{
class Node;
}

/// A form: an object that lives for the whole session and owns a window only between Load and Unload.
///
/// Loading builds the window and its controls anew from their design values and then runs Form_Load; the form's own
/// fields live on through Unload into the next Load. Each control's objectName is its name in the code; members of a
/// control array are named with their index, as in "picBullet(3)".
///
/// Whoever destroys a form that may still be loaded discards it first, as FormRuntime::discardAll does for a whole
/// session: handlers that run while the window goes are the derived class's.
class Form : public QObject
{
    Q_OBJECT
public:
    Form(ProgramContext &context, const QString &name);
    ~Form() override;

    const QString &Name() const { return m_name; }
    virtual bool MDIChild() const { return false; }
    bool isLoaded() const { return m_loaded; }
    bool Visible() const;

    QString Caption() const { return m_caption; }
    void setCaption(const QString &caption);

    /// Builds the window and runs Form_Load; nothing if the form is loaded.
    void Load();
    /// Loads the form if need be and shows it modeless, owned by the main window.
    void Show();
    /// Loads the form if need be and shows it modally; returns once it is unloaded or hidden.
    void ShowModal();
    void Hide();
    /// Asks Form_QueryUnload, runs Form_Unload, takes the form off the list of loaded forms and deletes its window once
    /// the running handlers have returned. False if the unload was called off; true if the form was not loaded.
    bool Unload();
    /// Unloads without asking, where the question has been answered already.
    void unloadAgreed();
    /// Takes the window away without asking and without running a handler, as when the program ends at once.
    void discard();

    /// The window between Load and Unload; nothing otherwise.
    QWidget *window() const { return m_window; }
    /// Run Form_Activate and Form_Deactivate, for whoever knows that the window was activated or left.
    void activated() { Form_Activate(); }
    void deactivated() { Form_Deactivate(); }
    /// The control, timer or command of that name ("txtRows", "picBullet(3)"); nothing if the form has none.
    virtual QObject *control(const QString &name) const;

Q_SIGNALS:
    void unloaded();
    void hidden();

protected:
    virtual void Form_Load() = 0;
    virtual void prepareLoad() {} ///< runs before Form_Load, for what a kind of form always begins with
    virtual bool Form_QueryUnload() { return true; } ///< false calls the unload off
    virtual void Form_Unload() {}
    virtual void Form_Activate() {}
    virtual void Form_Deactivate() {}

    /// The empty window that Load fills: by default a dialog owned by the main window.
    virtual QWidget *createWindow();
    /// Puts the window on the screen, raised and active.
    virtual void presentWindow();

    /// Takes the window off the screen at the end of its life; it is deleted later.
    virtual void detachWindow();

    /// Fills the window with the described controls, once a Load.
    void setContent(const ui::Node &content);
    /// The button that Enter presses where no other button has the focus, and the one that Escape presses; before or
    /// after setContent.
    void setDefaultButton(QPushButton *button);
    void setCancelButton(QAbstractButton *button);

    ProgramContext &context() const { return m_context; }
    Services &services() const { return m_context.services; }
    MainWindow &frmMdi() const { return *m_context.mainWindow; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class FormRuntime;
    void releaseWindow();

    ProgramContext &m_context;
    QString m_name;
    QString m_caption;
    QPointer<QWidget> m_window;
    QPointer<QPushButton> m_defaultButton;
    QPointer<QAbstractButton> m_cancelButton;
    bool m_loaded = false;
};
