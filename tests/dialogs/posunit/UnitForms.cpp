#include "tests/dialogs/posunit/UnitForms.h"

#include "dialogs/posunit/HomeReturnDlg.h"
#include "dialogs/posunit/JogDlg.h"
#include "dialogs/posunit/PPointDlg.h"
#include "dialogs/posunit/PulsarDlg.h"
#include "tests/dialogs/posunit/AxisWords.h"
#include "tests/dialogs/posunit/EnteredNumbers.h"
#include "tests/resources/ExpectedUnit.h"
#include "tests/support/Controller.h"

#include <algorithm>
#include <stdexcept>

namespace
{

template <typename TDialog, auto... arguments>
std::unique_ptr<CWzdDlgBase> Make(CFunWizard* wizard)
{
    return std::make_unique<TDialog>(wizard, arguments..., nullptr);
}

SUnitForm PassingPoint()
{
    return {.name = "PPointPassing",
            .variant = 10030,
            .templateId = 1052,
            .title = "P point control  Passing point",
            .make = Make<CPPointDlg>,
            .controls = ExpectedPPoint,
            .slot = 3151,
            .axis = 3152,
            .start = 3153,
            .startRange = 3154,
            .registers = 6,
            .words = 6,
            .areas = {0x104, 0x114, 0x124, 0x134},
            .lists = {},
            .numbers = {{3155, 1, 4000000, 20024, 7, 0, "Target speed"},
                        {3156, 0, 32767, 20025, 5, 2, "Accel./Decel. time"},
                        {3157, -2147483648LL, 2147483647LL, 20026, 11, 4, "Position command value", false, "-100000"}}};
}

SUnitForm Jog(bool speedChange)
{
    SUnitForm form = {.name = speedChange ? "JogSpeedChange" : "Jog",
                      .variant = speedChange ? 10050 : 10040,
                      .templateId = speedChange ? 1054u : 1053u,
                      .title = speedChange ? "JOG operation Those with a speed change"
                                           : "JOG operation With no speed change",
                      .make = speedChange ? Make<CJogDlg, true> : Make<CJogDlg, false>,
                      .controls = speedChange ? ExpectedJogSpeedChange : ExpectedJog,
                      .slot = 3201,
                      .axis = 3202,
                      .start = 3203,
                      .startRange = 3204,
                      .registers = 8,
                      .words = 8,
                      .areas = {0x100, 0x110, 0x120, 0x130},
                      .lists = {{3205, 1, true},
                                {3206, 3, true},
                                {3051, 4},
                                {3052, 5},
                                {3054, 7},
                                {3061, 12},
                                {3065, 24},
                                {3066, 25},
                                {3071, 28}},
                      .numbers = {{3207, 0, 4000000, 20023, 7, 2, "Startup speed", false, "500"},
                                  {3208, 1, 4000000, 20024, 7, 4, "Target speed", speedChange, "1000"}},
                      .startBits = {3, 4},
                      .startType0Hides = 14,
                      .frameShare = 2};
    if (speedChange)
    {
        form.numbers.push_back({3209, 1, 4000000, 20024, 7, 4, "Target speed", true, "5000"});
        form.changeDevice = 3210;
        form.changeNumber = 3211;
        form.changeRange = 3212;
    }
    form.numbers.push_back({3213, 0, 32767, 20025, 5, 6, "Accel./decel. time"});
    return form;
}

SUnitForm HomeReturn()
{
    return {.name = "HomeReturn",
            .variant = 10070,
            .templateId = 1055,
            .title = "Home position return",
            .make = Make<CHomeReturnDlg>,
            .controls = ExpectedHomeReturn,
            .slot = 3251,
            .axis = 3252,
            .start = 3253,
            .startRange = 3254,
            .registers = 8,
            .words = 8,
            .areas = {0x100, 0x110, 0x120, 0x130},
            .lists = {{3255, 1, true},
                      {3257, 2, true},
                      {3256, 3, true},
                      {3051, 4},
                      {3052, 5},
                      {3053, 6, true},
                      {3054, 7},
                      {3061, 12},
                      {3065, 24},
                      {3066, 25},
                      {3071, 28},
                      {3258, 31}},
            .numbers = {{3259, 0, 4000000, 20023, 7, 2, "Startup speed", false, "500"},
                        {3260, 1, 4000000, 20024, 7, 4, "Target speed", false, "20000"},
                        {3261, 0, 32767, 20025, 5, 6, "Accel./decel. time"}},
            .startBits = {2}};
}

SUnitForm Pulsar()
{
    return {.name = "Pulsar",
            .variant = 10080,
            .templateId = 1056,
            .title = "Pulsar input operation",
            .make = Make<CPulsarDlg>,
            .controls = ExpectedPulsar,
            .slot = 3301,
            .axis = 3302,
            .start = 3303,
            .startRange = 3304,
            .registers = 6,
            .words = 2,
            .areas = {0x100, 0x110, 0x120, 0x130},
            .lists = {{3067, 16, true},
                      {3068, 17, true},
                      {3069, 18},
                      {3070, 20},
                      {3305, 8},
                      {3051, 4},
                      {3052, 5},
                      {3054, 7},
                      {3065, 24},
                      {3066, 25},
                      {3071, 28}},
            .numbers = {{3306, 1, 4000000, 20024, 7, 4, "Target speed"}},
            .startBits = {7}};
}

unsigned ControlCode(const SUnitForm& form, const SUnitEntries& entries)
{
    unsigned code = 0;
    for (size_t i = 0; i < form.lists.size(); ++i)
    {
        if (entries.items[i] >= 0)
            code += static_cast<unsigned>(entries.items[i]) << form.lists[i].shift;
        else if (form.lists[i].ends)
            break;
    }
    return code;
}

} // namespace

