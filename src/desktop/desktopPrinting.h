#pragma once

#include "services/paperEngine.h"
#include "services/printing.h"
#include "services/programPart.h"

/// Prints by the desktop's printing system, to a printer or into a PDF file. What it does so by is a module that the
/// first use loads; without it paper is of the usual size and nothing can be printed.
class DesktopPrinting final : public Printing
{
public:
    /// The module is looked for in these folders.
    explicit DesktopPrinting(const QStringList &folders);

    /// The printer that the print dialog is about; null without the module. It is made by the first use, for looking
    /// for printers takes time.
    PaperPrinter *printer();

    Paper paper(const QFont &font) override;
    std::optional<PrintError> print(const PrintJob &job, const std::function<bool(int)> &goOn) override;
    std::optional<PrintError> printPicture(const PictureJob &job) override;
    SvgFile svg(const SvgJob &job) override;

private:
    PrintError withoutModule() const;

    ProgramPart m_part;
    std::unique_ptr<PaperPrinter> m_printer;
};
