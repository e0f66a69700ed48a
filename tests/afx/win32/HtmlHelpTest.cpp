#include "afx/HtmlHelp.h"

#include "tests/support/DesktopTest.h"

namespace
{

class HtmlHelpTest : public CDesktopTest
{
};

// The system's own control answers; it is asked for a file that does not exist, so nothing opens.
TEST_F(HtmlHelpTest, ReachesTheSystemsControlAndComesBackToTheDrive)
{
    const int drive = _getdrive();
    AfxHtmlHelp("C:\\there is no such file.chm", 5551);
    EXPECT_EQ(_getdrive(), drive);
}

} // namespace
