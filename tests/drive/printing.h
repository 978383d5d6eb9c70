#pragma once

#include "drive/answers.h"
#include "services/printing.h"

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

    void failNext(int number) { m_failures.append(number); }

    Recorded<PrintedJob> printed;

private:
    std::optional<PrintError> failure();
    QList<int> m_failures;
};
} // namespace drive
