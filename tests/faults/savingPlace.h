#pragma once

#include "faultProcess.h"
#include "unit/support/sandbox.h"

#include <QFile>

/// A folder `site` with a page in it, and a folder for state, over which a program does nothing but save.
class SavingPlace : public Sandbox
{
protected:
    static constexpr qint64 PageSize = 5'000'000;

    QString page() const { return path("site/a.htm"); }
    QString state() const { return path("state"); }
    QByteArray native(const char *name) const { return QFile::encodeName(path(name)); }

    /// Saves a page of PageSize letters "n"; the errno of the failure, 0 for none, -1 for a program that was killed and
    /// -2 for one that could not be prepared.
    int save(const QList<std::pair<QByteArray, QByteArray>> &variables = {}, const std::function<bool()> &prepare = {})
    {
        const FaultOutcome outcome =
            runToEnd({QStringLiteral(SAVER),
                      {state(), QStringLiteral("save"), page(), QString::number(PageSize), QStringLiteral("n")},
                      variables,
                      prepare});
        if (outcome.status == 0)
            return outcome.output.toInt();
        EXPECT_TRUE(outcome.status == -1 || outcome.status == NotPrepared) << outcome.output.toStdString();
        return outcome.status == -1 ? -1 : -2;
    }
    /// What the next start does with saves that were broken off: how many files got their old bytes back.
    int settle() { return runToEnd({QStringLiteral(SAVER), {state(), QStringLiteral("settle")}}).output.toInt(); }

    void expectNothingNoted() const { EXPECT_EQ(names("state/recovery"), QStringList()); }
    static QByteArray newPage() { return QByteArray(PageSize, 'n'); }
};