const std::vector<SUnitForm>& UnitForms()
{
    static const std::vector<SUnitForm> forms = {PassingPoint(), Jog(false), Jog(true), HomeReturn(), Pulsar()};
    return forms;
}

const SUnitForm& UnitForm(const std::string& name)
{
    for (const SUnitForm& form : UnitForms())
        if (form.name == name)
            return form;
    throw std::out_of_range(name);
}

std::ostream& operator<<(std::ostream& out, const SUnitForm& form) { return out << form.name; }

SUnitEntries::SUnitEntries(const SUnitForm& form) : items(form.lists.size())
{
    for (const SUnitNumber& number : form.numbers)
        numbers.push_back(number.usual);
}

std::vector<int> LastItems(const SUnitForm& form)
{
    std::vector<int> items;
    for (const SUnitList& list : form.lists)
        items.push_back(static_cast<int>(AxisFieldAt(list.shift).items.size()) - 1);
    return items;
}

DWORD CodeMask(const SUnitForm& form)
{
    DWORD mask = 0;
    for (const SUnitList& list : form.lists)
        mask |= ((DWORD{1} << AxisFieldAt(list.shift).width) - 1) << list.shift;
    return mask;
}

std::vector<std::pair<UINT, UINT>> CheckedEdits(const SUnitForm& form, bool startOutput)
{
    std::vector<std::pair<UINT, UINT>> edits = {
        {2052, 20029}, {form.slot, 20021}, {form.axis, 20022}, {form.start, 20003}};
    for (const SUnitNumber& number : form.numbers)
        edits.emplace_back(number.id, number.message);
    if (form.changeNumber != 0)
        edits.emplace_back(form.changeNumber, 20027);
    if (startOutput && form.HasStartOutput())
        edits.insert(edits.end(), {{2057, 20020}, {2059, 20030}});
    return edits;
}

std::string& EntryOf(SUnitEntries& entries, const SUnitForm& form, UINT edit)
{
    for (size_t i = 0; i < form.numbers.size(); ++i)
        if (form.numbers[i].id == edit)
            return entries.numbers[i];
    if (edit == form.slot)
        return entries.slot;
    if (edit == form.axis)
        return entries.axis;
    if (edit == form.start)
        return entries.start;
    if (edit == form.changeNumber)
        return entries.change;
    return edit == 2052 ? entries.contact : edit == 2057 ? entries.second : entries.word;
}

bool IsContactEdit(const SUnitForm& form, UINT edit)
{
    return edit == 2052 || edit == 2057 || (edit != 0 && edit == form.changeNumber);
}

