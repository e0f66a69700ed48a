// Reading and writing of what stands in edits.
#include "core/Values.h"

#include <benchmark/benchmark.h>

namespace
{

void ParseDecimal64(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(::ParseDecimal64(" -8388608 "));
}
BENCHMARK(ParseDecimal64);

void ParseEntry64(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(::ParseEntry64("32767"));
}
BENCHMARK(ParseEntry64);

void ParseHex32(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(::ParseHex32("12ABCDEF"));
}
BENCHMARK(ParseHex32);

void ParseDeviceNumber(benchmark::State& state)
{
    constexpr short kRelay = 1;
    int number = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(::ParseDeviceNumber(kRelay, "255F", number));
        benchmark::DoNotOptimize(number);
    }
}
BENCHMARK(ParseDeviceNumber);

void FormatDeviceNumber(benchmark::State& state)
{
    constexpr short kRelay = 1;
    for (auto _ : state)
        benchmark::DoNotOptimize(::FormatDeviceNumber(kRelay, 4095));
}
BENCHMARK(FormatDeviceNumber);

void ParsePackedReal(benchmark::State& state)
{
    DWORD packed = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(::ParsePackedReal("-123.4567E-12", packed, 1, -1));
        benchmark::DoNotOptimize(packed);
    }
}
BENCHMARK(ParsePackedReal);

void FormatPackedReal(benchmark::State& state)
{
    char buffer[kPackedRealBuffer];
    for (auto _ : state)
        benchmark::DoNotOptimize(::FormatPackedReal(0xC1234567, buffer, FALSE));
}
BENCHMARK(FormatPackedReal);

/// Entries grow linearly with their length, however long they are.
void ParseLongEntry(benchmark::State& state)
{
    const CString text('1', static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(::ParseEntry64(text));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ParseLongEntry)->RangeMultiplier(16)->Range(16, 1 << 20)->Complexity(benchmark::oN);

} // namespace
