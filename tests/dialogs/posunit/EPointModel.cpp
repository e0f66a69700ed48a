#include "tests/dialogs/posunit/EPointModel.h"

#include "tests/dialogs/posunit/EnteredNumbers.h"

namespace
{

constexpr int kWordsMoved = 10;

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
    CEntryChecks checks;
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
    outcome.message = checks.m_message;
    outcome.edit = checks.m_edit;
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
