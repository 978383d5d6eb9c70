#pragma once

#include "forms/form.h"

class QVBoxLayout;

/// A form whose window is a child of the main window, beside others of its kind.
class MdiForm : public Form
{
    Q_OBJECT
public:
    using Form::Form;

    bool MDIChild() const final { return true; }
    /// Brings the window to the front of the main window and makes it the active child.
    void bringToFront();
    /// Puts the window behind all others of its kind; the one that was active before it becomes the active child.
    void sendToBack();

protected:
    QWidget *createWindow() override;
    void presentWindow() override;
    void detachWindow() override;

    /// The area inside the window's frame, to be filled by Form_Load.
    QVBoxLayout &contents() const { return *m_contents; }

private:
    void fillArea();

    QVBoxLayout *m_contents = nullptr;
};
