#include "tests/dialogs/posunit/EnteredNumbers.h"

#include "tests/support/Controller.h"

#include <limits>

namespace
{

bool IsCounted(int device) { return device == kT || device == kC; }

std::string Trimmed(const std::string& text)
{
    const char* blanks = " \t\n\v\f\r";
    const size_t first = text.find_first_not_of(blanks);
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// A decimal word and a hexadecimal bit.
std::optional<long long> BitNumber(const std::string& text)
{
    const std::string number = Trimmed(text);
    if (number.empty())
        return std::nullopt;
    const size_t bit = std::string("0123456789ABCDEF0123456789abcdef").find(number.back());
    const std::string word = number.substr(0, number.size() - 1);
    if (bit == std::string::npos || word.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    return (word.empty() ? 0 : std::stoll(word)) * 16 + static_cast<long long>(bit % 16);
}

} // namespace

// A number of more than eighteen digits is more than any range holds.
std::optional<long long> DecimalNumber(const std::string& text)
{
    std::string digits = Trimmed(text);
    if (digits.empty())
        return std::nullopt;
    const long long sign = digits[0] == '-' ? -1 : 1;
    if (sign < 0)
        digits.erase(0, 1);
    if (digits.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    digits.erase(0, digits.find_first_not_of('0'));
    if (digits.size() > 18)
        return sign * std::numeric_limits<long long>::max();
    return digits.empty() ? 0 : sign * std::stoll(digits);
}

std::optional<long long> ContactNumber(int device, const std::string& text)
{
    return IsCounted(device) ? DecimalNumber(text) : BitNumber(text);
}

std::string ContactText(int device, int number)
{
    if (IsCounted(device))
        return std::to_string(number);
    const int word = number / 16;
    return (word == 0 ? "" : std::to_string(word)) + "0123456789ABCDEF"[number % 16];
}

/// Nothing lies within the bounds of a device that the controller does not have.
SBounds DeviceBounds(const CFunWizard& wizard, int device)
{
    int low, high;
    if (!wizard.GetDevRange(-1, static_cast<short>(device), low, high))
        return {0, -1};
    return {low, high};
}

int CEntryChecks::Check(unsigned edit, std::optional<long long> number, SBounds bounds, unsigned message)
{
    constexpr unsigned kNoNumber = 20001;
    if (m_message != 0)
        return 0;
    if (number && *number >= bounds.low && *number <= bounds.high)
        return static_cast<int>(*number);
    m_message = number ? message : kNoNumber;
    m_edit = edit;
    return 0;
}
