// The wizard object's language library, dialog font and help path.
#include "core/FunWizard.h"
#include "core/Memory.h"
#include "core/OpenWizard.h"
#include "core/ResourceScope.h"

#include "afx/System.h"
#include "resources/resource.h"

namespace
{

struct SLanguage
{
    int index;
    LPCSTR file;
};

constexpr SLanguage kLanguages[] = {
    {0, "PlxRcEnu.DLL"}, {1, "PlxRcJpn.DLL"}, {2, "PlxRcChs.DLL"}, {3, "PlxRcCht.DLL"},
    {4, "PlxRcKor.DLL"}, {5, "PlxRcEsp.DLL"}, {6, "PlxRcIta.DLL"}, {9, "PlxRcThi.DLL"},
};

LPCSTR LanguageFile(int index)
{
    for (const SLanguage& language : kLanguages)
        if (language.index == index)
            return language.file;
    return nullptr;
}

// By full path only: a library of the same name in the current folder is somebody else's.
HINSTANCE LoadBeside(HINSTANCE module, LPCSTR file)
{
    const CString folder = AfxGetModuleFolder(module);
    return folder.IsEmpty() ? nullptr : AfxLoadLibrary(folder + file);
}

HINSTANCE LoadLanguageLibrary(LPCSTR file)
{
    const HINSTANCE library = LoadBeside(AfxGetInstanceHandle(), file);
    return library != nullptr ? library : LoadBeside(nullptr, file);
}

// A dialog font of nine points goes with base units of eight pixels.
constexpr int kPointsTimesUnits = 720;

} // namespace

HINSTANCE CFunWizard::SetLanguageInfo(int language)
{
    if (COpenWizard::IsOpen(this))
        return nullptr;
    AfxFreeLibrary(m_library);
    m_library = nullptr;
    const LPCSTR file = LanguageFile(language);
    if (file != nullptr)
        (void)WithMemory([&] { m_library = LoadLanguageLibrary(file); });
    return m_library;
}

HINSTANCE CFunWizard::GetLoadInstance() const { return m_library; }

UINT TextPageOf(HINSTANCE library) { return library != nullptr ? AfxPageOfString(library, IDS_FONT_FACE) : CP_ACP; }

UINT CFunWizard::GetTextCodePage() const
{
    const UINT page = TextPageOf(m_library);
    return page != CP_ACP ? page : ::GetACP();
}

CFont* CFunWizard::CreateDlgFont(CWnd* window)
{
    if (COpenWizard::IsOpen(this))
        return nullptr;
    FreeFont();
    const int created = RunOperation(FALSE, [=, this] {
        m_dialogFont = new CFont;
        CResourceScope scope(m_library);
        CString face;
        face.LoadString(IDS_FONT_FACE);
        const bool isThere = window != nullptr && ::IsWindow(window->GetSafeHwnd());
        CClientDC dc(isThere ? window : nullptr); // the screen's for null
        return m_dialogFont->CreatePointFont(kPointsTimesUnits / LOWORD(AfxGetDialogBaseUnits()), face, &dc);
    });
    if (!created)
        FreeFont();
    return m_dialogFont;
}

namespace
{

bool Contains(const int* ids, int id)
{
    if (ids == nullptr || id == 0)
        return false;
    while (*ids != 0 && *ids != id)
        ids++;
    return *ids != 0;
}

void GiveFont(HWND window, HFONT font) { ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE); }

} // namespace

void CFunWizard::SetDlgFont(CWnd* dialog, unsigned char skipDialog, int* excludedIds)
{
    if (m_dialogFont == nullptr || dialog == nullptr)
        return;
    // By handles: no object is needed for each child, and so no memory.
    const HWND window = dialog->GetSafeHwnd();
    if (!skipDialog)
        GiveFont(window, *m_dialogFont);
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        if (!Contains(excludedIds, ::GetDlgCtrlID(child)))
            GiveFont(child, *m_dialogFont);
}

void CFunWizard::DeleteDlgFont()
{
    if (!COpenWizard::IsOpen(this))
        FreeFont();
}

void CFunWizard::FreeFont()
{
    delete m_dialogFont;
    m_dialogFont = nullptr;
}

void CFunWizard::SetHelpPath(const char* path)
{
    if (path == nullptr)
        m_helpPath.Empty();
    else
        (void)WithMemory([=, this] { m_helpPath = path; });
}

CString CFunWizard::GetHelpPath() const
{
    CString path;
    (void)WithMemory([&] { path = m_helpPath; });
    return path;
}
