#pragma once

#include "services/commonDialogs.h"

class DesktopPrinting;

/// The folder that a file dialog starts in where no name is proposed: the one asked for, the one near by, or the home,
/// whichever is there.
QString startingFolder(const FileDialogRequest &request);

/// The dialogs of the desktop, or the toolkit's where the desktop has none of its own.
class DesktopCommonDialogs final : public CommonDialogs
{
public:
    /// The print dialog chooses the printer of `printing`.
    explicit DesktopCommonDialogs(DesktopPrinting &printing) : m_printing(printing) {}

    std::optional<FileDialogResult> showOpen(const FileDialogRequest &request) override;
    std::optional<FileDialogResult> showSave(const FileDialogRequest &request) override;
    std::optional<QString> showFolder(const QString &title, const QString &initialFolder) override;
    std::optional<ColourValue> showColour(ColourValue initial) override;
    std::optional<FontChoice> showFont(const FontChoice &initial) override;
    std::optional<int> showPrint() override;

private:
    DesktopPrinting &m_printing;
};
