// Device contexts, fonts, brushes, pens and bitmaps. Nothing is drawn anywhere; what can be asked back is kept, and text
// is noted down when a test wants to see it.

#include "afx/offscreen/Internal.h"

#include <cstring>
#include <map>

namespace offscreen
{
namespace
{
struct GdiObject
{
    DWORD kind = 0; // OBJ_...
    bool stock = false;
    LOGFONTA font{};
    LOGBRUSH brush{};
    LOGPEN pen{};
    BITMAP bitmap{};
    const FontMetrics* metrics = nullptr;
};

struct DcSettings
{
    COLORREF textColor = RGB(0, 0, 0);
    COLORREF backgroundColor = RGB(255, 255, 255);
    int backgroundMode = OPAQUE;
    UINT align = TA_LEFT | TA_TOP;
    HGDIOBJ font = nullptr;
    HGDIOBJ brush = nullptr;
    HGDIOBJ pen = nullptr;
    HGDIOBJ bitmap = nullptr;
    POINT position{};
};

struct Dc : DcSettings
{
    HWND window = nullptr;
    bool memory = false;
    std::vector<DcSettings> saved;
};

struct GdiState
{
    HandleTable<GdiObject> objects{1};
    HandleTable<Dc> dcs{2};
    HGDIOBJ stock[DEFAULT_GUI_FONT + 1] = {};
    HBRUSH systemBrushes[COLOR_INFOBK + 1] = {};
    int stockObjects = 0;
    bool recording = false;
    std::map<HWND, std::vector<DrawnText>> drawn;
};

GdiState& State()
{
    static auto* state = new GdiState;
    return *state;
}

template <class Handle> Handle Make(GdiObject object)
{
    auto* made = new GdiObject(std::move(object));
    const auto handle = State().objects.Add(made);
    if (!handle)
        delete made;
    return reinterpret_cast<Handle>(handle);
}

GdiObject* ObjectOf(HGDIOBJ handle) { return State().objects.Find(reinterpret_cast<std::uintptr_t>(handle)); }
Dc* DcOf(HDC handle) { return State().dcs.Find(reinterpret_cast<std::uintptr_t>(handle)); }

HBRUSH MakeBrush(COLORREF color, UINT style = BS_SOLID)
{
    GdiObject object;
    object.kind = OBJ_BRUSH;
    object.brush = {style, color, 0};
    return Make<HBRUSH>(object);
}

HPEN MakePen(int style, int width, COLORREF color)
{
    GdiObject object;
    object.kind = OBJ_PEN;
    object.pen = {static_cast<UINT>(style), {width, 0}, color};
    return Make<HPEN>(object);
}

HFONT MakeFont(const LOGFONTA& font)
{
    GdiObject object;
    object.kind = OBJ_FONT;
    object.font = font;
    object.font.lfFaceName[LF_FACESIZE - 1] = 0;
    object.metrics = &MetricsFor(object.font);
    return Make<HFONT>(object);
}

HFONT MakeStockFont(const char* face, int height, int weight)
{
    LOGFONTA font{};
    font.lfHeight = height;
    font.lfWeight = weight;
    CopyText(face, font.lfFaceName, sizeof font.lfFaceName);
    return MakeFont(font);
}

HGDIOBJ MakeStock(int index)
{
    switch (index)
    {
    case WHITE_BRUSH: return MakeBrush(RGB(255, 255, 255));
    case LTGRAY_BRUSH: return MakeBrush(RGB(192, 192, 192));
    case GRAY_BRUSH: return MakeBrush(RGB(128, 128, 128));
    case DKGRAY_BRUSH: return MakeBrush(RGB(64, 64, 64));
    case BLACK_BRUSH: return MakeBrush(RGB(0, 0, 0));
    case NULL_BRUSH: return MakeBrush(0, BS_NULL);
    case WHITE_PEN: return MakePen(PS_SOLID, 0, RGB(255, 255, 255));
    case BLACK_PEN: return MakePen(PS_SOLID, 0, RGB(0, 0, 0));
    case NULL_PEN: return MakePen(PS_NULL, 0, 0);
    case OEM_FIXED_FONT:
    case ANSI_FIXED_FONT: return MakeStockFont("Courier", 12, FW_NORMAL);
    case ANSI_VAR_FONT: return MakeStockFont("MS Sans Serif", 12, FW_NORMAL);
    case SYSTEM_FONT:
    case DEVICE_DEFAULT_FONT: return MakeStockFont("System", 16, FW_BOLD);
    case SYSTEM_FIXED_FONT: return MakeStockFont("Courier", 16, FW_NORMAL);
    case DEFAULT_GUI_FONT: return MakeStockFont("MS Shell Dlg", -11, FW_NORMAL);
    default: return nullptr;
    }
}

HGDIOBJ Stock(int index)
{
    GdiState& state = State();
    if (index < 0 || index > DEFAULT_GUI_FONT)
        return nullptr;
    if (!state.stock[index])
    {
        state.stock[index] = MakeStock(index);
        if (GdiObject* object = ObjectOf(state.stock[index]))
        {
            object->stock = true;
            ++state.stockObjects;
        }
    }
    return state.stock[index];
}

HDC MakeDc(HWND window, bool memory)
{
    auto* dc = new Dc;
    dc->window = window;
    dc->memory = memory;
    dc->font = Stock(SYSTEM_FONT);
    dc->brush = Stock(WHITE_BRUSH);
    dc->pen = Stock(BLACK_PEN);
    return reinterpret_cast<HDC>(State().dcs.Add(dc));
}

HGDIOBJ* SlotFor(DcSettings& dc, DWORD kind)
{
    switch (kind)
    {
    case OBJ_FONT: return &dc.font;
    case OBJ_BRUSH: return &dc.brush;
    case OBJ_PEN: return &dc.pen;
    case OBJ_BITMAP: return &dc.bitmap;
    default: return nullptr;
    }
}

void NoteText(const Dc& dc, int x, int y, std::string_view text)
{
    if (State().recording && dc.window)
        State().drawn[dc.window].push_back({std::string(text), x, y, dc.textColor});
}

template <class Value> Value Swap(HDC handle, Value DcSettings::*member, Value value, Value failure)
{
    Dc* dc = DcOf(handle);
    return dc ? std::exchange(dc->*member, value) : failure;
}

std::string_view View(LPCSTR text, int length)
{
    return length < 0 ? std::string_view(text) : std::string_view(text, static_cast<std::size_t>(length));
}

BOOL Drawn(HDC dc) { return DcOf(dc) != nullptr; }
} // namespace

const FontMetrics& MetricsOf(HFONT font)
{
    const GdiObject* object = ObjectOf(font);
    if (!object || !object->metrics)
        object = ObjectOf(Stock(SYSTEM_FONT));
    return *object->metrics;
}

const LOGFONTA& LogFontOf(HFONT font)
{
    const GdiObject* object = ObjectOf(font);
    if (!object || object->kind != OBJ_FONT)
        object = ObjectOf(Stock(SYSTEM_FONT));
    return object->font;
}

HDC OpenDc(HWND window, bool forPainting)
{
    if (forPainting)
        State().drawn.erase(window);
    return MakeDc(window, false);
}

void CloseDc(HDC handle)
{
    Dc* dc = DcOf(handle);
    State().dcs.Remove(reinterpret_cast<std::uintptr_t>(handle));
    delete dc;
}

void ForgetDcsOf(HWND window)
{
    GdiState& state = State();
    state.dcs.ForEach([=](Dc& dc) {
        if (dc.window == window)
            dc.window = nullptr;
    });
    if (!state.drawn.empty())
        state.drawn.erase(window);
}

int CountDcs() { return State().dcs.Count(); }

void CountGdi(Counts& counts)
{
    State().objects.ForEach([&](const GdiObject& object) {
        if (object.stock)
            return;
        counts.fonts += object.kind == OBJ_FONT;
        counts.brushes += object.kind == OBJ_BRUSH;
        counts.pens += object.kind == OBJ_PEN;
        counts.bitmaps += object.kind == OBJ_BITMAP;
    });
    counts.dcs = CountDcs();
}

void ResetGdi()
{
    GdiState& state = State();
    std::vector<GdiObject*> objects;
    state.objects.ForEach([&](GdiObject& object) { objects.push_back(&object); });
    std::vector<Dc*> dcs;
    state.dcs.ForEach([&](Dc& dc) { dcs.push_back(&dc); });
    state = GdiState{};
    for (GdiObject* object : objects)
        delete object;
    for (Dc* dc : dcs)
        delete dc;
}

void RecordDrawing(bool on)
{
    State().recording = on;
    State().drawn.clear();
}

std::vector<DrawnText> TextDrawnIn(HWND window)
{
    const auto it = State().drawn.find(window);
    return it == State().drawn.end() ? std::vector<DrawnText>{} : it->second;
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

HDC GetWindowDC(HWND window) { return GetDC(window); }

int ReleaseDC(HWND, HDC dc)
{
    Inside inside;
    if (!DcOf(dc))
        return 0;
    CloseDc(dc);
    return 1;
}

HWND WindowFromDC(HDC dc)
{
    const Dc* found = DcOf(dc);
    return found ? found->window : nullptr;
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
    case LOGPIXELSY: return 96;
    case HORZRES: return GetSystemMetrics(SM_CXSCREEN);
    case VERTRES: return GetSystemMetrics(SM_CYSCREEN);
    case BITSPIXEL: return 32;
    case PLANES: return 1;
    default: return NotModelled("GetDeviceCaps with this index", 0);
    }
}

// Pixels are the only unit.
BOOL DPtoLP(HDC dc, LPPOINT, int) { return Drawn(dc); }
BOOL LPtoDP(HDC dc, LPPOINT, int) { return Drawn(dc); }

COLORREF SetTextColor(HDC dc, COLORREF color) { return Swap(dc, &DcSettings::textColor, color, CLR_INVALID); }
COLORREF SetBkColor(HDC dc, COLORREF color) { return Swap(dc, &DcSettings::backgroundColor, color, CLR_INVALID); }
int SetBkMode(HDC dc, int mode) { return Swap(dc, &DcSettings::backgroundMode, mode, 0); }
UINT SetTextAlign(HDC dc, UINT align) { return Swap(dc, &DcSettings::align, align, GDI_ERROR); }

COLORREF GetTextColor(HDC dc) { return DcOf(dc) ? DcOf(dc)->textColor : CLR_INVALID; }
COLORREF GetBkColor(HDC dc) { return DcOf(dc) ? DcOf(dc)->backgroundColor : CLR_INVALID; }
int GetBkMode(HDC dc) { return DcOf(dc) ? DcOf(dc)->backgroundMode : 0; }
UINT GetTextAlign(HDC dc) { return DcOf(dc) ? DcOf(dc)->align : GDI_ERROR; }

// ------------------------------------------------------------------------------------------------------------ objects

HGDIOBJ SelectObject(HDC dc, HGDIOBJ object)
{
    Inside inside;
    Dc* found = DcOf(dc);
    const GdiObject* selected = ObjectOf(object);
    HGDIOBJ* slot = found && selected ? SlotFor(*found, selected->kind) : nullptr;
    if (!slot)
        return nullptr;
    const HGDIOBJ before = std::exchange(*slot, object);
    // Every memory context starts with a bitmap of one pixel; here that one has no handle of its own.
    return !before && selected->kind == OBJ_BITMAP ? reinterpret_cast<HGDIOBJ>(std::uintptr_t{1}) : before;
}

HGDIOBJ GetCurrentObject(HDC dc, UINT kind)
{
    Inside inside;
    Dc* found = DcOf(dc);
    const HGDIOBJ* slot = found ? SlotFor(*found, kind) : nullptr;
    return slot ? *slot : nullptr;
}

BOOL DeleteObject(HGDIOBJ object)
{
    Inside inside;
    GdiObject* found = ObjectOf(object);
    if (!found)
        return FALSE;
    if (found->stock)
        return TRUE;
    State().objects.Remove(reinterpret_cast<std::uintptr_t>(object));
    delete found;
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

int GetObjectA(HANDLE object, int size, LPVOID buffer)
{
    Inside inside;
    const GdiObject* found = ObjectOf(object);
    if (!found)
        return 0;
    const void* source = nullptr;
    int available = 0;
    switch (found->kind)
    {
    case OBJ_FONT: source = &found->font, available = sizeof found->font; break;
    case OBJ_BRUSH: source = &found->brush, available = sizeof found->brush; break;
    case OBJ_PEN: source = &found->pen, available = sizeof found->pen; break;
    default: source = &found->bitmap, available = sizeof found->bitmap; break;
    }
    if (!buffer)
        return available;
    if (size < available && found->kind != OBJ_FONT)
        return 0;
    const int copied = std::min(size, available);
    std::memcpy(buffer, source, static_cast<std::size_t>(copied));
    return copied;
}

HFONT CreateFontIndirectA(const LOGFONTA* font)
{
    Inside inside;
    return font ? MakeFont(*font) : nullptr;
}

HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic, DWORD underline,
                  DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision, DWORD quality,
                  DWORD pitchAndFamily, LPCSTR faceName)
{
    Inside inside;
    LOGFONTA font{};
    font.lfHeight = height;
    font.lfWidth = width;
    font.lfEscapement = escapement;
    font.lfOrientation = orientation;
    font.lfWeight = weight;
    font.lfItalic = static_cast<BYTE>(italic);
    font.lfUnderline = static_cast<BYTE>(underline);
    font.lfStrikeOut = static_cast<BYTE>(strikeOut);
    font.lfCharSet = static_cast<BYTE>(charSet);
    font.lfOutPrecision = static_cast<BYTE>(outPrecision);
    font.lfClipPrecision = static_cast<BYTE>(clipPrecision);
    font.lfQuality = static_cast<BYTE>(quality);
    font.lfPitchAndFamily = static_cast<BYTE>(pitchAndFamily);
    CopyText(faceName ? faceName : "", font.lfFaceName, sizeof font.lfFaceName);
    return MakeFont(font);
}

HBRUSH CreateSolidBrush(COLORREF color)
{
    Inside inside;
    return MakeBrush(color);
}

HPEN CreatePen(int style, int width, COLORREF color)
{
    Inside inside;
    return MakePen(style, width, color);
}

HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height)
{
    Inside inside;
    if (!DcOf(dc))
        return nullptr;
    GdiObject object;
    object.kind = OBJ_BITMAP;
    object.bitmap = {0, std::max(width, 1), std::max(height, 1), std::max(width, 1) * 4, 1, 32, nullptr};
    return Make<HBITMAP>(object);
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
    HBRUSH& brush = State().systemBrushes[index];
    if (!brush)
    {
        brush = MakeBrush(GetSysColor(index));
        ObjectOf(brush)->stock = true;
    }
    return brush;
}

