#pragma once

#include <QPagedPaintDevice>
#include <QSizeF>
#include <QtPlugin>
#include <memory>
#include <optional>

class QIODevice;
class QWidget;

/// A printer to draw on, at first the desktop's usual one.
class PaperPrinter
{
public:
    PaperPrinter() = default;
    PaperPrinter(const PaperPrinter &) = delete;
    PaperPrinter &operator=(const PaperPrinter &) = delete;
    virtual ~PaperPrinter() = default;

    virtual QPagedPaintDevice &device() = 0;
    /// Whether there is a printer behind it, or a file that takes its place.
    virtual bool isValid() const = 0;
    /// Whether what was drawn last did not come to be printed.
    virtual bool hasFailed() const = 0;
    /// What the next job is called among the desktop's.
    virtual void setTitle(const QString &title) = 0;
    /// Calls the job off that is being drawn.
    virtual void abort() = 0;
    /// Has the user choose the printer in the desktop's dialog, in front of `owner`. How many copies are wanted;
    /// nothing if he called it off.
    virtual std::optional<int> showDialog(QWidget *owner) = 0;
};

/// What draws on other things than the screen: a module of its own, for a start does not print. The module's root
/// object.
class PaperEngine
{
public:
    PaperEngine() = default;
    PaperEngine(const PaperEngine &) = delete;
    PaperEngine &operator=(const PaperEngine &) = delete;
    virtual ~PaperEngine() = default;

    /// Looking for printers takes time.
    virtual std::unique_ptr<PaperPrinter> newPrinter() = 0;
    /// What turns a drawing into a picture of vector graphics (SVG) of that size, in pixels of the screen. `out` has
    /// the whole of it when the painter ends.
    virtual std::unique_ptr<QPaintDevice> newSvg(QIODevice &out, const QSizeF &size) = 0;
};

Q_DECLARE_INTERFACE(PaperEngine, "org.tagwrighter.PaperEngine/1")
