#include "files/frmPrinting.h"

#include "widgets/layout.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

frmPrinting::frmPrinting(ProgramContext &context) : Form(context, QStringLiteral("frmPrinting"))
{
    setCaption(QStringLiteral("Printing"));
}

void frmPrinting::begin(const QString &title, int pages)
{
    m_title = title;
    m_pages = pages;
    m_cancelled = false;
    Show();
}

void frmPrinting::Form_Load()
{
    QLabel *lblTitle = ui::label(QStringLiteral("lblTitle"), m_title);
    lblPage = ui::label(QStringLiteral("lblPage"), {});
    prgPages = new QProgressBar;
    prgPages->setObjectName(QStringLiteral("prgPages"));
    prgPages->setAccessibleName(QStringLiteral("Pages printed"));
    prgPages->setRange(0, m_pages);
    QPushButton *cmdCancel =
        ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { m_cancelled = true; });
    setContent(ui::column({lblTitle, lblPage, prgPages, ui::line({ui::space(), cmdCancel})}));
    window()->setMinimumWidth(360);
    setCancelButton(cmdCancel);
}

void frmPrinting::showPage(int page)
{
    if (!isLoaded())
        return;
    lblPage->setText(QStringLiteral("Page %1 of %2").arg(page + 1).arg(m_pages));
    prgPages->setValue(page);
}

void frmPrinting::end()
{
    unloadAgreed();
    m_cancelled = false;
}

/// Its close box calls the printing off, and the form goes when the printing has ended.
bool frmPrinting::Form_QueryUnload()
{
    m_cancelled = true;
    return false;
}
