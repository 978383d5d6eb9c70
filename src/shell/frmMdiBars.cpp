// The main window's status bar and document selector.
#include "shell/frmMdi.h"

#include "platform/timer.h"

#include <QLabel>
#include <QScopedValueRollback>
#include <QTabBar>

void frmMdi::SetStatusText(const QString &text)
{
    if (m_message)
        m_message->setText(text);
}

void frmMdi::SetStatusReady()
{
    SetStatusText(QStringLiteral("Ready"));
}

void frmMdi::enableResetBar()
{
    tmrResetBar->setEnabled(true);
}

void frmMdi::showFileFormat(const QString &text)
{
    m_fileFormat->setText(text);
    m_fileFormat->setVisible(!text.isEmpty());
}

QString frmMdi::statusText() const
{
    return m_message ? m_message->text() : QString();
}

int frmMdi::tabOfKey(const QString &key) const
{
    for (int i = 0; i < tabDocSel->count(); ++i)
        if (tabDocSel->tabData(i).toString() == key)
            return i;
    return -1;
}

void frmMdi::addDocumentTab(const QString &key, const QString &caption)
{
    if (tabOfKey(key) >= 0)
        return;
    const QScopedValueRollback guard(m_tabsFollow, true);
    const int tab = tabDocSel->addTab(QString(caption).replace(u'&', QStringLiteral("&&")));
    tabDocSel->setTabData(tab, key);
    tabDocSel->setTabToolTip(tab, caption);
}

void frmMdi::removeDocumentTab(const QString &key)
{
    const QScopedValueRollback guard(m_tabsFollow, true);
    if (const int tab = tabOfKey(key); tab >= 0)
        tabDocSel->removeTab(tab);
}

void frmMdi::selectDocumentTab(const QString &key)
{
    const QScopedValueRollback guard(m_tabsFollow, true);
    tabDocSel->setCurrentIndex(tabOfKey(key));
}

void frmMdi::showDocumentTabs(bool shown)
{
    tabDocSel->setVisible(shown);
}

void frmMdi::showDocumentSelector(bool shown)
{
    picDocSelector->setVisible(shown);
}

void frmMdi::tabDocSel_Click()
{
    if (m_tabsFollow)
        return;
    const QString key = tabDocSel->tabData(tabDocSel->currentIndex()).toString();
    for (Document *document : openDocuments())
        if (document->DocKeyDescription == key) {
            document->activate();
            return;
        }
}
