// The dialog that each item of the selection list opens, in every family of controllers.
#include "resources/resource.h"
#include "tests/dialogs/select/PosSelectTest.h"

#include <set>

namespace
{

/// The templates that the module does not have: without a language library, choosing them leads back.
const std::set<UINT> kInLibrariesOnly = {1059, 1060, 1061, 1062, 1063, 1064, 1065, 1067, 1069, 1070, 1071, 1072, 1073};

struct SItemDialog
{
    DWORD item;
    UINT dialog;                 ///< 0 = leads back
    const char* title = nullptr; ///< where it is not the template's
};

struct SItemDialogs
{
    int mode;
    int plcType;
    std::vector<SItemDialog> items;
};

const SItemDialogs kItemDialogs[] = {
    {0,
     kPlcFamilyA,
     {{Item(168, 0), 1011},
      {Item(168, 1), 1012},
      {Item(169, 0), 1013},
      {Item(170, 0), 1014},
      {Item(171, 0), 1015},
      {Item(171, 1), 1016},
      {Item(172, 0), 1017},
      {Item(173, 0), 1018},
      {Item(174, 0), 1019},
      {Item(175, 0), 1020},
      {Item(176, 0), 1021}}},
    {0,
     kPlcFamilyB,
     {{Item(171, 0), 1059},
      {Item(171, 1), 1060},
      {Item(172, 0), 1062},
      {Item(173, 0), 1063},
      {Item(174, 0), 1064},
      {Item(175, 0), 1065},
      {Item(177, 0), 1067}}},
    {0,
     kPlcFamilyB114,
     {{Item(171, 0), 1059}, {Item(172, 0), 1062}, {Item(173, 0), 1063}, {Item(174, 0), 1064}, {Item(177, 0), 1067}}},
    {0,
     kPlcFamilyB117,
     {{Item(171, 0), 1059},
      {Item(172, 0), 1062},
      {Item(173, 0), 1063},
      {Item(174, 0), 1064},
      {Item(175, 0), 1065},
      {Item(177, 0), 1067}}},
    {0,
     kPlcFamilyC,
     {{Item(168, 0), 0},
      {Item(168, 1), 0},
      {Item(169, 0), 0},
      {Item(170, 0), 0},
      {Item(171, 0), 1061},
      {Item(171, 1), 1069},
      {Item(172, 0), 1070},
      {Item(173, 0), 1071},
      {Item(174, 0), 1072},
      {Item(175, 0), 1073},
      {Item(176, 0), 0}}},
    {1,
     kPlcFamilyA,
     {{Item(151, 10010), 1051},
      {Item(151, 10020), 1051, "P point control start point"},
      {Item(151, 10030), 1052},
      {Item(151, 10040), 1053},
      {Item(151, 10050), 1054},
      {Item(151, 10060), 1051, "JOG positioning operation"},
      {Item(151, 10070), 1055},
      {Item(151, 10080), 1056}}},
};

struct STemplateLook
{
    CString caption;
    size_t controls;
};

/// Reads the head of an extended template of the resources in use; its caption is plain ASCII.
STemplateLook LookOf(UINT templateId)
{
    constexpr int kControlCount = 8; // these count words
    constexpr int kMenu = 13;
    const HINSTANCE library = AfxGetResourceHandle();
    const HRSRC found = ::FindResourceA(library, MAKEINTRESOURCEA(templateId), RT_DIALOG);
    if (found == nullptr)
        return {"no such template", 0};
    const auto* words = static_cast<const WORD*>(::LockResource(::LoadResource(library, found)));
    STemplateLook look = {"", words[kControlCount]};
    int position = kMenu;
    for (int skipped = 0; skipped < 2; ++skipped) // menu and class: an ordinal or a text
    {
        if (words[position] == 0xFFFF)
            ++position;
        else
            while (words[position] != 0)
                ++position;
        ++position;
    }
    for (; words[position] != 0; ++position)
        look.caption += static_cast<char>(words[position]);
    return look;
}

class CItemDialogsTest : public CPosSelectTest
{
protected:
    /// Chooses an item, which opens its dialog or leads back, and cancels what is open then.
    void Choose(const SItemDialogs& list, int i, bool leadsBack)
    {
        const SItemDialog& row = list.items[static_cast<size_t>(i)];
        const auto choose = [&](CDialogRobot& robot) {
            ASSERT_EQ(ItemData(robot).at(static_cast<size_t>(i)), row.item);
            robot.Select(kList, i);
            robot.Click(IDOK);
        };
        const auto cancelSelection = [&](CDialogRobot& robot) {
            EXPECT_EQ(robot.Caption(), "Positioning processing selection");
            EXPECT_EQ(robot.Selection(kList), i);
            robot.Click(IDCANCEL);
        };
        if (leadsBack)
        {
            Open(list.mode, {choose, cancelSelection});
            return;
        }
        Open(list.mode, {choose,
                         [&](CDialogRobot& robot) {
                             const STemplateLook look = LookOf(row.dialog);
                             EXPECT_EQ(robot.Caption(), row.title != nullptr ? CString(row.title) : look.caption);
                             EXPECT_EQ(robot.Controls().size() - robot.Exists(IDC_GRID_CELLS), look.controls);
                             robot.Click(IDCANCEL);
                         },
                         cancelSelection});
    }

    /// Calls choose(list, item) for every item of every list of a family.
    template <typename TChoose>
    void ForEachItem(TChoose choose)
    {
        for (const SItemDialogs& list : kItemDialogs)
            for (int i = 0; i < static_cast<int>(list.items.size()); ++i)
            {
                const DWORD item = list.items[static_cast<size_t>(i)].item;
                SCOPED_TRACE(testing::Message()
                             << "PLC type " << list.plcType << ", item " << HIWORD(item) << "/" << LOWORD(item));
                m_wizard.SetPlcType(static_cast<BYTE>(list.plcType));
                choose(list, i);
            }
    }
};

} // namespace

TEST_F(CItemDialogsTest, AreThoseOfTheFamily)
{
    m_wizard.SetLanguageInfo(kEnglish);
    ForEachItem(
        [this](const SItemDialogs& list, int i) { Choose(list, i, list.items[static_cast<size_t>(i)].dialog == 0); });
}

// The module lists the items of every family, those of family B without their texts, and opens family A's dialogs
// alone.
TEST_F(CItemDialogsTest, LeadBackWithoutALanguageLibrary)
{
    m_wizard.SetLanguageInfo(-1);
    ForEachItem([this](const SItemDialogs& list, int i) {
        const UINT dialog = list.items[static_cast<size_t>(i)].dialog;
        Choose(list, i, dialog == 0 || kInLibrariesOnly.count(dialog) > 0);
    });
}
