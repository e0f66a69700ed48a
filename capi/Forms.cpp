// The wizards without windows, through the C interface.
#include "capi/Handles.h"
#include "capi/Structures.h"
#include "capi/Texts.h"
#include "core/Devices.h"
#include "core/KeptResults.h"
#include "core/OpenWizard.h"
#include "core/ResourceScope.h"
#include "dialogs/base/Catalogue.h"

#include <limits>
#include <optional>

namespace
{

constexpr int kMostEntries = 0x10000;

bool IsPulseInstruction(int instruction) { return instruction >= kInstructionSpd1 && instruction <= kInstructionF177; }

/// The `kind` by which DoOpenSCALDlg knows a scaling instruction; nothing for any other.
std::optional<int> ScalingKind(int instruction)
{
    switch (instruction)
    {
    case kInstructionScal:
        return 0;
    case kInstructionDscal:
        return 1;
    case kInstructionFscal:
        return 2;
    default:
        return std::nullopt;
    }
}

bool IsKnown(int instruction)
{
    return IsPulseInstruction(instruction) || ScalingKind(instruction) || instruction == PEXLO_FORM_UNIT ||
           instruction == PEXLO_FORM_CONTROL_CODE || instruction == kInstructionScreen ||
           instruction == kInstructionPid;
}

bool HasVariants(int instruction) { return IsPulseInstruction(instruction) || instruction == PEXLO_FORM_UNIT; }

/// Opens the dialog of a form as a host does.
int OpenForm(CFunWizard& wizard, PexloForm& form)
{
    ULONGLONG masks[4];
    std::copy(std::begin(form.permitted), std::end(form.permitted), masks);
    ULONGLONG* const permitted = form.restricted != 0 ? masks : nullptr;
    if (IsPulseInstruction(form.instruction))
        return wizard.DoOpenPosDlg(kPulseInstructions, 1, nullptr);
    if (const auto kind = ScalingKind(form.instruction))
        return wizard.DoOpenSCALDlg(permitted, *kind, nullptr);
    switch (form.instruction)
    {
    case PEXLO_FORM_UNIT:
        return wizard.DoOpenPosDlg(kUnitOperations, static_cast<unsigned char>(form.axisFlag), nullptr);
    case kInstructionPid:
        return wizard.DoOpenPIDDlg(form.workArea, nullptr);
    case kInstructionScreen:
        return wizard.DoOpenSCRDlg(permitted, nullptr);
    default: {
        ULONG code = form.controlCode;
        const int result = wizard.DoInputPosCtrlDlg(code, nullptr);
        form.controlCode = static_cast<unsigned int>(code);
        return result;
    }
    }
}

/// What a call passes, read and checked.
struct SFormCall
{
    PexloForm form = {};
    std::vector<SFormEntry> entries;

