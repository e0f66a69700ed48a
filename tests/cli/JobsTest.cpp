#include "cli/Jobs.h"

#include "host/TextFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
std::vector<std::string> Entered(const SJob& job)
{
    std::vector<std::string> texts;
    for (const pexlo::Entry& entry : job.entries)
        texts.push_back(entry.name + '=' + entry.text);
    return texts;
}

template <typename TRead>
std::string Complaint(TRead read)
{
    try
    {
        read();
    }
    catch (const CFileError& error)
    {
        return error.what();
    }
    return "none";
}

std::string JsonComplaint(const std::string& text)
{
    return Complaint([&] { ReadJsonJobs(text, ""); });
}

std::string CsvComplaint(const std::string& text)
{
    return Complaint([&] { ReadCsvJobs(text, ""); });
}
} // namespace

TEST(JobsTest, FieldsAreNamedOrNumbered)
{
    EXPECT_EQ(MakeEntry("max-speed", "1").control, 0);
    EXPECT_EQ(MakeEntry("2107", "1").control, 2107);
    EXPECT_EQ(MakeEntry("2107", "1").name, "2107");
    EXPECT_EQ(MakeEntry("2107a", "1").control, 0);
    EXPECT_EQ(MakeEntry("123456", "1").control, 0) << "no id has so many digits";
    EXPECT_EQ(MakeEntry("", "1").control, 0);
}

TEST(JobsTest, ParsesEntries)
{
    EXPECT_EQ(ParseEntry("a=b")->name, "a");
    EXPECT_EQ(ParseEntry("a=b")->text, "b");
    EXPECT_EQ(ParseEntry("a=b=c")->text, "b=c");
    EXPECT_EQ(ParseEntry("a=")->text, "");
    EXPECT_FALSE(ParseEntry("a"));
    EXPECT_FALSE(ParseEntry("=b"));
    EXPECT_FALSE(ParseEntry(""));
}

TEST(JobsTest, ReadsCsv)
{
    const std::vector<SJob> jobs = ReadCsvJobs("instruction, max-speed ,2052\nF168,500,10A\n\n,,1\n", "F169");
    ASSERT_EQ(jobs.size(), 2u);
    EXPECT_EQ(jobs[0].instruction, "F168");
    EXPECT_EQ(jobs[0].line, 2);
    EXPECT_THAT(Entered(jobs[0]), ElementsAre("max-speed=500", "2052=10A"));
    EXPECT_EQ(jobs[0].entries[1].control, 2052);
    EXPECT_EQ(jobs[1].instruction, "F169") << "that of all lines";
    EXPECT_EQ(jobs[1].line, 4);
    EXPECT_THAT(Entered(jobs[1]), ElementsAre("2052=1")) << "empty cells are not entered";
}

TEST(JobsTest, LinesOfCsvMayBeShortButNotLong)
{
    const std::vector<SJob> jobs = ReadCsvJobs("a,b\n1\n1,2,3\n1,2\n", "F168");
    ASSERT_EQ(jobs.size(), 3u);
    EXPECT_EQ(jobs[0].problem, "");
    EXPECT_EQ(jobs[1].problem, "the line has more cells than the header has columns");
    EXPECT_EQ(jobs[2].problem, "");
}

TEST(JobsTest, TextsOfCsvAreUtf8)
{
    const std::vector<SJob> jobs = ReadCsvJobs("a,b\n\xE6\x97\xA5,\x93\xFA\n\xE6\x97\xA5,1\n", "F168");
    ASSERT_EQ(jobs.size(), 2u);
    EXPECT_EQ(jobs[0].problem, "the cell of \"b\" is not UTF-8");
    EXPECT_EQ(jobs[1].problem, "");
    EXPECT_THAT(Entered(jobs[1]), ElementsAre("a=\xE6\x97\xA5", "b=1"));
}

TEST(JobsTest, RefusesCsvWithoutAHeader)
{
    EXPECT_EQ(CsvComplaint(""), "there is no header with the names of the fields");
    EXPECT_EQ(CsvComplaint("\na,,b\n"), "line 2: column 2 has no name");
    EXPECT_EQ(CsvComplaint("a\"\n"), "line 1: a quotation mark stands inside of a cell that does not begin with one");
    EXPECT_EQ(CsvComplaint(std::string("\xFF\xFE"
                                       "a\0,\0b\0\n\0",
                                       10)),
              "the file is not UTF-8");
    EXPECT_EQ(CsvComplaint("a;b\n1;2\n"), "cells are separated by commas, and lines by line feeds");
    EXPECT_EQ(CsvComplaint("a,b\r1,2\r"), "cells are separated by commas, and lines by line feeds");
    EXPECT_EQ(CsvComplaint("a\n"), "none") << "nothing to fill in is no mistake";
}

