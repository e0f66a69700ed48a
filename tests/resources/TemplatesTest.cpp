// Every dialog template: that it is what the interface demands, and that it looks right in every language.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <numeric>
#include <string>
#include <vector>

#include "tests/resources/ExpectedTemplates.h"
#include "tests/resources/RoomForText.h"

namespace
{

bool AreInOneRow(const RECT& a, const RECT& b) { return a.top < b.bottom && b.top < a.bottom; }
bool Overlap(const RECT& a, const RECT& b) { return AreInOneRow(a, b) && a.left < b.right && b.left < a.right; }
bool Holds(const RECT& a, const RECT& b)
{
    return a.left < b.left && a.top < b.top && a.right > b.right && a.bottom > b.bottom;
}

/// Whether a group box stands around a control.
bool IsFrameOf(const SPicturedControl& frame, const SPicturedControl& control)
{
    constexpr DWORD kFrames[] = {SS_ETCHEDFRAME, SS_SUNKEN};
    const bool isStaticFrame =
        frame.className == "Static" && frame.text.empty() &&
        std::find(std::begin(kFrames), std::end(kFrames), frame.style & ~WS_GROUP & 0xFFFF) != std::end(kFrames);
    return (KindOf(frame) == EControl::GroupBox || isStaticFrame) && Holds(frame.rect, control.rect);
}

/// What only shows something, or moves what other controls show.
bool IsNoInput(const SPicturedControl& control)
{
    const EControl kind = KindOf(control);
    return kind == EControl::Static || kind == EControl::GroupBox || kind == EControl::ScrollBar;
}

class TemplatesTest : public testing::TestWithParam<SExpectedTemplate>
{
protected:
    /// Calls look() with the picture of the template in each language there is.
    template <class TLook>
    static void InEveryLanguage(TLook look)
    {
        for (int language : BuiltLanguages())
        {
            if (language == kModule && GetParam().onlyInLibraries)
                continue;
            SCOPED_TRACE("language " + std::to_string(language));
            const SDialogPicture& picture = PictureOf(language, GetParam().id);
            ASSERT_EQ(picture.failures, std::vector<std::string>());
            ASSERT_FALSE(picture.controls.empty());
            look(picture);
        }
    }
};

TEST_P(TemplatesTest, HoldsItsControlsInTabOrder)
{
    InEveryLanguage([&](const SDialogPicture& picture) {
        const std::vector<SExpectedControl> expected = GetParam().ControlsIn(picture.language != kModule);
        ASSERT_EQ(picture.controls.size(), expected.size());
        for (size_t i = 0; i < expected.size(); ++i)
        {
            EXPECT_EQ(picture.controls[i].id, expected[i].id) << "control " << i;
            EXPECT_EQ(KindOf(picture.controls[i]), expected[i].kind) << "control " << i;
        }
    });
}

TEST_P(TemplatesTest, HasItsEnglishTexts)
{
    for (int language : {kModule, kEnglish})
    {
        if (language == kModule && GetParam().onlyInLibraries)
            continue;
        const SDialogPicture& picture = PictureOf(language, GetParam().id);
        EXPECT_EQ(picture.caption, GetParam().caption);
        const std::vector<SExpectedControl> expected = GetParam().ControlsIn(language != kModule);
        ASSERT_EQ(picture.controls.size(), expected.size());
        for (size_t i = 0; i < picture.controls.size(); ++i)
            EXPECT_EQ(picture.controls[i].text, expected[i].text) << "control " << i;
    }
}

TEST_P(TemplatesTest, IsAModalDialogWithACloseBox)
{
    InEveryLanguage([](const SDialogPicture& picture) {
        EXPECT_EQ(picture.style & (WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME),
                  static_cast<DWORD>(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME));
        EXPECT_FALSE(picture.style & (WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX));
        EXPECT_FALSE(picture.caption.empty());
    });
}

TEST_P(TemplatesTest, LetsTheKeyboardReachEveryInput)
{
    InEveryLanguage([](const SDialogPicture& picture) {
        for (const SPicturedControl& control : picture.controls)
        {
            EXPECT_EQ((control.style & WS_TABSTOP) != 0, !IsNoInput(control)) << control.name;
        }
    });
}

TEST_P(TemplatesTest, KeepsItsControlsInsideAndApart)
{
    InEveryLanguage([](const SDialogPicture& picture) {
        for (const SPicturedControl& control : picture.controls)
        {
            EXPECT_GT(Width(control.rect), 0) << control.name;
            EXPECT_GT(Height(control.rect), 0) << control.name;
            EXPECT_GE(control.rect.left, 0) << control.name;
            EXPECT_GE(control.rect.top, 0) << control.name;
            EXPECT_LE(control.rect.right, picture.width) << control.name;
            EXPECT_LE(control.rect.bottom, picture.height) << control.name;
            for (const SPicturedControl& other : picture.controls)
            {
                if (&other == &control || IsFrameOf(control, other) || IsFrameOf(other, control))
                    continue;
                EXPECT_FALSE(Overlap(control.rect, other.rect)) << control.name << " and " << other.name;
            }
        }
    });
}

TEST_P(TemplatesTest, ReadsFromTheTopLeftToTheBottomRight)
{
    InEveryLanguage([](const SDialogPicture& picture) {
        for (size_t i = 1; i < picture.controls.size(); ++i)
        {
            const SPicturedControl& before = picture.controls[i - 1];
            const SPicturedControl& control = picture.controls[i];
            if (IsFrameOf(before, control))
                continue;
            // Of two columns the left one is read first.
            if (control.rect.left >= before.rect.right && control.rect.bottom <= before.rect.top)
                continue;
            if (AreInOneRow(before.rect, control.rect))
                EXPECT_GE(control.rect.left, before.rect.right) << before.name << ", " << control.name;
            else
                EXPECT_GE(control.rect.top, before.rect.bottom) << before.name << ", " << control.name;
        }
    });
}

TEST_P(TemplatesTest, ShowsEveryTextWhole)
{
    InEveryLanguage([](const SDialogPicture& picture) {
        for (const SPicturedControl& control : picture.controls)
            ExpectToFit(control, picture.lineHeight);
    });
}

// Other languages need more room than English.
TEST_P(TemplatesTest, LeavesRoomForLongerWords)
{
    for (const SPicturedControl& control : PictureOf(kEnglish, GetParam().id).controls)
        EXPECT_LE(control.textWidth * 13 / 10, RoomForText(control)) << control.name;
}

TEST_P(TemplatesTest, ShowsEveryListItemWhole)
{
    InEveryLanguage([](const SDialogPicture& picture) {
        for (const SExpectedItems& items : GetParam().ItemsIn(picture.language != kModule))
        {
            const SPicturedControl* list = picture.Find(items.combo);
            ASSERT_NE(list, nullptr) << items.combo;
            for (const auto& [text, widths] : ColumnWidths(picture.language, items.texts))
                EXPECT_LE(widths.front(), RoomForItem(*list)) << text << " in " << items.combo;
        }
    });
}

TEST_P(TemplatesTest, FitsASmallScreen)
{
    InEveryLanguage([](const SDialogPicture& picture) {
        EXPECT_LE(picture.window.cx, 800);
        EXPECT_LE(picture.window.cy, 600);
    });
}

TEST_P(TemplatesTest, GivesEveryAccessKeyOnce)
{
    InEveryLanguage([](const SDialogPicture& picture) {
        std::map<char, std::string> keys;
        for (const SPicturedControl& control : picture.controls)
        {
            if (control.className == "Static" && (control.style & SS_NOPREFIX))
                continue;
            const size_t mark = control.text.find('&');
            if (mark == std::string::npos)
                continue;
            ASSERT_LT(mark + 1, control.text.size()) << control.name;
            const char key = static_cast<char>(std::toupper(static_cast<unsigned char>(control.text[mark + 1])));
            const auto [known, isNew] = keys.emplace(key, control.name);
            EXPECT_TRUE(isNew) << known->second << " and " << control.name;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(All, TemplatesTest, testing::ValuesIn(ExpectedTemplates()),
                         [](const auto& test) { return std::to_string(test.param.id); });

// A template without a row in the tables above would go untested.
TEST(Templates, AreAllTested)
{
    for (int language : BuiltLanguages())
    {
        std::vector<unsigned> tested;
        for (const SExpectedTemplate& expected : ExpectedTemplates())
            if (language != kModule || !expected.onlyInLibraries)
                tested.push_back(expected.id);
        const CLanguage scope(language);
        EXPECT_EQ(TemplateIds(), tested) << "language " << language;
    }
}

// ---- The selection dialog -------------------------------------------------------------------------------------------

std::vector<unsigned> Ids(unsigned first, unsigned last)
{
    std::vector<unsigned> ids;
    for (unsigned id = first; id <= last; id += 2)
        ids.push_back(id);
    return ids;
}

TEST(SelectTemplate, HasAListWithTabStopsAndAReadOnlyExplanation)
{
    const SDialogPicture& picture = PictureOf(kModule, 1001);
    ASSERT_NE(picture.Find(2001), nullptr);
    ASSERT_NE(picture.Find(2002), nullptr);
    constexpr DWORD kList = LBS_NOTIFY | LBS_USETABSTOPS;
    constexpr DWORD kEdit = ES_MULTILINE | ES_READONLY | WS_VSCROLL;
    EXPECT_EQ(picture.Find(2001)->style & kList, kList);
    EXPECT_EQ(picture.Find(2001)->style & LBS_SORT, 0u);
    EXPECT_EQ(picture.Find(2002)->style & kEdit, kEdit);
}

// An empty list has no scroll bar on real windows, whatever its template says.
TEST(SelectTemplate, ScrollsALongList)
{
    CDialog dialog(1001);
    CDialogRobot robot;
    robot.Play([&] { return static_cast<int>(dialog.DoModal()); }, {[](CDialogRobot& scene) {
                   CWnd* list = scene.Dialog()->GetDlgItem(2001);
                   for (int item = 0; item < 100; item++)
                       list->SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item"));
                   EXPECT_NE(list->GetStyle() & WS_VSCROLL, 0u);
                   scene.Click(IDCANCEL);
               }});
    EXPECT_TRUE(robot.Failures().empty());
}

TEST(SelectTemplate, ShowsItsLongestItemsWhole)
{
    constexpr int kColumnGaps = 20 + 15;
    constexpr int kScrollBarAndEdges = 20 + 4;
    for (int language : BuiltLanguages())
    {
        const unsigned last = language == kModule ? 10022 : 10038;
        const SDialogPicture& picture = PictureOf(language, 1001);
        ASSERT_NE(picture.Find(2001), nullptr);

        std::vector<int> widths(3);
        for (const auto& [id, columns] : ColumnWidths(language, Ids(10000, last)))
        {
            ASSERT_EQ(columns.size(), widths.size()) << id;
            for (size_t i = 0; i < widths.size(); ++i)
                widths[i] = std::max(widths[i], columns[i]);
        }
        EXPECT_LE(std::accumulate(widths.begin(), widths.end(), kColumnGaps + kScrollBarAndEdges),
                  Width(picture.Find(2001)->rect))
            << "language " << language;
    }
}

TEST(SelectTemplate, ShowsEveryInstructionOfAFamilyWithoutScrolling)
{
    constexpr int kMostItems = 11;
    const SDialogPicture& picture = PictureOf(kModule, 1001);
    ASSERT_NE(picture.Find(2001), nullptr);
    EXPECT_GE(Height(picture.Find(2001)->rect), kMostItems * picture.lineHeight + 4);
}

// A line that is broken between words is at least four fifths full.
TEST(SelectTemplate, ShowsEveryExplanationWithoutScrolling)
{
    constexpr int kScrollBarAndEdges = 20 + 4;
    for (int language : BuiltLanguages())
    {
        std::vector<unsigned> texts = Ids(10001, language == kModule ? 10023 : 10039);
        for (unsigned id : Ids(10501, 10515))
            texts.push_back(id);
        if (language != kModule)
            texts.insert(texts.end(), {22005, 22006, 22007, 22008, 22009});

        const SDialogPicture& picture = PictureOf(language, 1001);
        ASSERT_NE(picture.Find(2002), nullptr);
        const RECT& edit = picture.Find(2002)->rect;
        const int lines = (Height(edit) - 4) / picture.lineHeight;
        for (const auto& [id, columns] : ColumnWidths(language, texts))
            EXPECT_LE(columns.front(), lines * (Width(edit) - kScrollBarAndEdges) * 4 / 5)
                << "language " << language << ", text " << id;
    }
}

} // namespace
