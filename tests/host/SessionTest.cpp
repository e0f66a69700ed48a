#include "host/Session.h"

#include <gtest/gtest.h>

namespace
{
std::string ComplaintAbout(const std::string& json)
{
    try
    {
        ParseSession(json);
    }
    catch (const CSessionError& error)
    {
        return error.what();
    }
    return "none";
}

std::string WithStep(const std::string& step)
{
    return R"({"plc": "compact", "runs": [{"open": "pulse output", "dialogs": [[)" + step + "]]}]}";
}

SStep ParseStep(const std::string& step) { return ParseSession(WithStep(step)).runs.at(0).dialogs.at(0).at(0); }
} // namespace

TEST(SessionTest, ReadsASession)
{
    const SSession session = ParseSession(R"({
        "title": "A title", "plc": "compact", "language": "Spanish", "help": "C:\\a.chm", "comments": false,
        "runs": [{"open": "pulse output", "dialogs": [[{"click": 1}], [{"type": "10", "in": 2052}, {"click": 2}]]},
                 {"open": "control code", "code": "fF", "dialogs": []},
                 {"open": "scaling", "instruction": 283, "permitted": [0, 1, 2, 4294967295], "dialogs": []},
                 {"open": "PID", "workArea": -1, "dialogs": []}]})");
    EXPECT_EQ(session.title, "A title");
    EXPECT_EQ(session.plc.name, "compact");
    EXPECT_EQ(session.language, 5);
    EXPECT_EQ(session.help, "C:\\a.chm");
    EXPECT_FALSE(session.comments);
    ASSERT_EQ(session.runs.size(), 4u);
    EXPECT_EQ(session.runs[0].wizard, EWizard::Pulse);
    ASSERT_EQ(session.runs[0].dialogs.size(), 2u);
    EXPECT_EQ(session.runs[0].dialogs[1].size(), 2u);
    EXPECT_EQ(session.runs[1].controlCode, 0xFFu);
    EXPECT_EQ(session.runs[2].instruction, 283);
    EXPECT_EQ(session.runs[2].permitted->at(3), 0xFFFFFFFFu);
    EXPECT_EQ(session.runs[3].workArea, -1);
}

TEST(SessionTest, HasDefaults)
{
    const SSession session = ParseSession(R"({"plc": "large", "runs": []})");
    EXPECT_EQ(session.language, 0);
    EXPECT_EQ(session.help, "");
    EXPECT_TRUE(session.comments);
}

TEST(SessionTest, ReadsEverySteps)
{
    SStep step = ParseStep(R"({"type": "10A", "in": 2052})");
    EXPECT_EQ(step.verb, EVerb::Type);
    EXPECT_EQ(step.control, 2052u);
    EXPECT_EQ(step.text, "10A");
    EXPECT_EQ(step.where, "runs[0].dialogs[0][0]");
    EXPECT_FALSE(step.answer.has_value());

    step = ParseStep(R"({"select": 3, "in": 2105})");
    EXPECT_EQ(step.verb, EVerb::SelectIndex);
    EXPECT_EQ(step.number, 3);
    EXPECT_EQ(step.control, 2105u);

    step = ParseStep(R"({"select": "Y1", "in": 2103, "answer": "No"})");
    EXPECT_EQ(step.verb, EVerb::SelectText);
    EXPECT_EQ(step.text, "Y1");
    EXPECT_EQ(step.answer, static_cast<unsigned>(IDNO));

    step = ParseStep(R"({"click": 1, "answer": "OK"})");
    EXPECT_EQ(step.verb, EVerb::Click);
    EXPECT_EQ(step.control, 1u);
    EXPECT_EQ(step.answer, static_cast<unsigned>(IDOK));

    EXPECT_EQ(ParseStep(R"({"set": "x", "in": 5})").verb, EVerb::Set);
    EXPECT_EQ(ParseStep(R"({"check": 2061})").verb, EVerb::Check);
    EXPECT_EQ(ParseStep(R"({"uncheck": 2061})").verb, EVerb::Uncheck);
    EXPECT_EQ(ParseStep(R"({"doubleclick": 2001})").verb, EVerb::DoubleClick);
    EXPECT_EQ(ParseStep(R"({"focus": 2001})").verb, EVerb::Focus);
    EXPECT_EQ(ParseStep(R"({"shot": "name"})").text, "name");
    EXPECT_EQ(ParseStep(R"({"press": "Enter"})").number, VK_RETURN);
    EXPECT_FALSE(ParseStep(R"({"press": "Enter"})").ctrl);
    EXPECT_EQ(ParseStep(R"({"press": "Ctrl+I"})").number, 'I');
    EXPECT_TRUE(ParseStep(R"({"press": "Ctrl+I"})").ctrl);
    EXPECT_EQ(ParseStep(R"({"paste": "1\t2\n"})").verb, EVerb::Paste);
    EXPECT_EQ(ParseStep(R"({"paste": "1\t2\n"})").text, "1\t2\n");
}

