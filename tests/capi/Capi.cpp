#include "tests/capi/Capi.h"

#include "capi/Handles.h"
#include "tests/core/FunWizardTest.h"

#include <stdexcept>

CFunWizard& WizardOf(PexloHandle handle)
{
    const CHandleUse use(handle);
    if (use.Error() != 0)
        throw std::runtime_error("no handle of this thread");
    return use.Wizard();
}

// ---- Reading --------------------------------------------------------------------------------------------------------

namespace
{

/// `get` writes into a buffer and returns what the text needs.
template <typename TGet>
std::string TextBy(TGet get)
{
    const int needed = get(nullptr, 0);
    if (needed <= 0)
        return "failed: " + std::to_string(needed);
    std::vector<char> text(static_cast<size_t>(needed));
    EXPECT_EQ(get(text.data(), needed), needed);
    EXPECT_EQ(text.back(), '\0');
    return text.data();
}

} // namespace

std::string Comment(PexloHandle handle, int index)
{
    return TextBy([=](char* buffer, int size) { return Pexlo_GetCmtInfo(handle, index, buffer, size); });
}

std::string CommentUtf8(PexloHandle handle, int index)
{
    return TextBy([=](char* buffer, int size) { return Pexlo_GetCmtInfoUtf8(handle, index, buffer, size); });
}

SResults ReadResults(PexloHandle handle)
{
    SResults results;
    int kind, code, value, flag1, flag2;
    for (int i = 0; Pexlo_GetContInfo(handle, i, &kind, &code, &value) == 1; ++i)
        results.contacts.push_back({kind, code, value});
    for (int i = 0; Pexlo_GetOprdInfo(handle, i, &code, &value) == 1; ++i)
        results.operands.push_back({code, value});
    auto data = Sized<PexloData>();
    for (int i = 0; Pexlo_GetDataInfo(handle, i, &data) == 1; ++i)
        results.data.push_back({data.code, data.number, data.type, data.format, data.value});
    for (int i = 0; i < Pexlo_GetCmtInfoCount(handle); ++i)
        results.comments.push_back(Comment(handle, i));
    for (int i = 0; Pexlo_GetInstCode(handle, i, &kind, &code, &value, &flag1, &flag2) == 1; ++i)
        results.instructions.push_back({kind, code, value, flag1, flag2});
    return results;
}

SKeptState StateOf(PexloHandle handle)
{
    const CFunWizard& wizard = WizardOf(handle);
    return {ReadResults(handle),
            {wizard.IsAxisType(), wizard.IsCmtRec(), wizard.IsOnlyDataTable(), wizard.GetPlcType(),
             wizard.GetF175DispType(), wizard.GetStartType(), SFunWizardTest::UnitMode(wizard),
             SFunWizardTest::LastInstruction(wizard), SFunWizardTest::LastVariant(wizard)},
            wizard.GetDlgDataPtr()};
}

std::ostream& operator<<(std::ostream& out, const SKeptState& state)
{
    out << state.results << "state:";
    for (const int number : state.numbers)
        out << ' ' << number;
    return out << ' ' << state.dialogData << '\n';
}

// ---- Filling --------------------------------------------------------------------------------------------------------

std::ostream& operator<<(std::ostream& out, const STextEntry& entry)
{
    return out << (entry.control != 0 ? std::to_string(entry.control) : entry.name) << " = \"" << entry.text << '"';
}

std::vector<PexloEntry> Passed(const CTextEntries& entries)
{
    std::vector<PexloEntry> passed;
    for (const STextEntry& entry : entries)
        passed.push_back(
            {sizeof(PexloEntry), entry.control, entry.control != 0 ? nullptr : entry.name.c_str(), entry.text.c_str()});
    return passed;
}

PexloForm FormOf(int instruction, int variant)
{
    auto form = Sized<PexloForm>();
    form.instruction = instruction;
    form.variant = variant;
    form.axisFlag = 1;
    form.workArea = 30;
    return form;
}

std::ostream& operator<<(std::ostream& out, const SOutcome& outcome)
{
    const PexloRefusal& refusal = outcome.refusal;
    out << "result " << outcome.result;
    if (refusal.reason != 0)
        out << ", reason " << refusal.reason << ", message " << refusal.messageId << ", control " << refusal.control
            << " (" << refusal.name << "), entry " << refusal.entry << ", cell " << refusal.row << '/' << refusal.column
            << ": " << refusal.message;
    return out;
}

SOutcome Fill(PexloHandle handle, PexloForm& form, const CTextEntries& entries)
{
    SOutcome outcome = {0, Sized<PexloRefusal>()};
    const auto passed = Passed(entries);
    outcome.result = Pexlo_Fill(handle, &form, passed.data(), static_cast<int>(passed.size()), &outcome.refusal);
    return outcome;
}

SOutcome Check(PexloHandle handle, const PexloForm& form, const CTextEntries& entries)
{
    SOutcome outcome = {0, Sized<PexloRefusal>()};
    const auto passed = Passed(entries);
    outcome.result = Pexlo_Check(handle, &form, passed.data(), static_cast<int>(passed.size()), &outcome.refusal);
    return outcome;
}