SUnitOutcome UnitOutcome(const SUnitForm& form, const SUnitEntries& entries, const CFunWizard& wizard)
{
    CEntryChecks checks;
    const auto contactOf = [&](unsigned edit, int device, const std::string& text, unsigned message) {
        return checks.Check(edit, ContactNumber(device, text), DeviceBounds(wizard, device), message);
    };
    const SBounds registers = DeviceBounds(wizard, kDT);
    const int contact = contactOf(2052, entries.device, entries.contact, 20029);
    const int slot = checks.Check(form.slot, DecimalNumber(entries.slot), {0, wizard.GetMaxSlot() - 1}, 20021);
    const int axis = checks.Check(form.axis, DecimalNumber(entries.axis), {1, wizard.IsAxisType() != 0 ? 2 : 4}, 20022);
    const int n = checks.Check(form.start, DecimalNumber(entries.start),
                               {registers.low, registers.high - (form.registers - 1)}, 20003);
    std::vector<int> numbers;
    for (size_t i = 0; i < form.numbers.size(); ++i)
    {
        const SUnitNumber& number = form.numbers[i];
        numbers.push_back(
            checks.Check(number.id, DecimalNumber(entries.numbers[i]), {number.low, number.high}, number.message));
    }
    const int change =
        form.changeNumber == 0 ? 0 : contactOf(form.changeNumber, entries.changeDevice, entries.change, 20027);

    const bool hasGroup = form.HasStartOutput() && wizard.GetLoadInstance() != nullptr;
    const bool wanted = hasGroup && entries.startOutput && wizard.GetStartType() != 0;
    int second = contact, relay = 0;
    if (wanted)
    {
        const int bit = form.startBits[form.HasDirection() ? static_cast<size_t>(entries.direction) : 0];
        if (!entries.same)
            second = contactOf(2057, entries.secondDevice, entries.second, 20020);
        relay = (slot * 8 + axis + 9) * 16 + bit;
        if (wizard.GetStartType() != 1)
        {
            auto number = DecimalNumber(entries.word);
            if (number)
                *number = *number * 16 + bit;
            relay = checks.Check(2059, number, {32, DeviceBounds(wizard, kY).high}, 20030);
        }
    }
    SUnitOutcome outcome = {checks.m_message, checks.m_edit, {}};
    if (outcome.message != 0)
        return outcome;

    SResults& results = outcome.results;
    results.contacts = {{2, entries.device, contact}};
    if (form.changeNumber != 0)
        results.contacts.push_back({2, entries.changeDevice, change});
    if (wanted)
    {
        results.contacts.push_back({2, entries.same ? entries.device : entries.secondDevice, second});
        results.contacts.push_back({3, 2, relay});
    }
    results.operands = {{11, slot}, {9, n}, {11, form.words}, {12, form.areas.at(static_cast<size_t>(axis) - 1)}};
    if (form.HasCode())
    {
        results.data.push_back({9, n, 1, 1, static_cast<int>(ControlCode(form, entries))});
        results.comments.push_back("Control code");
    }
    for (size_t i = 0; i < form.numbers.size(); ++i)
    {
        results.data.push_back({9, n + form.numbers[i].offset, 1, 0, numbers[i]});
        results.comments.push_back(form.numbers[i].comment);
    }
    return outcome;
}

namespace
{

/// A contact is shown by its device, if the list has it, and by its number.
void ShowContact(const SContactRow& contact, int& device, std::string& number)
{
    device = contact.code;
    number = ContactText(contact.code, contact.number);
}

std::string ShownAxis(const SResults& stored)
{
    if (stored.operands.size() < 4 || stored.operands[3].code != 12)
        return "";
    for (int axis = 1; axis <= 4; ++axis)
        if (stored.operands[3].value >= 0xF0 + axis * 0x10 && stored.operands[3].value <= 0xFF + axis * 0x10)
            return std::to_string(axis);
    return "";
}

std::string ShownOperand(const SResults& stored, size_t position, int code)
{
    const bool holds = position < stored.operands.size() && stored.operands[position].code == code;
    return holds ? std::to_string(stored.operands[position].value) : "";
}

void ShowStartOutput(const SUnitForm& form, const SResults& stored, bool choosesOutput, SUnitEntries& shown)
{
    const auto& contacts = stored.contacts;
    const size_t count = contacts.size();
    shown.startOutput = count == 0 || (count >= 3 && contacts.back().code == kY);
    shown.same =
        count < 3 || (contacts[count - 2].code == contacts[0].code && contacts[count - 2].number == contacts[0].number);
    std::string number;
    if (!shown.same)
        ShowContact(contacts[count - 2], shown.secondDevice, number);
    if (count < 3 || !shown.startOutput)
        return;
    shown.second = number;
    const std::string relay = ContactText(kY, contacts.back().number);
    if (choosesOutput)
        shown.word = relay.substr(0, relay.size() - 1);
    shown.direction = form.HasDirection() && relay.back() == '4' ? 1 : 0;
}

} // namespace

SUnitEntries UnitShown(const SUnitForm& form, const SResults& stored, bool choosesOutput)
{
    SUnitEntries shown(form);
    shown.device = shown.changeDevice = shown.secondDevice = kX;
    shown.contact = shown.change = shown.second = shown.word = "";
    if (!stored.contacts.empty())
        ShowContact(stored.contacts[0], shown.device, shown.contact);
    if (stored.contacts.size() > 1)
        ShowContact(stored.contacts[1], shown.changeDevice, shown.change);
    shown.slot = ShownOperand(stored, 0, 11);
    shown.axis = ShownAxis(stored);
    shown.start = ShownOperand(stored, 1, 9);

    const auto isRegister = [&](size_t record) { return record < stored.data.size() && stored.data[record].code == 9; };
    const DWORD code = isRegister(0) ? static_cast<DWORD>(stored.data[0].value) : 0;
    for (size_t i = 0; i < form.lists.size(); ++i)
        shown.items[i] = ItemOf(code, AxisFieldAt(form.lists[i].shift));
    for (size_t i = 0; i < form.numbers.size(); ++i)
    {
        const size_t record = i + (form.HasCode() ? 1 : 0);
        shown.numbers[i] = isRegister(record) ? std::to_string(stored.data[record].value) : "";
    }
    ShowStartOutput(form, stored, choosesOutput, shown);
    return shown;
}
