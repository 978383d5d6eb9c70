#include "common/document.h"
#include "figures.h"
#include "forms/form.h"
#include "runningProgram.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace
{
constexpr int Runs = 9;
constexpr double Milli = 1000;

/// From the OK of a table with so many rows and columns to the painted document.
double tableTime(RunningProgram &running, int runs, const QString &size)
{
    Form &form = *running.program().form(QStringLiteral("frmInsTable"));
    return medianTime(
        runs,
        [&] {
            qobject_cast<QPushButton *>(form.control(QStringLiteral("cmdOK")))->click();
            RunningProgram::settle();
        },
        [&] {
            running.document()->txtEdit().setText({});
            form.Show();
            for (const QString &name : {QStringLiteral("txtRows"), QStringLiteral("txtCols")})
                qobject_cast<QLineEdit *>(form.control(name))->setText(size);
            RunningProgram::settle();
        });
}

double keyTime(RunningProgram &running)
{
    return medianTime(Runs, [&] {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QCoreApplication::sendEvent(running.surface(), &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QCoreApplication::sendEvent(running.surface(), &release);
        RunningProgram::settle();
    });
}
} // namespace

void tableFigures(Figures &figures)
{
    const QString unit = QStringLiteral("ms");
    RunningProgram running;
    figures.add(QStringLiteral("OK of a table of 100 by 100"), tableTime(running, Runs, QStringLiteral("100")) * Milli,
                unit, 150);
    figures.add(QStringLiteral("a typed letter, painted, at the head of that table"), keyTime(running) * Milli, unit);
    figures.add(QStringLiteral("OK of a table of 999 by 999"), tableTime(running, 1, QStringLiteral("999")) * Milli,
                unit);
    figures.add(QStringLiteral("a typed letter, painted, at the head of that one"), keyTime(running) * Milli, unit);
}
