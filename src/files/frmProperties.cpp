#include "files/frmProperties.h"

#include "common/mainWindow.h"
#include "common/paths.h"
#include "files/metaElements.h"
#include "widgets/layout.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>

namespace
{
QLineEdit *shownText(const QString &name)
{
    QLineEdit *text = ui::text(name);
    text->setReadOnly(true);
    return text;
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
        m_file.showName(document->documentCaption());
        setCaption(document->documentCaption() + QStringLiteral(" Properties"));
    } else {
        setCaption(FileNameOnly(document->DocSavePath) + QStringLiteral(" Properties"));
        m_file.show(context(), document->DocSavePath);
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
    lblSaved = ui::label(QStringLiteral("lblSaved"), {});
    lblSaved->setWordWrap(true);
    return ui::column({m_file.build(), lblSaved, ui::space()});
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

void frmProperties::showSummary(const Document &document)
{
    const QString page = document.txtEdit().Text();
    txtAuthor->setText(metaContent(page, QStringLiteral("author")));
    txtKeywords->setText(metaContent(page, QStringLiteral("keywords")));
    txtDescription->setPlainText(metaContent(page, QStringLiteral("description")));
}
