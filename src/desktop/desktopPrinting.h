#pragma once

#include "services/printing.h"

#include <memory>

class QPrinter;

/// Prints by the desktop's printing system, to a printer or into a PDF file.
class DesktopPrinting final : public Printing
{
public:
    DesktopPrinting();
    ~DesktopPrinting() override;

    /// The printer that the print dialog is about. It is made by the first use, for looking for printers takes time.
    QPrinter &printer();

    Paper paper(const QFont &font) override;
    std::optional<PrintError> print(const PrintJob &job, const std::function<bool(int)> &goOn) override;
    std::optional<PrintError> printPicture(const PictureJob &job) override;

private:
    std::unique_ptr<QPrinter> m_printer;
};

/// Prints a job on that printer. For whoever has a printer of his own, as tests do.
std::optional<PrintError> printOn(QPrinter &printer, const PrintJob &job, const std::function<bool(int)> &goOn);
std::optional<PrintError> printPictureOn(QPrinter &printer, const PictureJob &job);
