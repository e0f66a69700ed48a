// The page of the fields says what the dialogs do.
#include "tests/dialogs/base/FieldsPage.h"
#include "tests/support/DesktopTest.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace
{

constexpr char kPath[] = PEXLO_SOURCE_DIR "/docs/fields.md";

class CFieldsPageTest : public CDesktopTest
{
};

std::string Written()
{
    std::ifstream file(kPath);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

} // namespace

TEST_F(CFieldsPageTest, IsUpToDate)
{
    const std::string page = FieldsPage();
    if (std::getenv("PEXLO_WRITE_PAGES") != nullptr)
        std::ofstream(kPath, std::ios::binary) << page;
    EXPECT_EQ(Written(), page) << "PEXLO_WRITE_PAGES=1 writes it anew";
}
