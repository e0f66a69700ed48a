// Texts that pass the C interface.
#pragma once

#include "afx/CodePage.h"

#include <algorithm>
#include <cstring>
#include <string_view>

/// A UTF-8 text in a code page.
inline CString FromUtf8(const char* text, UINT page)
{
    const CWideText wide(text, -1, CP_UTF8);
    return AfxNarrow(wide, wide.GetLength(), page);
}

/// A text of a code page in UTF-8.
inline CString ToUtf8(const char* text, UINT page)
{
    const CWideText wide(text, -1, page);
    return AfxNarrow(wide, wide.GetLength(), CP_UTF8);
}

/// How many bytes of a text fit into `size`, whole characters. A text of UTF-8 when `page` is CP_UTF8.
size_t FittingBytes(std::string_view text, size_t size, UINT page);

/// Copies what fits into `size` bytes with its terminator; returns what all of it needs.
int CopyOut(std::string_view text, char* buffer, int size, UINT page);

/// The same for a member of a structure, in UTF-8. The rest of it is 0.
template <size_t size>
void CopyTo(char (&member)[size], std::string_view text)
{
    std::memset(member, 0, size);
    CopyOut(text, member, static_cast<int>(size), CP_UTF8);
}