// --------------------------------------------------------------------------------------------------------------- text

BOOL GetTextMetricsA(HDC dc, LPTEXTMETRICA metrics)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (!found)
        return FALSE;
    const auto font = static_cast<HFONT>(found->font);
    const FontMetrics& source = MetricsOf(font);
    const LOGFONTA& logFont = LogFontOf(font);
    *metrics = {};
    metrics->tmHeight = source.height;
    metrics->tmAscent = source.ascent;
    metrics->tmDescent = source.height - source.ascent;
    metrics->tmInternalLeading = source.internalLeading;
    metrics->tmExternalLeading = source.externalLeading;
    metrics->tmAveCharWidth = source.averageWidth;
    metrics->tmMaxCharWidth = source.maximumWidth;
    metrics->tmWeight = logFont.lfWeight ? logFont.lfWeight : FW_NORMAL;
    metrics->tmDigitizedAspectX = 96;
    metrics->tmDigitizedAspectY = 96;
    metrics->tmFirstChar = 0x20;
    metrics->tmLastChar = 0xFF;
    metrics->tmDefaultChar = 0x1F;
    metrics->tmBreakChar = 0x20;
    metrics->tmItalic = logFont.lfItalic;
    metrics->tmUnderlined = logFont.lfUnderline;
    metrics->tmStruckOut = logFont.lfStrikeOut;
    metrics->tmPitchAndFamily = FF_SWISS | TMPF_FIXED_PITCH; // The bit is set for a variable pitch.
    metrics->tmCharSet = logFont.lfCharSet == DEFAULT_CHARSET ? ANSI_CHARSET : logFont.lfCharSet;
    return TRUE;
}

