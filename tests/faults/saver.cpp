// A program that does nothing but save, for tests that kill it, watch its calls or let them fail:
//   saver STATE save FILE SIZE LETTER   saves SIZE bytes of LETTER; prints the errno of the failure, 0 for none
//   saver STATE loop FILE SIZE          prints a line, then saves all "a" and all "b" in turn without end
//   saver STATE settle                  what a start does with broken saves; prints how many files were put back
#include "storage/localFileSystem.h"
#include "storage/saveNotes.h"

#include <QStringList>
#include <cstdio>

namespace
{
int save(const QString &state, const QStringList &words)
{
    LocalFileSystem files(state);
    const QByteArray bytes(words[1].toLongLong(), words[2].toLatin1().at(0));
    const std::optional<FileError> error = files.writeWhole(words[0], bytes);
    std::printf("%d\n", error ? error->systemError : 0);
    return 0;
}

int saveWithoutEnd(const QString &state, const QStringList &words)
{
    LocalFileSystem files(state);
    const QByteArray contents[] = {QByteArray(words[1].toLongLong(), 'a'), QByteArray(words[1].toLongLong(), 'b')};
    std::puts("saving");
    std::fflush(stdout);
    for (int i = 0;; ++i)
        if (files.writeWhole(words[0], contents[i % 2]))
            return 1;
}

int settle(const QString &state)
{
    const SaveNotes::Settled settled = SaveNotes(state).settle();
    std::printf("%lld\n", static_cast<long long>(settled.putBack.size()));
    return 0;
}
} // namespace

int main(int count, char **words)
{
    QStringList all;
    for (int i = 1; i < count; ++i)
        all << QString::fromLocal8Bit(words[i]);
    const QString mode = all.value(1);
    if (mode == QLatin1String("save") && all.size() == 5)
        return save(all[0], all.mid(2));
    if (mode == QLatin1String("loop") && all.size() == 4)
        return saveWithoutEnd(all[0], all.mid(2));
    if (mode == QLatin1String("settle") && all.size() == 2)
        return settle(all[0]);
    std::fputs("saver STATE save FILE SIZE LETTER | loop FILE SIZE | settle\n", stderr);
    return 2;
}
