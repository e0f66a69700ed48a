// The picture of the screen: where everything stands at any size and font, and what can be seen of it.
#include "tests/dialogs/process/ScreenSpots.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/Sampled.h"

#include <algorithm>

namespace
{

// ---- Where everything stands ----------------------------------------------------------------------------------------

struct SPart
{
    std::string what;
    CRect rect;
};

std::vector<SPart> PartsOf(const CScreenLayout& layout)
{
    std::vector<SPart> parts;
    if (!layout.Name().IsRectEmpty())
        parts.push_back({"name", layout.Name()});
    for (int mark = 0; mark < kScreenMarks; ++mark)
        parts.push_back({"mark " + std::to_string(mark), layout.Mark(mark)});
    for (int line = 0; line < kScreenLines; ++line)
        for (int position = 0; position < kScreenDigits; ++position)
        {
            const std::string place = " " + std::to_string(position) + " of line " + std::to_string(line);
            parts.push_back({"digit" + place, layout.Digit(line, position)});
            if (position < 4)
                parts.push_back({"point" + place, layout.Point(line, position)});
            if (position == 2)
                parts.push_back({"upper point" + place, layout.UpperPoint(line, position)});
        }
    return parts;
}

bool Overlap(const CRect& a, const CRect& b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool IsInside(const CRect& inner, const CRect& outer)
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

const CSize kSizes[] = {{100, 60},  {120, 200}, {160, 80},   {200, 100}, {233, 91},  {250, 93},
                        {300, 120}, {320, 140}, {377, 151},  {400, 60},  {480, 200}, {500, 160},
                        {640, 240}, {800, 300}, {1000, 400}, {1600, 700}};
constexpr int kNameHeights[] = {0, 8, 11, 13, 16, 20, 26, 32, 48, 96};

template <typename TAction>
void ForEachLayout(TAction action)
{
    for (const CSize& size : kSizes)
        for (const int nameHeight : kNameHeights)
            for (const CPoint& corner : {CPoint(0, 0), CPoint(13, 7)})
            {
                SCOPED_TRACE(testing::Message() << size.cx << " x " << size.cy << ", name " << nameHeight);
                const CRect place(corner, size);
                action(place, CScreenLayout(place, nameHeight), nameHeight);
                if (testing::Test::HasFailure())
                    return;
            }
}

TEST(ScreenLayout, HasAPlaceForEverything)
{
    ForEachLayout([](const CRect& place, const CScreenLayout& layout, int) {
        const std::vector<SPart> parts = PartsOf(layout);
        for (size_t i = 0; i < parts.size(); ++i)
        {
            EXPECT_TRUE(IsInside(parts[i].rect, place)) << parts[i].what << " reaches outside";
            EXPECT_GT(parts[i].rect.Width(), 0) << parts[i].what;
            EXPECT_GT(parts[i].rect.Height(), 0) << parts[i].what;
            for (size_t j = 0; j < i; ++j)
                EXPECT_FALSE(Overlap(parts[i].rect, parts[j].rect)) << parts[i].what << " and " << parts[j].what;
        }
    });
}

TEST(ScreenLayout, StandsInReadingOrder)
{
    ForEachLayout([](const CRect&, const CScreenLayout& layout, int) {
        for (int mark = 0; mark < kScreenMarks; ++mark)
        {
            EXPECT_LE(layout.Name().bottom, layout.Mark(mark).top);
            EXPECT_LE(layout.Mark(mark).bottom, layout.Digit(kUpsideLine, 0).top);
            EXPECT_EQ(layout.Mark(mark).Width(), layout.Mark(mark).Height());
            if (mark > 0)
            {
                EXPECT_LE(layout.Mark(mark - 1).right, layout.Mark(mark).left);
            }
        }
        EXPECT_LE(layout.Digit(kUpsideLine, 0).bottom, layout.Digit(kDownsideLine, 0).top);
        for (int line = 0; line < kScreenLines; ++line)
            for (int position = 0; position < kScreenDigits; ++position)
            {
                const CRect digit = layout.Digit(line, position);
                EXPECT_EQ(digit.Size(), layout.Digit(kUpsideLine, 0).Size());
                EXPECT_EQ(digit.left, layout.Digit(1 - line, position).left) << "one below the other";
                EXPECT_EQ(digit.top, layout.Digit(line, 0).top);
                EXPECT_GT(digit.Height(), digit.Width()) << "digits are upright";
            }
    });
}

TEST(ScreenLayout, HasPointsBesideTheirDigits)
{
    ForEachLayout([](const CRect&, const CScreenLayout& layout, int) {
        for (int line = 0; line < kScreenLines; ++line)
            for (int position = 0; position < 4; ++position)
            {
                const CRect digit = layout.Digit(line, position), point = layout.Point(line, position);
                EXPECT_GE(point.left, digit.right);
                EXPECT_LE(point.right, layout.Digit(line, position + 1).left);
                EXPECT_EQ(point.bottom, digit.bottom);
                const CRect upper = layout.UpperPoint(line, position);
                EXPECT_EQ(upper.top, digit.top);
                EXPECT_EQ(upper.left, point.left);
                EXPECT_EQ(upper.Size(), point.Size());
            }
    });
}

TEST(ScreenLayout, LeavesTheNameOutWhereItTakesTooMuch)
{
    ForEachLayout([](const CRect& place, const CScreenLayout& layout, int nameHeight) {
        const int height = layout.Name().Height();
        EXPECT_TRUE(height == nameHeight || (height == 0 && nameHeight * 5 > place.Height())) << height;
    });
    EXPECT_EQ(CScreenLayout({0, 0, 377, 151}, 13).Name().Height(), 13);
    EXPECT_EQ(CScreenLayout({0, 0, 377, 60}, 48).Name().Height(), 0);
}

// Seven bars, each in its place.
TEST(ScreenLayout, PutsSegmentsTogetherToDigits)
{
    ForEachLayout([](const CRect&, const CScreenLayout& layout, int) {
        const struct
        {
            int segment;
            int column; // of its middle, in thirds of the digit
            int row;    // in fifths
        } kPlaces[] = {{0, 1, 0}, {1, 2, 1}, {2, 2, 3}, {3, 1, 4}, {4, 0, 3}, {5, 0, 1}, {6, 1, 2}};
        for (int line = 0; line < kScreenLines; ++line)
            for (int position = 0; position < kScreenDigits; ++position)
                for (const auto& place : kPlaces)
                {
                    const CRect digit = layout.Digit(line, position);
                    LONG x = 0, y = 0;
                    for (const POINT& corner : layout.Segment(line, position, place.segment))
                    {
                        EXPECT_TRUE(corner.x >= digit.left && corner.x <= digit.right) << "segment " << place.segment;
                        EXPECT_TRUE(corner.y >= digit.top && corner.y <= digit.bottom) << "segment " << place.segment;
                        x += corner.x;
                        y += corner.y;
                    }
                    EXPECT_EQ((x / 6 - digit.left) * 3 / digit.Width(), place.column) << "segment " << place.segment;
                    EXPECT_EQ((y / 6 - digit.top) * 5 / digit.Height(), place.row) << "segment " << place.segment;
                }
    });
}

// ---- What is drawn --------------------------------------------------------------------------------------------------

using CScreenDrawingTest = CDesktopTest;

constexpr COLORREF kUntouched = RGB(1, 2, 3);
constexpr COLORREF kBackground = RGB(20, 22, 26);

SScreenSettings Settings(BYTE marks, WORD upside, WORD downside, const char* text = "")
{
    SScreenSettings settings;
    settings.marks = marks;
    settings.lines[kUpsideLine].control = upside;
    settings.lines[kDownsideLine].control = downside;
    for (SScreenLine& line : settings.lines)
        line.text = text;
    return settings;
}

void ExpectDrawn(const CSize& size, const CPoint& corner, const SScreenSettings& settings)
{
    const CRect place(corner, size);
    const CRect whole(0, 0, static_cast<int>(place.right) + 9, static_cast<int>(place.bottom) + 9);
    CCanvas canvas(whole.Width(), whole.Height());
    canvas.DC().FillSolidRect(whole, kUntouched);
    DrawScreen(canvas.DC(), place, settings, "N mode The 1st screen");
    ExpectScreen(canvas, place, settings);
    for (const CPoint& point :
         {place.TopLeft(), CPoint(place.right - 1, place.top), CPoint(place.left, place.bottom - 1),
          CPoint(place.right - 1, place.bottom - 1), CPoint(place.CenterPoint().x, place.bottom - 1)})
        EXPECT_EQ(canvas.ColorAt(point), kBackground) << point.x << ", " << point.y;
    for (const CPoint& point :
         {CPoint(place.right, place.top + 5), CPoint(place.left + 5, place.bottom), CPoint(place.right, place.bottom)})
        EXPECT_EQ(canvas.ColorAt(point), kUntouched) << point.x << ", " << point.y;
    if (corner.x > 0)
    {
        EXPECT_EQ(canvas.ColorAt(CPoint(corner.x - 1, corner.y - 1)), kUntouched);
    }
}

TEST_F(CScreenDrawingTest, LightsWhatTheImageSays)
{
    const SScreenSettings kAll[] = {Settings(0x00, 0x2000, 0x2000),          Settings(0xFF, 0x201F, 0xC01F),
                                    Settings(0x80, 0xC060, 0x6080, "Hello"), Settings(0x01, 0xA028, 0x4042),
                                    Settings(0x5A, 0x3F1F, 0xE060, "8"),     Settings(0xA5, 0x6090, 0x2460, "8.888")};
    for (const SScreenSettings& settings : kAll)
    {
        for (const CSize& size : Sampled(kSizes, 5))
        {
            SCOPED_TRACE(testing::Message() << settings.FirstWord() << ", " << settings.lines[kUpsideLine].control
                                            << " at " << size.cx << " x " << size.cy);
            ExpectDrawn(size, {0, 0}, settings);
            ExpectDrawn(size, {21, 8}, settings);
        }
    }
}

TEST_F(CScreenDrawingTest, LightsEachMarkAlone)
{
    for (int mark = 0; mark < kScreenMarks; ++mark)
        ExpectDrawn({377, 151}, {0, 0}, Settings(static_cast<BYTE>(1 << mark), 0x2000, 0x2000));
}

TEST_F(CScreenDrawingTest, LightsEachPointAlone)
{
    for (unsigned point = 0; point < 5; ++point)
    {
        ExpectDrawn({377, 151}, {0, 0}, Settings(0, static_cast<WORD>(0x2000 | 1u << point), 0x4000));
        ExpectDrawn({377, 151}, {0, 0}, Settings(0, 0x2000, static_cast<WORD>(0x4000 | 1u << point)));
    }
}

TEST_F(CScreenDrawingTest, LightsEverySegmentOfEveryCharacter)
{
    for (unsigned code : SampledNumbers(0x20, 0x7E, 20))
    {
        const auto text = CString(static_cast<char>(code), 5);
        ExpectDrawn({320, 140}, {0, 0}, Settings(0, 0x6060, 0x2060, text));
    }
}

TEST_F(CScreenDrawingTest, LeavesAHiddenLineDark)
{
    for (unsigned hidden = 0; hidden < 4; ++hidden)
    {
        SScreenSettings settings = Settings(0x3C, 0xA01F, 0xC07F, "88888");
        settings.lines[kUpsideLine].hidden = (hidden & 1) != 0;
        settings.lines[kDownsideLine].hidden = (hidden & 2) != 0;
        ExpectDrawn({377, 151}, {0, 0}, settings);
    }
}

TEST_F(CScreenDrawingTest, FollowsTheHeightOfTheFont)
{
    for (const int tenths : {60, 90, 120, 160, 240})
    {
        CCanvas canvas(500, 220);
        CFont font;
        ASSERT_TRUE(font.CreatePointFont(tenths, "MS Sans Serif", &canvas.DC()));
        CFont* const previous = canvas.DC().SelectObject(&font);
        const SScreenSettings settings = Settings(0x42, 0x2001, 0xC060, "Ab1");
        DrawScreen(canvas.DC(), {10, 10, 490, 210}, settings, "S mode The 2nd screen");
        ExpectScreen(canvas, {10, 10, 490, 210}, settings);
        canvas.DC().SelectObject(previous);
    }
}

// The colors of a line are as their names say, and neighbours do not run into each other.
TEST_F(CScreenDrawingTest, HasColorsThatCanBeToldApart)
{
    const auto red = [](COLORREF color) { return static_cast<int>(color & 0xFF); };
    const auto green = [](COLORREF color) { return static_cast<int>(color >> 8 & 0xFF); };
    EXPECT_GT(green(ScreenColor(1)), 2 * red(ScreenColor(1)));
    EXPECT_GT(red(ScreenColor(2)), 2 * green(ScreenColor(2)));
    EXPECT_GT(red(ScreenColor(3)), green(ScreenColor(3)));
    EXPECT_GT(green(ScreenColor(3)), 2 * green(ScreenColor(2)));
    for (DWORD color = 1; color <= 3; ++color)
        EXPECT_GT(red(ScreenColor(color)) + green(ScreenColor(color)), 2 * (red(kScreenDark) + green(kScreenDark)));
    EXPECT_NE(kScreenDark, kScreenBackground) << "what is dark can just be seen";
}

TEST_F(CScreenDrawingTest, LeavesTheContextAsItWas)
{
    CCanvas canvas(320, 140);
    CBrush brush(RGB(9, 9, 9));
    CPen pen(PS_SOLID, 1, RGB(8, 8, 8));
    CBrush* const previousBrush = canvas.DC().SelectObject(&brush);
    CPen* const previousPen = canvas.DC().SelectObject(&pen);
    DrawScreen(canvas.DC(), {0, 0, 320, 140}, Settings(0xFF, 0x2000, 0x4000), "");
    EXPECT_EQ(canvas.DC().SelectObject(previousBrush)->GetSafeHandle(), brush.GetSafeHandle());
    EXPECT_EQ(canvas.DC().SelectObject(previousPen)->GetSafeHandle(), pen.GetSafeHandle());
}

} // namespace
