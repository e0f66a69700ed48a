// The text of an edit: selection, changes within the limit, undo, clipboard.

#include "afx/offscreen/EditState.h"

namespace offscreen::edit
{
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
        state.anchor = start < 0 || start > length ? length : start;
        state.caret = end < 0 || end > length ? length : end;
    }
    Invalidate(edit);
}

std::u16string InCase(const Window& edit, std::u16string_view text)
{
    return edit.style & ES_UPPERCASE ? UpperCase(text) : std::u16string(text);
}

namespace
{
// A single-line edit that does not scroll takes only what fits in its width.
std::u16string_view FittingPart(const Window& edit, std::u16string_view rest, std::u16string_view text)
{
    const FontMetrics& metrics = MetricsOf(edit.font);
    const int width = FormatWidth(edit) - TextWidth(metrics, rest);
    std::size_t end = text.size();
    while (end > 0 && TextWidth(metrics, text.substr(0, end)) > width)
        --end;
    return text.substr(0, end);
}

void RememberForUndo(EditState& state, const std::u16string& text, Change change)
{
    if (change == Change::Typed && state.typing)
        return;
    state.undo = {true, text, state.Start(), state.End()};
    state.typing = change == Change::Typed;
}
} // namespace

void NotifyChange(Window& edit)
{
    NotifyParent(edit, EN_UPDATE);
    if (!edit.dead)
    {
        Invalidate(edit);
        NotifyParent(edit, EN_CHANGE);
    }
}

void ReplaceSelection(Window& edit, std::u16string_view text, Change change)
{
    EditState& state = Of(edit);
    const int start = state.Start();
    const int end = state.End();
    const std::u16string rest =
        edit.text.substr(0, static_cast<std::size_t>(start)) + edit.text.substr(static_cast<std::size_t>(end));
    std::u16string inserted = InCase(edit, text);

    if (rest.size() + inserted.size() > state.limit)
    {
        inserted.resize(state.limit > rest.size() ? state.limit - rest.size() : 0);
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
    RememberForUndo(state, edit.text, change);
    edit.text = rest;
    edit.text.insert(static_cast<std::size_t>(start), inserted);
    state.anchor = state.caret = start + static_cast<int>(inserted.size());
    state.linesValid = false;
    ScrollToCaret(edit);
    NotifyChange(edit);
}

void SetWholeText(Window& edit, LPCWSTR text)
{
    EditState& state = Of(edit);
    edit.text = InCase(edit, text ? text : u"");
    state.anchor = state.caret = 0;
    state.scrolled = 0;
    state.undo = {};
    state.typing = false;
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

void Copy(const Window& edit)
{
    const EditState& state = Of(const_cast<Window&>(edit));
    if (state.Start() == state.End() || !OpenClipboard(edit.handle))
        return;
    const auto size = static_cast<std::size_t>(state.End() - state.Start());
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (size + 1) * sizeof(WCHAR));
    CopyText({edit.text.data() + state.Start(), size}, static_cast<LPWSTR>(GlobalLock(memory)), size + 1);
    GlobalUnlock(memory);
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

void Paste(Window& edit)
{
    if (IsReadOnly(edit) || !OpenClipboard(edit.handle))
        return;
    std::u16string text;
    if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT))
    {
        text.assign(static_cast<LPCWSTR>(GlobalLock(memory)), GlobalSize(memory) / sizeof(WCHAR));
        text.resize(std::min(text.find(u'\0'), text.size()));
        GlobalUnlock(memory);
    }
    CloseClipboard();
    if (!IsMultiLine(edit)) // Only the first line finds room.
        text.resize(std::min(text.find_first_of(u"\r\n"), text.size()));
    if (!text.empty())
        ReplaceSelection(edit, text);
}

void Clear(Window& edit)
{
    if (!IsReadOnly(edit))
        ReplaceSelection(edit, {});
}

void Cut(Window& edit)
{
    Copy(edit);
    Clear(edit);
}
} // namespace offscreen::edit
