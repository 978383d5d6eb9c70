// Writes down what the tree of codes shows of its files before anything in it is opened, so that a start need not read
// them: outlineCodes FOLDER Html.tcb Css.tcb
//
// Writes FOLDER/Html.tcb.outline and FOLDER/Css.tcb.outline, which codeknowledge/codeOutline.h reads.
#include "codeknowledge/codeBranch.h"
#include "codeknowledge/codeOutline.h"

#include <QFile>
#include <QFileInfo>
#include <cstdio>

namespace
{
void outline(const QString &folder, const QString &path, bool html)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    const QByteArray bytes = file.readAll();
    const CodeBranch branch = html ? CodeBranch::ofHtml(bytes) : CodeBranch::ofCss(bytes);
    if (!branch.isComplete())
        qFatal("%s has a line that has no place in the tree", qPrintable(path));
    const QByteArray text = CodeOutline::written(branch, bytes);
    QFile result(QStringLiteral("%1/%2.outline").arg(folder, QFileInfo(path).fileName()));
    if (!result.open(QIODevice::WriteOnly) || result.write(text) != text.size())
        qFatal("%s cannot be written", qPrintable(result.fileName()));
}
} // namespace

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("usage: outlineCodes FOLDER Html.tcb Css.tcb\n", stderr);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    outline(folder, QString::fromLocal8Bit(argv[2]), true);
    outline(folder, QString::fromLocal8Bit(argv[3]), false);
}