int GetTextFaceA(HDC dc, int size, LPSTR name)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (!found)
        return 0;
    const std::string_view face = LogFontOf(static_cast<HFONT>(found->font)).lfFaceName;
    if (!name)
        return static_cast<int>(face.size()) + 1;
    return CopyText(face, name, static_cast<std::size_t>(std::max(size, 0))) + 1;
}

BOOL GetTextExtentPoint32A(HDC dc, LPCSTR text, int length, LPSIZE size)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (!found || length < 0)
        return FALSE;
    const FontMetrics& metrics = MetricsOf(static_cast<HFONT>(found->font));
    *size = {TextWidth(metrics, View(text, length)), metrics.height};
    if (length == 0)
        size->cy = metrics.height;
    return TRUE;
}

BOOL GetTextExtentPointA(HDC dc, LPCSTR text, int length, LPSIZE size)
{
    return GetTextExtentPoint32A(dc, text, length, size);
}

BOOL GetTextExtentExPointA(HDC dc, LPCSTR text, int length, int maxExtent, LPINT fit, LPINT extents, LPSIZE size)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (!found || length < 0)
        return FALSE;
    const FontMetrics& metrics = MetricsOf(static_cast<HFONT>(found->font));
    int fitting = 0;
    for (int i = 0; i < length; ++i)
    {
        const int extent = TextWidth(metrics, View(text, i + 1));
        if (fit && extent > maxExtent)
            break;
        if (extents)
            extents[i] = extent;
        fitting = i + 1;
    }
    if (fit)
        *fit = fitting;
    *size = {TextWidth(metrics, View(text, length)), metrics.height};
    return TRUE;
}