const PexloField& SDescribed::Field(const std::string& name) const
{
    for (const PexloField& field : fields)
        if (field.name == name)
            return field;
    throw std::out_of_range("no field " + name);
}

SDescribed Describe(PexloHandle handle, const PexloForm& form, const CTextEntries& entries)
{
    constexpr size_t kEnough = 100;
    SDescribed described = {0, SizedArray<PexloField>(kEnough), Sized<PexloRefusal>()};
    const auto passed = Passed(entries);
    described.result = Pexlo_DescribeFields(handle, &form, passed.data(), static_cast<int>(passed.size()),
                                            described.fields.data(), kEnough, &described.refusal);
    described.fields.resize(static_cast<size_t>(std::max(described.result, 0)));
    return described;
}

std::string FieldText(PexloHandle handle, int field)
{
    return TextBy([=](char* buffer, int size) { return Pexlo_GetFieldText(handle, field, buffer, size); });
}

std::vector<PexloItem> FieldItems(PexloHandle handle, int field)
{
    std::vector<PexloItem> items;
    auto item = Sized<PexloItem>();
    for (int i = 0; Pexlo_GetFieldItem(handle, field, i, &item) == 1; ++i)
        items.push_back(item);
    return items;
}

// ---- Every dialog ---------------------------------------------------------------------------------------------------

std::ostream& operator<<(std::ostream& out, const SFormRow& row) { return out << row.name; }

const std::vector<SFormRow>& FormRows()
{
    static const std::vector<SFormRow> rows = {
        {"F168", "compact", 168, 0},
        {"F168Home", "compact", 168, 1},
        {"F169", "compact", 169},
        {"F170", "compact", 170},
        {"F171", "large", 171, 0},
        {"F171Home", "large", 171, 1},
        {"F172", "large", 172},
        {"F173", "large", 173},
        {"F174", "large", 174},
        {"F175", "large", 175, 0, 0},
        {"F175FirstChannel", "large", 175, 0, 1},
        {"F175OtherAxes", "large", 175, 0, 2},
        {"F176", "large", 176},
        {"F171B", "family-b", 171, 0},
        {"F171HomeB", "family-b", 171, 1},
        {"F172B", "family-b", 172},
        {"F173B", "family-b", 173},
        {"F174B", "family-b", 174},
        {"F175B", "family-b", 175},
        {"F177B", "family-b", 177},
        {"F171C", "family-c", 171, 0},
        {"F171HomeC", "family-c", 171, 1},
        {"F172C", "family-c", 172},
        {"F173C", "family-c", 173},
        {"F174C", "family-c", 174},
        {"F175C", "family-c", 175},
        {"EPoint", "large", 151, 10010},
        {"EPointStart0", "large", 151, 10010, 0, 0},
        {"EPointStart1", "large", 151, 10010, 0, 1},
        {"PPointStart", "large", 151, 10020},
        {"PPointPassing", "large", 151, 10030},
        {"Jog", "large", 151, 10040},
        {"JogStart0", "large", 151, 10040, 0, 0},
        {"JogSpeedChange", "large", 151, 10050},
        {"JogPositioning", "large", 151, 10060},
        {"HomeReturn", "large", 151, 10070},
        {"Pulsar", "large", 151, 10080},
        {"Pid", "large", 355},
        {"Screen", "large", 180},
        {"Scal", "large", 282},
        {"Dscal", "large", 283},
        {"Fscal", "large", 354},
        {"ControlCode", "large", PEXLO_FORM_CONTROL_CODE},
    };
    return rows;
}

void Prepare(PexloHandle handle, const SFormRow& row, int language)
{
    CFunWizard& wizard = WizardOf(handle);
    FindPlcPreset(row.plc)->Configure(wizard);
    wizard.SetF175DispType(static_cast<unsigned short>(row.display175));
    wizard.SetStartType(static_cast<unsigned char>(row.startType));
    wizard.SetLanguageInfo(language);
}

CTextEntries AcceptedEntries(PexloHandle handle, const PexloForm& form, bool highest)
{
    CTextEntries entries;
    const auto set = [&](const std::string& name, const std::string& text) {
        for (STextEntry& entry : entries)
            if (entry.name == name)
            {
                entry.text = text;
                return;
            }
        entries.emplace_back(name, text);
    };
    for (int round = 0; round < 30; ++round)
    {
        const SDescribed described = Describe(handle, form, entries);
        const auto refused =
            std::find_if(described.fields.begin(), described.fields.end(),
                         [](const PexloField& field) { return field.problem != 0 && field.enabled != 0; });
        if (refused == described.fields.end())
            return entries;
        if (refused->kind == PEXLO_FIELD_TABLE)
            set(refused->name, "100\t100\n200\t200");
        else
            set(refused->name, highest ? refused->highest : refused->lowest);
    }
    return entries;
}
