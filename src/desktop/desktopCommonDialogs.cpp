#include "desktop/desktopCommonDialogs.h"

#include "common/dialogFilter.h"
#include "common/paths.h"
#include "desktop/boxOwner.h"
#include "desktop/desktopPrinting.h"
#include "widgets/themeColour.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>

namespace
{
// A filter as the toolkit takes it, and tells back which row was chosen: by the whole text or by what it shows of it.
struct NameFilters {
    QStringList shown;
    QStringList whole; // what is shown, and behind it the patterns in brackets, parted by blanks
};

NameFilters nameFiltersOf(const QString &filter)
{
    NameFilters filters;
    for (const DialogFilterRow &row : parseDialogFilter(filter)) {
        QString shown = row.description.simplified();
        while (filters.shown.contains(shown)) // rows that look the same are told apart by what nobody sees
            shown += QChar(0x200B);
        QStringList patterns = row.patterns;
        // A program has no ending here.
        for (const QString &any : {QStringLiteral("*.*"), QStringLiteral("*.exe")})
            patterns.replaceInStrings(any, QStringLiteral("*"));
        filters.shown += shown;
        filters.whole += shown + QStringLiteral(" (") + patterns.join(u' ') + QLatin1Char(')');
    }
    if (filters.whole.isEmpty())
        return {{QStringLiteral("*")}, {QStringLiteral("*")}};
    return filters;
}

int chosenIndex(const NameFilters &filters, const QString &selected, int otherwise)
{
    const qsizetype place = qMax(filters.whole.indexOf(selected), filters.shown.indexOf(selected));
    return place < 0 ? otherwise : static_cast<int>(place) + 1;
}

bool isFolder(const QString &path)
{
    return !path.isEmpty() && QFileInfo(path).isDir();
}

void setStartingPoint(QFileDialog &dialog, const FileDialogRequest &request)
{
    const QString folder = folderOf(request.FileName);
    if (isFolder(folder))
        dialog.setDirectory(folder);
    else
        dialog.setDirectory(startingFolder(request));
    if (!request.FileName.isEmpty())
        dialog.selectFile(folder.isEmpty() ? request.FileName : request.FileName.sliced(folder.size()));
}

/// The folders beside the list: those of the user, of the program's pages and of the page in front.
void setSidebar(QFileDialog &dialog, const FileDialogRequest &request)
{
    QList<QUrl> places;
    for (const QString &place : {QDir::rootPath(), QDir::homePath(), request.InitDir, request.NearDir}) {
        const QUrl url = QUrl::fromLocalFile(QDir::cleanPath(place));
        if (isFolder(place) && !places.contains(url))
            places.append(url);
    }
    dialog.setSidebarUrls(places);
}

std::optional<FileDialogResult> runFileDialog(QFileDialog &dialog, const FileDialogRequest &request)
{
    const NameFilters filters = nameFiltersOf(request.Filter);
    const int proposed = qBound(1, request.FilterIndex, static_cast<int>(filters.whole.size()));
    if (!request.DialogTitle.isEmpty())
        dialog.setWindowTitle(request.DialogTitle);
    // The descriptions name their patterns themselves.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(filters.whole);
    dialog.selectNameFilter(filters.whole.at(proposed - 1));
    setSidebar(dialog, request);
    setStartingPoint(dialog, request);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    const QStringList chosen = dialog.selectedFiles();
    return FileDialogResult{chosen.constFirst(), chosenIndex(filters, dialog.selectedNameFilter(), proposed),
                            chosen.sliced(1)};
}
} // namespace

QString startingFolder(const FileDialogRequest &request)
{
    for (const QString &folder : {request.InitDir, request.NearDir})
        if (isFolder(folder))
            return folder;
    return QDir::homePath();
}

std::optional<FileDialogResult> DesktopCommonDialogs::showOpen(const FileDialogRequest &request)
{
    QFileDialog dialog(boxOwner());
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(request.severalFiles ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    return runFileDialog(dialog, request);
}

std::optional<FileDialogResult> DesktopCommonDialogs::showSave(const FileDialogRequest &request)
{
    QFileDialog dialog(boxOwner());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.asksBeforeReplacing);
    dialog.setDefaultSuffix(request.DefaultExt);
    std::optional<FileDialogResult> chosen = runFileDialog(dialog, request);
    if (!chosen || !request.DefaultExt.isEmpty() || request.asksBeforeReplacing)
        return chosen;
    return withEnding(*chosen, request.Filter, [](const QString &path) { return QFileInfo::exists(path); });
}

std::optional<QString> DesktopCommonDialogs::showFolder(const QString &title, const QString &initialFolder)
{
    QFileDialog dialog(boxOwner(), title, initialFolder);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return withoutFinalSeparator(dialog.selectedFiles().constFirst());
}

std::optional<ColourValue> DesktopCommonDialogs::showColour(ColourValue initial)
{
    QColorDialog dialog(shownColour(initial, QApplication::palette()), boxOwner());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return colourValue(dialog.selectedColor());
}

std::optional<FontChoice> DesktopCommonDialogs::showFont(const FontChoice &initial)
{
    QFontDialog dialog(QFont(initial.family, qMax(initial.points, 1)), boxOwner());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return FontChoice{dialog.selectedFont().family(), dialog.selectedFont().pointSize()};
}

std::optional<int> DesktopCommonDialogs::showPrint()
{
    PaperPrinter *printer = m_printing.printer();
    return printer ? printer->showDialog(boxOwner()) : 1; // printing tells what is missing
}
