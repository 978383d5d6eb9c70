#include "common/codeKnowledge.h"
#include "common/document.h"
#include "figures.h"
#include "forms/formRuntime.h"
#include "runningProgram.h"
#include "services/fileSystem.h"
#include "services/programFiles.h"
#include "services/services.h"
#include "texttools/frmFind.h"
#include "texttools/frmSyntaxCheck.h"
#include "texttools/pageChecker.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

namespace
{
constexpr int Runs = 5;
constexpr double Milli = 1000;
constexpr qsizetype LargestColoured = 63900;
constexpr int Matches = 20'000;

/// Confirms every message box as soon as it is on show.
class BoxConfirmer
{
public:
    BoxConfirmer()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [] {
            if (auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                box->accept();
        });
        m_timer.start(1);
    }

private:
    QTimer m_timer;
};

/// What the checks go by, out of the folder of the built program; without it they would end at once.
void bringData(const QString &appPath)
{
    const QString data = QFileInfo(QStringLiteral(TAGWRIGHTER_PROGRAM)).path() + u'/';
    QDir().mkpath(appPath);
    for (const char *name : {"Html.tcb", "Css.tcb", "Syntax.dic", "Page.rules"})
        QFile::copy(data + QLatin1String(name), appPath + u'/' + QLatin1String(name));
}

/// A page of so many characters in which the checker knows every word.
QString rightPage(qsizetype characters)
{
    const QString block =
        QStringLiteral("<div class=\"box\" id=\"part\">\r\n"
                       "<h2 title=\"A heading\">Heading</h2>\r\n"
                       "<p lang=\"en\" class=\"text\">Words and <b>more</b> of <i>them</i>, <a href=\"a.html\" "
                       "title=\"A page\">a link</a> and <img src=\"a.png\" width=\"8\" alt=\"A\">.</p>\r\n"
                       "<ul>\r\n<li>one</li>\r\n<li>two</li>\r\n</ul>\r\n</div>\r\n");
    QString text = block.repeated(characters / block.size());
    return text + QString(characters - text.size(), u'.');
}

double checkTime(RunningProgram &running, qsizetype characters)
{
    const QString text = rightPage(characters);
    return medianTime(
        Runs, [&] { running.program().context().forms.show<frmSyntaxCheck>(); },
        [&] {
            running.document()->txtEdit().setText(text);
            RunningProgram::settle();
        });
}

/// The check of a page, without its window.
double pageCheckTime(RunningProgram &running, qsizetype characters)
{
    const Services &services = running.program().context().services;
    const auto rules =
        PageRules::read(services.files.readAll(programFile(services, QStringLiteral("Page.rules"))).bytes);
    const QString text = rightPage(characters);
    return medianTime(
        Runs, [&] { checkPage(text, *rules); }, [] {});
}

/// The check after a key in the middle of a page that was checked before.
double pageCheckKeyTime(RunningProgram &running, qsizetype characters)
{
    const Services &services = running.program().context().services;
    const auto rules =
        PageRules::read(services.files.readAll(programFile(services, QStringLiteral("Page.rules"))).bytes);
    QString text = rightPage(characters);
    const qsizetype place = text.indexOf(QStringLiteral("</"), characters / 2);
    PageChecker checker(*rules);
    checker.check(text, {});
    return medianTime(
        Runs, [&] { checker.check(text, {}); }, [&] { text.insert(place, u'x'); });
}

/// 1 MB, in every fiftieth character of which the text stands that is replaced.
QString manyMatches()
{
    return QStringLiteral("<p>name of the thing, and what is told of it.</p>\r\n").repeated(Matches);
}

double replaceTime(RunningProgram &running, const QString &replacement)
{
    auto &form = running.program().context().forms.get<frmFind>();
    const auto control = [&](const char *name) { return form.control(QLatin1String(name)); };
    const QString text = manyMatches();
    const double time = medianTime(
        Runs,
        [&] {
            qobject_cast<QAbstractButton *>(control("cmdReplaceAll"))->click();
            RunningProgram::settle();
        },
        [&] {
            running.document()->txtEdit().setText(text);
            form.Show();
            form.SetFindReplace();
            qobject_cast<QComboBox *>(control("cboFindString"))->setEditText(QStringLiteral("name"));
            qobject_cast<QComboBox *>(control("cboReplace"))->setEditText(replacement);
            RunningProgram::settle();
        });
    form.Unload();
    return time;
}
} // namespace

void textToolFigures(Figures &figures)
{
    RunningProgram running(bringData);
    const BoxConfirmer confirmer;
    const QString unit = QStringLiteral("ms");
    figures.add(QStringLiteral("syntax check, 63,900 characters"), checkTime(running, LargestColoured) * Milli, unit,
                400);
    figures.add(QStringLiteral("syntax check, 1 MB"), checkTime(running, 1'000'000) * Milli, unit);
    figures.add(QStringLiteral("page check, 1 MB"), pageCheckTime(running, 1'000'000) * Milli, unit, 40);
    figures.add(QStringLiteral("page check after a key, 1 MB"), pageCheckKeyTime(running, 1'000'000) * Milli, unit);
    figures.add(QStringLiteral("replace all, 1 MB, 20,000 matches"),
                replaceTime(running, QStringLiteral("title")) * Milli, unit, 600);
    figures.add(QStringLiteral("replace all by nothing, 1 MB, 20,000 matches"), replaceTime(running, QString()) * Milli,
                unit, 600);
}
