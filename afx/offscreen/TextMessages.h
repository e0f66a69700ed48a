#pragma once

#include "afx/offscreen/Internal.h"

namespace offscreen
{
// Messages with texts between senders and procedures of different kinds, ANSI and Unicode.

// Whether the parameters of a message, or its result, are texts or tell their length.
bool HasText(UINT message);

// What gets a translated message; and what is asked further, for the text whose length a message asks for.
using Receiver = std::function<LRESULT(UINT message, WPARAM wParam, LPARAM lParam)>;

// Translates a message of an ANSI sender for a Unicode receiver, and the answer back.
LRESULT SendAnsiToUnicode(const Receiver& receiver, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
// Translates a message of a Unicode sender for an ANSI receiver, and the answer back.
LRESULT SendUnicodeToAnsi(const Receiver& receiver, UINT message, WPARAM wParam, LPARAM lParam);

// The character of an ANSI WM_CHAR; false for the first byte of a double-byte character, which waits for the second
// byte that comes to the same window.
bool WidenCharacter(HWND window, WPARAM& character);
void ForgetLeadByte();
} // namespace offscreen
