#include "files/frmProperties.h"

#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "files/metaElements.h"
#include "services/services.h"
#include "widgets/layout.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMimeDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>

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

QLineEdit *shownText(const QString &name)
{
    QLineEdit *text = ui::text(name);
    text->setReadOnly(true);
    return text;
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

frmProperties::frmProperties(ProgramContext &context) : DialogForm(context, QStringLiteral("frmProperties"))
{
    setCaption(QStringLiteral("Document Properties"));
}

void frmProperties::Form_Load()
{
    setCaption(QStringLiteral("Document Properties"));
    buildControls();
    const Document *document = frmMdi().activeDocument();
    if (!document)
        return;
    if (document->DocSavePath.isEmpty()) {
        lblFileName->setText(document->documentCaption());
        setCaption(document->documentCaption() + QStringLiteral(" Properties"));
    } else {
        showFile(document->DocSavePath);
    }
    lblSaved->setText(document->boolDirty ? QStringLiteral("Changes to this file have not been saved.")
                                          : QStringLiteral("This file does not need to be saved."));
    showSummary(*document);
}

void frmProperties::buildControls()
{
    QTabBar *tabProperties =
        ui::tabStrip(QStringLiteral("tabProperties"), {QStringLiteral("File"), QStringLiteral("Summary")});
    tabProperties->setAccessibleName(QStringLiteral("Pages of properties"));
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), [this] { cancel(); });
    setContent(ui::column({
        ui::pages(tabProperties, QStringLiteral("picPage"), {filePage(), summaryPage()}),
        ui::line({ui::space(), cmdOK}),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdOK);
}

ui::Node frmProperties::filePage()
{
    lblFileName = valueLabel(QStringLiteral("lblFileName"));
    lblType = valueLabel(QStringLiteral("lblType"));
    lblMsDosName = valueLabel(QStringLiteral("lblMsDosName"));
    lblLocation = valueLabel(QStringLiteral("lblLocation"));
    lblSize = valueLabel(QStringLiteral("lblSize"));
    lblCreated = valueLabel(QStringLiteral("lblCreated"));
    lblLastModified = valueLabel(QStringLiteral("lblLastModified"));
    lblLastAccessed = valueLabel(QStringLiteral("lblLastAccessed"));
    lblSaved = valueLabel(QStringLiteral("lblSaved"));
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
        lblSaved,
        ui::space(),
    });
}

ui::Node frmProperties::summaryPage()
{
    txtAuthor = shownText(QStringLiteral("txtAuthor"));
    txtKeywords = shownText(QStringLiteral("txtKeywords"));
    txtDescription = ui::textArea(QStringLiteral("txtDescription"));
    txtDescription->setReadOnly(true);
    return ui::column({ui::rows({
        ui::row(QStringLiteral("&Author:"), txtAuthor),
        ui::row(QStringLiteral("&Keywords:"), txtKeywords),
        ui::row(QStringLiteral("&Description:"), txtDescription),
    })});
}

void frmProperties::showFile(const QString &path)
{
    lblFileName->setText(FileNameOnly(path));
    setCaption(FileNameOnly(path) + QStringLiteral(" Properties"));
    if (const std::optional<FileDetails> details = services().files.details(path)) {
        showDetails(path, *details);
        return;
    }
    const std::optional<FileError> error = services().files.checkReadable(path);
    context().files->FileErrors(error ? error->code : FileNotFoundError, error ? error->description : QString());
}

void frmProperties::showDetails(const QString &path, const FileDetails &details)
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

void frmProperties::showSummary(const Document &document)
{
    const QString page = document.txtEdit().Text();
    txtAuthor->setText(metaContent(page, QStringLiteral("author")));
    txtKeywords->setText(metaContent(page, QStringLiteral("keywords")));
    txtDescription->setPlainText(metaContent(page, QStringLiteral("description")));
}
