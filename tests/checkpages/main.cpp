// Checks the pages that are named, as the program does, and prints what is wrong: a line a problem, its cells parted by
// tabs: file, line from 1, column from 1, kind, rule, message. For comparing with other checkers.
#include "texttools/pageCheck.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

namespace
{
void print(const QString &path, const QString &text, const QList<PageProblem> &problems, QTextStream &out)
{
    for (const PageProblem &problem : problems) {
        const QStringView before = QStringView(text).left(problem.start);
        const qsizetype lines = before.count(u'\n');
        const qsizetype lastLine = lines + QStringView(text).mid(problem.start, problem.length).count(u'\n');
        out << path << '\t' << lines + 1 << '\t' << lastLine + 1 << '\t' << before.size() - before.lastIndexOf(u'\n')
            << '\t' << (problem.kind == PageProblem::Kind::Error ? "error" : "hint") << '\t' << problem.rule << '\t'
            << problem.message.simplified() << '\n';
    }
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream out(stdout);
    const auto rules = PageRules::read(contentOf(arguments.value(1)));
    if (!rules || arguments.size() < 3) {
        out << "checkpages RULES PAGE...\n";
        return 2;
    }
    for (const QString &path : arguments.mid(2)) {
        const QString text = QString::fromUtf8(contentOf(path));
        print(path, text, checkPage(text, *rules), out);
    }
    return 0;
}