    SWizardChoice Choice() const { return {form.instruction, form.variant}; }
};

/// 0, or the result with which the operation is to return.
int ReadCall(const PexloForm* form, const PexloEntry* entries, int count, SFormCall& call)
{
    if (form == nullptr || count < 0 || count > kMostEntries || (entries == nullptr && count > 0))
        return PEXLO_E_ARGUMENT;
    if (!ReadStructure(form, call.form))
        return PEXLO_E_SIZE;
    if (!IsKnown(call.form.instruction) || (call.form.variant != 0 && !HasVariants(call.form.instruction)))
        return PEXLO_E_INSTRUCTION;
    if (!Fits<unsigned char>(call.form.axisFlag))
        return PEXLO_E_ARGUMENT;
    for (int i = 0; i < count; ++i)
    {
        PexloEntry entry = {};
        const PexloEntry* const passed = ElementAt(entries, i);
        if (passed->size != entries->size || !ReadStructure(passed, entry))
            return PEXLO_E_SIZE;
        const bool isNamed = entry.control != 0 || (entry.name != nullptr && *entry.name != '\0');
        if (!isNamed || entry.control < 0)
            return PEXLO_E_ARGUMENT;
        call.entries.push_back({static_cast<UINT>(entry.control), entry.name != nullptr ? entry.name : "",
                                entry.text != nullptr ? entry.text : ""});
    }
    return 0;
}

void Tell(const SFormRefusal& refusal, PexloRefusal* told)
{
    if (told == nullptr)
        return;
    PexloRefusal known = {};
    known.reason = refusal.problem;
    known.messageId = static_cast<int>(refusal.message);
    known.control = static_cast<int>(refusal.control);
    known.entry = refusal.entry;
    known.row = refusal.row;
    known.column = refusal.column;
    // They may quote what the host has passed, which may be no UTF-8.
    CopyTo(known.name, static_cast<LPCSTR>(FromUtf8(refusal.name.c_str(), CP_UTF8)));
    CopyTo(known.message, static_cast<LPCSTR>(FromUtf8(refusal.text.c_str(), CP_UTF8)));
    WriteStructure(told, known);
}

/// Runs the dialog of a form for a user who does not see it. 0 when it went as it could, and then `result` is that of
/// the dialog.
int RunUnseen(CFunWizard& wizard, SFormCall& call, CFormFiller& user, int& result)
{
    if (COpenWizard::IsOpen(&wizard))
        return PEXLO_E_BUSY;
    const CUnseenScope scope(user);
    result = OpenForm(wizard, call.form);
    return user.IsOffered() ? 0 : PEXLO_E_INSTRUCTION;
}

/// What a form's dialog may change.
CKeptResults KeptBefore(CFunWizard& wizard, const PexloForm& form)
{
    if (form.instruction == PEXLO_FORM_CONTROL_CODE)
        return CKeptResults(wizard);
    return CKeptResults(wizard, form.instruction, form.variant);
}

int FillForm(CFunWizard& wizard, SFormCall& call, PexloRefusal* refusal, bool keeps)
{
    CKeptResults before = KeptBefore(wizard, call.form);
    CFormFiller user(call.Choice(), call.entries, keeps);
    int result = 0;
    if (const int error = RunUnseen(wizard, call, user, result))
        return error;
    const bool isAccepted = result == IDOK;
    Tell(isAccepted ? SFormRefusal() : user.Refusal(), refusal);
    if (isAccepted && keeps)
        before.GiveUp();
    return isAccepted ? IDOK : IDCANCEL;
}

int ClampToInt(LONGLONG value)
{
    return static_cast<int>(
        std::clamp<LONGLONG>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

/// `TTold` is a field or an item.
template <typename TTold>
void TellNumbers(const std::optional<SFieldNumbers>& numbers, TTold& told)
{
    told.hasRange = numbers.has_value();
    if (!numbers)
        return;
    told.low = ClampToInt(numbers->range.low);
    told.high = ClampToInt(numbers->range.high);
    told.decimals = numbers->decimals;
    CopyTo(told.lowest, numbers->lowest);
    CopyTo(told.highest, numbers->highest);
}

PexloField ToField(const SFieldDescription& field)
{
    PexloField told = {};
    told.control = static_cast<int>(field.control);
    told.kind = field.kind;
    told.enabled = field.enabled;
    told.limit = field.limit;
    told.digitsOnly = field.digitsOnly;
    told.itemCount = static_cast<int>(field.items.size());
    told.selected = field.selected;
    told.mostRows = field.mostRows;
    TellNumbers(field.numbers, told);
    told.messageId = static_cast<int>(field.message);
    told.problem = static_cast<int>(field.problem);
    told.inTable = field.entry.count > 0;
    if (told.inTable)
    {
        told.offset = ClampToInt(field.entry.offset);
        told.registers = ClampToInt(field.entry.Registers());
    }
    told.bitShift = field.bits.shift;
    told.bitWidth = field.bits.width;
    CopyTo(told.name, field.name);
    CopyTo(told.label, field.label);
    CopyTo(told.text, field.text);
    return told;
}

} // namespace

int PEXLO_CALL Pexlo_Fill(PexloHandle handle, PexloForm* form, const PexloEntry* entries, int count,
                          PexloRefusal* refusal)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        SFormCall call;
        if (const int error = ReadCall(form, entries, count, call))
            return error;
        if (refusal != nullptr && !HasRoom(refusal))
            return PEXLO_E_SIZE;
        const int result = FillForm(wizard, call, refusal, true);
        if (result == IDOK)
            form->controlCode = call.form.controlCode;
        return result;
    });
}

int PEXLO_CALL Pexlo_Check(PexloHandle handle, const PexloForm* form, const PexloEntry* entries, int count,
                           PexloRefusal* refusal)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        SFormCall call;
        if (const int error = ReadCall(form, entries, count, call))
            return error;
        if (refusal != nullptr && !HasRoom(refusal))
            return PEXLO_E_SIZE;
        return FillForm(wizard, call, refusal, false);
    });
}

