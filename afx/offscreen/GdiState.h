#pragma once

#include "afx/offscreen/Internal.h"

#include <map>

namespace offscreen
{
struct GdiObject
{
    DWORD kind = 0; // OBJ_...
    bool stock = false;
    LOGFONTW font{};
    LOGBRUSH brush{};
    const FontMetrics* metrics = nullptr;
};

struct DcSettings
{
    COLORREF textColor = RGB(0, 0, 0);
    COLORREF backgroundColor = RGB(255, 255, 255);
    int backgroundMode = OPAQUE;
    HGDIOBJ font = nullptr;
    HGDIOBJ brush = nullptr;
    HGDIOBJ pen = nullptr;
    POINT position{};
};

struct Fill
{
    std::vector<POINT> corners; // Of a polygon, or the two of the rectangle around an ellipse.
    bool ellipse;
    COLORREF color;
};

struct NotedText
{
    std::u16string text;
    int x;
    int y;
    COLORREF color;
};

struct Dc : DcSettings
{
    HWND window = nullptr;
    bool memory = false;
    std::vector<DcSettings> saved;
    std::vector<Fill> fills;
};

struct GdiState
{
    HandleTable<GdiObject> objects{1};
    HandleTable<Dc> dcs{2};
    HGDIOBJ stock[DEFAULT_GUI_FONT + 1] = {};
    HBRUSH systemBrushes[COLOR_INFOBK + 1] = {};
    bool recording = false;
    std::map<HWND, std::vector<NotedText>> drawn;
};

GdiState& Gdi();
Dc* DcOf(HDC handle);
void NoteText(const Dc& dc, int x, int y, std::u16string_view text);
void NoteRect(Dc& dc, const RECT& rect, COLORREF color);

// A text with its length, or with a terminator when the length is negative.
template <class Character>
std::basic_string_view<Character> View(const Character* text, int length)
{
    if (length < 0)
        return text;
    return {text, static_cast<std::size_t>(length)};
}
} // namespace offscreen
