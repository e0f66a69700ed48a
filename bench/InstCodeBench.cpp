// CreateInstCode against the least that anybody could do: append the same records to a vector that has room for them.
// The two are measured in turn, in one run.
#include "bench/Wizards.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <vector>

namespace
{

using Clock = std::chrono::steady_clock;

double Seconds(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

std::vector<SFWzdInstCode> Generated(const CFunWizard& wizard)
{
    std::vector<SFWzdInstCode> records(static_cast<size_t>(wizard.GetInstCodeCount()));
    for (size_t i = 0; i < records.size(); ++i)
        wizard.GetInstCodeInfo(static_cast<int>(i), &records[i]);
    return records;
}

// Both free what they made: a vector at once, a wizard what it made the time before.
double TimeOfAppending(const std::vector<SFWzdInstCode>& records)
{
    const Clock::time_point start = Clock::now();
    {
        std::vector<SFWzdInstCode> copies;
        copies.reserve(records.size());
        for (const SFWzdInstCode& record : records)
            copies.push_back(record);
        benchmark::DoNotOptimize(copies.data());
        benchmark::ClobberMemory();
    }
    return Seconds(start);
}

double TimeOfGenerating(CFunWizard& wizard)
{
    const Clock::time_point start = Clock::now();
    benchmark::DoNotOptimize(wizard.CreateInstCode());
    return Seconds(start);
}

void CreateInstCode(benchmark::State& state)
{
    CFunWizard wizard;
    FillLists(wizard, static_cast<int>(state.range(0)));
    if (wizard.CreateInstCode() != 1)
        return state.SkipWithError("nothing was generated");
    const std::vector<SFWzdInstCode> records = Generated(wizard);

    double generating = 0;
    double appending = 0;
    for (auto _ : state)
    {
        const double time = TimeOfGenerating(wizard);
        state.SetIterationTime(time);
        generating += time;
        appending += TimeOfAppending(records);
    }
    state.SetComplexityN(state.range(0));
    state.counters["records"] = static_cast<double>(records.size());
    state.counters["ns_per_record"] =
        1e9 * generating / static_cast<double>(state.iterations()) / static_cast<double>(records.size());
    state.counters["vector_ratio"] = generating / appending;
}

BENCHMARK(CreateInstCode)->RangeMultiplier(10)->Range(100, 1000000)->UseManualTime()->Complexity(benchmark::oN);

} // namespace
