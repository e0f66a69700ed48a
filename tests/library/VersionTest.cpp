// What the system reads of the version of each DLL that is delivered.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

namespace
{

std::string InOwnFolder(const std::string& file)
{
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string program = path;
    return program.substr(0, program.rfind('\\') + 1) + file;
}

std::string NameOf(const std::string& file) { return file.substr(0, file.rfind('.')); }

class CVersionTest : public testing::TestWithParam<const char*>
{
protected:
    void SetUp() override
    {
        const std::string path = InOwnFolder(GetParam());
        m_resource.resize(::GetFileVersionInfoSizeA(path.c_str(), nullptr));
        ASSERT_FALSE(m_resource.empty()) << path << " has no version";
        ASSERT_TRUE(::GetFileVersionInfoA(path.c_str(), 0, static_cast<DWORD>(m_resource.size()), m_resource.data()));
    }

    template <class TValue>
    const TValue* Value(const std::string& block)
    {
        void* value = nullptr;
        UINT size = 0;
        return ::VerQueryValueA(m_resource.data(), block.c_str(), &value, &size) && size > 0
                   ? static_cast<const TValue*>(value)
                   : nullptr;
    }

    std::string Text(const std::string& name)
    {
        const char* text = Value<char>("\\StringFileInfo\\040904B0\\" + name);
        return text ? text : "(none)";
    }

private:
    std::vector<char> m_resource;
};

TEST_P(CVersionTest, IsThatOfTheProject)
{
    const auto* fixed = Value<VS_FIXEDFILEINFO>("\\");
    ASSERT_NE(fixed, nullptr);
    EXPECT_EQ(fixed->dwFileVersionMS, DWORD{PEXLO_VERSION_MAJOR << 16 | PEXLO_VERSION_MINOR});
    EXPECT_EQ(fixed->dwFileVersionLS, DWORD{PEXLO_VERSION_PATCH << 16});
    EXPECT_EQ(fixed->dwProductVersionMS, fixed->dwFileVersionMS);
    EXPECT_EQ(fixed->dwProductVersionLS, fixed->dwFileVersionLS);
    EXPECT_EQ(fixed->dwFileType, DWORD{VFT_DLL});

    const std::string version = std::to_string(PEXLO_VERSION_MAJOR) + "." + std::to_string(PEXLO_VERSION_MINOR) + "." +
                                std::to_string(PEXLO_VERSION_PATCH);
    EXPECT_EQ(Text("FileVersion"), version);
    EXPECT_EQ(Text("ProductVersion"), version);
}

TEST_P(CVersionTest, NamesTheFile)
{
    EXPECT_EQ(Text("OriginalFilename"), GetParam());
    EXPECT_EQ(Text("InternalName"), NameOf(GetParam()));
    EXPECT_EQ(Text("ProductName"), "Instruction-input wizards");
    EXPECT_NE(Text("FileDescription"), "(none)");
}

TEST_P(CVersionTest, IsInTheLanguageThatItDeclares)
{
    const WORD* translation = Value<WORD>("\\VarFileInfo\\Translation");
    ASSERT_NE(translation, nullptr);
    EXPECT_EQ(translation[0], MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US));
    EXPECT_EQ(translation[1], 1200);
}

INSTANTIATE_TEST_SUITE_P(Dlls, CVersionTest,
                         testing::Values("Pexlo.dll", "PlxRcEnu.DLL", "PlxRcJpn.DLL", "PlxRcChs.DLL", "PlxRcCht.DLL",
                                         "PlxRcKor.DLL", "PlxRcEsp.DLL", "PlxRcIta.DLL", "PlxRcThi.DLL"),
                         [](const auto& tested) { return NameOf(tested.param); });

} // namespace
