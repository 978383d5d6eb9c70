#pragma once

#include "services/internetTransfer.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

struct ProgramContext;

/// One upload on its way, until it ends. It tells its stages in the status bar and its failure in a box.
class Upload final : public QObject, private TransferWatcher
{
    Q_OBJECT
public:
    Upload(ProgramContext &context, const TransferRequest &request, const QString &location, const QString &fileName);

    /// Begins, and else tells why it could not.
    QString start();
    /// Ends without another word.
    void breakOff();
    bool isRunning() const { return m_transfer != nullptr; }
    const QString &location() const { return m_location; }
    const QString &fileName() const { return m_fileName; }

private:
    void StateChanged(TransferState state) override;
    void progressed(qint64 done, qint64 total) override;
    void finished(const TransferEnd &end) override;

    void tell(const QString &text);
    void tellShown() const;
    void tellReady();
    void startAgain(const UnknownHost &host);
    void tellError(const QString &description);
    void tellFailure(const TransferEnd &end);
    void conclude();

    ProgramContext &m_context;
    TransferRequest m_request;
    TransferEnd m_end;
    QString m_location;
    QString m_fileName;
    QString m_stage; ///< what the status bar says of the stage
    QString m_shown; ///< what it is to show now; empty for what others show
    QTimer m_again;
    std::unique_ptr<Transfer> m_transfer;
};

struct UploadStart {
    QObject *upload = nullptr; ///< as long as it runs
    QString failure = {};      ///< why it could not begin
};

/// The uploads of a session. They go on when the window that began them has closed.
class Uploads final : public QObject
{
    Q_OBJECT
public:
    explicit Uploads(ProgramContext &context) : m_context(context) {}

    /// Begins to send `request.body` to its address. `location` and `fileName` are how the user knows it.
    UploadStart start(const TransferRequest &request, const QString &location, const QString &fileName);

    /// Asks, if anything is still on its way, whether the program may end all the same.
    bool mayBeCut() const;
    void breakOff(); ///< ends all of them

private:
    ProgramContext &m_context;
};

/// What the status bar shows of a stage; nothing for one that it does not tell.
QString uploadStageText(TransferState state);
