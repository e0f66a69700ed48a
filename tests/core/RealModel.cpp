#include "tests/core/RealModel.h"

#include <algorithm>
#include <bit>
#include <vector>

namespace
{

/// A natural number, its words from the lowest on.
class CNatural
{
public:
    explicit CNatural(std::uint64_t value)
        : m_words{static_cast<std::uint32_t>(value), static_cast<std::uint32_t>(value >> 32)}
    {
    }

    CNatural Times(std::uint32_t factor) const
    {
        CNatural product(*this);
        std::uint64_t carry = 0;
        for (std::uint32_t& word : product.m_words)
        {
            carry += static_cast<std::uint64_t>(word) * factor;
            word = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        product.m_words.push_back(static_cast<std::uint32_t>(carry));
        return product.Trimmed();
    }

    CNatural TimesPower(std::uint32_t base, int exponent) const
    {
        CNatural product(*this);
        for (; exponent > 0; --exponent)
            product = product.Times(base);
        return product;
    }

    CNatural Shifted(int bits) const { return TimesPower(1u << 16, bits / 16).Times(1u << bits % 16); }

    int CompareTo(const CNatural& other) const
    {
        const CNatural left = Trimmed(), right = other.Trimmed();
        if (left.m_words.size() != right.m_words.size())
            return left.m_words.size() < right.m_words.size() ? -1 : 1;
        for (size_t i = left.m_words.size(); i-- > 0;)
            if (left.m_words[i] != right.m_words[i])
                return left.m_words[i] < right.m_words[i] ? -1 : 1;
        return 0;
    }

private:
    CNatural Trimmed() const
    {
        CNatural trimmed(*this);
        while (!trimmed.m_words.empty() && trimmed.m_words.back() == 0)
            trimmed.m_words.pop_back();
        return trimmed;
    }

    std::vector<std::uint32_t> m_words;
};

} // namespace

int Compare(const SDecimalModel& decimal, const SBinaryModel& binary)
{
    const CNatural left =
        CNatural(decimal.digits).TimesPower(10, decimal.exponent).Shifted(std::max(-binary.exponent, 0));
    const CNatural right =
        CNatural(binary.mantissa).TimesPower(10, -decimal.exponent).Shifted(std::max(binary.exponent, 0));
    return left.CompareTo(right);
}

SBinaryModel BinaryOf(float value)
{
    constexpr int kFraction = 23, kBias = 150;
    const auto bits = std::bit_cast<std::uint32_t>(value) & 0x7FFFFFFF;
    const std::uint32_t fraction = bits & ((1u << kFraction) - 1);
    const int field = static_cast<int>(bits >> kFraction);
    return field == 0 ? SBinaryModel{fraction, 1 - kBias} : SBinaryModel{fraction | 1u << kFraction, field - kBias};
}

bool IsNearestSingle(const SDecimalModel& decimal, float magnitude)
{
    const auto bits = std::bit_cast<std::uint32_t>(magnitude);
    const bool even = bits % 2 == 0;
    const SBinaryModel exact = BinaryOf(magnitude);
    const int above = Compare(decimal, {2 * exact.mantissa + 1, exact.exponent - 1}); // half way to the next one
    if (above > 0 || (above == 0 && !even))
        return false;
    if (bits == 0)
        return true;
    const SBinaryModel previous = BinaryOf(std::bit_cast<float>(bits - 1));
    // The previous one may be of half the exponent's step.
    const int shift = exact.exponent - previous.exponent;
    const std::uint64_t sum = (exact.mantissa << shift) + previous.mantissa;
    const int below = Compare(decimal, {sum, previous.exponent - 1});
    return below > 0 || (below == 0 && even);
}

namespace
{

/// With the exponent of the finer one.
SDecimalModel Middle(SDecimalModel fine, SDecimalModel coarse)
{
    if (coarse.exponent < fine.exponent)
        std::swap(fine, coarse);
    for (; coarse.exponent > fine.exponent; --coarse.exponent)
        coarse.digits *= 10;
    return {(fine.digits + coarse.digits) * 5, fine.exponent - 1};
}

} // namespace

bool IsNearerToLower(const SDecimalModel& lower, const SDecimalModel& upper, float magnitude)
{
    return Compare(Middle(lower, upper), BinaryOf(magnitude)) > 0;
}

bool IsNearerToUpper(const SDecimalModel& lower, const SDecimalModel& upper, float magnitude)
{
    return Compare(Middle(lower, upper), BinaryOf(magnitude)) < 0;
}
