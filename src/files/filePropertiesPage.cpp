#include "files/filePropertiesPage.h"

#include "common/fileCommands.h"
#include "common/paths.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/services.h"

#include <QCheckBox>
#include <QLabel>
#include <QMimeDatabase>

namespace
{
QLabel *valueLabel(const QString &name)
{
    QLabel *label = ui::label(name, {});
    label->setTextFormat(Qt::PlainText); // a file's name may look like markup
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setMinimumWidth(280);
    return label;
}

QCheckBox *attributeBox(const QString &name, const QString &caption)
{
    QCheckBox *box = ui::check(name, caption);
    box->setEnabled(false);
    return box;
}

QString dateText(const QDateTime &moment)
{
    return moment.isValid() ? moment.toLocalTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")) : QString();
}

/// What kind of file the desktop takes it for, by its name; a desktop that knows no kinds tells the extension.
QString typeText(const QString &path)
{
    const QString kind = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension).comment();
    return kind.isEmpty() ? GetFileExtension(path).toUpper() + QStringLiteral(" file") : kind;
}
} // namespace

ui::Node FilePropertiesPage::build()
{
    lblFileName = valueLabel(QStringLiteral("lblFileName"));
    lblType = valueLabel(QStringLiteral("lblType"));
    lblMsDosName = valueLabel(QStringLiteral("lblMsDosName"));
    lblLocation = valueLabel(QStringLiteral("lblLocation"));
    lblSize = valueLabel(QStringLiteral("lblSize"));
    lblCreated = valueLabel(QStringLiteral("lblCreated"));
    lblLastModified = valueLabel(QStringLiteral("lblLastModified"));
    lblLastAccessed = valueLabel(QStringLiteral("lblLastAccessed"));
    chkReadOnly = attributeBox(QStringLiteral("chkReadOnly"), QStringLiteral("Read-only"));
    chkArchive = attributeBox(QStringLiteral("chkArchive"), QStringLiteral("Archive"));
    chkHidden = attributeBox(QStringLiteral("chkHidden"), QStringLiteral("Hidden"));
    chkSystem = attributeBox(QStringLiteral("chkSystem"), QStringLiteral("System"));
    return ui::column({
        ui::rows({
            ui::row(QStringLiteral("File name:"), lblFileName),
            ui::row(QStringLiteral("Type:"), lblType),
            ui::row(QStringLiteral("Short name:"), lblMsDosName),
            ui::row(QStringLiteral("Location:"), lblLocation),
            ui::row(QStringLiteral("Size:"), lblSize),
            ui::row(QStringLiteral("Created:"), lblCreated),
            ui::row(QStringLiteral("Last modified:"), lblLastModified),
            ui::row(QStringLiteral("Last accessed:"), lblLastAccessed),
        }),
        ui::group(QStringLiteral("Attributes"), ui::line({chkReadOnly, chkArchive, chkHidden, chkSystem})),
    });
}

void FilePropertiesPage::showName(const QString &name)
{
    lblFileName->setText(name);
}

void FilePropertiesPage::show(ProgramContext &context, const QString &path)
{
    showName(FileNameOnly(path));
    FileSystem &files = context.services.files;
    if (const std::optional<FileDetails> details = files.details(path)) {
        showDetails(path, *details);
        return;
    }
    const std::optional<FileError> error = files.checkReadable(path);
    context.files->FileErrors(error ? error->code : FileNotFoundError, error ? error->description : QString());
}

void FilePropertiesPage::showDetails(const QString &path, const FileDetails &details)
{
    lblType->setText(typeText(path));
    lblMsDosName->setText(FileNameOnly(path));
    lblLocation->setText(withoutFinalSeparator(folderOf(path)));
    lblSize->setText(QString::number(details.size) + QStringLiteral(" bytes"));
    lblCreated->setText(dateText(details.created));
    lblLastModified->setText(dateText(details.modified));
    lblLastAccessed->setText(dateText(details.accessed));
    chkReadOnly->setChecked(details.readOnly);
    chkHidden->setChecked(details.hidden);
}
