// The part of a program that uses the library, as a DLL of its own: freeing it frees the library with it.
#include "tests/library/Guest.h"

#include "core/FunWizard.h"

extern "C" __declspec(dllexport) int OpenWizard(HWND parent)
{
    CFunWizard wizard;
    wizard.SetPlcType(1);
    wizard.SetDevRange(-1, kDataRegister, 0, 100);
    wizard.EntrySupportFunInfo(168);
    return wizard.DoOpenPosDlg(0, 1, CWnd::FromHandle(parent));
}

extern "C" __declspec(dllexport) int UseFont(HWND window)
{
    CFunWizard wizard;
    const bool created = wizard.CreateDlgFont(CWnd::FromHandle(window)) != nullptr;
    wizard.SetDlgFont(CWnd::FromHandle(window), 0, nullptr);
    ::SendMessageA(window, WM_SETFONT, 0, 0); // the font ends with the wizard
    return created;
}

extern "C" __declspec(dllexport) int AskForObjects(HWND window, HDC context, HGDIOBJ object)
{
    return CWnd::FromHandle(window)->m_hWnd == window && CDC::FromHandle(context)->m_hDC == context &&
           CGdiObject::FromHandle(object)->m_hObject == object;
}
