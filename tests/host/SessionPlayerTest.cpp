#include "host/SessionPlayer.h"
#include "host/HostName.h"

#include "tests/support/DesktopTest.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace
{
std::string ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

const std::string kSessions = PEXLO_SOURCE_DIR "/host/sessions";

std::vector<std::string> RecordedSessions()
{
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& file : std::filesystem::directory_iterator(kSessions, error))
    {
        if (file.path().extension() == ".json")
            names.push_back(file.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

struct SReport
{
    bool success;
    std::string text;

    bool Says(const std::string& part) const { return text.find(part) != std::string::npos; }
};

SReport Report(const SSession& session)
{
    PexloDll_SetAppName(kHostName);
    std::ostringstream report;
    const bool success = CSessionPlayer(report, "").Play(session);
    return {success, report.str()};
}

// A session that opens the pulse-output wizard once and does `dialogs` there.
SReport PlayDialogs(const std::string& dialogs)
{
    return Report(
        ParseSession(R"({"plc": "compact", "runs": [{"open": "pulse output", "dialogs": )" + dialogs + "}]}"));
}
} // namespace

// The recorded sessions that come with the ladder tool, each with the report that it must give on every desktop.
class RecordedSessionTest : public CDesktopTest, public testing::WithParamInterface<std::string>
{
};

TEST_P(RecordedSessionTest, GivesTheReportThatIsRecordedWithIt)
{
    const std::string path = kSessions + "/" + GetParam();
    const SReport report = Report(LoadSession(path + ".json"));
    EXPECT_TRUE(report.success);
    EXPECT_EQ(report.text, ReadFile(path + ".txt"));
}

INSTANTIATE_TEST_SUITE_P(Sessions, RecordedSessionTest, testing::ValuesIn(RecordedSessions()), [](const auto& test) {
    std::string name = test.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

TEST(RecordedSessionsTest, AreThere)
{
    const std::vector<std::string> names = RecordedSessions();
    EXPECT_NE(std::find(names.begin(), names.end(), "f168-trapezoidal"), names.end());
    EXPECT_NE(std::find(names.begin(), names.end(), "f168-home-return"), names.end());
}

class SessionPlayerTest : public CDesktopTest
{
};

TEST_F(SessionPlayerTest, ReportsAControlThatIsNotThere)
{
    const SReport report = PlayDialogs(R"([[{"click": 4711}, {"click": 2}]])");
    EXPECT_FALSE(report.success);
    EXPECT_TRUE(report.Says("There is no control 4711. (runs[0].dialogs[0][0])")) << report.text;
    EXPECT_TRUE(report.Says("Result: 2")) << report.text;
}

TEST_F(SessionPlayerTest, ReportsAMessageBoxThatTheSessionDoesNotExpect)
{
    const SReport report = PlayDialogs(R"([[{"select": 0, "in": 2001}, {"click": 1}], [{"click": 1}, {"click": 2}],
                                           [{"click": 2}]])");
    EXPECT_FALSE(report.success);
    EXPECT_TRUE(report.Says("Please input a numerical value correctly.")) << report.text;
    EXPECT_TRUE(report.Says("(runs[0].dialogs[1][0])")) << report.text;
}

TEST_F(SessionPlayerTest, ReportsADialogThatTheSessionLeavesOpen)
{
    const SReport report = PlayDialogs(R"([[{"select": 1, "in": 2001}]])");
    EXPECT_FALSE(report.success);
    EXPECT_TRUE(report.Says("Scene 1 ended while its dialog was still open.")) << report.text;
}

TEST_F(SessionPlayerTest, ReportsDialogsThatDoNotComeUp)
{
    const SReport report = PlayDialogs(R"([[{"click": 2}], [{"click": 2}]])");
    EXPECT_FALSE(report.success);
    EXPECT_TRUE(report.Says("1 of 2 scenes were played")) << report.text;
}

TEST_F(SessionPlayerTest, TellsWhatAnEditHoldsWhenItDoesNotTakeEverything)
{
    const SReport report = PlayDialogs(R"([[{"select": 0, "in": 2001}, {"click": 1}],
                                           [{"type": "123456", "in": 2106}, {"click": 2}], [{"click": 2}]])");
    EXPECT_TRUE(report.success) << report.text;
    EXPECT_TRUE(report.Says("type \"123456\" in 2106\n    it holds \"1234\"\n")) << report.text;
}
