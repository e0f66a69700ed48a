// Modules (LoadLibrary and its relatives) and their resources.

#include "afx/offscreen/PeImage.h"

#include <dirent.h>
#include <dlfcn.h>
#include <strings.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// The resources of the module itself, a PE image.
extern "C" const unsigned char g_moduleImage[];
extern "C" const unsigned char g_moduleImageEnd[];

namespace offscreen
{
namespace
{
struct Module
{
    HMODULE handle = nullptr;
    std::string path;
    std::vector<BYTE> file;
    PeImage image;
    std::vector<Export> exports;
    int references = 1;
};

struct Library
{
    std::string name;
    std::vector<Export> exports;
};

struct ModuleState
{
    HandleTable<Module> modules{3};
    Module* own = nullptr; // The one that this code is in: a shared library, or the program itself
    std::vector<Library> libraries;
    int attempts = 0;
};

std::string ExecutablePath()
{
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

// Of the file that holds the module's own resources.
std::string OwnPath()
{
    Dl_info info = {};
    char path[PATH_MAX];
    const bool isKnown = dladdr(g_moduleImage, &info) != 0 && info.dli_fname && realpath(info.dli_fname, path);
    return isKnown ? path : ExecutablePath();
}

ModuleState& State()
{
    static auto* state = [] {
        auto* made = new ModuleState;
        const auto handle = made->modules.Add<HMODULE>(std::make_unique<Module>());
        made->own = made->modules.Find(handle);
        made->own->handle = handle;
        made->own->path = OwnPath();
        made->own->image = PeImage(g_moduleImage, static_cast<std::size_t>(g_moduleImageEnd - g_moduleImage));
        return made;
    }();
    return *state;
}

// Without a handle the module itself is meant.
Module* ModuleOf(HMODULE handle)
{
    ModuleState& state = State();
    Module* module = handle ? state.modules.Find(handle) : state.own;
    if (!module)
        SetLastError(ERROR_INVALID_HANDLE);
    return module;
}

std::string_view FileNameOf(std::string_view path)
{
    const std::size_t slash = path.find_last_of("/\\");
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

bool SameName(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

bool ReadFile(const std::string& path, std::vector<BYTE>& bytes)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    if (!file)
        return false;
    BYTE buffer[16384];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get()))
        bytes.insert(bytes.end(), buffer, buffer + count);
    return !std::ferror(file.get());
}

// The path as the file system spells it: names are found whatever their case. Empty when there is no such file.
std::string ExistingPath(std::string path)
{
    std::replace(path.begin(), path.end(), '\\', '/');
    if (access(path.c_str(), R_OK) == 0)
        return path;
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(folder.c_str()), closedir);
    while (directory)
    {
        const dirent* entry = readdir(directory.get());
        if (!entry)
            break;
        if (SameName(entry->d_name, FileNameOf(path)))
            return folder + entry->d_name;
    }
    return {};
}

// Where LoadLibrary looks for a file. A name without a folder is looked for beside the program only, never in the
// current folder.
std::string SearchFile(const std::string& name)
{
    if (name.find_first_of("/\\") != std::string::npos)
        return ExistingPath(name);
    const std::string program = ExecutablePath();
    return ExistingPath(program.substr(0, program.rfind('/') + 1) + name);
}

Module* FindLoaded(std::string_view path)
{
    Module* found = nullptr;
    const bool byName = path.find('/') == std::string_view::npos;
    State().modules.ForEach([&](Module& module) {
        if (SameName(byName ? FileNameOf(module.path) : std::string_view(module.path), path))
            found = &module;
    });
    return found;
}

HMODULE Keep(std::unique_ptr<Module> module)
{
    ModuleState& state = State();
    const auto handle = state.modules.Add<HMODULE>(std::move(module));
    if (Module* kept = state.modules.Find(handle))
        kept->handle = handle;
    return handle;
}

HMODULE LoadRegistered(std::string_view name)
{
    for (const Library& library : State().libraries)
    {
        if (!SameName(library.name, FileNameOf(name)))
            continue;
        if (Module* loaded = FindLoaded(library.name))
        {
            ++loaded->references;
            return loaded->handle;
        }
        auto module = std::make_unique<Module>();
        module->path = library.name;
        module->exports = library.exports;
        return Keep(std::move(module));
    }
    return nullptr;
}

HMODULE LoadFile(const std::string& name)
{
    const std::string path = SearchFile(name);
    if (path.empty())
    {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    if (Module* loaded = FindLoaded(path))
    {
        ++loaded->references;
        return loaded->handle;
    }
    auto module = std::make_unique<Module>();
    module->path = path;
    if (!ReadFile(path, module->file))
    {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    module->image = PeImage(module->file.data(), module->file.size());
    if (!module->image.IsValid())
    {
        SetLastError(ERROR_BAD_EXE_FORMAT);
        return nullptr;
    }
    return Keep(std::move(module));
}
} // namespace

Bytes FindResourceBytes(HMODULE handle, LPCWSTR name, LPCWSTR type)
{
    const Module* module = ModuleOf(handle);
    const BYTE* entry = module ? module->image.FindEntry(type, name) : nullptr;
    if (!entry)
    {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return {};
    }
    return module->image.DataOf(entry);
}

void ResetModules()
{
    ModuleState& state = State();
    state.modules.RemoveIf([&](const Module& module) { return &module != state.own; });
    state.libraries.clear();
    state.attempts = 0;
}

int CountModules() { return State().modules.Count() - 1; }

void RegisterLibrary(const char* name, const std::vector<Export>& exports)
{
    State().libraries.push_back({name, exports});
}

void ForgetLibraries() { State().libraries.clear(); }
int LoadAttempts() { return State().attempts; }
} // namespace offscreen

using namespace offscreen;

HMODULE LoadLibraryA(LPCSTR path)
{
    Inside inside;
    ModuleState& state = State();
    ++state.attempts;
    if (!path || !*path)
    {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    if (const HMODULE registered = LoadRegistered(path))
        return registered;
    return LoadFile(path);
}

BOOL FreeLibrary(HMODULE handle)
{
    Inside inside;
    Module* module = handle ? ModuleOf(handle) : nullptr;
    if (!module)
        return FALSE;
    if (module != State().own && --module->references == 0)
        State().modules.Remove(handle);
    return TRUE;
}

FARPROC GetProcAddress(HMODULE handle, LPCSTR name)
{
    Inside inside;
    const Module* module = ModuleOf(handle);
    if (module && IS_INTRESOURCE(name))
        for (const Export& exported : module->exports)
            if (exported.ordinal == LOWORD(name))
                return exported.function;
    SetLastError(ERROR_PROC_NOT_FOUND);
    return nullptr;
}

HMODULE GetModuleHandleA(LPCSTR name)
{
    Inside inside;
    if (!name)
        return State().own->handle;
    if (const Module* module = FindLoaded(name))
        return module->handle;
    SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
}

DWORD GetModuleFileNameA(HMODULE handle, LPSTR path, DWORD size)
{
    Inside inside;
    const Module* module = ModuleOf(handle);
    if (!module || size == 0)
        return 0;
    const std::string file = handle ? module->path : ExecutablePath();
    const auto copied = static_cast<DWORD>(CopyText(file, path, size));
    if (copied == file.size())
        return copied;
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return size;
}

// A resource's handle is the address of its entry in the image, as on the real system.

HRSRC FindResourceA(HMODULE handle, LPCSTR name, LPCSTR type)
{
    Inside inside;
    const Module* module = ModuleOf(handle);
    const BYTE* entry = module ? module->image.FindEntry(Widened(type), Widened(name)) : nullptr;
    if (!entry)
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return reinterpret_cast<HRSRC>(const_cast<BYTE*>(entry));
}

HGLOBAL LoadResource(HMODULE handle, HRSRC resource)
{
    Inside inside;
    const Module* module = ModuleOf(handle);
    if (!module || !resource)
        return nullptr;
    return const_cast<BYTE*>(module->image.DataOf(reinterpret_cast<const BYTE*>(resource)).data);
}

LPVOID LockResource(HGLOBAL data) { return data; }

BOOL EnumResourceLanguagesW(HMODULE handle, LPCWSTR type, LPCWSTR name, ENUMRESLANGPROCW callback, LONG_PTR param)
{
    Inside inside;
    const Module* module = ModuleOf(handle);
    if (!module)
        return FALSE;
    const std::vector<WORD> languages = module->image.LanguagesOf(type, name);
    if (languages.empty())
    {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return FALSE;
    }
    for (const WORD language : languages)
    {
        Outside outside;
        if (!callback(handle, type, name, language, param))
            return FALSE;
    }
    return TRUE;
}

namespace
{
// A string as it lies in the resources, nothing when it is not there or empty.
std::u16string_view FindString(HINSTANCE instance, UINT id)
{
    // Strings come in blocks of sixteen, each with its length before it.
    Bytes block =
        FindResourceBytes(instance, MAKEINTRESOURCEW((LOWORD(id) >> 4) + 1), reinterpret_cast<LPCWSTR>(RT_STRING));
    for (UINT index = id & 15; block.data && block.size >= 2; --index)
    {
        WORD length = 0;
        std::memcpy(&length, block.data, sizeof length);
        const std::size_t bytes = length * sizeof(char16_t);
        if (bytes > block.size - 2)
            return {};
        if (index == 0)
            return {reinterpret_cast<LPCWSTR>(block.data + 2), length};
        block.data += 2 + bytes;
        block.size -= 2 + bytes;
    }
    return {};
}
} // namespace

int LoadStringA(HINSTANCE instance, UINT id, LPSTR text, int size)
{
    Inside inside;
    if (!text || size <= 0)
        return 0;
    text[0] = 0;
    return CopyAnsi(FindString(instance, id), text, static_cast<std::size_t>(size));
}

int LoadStringW(HINSTANCE instance, UINT id, LPWSTR text, int size)
{
    Inside inside;
    if (!text || size < 0)
        return 0;
    const std::u16string_view found = FindString(instance, id);
    if (size > 0)
        return CopyText(found, text, static_cast<std::size_t>(size));
    // Without room for a copy the caller wants to read the string where it lies, not terminated.
    *reinterpret_cast<LPCWSTR*>(text) = found.data();
    return static_cast<int>(found.size());
}
