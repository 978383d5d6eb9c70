#include "texttools/frmChangeRootDirectory.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "forms/modLaunchHTMLHelp.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "texttools/replacedPart.h"
#include "widgets/layout.h"
#include "widgets/screenPointer.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace
{
constexpr int CharactersShown = 44;

QLineEdit *pathBox(const char *name)
{
    QLineEdit *box = ui::text(QLatin1String(name));
    box->setMinimumWidth(box->fontMetrics().averageCharWidth() * CharactersShown);
    return box;
}

QString question(const QString &kind, const QString &old, const QString &newKind, const QString &now)
{
    return QStringLiteral("You are about to convert all instances of %1 links with the name \"%2\" into %3 links with "
                          "the name \"%4\" in the current document.\r\n\r\nDo you wish to continue?")
        .arg(kind, old, newKind, now);
}

QString report(qsizetype count)
{
    return count == 1 ? QStringLiteral("The document has been searched. One replacement was made.")
                      : QStringLiteral("The document has been searched. %1 replacements were made.").arg(count);
}
} // namespace

frmChangeRootDirectory::frmChangeRootDirectory(ProgramContext &context)
    : DialogForm(context, QStringLiteral("frmChangeRootDirectory"))
{
    setCaption(QStringLiteral("Change Root Directory"));
}

void frmChangeRootDirectory::Form_Load()
{
    txtLocal = pathBox("txtLocal");
    txtInternet = pathBox("txtInternet");
    optLocalInternet =
        ui::option(QStringLiteral("optLocalInternet"), QStringLiteral("Local Directory to Internet Directory"));
    optInternetLocal =
        ui::option(QStringLiteral("optInternetLocal"), QStringLiteral("Internet Directory to Local Directory"));
    optLocalInternet->setChecked(true);
    const auto button = [](const char *name, const QString &caption, const ui::Handler &click) {
        return ui::button(QLatin1String(name), caption, click);
    };
    QPushButton *cmdBrowse = button("cmdBrowse", QStringLiteral("Browse..."), [this] { cmdBrowse_Click(); });
    QPushButton *cmdChange = button("cmdChange", QStringLiteral("&Change"), [this] { cmdChange_Click(); });
    QPushButton *cmdCancel = button("cmdCancel", QStringLiteral("Cancel"), [this] { cancel(); });
    QPushButton *cmdHelp = button("cmdHelp", QStringLiteral("Help"), [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/Function_Global_ChangeRootDirectory.htm"));
    });
    setContent(ui::beside({
        ui::column({
            ui::rows({
                ui::row(QStringLiteral("Local Directory:"), txtLocal, {cmdBrowse}),
                ui::row(QStringLiteral("Internet Directory:"), txtInternet),
            }),
            ui::group(QStringLiteral("Convert"), ui::options({optLocalInternet, optInternetLocal})),
        }),
        ui::buttons({cmdChange, cmdCancel, cmdHelp}),
    }));
    setDefaultButton(cmdChange);
    setCancelButton(cmdCancel);
    if (const Document *document = frmMdi().activeDocument())
        txtLocal->setText(folderOf(document->DocSavePath));
    txtInternet->setText(m_internetRoot);
}

void frmChangeRootDirectory::Form_Unload()
{
    m_internetRoot = txtInternet->text();
    DialogForm::Form_Unload();
}

void frmChangeRootDirectory::cmdBrowse_Click()
{
    if (const auto folder = services().commonDialogs.showFolder(QStringLiteral("Local Directory"), txtLocal->text()))
        txtLocal->setText(*folder);
}

void frmChangeRootDirectory::cmdChange_Click()
{
    if (!hasRoots())
        return;
    completeRoots();
    if (isAgreed())
        convert();
}

bool frmChangeRootDirectory::hasRoots()
{
    const QString title = QStringLiteral("Root Directory Name Required");
    QLineEdit *missing = txtLocal->text().isEmpty() ? txtLocal : txtInternet->text().isEmpty() ? txtInternet : nullptr;
    if (!missing)
        return true;
    const MessageBox box{title,
                         missing == txtLocal ? QStringLiteral("Please enter the local root directory name.")
                                             : QStringLiteral("Please enter the Internet root directory name."),
                         MessageIcon::Exclamation, MessageButtons::OK};
    services().messageBoxes.show(box);
    missing->setFocus();
    return false;
}

void frmChangeRootDirectory::completeRoots()
{
    txtInternet->setText(withSeparator(txtInternet->text(), u'/'));
    txtLocal->setText(withSeparator(txtLocal->text(), separatorOf(txtLocal->text())));
}

bool frmChangeRootDirectory::isAgreed()
{
    const QString local = QStringLiteral("local");
    const QString internet = QStringLiteral("Internet");
    const QString text = toInternet() ? question(local, txtLocal->text(), internet, txtInternet->text())
                                      : question(internet, txtInternet->text(), local, txtLocal->text());
    return services().messageBoxes.show({QStringLiteral("Convert root directory"), text, MessageIcon::Question,
                                         MessageButtons::YesNo}) == MessageAnswer::Yes;
}

bool frmChangeRootDirectory::toInternet() const
{
    return !optInternetLocal->isChecked();
}

/// A local path may have the Internet's separator, and then there is none to change.
RootConversion frmChangeRootDirectory::conversion() const
{
    const QChar local = separatorOf(txtLocal->text());
    if (toInternet())
        return {txtLocal->text(), txtInternet->text(), local, u'/'};
    return {txtInternet->text(), txtLocal->text(), u'/', local};
}

void frmChangeRootDirectory::convert()
{
    Document *document = frmMdi().activeDocument();
    if (!document) {
        tell(QStringLiteral("Root Directory Conversion Error"),
             QStringLiteral("An error occurred while changing the root directory"), true);
        return;
    }
    context().screenPointer.setMousePointer(PointerShape::ArrowHourglass);
    TextSurface &edit = document->txtEdit();
    const ConvertedText converted = convertRoot(edit.Text(), conversion());
    if (converted.count > 0) {
        replacePart(edit, converted.text);
        edit.setSelStart(converted.caret);
    }
    tell(QStringLiteral("Change Root Directory"), report(converted.count));
    context().screenPointer.setMousePointer(PointerShape::Default);
    Unload();
}

void frmChangeRootDirectory::tell(const QString &title, const QString &text, bool failed)
{
    services().messageBoxes.show(
        {title, text, failed ? MessageIcon::Critical : MessageIcon::Information, MessageButtons::OK});
}
