#include "cli/Csv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace
{
using CCells = std::vector<std::string>;

std::vector<CCells> Cells(const std::string& text)
{
    std::vector<CCells> cells;
    for (const SCsvRecord& record : ReadCsv(text))
    {
        EXPECT_EQ(record.problem, "") << "line " << record.line;
        cells.push_back(record.cells);
    }
    return cells;
}

std::vector<int> Lines(const std::string& text)
{
    std::vector<int> lines;
    for (const SCsvRecord& record : ReadCsv(text))
        lines.push_back(record.line);
    return lines;
}

std::vector<std::string> Problems(const std::string& text)
{
    std::vector<std::string> problems;
    for (const SCsvRecord& record : ReadCsv(text))
        problems.push_back(record.problem);
    return problems;
}

const std::string kNotClosed = "a quotation mark is not closed";
const std::string kInside = "a quotation mark stands inside of a cell that does not begin with one";
const std::string kBehind = "something stands behind the quotation mark that closes a cell";
} // namespace

TEST(CsvTest, ReadsCells)
{
    EXPECT_THAT(Cells("a,b\nc,d\n"), ElementsAre(CCells{"a", "b"}, CCells{"c", "d"}));
    EXPECT_THAT(Cells("a,b"), ElementsAre(CCells{"a", "b"})) << "the last line need not end";
    EXPECT_THAT(Cells(",\n a , \n"), ElementsAre(CCells{"", ""}, CCells{" a ", " "})) << "spaces count";
    EXPECT_THAT(Cells(""), ElementsAre());
}

TEST(CsvTest, ReadsLinesOfEitherKind)
{
    EXPECT_THAT(Cells("a,b\r\nc,\"d\"\r\n"), ElementsAre(CCells{"a", "b"}, CCells{"c", "d"}));
    EXPECT_THAT(Cells("a\rb\n"), ElementsAre(CCells{"a\rb"})) << "no line ends with that";
}

TEST(CsvTest, PassesOverMarksAndEmptyLines)
{
    EXPECT_THAT(Cells("\xEF\xBB\xBF"
                      "a\n\n\r\nb\n\n"),
                ElementsAre(CCells{"a"}, CCells{"b"}));
    EXPECT_THAT(Lines("\n\na\n\nb\n"), ElementsAre(3, 5));
}

TEST(CsvTest, ReadsWhatIsQuoted)
{
    EXPECT_THAT(Cells("\"a,b\",\"c \"\"d\"\"\",\"\"\n"), ElementsAre(CCells{"a,b", "c \"d\"", ""}));
    EXPECT_THAT(Cells("\"1,2\r\n3,4\",x\ny\n"), ElementsAre(CCells{"1,2\r\n3,4", "x"}, CCells{"y"}));
    EXPECT_THAT(Lines("a\n\"1\n2\n3\"\nb\n"), ElementsAre(1, 2, 5)) << "a record stands where it begins";
}

TEST(CsvTest, AWrongLineDoesNotHideTheOthers)
{
    EXPECT_THAT(Problems("a\nb\"c,d\ne\n"), ElementsAre("", kInside, ""));
    EXPECT_THAT(Lines("a\nb\"c,d\ne\n"), ElementsAre(1, 2, 3));
    EXPECT_THAT(Problems("\"a\"b,c\nd\n"), ElementsAre(kBehind, ""));
    EXPECT_THAT(Problems("a\n\"b\nc\nd"), ElementsAre("", kNotClosed, "", ""));
    EXPECT_THAT(Lines("a\n\"b\nc\nd"), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(Problems("\""), ElementsAre(kNotClosed));
    EXPECT_THAT(Problems("a\"b"), ElementsAre(kInside));
}

TEST(CsvTest, WritesWhatItReads)
{
    EXPECT_EQ(CsvLine({"a", "", "b c"}), "a,,b c\n");
    EXPECT_EQ(CsvLine({"a,b", "c\"d"}), "\"a,b\",\"c\"\"d\"\n");
    const CCells cells = {"x\ny", "\"", ",", "\r", "plain", ""};
    EXPECT_THAT(Cells(CsvLine(cells)), ElementsAre(cells));
}