BOOL GetCharWidth32A(HDC dc, UINT first, UINT last, LPINT widths)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (!found)
        return FALSE;
    const FontMetrics& metrics = MetricsOf(static_cast<HFONT>(found->font));
    for (UINT c = first; c <= last; ++c)
        *widths++ = c < 256 ? metrics.widths[c] : metrics.doubleByteWidth;
    return TRUE;
}

BOOL TextOutA(HDC dc, int x, int y, LPCSTR text, int length)
{
    return ExtTextOutA(dc, x, y, 0, nullptr, text, static_cast<UINT>(length), nullptr);
}

BOOL ExtTextOutA(HDC dc, int x, int y, UINT, const RECT*, LPCSTR text, UINT length, const INT*)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (found && text && length)
        NoteText(*found, x, y, std::string_view(text, length));
    return found != nullptr;
}

namespace
{
// The lines that DrawText breaks a text into.
std::vector<std::string_view> BreakLines(const FontMetrics& metrics, std::string_view text, int width, UINT format)
{
    if (format & DT_SINGLELINE)
        return {text};
    std::vector<std::string_view> lines;
    while (!text.empty())
    {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        std::string_view paragraph = text.substr(0, end);
        const bool crlf = text.substr(end, 2) == "\r\n";
        text.remove_prefix(std::min(end + (crlf ? 2 : 1), text.size()));
        do
        {
            std::size_t fitting = paragraph.size();
            if ((format & DT_WORDBREAK) && TextWidth(metrics, paragraph) > width)
            {
                std::size_t space = paragraph.find(' ');
                fitting = std::min(space, paragraph.size());
                while (space != std::string_view::npos && TextWidth(metrics, paragraph.substr(0, space)) <= width)
                {
                    fitting = space;
                    space = paragraph.find(' ', space + 1);
                }
            }
            lines.push_back(paragraph.substr(0, fitting));
            paragraph.remove_prefix(std::min(paragraph.find_first_not_of(' ', fitting), paragraph.size()));
        } while (!paragraph.empty());
    }
    return lines;
}
} // namespace

