#include "common/encodings.h"
#include "figures.h"
#include "storage/localFileSystem.h"
#include "storage/settingsFiles.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <vector>

namespace
{
// What a start asks of the settings: some 60 reads and 15 changed values, out of a store of 120.
void settingsOfOneStart(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString app = QStringLiteral("QWRK77XE");
    const QString section = QStringLiteral("Settings");
    const auto key = [](int number) { return QStringLiteral("SomeOption%1").arg(number); };
    {
        SettingsFiles store(folder.path());
        for (int i = 0; i < 120; ++i)
            store.SaveSetting(app, section, key(i), QStringLiteral("0"));
    }
    int round = 0;
    for (auto _ : state) {
        SettingsFiles store(folder.path());
        for (int i = 0; i < 60; ++i)
            benchmark::DoNotOptimize(store.GetSetting(app, section, key(i), QString()));
        ++round;
        for (int i = 0; i < 15; ++i)
            store.SaveSetting(app, section, key(i), QString::number(round));
        state.PauseTiming();
        {
            const SettingsFiles closing = SettingsFiles(folder.path());
        }
        state.ResumeTiming();
    }
}
BENCHMARK(settingsOfOneStart)->Unit(benchmark::kMillisecond);

QByteArray page(qsizetype size, const QByteArray &lineEnd)
{
    const QByteArray line = "<p class=\"text\">A line of a page, with caf\xC3\xA9 in it</p>" + lineEnd;
    return line.repeated(size / line.size());
}

void decodePage(benchmark::State &state, const QByteArray &lineEnd)
{
    const QByteArray bytes = page(10'000'000, lineEnd);
    for (auto _ : state)
        benchmark::DoNotOptimize(decode(bytes));
}
BENCHMARK_CAPTURE(decodePage, of10MBWithCrLf, "\r\n")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(decodePage, of10MBWithLf, "\n")->Unit(benchmark::kMillisecond);

void encodePage(benchmark::State &state, const QByteArray &lineEnd)
{
    const DecodedText decoded = decode(page(10'000'000, lineEnd));
    for (auto _ : state)
        benchmark::DoNotOptimize(encode(decoded.text, decoded.format));
}
BENCHMARK_CAPTURE(encodePage, of10MBWithCrLf, "\r\n")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(encodePage, of10MBWithLf, "\n")->Unit(benchmark::kMillisecond);

void writeWhole(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QByteArray bytes = page(1'000'000, "\n");
    LocalFileSystem files;
    for (auto _ : state)
        benchmark::DoNotOptimize(files.writeWhole(folder.filePath(QStringLiteral("page.htm")), bytes));
}
BENCHMARK(writeWhole)->Unit(benchmark::kMillisecond)->UseRealTime();
} // namespace

void runServiceBenchmarks(const QString &filter)
{
    QByteArray arguments[] = {"tagwrighter-bench", "--benchmark_filter=" + (filter.isEmpty() ? "." : filter.toUtf8()),
                              "--benchmark_repetitions=5", "--benchmark_report_aggregates_only=true"};
    std::vector<char *> pointers;
    for (QByteArray &argument : arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    benchmark::RunSpecifiedBenchmarks();
}