int PEXLO_CALL Pexlo_DescribeFields(PexloHandle handle, const PexloForm* form, const PexloEntry* entries, int count,
                                    PexloField* fields, int capacity, PexloRefusal* refusal)
{
    return OnObject(handle, [=](SPexloObject& object) -> int {
        SFormCall call;
        if (const int error = ReadCall(form, entries, count, call))
            return error;
        if (capacity < 0 || (fields == nullptr && capacity > 0))
            return PEXLO_E_ARGUMENT;
        if ((refusal != nullptr && !HasRoom(refusal)) || (capacity > 0 && !HasRoom(fields)))
            return PEXLO_E_SIZE;

        const CKeptResults before = KeptBefore(*object.wizard, call.form);
        CFormDescriber user(call.Choice(), call.entries, false);
        int result = 0;
        if (const int error = RunUnseen(*object.wizard, call, user, result))
            return error;
        const int found = static_cast<int>(user.Fields().size());
        const int told = std::min(found, capacity);
        for (int i = 1; i < told; ++i)
            if (ElementAt(fields, i)->size != fields->size)
                return PEXLO_E_SIZE;
        Tell(user.Refusal(), refusal);
        object.fields = user.Fields();
        object.caption = user.Caption();
        // The first one is written last: its size tells where the others are.
        for (int i = told - 1; i >= 0; --i)
            WriteStructure(ElementAt(fields, i), ToField(object.fields[static_cast<size_t>(i)]));
        return found;
    });
}

int PEXLO_CALL Pexlo_GetFieldItem(PexloHandle handle, int field, int item, PexloItem* info)
{
    return OnObject(handle, [=](SPexloObject& object) -> int {
        if (info == nullptr)
            return PEXLO_E_ARGUMENT;
        if (!HasRoom(info))
            return PEXLO_E_SIZE;
        if (field < 0 || field >= static_cast<int>(object.fields.size()))
            return 0;
        const auto& items = object.fields[static_cast<size_t>(field)].items;
        if (item < 0 || item >= static_cast<int>(items.size()))
            return 0;
        const SFieldItem& found = items[static_cast<size_t>(item)];
        PexloItem known = {};
        known.code = static_cast<unsigned int>(found.code);
        known.limit = found.limit;
        TellNumbers(found.numbers, known);
        CopyTo(known.text, found.text);
        WriteStructure(info, known);
        return 1;
    });
}

int PEXLO_CALL Pexlo_GetFieldText(PexloHandle handle, int field, char* buffer, int size)
{
    return OnObject(handle, [=](SPexloObject& object) -> int {
        if (size < 0)
            return PEXLO_E_ARGUMENT;
        if (field < -1 || field >= static_cast<int>(object.fields.size()))
            return 0;
        return CopyOut(field < 0 ? object.caption : object.fields[static_cast<size_t>(field)].text, buffer, size,
                       CP_UTF8);
    });
}

int PEXLO_CALL Pexlo_GetOffer(PexloHandle handle, int index, PexloOffer* offer)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (offer == nullptr)
            return PEXLO_E_ARGUMENT;
        if (!HasRoom(offer))
            return PEXLO_E_SIZE;
        std::vector<SCatalogueItem> items;
        for (const SCatalogueItem& item : CatalogueItems(kPulseInstructions, wizard.GetPlcType()))
            if (wizard.FindSupportFun(item.choice.instruction))
                items.push_back(item);
        for (const SCatalogueItem& item : CatalogueItems(kUnitOperations, wizard.GetPlcType()))
            items.push_back(item);
        for (const int instruction : {int{kInstructionPid}, int{kInstructionScreen}, int{kInstructionScal},
                                      int{kInstructionDscal}, int{kInstructionFscal}, PEXLO_FORM_CONTROL_CODE})
            items.push_back({0, {instruction, 0}});
        if (index < 0 || index >= static_cast<int>(items.size()))
            return 0;
        const SCatalogueItem& item = items[static_cast<size_t>(index)];
        PexloOffer known = {0, item.choice.instruction, item.choice.variant, ""};
        const CResourceScope scope(wizard.GetLoadInstance());
        CString text;
        if (item.text != 0)
            text.LoadString(item.text);
        CopyTo(known.text, static_cast<LPCSTR>(ToUtf8(text, AfxGetTextPage())));
        WriteStructure(offer, known);
        return 1;
    });
}
