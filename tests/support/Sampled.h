// How much of an exhaustive test runs. Natively all of it does. Where one dialog takes as long as a thousand natively,
// a sample stands for the rest: it must still touch every control, every message and every path of the code once.
#pragma once

#include <cstddef>
#include <iterator>
#include <ranges>
#include <vector>

/// Whether exhaustive tests run whole: natively, and on Windows when PEXLO_THOROUGH is set in the environment.
bool IsThorough();

/// How far a long loop goes on at a time: by one, or as a sample by `every`. 64-bit Windows, which runs the same code
/// as 32-bit Windows does, takes a third of that sample.
int SampledStep(int every);

/// How often a long loop does the same with other values: `all` times, or as a sample so many; a third of them, at
/// least two, on 64-bit Windows.
int SampledRounds(int all, int sample);

/// The numbers from `first` to `last`, or as a sample every nth of them, the last always.
std::vector<unsigned> SampledNumbers(unsigned first, unsigned last, unsigned every);

/// Every set of `count` things but the empty one, a bit for each thing; or as a sample each thing alone, all together,
/// and every nth set.
std::vector<unsigned> SampledSets(std::size_t count, unsigned every);

/// The rows of a table, or as a sample every nth of them, the last always.
template <std::ranges::random_access_range TTable>
auto Sampled(const TTable& table, unsigned every)
{
    std::vector<std::ranges::range_value_t<const TTable>> rows;
    if (std::ranges::empty(table))
        return rows;
    for (const unsigned i : SampledNumbers(0, static_cast<unsigned>(std::ranges::size(table)) - 1, every))
        rows.push_back(std::begin(table)[i]);
    return rows;
}
