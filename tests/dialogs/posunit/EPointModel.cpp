#include "tests/dialogs/posunit/EPointModel.h"

#include <limits>
#include <optional>

namespace
{

constexpr unsigned kNoNumber = 20001;
constexpr int kWordsMoved = 10;

struct SBounds
{
    long long low;
    long long high;
};

std::string Trimmed(const std::string& text)
{
    const char* blanks = " \t\n\v\f\r";
    const size_t first = text.find_first_not_of(blanks);
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

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

std::optional<long long> ContactNumber(int device, const std::string& text)
{
    return device == kT || device == kC ? DecimalNumber(text) : BitNumber(text);
}

/// Nothing lies within the bounds of a device that the controller does not have.
SBounds DeviceBounds(const CFunWizard& wizard, int device)
{
    int low, high;
    if (!wizard.GetDevRange(-1, static_cast<short>(device), low, high))
        return {0, -1};
    return {low, high};
}

class CChecks
{
public:
    explicit CChecks(SEPointOutcome& outcome) : m_outcome(outcome) {}

    /// The number, or 0 once a check has failed.
    int Check(unsigned edit, std::optional<long long> number, SBounds bounds, unsigned message)
    {
        if (m_outcome.message != 0)
            return 0;
        if (number && *number >= bounds.low && *number <= bounds.high)
            return static_cast<int>(*number);
        m_outcome.message = number ? message : kNoNumber;
        m_outcome.edit = edit;
        return 0;
    }

private:
    SEPointOutcome& m_outcome;
};

unsigned ControlCode(const SEPointEntries& entries)
{
    unsigned code = 0;
    for (size_t i = 0; i < entries.items.size(); ++i)
        code += static_cast<unsigned>(entries.items[i]) << kEPointCombos[i].shift;
    return code;
}

} // namespace

std::ostream& operator<<(std::ostream& out, EEPointForm form)
{
    return out << (form == kEPointForm ? "E point" : form == kPPointStartForm ? "P point start" : "JOG positioning");
}

std::string& EntryOf(SEPointEntries& entries, UINT edit)
{
    switch (edit)
    {
    case 2052:
        return entries.contact;
    case 3104:
        return entries.slot;
    case 3103:
        return entries.axis;
    case 3101:
        return entries.start;
    case 3108:
        return entries.startup;
    case 3109:
        return entries.target;
    case 3110:
        return entries.time;
    case 3111:
        return entries.position;
    case 2057:
        return entries.second;
    default:
        return entries.word;
    }
}

bool Counts(UINT edit, const SEPointEntries& entries, const CFunWizard& wizard)
{
    const bool hasGroup = wizard.GetLoadInstance() != nullptr;
    const bool wanted = hasGroup && entries.startOutput && wizard.GetStartType() != 0;
    return edit == 2057 ? wanted && !entries.same : edit == 2059 ? wanted && wizard.GetStartType() == 2 : true;
}

int StartBit(EEPointForm form) { return form == kEPointForm ? 0 : form == kPPointStartForm ? 1 : 8; }

SEPointOutcome EPointOutcome(EEPointForm form, const SEPointEntries& entries, const CFunWizard& wizard)
{
    SEPointOutcome outcome;
    CChecks checks(outcome);
    const SBounds registers = DeviceBounds(wizard, kDT);
    const int contact =
        checks.Check(2052, ContactNumber(entries.device, entries.contact), DeviceBounds(wizard, entries.device), 20029);
    const int slot = checks.Check(3104, DecimalNumber(entries.slot), {0, wizard.GetMaxSlot() - 1}, 20021);
    const int axis = checks.Check(3103, DecimalNumber(entries.axis), {1, wizard.IsAxisType() != 0 ? 2 : 4}, 20022);
    const int n =
        checks.Check(3101, DecimalNumber(entries.start), {registers.low, registers.high - (kWordsMoved - 1)}, 20003);
    const int startup = checks.Check(3108, DecimalNumber(entries.startup), {0, 4000000}, 20023);
    const int target = checks.Check(3109, DecimalNumber(entries.target), {1, 4000000}, 20024);
    const int time = checks.Check(3110, DecimalNumber(entries.time), {0, 32767}, 20025);
    const int position = checks.Check(3111, DecimalNumber(entries.position), {-2147483648LL, 2147483647LL}, 20026);

    const bool wanted = wizard.GetLoadInstance() != nullptr && entries.startOutput && wizard.GetStartType() != 0;
    int second = contact;
    if (Counts(2057, entries, wizard))
        second = checks.Check(2057, ContactNumber(entries.secondDevice, entries.second),
                              DeviceBounds(wizard, entries.secondDevice), 20020);
    int relay = (slot * 8 + axis + 9) * 16 + StartBit(form);
    if (Counts(2059, entries, wizard))
    {
        auto number = DecimalNumber(entries.word);
        if (number)
            *number = *number * 16 + StartBit(form);
        relay = checks.Check(2059, number, {32, DeviceBounds(wizard, kY).high}, 20030);
    }
    if (outcome.message != 0)
        return outcome;

    SResults& results = outcome.results;
    results.contacts = {{2, entries.device, contact}};
    if (wanted)
    {
        results.contacts.push_back({2, entries.same ? entries.device : entries.secondDevice, second});
        results.contacts.push_back({3, 2, relay});
    }
    results.operands = {{11, slot}, {9, n}, {11, kWordsMoved}, {12, 0x100 + 0x10 * (axis - 1)}};
    results.data = {{9, n, 1, 1, static_cast<int>(ControlCode(entries))},
                    {9, n + 2, 1, 0, startup},
                    {9, n + 4, 1, 0, target},
                    {9, n + 6, 1, 0, time},
                    {9, n + 8, 1, 0, position}};
    results.comments = {"Control code", "Startup speed", "Target speed", "Accel./decel. time",
                        "Position command value"};
    return outcome;
}
