// Variable tables of 1,000 to 100,000 entries: parsing and saving beside a bare pass over the same bytes. Saved tables
// come in key order; Shuffled has them as an author may write them.

#include "tests/support/znCTestPlatform.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"
#include "zncore/znNCoreUtils.h"
#include <benchmark/benchmark.h>
#include <cstring>
#include <vector>

namespace
{
std::vector<std::string> linesGet(s64 pCount)
{
    std::vector<std::string> lines;
    for (s64 i = 0; i < pCount; ++i)
    {
        char line[80];
        std::snprintf(line, sizeof line, "entry%06d:state = \"%d,1,0,-5,some text\",\r\n", static_cast<s32>(i),
                      static_cast<s32>(i * 7919 % 10007));
        lines.push_back(line);
    }
    return lines;
}

std::string textGet(s64 pCount, bool pShuffled)
{
    std::vector<std::string> lines = linesGet(pCount);
    znNCoreUtils::randomSeedSet(1);
    for (std::size_t i = lines.size(); pShuffled && i > 1; --i)
        std::swap(lines[i - 1], lines[znNCoreUtils::randomGet(static_cast<uint32>(i))]);
    std::string text;
    for (const std::string& line : lines)
        text += line;
    return text;
}

void parseRun(benchmark::State& pState, bool pShuffled)
{
    const std::string text = textGet(pState.range(0), pShuffled);
    for (auto _ : pState)
    {
        znCVariableTable table;
        table.textParse(text.data(), text.data() + text.size());
        benchmark::DoNotOptimize(table.entriesGet().size());
    }
    pState.SetComplexityN(pState.range(0));
}

// The same bytes cut into the same keys and values, which go into one text each.
void tokenise(benchmark::State& pState, bool pShuffled)
{
    const std::string text = textGet(pState.range(0), pShuffled);
    for (auto _ : pState)
    {
        std::vector<std::string> parts;
        for (std::string::size_type at = 0; at < text.size();)
        {
            const auto equals = text.find(" = \"", at);
            const auto end = text.find("\",\r\n", equals);
            parts.push_back(text.substr(at, equals - at));
            parts.push_back(text.substr(equals + 4, end - equals - 4));
            at = end + 4;
        }
        benchmark::DoNotOptimize(parts.size());
    }
    pState.SetComplexityN(pState.range(0));
}

void TableParse_ours(benchmark::State& pState)
{
    parseRun(pState, false);
}
void TableParse_reference(benchmark::State& pState)
{
    tokenise(pState, false);
}
void TableParseShuffled_ours(benchmark::State& pState)
{
    parseRun(pState, true);
}
void TableParseShuffled_reference(benchmark::State& pState)
{
    tokenise(pState, true);
}

void TableSave_ours(benchmark::State& pState)
{
    znCTestPlatform platform;
    const std::string text = textGet(pState.range(0), false);
    znCVariableTable table;
    table.textParse(text.data(), text.data() + text.size());
    const znCResourceName name("table.txt", znCResourceName::USER_DATA);
    for (auto _ : pState)
        benchmark::DoNotOptimize(table.fileSave(name));
    pState.SetComplexityN(pState.range(0));
}

// Only puts the bytes together, part by part, and writes them to the same platform.
void TableSave_reference(benchmark::State& pState)
{
    znCTestPlatform platform;
    const std::vector<std::string> lines = linesGet(pState.range(0));
    for (auto _ : pState)
    {
        std::string text;
        for (const std::string& line : lines)
            text.append(line);
        s3eFile* file = s3eFileOpen("ram://table.txt", "wb");
        s3eFileWrite(text.data(), static_cast<u32>(text.size()), file);
        s3eFileClose(file);
    }
    pState.SetComplexityN(pState.range(0));
}

BENCHMARK(TableParse_ours)->RangeMultiplier(10)->Range(1000, 100000)->Complexity(benchmark::oN);
BENCHMARK(TableParse_reference)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(TableParseShuffled_ours)->RangeMultiplier(10)->Range(1000, 100000)->Complexity(benchmark::oN);
BENCHMARK(TableParseShuffled_reference)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(TableSave_ours)->RangeMultiplier(10)->Range(1000, 100000)->Complexity(benchmark::oN);
BENCHMARK(TableSave_reference)->RangeMultiplier(10)->Range(1000, 100000);
} // namespace

BENCHMARK_MAIN();
