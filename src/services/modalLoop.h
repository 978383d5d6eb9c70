#pragma once

class Form;

/// Waits while a form is shown as a modal box.
class ModalLoop
{
public:
    virtual ~ModalLoop() = default;
    /// Returns once `form`, which is on show, is unloaded or hidden.
    virtual void run(Form &form) = 0;
};
