// Device contexts, fonts, brushes and pens. Nothing is drawn anywhere; what can be asked back is kept, and
// text is noted down when a test wants to see it.

#include "afx/offscreen/GdiState.h"

#include <cstring>

namespace offscreen
{
namespace
{
template <class Handle>
Handle Make(const GdiObject& object)
{
    return Gdi().objects.Add<Handle>(std::make_unique<GdiObject>(object));
}

GdiObject* ObjectOf(HGDIOBJ handle) { return Gdi().objects.Find(handle); }

HBRUSH MakeBrush(COLORREF color, UINT style = BS_SOLID)
{
    GdiObject object;
    object.kind = OBJ_BRUSH;
    object.brush = {style, color, 0};
    return Make<HBRUSH>(object);
}

HPEN MakePen()
{
    GdiObject object;
    object.kind = OBJ_PEN;
    return Make<HPEN>(object);
}

HFONT MakeFont(const LOGFONTW& font)
{
    GdiObject object;
    object.kind = OBJ_FONT;
    object.font = font;
    object.font.lfFaceName[LF_FACESIZE - 1] = 0;
    object.metrics = &MetricsFor(object.font);
    return Make<HFONT>(object);
}

HFONT MakeStockFont(LPCWSTR face, int height, int weight)
{
    LOGFONTW font{};
    font.lfHeight = height;
    font.lfWeight = weight;
    CopyText(face, font.lfFaceName, LF_FACESIZE);
    return MakeFont(font);
}

HGDIOBJ MakeStock(int index)
{
    switch (index)
    {
    case WHITE_BRUSH:
        return MakeBrush(RGB(255, 255, 255));
    case BLACK_BRUSH:
        return MakeBrush(RGB(0, 0, 0));
    case NULL_BRUSH:
        return MakeBrush(0, BS_NULL);
    case BLACK_PEN:
        return MakePen();
    case NULL_PEN:
        return MakePen();
    case SYSTEM_FONT:
        return MakeStockFont(u"System", 16, FW_BOLD);
    case DEFAULT_GUI_FONT:
        return MakeStockFont(u"MS Shell Dlg", -11, FW_NORMAL);
    default:
        return NotModelled("GetStockObject with this index", HGDIOBJ{});
    }
}

HGDIOBJ Stock(int index)
{
    GdiState& state = Gdi();
    if (index < 0 || index > DEFAULT_GUI_FONT)
        return nullptr;
    if (!state.stock[index])
    {
        state.stock[index] = MakeStock(index);
        if (GdiObject* object = ObjectOf(state.stock[index]))
            object->stock = true;
    }
    return state.stock[index];
}

HDC MakeDc(HWND window, bool memory)
{
    auto dc = std::make_unique<Dc>();
    dc->window = window;
    dc->memory = memory;
    dc->font = Stock(SYSTEM_FONT);
    dc->brush = Stock(WHITE_BRUSH);
    dc->pen = Stock(BLACK_PEN);
    return Gdi().dcs.Add<HDC>(std::move(dc));
}

HGDIOBJ* SlotFor(DcSettings& dc, DWORD kind)
{
    switch (kind)
    {
    case OBJ_FONT:
        return &dc.font;
    case OBJ_BRUSH:
        return &dc.brush;
    case OBJ_PEN:
        return &dc.pen;
    default:
        return nullptr;
    }
}

template <class Value>
Value Swap(HDC handle, Value DcSettings::*member, Value value, Value failure)
{
    Dc* dc = DcOf(handle);
    return dc ? std::exchange(dc->*member, value) : failure;
}

} // namespace

GdiState& Gdi()
{
    static auto* state = new GdiState;
    return *state;
}

Dc* DcOf(HDC handle) { return Gdi().dcs.Find(handle); }

void NoteText(const Dc& dc, int x, int y, std::u16string_view text)
{
    if (Gdi().recording && dc.window)
        Gdi().drawn[dc.window].push_back({std::u16string(text), x, y, dc.textColor});
}

const FontMetrics& MetricsOf(HFONT font)
{
    const GdiObject* object = ObjectOf(font);
    if (!object || !object->metrics)
        object = ObjectOf(Stock(SYSTEM_FONT));
    return *object->metrics;
}

const LOGFONTW& LogFontOf(HFONT font)
{
    const GdiObject* object = ObjectOf(font);
    if (!object || object->kind != OBJ_FONT)
        object = ObjectOf(Stock(SYSTEM_FONT));
    return object->font;
}

HDC OpenDc(HWND window, bool forPainting)
{
    if (forPainting)
        Gdi().drawn.erase(window);
    return MakeDc(window, false);
}

void CloseDc(HDC handle) { Gdi().dcs.Remove(handle); }

void ForgetDcsOf(HWND window)
{
    GdiState& state = Gdi();
    state.dcs.ForEach([=](Dc& dc) {
        if (dc.window == window)
            dc.window = nullptr;
    });
    if (!state.drawn.empty())
        state.drawn.erase(window);
}

void CountGdi(Counts& counts)
{
    Gdi().objects.ForEach([&](const GdiObject& object) {
        if (object.stock)
            return;
        counts.fonts += object.kind == OBJ_FONT;
        counts.brushes += object.kind == OBJ_BRUSH;
        counts.pens += object.kind == OBJ_PEN;
    });
    counts.dcs = Gdi().dcs.Count();
}

void ResetGdi()
{
    GdiState& state = Gdi();
    state.dcs.Clear();
    state.objects.RemoveIf([](const GdiObject& object) { return !object.stock; });
    state.recording = false;
    state.drawn.clear();
}

void RecordDrawing(bool on)
{
    Gdi().recording = on;
    Gdi().drawn.clear();
}

std::vector<DrawnText> TextDrawnIn(HWND window)
{
    std::vector<DrawnText> drawn;
    if (const auto it = Gdi().drawn.find(window); it != Gdi().drawn.end())
        for (const NotedText& noted : it->second)
            drawn.push_back({ToAnsi(noted.text), noted.x, noted.y, noted.color, noted.text});
    return drawn;
}
} // namespace offscreen

