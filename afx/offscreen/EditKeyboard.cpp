// What keys and mouse do in an edit.

#include "afx/offscreen/EditState.h"

#include <optional>

namespace offscreen::edit
{
namespace
{
void DeleteBackwards(Window& edit)
{
    EditState& state = Of(edit);
    if (state.Start() == state.End())
    {
        if (state.caret == 0)
            return;
        auto before = static_cast<std::size_t>(state.caret) - 1;
        // A line break goes as one.
        if (before > 0 && IsMultiLine(edit) && edit.text.compare(before - 1, 2, u"\r\n") == 0)
            --before;
        state.anchor = static_cast<int>(before);
    }
    ReplaceSelection(edit, {});
}

void DeleteForwards(Window& edit)
{
    EditState& state = Of(edit);
    if (state.Start() == state.End())
    {
        if (state.caret >= LengthOf(edit))
            return;
        const auto at = static_cast<std::size_t>(state.caret);
        const bool isBreak = IsMultiLine(edit) && edit.text.compare(at, 2, u"\r\n") == 0;
        state.anchor = state.caret;
        state.caret += isBreak ? 2 : 1;
    }
    ReplaceSelection(edit, {});
}

void TypeCharacter(Window& edit, char16_t c)
{
    if (c < u' ' || c == 127)
        return;
    if ((edit.style & ES_NUMBER) && (c < u'0' || c > u'9'))
    {
        MessageBeep(0);
        return;
    }
    ReplaceSelection(edit, {&c, 1}, Change::Typed);
}
} // namespace

void HandleChar(Window& edit, char16_t c)
{
    EditState& state = Of(edit);
    const bool readOnly = IsReadOnly(edit);
    switch (c)
    {
    case '\r':
    case '\n':
        if (!IsMultiLine(edit) || readOnly || (state.inDialog && !(edit.style & ES_WANTRETURN)))
            return;
        ReplaceSelection(edit, u"\r\n");
        return;
    case '\t':
        if (IsMultiLine(edit) && !readOnly && !state.inDialog)
            ReplaceSelection(edit, u"\t");
        return;
    case '\b':
        if (!readOnly && !KeyIsDown(VK_CONTROL))
            DeleteBackwards(edit);
        return;
    case 0x03:
        Send(edit.handle, WM_COPY);
        return;
    case 0x16:
        Send(edit.handle, WM_PASTE);
        return;
    case 0x18:
        Send(edit.handle, WM_CUT);
        return;
    case 0x1A:
        Send(edit.handle, WM_UNDO);
        return;
    default:
        if (!readOnly)
            TypeCharacter(edit, c);
        return;
    }
}

namespace
{
int NextPosition(const Window& edit, int position)
{
    if (position >= LengthOf(edit))
        return position;
    const auto at = static_cast<std::size_t>(position);
    if (edit.text.compare(at, 2, u"\r\n") == 0)
        return position + 2;
    return position + 1;
}

int PreviousPosition(const Window& edit, int position)
{
    if (position <= 0)
        return 0;
    const bool behindBreak = position > 1 && edit.text.compare(static_cast<std::size_t>(position - 2), 2, u"\r\n") == 0;
    return behindBreak ? position - 2 : position - 1;
}

int NextWord(const Window& edit, int position)
{
    const int length = LengthOf(edit);
    while (position < length && edit.text[static_cast<std::size_t>(position)] != ' ')
        position = NextPosition(edit, position);
    while (position < length && edit.text[static_cast<std::size_t>(position)] == ' ')
        ++position;
    return position;
}

int PreviousWord(const Window& edit, int position)
{
    while (position > 0 && edit.text[static_cast<std::size_t>(position - 1)] == ' ')
        --position;
    while (position > 0 && edit.text[static_cast<std::size_t>(position - 1)] != ' ')
        position = PreviousPosition(edit, position);
    return position;
}

void MoveCaret(Window& edit, int position, bool extend)
{
    EditState& state = Of(edit);
    state.caret = std::clamp(position, 0, LengthOf(edit));
    if (!extend)
        state.anchor = state.caret;
    state.typing = false;
    ScrollToCaret(edit);
    Invalidate(edit);
}

int InOtherLine(Window& edit, int lines)
{
    if (!IsMultiLine(edit))
        return Of(edit).caret;
    const EditLines& all = LinesOf(edit);
    const int caret = Of(edit).caret;
    const int line = all.LineOf(caret);
    const int column = caret - all.StartOf(line);
    const int target = std::clamp(line + lines, 0, all.Count() - 1);
    return all.StartOf(target) + std::min(column, all.LengthOf(target));
}

// A multi-line edit in a dialog gets every key and passes on the dialog's own.
void PassKeyToDialog(Window& edit, WPARAM key)
{
    const HWND dialog = ParentOf(edit);
    switch (key)
    {
    case VK_TAB:
        Send(dialog, WM_NEXTDLGCTL, KeyIsDown(VK_SHIFT), 0);
        break;
    case VK_ESCAPE:
        PostMessageW(dialog, WM_CLOSE, 0, 0);
        break;
    case VK_RETURN: {
        const LRESULT answer = Send(dialog, DM_GETDEFID);
        if (HIWORD(answer) != DC_HASDEFID)
            break;
        const HWND button = GetDlgItem(dialog, LOWORD(answer));
        if (button && IsWindowEnabled(button))
            PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(LOWORD(answer), BN_CLICKED), reinterpret_cast<LPARAM>(button));
        break;
    }
    default:
        break;
    }
}
} // namespace