TEST(JobsTest, ReadsJson)
{
    const std::vector<SJob> jobs = ReadJsonJobs(R"([
        {"instruction": "F168", "set": {"z": "10A", "a": 95000, "b": 0.1, "c": true, "d": null}},

        {"set": {"x": -5}},
        {"instruction": 169},
        {"instruction": null}
    ])",
                                                "F170");
    ASSERT_EQ(jobs.size(), 4u);
    EXPECT_EQ(jobs[0].instruction, "F168");
    EXPECT_THAT(Entered(jobs[0]), ElementsAre("z=10A", "a=95000", "b=0.1", "c=true")) << "in the order of the file";
    EXPECT_EQ(jobs[0].line, 2);
    EXPECT_EQ(jobs[1].instruction, "F170");
    EXPECT_THAT(Entered(jobs[1]), ElementsAre("x=-5"));
    EXPECT_EQ(jobs[1].line, 4);
    EXPECT_EQ(jobs[2].instruction, "169");
    EXPECT_THAT(Entered(jobs[2]), IsEmpty());
    EXPECT_EQ(jobs[2].line, 5);
    EXPECT_EQ(jobs[3].instruction, "F170");
}

TEST(JobsTest, ReadsTablesAndRepeatedFieldsOfJson)
{
    const std::vector<SJob> jobs = ReadJsonJobs(
        R"({"instruction": "F174", "set": [["table", [[1, "2"], [3, 4]]], ["row", [1, 2]], ["row", ""], ["none", []]]})",
        "");
    ASSERT_EQ(jobs.size(), 1u);
    EXPECT_THAT(Entered(jobs[0]), ElementsAre("table=1\t2\n3\t4", "row=1\n2", "row=", "none="));
    EXPECT_EQ(jobs[0].line, 1);
}

TEST(JobsTest, AWrongJobOfJsonDoesNotHideTheOthers)
{
    const std::vector<SJob> jobs = ReadJsonJobs(R"([
        {"instruction": "F168", "sets": {}},
        {"instruction": {"a": 1}},
        {"instruction": "F168", "set": 1},
        {"instruction": "F168", "set": [["a"]]},
        {"instruction": "F168", "set": {"a": {"b": 1}}},
        {"instruction": "F168", "set": {"a": [[{}]]}},
        {"instruction": "F168", "set": {"a": "1"}},
        {"instruction": "F168", "set": {"": "1"}},
        {"instruction": "F168", "set": {"a": "1\u0000"}}
    ])",
                                                "");
    ASSERT_EQ(jobs.size(), 9u);
    EXPECT_EQ(jobs[0].problem, "unknown key \"sets\"");
    EXPECT_EQ(jobs[1].problem, "a text, a number, true or false is expected");
    EXPECT_EQ(jobs[2].problem, "\"set\": an object {...} is expected");
    EXPECT_EQ(jobs[3].problem, "\"set\": pairs [name, value] are expected");
    EXPECT_EQ(jobs[4].problem, "\"a\": a text, a number, true or false is expected");
    EXPECT_EQ(jobs[5].problem, "\"a\": a text, a number, true or false is expected");
    EXPECT_EQ(jobs[6].problem, "");
    EXPECT_EQ(jobs[6].line, 8);
    EXPECT_EQ(jobs[7].problem, "\"\": this is no text to enter");
    EXPECT_EQ(jobs[8].problem, "\"a\": this is no text to enter");
}

TEST(JobsTest, RefusesWhatIsNoJson)
{
    EXPECT_EQ(JsonComplaint("[\n{\n"), "no JSON: mistake in line 3");
    EXPECT_EQ(JsonComplaint("[{},\n 1]"), "a list of objects, [{\"instruction\": ..., \"set\": {...}}], is expected");
    EXPECT_EQ(JsonComplaint("1"), "a list of objects, [{\"instruction\": ..., \"set\": {...}}], is expected");
    EXPECT_EQ(JsonComplaint("[\"\x93\xFA\"]"), "no JSON: mistake in line 1");
    EXPECT_EQ(JsonComplaint("[{\"set\":\n{\"a\": 1e999}}]"), "no JSON: mistake in line 2");
    EXPECT_EQ(JsonComplaint("[{\"set\":\n{\"a\": 1, \"b\": {\"a\": 2}, \"a\": 2}}]"), "line 2: \"a\" is named twice");
    EXPECT_EQ(JsonComplaint(std::string(1000000, '[')), "line 1: lists in lists in lists are not expected");
    EXPECT_EQ(JsonComplaint("[]"), "none");
}

TEST(JobsTest, TellsTheFormsOfFilesApart)
{
    EXPECT_EQ(ReadJobs("\xEF\xBB\xBF\n [{\"instruction\": \"F168\"}]", "")[0].instruction, "F168");
    EXPECT_EQ(ReadJobs("instruction\nF169", "")[0].instruction, "F169");
}

TEST(JobsTest, EntersEverywhereWhatAJobDoesNotEnterItself)
{
    std::vector<SJob> jobs = ReadCsvJobs("a,b\n1,\n,2\n", "F168");
    EnterEverywhere(jobs, {MakeEntry("a", "x"), MakeEntry("c", "y")});
    EXPECT_THAT(Entered(jobs[0]), ElementsAre("c=y", "a=1"));
    EXPECT_THAT(Entered(jobs[1]), ElementsAre("a=x", "c=y", "b=2"));
}
