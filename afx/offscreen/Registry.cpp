// A registry that tests fill; it can be read only. And the expansion of names of the environment in its texts.

#include "afx/offscreen/Internal.h"

#include <cstdlib>
#include <cstring>
#include <map>

namespace offscreen
{
namespace
{
// Names of keys and values are found whatever their case.
std::string Folded(std::string_view name)
{
    std::string folded(name);
    for (char& c : folded)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c | 0x20);
    return folded;
}

struct Value
{
    std::string text;
    DWORD type;
};
using Values = std::map<std::string, Value>;

struct RegistryState
{
    std::map<std::string, Values> keys; // By root and path, in lower case
    HandleTable<std::string> open{6};   // The path of each open key
};

RegistryState& State()
{
    static auto* state = new RegistryState;
    return *state;
}

bool IsRoot(HKEY key)
{
    return key == HKEY_CLASSES_ROOT || key == HKEY_CURRENT_USER || key == HKEY_LOCAL_MACHINE || key == HKEY_USERS;
}

std::string PathOf(HKEY key)
{
    if (IsRoot(key))
        return std::to_string(reinterpret_cast<std::uintptr_t>(key) & 0xFF);
    const std::string* path = State().open.Find(key);
    return path ? *path : std::string();
}

std::string Below(const std::string& path, LPCSTR subKey)
{
    return subKey && *subKey ? path + "\\" + Folded(subKey) : path;
}

// A key exists when it has values or another key below it has.
bool Exists(const std::string& path)
{
    const auto it = State().keys.lower_bound(path);
    return it != State().keys.end() && (it->first == path || it->first.starts_with(path + "\\"));
}
} // namespace

void SetRegistryValue(HKEY root, const char* subKey, const char* name, const char* value, DWORD type)
{
    State().keys[Below(PathOf(root), subKey)][Folded(name ? name : "")] = {value, type};
}

void ClearRegistry() { State().keys.clear(); }

void ResetRegistry()
{
    State().keys.clear();
    State().open.Clear();
}

int CountKeys() { return State().open.Count(); }
} // namespace offscreen

using namespace offscreen;

LSTATUS RegOpenKeyExA(HKEY key, LPCSTR subKey, DWORD, REGSAM, PHKEY result)
{
    Inside inside;
    const std::string parent = PathOf(key);
    if (parent.empty())
        return ERROR_INVALID_HANDLE;
    const std::string path = Below(parent, subKey);
    if (!(IsRoot(key) && path == parent) && !Exists(path))
        return ERROR_FILE_NOT_FOUND;
    *result = State().open.Add<HKEY>(std::make_unique<std::string>(path));
    return ERROR_SUCCESS;
}

LSTATUS RegQueryValueExA(HKEY key, LPCSTR name, LPDWORD, LPDWORD type, LPBYTE data, LPDWORD size)
{
    Inside inside;
    const std::string path = PathOf(key);
    if (path.empty())
        return ERROR_INVALID_HANDLE;
    const auto values = State().keys.find(path);
    if (values == State().keys.end())
        return ERROR_FILE_NOT_FOUND;
    const auto value = values->second.find(Folded(name ? name : ""));
    if (value == values->second.end())
        return ERROR_FILE_NOT_FOUND;
    if (type)
        *type = value->second.type;
    const std::string& text = value->second.text;
    const auto needed = static_cast<DWORD>(text.size() + 1);
    const DWORD room = size ? *size : 0;
    if (size)
        *size = needed;
    if (!data)
        return ERROR_SUCCESS;
    if (room < needed)
        return ERROR_MORE_DATA;
    std::memcpy(data, text.c_str(), needed);
    return ERROR_SUCCESS;
}

LSTATUS RegCloseKey(HKEY key)
{
    Inside inside;
    if (IsRoot(key))
        return ERROR_SUCCESS;
    return State().open.Remove(key) ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

// A name that the environment does not have stays as it stands.
DWORD ExpandEnvironmentStringsA(LPCSTR source, LPSTR target, DWORD size)
{
    Inside inside;
    std::string expanded;
    for (std::string rest = source; !rest.empty();)
    {
        const std::size_t first = rest.find('%');
        const std::size_t last = first == std::string::npos ? first : rest.find('%', first + 1);
        const char* value =
            last == std::string::npos ? nullptr : std::getenv(rest.substr(first + 1, last - first - 1).c_str());
        const std::size_t taken = value ? last + 1 : last;
        expanded += value ? rest.substr(0, first) + value : rest.substr(0, taken);
        rest.erase(0, taken);
    }
    const auto needed = static_cast<DWORD>(expanded.size() + 1);
    if (needed <= size)
        std::memcpy(target, expanded.c_str(), needed);
    return needed;
}