TEST(SessionTest, ReadsAControllerThatStartsFromAPreset)
{
    const SPlc plc = ParseSession(R"({"runs": [], "plc": {"preset": "large", "type": 70, "slots": 3, "axes": 2,
        "display175": 1, "ranges": {"DT": [5, 9]}, "channels": {"171": [0, 3]}, "instructions": [177]}})")
                         .plc;
    EXPECT_EQ(plc.name, "large");
    EXPECT_EQ(plc.type, 70);
    EXPECT_EQ(plc.slots, 3);
    EXPECT_EQ(plc.axes, 2);
    EXPECT_EQ(plc.display175, 1);
    ASSERT_EQ(plc.ranges.size(), 1u);
    EXPECT_EQ(plc.ranges[0].device, "DT");
    EXPECT_EQ(plc.ranges[0].high, 9);
    ASSERT_EQ(plc.channels.size(), 2u);
    EXPECT_EQ(plc.channels[1].channel, 3);
    EXPECT_EQ(plc.channels[1].instruction, 171);
    EXPECT_EQ(plc.instructions, std::vector<int>{177});
}

TEST(SessionTest, SaysWhatIsWrongAndWhere)
{
    EXPECT_EQ(ComplaintAbout("{\n\"plc\": \"compact\",\n}"), "no JSON: mistake in line 3");
    EXPECT_EQ(ComplaintAbout(""), "no JSON: mistake in line 1");
    EXPECT_EQ(ComplaintAbout("[]"), "the session: an object {...} is expected");
    EXPECT_EQ(ComplaintAbout("{}"), "the session: \"plc\" is missing");
    EXPECT_EQ(ComplaintAbout(R"({"plc": "compact"})"), "the session: \"runs\" is missing");
    EXPECT_EQ(ComplaintAbout(R"({"plc": "compact", "runs": [], "run": []})"), "the session: unknown key \"run\"");
    EXPECT_EQ(ComplaintAbout(R"({"plc": "compact", "runs": 5})"), "runs: a list [...] is expected");
    EXPECT_EQ(ComplaintAbout(R"({"plc": {"type": 256}, "runs": []})"),
              "plc.type: a whole number from 0 to 255 is expected");
    EXPECT_EQ(ComplaintAbout(R"({"plc": {"type": 1.5}, "runs": []})"),
              "plc.type: a whole number from 0 to 255 is expected");
    EXPECT_EQ(ComplaintAbout(R"({"plc": {"ranges": {"DX": [0, 1]}}, "runs": []})"),
              "plc.ranges.DX: there is no device \"DX\"");
    EXPECT_EQ(ComplaintAbout(R"({"plc": {"ranges": {"DT": [0]}}, "runs": []})"),
              "plc.ranges.DT: two numbers, [lowest, highest], are expected");
    EXPECT_EQ(ComplaintAbout(R"({"plc": {"channels": {"176": [0]}}, "runs": []})"),
              "plc.channels.176: only the instructions 171 to 175 take channels");
    EXPECT_EQ(ComplaintAbout(R"({"plc": "compact", "title": 1, "runs": []})"), "title: a text is expected");
    EXPECT_EQ(ComplaintAbout(R"({"plc": "compact", "comments": 1, "runs": []})"),
              "comments: true or false is expected");
    EXPECT_EQ(ComplaintAbout(R"({"plc": "compact", "runs": [{"open": "x", "dialogs": []}]})"),
              "runs[0].open: \"x\" is none of PID, control code, positioning unit, pulse output, scaling, screen "
              "display");
    EXPECT_EQ(ComplaintAbout(R"({"plc": "compact", "runs": [{"open": "control code", "code": "G", "dialogs": []}]})"),
              "runs[0].code: one to eight hexadecimal digits are expected");
    EXPECT_EQ(ComplaintAbout(WithStep("")), "runs[0].dialogs[0]: a dialog needs at least the step that closes it");
    EXPECT_EQ(ComplaintAbout(WithStep(R"({"tipe": "1", "in": 2})")), "runs[0].dialogs[0][0]: unknown key \"in\"");
    EXPECT_EQ(ComplaintAbout(WithStep(R"({})")), "runs[0].dialogs[0][0]: a step is expected");
    EXPECT_EQ(ComplaintAbout(WithStep(R"({"type": "1"})")), "runs[0].dialogs[0][0]: \"in\" is missing");
    EXPECT_EQ(ComplaintAbout(WithStep(R"({"type": 1, "in": 2})")), "runs[0].dialogs[0][0].type: a text is expected");
    EXPECT_EQ(ComplaintAbout(WithStep(R"({"click": 0})")),
              "runs[0].dialogs[0][0].click: a whole number from 1 to 65535 is expected");
    EXPECT_EQ(ComplaintAbout(WithStep(R"({"click": 1, "in": 2})")), "runs[0].dialogs[0][0]: unknown key \"in\"");
    EXPECT_EQ(ComplaintAbout(WithStep(R"({"press": "A"})")).substr(0, 42),
              "runs[0].dialogs[0][0].press: \"A\" is none o");
}

TEST(SessionTest, SaysWhichFileCannotBeRead)
{
    try
    {
        LoadSession("no/such/file.json");
        ADD_FAILURE() << "read";
    }
    catch (const CSessionError& error)
    {
        EXPECT_STREQ(error.what(), "no/such/file.json: the file cannot be read");
    }
}
