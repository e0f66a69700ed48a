// The result lists and the generators through the C interface.
#include "capi/Handles.h"
#include "capi/Structures.h"
#include "capi/Texts.h"
#include "core/Devices.h"

// Every number that the header defines is promised.
static_assert(PEXLO_DEVICE_L == kDeviceL);
static_assert(PEXLO_DEVICE_R == kDeviceR);
static_assert(PEXLO_DEVICE_Y == kDeviceY);
static_assert(PEXLO_DEVICE_X == kDeviceX);
static_assert(PEXLO_DEVICE_T == kDeviceT);
static_assert(PEXLO_DEVICE_C == kDeviceC);
static_assert(PEXLO_DEVICE_SV == kDeviceSV);
static_assert(PEXLO_DEVICE_EV == kDeviceEV);
static_assert(PEXLO_DEVICE_LD == kDeviceLD);
static_assert(PEXLO_DEVICE_DT == kDeviceDT);
static_assert(PEXLO_DEVICE_FL == kDeviceFL);
static_assert(PEXLO_DEVICE_K == kDeviceK);
static_assert(PEXLO_DEVICE_H == kDeviceH);
static_assert(PEXLO_DEVICE_INDEX == kDeviceIndex);
static_assert(PEXLO_DEVICE_P == kDeviceP);
static_assert(PEXLO_DEVICE_E == kDeviceE);
static_assert(PEXLO_DEVICE_REAL == kDeviceReal);
static_assert(PEXLO_DEVICE_WL == kDeviceWL);
static_assert(PEXLO_DEVICE_WR == kDeviceWR);
static_assert(PEXLO_DEVICE_WY == kDeviceWY);
static_assert(PEXLO_DEVICE_WX == kDeviceWX);
static_assert(PEXLO_DEVICE_SPECIAL_R == kDeviceSpecialR);
static_assert(PEXLO_DEVICE_SPECIAL_DT == kDeviceSpecialDT);
static_assert(PEXLO_DEVICE_SPECIAL_WR == kDeviceSpecialWR);

/// The comments of a wizard object, which are as long as they are.
class CComments
{
public:
    /// Null for a bad index.
    static const CString* At(const CFunWizard& wizard, int index)
    {
        return index >= 0 && index < wizard.GetCmtInfoCount() ? &wizard.m_comments.ElementAt(index) : nullptr;
    }
};

namespace
{

template <typename TCopy>
int GetComment(PexloHandle handle, int index, int size, TCopy copy)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (size < 0)
            return PEXLO_E_ARGUMENT;
        const CString* const comment = CComments::At(wizard, index);
        return comment != nullptr ? copy(*comment, wizard.GetTextCodePage()) : 0;
    });
}

} // namespace

int PEXLO_CALL Pexlo_AddContInfo(PexloHandle handle, int kind, int code, int number)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (!Fits<short>(kind) || !Fits<short>(code))
            return PEXLO_E_ARGUMENT;
        return wizard.AddContInfo(static_cast<short>(kind), static_cast<short>(code), number);
    });
}

int PEXLO_CALL Pexlo_GetContInfoCount(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.GetContInfoCount(); });
}

int PEXLO_CALL Pexlo_GetContInfo(PexloHandle handle, int index, int* kind, int* code, int* number)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (kind == nullptr || code == nullptr || number == nullptr)
            return PEXLO_E_ARGUMENT;
        short foundKind, foundCode;
        if (!wizard.GetContInfo(index, foundKind, foundCode, *number))
            return 0;
        *kind = foundKind;
        *code = foundCode;
        return 1;
    });
}

int PEXLO_CALL Pexlo_RemoveAllContInfo(PexloHandle handle)
{
    return DoOnWizard(handle, [](CFunWizard& wizard) { wizard.RemoveAllContInfo(); });
}

int PEXLO_CALL Pexlo_AddOprdInfo(PexloHandle handle, int code, int value)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        return Fits<short>(code) ? wizard.AddOprdInfo(static_cast<short>(code), value) : PEXLO_E_ARGUMENT;
    });
}

int PEXLO_CALL Pexlo_GetOprdInfoCount(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.GetOprdInfoCount(); });
}

int PEXLO_CALL Pexlo_GetOprdInfo(PexloHandle handle, int index, int* code, int* value)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (code == nullptr || value == nullptr)
            return PEXLO_E_ARGUMENT;
        short foundCode;
        if (!wizard.GetOprdInfo(index, foundCode, *value))
            return 0;
        *code = foundCode;
        return 1;
    });
}

int PEXLO_CALL Pexlo_RemoveAllOprdInfo(PexloHandle handle)
{
    return DoOnWizard(handle, [](CFunWizard& wizard) { wizard.RemoveAllOprdInfo(); });
}

int PEXLO_CALL Pexlo_AddDataInfo(PexloHandle handle, int code, int number, int type, int format, int value)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (!Fits<short>(code) || !Fits<unsigned char>(type) || !Fits<unsigned char>(format))
            return PEXLO_E_ARGUMENT;
        return wizard.AddDataInfo(static_cast<short>(code), number, static_cast<unsigned char>(type),
                                  static_cast<unsigned char>(format), value);
    });
}