namespace
{
// Where a key moves the caret to; nothing when it is no such key.
std::optional<int> CaretTarget(Window& edit, WPARAM key)
{
    const bool control = KeyIsDown(VK_CONTROL);
    const bool multi = IsMultiLine(edit);
    const int caret = Of(edit).caret;
    switch (key)
    {
    case VK_LEFT:
        return control ? PreviousWord(edit, caret) : PreviousPosition(edit, caret);
    case VK_RIGHT:
        return control ? NextWord(edit, caret) : NextPosition(edit, caret);
    case VK_UP:
        return multi ? InOtherLine(edit, -1) : PreviousPosition(edit, caret);
    case VK_DOWN:
        return multi ? InOtherLine(edit, 1) : NextPosition(edit, caret);
    case VK_PRIOR:
        return InOtherLine(edit, -VisibleLines(edit));
    case VK_NEXT:
        return InOtherLine(edit, VisibleLines(edit));
    case VK_HOME:
        return multi && !control ? LinesOf(edit).StartOf(LineOf(edit, caret)) : 0;
    case VK_END: {
        const int line = LineOf(edit, caret);
        return multi && !control ? LinesOf(edit).StartOf(line) + LinesOf(edit).LengthOf(line) : LengthOf(edit);
    }
    default:
        return std::nullopt;
    }
}

void HandleDelete(Window& edit)
{
    const bool shift = KeyIsDown(VK_SHIFT);
    if (IsReadOnly(edit) || (shift && KeyIsDown(VK_CONTROL)))
        return;
    if (shift)
        Cut(edit);
    else
        DeleteForwards(edit);
}

void HandleInsert(Window& edit)
{
    if (KeyIsDown(VK_SHIFT))
        Paste(edit);
    else if (KeyIsDown(VK_CONTROL))
        Copy(edit);
}
} // namespace

LRESULT HandleKey(Window& edit, WPARAM key)
{
    const bool ofDialog = IsMultiLine(edit) && Of(edit).inDialog;
    if (const std::optional<int> target = CaretTarget(edit, key))
    {
        MoveCaret(edit, *target, KeyIsDown(VK_SHIFT));
        return 0;
    }
    switch (key)
    {
    case VK_DELETE:
        HandleDelete(edit);
        return 0;
    case VK_INSERT:
        HandleInsert(edit);
        return 0;
    case VK_TAB:
    case VK_ESCAPE:
        if (ofDialog)
            PassKeyToDialog(edit, key);
        return 0;
    case VK_RETURN:
        if (ofDialog && !(edit.style & ES_WANTRETURN))
            PassKeyToDialog(edit, key);
        return 0;
    default:
        return DefWindowProcW(edit.handle, WM_KEYDOWN, key, 0);
    }
}

LRESULT HandleMouse(Window& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    EditState& state = Of(edit);
    const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message)
    {
    case WM_LBUTTONDOWN:
        SetCapture(edit.handle);
        MoveCaret(edit, IndexAt(edit, point), (wParam & MK_SHIFT) != 0);
        if (!state.focused)
            SetFocus(edit.handle);
        break;
    case WM_LBUTTONUP:
        if (GetCapture() == edit.handle)
            ReleaseCapture();
        break;
    case WM_MOUSEMOVE:
        if (GetCapture() == edit.handle && (wParam & MK_LBUTTON))
            MoveCaret(edit, IndexAt(edit, point), true);
        break;
    default: // A double click selects the word.
    {
        const int at = IndexAt(edit, point);
        int start = at;
        while (start > 0 && edit.text[static_cast<std::size_t>(start - 1)] != ' ')
            start = PreviousPosition(edit, start);
        SetSelection(edit, start, NextWord(edit, at));
        break;
    }
    }
    return 0;
}
} // namespace offscreen::edit
