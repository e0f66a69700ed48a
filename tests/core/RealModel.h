// Exact arithmetic for the tests of real numbers: decimal and binary fractions compared without rounding.
#pragma once

#include <cstdint>
#include <string>

/// digits x 10^exponent
struct SDecimalModel
{
    std::uint64_t digits;
    int exponent;

    /// As a text of the reader's notation.
    std::string Text() const { return std::to_string(digits) + "e" + std::to_string(exponent); }
};

/// mantissa x 2^exponent
struct SBinaryModel
{
    std::uint64_t mantissa;
    int exponent;
};

/// Below zero, zero, above zero, as the first is below, at, above the second.
int Compare(const SDecimalModel& decimal, const SBinaryModel& binary);

/// The magnitude of a finite number of single precision.
SBinaryModel BinaryOf(float value);

/// Whether a number of single precision is what rounding the decimal once gives: the nearest, of two the even one.
bool IsNearestSingle(const SDecimalModel& decimal, float magnitude);

/// Of two decimals, the first below the second: whether the number is nearer to the first, or to the second.
bool IsNearerToLower(const SDecimalModel& lower, const SDecimalModel& upper, float magnitude);
bool IsNearerToUpper(const SDecimalModel& lower, const SDecimalModel& upper, float magnitude);
