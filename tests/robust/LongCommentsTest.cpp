// Labels of any length: what becomes of them as comments fits the buffer that hosts are told to have.
#include "tests/dialogs/pulse/Spd1Test.h"
#include "tests/robust/CodePage.h"

#include "host/ResultText.h"
#include "host/Utf8.h"
#include "host/WizardLists.h"

#include <string>

namespace
{

constexpr size_t kLongest = 255;
constexpr unsigned kSingleByte = 1252;
constexpr unsigned kDoubleByte = 932;
constexpr size_t kCommentOfInitialSpeed = 1; // behind that of the control code

class CLongCommentsTest : public CSpd1Test
{
protected:
    ~CLongCommentsTest() override { UseCodePage(kSingleByte); }

    /// What the host reads when the label of the initial speed has this text.
    std::string CommentOf(const std::string& label)
    {
        Confirm(kTrapezoidal, [&](CDialogRobot& dialog) {
            ControlBefore(dialog, IDC_SPD1_INITIAL)->SetWindowText(label.c_str());
            FillIn(dialog, {});
        });
        const SResults results = ReadResults(m_wizard);
        EXPECT_EQ(results.comments.size(), 5u);
        const std::string comment = results.comments.at(kCommentOfInitialSpeed);
        const std::string shown = ToUtf8(comment.c_str(), m_wizard.GetTextCodePage());
        EXPECT_NE(ResultText(ReadLists(m_wizard)).find("   1  " + shown + "\n   2  "), std::string::npos);

        std::string buffer(kLongest + 2, '#');
        EXPECT_EQ(m_wizard.GetCmtInfo(kCommentOfInitialSpeed, buffer.data()), 1);
        EXPECT_EQ(buffer.back(), '#') << "written behind the buffer";
        return comment;
    }
};

TEST_F(CLongCommentsTest, EndAtTheirLimit)
{
    for (const size_t length :
         {size_t{1}, kLongest - 1, kLongest, kLongest + 1, size_t{4095}, size_t{4096}, size_t{30000}})
    {
        std::string label(length, 'x');
        label.front() = '<';
        EXPECT_EQ(CommentOf(label), label.substr(0, kLongest));
    }
}

TEST_F(CLongCommentsTest, EndBehindAWholeCharacter)
{
    UseCodePage(kDoubleByte);
    if (!::IsDBCSLeadByte(0x83))
        GTEST_SKIP() << "this desktop has one code page";
    std::string label;
    while (label.size() < 300)
        label += "\x83\x5c";
    EXPECT_EQ(CommentOf(label), label.substr(0, kLongest - 1));
    EXPECT_EQ(CommentOf("x" + label), "x" + label.substr(0, kLongest - 1));
}

} // namespace
