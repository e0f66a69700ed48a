// The wizard object's language library, dialog font and help path.
#include "core/FunWizard.h"
#include "core/Memory.h"
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
HINSTANCE LoadLanguageLibrary(LPCSTR file)
{
    const HINSTANCE library = AfxLoadLibrary(AfxGetModuleFolder(AfxGetInstanceHandle()) + file);
    return library != nullptr ? library : AfxLoadLibrary(AfxGetModuleFolder(nullptr) + file);
}

// A dialog font of nine points goes with base units of eight pixels.
constexpr int kPointsTimesUnits = 720;

} // namespace

HINSTANCE CFunWizard::SetLanguageInfo(int language)
{
    AfxFreeLibrary(m_library);
    m_library = nullptr;
    const LPCSTR file = LanguageFile(language);
    if (file != nullptr)
        (void)WithMemory([&] { m_library = LoadLanguageLibrary(file); });
    return m_library;
}

HINSTANCE CFunWizard::GetLoadInstance() const { return m_library; }

CFont* CFunWizard::CreateDlgFont(CWnd* window)
{
    DeleteDlgFont();
    const int tenthsOfPoint = kPointsTimesUnits / LOWORD(AfxGetDialogBaseUnits());
    CDC* dc = window != nullptr ? window->GetDC() : nullptr;
    const int made = WithMemory([&] {
        m_dialogFont = new CFont;
        CResourceScope scope(m_library);
        CString face;
        face.LoadString(IDS_FONT_FACE);
        if (!m_dialogFont->CreatePointFont(tenthsOfPoint, face, dc))
            DeleteDlgFont();
    });
    if (!made)
        DeleteDlgFont();
    if (dc != nullptr)
        window->ReleaseDC(dc);
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

} // namespace

void CFunWizard::SetDlgFont(CWnd* dialog, unsigned char skipDialog, int* excludedIds)
{
    if (m_dialogFont == nullptr || dialog == nullptr)
        return;
    if (!skipDialog)
        dialog->SetFont(m_dialogFont, TRUE);
    for (CWnd* child = dialog->GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
        if (!Contains(excludedIds, child->GetDlgCtrlID()))
            child->SetFont(m_dialogFont, TRUE);
}

void CFunWizard::DeleteDlgFont()
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

CString CFunWizard::GetHelpPath() const { return m_helpPath; }
