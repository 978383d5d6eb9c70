#pragma once

#include "desktop/desktopPrinting.h"
#include "drive/answers.h"

namespace drive
{
/// What a finished print job put on paper.
struct PrintedJob {
    int copies = 1;
    QString title;
    QStringList lines; ///< of one copy, without the foot of the pages
    QString told() const;
};

/// Prints on paper that only the script can see: A4 with margins of half an inch.
class ScriptedPrinting final : public Printing
{
public:
    Paper paper(const QFont &font) override;
    std::optional<PrintError> print(const PrintJob &job, const std::function<bool(int)> &goOn) override;
    /// Recorded as a job without lines.
    std::optional<PrintError> printPicture(const PictureJob &job) override;
    SvgFile svg(const SvgJob &job) override;

    void failNext(int number) { m_failures.append(number); }
    /// From now on the module that draws into files is not installed.
    void loseModule() { m_real = std::make_unique<DesktopPrinting>(QStringList()); }

    Recorded<PrintedJob> printed;

private:
    std::optional<PrintError> failure();
    QList<int> m_failures;
    std::unique_ptr<DesktopPrinting> m_real = std::make_unique<DesktopPrinting>(partFolders());
};
} // namespace drive
