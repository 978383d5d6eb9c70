#pragma once

#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

class Application;
class DesktopServices;
class Form;

/// The whole program over a home that holds its data and nothing else, with its main window on show and one blank
/// document in it. A box that comes up is left, since nobody answers it.
class WholeProgram : public testing::Test
{
protected:
    WholeProgram();
    ~WholeProgram() override;

    /// Runs what waits in the queue, the deletion of windows too.
    static void settle();

    /// Runs `look` on each dialog, loaded and not yet shown, and takes it away after.
    void forEachDialog(const std::function<void(Form &)> &look);

    /// Loads, shows and activates a form, as at its command.
    static void present(Form &form);

    QTemporaryDir home;
    std::unique_ptr<DesktopServices> desktop;
    std::unique_ptr<Application> application;

private:
    QTimer m_closer;
};

/// Runs `look` with each page of the window's tab strip in front; once where it has none.
void forEachPage(const QWidget &window, const std::function<void()> &look);
