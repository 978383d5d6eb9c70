#include "project/fileIcons.h"

#include "common/paths.h"
#include "widgets/programIcon.h"

#include <QColor>
#include <QHash>

namespace
{
QIcon editorFile()
{
    return programIcon(QStringLiteral("file-code"), QColor(0x1F5FA8), QColor(0x7DB4F0));
}

QIcon otherFile()
{
    return programIcon(QStringLiteral("file"));
}

QIcon picture()
{
    return programIcon(QStringLiteral("file-image"), QColor(0x2F7D4F), QColor(0x7FCB9E));
}
} // namespace

QList<QIcon> projectFileIcons()
{
    return {editorFile(), otherFile()};
}

QList<QIcon> localFileIcons()
{
    return {editorFile(),
            otherFile(),
            picture(),
            picture(),
            programIcon(QStringLiteral("app-window")),
            picture(),
            programIcon(QStringLiteral("file-archive")),
            programIcon(QStringLiteral("file-text")),
            picture()};
}

int localFileIcon(const QString &path)
{
    static const QHash<QString, int> icons{
        {QStringLiteral("htm"), 1}, {QStringLiteral("html"), 1}, {QStringLiteral("gif"), 3}, {QStringLiteral("jpg"), 4},
        {QStringLiteral("exe"), 5}, {QStringLiteral("ico"), 6},  {QStringLiteral("cab"), 7}, {QStringLiteral("zip"), 7},
        {QStringLiteral("txt"), 8}, {QStringLiteral("bmp"), 9}};
    return icons.value(GetFileExtension(path).toLower(), 2);
}