int DrawTextA(HDC dc, LPCSTR text, int length, LPRECT rect, UINT format)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (!found || !text)
        return 0;
    const FontMetrics& metrics = MetricsOf(static_cast<HFONT>(found->font));
    std::string shown(View(text, length));
    if (!(format & DT_NOPREFIX))
        shown = WithoutMnemonic(shown);
    const auto lines = BreakLines(metrics, shown, rect->right - rect->left, format);
    const int lineHeight = metrics.height + (format & DT_EXTERNALLEADING ? metrics.externalLeading : 0);
    int height = static_cast<int>(lines.size()) * lineHeight;
    int widest = 0;
    for (std::string_view line : lines)
        widest = std::max(widest, TextWidth(metrics, line));
    if (format & DT_CALCRECT)
    {
        rect->right = rect->left + widest;
        rect->bottom = rect->top + height;
        return height;
    }
    int y = rect->top;
    if (format & DT_SINGLELINE)
    {
        const int room = rect->bottom - rect->top - height;
        y += format & DT_VCENTER ? room / 2 : format & DT_BOTTOM ? room : 0;
    }
    for (std::string_view line : lines)
    {
        const int room = rect->right - rect->left - TextWidth(metrics, line);
        NoteText(*found, rect->left + (format & DT_CENTER ? room / 2 : format & DT_RIGHT ? room : 0), y, line);
        y += lineHeight;
    }
    return y - rect->top;
}

