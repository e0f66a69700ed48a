#include "tests/dialogs/pulse/Spd1Model.h"

#include <optional>

namespace
{

constexpr const char* kBlanks = " \t\n\v\f\r";
constexpr const char* kDigits = "0123456789";

std::string Trimmed(const std::string& text)
{
    const size_t first = text.find_first_not_of(kBlanks);
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Digits alone, or none. More than eighteen that count are more than any range holds.
long long Magnitude(const std::string& digits)
{
    const size_t first = digits.find_first_not_of('0');
    if (first == std::string::npos)
        return 0;
    return digits.size() - first > 18 ? 1'000'000'000'000'000'000 : std::stoll(digits.substr(first));
}

std::optional<long long> DecimalNumber(const std::string& text)
{
    const std::string trimmed = Trimmed(text);
    if (trimmed.empty())
        return std::nullopt;
    const bool negative = trimmed[0] == '-';
    const std::string digits = trimmed.substr(negative ? 1 : 0);
    if (digits.find_first_not_of(kDigits) != std::string::npos)
        return std::nullopt;
    return negative ? -Magnitude(digits) : Magnitude(digits);
}

// A decimal word and a hexadecimal bit; blanks between the digits count for nothing.
std::optional<long long> BitNumber(const std::string& text)
{
    const std::string trimmed = Trimmed(text);
    if (trimmed.empty())
        return std::nullopt;
    const size_t bit = std::string("0123456789ABCDEF0123456789abcdef").find(trimmed.back());
    std::string word;
    for (char c : trimmed.substr(0, trimmed.size() - 1))
    {
        if (c != ' ')
            word += c;
    }
    if (bit == std::string::npos || word.find_first_not_of(kDigits) != std::string::npos)
        return std::nullopt;
    return std::min(Magnitude(word), 1'000'000'000'000LL) * 16 + static_cast<long long>(bit % 16);
}

bool CountsInDecimal(int device) { return device == kT || device == kC || device == 18; }

class CChecks
{
public:
    explicit CChecks(SSpd1Outcome& outcome) : m_outcome(outcome) {}

    /// The number, or 0 once a check has failed.
    int Check(unsigned edit, std::optional<long long> number, SSpd1Range range, unsigned message)
    {
        if (m_outcome.message != 0)
            return 0;
        if (number && *number >= range.low && *number <= range.high)
            return static_cast<int>(*number);
        m_outcome.message = number ? message : 20001;
        m_outcome.edit = edit;
        return 0;
    }

private:
    SSpd1Outcome& m_outcome;
};

constexpr int kModes[2][6] = {{0x00, 0x02, 0x03, 0x10, 0x12, 0x13}, {0x20, 0x22, 0x23, 0x24, 0x26, 0x27}};

} // namespace

std::ostream& operator<<(std::ostream& out, ESpd1Variant variant)
{
    return out << (variant == kTrapezoidal ? "trapezoidal" : "home return");
}

SSpd1Range Spd1StartRange(ESpd1Variant variant, const SSpd1Limits& limits)
{
    return {limits.registers.low, limits.registers.high - (variant == kTrapezoidal ? 6 : 3)};
}

SSpd1Outcome Spd1Outcome(ESpd1Variant variant, const SSpd1Entries& entries, const SSpd1Limits& limits)
{
    SSpd1Outcome outcome;
    CChecks checks(outcome);
    const auto contact = CountsInDecimal(entries.device) ? DecimalNumber(entries.contact) : BitNumber(entries.contact);
    const SSpd1Range speeds = {40, entries.width == 0 ? 6000 : 9500};

    const int number = checks.Check(2052, contact, limits.contact, 20020);
    const int n = checks.Check(2101, DecimalNumber(entries.start), Spd1StartRange(variant, limits), 20003);
    const int initial = checks.Check(2106, DecimalNumber(entries.initial), {40, 5000}, 20004);
    const int maximum = checks.Check(2107, DecimalNumber(entries.maximum), speeds, 20005);
    const int time = checks.Check(2108, DecimalNumber(entries.time), {30, 32767}, 20006);
    int target = 0;
    if (variant == kTrapezoidal)
        target = checks.Check(2110, DecimalNumber(entries.target), {-8388608, 8388607}, 20007);
    if (outcome.message != 0)
        return outcome;

    const int code = kModes[variant][entries.mode] + (entries.width == 1 ? 0x100 : 0);
    outcome.results.contacts = {{2, entries.device, number}};
    outcome.results.operands = {{9, n}, {11, entries.output}};
    outcome.results.data = {
        {9, n, 0, 1, code}, {9, n + 1, 0, 0, initial}, {9, n + 2, 0, 0, maximum}, {9, n + 3, 0, 0, time}};
    outcome.results.comments = {"Control code", "Initial speed", "Maximum speed", "Acceleration/deceleration time"};
    if (variant == kTrapezoidal)
    {
        outcome.results.data.push_back({9, n + 4, 1, 0, target});
        outcome.results.data.push_back({9, n + 6, 0, 0, 0});
        outcome.results.comments.push_back("Target value");
    }
    return outcome;
}

std::string BitNumberText(int number)
{
    const std::string word = number < 16 ? "" : std::to_string(number / 16);
    return word + "0123456789ABCDEF"[number % 16];
}
