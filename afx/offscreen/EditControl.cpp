// The standard class "Edit": its messages.

#include "afx/offscreen/EditState.h"

namespace offscreen
{
using namespace edit;

namespace
{
constexpr UINT kLargestLimit = 0x7FFFFFFE; // Of a single-line edit without a limit.

LRESULT ReadSelection(const EditState& state, WPARAM startTarget, LPARAM endTarget)
{
    if (startTarget)
        *reinterpret_cast<DWORD*>(startTarget) = static_cast<DWORD>(state.Start());
    if (endTarget)
        *reinterpret_cast<DWORD*>(endTarget) = static_cast<DWORD>(state.End());
    if (state.End() > 0xFFFF)
        return -1;
    return MAKELONG(state.Start(), state.End());
}

LRESULT DialogCodeOf(Window& edit, const MSG* key)
{
    LRESULT code = DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS;
    if (!IsMultiLine(edit))
        return code;
    Of(edit).inDialog = Of(edit).inDialog || key;
    return code | DLGC_WANTALLKEYS;
}

LRESULT LineIndex(Window& edit, int line)
{
    if (line == -1)
        line = LineOf(edit, Of(edit).caret);
    if (line < 0 || line >= LineCount(edit))
        return -1;
    return IsMultiLine(edit) ? LinesOf(edit).StartOf(line) : 0;
}

// The line is not terminated unless there is room.
LRESULT CopyLine(Window& edit, WPARAM line, WCHAR* target)
{
    const std::size_t room = static_cast<WORD>(target[0]);
    if (IsMultiLine(edit) && line >= static_cast<WPARAM>(LineCount(edit)))
        return 0;
    std::u16string_view text = edit.text;
    if (IsMultiLine(edit))
    {
        const int at = static_cast<int>(line);
        text = text.substr(static_cast<std::size_t>(LinesOf(edit).StartOf(at)),
                           static_cast<std::size_t>(LinesOf(edit).LengthOf(at)));
    }
    const std::size_t copied = text.copy(target, room);
    if (copied < room)
        target[copied] = 0;
    return static_cast<LRESULT>(copied);
}

LRESULT HandleEditMessage(Window& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    EditState& state = Of(edit);
    switch (message)
    {
    case EM_GETSEL:
        return ReadSelection(state, wParam, lParam);
    case EM_SETSEL:
        SetSelection(edit, static_cast<int>(wParam), static_cast<int>(lParam));
        return 1;
    case EM_SCROLLCARET:
        ScrollToCaret(edit);
        Invalidate(edit);
        return 1;
    case EM_LIMITTEXT: {
        UINT limit = static_cast<UINT>(wParam);
        if (limit == 0)
            limit = 0xFFFFFFFF; // None.
        state.limit = IsMultiLine(edit) ? limit : std::min(limit, kLargestLimit);
        return 0;
    }
    case EM_GETLIMITTEXT:
        return static_cast<LRESULT>(state.limit);
    case EM_GETLINECOUNT:
        return LineCount(edit);
    case EM_LINEINDEX:
        return LineIndex(edit, static_cast<int>(wParam));
    case EM_REPLACESEL:
        if (lParam)
            ReplaceSelection(edit, reinterpret_cast<LPCWSTR>(lParam));
        return 1;
    case EM_GETLINE:
        return CopyLine(edit, wParam, reinterpret_cast<LPWSTR>(lParam));
    case EM_GETFIRSTVISIBLELINE:
        return state.scrolled;
    case EM_GETRECT:
        *reinterpret_cast<RECT*>(lParam) = state.format;
        return 0;
    default:
        Fail("not modelled: edit message 0x%04X", message);
        return 0;
    }
}

LRESULT Create(Window& edit)
{
    if (edit.style & (ES_PASSWORD | ES_LOWERCASE))
        return NotModelled("edits for passwords or in lower case", -1);
    edit.control = std::make_unique<EditState>();
    edit.text = InCase(edit, edit.text);
    // Windows that scroll vertically or horizontally by a bar do so by themselves too.
    if (IsMultiLine(edit))
    {
        if (edit.style & WS_VSCROLL)
            edit.style |= ES_AUTOVSCROLL;
        if (edit.style & WS_HSCROLL)
            edit.style |= ES_AUTOHSCROLL;
    }
    UpdateFormat(edit);
    // Tells the parent, as for every text that is set.
    if (!IsMultiLine(edit) && !edit.text.empty())
        NotifyChange(edit);
    return 0;
}

LRESULT HandleFocus(Window& edit, bool gained)
{
    EditState& state = Of(edit);
    state.focused = gained;
    Invalidate(edit);
    NotifyParent(edit, gained ? EN_SETFOCUS : EN_KILLFOCUS);
    return 0;
}

void PaintOn(Window& edit, HDC dc)
{
    SelectObject(dc, edit.font);
    const bool dim = IsReadOnly(edit) || (edit.style & WS_DISABLED);
    AskParentForColors(edit, dim ? WM_CTLCOLORSTATIC : WM_CTLCOLOREDIT, dc);
}

LRESULT HandleClipboard(Window& edit, UINT message)
{
    switch (message)
    {
    case WM_COPY:
        Copy(edit);
        return 0;
    case WM_CUT:
        Cut(edit);
        return 0;
    case WM_PASTE:
        Paste(edit);
        return 0;
    default: // WM_CLEAR
        Clear(edit);
        return 0;
    }
}

LRESULT Handle(Window& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message >= EM_GETSEL && message <= EM_CHARFROMPOS)
        return HandleEditMessage(edit, message, wParam, lParam);
    switch (message)
    {
    case WM_GETDLGCODE:
        return DialogCodeOf(edit, reinterpret_cast<const MSG*>(lParam));
    case WM_SETTEXT:
        SetWholeText(edit, reinterpret_cast<LPCWSTR>(lParam));
        return TRUE;
    case WM_SETFONT:
        DefControlProc(edit, PaintOn, message, wParam, lParam);
        UpdateFormat(edit);
        return 0;
    case WM_SIZE:
        UpdateFormat(edit);
        return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        return HandleFocus(edit, message == WM_SETFOCUS);
    case WM_CHAR:
        HandleChar(edit, static_cast<char16_t>(wParam));
        return 0;
    case WM_KEYDOWN:
        return HandleKey(edit, wParam);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEMOVE:
        return HandleMouse(edit, message, wParam, lParam);
    case WM_COPY:
    case WM_CUT:
    case WM_PASTE:
    case WM_CLEAR:
        return HandleClipboard(edit, message);
    case WM_UNDO:
        return UndoChange(edit) || !IsMultiLine(edit); // an edit of one line always says so
    default:
        return DefControlProc(edit, PaintOn, message, wParam, lParam);
    }
}

constexpr ControlClass kEdit = {Create, Handle};
} // namespace

LRESULT CALLBACK EditProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallControl(kEdit, handle, message, wParam, lParam);
}
} // namespace offscreen
