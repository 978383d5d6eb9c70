#include "common/fileBook.h"

#include "common/habits.h"

namespace
{
QStringList kinds(const QString &words)
{
    return words.split(u' ');
}

const FileBook &classicFiles()
{
    static const FileBook book{.severalFiles = false,
                               .pictureKinds = kinds(QStringLiteral("gif jpg jpeg bmp dib ico cur")),
                               .pictureRows = {},
                               .leavingKeepsField = false,
                               .imagesNeedSource = false};
    return book;
}

const FileBook &todaysFiles()
{
    static const FileBook book{
        .severalFiles = true,
        .pictureKinds = kinds(QStringLiteral("png svg webp avif apng gif jpg jpeg bmp dib ico cur")),
        .pictureRows = QStringLiteral("|PNG Files (*.png; *.apng)|*.png;*.apng|SVG Drawings (*.svg)|*.svg"
                                      "|WebP Files (*.webp)|*.webp|AVIF Files (*.avif)|*.avif"),
        .leavingKeepsField = true,
        .imagesNeedSource = true};
    return book;
}
} // namespace

const FileBook &fileBook(const Habits &habits)
{
    return habits.HabitDialogs ? todaysFiles() : classicFiles();
}
