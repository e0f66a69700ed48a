#include "afx/CodePage.h"

#include "afx/ThreadState.h"
#include "afx/afx.h"

#include <cstring>
#include <utility>

namespace
{

int Length(LPCSTR text) { return text ? static_cast<int>(std::strlen(text)) : 0; }

LPWSTR IntResource(UINT id) { return reinterpret_cast<LPWSTR>(static_cast<UINT_PTR>(id)); }

// So that a character which the page lacks becomes a question mark, not another one that looks like it: a digit of full
// width is no digit. UTF-8 lacks none, and takes no flags.
DWORD NarrowingFlags(UINT page) { return (page == CP_ACP ? ::GetACP() : page) == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS; }

BOOL CALLBACK TakeLanguage(HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR taken)
{
    *reinterpret_cast<WORD*>(taken) = language;
    return FALSE; // the first one is enough
}

} // namespace

UINT AfxGetTextPage() { return AfxThreadState().textPage; }

UINT AfxSetTextPage(UINT page) { return std::exchange(AfxThreadState().textPage, page); }

UINT AfxPageOfString(HINSTANCE module, UINT id)
{
    constexpr UINT kStringsInBlock = 16;
    WORD language = 0;
    ::EnumResourceLanguagesW(module, IntResource(6), IntResource(id / kStringsInBlock + 1), TakeLanguage,
                             reinterpret_cast<LONG_PTR>(&language));
    if (PRIMARYLANGID(language) == LANG_NEUTRAL || PRIMARYLANGID(language) == LANG_ENGLISH)
        return CP_ACP;
    DWORD page = CP_ACP;
    ::GetLocaleInfoW(MAKELCID(language, SORT_DEFAULT), LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                     reinterpret_cast<LPWSTR>(&page), sizeof page / sizeof(WCHAR));
    return ::IsValidCodePage(page) ? page : CP_ACP;
}

// ---- Wide texts -----------------------------------------------------------------------------------------------------

CWideBuffer::CWideBuffer(int size)
    : m_text(size <= kBrief ? m_brief
                            : reinterpret_cast<LPWSTR>(m_long.GetBuffer(size * static_cast<int>(sizeof(WCHAR)))))
{
    m_text[0] = 0;
}

// A narrow text has at least as many bytes as the wide one has characters.
CWideText::CWideText(LPCSTR text, int length, UINT page)
    : m_isNull(!text), m_length(length < 0 ? Length(text) : length), m_buffer(m_length + 1)
{
    if (m_length > 0)
        m_length = ::MultiByteToWideChar(page, 0, text, m_length, m_buffer.Get(), m_length);
    m_buffer.Get()[m_length] = 0;
}

// ---- Narrow texts ---------------------------------------------------------------------------------------------------

CString AfxNarrow(LPCWSTR text, int length, UINT page)
{
    constexpr int kMostBytes = 3; // of a character: the system's page may be UTF-8
    CString narrow;
    const int capacity = length * kMostBytes;
    const int used = length > 0 ? ::WideCharToMultiByte(page, NarrowingFlags(page), text, length,
                                                        narrow.GetBuffer(capacity), capacity, nullptr, nullptr)
                                : 0;
    narrow.ReleaseBuffer(used);
    return narrow;
}

int AfxNarrow(LPCWSTR text, int length, LPSTR buffer, int size)
{
    const UINT page = AfxGetTextPage();
    const DWORD flags = NarrowingFlags(page);
    int used = 0;
    for (int i = 0; i < length; ++i)
    {
        char character[4];
        const int bytes =
            ::WideCharToMultiByte(page, flags, text + i, 1, character, sizeof character, nullptr, nullptr);
        if (used + bytes >= size)
            break;
        std::memcpy(buffer + used, character, bytes);
        used += bytes;
    }
    if (size > 0)
        buffer[used] = '\0';
    return used;
}

BOOL AfxShows(const CWnd* window, LPCSTR text)
{
    const CWideText expected(text);
    const int length = ::GetWindowTextLengthW(window->m_hWnd);
    if (length != expected.GetLength())
        return FALSE;
    const CWideBuffer shown(length + 1);
    ::GetWindowTextW(window->m_hWnd, shown.Get(), length + 1);
    return std::memcmp(shown.Get(), static_cast<LPCWSTR>(expected), static_cast<size_t>(length) * sizeof(WCHAR)) == 0;
}
