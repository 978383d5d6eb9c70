#include "shell/frmAbout.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "services/launcher.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/systemFacts.h"
#include "shell/frmSysInfo.h"
#include "widgets/layout.h"
#include "widgets/programIcon.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace
{
QString partsText()
{
    return QStringLiteral(
        "Tagwrighter is free software under the MIT licence: you may use, copy, change and pass it on, as long as its "
        "notice goes with it. It comes without any warranty.\n\n"
        "It is made of, and with:\n"
        "- Qt 6, with Qt WebEngine and the Chromium engine inside it, under the GNU Lesser General Public License 3\n"
        "- icons of the Lucide project, under the ISC licence\n"
        "- what is known of HTML and CSS, from the works that the file LICENSE-codes names\n\n"
        "The licences stand in full in the files that come with the program.");
}

QLabel *heading(const QString &name, const QString &text)
{
    QLabel *label = ui::label(name, text);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.4);
    label->setFont(font);
    return label;
}
} // namespace

frmAbout::frmAbout(ProgramContext &context) : Form(context, QStringLiteral("frmAbout"))
{
    setCaption(QStringLiteral("About Tagwrighter"));
}

void frmAbout::prepareLoad()
{
    frmMdi().setEnabled(false);
}

void frmAbout::Form_Load()
{
    constexpr int iconSize = 48;
    QLabel *imgIcon = ui::label(QStringLiteral("imgIcon"), {});
    imgIcon->setAccessibleName(QStringLiteral("Tagwrighter"));
    imgIcon->setPixmap(applicationIcon().pixmap(iconSize, iconSize));
    QLabel *lblVersion =
        ui::label(QStringLiteral("lblVersion"), QStringLiteral("Product Version: ") + context().version);
    QLabel *lblBrowser =
        ui::label(QStringLiteral("lblBrowser"),
                  QStringLiteral("Pages are previewed by Qt WebEngine, which is based on the Chromium project."));
    lblBrowser->setWordWrap(true);
    QLabel *lblHarblineWebsite = ui::label(QStringLiteral("lblHarblineWebsite"), context().makerSite,
                                           [this] { services().launcher.openUrl(context().makerSite); });
    lblHarblineWebsite->setForegroundRole(QPalette::Link);
    lblHarblineWebsite->setCursor(Qt::PointingHandCursor);
    QPlainTextEdit *txtParts = ui::textArea(QStringLiteral("txtParts"));
    txtParts->setReadOnly(true);
    txtParts->setPlainText(partsText());
    txtParts->setAccessibleName(QStringLiteral("Licence and parts"));
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("OK"), [this] { Unload(); });
    QPushButton *cmdSysInfo =
        ui::button(QStringLiteral("cmdSysInfo"), QStringLiteral("&System Info..."), [this] { StartSysInfo(); });
    setContent(ui::beside({
        ui::column({
            ui::line({imgIcon,
                      ui::Node(ui::column({heading(QStringLiteral("lblTitle"), QStringLiteral("Harbline Tagwrighter")),
                                           lblVersion}))
                          .stretched()}),
            lblBrowser,
            lblHarblineWebsite,
            ui::Node(txtParts).stretched(),
        }),
        ui::buttons({cmdOK, cmdSysInfo}),
    }));
    window()->setMinimumSize(540, 340);
    setDefaultButton(cmdOK);
    setCancelButton(cmdOK);
}

void frmAbout::StartSysInfo()
{
    const QList<SystemFact> facts = services().systemFacts.all();
    if (facts.isEmpty()) {
        services().messageBoxes.show({.title = QStringLiteral("Tagwrighter"),
                                      .text = QStringLiteral("System Information Is Unavailable At This Time"),
                                      .icon = MessageIcon::Exclamation,
                                      .buttons = MessageButtons::OK});
        return;
    }
    auto &window = context().forms.get<frmSysInfo>();
    window.setFacts(QList<SystemFact>{{QStringLiteral("Tagwrighter"), context().version}} + facts);
    window.Show();
}

QString frmAbout::GetKeyValue(const QString &name) const
{
    for (const SystemFact &fact : services().systemFacts.all())
        if (fact.name == name)
            return fact.value;
    return {};
}

void frmAbout::Form_Unload()
{
    frmMdi().setEnabled(true);
    if (Document *document = frmMdi().activeDocument())
        document->txtEdit().SetFocus();
}
