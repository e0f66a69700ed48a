#include "tests/support/Sampled.h"

#include <algorithm>
#include <cstdlib>
#include <set>

namespace
{

constexpr int kThinner = sizeof(void*) == 8 ? 3 : 1;

} // namespace

bool IsThorough()
{
#if defined(_WIN32)
    return std::getenv("PEXLO_THOROUGH") != nullptr;
#else
    return true;
#endif
}

int SampledStep(int every) { return IsThorough() ? 1 : every * kThinner; }

int SampledRounds(int all, int sample) { return IsThorough() ? all : std::max(2, sample / kThinner); }

std::vector<unsigned> SampledNumbers(unsigned first, unsigned last, unsigned every)
{
    const unsigned step = IsThorough() ? 1 : every;
    std::vector<unsigned> numbers;
    for (unsigned number = first; number < last; number += step)
        numbers.push_back(number);
    numbers.push_back(last);
    return numbers;
}

std::vector<unsigned> SampledSets(std::size_t count, unsigned every)
{
    const unsigned all = (1u << count) - 1;
    const std::vector<unsigned> spread = SampledNumbers(1, all, every);
    std::set<unsigned> sets(spread.begin(), spread.end());
    for (std::size_t i = 0; i < count; ++i)
        sets.insert(1u << i);
    return {sets.begin(), sets.end()};
}
