// Compiled HTML help, shown by the system's help control.
#pragma once

#include "afx/afx.h"

/// Shows a topic of a help file by its number; 0 shows the file's default topic. While the control is called, the drive
/// that the path names is the current one. Does nothing where the system has no help control.
void AfxHtmlHelp(LPCSTR path, UINT topic);

/// The system's help control. It is loaded when it is first needed and never freed; when it cannot be found or used
/// once, it is not looked for again.
class CHtmlHelpControl
{
public:
    void Show(LPCSTR path, UINT topic);

private:
    typedef HWND(WINAPI* EntryPoint)(HWND owner, LPCSTR path, UINT command, DWORD_PTR data);

    bool Load();

    EntryPoint m_entryPoint = nullptr;
    bool m_isUnavailable = false;
};
