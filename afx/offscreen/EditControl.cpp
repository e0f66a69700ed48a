// The standard class "Edit". Texts are bytes in the ANSI code page; no operation cuts a double-byte character.

#include "afx/offscreen/EditLines.h"

#include <cstring>

namespace offscreen
{
namespace
{
constexpr UINT kInitialLimit = 30000;
constexpr UINT kLargestLimit = 0x7FFFFFFE; // Of a single-line edit without a limit.

struct Undo
{
    bool possible = false;
    std::string text;
    int start = 0;
    int end = 0;
};

struct EditState : ControlState
{
    int anchor = 0; // The end of the selection that stays.
    int caret = 0;  // The end that moves.
    UINT limit = kInitialLimit;
    bool modified = false;
    bool focused = false;
    bool inDialog = false; // Keys have come through a dialog's keyboard handling.
    char lead = 0;         // First byte of a double-byte character whose second byte is to come.
    char passwordChar = 0;
    int leftMargin = 0;
    int rightMargin = 0;
    RECT format{};
    int scrolled = 0; // First visible character, or line in a multi-line edit.
    bool typing = false;
    Undo undo;
    EditLines lines;
    bool linesValid = false;

    int Start() const { return std::min(anchor, caret); }
    int End() const { return std::max(anchor, caret); }
};

EditState& Of(Window& edit) { return *StateOf<EditState>(edit); }
bool IsMultiLine(const Window& edit) { return (edit.style & ES_MULTILINE) != 0; }
bool IsReadOnly(const Window& edit) { return (edit.style & ES_READONLY) != 0; }
int LengthOf(const Window& edit) { return static_cast<int>(edit.text.size()); }

// ------------------------------------------------------------------------------------------------------------ layout

void UpdateFormat(Window& edit)
{
    EditState& state = Of(edit);
    const int lineHeight = MetricsOf(edit.font).height;
    RECT format = ClientRectOf(edit);
    if (edit.exStyle & WS_EX_CLIENTEDGE)
        InflateRect(&format, -1, format.bottom - format.top >= lineHeight + 2 ? -1 : 0);
    else if (edit.style & WS_BORDER)
        InflateRect(&format, -2, format.bottom - format.top >= lineHeight + 4 ? -2 : 0);
    format.left += state.leftMargin;
    format.right -= state.rightMargin;
    format.right = std::max(format.right, format.left);
    if (IsMultiLine(edit))
        format.bottom = format.top + std::max((format.bottom - format.top) / lineHeight, 1) * lineHeight;
    else
        format.bottom = format.top + lineHeight;
    state.format = format;
    state.linesValid = false;
}

int FormatWidth(const Window& edit)
{
    const RECT& format = Of(const_cast<Window&>(edit)).format;
    return format.right - format.left;
}

const EditLines& LinesOf(Window& edit)
{
    EditState& state = Of(edit);
    if (!state.linesValid)
    {
        const bool wraps = !(edit.style & (ES_AUTOHSCROLL | WS_HSCROLL));
        if (IsMultiLine(edit))
            state.lines.Break(edit.text, MetricsOf(edit.font), wraps ? FormatWidth(edit) : EditLines::kNoWrapping);
        state.linesValid = true;
    }
    return state.lines;
}

int LineCount(Window& edit) { return IsMultiLine(edit) ? LinesOf(edit).Count() : 1; }

int LineOf(Window& edit, int position) { return IsMultiLine(edit) ? LinesOf(edit).LineOf(position) : 0; }

int VisibleLines(Window& edit)
{
    const RECT& format = Of(edit).format;
    return std::max((format.bottom - format.top) / MetricsOf(edit.font).height, 1);
}

int WidthBetween(const Window& edit, int from, int to)
{
    const std::string_view text = edit.text;
    return TextWidth(MetricsOf(edit.font), text.substr(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from)));
}

void ScrollToCaret(Window& edit)
{
    EditState& state = Of(edit);
    if (IsMultiLine(edit))
    {
        const int line = LineOf(edit, state.caret);
        if (line < state.scrolled)
            state.scrolled = line;
        else if (line >= state.scrolled + VisibleLines(edit))
            state.scrolled = line - VisibleLines(edit) + 1;
        return;
    }
    if (state.caret < state.scrolled)
        state.scrolled = state.caret;
    // Measured once as a whole: texts can be a mebibyte long.
    int width = WidthBetween(edit, state.scrolled, state.caret);
    while (state.scrolled < state.caret && width > FormatWidth(edit))
    {
        const int next = state.scrolled + CharacterLength(edit.text, static_cast<std::size_t>(state.scrolled));
        width -= WidthBetween(edit, state.scrolled, next);
        state.scrolled = next;
    }
}

POINT PositionOf(Window& edit, int index)
{
    const EditState& state = Of(edit);
    if (!IsMultiLine(edit))
    {
        const int x = index >= state.scrolled ? WidthBetween(edit, state.scrolled, index)
                                              : -WidthBetween(edit, index, state.scrolled);
        return {state.format.left + x, state.format.top};
    }
    const EditLines& lines = LinesOf(edit);
    const int line = lines.LineOf(index);
    return {state.format.left + WidthBetween(edit, lines.StartOf(line), index),
            state.format.top + (line - state.scrolled) * MetricsOf(edit.font).height};
}

int IndexAt(Window& edit, POINT point)
{
    const EditState& state = Of(edit);
    int start = state.scrolled;
    int end = LengthOf(edit);
    if (IsMultiLine(edit))
    {
        const EditLines& lines = LinesOf(edit);
        const int line = std::clamp(
            state.scrolled + (point.y - state.format.top) / MetricsOf(edit.font).height, 0, lines.Count() - 1);
        start = lines.StartOf(line);
        end = start + lines.LengthOf(line);
    }
    int index = start;
    int x = state.format.left;
    while (index < end)
    {
        const int length = CharacterLength(edit.text, static_cast<std::size_t>(index));
        const int width = WidthBetween(edit, index, index + length);
        if (point.x < x + (width + 1) / 2)
            break;
        x += width;
        index += length;
    }
    return index;
}

// --------------------------------------------------------------------------------------------------------- selection

int OnCharacter(const Window& edit, int position)
{
    // Never between the bytes of a double-byte character.
    int start = 0;
    while (start < position)
    {
        const int length = CharacterLength(edit.text, static_cast<std::size_t>(start));
        if (start + length > position)
            return start;
        start += length;
    }
    return position;
}

void SetSelection(Window& edit, int start, int end)
{
    EditState& state = Of(edit);
    const int length = LengthOf(edit);
    state.typing = false;
    if (start == -1)
    {
        state.anchor = state.caret;
    }
    else
    {
        state.anchor = OnCharacter(edit, start < 0 || start > length ? length : start);
        state.caret = OnCharacter(edit, end < 0 || end > length ? length : end);
    }
    Invalidate(edit);
}

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

// --------------------------------------------------------------------------------------------------------- changing

// The longest beginning of `text` that is no longer than `size` and ends with a whole character.
std::string_view WholeCharacters(std::string_view text, std::size_t size)
{
    std::size_t end = 0;
    while (end < text.size())
    {
        const auto length = static_cast<std::size_t>(CharacterLength(text, end));
        if (end + length > size)
            break;
        end += length;
    }
    return text.substr(0, end);
}

std::string InCase(const Window& edit, std::string_view text)
{
    if (edit.style & ES_UPPERCASE)
        return UpperCase(text);
    if (edit.style & ES_LOWERCASE)
        return LowerCase(text);
    return std::string(text);
}

// A single-line edit that does not scroll takes only what fits in its width.
std::string_view FittingPart(const Window& edit, std::string_view rest, std::string_view text)
{
    const FontMetrics& metrics = MetricsOf(edit.font);
    const int width = FormatWidth(edit) - TextWidth(metrics, rest);
    std::size_t end = text.size();
    while (end > 0 && TextWidth(metrics, text.substr(0, end)) > width)
        end = PreviousCharacter(text, end);
    return text.substr(0, end);
}

enum class Change
{
    Typed,
    Replaced
};

void RememberForUndo(EditState& state, const std::string& text, Change change)
{
    if (change == Change::Typed && state.typing)
        return;
    state.undo = {true, text, state.Start(), state.End()};
    state.typing = change == Change::Typed;
}

void NotifyChange(Window& edit)
{
    NotifyParent(edit, EN_UPDATE);
    if (!edit.dead)
    {
        Invalidate(edit);
        NotifyParent(edit, EN_CHANGE);
    }
}

// Replaces the selection as the user would, within the limit, and tells the parent.
void ReplaceSelection(Window& edit, std::string_view text, bool canUndo, Change change = Change::Replaced)
{
    EditState& state = Of(edit);
    const int start = state.Start();
    const int end = state.End();
    const std::string rest = edit.text.substr(0, static_cast<std::size_t>(start)) +
                             edit.text.substr(static_cast<std::size_t>(end));
    std::string inserted = InCase(edit, text);

    if (rest.size() + inserted.size() > state.limit)
    {
        inserted = WholeCharacters(inserted, state.limit > rest.size() ? state.limit - rest.size() : 0);
        NotifyParent(edit, EN_MAXTEXT);
    }
    else if (!IsMultiLine(edit) && !(edit.style & ES_AUTOHSCROLL) && !inserted.empty())
    {
        const std::size_t fitting = FittingPart(edit, rest, inserted).size();
        if (fitting < inserted.size())
        {
            inserted.resize(fitting);
            NotifyParent(edit, EN_MAXTEXT);
        }
    }
    if (edit.dead)
        return;

    if (inserted.empty() && start == end)
    {
        if (!text.empty())
            ScrollToCaret(edit);
        return;
    }
    if (canUndo)
        RememberForUndo(state, edit.text, change);
    else
        state.undo = {};
    edit.text = rest;
    edit.text.insert(static_cast<std::size_t>(start), inserted);
    state.anchor = state.caret = start + static_cast<int>(inserted.size());
    state.modified = true;
    state.linesValid = false;
    ScrollToCaret(edit);
    NotifyChange(edit);
}

void SetWholeText(Window& edit, LPCSTR text)
{
    EditState& state = Of(edit);
    edit.text = InCase(edit, text ? text : "");
    state.anchor = state.caret = 0;
    state.scrolled = 0;
    state.modified = false;
    state.undo = {};
    state.typing = false;
    state.lead = 0;
    state.linesValid = false;
    Invalidate(edit);
    // A multi-line edit keeps quiet about texts that the program sets.
    if (!IsMultiLine(edit))
        NotifyChange(edit);
}

bool UndoChange(Window& edit)
{
    EditState& state = Of(edit);
    if (!state.undo.possible || IsReadOnly(edit))
        return false;
    Undo redo{true, edit.text, state.Start(), state.End()};
    edit.text = state.undo.text;
    state.anchor = state.undo.start;
    state.caret = state.undo.end;
    state.undo = std::move(redo);
    state.typing = false;
    state.linesValid = false;
    ScrollToCaret(edit);
    NotifyChange(edit);
    return true;
}

// ---------------------------------------------------------------------------------------------------------- clipboard

void Copy(const Window& edit, const EditState& state)
{
    if (state.Start() == state.End() || (edit.style & ES_PASSWORD) || !OpenClipboard(edit.handle))
        return;
    const auto size = static_cast<std::size_t>(state.End() - state.Start());
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size + 1);
    auto* target = static_cast<char*>(GlobalLock(memory));
    std::memcpy(target, edit.text.data() + state.Start(), size);
    target[size] = 0;
    GlobalUnlock(memory);
    EmptyClipboard();
    SetClipboardData(CF_TEXT, memory);
    CloseClipboard();
}

