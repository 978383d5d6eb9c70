#include "process.h"

#include <QFile>
#include <QProcess>

Outcome runProgram(const QString &program, const QStringList &arguments, const QMap<QString, QString> &environment)
{
    QProcessEnvironment variables;
    for (auto i = environment.begin(); i != environment.end(); ++i)
        variables.insert(i.key(), i.value());
    QProcess process;
    process.setProcessEnvironment(variables);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    const bool ended = process.waitForFinished(30000) && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void writeScript(const QString &path, const QString &body)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    file.write("#!/bin/bash\n" + body.toUtf8() + '\n');
    file.setPermissions(file.permissions() | QFile::ExeOwner);
}
