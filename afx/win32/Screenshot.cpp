#include "afx/Screenshot.h"

#include <string>

namespace
{
// The few functions of GDI+ that save a picture. They are looked up when they are needed, so that nobody else has to
// load the library.
class CGdiPlus
{
public:
    CGdiPlus();
    ~CGdiPlus();
    CGdiPlus(const CGdiPlus&) = delete;
    CGdiPlus& operator=(const CGdiPlus&) = delete;

    bool SavePng(HBITMAP bitmap, const wchar_t* path) const;

private:
    struct SStartupInput
    {
        UINT32 version;
        void* debugCallback;
        BOOL suppressBackgroundThread;
        BOOL suppressExternalCodecs;
    };

    template <typename F>
    bool Find(F& function, LPCSTR name) const
    {
        // By way of void*: the compiler knows nothing about the function behind the name.
        function = reinterpret_cast<F>(reinterpret_cast<void*>(GetProcAddress(m_library, name)));
        return function != nullptr;
    }

    HMODULE m_library;
    ULONG_PTR m_token = 0;
    int(WINAPI* m_startup)(ULONG_PTR*, const SStartupInput*, void*) = nullptr;
    void(WINAPI* m_shutdown)(ULONG_PTR) = nullptr;
    int(WINAPI* m_fromBitmap)(HBITMAP, HPALETTE, void**) = nullptr;
    int(WINAPI* m_save)(void*, const wchar_t*, const GUID*, const void*) = nullptr;
    int(WINAPI* m_dispose)(void*) = nullptr;
};

// From the system's folder: a library of the same name beside the program or in the current folder is somebody else's.
HMODULE LoadSystemLibrary(LPCSTR name)
{
    char folder[MAX_PATH];
    const UINT length = GetSystemDirectoryA(folder, sizeof folder);
    return length > 0 && length < sizeof folder ? LoadLibraryA(std::string(folder).append("\\").append(name).c_str())
                                                : nullptr;
}

CGdiPlus::CGdiPlus() : m_library(LoadSystemLibrary("gdiplus.dll"))
{
    if (m_library == nullptr)
        return;
    const bool complete = Find(m_startup, "GdiplusStartup") && Find(m_shutdown, "GdiplusShutdown") &&
                          Find(m_fromBitmap, "GdipCreateBitmapFromHBITMAP") && Find(m_save, "GdipSaveImageToFile") &&
                          Find(m_dispose, "GdipDisposeImage");
    const SStartupInput input = {1, nullptr, FALSE, FALSE};
    if (!complete || m_startup(&m_token, &input, nullptr) != 0)
        m_token = 0;
}

CGdiPlus::~CGdiPlus()
{
    if (m_token != 0)
        m_shutdown(m_token);
    if (m_library != nullptr)
        FreeLibrary(m_library);
}

bool CGdiPlus::SavePng(HBITMAP bitmap, const wchar_t* path) const
{
    constexpr GUID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    void* image = nullptr;
    if (m_token == 0 || m_fromBitmap(bitmap, nullptr, &image) != 0)
        return false;
    const bool saved = m_save(image, path, &kPngEncoder, nullptr) == 0;
    m_dispose(image);
    return saved;
}

// Windows are painted when nothing else is to be done; a dialog that is driven from inside never comes to that.
void Paint(HWND window)
{
    ShowWindow(window, SW_SHOWNORMAL);
    SetForegroundWindow(window);
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    MSG message;
    while (PeekMessageA(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE))
        DispatchMessageA(&message);
    GdiFlush();
}

HBITMAP CopyPicture(HWND window)
{
    RECT rect;
    GetWindowRect(window, &rect);
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;

    HDC source = GetWindowDC(window);
    HDC target = CreateCompatibleDC(source);
    HBITMAP bitmap = CreateCompatibleBitmap(source, width, height);
    HGDIOBJ before = SelectObject(target, bitmap);
    BitBlt(target, 0, 0, width, height, source, 0, 0, SRCCOPY);
    SelectObject(target, before);
    DeleteDC(target);
    ReleaseDC(window, source);
    return bitmap;
}

std::wstring Widen(LPCSTR text)
{
    std::wstring wide(static_cast<size_t>(MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text, -1, wide.data(), static_cast<int>(wide.size()));
    return wide;
}
} // namespace

BOOL AfxSaveScreenshot(HWND window, LPCSTR pngPath)
{
    if (!IsWindow(window) || pngPath == nullptr)
        return FALSE;
    Paint(window);
    HBITMAP bitmap = CopyPicture(window);
    const BOOL saved = CGdiPlus().SavePng(bitmap, Widen(pngPath).c_str());
    DeleteObject(bitmap);
    return saved;
}
