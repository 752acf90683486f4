// Start to the first frame that shows the quay, as wall-clock time and peak memory of a whole process, beside a bare
// program that loads the same pictures and draws as many frames: two, since the first lies below the fade. Run from any
// folder; needs the petrelmail program of the same build.

#include "bench/znNBenchMain.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace
{
std::vector<std::string> picturesGet()
{
    std::vector<std::string> pictures;
    for (const auto& entry : fs::directory_iterator(PETREL_ROOT "/data/scenes/quay"))
        if (entry.path().extension() == ".png" || entry.path().extension() == ".jpg")
            pictures.push_back(entry.path().string());
    std::sort(pictures.begin(), pictures.end());
    return pictures;
}

// Runs a program to its end; answers its peak memory in MB, or a negative number if it failed.
double processRun(std::vector<std::string> pArguments)
{
    std::vector<char*> pointers;
    for (std::string& argument : pArguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0)
    {
        const int null = open("/dev/null", O_WRONLY);
        dup2(null, STDOUT_FILENO);
        dup2(null, STDERR_FILENO);
        execv(pointers[0], pointers.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? static_cast<double>(usage.ru_maxrss) / 1024.0 : -1.0;
}

void processMeasure(benchmark::State& pState, const std::vector<std::string>& pArguments)
{
    double peak = 0.0;
    for (auto _ : pState)
    {
        const auto begin = std::chrono::steady_clock::now();
        const double used = processRun(pArguments);
        pState.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
        if (used < 0.0)
        {
            pState.SkipWithError("the program failed");
            return;
        }
        peak = std::max(peak, used);
    }
    pState.counters["peak_mb"] = peak;
}

void Start_ours(benchmark::State& pState)
{
    const fs::path user = fs::temp_directory_path() / ("petrel-start-" + std::to_string(getpid()));
    fs::create_directories(user);
    processMeasure(pState, {PETREL_BIN "/petrelmail", "--headless", "--step", "16", "--frames", "2", "--seed", "1",
                            "--data", PETREL_ROOT "/data", "--user", user.string(), "--", "quay"});
    fs::remove_all(user);
}

void Start_reference(benchmark::State& pState)
{
    std::vector<std::string> arguments = {PETREL_BIN "/bareWindow"};
    const std::vector<std::string> pictures = picturesGet();
    arguments.insert(arguments.end(), pictures.begin(), pictures.end());
    processMeasure(pState, arguments);
}

void measure(benchmark::internal::Benchmark* pBenchmark)
{
    pBenchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(2);
    znNBenchMain::bestTake(pBenchmark, 9);
}

BENCHMARK(Start_ours)->Apply(measure);
BENCHMARK(Start_reference)->Apply(measure);
} // namespace

int main(int pCount, char** pArguments)
{
    return znNBenchMain::run(pCount, pArguments);
}
