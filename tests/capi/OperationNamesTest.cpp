// Every operation of the class has its counterpart, and each counterpart is called by the tests beside this one.
#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace
{

std::string Read(const std::string& file)
{
    std::ifstream stream(PEXLO_SOURCE_DIR "/" + file);
    EXPECT_TRUE(stream) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string WithoutComments(const std::string& text)
{
    std::string code;
    for (size_t i = 0; i < text.size(); ++i)
    {
        if (text.compare(i, 2, "//") == 0)
            i = text.find('\n', i);
        else if (text.compare(i, 2, "/*") == 0)
        {
            i = text.find("*/", i) + 1;
            continue;
        }
        if (i == std::string::npos)
            break;
        code += text[i];
    }
    return code;
}

/// The words of a code, or those that stand before a parenthesis.
std::set<std::string> Words(const std::string& code, bool onlyCalled)
{
    std::set<std::string> names;
    std::string word;
    for (const char c : code)
    {
        const bool inWord = std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
        if (inWord)
            word += c;
        else
        {
            if (!word.empty() && (c == '(' || !onlyCalled))
                names.insert(word);
            word.clear();
        }
    }
    return names;
}

std::set<std::string> OperationsOfTheClass()
{
    std::string header = WithoutComments(Read("core/FunWizard.h"));
    header = header.substr(header.find("public:"));
    std::set<std::string> names = Words(header.substr(0, header.find("private:")), true);
    for (const char* const none : {"CFunWizard", "new", "delete"})
        names.erase(none);
    return names;
}

std::set<std::string> OperationsOfTheInterface()
{
    std::set<std::string> names;
    for (const std::string& name : Words(WithoutComments(Read("core/pexlo.h")), true))
        if (name.starts_with("Pexlo_"))
            names.insert(name);
    return names;
}

TEST(OperationNames, OfTheClassAreThoseOfTheInterface)
{
    const std::set<std::string> ofTheClass = OperationsOfTheClass();
    const std::set<std::string> ofTheInterface = OperationsOfTheInterface();
    EXPECT_GT(ofTheClass.size(), 70u);
    EXPECT_TRUE(ofTheClass.contains("GetSeqDevInfo"));
    EXPECT_TRUE(ofTheClass.contains("CreateInstCode_4"));
    for (const std::string& name : ofTheClass)
        EXPECT_TRUE(ofTheInterface.contains("Pexlo_" + name)) << name;
}

TEST(OperationNames, AreAllTested)
{
    std::string tests;
    for (const char* const file : {"Capi.cpp", "OperationsTest.cpp", "DialogsTest.cpp"})
        tests += Read(std::string("tests/capi/") + file);
    const std::set<std::string> used = Words(WithoutComments(tests), false);
    for (const std::string& name : OperationsOfTheInterface())
        EXPECT_TRUE(used.contains(name)) << name;
}

} // namespace
