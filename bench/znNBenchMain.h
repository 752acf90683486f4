#ifndef BENCH_ZNNBENCHMAIN_H
#define BENCH_ZNNBENCHMAIN_H

// The main function of a program whose measurements must stand beside others' work on the machine: both sides of a
// ratio take turns in random order, and the best turn of each counts.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <vector>

namespace znNBenchMain
{
inline void bestTake(benchmark::internal::Benchmark* pBenchmark, int pRepetitions)
{
    const auto least = [](const std::vector<double>& pTimes)
    {
        return *std::min_element(pTimes.begin(), pTimes.end());
    };
    pBenchmark->Repetitions(pRepetitions)->ReportAggregatesOnly()->ComputeStatistics("best", least);
}

inline int run(int pCount, char** pArguments)
{
    char turns[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments(pArguments, pArguments + pCount);
    arguments.insert(arguments.begin() + 1, turns);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
} // namespace znNBenchMain

#endif
