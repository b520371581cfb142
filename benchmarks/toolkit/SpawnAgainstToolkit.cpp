// Starting `true` and capturing its empty output, against QProcess doing the same.
#include <QCoreApplication>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <benchmark/benchmark.h>

#include "probe/ProbeRunner.h"

namespace {

void spawn(benchmark::State &state)
{
    const Loadwick::Environment environment = Loadwick::currentEnvironment();
    for (auto round : state) {
        const Loadwick::Execution execution =
            Loadwick::ProbeRunner::execute({.cli = "/bin/true",
                                            .repository = "/",
                                            .environment = environment,
                                            .arguments = {},
                                            .shutdown = nullptr});
        if (execution.exitCode != 0)
            state.SkipWithError("the program failed");
    }
}

void spawnWithToolkit(benchmark::State &state)
{
    for (auto round : state) {
        QProcess process;
        process.setWorkingDirectory(QStringLiteral("/"));
        process.start(QStringLiteral("/bin/true"), QStringList());
        process.waitForFinished();
        benchmark::DoNotOptimize(process.readAllStandardOutput());
        benchmark::DoNotOptimize(process.readAllStandardError());
        if (process.exitCode() != 0)
            state.SkipWithError("the program failed");
    }
}

BENCHMARK(spawn)->Name("spawn/ours")->UseRealTime();
BENCHMARK(spawnWithToolkit)->Name("spawn/floor")->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
