#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// What a program wrote and how it ended.
struct Outcome {
    int status; ///< the exit status; -1 if it did not start, crashed or took longer than half a minute
    QString output;
    QString errors;
};

/// Runs a program to its end with exactly these environment variables, and nothing to read.
Outcome runProgram(const QString &program, const QStringList &arguments, const QMap<QString, QString> &environment);

/// Writes a shell script that can be run; for programs that stand in for real ones.
void writeScript(const QString &path, const QString &body);
