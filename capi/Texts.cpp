#include "capi/Texts.h"

#include "afx/System.h"

size_t FittingBytes(std::string_view text, size_t size, UINT page)
{
    if (text.size() < size)
        return text.size();
    if (size == 0)
        return 0;
    size_t end = size - 1;
    if (page == CP_UTF8)
    {
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) // inside of a character
            --end;
        return end;
    }
    const CString whole(text.data(), static_cast<int>(text.size()));
    size_t fitting = 0;
    while (fitting < end)
    {
        const auto bytes = static_cast<size_t>(AfxCharLength(static_cast<LPCSTR>(whole) + fitting, page));
        if (fitting + bytes > end)
            break;
        fitting += bytes;
    }
    return fitting;
}

int CopyOut(std::string_view text, char* buffer, int size, UINT page)
{
    if (buffer != nullptr && size > 0)
    {
        const size_t fitting = FittingBytes(text, static_cast<size_t>(size), page);
        std::memcpy(buffer, text.data(), fitting);
        buffer[fitting] = '\0';
    }
    return static_cast<int>(text.size()) + 1;
}
