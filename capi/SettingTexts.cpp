// The settings that are texts, through the C interface.
#include "capi/Handles.h"
#include "capi/Texts.h"

namespace
{

/// `write` takes the path in the system's code page and returns what all of it needs.
template <typename TWrite>
int GetHelpPath(PexloHandle handle, int size, TWrite write)
{
    return OnWizard(
        handle, [=](CFunWizard& wizard) -> int { return size >= 0 ? write(wizard.GetHelpPath()) : PEXLO_E_ARGUMENT; });
}

template <typename TOperation>
int OnLibrary(TOperation operation)
{
    const CDesktopLock desktop;
    return RunGuarded([&] {
        operation();
        return 1;
    });
}

} // namespace

int PEXLO_CALL Pexlo_SetHelpPath(PexloHandle handle, const char* path)
{
    return DoOnWizard(handle, [=](CFunWizard& wizard) { wizard.SetHelpPath(path); });
}

int PEXLO_CALL Pexlo_SetHelpPathUtf8(PexloHandle handle, const char* path)
{
    return DoOnWizard(handle, [=](CFunWizard& wizard) { wizard.SetHelpPath(FromUtf8(path, CP_ACP)); });
}

int PEXLO_CALL Pexlo_GetHelpPath(PexloHandle handle, char* buffer, int size)
{
    return GetHelpPath(handle, size, [=](const CString& path) {
        return CopyOut(static_cast<LPCSTR>(path), buffer, size, ::GetACP());
    });
}

int PEXLO_CALL Pexlo_GetHelpPathUtf8(PexloHandle handle, char* buffer, int size)
{
    return GetHelpPath(handle, size, [=](const CString& path) {
        return CopyOut(static_cast<LPCSTR>(ToUtf8(path, CP_ACP)), buffer, size, CP_UTF8);
    });
}

int PEXLO_CALL Pexlo_SetAppName(PexloHandle handle, const char* name)
{
    return DoOnWizard(handle, [=](CFunWizard& wizard) { wizard.SetAppName(name); });
}

int PEXLO_CALL Pexlo_SetAppNameUtf8(PexloHandle handle, const char* name)
{
    return DoOnWizard(handle, [=](CFunWizard& wizard) { wizard.SetAppName(FromUtf8(name, CP_ACP)); });
}

int PEXLO_CALL Pexlo_SetMessageCaption(const char* name)
{
    return OnLibrary([=] { PexloDll_SetAppName(name); });
}

int PEXLO_CALL Pexlo_SetMessageCaptionUtf8(const char* name)
{
    return OnLibrary([=] { PexloDll_SetAppName(FromUtf8(name, CP_ACP)); });
}