using namespace offscreen;

// -------------------------------------------------------------------------------------------------- device contexts

HDC GetDC(HWND window)
{
    Inside inside;
    if (window && !Lookup(window))
        return nullptr;
    return OpenDc(window, false);
}

int ReleaseDC(HWND, HDC dc)
{
    Inside inside;
    if (!DcOf(dc))
        return 0;
    CloseDc(dc);
    return 1;
}

HDC CreateCompatibleDC(HDC)
{
    Inside inside;
    return MakeDc(nullptr, true);
}

BOOL DeleteDC(HDC dc) { return ReleaseDC(nullptr, dc); }

int SaveDC(HDC dc)
{
    Inside inside;
    Dc* found = DcOf(dc);
    if (!found)
        return 0;
    found->saved.push_back(*found);
    return static_cast<int>(found->saved.size());
}

BOOL RestoreDC(HDC dc, int state)
{
    Inside inside;
    Dc* found = DcOf(dc);
    if (!found)
        return FALSE;
    const int count = static_cast<int>(found->saved.size());
    const int index = state < 0 ? count + state : state - 1;
    if (index < 0 || index >= count)
        return FALSE;
    static_cast<DcSettings&>(*found) = found->saved[static_cast<std::size_t>(index)];
    found->saved.resize(static_cast<std::size_t>(index));
    return TRUE;
}

int GetDeviceCaps(HDC dc, int index)
{
    Inside inside;
    if (!DcOf(dc))
        return 0;
    switch (index)
    {
    case LOGPIXELSX:
    case LOGPIXELSY:
        return 96;
    default:
        return NotModelled("GetDeviceCaps with this index", 0);
    }
}

// Pixels are the only unit.
BOOL DPtoLP(HDC dc, LPPOINT, int) { return DcOf(dc) != nullptr; }

COLORREF SetTextColor(HDC dc, COLORREF color) { return Swap(dc, &DcSettings::textColor, color, CLR_INVALID); }
COLORREF SetBkColor(HDC dc, COLORREF color) { return Swap(dc, &DcSettings::backgroundColor, color, CLR_INVALID); }
int SetBkMode(HDC dc, int mode) { return Swap(dc, &DcSettings::backgroundMode, mode, 0); }

COLORREF GetTextColor(HDC dc) { return DcOf(dc) ? DcOf(dc)->textColor : CLR_INVALID; }
COLORREF GetBkColor(HDC dc) { return DcOf(dc) ? DcOf(dc)->backgroundColor : CLR_INVALID; }

// ------------------------------------------------------------------------------------------------------------ objects

HGDIOBJ SelectObject(HDC dc, HGDIOBJ object)
{
    Inside inside;
    Dc* found = DcOf(dc);
    const GdiObject* selected = ObjectOf(object);
    HGDIOBJ* slot = found && selected ? SlotFor(*found, selected->kind) : nullptr;
    return slot ? std::exchange(*slot, object) : nullptr;
}

BOOL DeleteObject(HGDIOBJ object)
{
    Inside inside;
    const GdiObject* found = ObjectOf(object);
    if (!found)
        return FALSE;
    if (!found->stock)
        Gdi().objects.Remove(object);
    return TRUE;
}