int PEXLO_CALL Pexlo_GetDataInfoCount(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.GetDataInfoCount(); });
}

int PEXLO_CALL Pexlo_GetDataInfo(PexloHandle handle, int index, PexloData* data)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (data == nullptr)
            return PEXLO_E_ARGUMENT;
        if (!HasRoom(data))
            return PEXLO_E_SIZE;
        SFunSetData found;
        if (!wizard.GetDataInfo(index, &found))
            return 0;
        WriteStructure(data, {0, found.code, found.number, found.type, found.format, found.value});
        return 1;
    });
}

int PEXLO_CALL Pexlo_RemoveAllDataInfo(PexloHandle handle)
{
    return DoOnWizard(handle, [](CFunWizard& wizard) { wizard.RemoveAllDataInfo(); });
}

int PEXLO_CALL Pexlo_AddCmtInfo(PexloHandle handle, const char* text)
{
    return OnWizard(handle, [=](CFunWizard& wizard) { return wizard.AddCmtInfo(text); });
}

int PEXLO_CALL Pexlo_AddCmtInfoUtf8(PexloHandle handle, const char* text)
{
    return OnWizard(handle,
                    [=](CFunWizard& wizard) { return wizard.AddCmtInfo(FromUtf8(text, wizard.GetTextCodePage())); });
}

int PEXLO_CALL Pexlo_GetCmtInfoCount(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.GetCmtInfoCount(); });
}

int PEXLO_CALL Pexlo_GetCmtInfo(PexloHandle handle, int index, char* buffer, int size)
{
    return GetComment(handle, index, size, [=](const CString& comment, UINT page) {
        return CopyOut(static_cast<LPCSTR>(comment), buffer, size, page);
    });
}

int PEXLO_CALL Pexlo_GetCmtInfoUtf8(PexloHandle handle, int index, char* buffer, int size)
{
    return GetComment(handle, index, size, [=](const CString& comment, UINT page) {
        return CopyOut(static_cast<LPCSTR>(ToUtf8(comment, page)), buffer, size, CP_UTF8);
    });
}

int PEXLO_CALL Pexlo_RemoveAllCmtInfo(PexloHandle handle)
{
    return DoOnWizard(handle, [](CFunWizard& wizard) { wizard.RemoveAllCmtInfo(); });
}

int PEXLO_CALL Pexlo_AddInstCodeInfo(PexloHandle handle, int kind, int code, int value, int flag1, int flag2)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (!Fits<short>(kind) || !Fits<short>(code) || !Fits<unsigned char>(flag1) || !Fits<unsigned char>(flag2))
            return PEXLO_E_ARGUMENT;
        return wizard.AddInstCodeInfo(static_cast<short>(kind), static_cast<short>(code), value,
                                      static_cast<unsigned char>(flag1), static_cast<unsigned char>(flag2));
    });
}

int PEXLO_CALL Pexlo_GetInstCodeCount(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.GetInstCodeCount(); });
}

int PEXLO_CALL Pexlo_GetInstCodeInfo(PexloHandle handle, int index, PexloInstCode* record)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (record == nullptr)
            return PEXLO_E_ARGUMENT;
        if (!HasRoom(record))
            return PEXLO_E_SIZE;
        SFWzdInstCode found;
        if (!wizard.GetInstCodeInfo(index, &found))
            return 0;
        WriteStructure(record, {0, found.kind, found.code, found.value, found.flag1, found.flag2});
        return 1;
    });
}

int PEXLO_CALL Pexlo_GetInstCode(PexloHandle handle, int index, int* kind, int* code, int* value, int* flag1,
                                 int* flag2)
{
    return OnWizard(handle, [=](CFunWizard& wizard) -> int {
        if (kind == nullptr || code == nullptr || value == nullptr || flag1 == nullptr || flag2 == nullptr)
            return PEXLO_E_ARGUMENT;
        SFWzdInstCode found;
        if (!wizard.GetInstCodeInfo(index, &found))
            return 0;
        *kind = found.kind;
        *code = found.code;
        *value = found.value;
        *flag1 = found.flag1;
        *flag2 = found.flag2;
        return 1;
    });
}

int PEXLO_CALL Pexlo_RemoveAllInstCodeInfo(PexloHandle handle)
{
    return DoOnWizard(handle, [](CFunWizard& wizard) { wizard.RemoveAllInstCodeInfo(); });
}

int PEXLO_CALL Pexlo_CreateInstCode(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.CreateInstCode(); });
}

int PEXLO_CALL Pexlo_CreateInstCode_1(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.CreateInstCode_1(); });
}

int PEXLO_CALL Pexlo_CreateInstCode_11(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.CreateInstCode_11(); });
}

int PEXLO_CALL Pexlo_CreateInstCode_2(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.CreateInstCode_2(); });
}

int PEXLO_CALL Pexlo_CreateInstCode_3(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.CreateInstCode_3(); });
}

int PEXLO_CALL Pexlo_CreateInstCode_4(PexloHandle handle)
{
    return OnWizard(handle, [](CFunWizard& wizard) { return wizard.CreateInstCode_4(); });
}
