// The settings of a wizard object, and its picture of the PLC, through the C interface.
#include "capi/Handles.h"
#include "dialogs/process/ScreenSettings.h"

#include <algorithm>
#include <cstring>

namespace
{

/// An operation that sets a number of a narrower type.
template <typename TNumber, typename TOperation>
int DoWith(PexloHandle handle, int number, TOperation operation)
{
    return OnWizard(handle, [&](CFunWizard& wizard) -> int {
        if (!Fits<TNumber>(number))
            return PEXLO_E_ARGUMENT;
        operation(wizard, static_cast<TNumber>(number));
        return 1;
    });
}

} // namespace

int PEXLO_CALL Pexlo_GetVersion(void)
{
    return PEXLO_VERSION_MAJOR << 16 | PEXLO_VERSION_MINOR << 8 | PEXLO_VERSION_PATCH;
}

PexloHandle PEXLO_CALL Pexlo_Create(void) { return CHandleUse::Create(); }
int PEXLO_CALL Pexlo_Destroy(PexloHandle handle) { return CHandleUse::Destroy(handle); }
int PEXLO_CALL Pexlo_TakeOver(PexloHandle handle) { return CHandleUse::TakeOver(handle); }

// ---- The PLC --------------------------------------------------------------------------------------------------------

int PEXLO_CALL Pexlo_SetPlcType(PexloHandle handle, int type)
{
    return DoWith<unsigned char>(handle, type,
                                 [](CFunWizard& wizard, unsigned char value) { wizard.SetPlcType(value); });
}

int PEXLO_CALL Pexlo_GetPlcType(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.GetPlcType(); });
}

int PEXLO_CALL Pexlo_SetDevRange(PexloHandle handle, int kind, int code, int low, int high)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (!Fits<short>(kind) || !Fits<short>(code))
            return PEXLO_E_ARGUMENT;
        wizard.SetDevRange(static_cast<short>(kind), static_cast<short>(code), low, high);
        return 1;
    });
}

int PEXLO_CALL Pexlo_GetDevRange(PexloHandle handle, int kind, int code, int* low, int* high)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (low == nullptr || high == nullptr || !Fits<short>(kind) || !Fits<short>(code))
            return PEXLO_E_ARGUMENT;
        return wizard.GetDevRange(static_cast<short>(kind), static_cast<short>(code), *low, *high);
    });
}

int PEXLO_CALL Pexlo_GetSeqDevInfo(PexloHandle handle, int index, int* kind, int* code, int* bitKind, int options)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (kind == nullptr || code == nullptr || bitKind == nullptr || !Fits<unsigned char>(options))
            return PEXLO_E_ARGUMENT;
        short foundKind, foundCode;
        auto foundBitKind = static_cast<unsigned char>(*bitKind);
        const int result =
            wizard.GetSeqDevInfo(index, foundKind, foundCode, foundBitKind, static_cast<unsigned char>(options));
        *kind = foundKind;
        *code = foundCode;
        if (foundCode != -1)
            *bitKind = foundBitKind;
        return result;
    });
}

int PEXLO_CALL Pexlo_SetMaxSlot(PexloHandle handle, int count)
{
    return DoWith<unsigned char>(handle, count,
                                 [](CFunWizard& wizard, unsigned char value) { wizard.SetMaxSlot(value); });
}

int PEXLO_CALL Pexlo_GetMaxSlot(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.GetMaxSlot(); });
}

int PEXLO_CALL Pexlo_SetDefaultMaxSlot(PexloHandle handle)
{
    return DoOnWizard(handle, [](CFunWizard& wizard) { wizard.SetDefaultMaxSlot(); });
}

int PEXLO_CALL Pexlo_SetChannelNo(PexloHandle handle, int channel, int instruction)
{
    return DoOnWizard(handle, [=](CFunWizard& wizard) { wizard.SetChannelNo(channel, instruction); });
}

int PEXLO_CALL Pexlo_ResetChannelNo(PexloHandle handle)
{
    return DoOnWizard(handle, [](CFunWizard& wizard) { wizard.ResetChannelNo(); });
}

int PEXLO_CALL Pexlo_GetNumOfChannel(PexloHandle handle, int instruction)
{
    return OnWizard(handle, [=](CFunWizard& wizard) { return wizard.GetNumOfChannel(instruction); });
}

int PEXLO_CALL Pexlo_GetChannelNo(PexloHandle handle, int n, int instruction)
{
    return OnWizard(handle, [=](CFunWizard& wizard) { return wizard.GetChannelNo(n, instruction); });
}

int PEXLO_CALL Pexlo_GetChannelTypeIndex(PexloHandle handle, int instruction)
{
    return OnWizard(handle, [=](CFunWizard& wizard) { return wizard.GetChannelTypeIndex(instruction); });
}

int PEXLO_CALL Pexlo_SetF175DispType(PexloHandle handle, int type)
{
    return DoWith<unsigned short>(handle, type,
                                  [](CFunWizard& wizard, unsigned short value) { wizard.SetF175DispType(value); });
}

int PEXLO_CALL Pexlo_GetF175DispType(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.GetF175DispType(); });
}

// ---- Settings -------------------------------------------------------------------------------------------------------

