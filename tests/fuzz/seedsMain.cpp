// Lets one target read all files of a folder: fuzz_seeds TARGET FOLDER.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <map>

#define TARGET(name) extern "C" int fuzz_##name(const uint8_t *data, std::size_t size);
#include "fuzzTargets.inc"
#undef TARGET

namespace
{
using Target = int (*)(const uint8_t *, std::size_t);

#define TARGET(name) {#name, fuzz_##name},
const std::map<std::string, Target> targets = {
#include "fuzzTargets.inc"
};

/// Reads a seed, and everything that it begins with: a file may be cut off anywhere.
void readSeed(Target target, const QByteArray &bytes)
{
    for (qsizetype length = std::max<qsizetype>(0, bytes.size() - 200); length <= bytes.size(); ++length)
        target(reinterpret_cast<const uint8_t *>(bytes.constData()), static_cast<std::size_t>(length));
}
} // namespace

int main(int argc, char **argv)
{
    const auto target = argc == 3 ? targets.find(argv[1]) : targets.end();
    if (target == targets.end()) {
        std::fprintf(stderr, "fuzz_seeds TARGET FOLDER\n");
        return 2;
    }
    const QFileInfoList seeds = QDir(QString::fromLocal8Bit(argv[2])).entryInfoList(QDir::Files);
    for (const QFileInfo &seed : seeds) {
        std::printf("%s\n", qPrintable(seed.fileName()));
        std::fflush(stdout);
        QFile file(seed.filePath());
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        readSeed(target->second, file.readAll());
    }
    std::printf("%d seeds\n", static_cast<int>(seeds.size()));
    return seeds.isEmpty() ? 1 : 0;
}
