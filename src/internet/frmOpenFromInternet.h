#pragma once

#include "forms/dialogForm.h"

#include <QPointer>
#include <memory>

class Fetch;
class Inet;
class QComboBox;

/// Opens the source of a page from an address as a new document, which remembers where it came from.
class frmOpenFromInternet final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmOpenFromInternet(ProgramContext &context);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void cmdOpen_Click();
    void cmdCancel_Click();
    bool isConnectedOrLeft(const QString &address);
    void showProgress(const QString &opening, qint64 done, qint64 total);
    std::shared_ptr<Fetch> fetched(const QString &address, const QString &opening);
    bool mayTryAgain(Fetch &fetch);
    void await(const Fetch &fetch);
    void showResult(const QString &address, const Fetch &fetch);
    void tellFailure(const QString &address, const Fetch &fetch);
    void openDocument(const QString &address, const Fetch &fetch);
    void recordAddress(const QString &address);
    void resetBarAndPointer();

    QPointer<QComboBox> cboAddress;
    QPointer<Inet> netOpen;
    bool m_opened = false; ///< a page came since the load
};