void Paste(Window& edit)
{
    if (IsReadOnly(edit) || !OpenClipboard(edit.handle))
        return;
    std::string text;
    if (const HANDLE memory = GetClipboardData(CF_TEXT))
    {
        const auto* data = static_cast<const char*>(GlobalLock(memory));
        text.assign(data, strnlen(data, GlobalSize(memory)));
        GlobalUnlock(memory);
    }
    CloseClipboard();
    if (!IsMultiLine(edit)) // Only the first line finds room.
        text.resize(std::min(text.find_first_of("\r\n"), text.size()));
    if (!text.empty())
        ReplaceSelection(edit, text, true);
}

void Clear(Window& edit)
{
    if (!IsReadOnly(edit))
        ReplaceSelection(edit, {}, true);
}

void Cut(Window& edit)
{
    Copy(edit, Of(edit));
    Clear(edit);
}

// ----------------------------------------------------------------------------------------------------------- keyboard

void DeleteBackwards(Window& edit)
{
    EditState& state = Of(edit);
    if (state.Start() == state.End())
    {
        if (state.caret == 0)
            return;
        std::size_t before = PreviousCharacter(edit.text, static_cast<std::size_t>(state.caret));
        // A line break goes as one.
        if (before > 0 && IsMultiLine(edit) && edit.text.compare(before - 1, 2, "\r\n") == 0)
            --before;
        state.anchor = static_cast<int>(before);
    }
    ReplaceSelection(edit, {}, true);
}

