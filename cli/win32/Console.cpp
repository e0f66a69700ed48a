#include "cli/Console.h"

#include <algorithm>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

namespace
{
HANDLE HandleOf(std::FILE* stream) { return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream))); }

bool IsConsole(std::FILE* stream)
{
    DWORD mode;
    return GetConsoleMode(HandleOf(stream), &mode) != 0;
}

std::wstring Wide(const std::string& text)
{
    const int size = static_cast<int>(text.size());
    std::wstring wide(static_cast<size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Utf8(const std::wstring& text)
{
    const int size = static_cast<int>(text.size());
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(), length, nullptr, nullptr);
    return utf8;
}
} // namespace

void UseBinaryStreams()
{
    for (std::FILE* stream : {stdin, stdout, stderr})
        _setmode(_fileno(stream), _O_BINARY);
}

void Write(std::FILE* stream, const std::string& text)
{
    if (!IsConsole(stream))
    {
        std::fwrite(text.data(), 1, text.size(), stream);
        return;
    }
    constexpr size_t kMost = 8192; // characters that a console surely takes at once
    const std::wstring wide = Wide(text);
    for (size_t done = 0; done < wide.size(); done += kMost)
    {
        const auto count = static_cast<DWORD>(std::min(kMost, wide.size() - done));
        DWORD written;
        WriteConsoleW(HandleOf(stream), wide.data() + done, count, &written, nullptr);
    }
}

bool IsTerminal(std::FILE* stream) { return IsConsole(stream); }

std::vector<std::string> Arguments(int, char**)
{
    int count = 0;
    wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 0; i < count; ++i)
        arguments.push_back(Utf8(wide[i]));
    LocalFree(wide);
    return arguments;
}