namespace
{
// Width of a text whose tabs go to the given stops, as TabbedTextOut counts them.
int TabbedWidth(const FontMetrics& metrics, std::string_view text, int count, const INT* tabs)
{
    const int standard = count == 1 && tabs ? tabs[0] : 8 * metrics.averageWidth;
    int x = 0;
    while (!text.empty())
    {
        const std::size_t end = std::min(text.find('\t'), text.size());
        x += TextWidth(metrics, text.substr(0, end));
        if (end == text.size())
            break;
        int next = (x / std::max(standard, 1) + 1) * standard;
        if (count > 1 && tabs)
        {
            const INT* stop = std::find_if(tabs, tabs + count, [=](INT tab) { return tab > x; });
            next = stop != tabs + count ? *stop : x + TextWidth(metrics, " ");
        }
        x = next;
        text.remove_prefix(end + 1);
    }
    return x;
}
} // namespace

LONG TabbedTextOutA(HDC dc, int x, int y, LPCSTR text, int length, int count, const INT* tabs, int)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (!found)
        return 0;
    NoteText(*found, x, y, View(text, length));
    return static_cast<LONG>(GetTabbedTextExtentA(dc, text, length, count, tabs));
}

DWORD GetTabbedTextExtentA(HDC dc, LPCSTR text, int length, int count, const INT* tabs)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (!found)
        return 0;
    const FontMetrics& metrics = MetricsOf(static_cast<HFONT>(found->font));
    return static_cast<DWORD>(MAKELONG(TabbedWidth(metrics, View(text, length), count, tabs), metrics.height));
}

// ------------------------------------------------------------------------------------------------------------ drawing
// Nothing is drawn: a good device context is all that these check.

int FillRect(HDC dc, const RECT*, HBRUSH) { return Drawn(dc); }
int FrameRect(HDC dc, const RECT*, HBRUSH) { return Drawn(dc); }
BOOL InvertRect(HDC dc, const RECT*) { return Drawn(dc); }
BOOL DrawFocusRect(HDC dc, const RECT*) { return Drawn(dc); }

BOOL DrawEdge(HDC dc, LPRECT rect, UINT edge, UINT flags)
{
    if (flags & BF_ADJUST)
    {
        const bool outer = (edge & (BDR_RAISEDOUTER | BDR_SUNKENOUTER)) != 0;
        const bool inner = (edge & (BDR_RAISEDINNER | BDR_SUNKENINNER)) != 0;
        const int width = outer + inner;
        rect->left += flags & BF_LEFT ? width : 0;
        rect->top += flags & BF_TOP ? width : 0;
        rect->right -= flags & BF_RIGHT ? width : 0;
        rect->bottom -= flags & BF_BOTTOM ? width : 0;
    }
    return Drawn(dc);
}

BOOL DrawFrameControl(HDC dc, LPRECT, UINT, UINT) { return Drawn(dc); }
BOOL Rectangle(HDC dc, int, int, int, int) { return Drawn(dc); }
BOOL RoundRect(HDC dc, int, int, int, int, int, int) { return Drawn(dc); }
BOOL Ellipse(HDC dc, int, int, int, int) { return Drawn(dc); }
BOOL Polygon(HDC dc, const POINT*, int count) { return Drawn(dc) && count >= 2; }
BOOL Polyline(HDC dc, const POINT*, int count) { return Drawn(dc) && count >= 2; }

BOOL MoveToEx(HDC dc, int x, int y, LPPOINT previous)
{
    Dc* found = DcOf(dc);
    if (!found)
        return FALSE;
    if (previous)
        *previous = found->position;
    found->position = {x, y};
    return TRUE;
}

BOOL LineTo(HDC dc, int x, int y) { return MoveToEx(dc, x, y, nullptr); }
COLORREF SetPixel(HDC dc, int, int, COLORREF color) { return Drawn(dc) ? color : CLR_INVALID; }

BOOL BitBlt(HDC target, int, int, int, int, HDC source, int, int, DWORD operation)
{
    const bool needsSource = operation != BLACKNESS && operation != WHITENESS && operation != DSTINVERT &&
                             operation != PATCOPY && operation != PATINVERT;
    return Drawn(target) && (!needsSource || Drawn(source));
}

BOOL PatBlt(HDC dc, int, int, int, int, DWORD) { return Drawn(dc); }
int IntersectClipRect(HDC dc, int, int, int, int) { return Drawn(dc) ? 2 : 0; } // SIMPLEREGION
int ExcludeClipRect(HDC dc, int, int, int, int) { return Drawn(dc) ? 3 : 0; }   // COMPLEXREGION
BOOL GdiFlush() { return TRUE; }