void DeleteForwards(Window& edit)
{
    EditState& state = Of(edit);
    if (state.Start() == state.End())
    {
        if (state.caret >= LengthOf(edit))
            return;
        const auto at = static_cast<std::size_t>(state.caret);
        const bool isBreak = IsMultiLine(edit) && edit.text.compare(at, 2, "\r\n") == 0;
        state.anchor = state.caret;
        state.caret += isBreak ? 2 : CharacterLength(edit.text, at);
    }
    ReplaceSelection(edit, {}, true);
}

void TypeCharacter(Window& edit, char c)
{
    EditState& state = Of(edit);
    std::string text(1, c);
    if (state.lead)
    {
        text.insert(text.begin(), std::exchange(state.lead, 0));
    }
    else if (IsLeadByte(static_cast<unsigned char>(c)))
    {
        state.lead = c;
        return;
    }
    const auto code = static_cast<unsigned char>(c);
    if (text.size() == 1 && (code < ' ' || code == 127))
        return;
    if ((edit.style & ES_NUMBER) && (text.size() > 1 || code < '0' || code > '9'))
    {
        MessageBeep(0);
        return;
    }
    ReplaceSelection(edit, text, true, Change::Typed);
}

void HandleChar(Window& edit, char c)
{
    EditState& state = Of(edit);
    const bool readOnly = IsReadOnly(edit);
    switch (c)
    {
    case '\r':
    case '\n':
        if (!IsMultiLine(edit) || readOnly || (state.inDialog && !(edit.style & ES_WANTRETURN)))
            return;
        ReplaceSelection(edit, "\r\n", true);
        return;
    case '\t':
        if (IsMultiLine(edit) && !readOnly && !state.inDialog)
            ReplaceSelection(edit, "\t", true);
        return;
    case '\b':
        if (!readOnly && !KeyIsDown(VK_CONTROL))
            DeleteBackwards(edit);
        return;
    case 0x03: Send(edit.handle, WM_COPY); return;
    case 0x16: Send(edit.handle, WM_PASTE); return;
    case 0x18: Send(edit.handle, WM_CUT); return;
    case 0x1A: Send(edit.handle, WM_UNDO); return;
    default:
        if (!readOnly)
            TypeCharacter(edit, c);
        return;
    }
}

