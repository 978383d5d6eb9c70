#pragma once

#include <QMainWindow>
#include <QStringList>
#include <functional>

/// The window of the main window's form: its close box asks the form, and lists of files can be dropped on it.
class MainWindowFrame final : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindowFrame(std::function<void()> closeRequested);

    /// Runs with the native paths of a dropped list of files, in its order.
    void setDropHandler(std::function<void(const QStringList &)> handler) { m_dropped = std::move(handler); }

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    std::function<void()> m_closeRequested;
    std::function<void(const QStringList &)> m_dropped;
};
