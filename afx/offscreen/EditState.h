#pragma once

#include "afx/offscreen/EditLines.h"

// The parts of the standard class "Edit". Positions and limits count the units of UTF-16.
namespace offscreen::edit
{
constexpr UINT kInitialLimit = 30000;

struct Undo
{
    bool possible = false;
    std::u16string text;
    int start = 0;
    int end = 0;
};

struct EditState : ControlState
{
    int anchor = 0; // The end of the selection that stays.
    int caret = 0;  // The end that moves.
    UINT limit = kInitialLimit;
    bool focused = false;
    bool inDialog = false; // Keys have come through a dialog's keyboard handling.
    RECT format{};
    int scrolled = 0; // First visible character, or line in a multi-line edit.
    bool typing = false;
    Undo undo;
    EditLines lines;
    bool linesValid = false;

    int Start() const { return std::min(anchor, caret); }
    int End() const { return std::max(anchor, caret); }
};

inline EditState& Of(Window& edit) { return *StateOf<EditState>(edit); }
inline bool IsMultiLine(const Window& edit) { return (edit.style & ES_MULTILINE) != 0; }
inline bool IsReadOnly(const Window& edit) { return (edit.style & ES_READONLY) != 0; }
inline int LengthOf(const Window& edit) { return static_cast<int>(edit.text.size()); }

// EditLayout.cpp: where the characters are.
void UpdateFormat(Window& edit); // After a change of the size or the font
const EditLines& LinesOf(Window& edit);
int LineCount(Window& edit);
int LineOf(Window& edit, int position);
int VisibleLines(Window& edit);
int FormatWidth(const Window& edit);
void ScrollToCaret(Window& edit);
int IndexAt(Window& edit, POINT point);

// EditText.cpp: the text and the selection.
enum class Change
{
    Typed,
    Replaced
};

std::u16string InCase(const Window& edit, std::u16string_view text); // In upper case when the edit wants it
void SetSelection(Window& edit, int start, int end);
// Replaces the selection as the user would, within the limit, and tells the parent.
void ReplaceSelection(Window& edit, std::u16string_view text, Change change = Change::Replaced);
void SetWholeText(Window& edit, LPCWSTR text);
void NotifyChange(Window& edit);
bool UndoChange(Window& edit);
void Copy(const Window& edit);
void Paste(Window& edit);
void Clear(Window& edit);
void Cut(Window& edit);

// EditKeyboard.cpp: what the user does.
void HandleChar(Window& edit, char16_t c);
LRESULT HandleKey(Window& edit, WPARAM key);
LRESULT HandleMouse(Window& edit, UINT message, WPARAM wParam, LPARAM lParam);
} // namespace offscreen::edit