int NextPosition(const Window& edit, int position)
{
    if (position >= LengthOf(edit))
        return position;
    const auto at = static_cast<std::size_t>(position);
    if (edit.text.compare(at, 2, "\r\n") == 0)
        return position + 2;
    return position + CharacterLength(edit.text, at);
}

int PreviousPosition(const Window& edit, int position)
{
    if (position <= 0)
        return 0;
    const auto before = static_cast<int>(PreviousCharacter(edit.text, static_cast<std::size_t>(position)));
    return before > 0 && edit.text.compare(static_cast<std::size_t>(before - 1), 2, "\r\n") == 0 ? before - 1 : before;
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
    return OnCharacter(edit, all.StartOf(target) + std::min(column, all.LengthOf(target)));
}

// A multi-line edit in a dialog gets every key and passes on the dialog's own.
void PassKeyToDialog(Window& edit, WPARAM key)
{
    const HWND dialog = ParentOf(edit);
    switch (key)
    {
    case VK_TAB: Send(dialog, WM_NEXTDLGCTL, KeyIsDown(VK_SHIFT), 0); break;
    case VK_ESCAPE: PostMessageA(dialog, WM_CLOSE, 0, 0); break;
    case VK_RETURN:
    {
        const LRESULT answer = Send(dialog, DM_GETDEFID);
        if (HIWORD(answer) != DC_HASDEFID)
            break;
        const HWND button = GetDlgItem(dialog, LOWORD(answer));
        if (button && IsWindowEnabled(button))
            PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(LOWORD(answer), BN_CLICKED),
                         reinterpret_cast<LPARAM>(button));
        break;
    }
    default: break;
    }
}

