#include "tests/support/offscreen/HelpCalls.h"

#include <gtest/gtest.h>

#include "afx/HtmlHelp.h"
#include "afx/offscreen/Desktop.h"

namespace
{

constexpr WORD kEntryOrdinal = 14;

HWND WINAPI RecordHelp(HWND owner, LPCSTR path, UINT command, DWORD_PTR topic)
{
    HelpCalls().push_back({owner, path, command, topic});
    return nullptr;
}

// A program looks for the control once in its life, so it has to be there before the first test.
class CHelpEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        const auto entry = reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&RecordHelp));
        offscreen::RegisterLibrary("hhctrl.ocx", {{kEntryOrdinal, entry}});
        AfxHtmlHelp("first.chm", 0);
        ASSERT_EQ(HelpCalls().size(), 1u);
        HelpCalls().clear();
    }
};

const testing::Environment* const g_help = testing::AddGlobalTestEnvironment(new CHelpEnvironment);

} // namespace

std::vector<SHelpCall>& HelpCalls()
{
    static std::vector<SHelpCall> calls;
    return calls;
}
