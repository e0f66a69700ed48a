// Language libraries, the resource scope and the help path.
#include "tests/core/FunWizardTest.h"

#include <climits>
#include <filesystem>
#include <stdexcept>

#include "core/ResourceScope.h"
#include "core/Values.h"
#include "resources/resource.h"

namespace fs = std::filesystem;

namespace
{

struct SLanguage
{
    int index;
    const char* file;
};

constexpr SLanguage kLanguages[] = {{0, "PlxRcEnu.DLL"}, {1, "PlxRcJpn.DLL"}, {2, "PlxRcChs.DLL"}, {3, "PlxRcCht.DLL"},
                                    {4, "PlxRcKor.DLL"}, {5, "PlxRcEsp.DLL"}, {6, "PlxRcIta.DLL"}, {9, "PlxRcThi.DLL"}};
constexpr int kEnglish = 0;
constexpr int kNoLanguages[] = {7, 8, 10, -1, 100, INT_MAX, INT_MIN};

fs::path ModulePath(HINSTANCE module)
{
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(module, path, sizeof path);
    return path;
}

fs::path ProgramFolder() { return ModulePath(nullptr).parent_path(); }

bool IsLoaded(const char* file) { return ::GetModuleHandleA(file) != nullptr; }

CString LoadText(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}

// Of this process only: the tests of several builds may run at the same time.
fs::path DecoyPath() { return fs::temp_directory_path() / ("pexlo-decoys-" + std::to_string(::GetCurrentProcessId())); }

/// A current folder of its own, full of libraries under the languages' names.
class CDecoyFolder
{
public:
    CDecoyFolder() : m_before(fs::current_path()), m_folder(DecoyPath())
    {
        fs::create_directories(m_folder);
        for (const SLanguage& language : kLanguages)
            fs::copy_file(ProgramFolder() / kLanguages[kEnglish].file, m_folder / language.file,
                          fs::copy_options::overwrite_existing);
        fs::current_path(m_folder);
    }
    ~CDecoyFolder()
    {
        fs::current_path(m_before);
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    const fs::path& Path() const { return m_folder; }

private:
    fs::path m_before;
    fs::path m_folder;
};

} // namespace

TEST(Language, LoadsTheLibraryOfTheIndexWhenItIsThere)
{
    ASSERT_TRUE(fs::exists(ProgramFolder() / kLanguages[kEnglish].file)) << "the tests need one language library";
    CFunWizard wizard;
    for (const SLanguage& language : kLanguages)
    {
        const HINSTANCE library = wizard.SetLanguageInfo(language.index);
        EXPECT_EQ(wizard.GetLoadInstance(), library);
        EXPECT_EQ(library != nullptr, fs::exists(ProgramFolder() / language.file)) << language.file;
        if (library != nullptr)
        {
            EXPECT_EQ(ModulePath(library).filename(), language.file);
        }
    }
}

TEST(Language, HasNoLibraryForOtherIndexes)
{
    CFunWizard wizard;
    for (const int index : kNoLanguages)
    {
        ASSERT_NE(wizard.SetLanguageInfo(kEnglish), nullptr);
        EXPECT_EQ(wizard.SetLanguageInfo(index), nullptr) << index;
        EXPECT_EQ(wizard.GetLoadInstance(), nullptr);
        EXPECT_FALSE(IsLoaded(kLanguages[kEnglish].file)) << "the previous library is freed";
    }
}

TEST(Language, IsNeverTakenFromTheCurrentFolder)
{
    const CDecoyFolder decoys;
    CFunWizard wizard;
    for (const SLanguage& language : kLanguages)
    {
        const HINSTANCE library = wizard.SetLanguageInfo(language.index);
        ASSERT_EQ(library != nullptr, fs::exists(ProgramFolder() / language.file)) << language.file;
        if (library != nullptr)
        {
            EXPECT_TRUE(fs::equivalent(ModulePath(library).parent_path(), ProgramFolder())) << ModulePath(library);
        }
    }
    ASSERT_NE(wizard.SetLanguageInfo(kEnglish), nullptr) << "found whatever the current folder is";
}

TEST(Language, LibraryIsFreedByResetAndDestruction)
{
    ASSERT_FALSE(IsLoaded(kLanguages[kEnglish].file));
    {
        CFunWizard wizard;
        wizard.SetLanguageInfo(kEnglish);
        EXPECT_TRUE(IsLoaded(kLanguages[kEnglish].file));
        wizard.ResetContents();
        EXPECT_EQ(wizard.GetLoadInstance(), nullptr);
        EXPECT_FALSE(IsLoaded(kLanguages[kEnglish].file));
        wizard.SetLanguageInfo(kEnglish);
        EXPECT_TRUE(IsLoaded(kLanguages[kEnglish].file));
    }
    EXPECT_FALSE(IsLoaded(kLanguages[kEnglish].file));
}

TEST(Language, LibraryIsFreedAsOftenAsItIsLoaded)
{
    {
        CFunWizard wizard;
        for (int i = 0; i < 100; ++i)
            ASSERT_NE(wizard.SetLanguageInfo(kEnglish), nullptr);
    }
    EXPECT_FALSE(IsLoaded(kLanguages[kEnglish].file));
}

TEST(Language, ObjectsDoNotShareTheirLibraries)
{
    CFunWizard stays;
    const HINSTANCE library = stays.SetLanguageInfo(kEnglish);
    {
        CFunWizard goes;
        goes.SetLanguageInfo(kEnglish);
    }
    EXPECT_EQ(stays.GetLoadInstance(), library);
    EXPECT_TRUE(IsLoaded(kLanguages[kEnglish].file));
    const CResourceScope scope(library);
    EXPECT_STREQ(LoadText(IDS_FONT_FACE), "MS Sans Serif");
}

TEST(Language, LeavesTheResourceSourceAlone)
{
    const HINSTANCE source = AfxGetResourceHandle();
    CFunWizard wizard;
    wizard.SetLanguageInfo(kEnglish);
    EXPECT_EQ(AfxGetResourceHandle(), source);
    wizard.SetLanguageInfo(7);
    EXPECT_EQ(AfxGetResourceHandle(), source);
}

TEST(ResourceScope, UsesTheLibraryAndRestoresTheSourceBefore)
{
    CFunWizard wizard;
    const HINSTANCE library = wizard.SetLanguageInfo(kEnglish);
    ASSERT_NE(library, nullptr);
    const HINSTANCE before = AfxGetResourceHandle();
    {
        const CResourceScope outer(library);
        EXPECT_EQ(AfxGetResourceHandle(), library);
        {
            const CResourceScope inner(nullptr);
            EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
        }
        EXPECT_EQ(AfxGetResourceHandle(), library);
    }
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(ResourceScope, RestoresTheSourceWhenAnExceptionPasses)
{
    CFunWizard wizard;
    const HINSTANCE before = AfxGetResourceHandle();
    EXPECT_THROW(
        {
            const CResourceScope scope(wizard.SetLanguageInfo(kEnglish));
            throw std::runtime_error("on the way");
        },
        std::runtime_error);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(ResourceScope, TheModuleCarriesTheEnglishTexts)
{
    const CResourceScope scope(nullptr);
    EXPECT_STREQ(LoadText(IDS_FONT_FACE), "MS Sans Serif");
    EXPECT_STREQ(FormatDeviceName(9), "DT");
}

TEST(ResourceScope, DoesNotFallBackOnTheModule)
{
    CFunWizard wizard;
    const CResourceScope scope(wizard.SetLanguageInfo(kEnglish));
    EXPECT_STREQ(LoadText(64999), "");
    EXPECT_STREQ(FormatDeviceName(9), "DT") << "the library has the texts of its own";
}