LRESULT HandleKey(Window& edit, WPARAM key)
{
    EditState& state = Of(edit);
    const bool shift = KeyIsDown(VK_SHIFT);
    const bool control = KeyIsDown(VK_CONTROL);
    const int caret = state.caret;
    const bool multi = IsMultiLine(edit);
    switch (key)
    {
    case VK_LEFT: MoveCaret(edit, control ? PreviousWord(edit, caret) : PreviousPosition(edit, caret), shift); break;
    case VK_RIGHT: MoveCaret(edit, control ? NextWord(edit, caret) : NextPosition(edit, caret), shift); break;
    case VK_UP:
        MoveCaret(edit, multi ? InOtherLine(edit, -1) : PreviousPosition(edit, caret), shift);
        break;
    case VK_DOWN: MoveCaret(edit, multi ? InOtherLine(edit, 1) : NextPosition(edit, caret), shift); break;
    case VK_PRIOR: MoveCaret(edit, InOtherLine(edit, -VisibleLines(edit)), shift); break;
    case VK_NEXT: MoveCaret(edit, InOtherLine(edit, VisibleLines(edit)), shift); break;
    case VK_HOME: MoveCaret(edit, multi && !control ? LinesOf(edit).StartOf(LineOf(edit, caret)) : 0, shift); break;
    case VK_END:
    {
        const int line = LineOf(edit, caret);
        MoveCaret(edit,
                  multi && !control ? LinesOf(edit).StartOf(line) + LinesOf(edit).LengthOf(line) : LengthOf(edit),
                  shift);
        break;
    }
    case VK_DELETE:
        if (IsReadOnly(edit) || (shift && control))
            break;
        if (shift)
            Cut(edit);
        else
            DeleteForwards(edit);
        break;
    case VK_INSERT:
        if (shift)
            Paste(edit);
        else if (control)
            Copy(edit, state);
        break;
    case VK_TAB:
    case VK_ESCAPE:
        if (multi && state.inDialog)
            PassKeyToDialog(edit, key);
        break;
    case VK_RETURN:
        if (multi && state.inDialog && !(edit.style & ES_WANTRETURN))
            PassKeyToDialog(edit, key);
        break;
    default: return DefWindowProcA(edit.handle, WM_KEYDOWN, key, 0);
    }
    return 0;
}

