// The wizards' narrow texts are in the code page of their language, the host's own in UTF-8.
#pragma once

#include "afx/CodePage.h"

#include <string>

inline std::string ToUtf8(LPCSTR text, UINT page)
{
    const CWideText wide(text, -1, page);
    return static_cast<LPCSTR>(AfxNarrow(wide, wide.GetLength(), CP_UTF8));
}

/// A character that the page lacks becomes a question mark.
inline CString FromUtf8(const std::string& text, UINT page)
{
    const CWideText wide(text.c_str(), -1, CP_UTF8);
    return AfxNarrow(wide, wide.GetLength(), page);
}
