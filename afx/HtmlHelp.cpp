#include "afx/HtmlHelp.h"

#include <cctype>

namespace
{

constexpr char kRegisteredServer[] = "CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";
constexpr char kControlFile[] = "hhctrl.ocx";
constexpr UINT_PTR kEntryOrdinal = 14;

constexpr UINT kShowDefaultTopic = 0;
constexpr UINT kShowTopicByNumber = 15;

constexpr DWORD kLongestPath = 260;

// Reads where the system has registered the control. Returns the type of the value; REG_NONE when there is none.
DWORD ReadRegistered(char (&path)[kLongestPath + 1])
{
    HKEY key;
    if (::RegOpenKeyExA(HKEY_CLASSES_ROOT, kRegisteredServer, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return REG_NONE;
    DWORD type = REG_NONE;
    DWORD size = kLongestPath;
    const LSTATUS status = ::RegQueryValueExA(key, nullptr, nullptr, &type, reinterpret_cast<LPBYTE>(path), &size);
    ::RegCloseKey(key);
    return status == ERROR_SUCCESS && *path ? type : REG_NONE;
}

// Loads the control from where the system has registered it; null when it is not registered there.
HMODULE LoadRegisteredControl()
{
    char path[kLongestPath + 1] = ""; // a registered text need not be terminated
    const DWORD type = ReadRegistered(path);
    if (type == REG_SZ)
        return ::LoadLibraryA(path);
    if (type != REG_EXPAND_SZ)
        return nullptr;
    char expanded[kLongestPath + 1];
    const DWORD length = ::ExpandEnvironmentStringsA(path, expanded, sizeof expanded);
    return length > 0 && length <= sizeof expanded ? ::LoadLibraryA(expanded) : nullptr;
}

// While it lives, the drive that a path names is the current one. A path without a drive letter changes nothing.
class CDriveScope
{
public:
    explicit CDriveScope(LPCSTR path)
    {
        const unsigned char letter = static_cast<unsigned char>(path[0]);
        if (!std::isalpha(letter) || path[1] != ':')
            return;
        m_previous = ::_getdrive();
        ::_chdrive(std::toupper(letter) - 'A' + 1);
    }
    ~CDriveScope()
    {
        if (m_previous)
            ::_chdrive(m_previous);
    }
    CDriveScope(const CDriveScope&) = delete;
    CDriveScope& operator=(const CDriveScope&) = delete;

private:
    int m_previous = 0; // 1 is A
};

} // namespace

void AfxHtmlHelp(LPCSTR path, UINT topic)
{
    static CHtmlHelpControl control;
    control.Show(path, topic);
}

void CHtmlHelpControl::Show(LPCSTR path, UINT topic)
{
    if (!Load())
        return;
    const CDriveScope drive(path);
    m_entryPoint(nullptr, path, topic ? kShowTopicByNumber : kShowDefaultTopic, topic);
}

bool CHtmlHelpControl::Load()
{
    if (m_entryPoint || m_isUnavailable)
        return !m_isUnavailable;
    HMODULE library = LoadRegisteredControl();
    if (!library)
        library = ::LoadLibraryA(kControlFile);
    if (library)
        m_entryPoint = reinterpret_cast<EntryPoint>(
            reinterpret_cast<void*>(::GetProcAddress(library, reinterpret_cast<LPCSTR>(kEntryOrdinal))));
    m_isUnavailable = !m_entryPoint;
    if (library && m_isUnavailable)
        ::FreeLibrary(library);
    return !m_isUnavailable;
}
