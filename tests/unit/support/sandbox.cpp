#include "sandbox.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

Sandbox::Sandbox()
{
    EXPECT_TRUE(folder.isValid());
    EXPECT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
}

QString Sandbox::path(const char *name) const
{
    const QString relative = QString::fromUtf8(name);
    return relative.isEmpty() ? folder.path() : folder.path() + QLatin1Char('/') + relative;
}

void Sandbox::put(const char *name, const QByteArray &bytes) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray Sandbox::get(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(missing)");
}

QStringList Sandbox::names(const char *inside) const
{
    return QDir(path(inside))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

int inChild(const std::function<int()> &steps)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(steps());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 126;
}

bool becomeNobody()
{
    return ::setgid(65534) == 0 && ::setuid(65534) == 0;
}
