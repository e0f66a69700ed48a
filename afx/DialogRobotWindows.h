// What the robot knows of windows. For the files of the robot only.
#pragma once

#include "afx/CodePage.h"
#include "afx/DialogRobot.h"

namespace robot
{
/// Whether the robot's own code runs rather than the program that it drives, while an object of this class lives.
class CInside
{
public:
    explicit CInside(bool inside) : m_before(Set(inside)) {}
    ~CInside() { Set(m_before); }
    CInside(const CInside&) = delete;
    CInside& operator=(const CInside&) = delete;

    static bool Get();

private:
    static bool Set(bool inside); // returns what was so before

    bool m_before;
};

/// Calls the program that the robot drives.
template <typename F>
auto Outside(const F& call)
{
    const CInside inside(false);
    return call();
}

template <typename T>
T Printable(T value)
{
    return value;
}

inline LPCSTR Printable(const CString& text) { return text; }

template <typename... T>
CString Format(LPCSTR format, const T&... values)
{
    CString text;
    text.Format(format, Printable(values)...);
    return text;
}

CString WindowText(HWND window);
CString ClassName(HWND window);
bool HasClass(HWND window, LPCSTR name);
DWORD StyleOf(HWND window);
UINT IdOf(HWND control);
CString Describe(HWND window);

bool IsDialog(HWND window);
/// A message box is a dialog that no object of ours stands behind.
bool IsBox(HWND window);
/// Ending a dialog hides it; it lives on until its loop has returned.
bool IsStillOpen(HWND window);

std::vector<HWND> TopLevelWindows();
std::vector<HWND> Children(HWND window);

CString BoxText(HWND box);
UINT BoxIcon(HWND box);
/// The buttons of a message box, those that decline first.
std::vector<UINT> BoxButtons(HWND box);

void ClickButton(HWND button);
} // namespace robot