HGDIOBJ GetStockObject(int index)
{
    Inside inside;
    return Stock(index);
}

DWORD GetObjectType(HGDIOBJ object)
{
    Inside inside;
    if (const Dc* dc = DcOf(static_cast<HDC>(object)))
        return dc->memory ? OBJ_MEMDC : OBJ_DC;
    const GdiObject* found = ObjectOf(object);
    return found ? found->kind : 0;
}

namespace
{
constexpr std::size_t kPlainFont = offsetof(LOGFONTA, lfFaceName); // What both forms begin with
static_assert(kPlainFont == offsetof(LOGFONTW, lfFaceName));

LOGFONTA ToAnsi(const LOGFONTW& font)
{
    LOGFONTA ansi{};
    std::memcpy(&ansi, &font, kPlainFont);
    CopyAnsi(font.lfFaceName, ansi.lfFaceName, LF_FACESIZE);
    return ansi;
}

LOGFONTW ToWide(const LOGFONTA& font)
{
    LOGFONTW wide{};
    std::memcpy(&wide, &font, kPlainFont);
    CopyText(offscreen::ToWide({font.lfFaceName, strnlen(font.lfFaceName, LF_FACESIZE)}), wide.lfFaceName, LF_FACESIZE);
    return wide;
}

// As much of a font as there is room for; another object whole or not at all.
template <class Value>
int CopyObject(const Value& value, bool partly, int size, LPVOID buffer)
{
    constexpr int kSize = sizeof value;
    if (!buffer)
        return kSize;
    if (size < kSize && !partly)
        return 0;
    const int copied = std::min(size, kSize);
    std::memcpy(buffer, &value, static_cast<std::size_t>(copied));
    return copied;
}

template <class FontForm>
int GetObjectWith(FontForm fontForm, HANDLE object, int size, LPVOID buffer)
{
    const GdiObject* found = ObjectOf(object);
    if (!found)
        return 0;
    switch (found->kind)
    {
    case OBJ_FONT:
        return CopyObject(fontForm(found->font), true, size, buffer);
    case OBJ_BRUSH:
        return CopyObject(found->brush, false, size, buffer);
    default:
        return NotModelled("GetObject of a pen", 0);
    }
}
} // namespace

int GetObjectA(HANDLE object, int size, LPVOID buffer)
{
    Inside inside;
    return GetObjectWith([](const LOGFONTW& font) { return ToAnsi(font); }, object, size, buffer);
}

int GetObjectW(HANDLE object, int size, LPVOID buffer)
{
    Inside inside;
    return GetObjectWith([](const LOGFONTW& font) { return font; }, object, size, buffer);
}

HFONT CreateFontIndirectA(const LOGFONTA* font)
{
    Inside inside;
    return font ? MakeFont(ToWide(*font)) : nullptr;
}

HFONT CreateFontIndirectW(const LOGFONTW* font)
{
    Inside inside;
    return font ? MakeFont(*font) : nullptr;
}

HBRUSH CreateSolidBrush(COLORREF color)
{
    Inside inside;
    return MakeBrush(color);
}

HPEN CreatePen(int, int, COLORREF)
{
    Inside inside;
    return MakePen();
}

DWORD GetSysColor(int index)
{
    constexpr COLORREF kColors[] = {
        RGB(212, 208, 200), RGB(58, 110, 165),  RGB(10, 36, 106),   RGB(128, 128, 128), RGB(212, 208, 200),
        RGB(255, 255, 255), RGB(0, 0, 0),       RGB(0, 0, 0),       RGB(0, 0, 0),       RGB(255, 255, 255),
        RGB(212, 208, 200), RGB(212, 208, 200), RGB(128, 128, 128), RGB(10, 36, 106),   RGB(255, 255, 255),
        RGB(212, 208, 200), RGB(128, 128, 128), RGB(128, 128, 128), RGB(0, 0, 0),       RGB(212, 208, 200),
        RGB(255, 255, 255), RGB(64, 64, 64),    RGB(212, 208, 200), RGB(0, 0, 0),       RGB(255, 255, 225)};
    return index >= 0 && index <= COLOR_INFOBK ? kColors[index] : 0;
}

HBRUSH GetSysColorBrush(int index)
{
    Inside inside;
    if (index < 0 || index > COLOR_INFOBK)
        return nullptr;
    HBRUSH& brush = Gdi().systemBrushes[index];
    if (!brush)
    {
        brush = MakeBrush(GetSysColor(index));
        ObjectOf(brush)->stock = true;
    }
    return brush;
}