LRESULT DialogCodeOf(Window& edit, const MSG* key)
{
    LRESULT code = DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS;
    if (!IsMultiLine(edit))
        return code;
    Of(edit).inDialog = Of(edit).inDialog || key;
    return code | DLGC_WANTALLKEYS;
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

// ----------------------------------------------------------------------------------------------------------- messages

LRESULT CopyLine(Window& edit, int line, LPARAM target)
{
    auto* buffer = reinterpret_cast<char*>(target);
    WORD size = 0;
    std::memcpy(&size, buffer, sizeof size);
    std::string_view text = edit.text;
    if (IsMultiLine(edit))
    {
        const EditLines& lines = LinesOf(edit);
        if (line < 0 || line >= lines.Count())
            return 0;
        text = text.substr(static_cast<std::size_t>(lines.StartOf(line)), static_cast<std::size_t>(lines.LengthOf(line)));
    }
    const std::string_view part = text.substr(0, size);
    std::memcpy(buffer, part.data(), part.size()); // Not terminated, except that there is room for it.
    if (part.size() < size)
        buffer[part.size()] = 0;
    return static_cast<LRESULT>(part.size());
}

LRESULT LineLength(Window& edit, int position)
{
    if (!IsMultiLine(edit))
        return LengthOf(edit);
    const EditLines& lines = LinesOf(edit);
    const EditState& state = Of(edit);
    if (position != -1)
        return position <= LengthOf(edit) ? lines.LengthOf(lines.LineOf(position)) : 0;
    // What would remain of the lines that the selection touches.
    const int first = lines.LineOf(state.Start());
    const int last = lines.LineOf(state.End());
    return state.Start() - lines.StartOf(first) + lines.StartOf(last) + lines.LengthOf(last) - state.End();
}

LRESULT LineIndex(Window& edit, int line)
{
    if (line == -1)
        line = LineOf(edit, Of(edit).caret);
    if (line < 0 || line >= LineCount(edit))
        return -1;
    return IsMultiLine(edit) ? LinesOf(edit).StartOf(line) : 0;
}

LRESULT ScrollLines(Window& edit, int lines)
{
    EditState& state = Of(edit);
    if (!IsMultiLine(edit))
        return FALSE;
    state.scrolled = std::clamp(state.scrolled + lines, 0, std::max(LineCount(edit) - 1, 0));
    Invalidate(edit);
    return TRUE;
}

LRESULT SetReadOnly(Window& edit, bool readOnly)
{
    if (readOnly)
        edit.style |= ES_READONLY;
    else
        edit.style &= ~ES_READONLY;
    Invalidate(edit);
    return TRUE;
}

LRESULT SetMargins(Window& edit, WPARAM which, LPARAM margins)
{
    EditState& state = Of(edit);
    if (which & EC_LEFTMARGIN)
        state.leftMargin = LOWORD(margins);
    if (which & EC_RIGHTMARGIN)
        state.rightMargin = HIWORD(margins);
    UpdateFormat(edit);
    Invalidate(edit);
    return 0;
}

LRESULT HandleEditMessage(Window& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    EditState& state = Of(edit);
    switch (message)
    {
    case EM_GETSEL: return ReadSelection(state, wParam, lParam);
    case EM_SETSEL: SetSelection(edit, static_cast<int>(wParam), static_cast<int>(lParam)); return 1;
    case EM_REPLACESEL:
        ReplaceSelection(edit, lParam ? reinterpret_cast<LPCSTR>(lParam) : "", wParam != 0);
        return 1;
    case EM_SCROLLCARET:
        ScrollToCaret(edit);
        Invalidate(edit);
        return 1;
    case EM_GETMODIFY: return state.modified;
    case EM_SETMODIFY: state.modified = wParam != 0; return 0;
    case EM_LIMITTEXT:
    {
        UINT limit = static_cast<UINT>(wParam);
        if (limit == 0)
            limit = 0xFFFFFFFF; // None.
        state.limit = IsMultiLine(edit) ? limit : std::min(limit, kLargestLimit);
        return 0;
    }
    case EM_GETLIMITTEXT: return static_cast<LRESULT>(state.limit);
    case EM_GETLINECOUNT: return LineCount(edit);
    case EM_LINEINDEX: return LineIndex(edit, static_cast<int>(wParam));
    case EM_LINELENGTH: return LineLength(edit, static_cast<int>(wParam));
    case EM_LINEFROMCHAR: return LineOf(edit, static_cast<int>(wParam) == -1 ? state.Start() : static_cast<int>(wParam));
    case EM_GETLINE: return CopyLine(edit, static_cast<int>(wParam), lParam);
    case EM_GETFIRSTVISIBLELINE: return state.scrolled;
    case EM_LINESCROLL: return ScrollLines(edit, static_cast<int>(lParam));
    case EM_SETREADONLY: return SetReadOnly(edit, wParam != 0);
    case EM_CANUNDO: return state.undo.possible;
    case EM_UNDO: return UndoChange(edit);
    case EM_EMPTYUNDOBUFFER: state.undo = {}; return 0;
    case EM_GETRECT: *reinterpret_cast<RECT*>(lParam) = state.format; return 0;
    case EM_SETRECT:
    case EM_SETRECTNP:
        if (IsMultiLine(edit) && lParam)
        {
            state.format = *reinterpret_cast<const RECT*>(lParam);
            state.linesValid = false;
        }
        return 0;
    case EM_SETMARGINS: return SetMargins(edit, wParam, lParam);
    case EM_GETMARGINS: return MAKELONG(state.leftMargin, state.rightMargin);
    case EM_SETPASSWORDCHAR:
        state.passwordChar = static_cast<char>(wParam);
        Invalidate(edit);
        return 0;
    case EM_GETPASSWORDCHAR: return static_cast<unsigned char>(state.passwordChar);
    case EM_SETTABSTOPS: return IsMultiLine(edit);
    case EM_POSFROMCHAR:
    {
        if (static_cast<int>(wParam) >= LengthOf(edit))
            return -1;
        const POINT point = PositionOf(edit, static_cast<int>(wParam));
        return MAKELONG(point.x, point.y);
    }
    case EM_CHARFROMPOS:
    {
        const int index = IndexAt(edit, POINT{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        return MAKELONG(index, LineOf(edit, index));
    }
    default: Fail("not modelled: edit message 0x%04X", message); return 0;
    }
}

LRESULT Create(Window& edit)
{
    auto state = std::make_unique<EditState>();
    if (edit.style & ES_PASSWORD)
        state->passwordChar = '*';
    edit.control = std::move(state);
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
    state.lead = 0;
    Invalidate(edit);
    NotifyParent(edit, gained ? EN_SETFOCUS : EN_KILLFOCUS);
    return 0;
}

LRESULT Paint(Window& edit, WPARAM given)
{
    PAINTSTRUCT paint;
    const HDC dc = given ? reinterpret_cast<HDC>(given) : BeginPaint(edit.handle, &paint);
    SelectObject(dc, edit.font);
    const bool dim = IsReadOnly(edit) || (edit.style & WS_DISABLED);
    AskParentForColors(edit, dim ? WM_CTLCOLORSTATIC : WM_CTLCOLOREDIT, dc);
    if (!given)
        EndPaint(edit.handle, &paint);
    return 0;
}
} // namespace

LRESULT CALLBACK EditProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    Window* window = Find(handle);
    if (!window)
        return 0;
    Window& edit = *window;
    const Pin pin(window);
    if (message == WM_CREATE)
        return Create(edit);
    if (!edit.control)
        return DefWindowProcA(handle, message, wParam, lParam);
    EditState& state = Of(edit);
    if (message >= EM_GETSEL && message <= EM_CHARFROMPOS)
        return HandleEditMessage(edit, message, wParam, lParam);

    switch (message)
    {
    case WM_GETDLGCODE: return DialogCodeOf(edit, reinterpret_cast<const MSG*>(lParam));
    case WM_SETTEXT: SetWholeText(edit, reinterpret_cast<LPCSTR>(lParam)); return TRUE;
    case WM_SETFONT:
        edit.font = reinterpret_cast<HFONT>(wParam);
        UpdateFormat(edit);
        if (lParam)
            Invalidate(edit);
        return 0;
    case WM_GETFONT: return reinterpret_cast<LRESULT>(edit.font);
    case WM_SIZE: UpdateFormat(edit); return 0;
    case WM_SETFOCUS: return HandleFocus(edit, true);
    case WM_KILLFOCUS: return HandleFocus(edit, false);
    case WM_ENABLE: Invalidate(edit); return 0;
    case WM_CHAR: HandleChar(edit, static_cast<char>(wParam)); return 0;
    case WM_KEYDOWN: return HandleKey(edit, wParam);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEMOVE: return HandleMouse(edit, message, wParam, lParam);
    case WM_COPY: Copy(edit, state); return 0;
    case WM_CUT: Cut(edit); return 0;
    case WM_PASTE: Paste(edit); return 0;
    case WM_CLEAR: Clear(edit); return 0;
    case WM_UNDO: return UndoChange(edit);
    case WM_ERASEBKGND: return TRUE;
    case WM_PAINT:
    case WM_PRINTCLIENT: return Paint(edit, wParam);
    default: return DefWindowProcA(handle, message, wParam, lParam);
    }
}
} // namespace offscreen