int PEXLO_CALL Pexlo_ResetContents(PexloHandle handle)
{
    return DoOnWizard(handle, [](CFunWizard& wizard) { wizard.ResetContents(); });
}

int PEXLO_CALL Pexlo_SetLanguageInfo(PexloHandle handle, int language)
{
    return OnWizard(handle, [=](CFunWizard& wizard) { return wizard.SetLanguageInfo(language) != nullptr; });
}

void* PEXLO_CALL Pexlo_GetLoadInstance(PexloHandle handle)
{
    void* instance = nullptr;
    OnWizard(handle, [&](CFunWizard& wizard) {
        instance = wizard.GetLoadInstance();
        return 1;
    });
    return instance;
}

int PEXLO_CALL Pexlo_GetTextCodePage(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return static_cast<int>(wizard.GetTextCodePage()); });
}

void* PEXLO_CALL Pexlo_CreateDlgFont(PexloHandle handle, void* window)
{
    void* font = nullptr;
    OnWizard(handle, [&](CFunWizard& wizard) {
        if (const CFont* const made = wizard.CreateDlgFont(WindowOf(window)))
            font = made->m_hObject;
        return 1;
    });
    return font;
}

int PEXLO_CALL Pexlo_SetDlgFont(PexloHandle handle, void* dialog, int skipDialog, const int* excludedIds)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        CWnd* const window = WindowOf(dialog);
        if (window == nullptr || !Fits<unsigned char>(skipDialog))
            return PEXLO_E_ARGUMENT;
        wizard.SetDlgFont(window, static_cast<unsigned char>(skipDialog), const_cast<int*>(excludedIds));
        return 1;
    });
}

int PEXLO_CALL Pexlo_DeleteDlgFont(PexloHandle handle)
{
    return DoOnWizard(handle, [](CFunWizard& wizard) { wizard.DeleteDlgFont(); });
}

int PEXLO_CALL Pexlo_EntrySupportFunInfo(PexloHandle handle, int instruction)
{
    return OnWizard(handle, [=](CFunWizard& wizard) { return wizard.EntrySupportFunInfo(instruction); });
}

int PEXLO_CALL Pexlo_FindSupportFun(PexloHandle handle, int instruction)
{
    return OnWizard(handle, [=](CFunWizard& wizard) { return wizard.FindSupportFun(instruction); });
}

int PEXLO_CALL Pexlo_GetSupportFunNum(PexloHandle handle, int index)
{
    return OnWizard(handle, [=](CFunWizard& wizard) { return wizard.GetSupportFunNum(index); });
}

int PEXLO_CALL Pexlo_ClearSuppportFunInfo(PexloHandle handle)
{
    return DoOnWizard(handle, [](CFunWizard& wizard) { wizard.ClearSuppportFunInfo(); });
}

int PEXLO_CALL Pexlo_SetCmtRec(PexloHandle handle, int on)
{
    return DoOnWizard(handle, [=](CFunWizard& wizard) { wizard.SetCmtRec(on); });
}

int PEXLO_CALL Pexlo_IsCmtRec(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.IsCmtRec(); });
}

int PEXLO_CALL Pexlo_SetOnlyDataTable(PexloHandle handle, int on)
{
    return DoOnWizard(handle, [=](CFunWizard& wizard) { wizard.SetOnlyDataTable(on); });
}

int PEXLO_CALL Pexlo_IsOnlyDataTable(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.IsOnlyDataTable(); });
}

int PEXLO_CALL Pexlo_SetStartType(PexloHandle handle, int type)
{
    return DoWith<unsigned char>(handle, type,
                                 [](CFunWizard& wizard, unsigned char value) { wizard.SetStartType(value); });
}

int PEXLO_CALL Pexlo_GetStartType(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.GetStartType(); });
}

int PEXLO_CALL Pexlo_IsAxisType(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.IsAxisType(); });
}

int PEXLO_CALL Pexlo_IsStartCondition(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.IsStartCondition(); });
}

int PEXLO_CALL Pexlo_IsSameCondition(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.IsSameCondition(); });
}

// A dialog reads a block of its own size, whoever has stored it: no block is smaller.
int PEXLO_CALL Pexlo_SetDlgDataPtr(PexloHandle handle, const void* data, int size)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (size < 0)
            return PEXLO_E_ARGUMENT;
        void* block = nullptr;
        if (data != nullptr && size > 0)
        {
            const auto given = static_cast<size_t>(size);
            const size_t allocated = std::max(given, sizeof(SScreenSettings::Block));
            block = std::memset(::operator new(allocated), 0, allocated);
            std::memcpy(block, data, given);
        }
        wizard.RemoveDlgData();
        wizard.SetDlgDataPtr(block);
        return 1;
    });
}

const void* PEXLO_CALL Pexlo_GetDlgDataPtr(PexloHandle handle)
{
    const void* data = nullptr;
    OnWizard(handle, [&](CFunWizard& wizard) {
        data = wizard.GetDlgDataPtr();
        return 1;
    });
    return data;
}

int PEXLO_CALL Pexlo_RemoveDlgData(PexloHandle handle)
{
    return DoOnWizard(handle, [](CFunWizard& wizard) { wizard.RemoveDlgData(); });
}
