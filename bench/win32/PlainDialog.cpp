#include "bench/win32/PlainDialog.h"

#include "resources/resource.h"

#include <sstream>

namespace
{

HINSTANCE Module() { return AfxGetInstanceHandle(); }

bool IsOfClass(HWND window, const char* name)
{
    char text[32] = "";
    ::GetClassNameA(window, text, sizeof text);
    return ::lstrcmpiA(text, name) == 0;
}

constexpr auto kClosedField = static_cast<WPARAM>(-1);

/// What `untouched` is to be told so that its closed field becomes as high as that of `combo`: some systems add to it.
LRESULT HeightToSet(HWND combo, HWND untouched)
{
    const LRESULT wanted = ::SendMessageA(combo, CB_GETITEMHEIGHT, kClosedField, 0);
    ::SendMessageA(untouched, CB_SETITEMHEIGHT, kClosedField, wanted);
    return 2 * wanted - ::SendMessageA(untouched, CB_GETITEMHEIGHT, kClosedField, 0);
}

std::string TextOf(HWND window)
{
    std::string text(static_cast<size_t>(::GetWindowTextLengthA(window)), '\0');
    ::GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

std::string ItemText(HWND combo, WPARAM index)
{
    std::string text(static_cast<size_t>(::SendMessageA(combo, CB_GETLBTEXTLEN, index, 0)), '\0');
    ::SendMessageA(combo, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
    return text;
}

} // namespace

CPlainDialog::CPlainDialog(UINT templateId)
{
    const HRSRC found = ::FindResourceA(Module(), MAKEINTRESOURCEA(templateId), MAKEINTRESOURCEA(5));
    m_template = static_cast<LPCDLGTEMPLATE>(::LockResource(::LoadResource(Module(), found)));
}

CPlainDialog::SState CPlainDialog::StateOf(HWND window)
{
    SState state;
    state.id = ::GetDlgCtrlID(window);
    state.text = TextOf(window);
    state.isCombo = IsOfClass(window, "ComboBox");
    if (state.isCombo)
    {
        const auto count = static_cast<WPARAM>(::SendMessageA(window, CB_GETCOUNT, 0, 0));
        for (WPARAM i = 0; i < count; ++i)
            state.items.emplace_back(ItemText(window, i), ::SendMessageA(window, CB_GETITEMDATA, i, 0));
        state.selection = ::SendMessageA(window, CB_GETCURSEL, 0, 0);
    }
    if (IsOfClass(window, "Button"))
        state.check = ::SendMessageA(window, BM_GETCHECK, 0, 0);
    if (IsOfClass(window, "Edit"))
        state.limit = ::SendMessageA(window, EM_GETLIMITTEXT, 0, 0);
    RECT place;
    ::GetWindowRect(window, &place);
    const bool isControl = (::GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0;
    if (isControl)
        ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&place), 2);
    state.x = place.left;
    state.y = place.top;
    state.width = place.right - place.left;
    state.height = place.bottom - place.top;
    state.isEnabled = ::IsWindowEnabled(window) != 0;
    if (isControl)
        state.font = ::SendMessageA(window, WM_GETFONT, 0, 0); // a dialog has one of its own, from the template
    state.isVisible = isControl && (::GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE) != 0;
    return state;
}

std::vector<CPlainDialog::SState> CPlainDialog::StatesOf(HWND dialog)
{
    std::vector<SState> states = {StateOf(dialog)};
    for (HWND item = ::GetWindow(dialog, GW_CHILD); item != nullptr; item = ::GetWindow(item, GW_HWNDNEXT))
        if (::GetDlgCtrlID(item) != IDC_GRID_CELLS) // no control, and nothing that plain calls would make
            states.push_back(StateOf(item));
    return states;
}

void CPlainDialog::Learn(HWND dialog)
{
    m_after = StatesOf(dialog);
    const HWND untouched =
        ::CreateDialogIndirectParamA(Module(), m_template, ::GetWindow(dialog, GW_OWNER), &DialogProc, 0);
    m_before = StatesOf(untouched);
    for (HWND item = ::GetWindow(dialog, GW_CHILD); item != nullptr; item = ::GetWindow(item, GW_HWNDNEXT))
        if (IsOfClass(item, "ComboBox") && (::GetWindowLongA(item, GWL_STYLE) & CBS_OWNERDRAWFIXED) != 0)
            m_fieldHeights[::GetDlgCtrlID(item)] = HeightToSet(item, ::GetDlgItem(untouched, ::GetDlgCtrlID(item)));
    ::DestroyWindow(untouched);
    ::SetActiveWindow(dialog);
}

std::string CPlainDialog::SState::Print() const
{
    std::ostringstream print;
    print << id << " \"" << text << '"';
    for (const LRESULT value : {static_cast<LRESULT>(items.size()), selection, check, limit, font})
        print << ' ' << value;
    print << ' ' << x << ' ' << y << ' ' << width << ' ' << height << (isEnabled ? "" : " disabled")
          << (isVisible ? "" : " hidden");
    return print.str();
}

std::string CPlainDialog::DifferencesOf(HWND dialog) const
{
    const std::vector<SState> states = StatesOf(dialog);
    std::string differences;
    for (size_t i = 0; i < states.size(); ++i)
        if (states[i] != m_after[i])
            differences.append(states[i].Print()).append(" instead of ").append(m_after[i].Print()).append("\n");
    return differences;
}

void CPlainDialog::DoModal(HWND owner) const
{
    ::DialogBoxIndirectParamA(Module(), m_template, owner, &DialogProc, reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK CPlainDialog::DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        if (const auto* plain = reinterpret_cast<const CPlainDialog*>(lParam))
            plain->Make(dialog);
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)
        ::EndDialog(dialog, IDCANCEL);
    return FALSE;
}

void CPlainDialog::Make(HWND dialog) const
{
    if (m_after.empty())
        return;
    Change(dialog, m_before[0], m_after[0]);
    HWND item = ::GetWindow(dialog, GW_CHILD);
    for (size_t i = 1; i < m_after.size(); ++i, item = ::GetWindow(item, GW_HWNDNEXT))
        Change(item, m_before[i], m_after[i]);
    for (const auto& [id, height] : m_fieldHeights)
        ::SendMessageA(::GetDlgItem(dialog, id), CB_SETITEMHEIGHT, kClosedField, height);
}

void CPlainDialog::Change(HWND window, const SState& from, const SState& to)
{
    if (to.font != from.font)
        ::SendMessageA(window, WM_SETFONT, static_cast<WPARAM>(to.font), TRUE); // as SetDlgFont promises
    if (to.items != from.items || to.selection != from.selection)
        FillCombo(window, to);
    if (to.text != from.text && !to.isCombo)
        ::SetWindowTextA(window, to.text.c_str());
    if (to.limit != from.limit)
        ::SendMessageA(window, EM_LIMITTEXT, static_cast<WPARAM>(to.limit), 0);
    if (to.check != from.check)
        ::SendMessageA(window, BM_SETCHECK, static_cast<WPARAM>(to.check), 0);
    if (to.isEnabled != from.isEnabled)
        ::EnableWindow(window, to.isEnabled);
    if (to.x != from.x || to.y != from.y || to.width != from.width || to.height != from.height)
        ::SetWindowPos(window, nullptr, to.x, to.y, to.width, to.height, SWP_NOZORDER | SWP_NOACTIVATE);
    if (to.isVisible != from.isVisible)
        ::ShowWindow(window, to.isVisible ? SW_SHOWNA : SW_HIDE);
}

void CPlainDialog::FillCombo(HWND combo, const SState& to)
{
    for (const auto& [text, data] : to.items)
    {
        const LRESULT index = ::SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        ::SendMessageA(combo, CB_SETITEMDATA, static_cast<WPARAM>(index), data);
    }
    ::SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(to.selection), 0);
}
