// The selection dialog's list: what it holds for which PLC, in which order, and what is selected at first.
#include "tests/dialogs/select/PosSelectTest.h"

#include "tests/dialogs/select/TabStops.h"

#include <algorithm>

namespace
{

using ItemDataList = std::vector<DWORD>;

const std::vector<LPCSTR> kTextsA = {
    "SPD1\t(168)\tPositioning control (Trapezoidal control)",
    "SPD1\t(168)\tPositioning control (Home position return)",
    "PLS\t(169)\tPulse output (with channel specification) (JOG operation)",
    "PWM\t(170)\tPWM output (with channel specification)",
    "SPDH\t(171)\tPulse output (with channel spacification)(trapezoidal control)",
    "SPDH\t(171)\tPulse output (with channel specification)(home position return)",
    "PLSH\t(172)\tPulse output (with channel specification)(JOG operation)",
    "PWMH\t(173)\tPWM output (with channel specification)",
    "SP0H\t(174)\tPulse output (with channel specification)(Selectable data table control operation)",
    "SPSH\t(175)\tPulse output (Linear interpolation)",
    "SPCH\t(176)\tPulse output (Arc interpolation)",
};
const ItemDataList kItemsA = {Item(168, 0), Item(168, 1), Item(169, 0), Item(170, 0), Item(171, 0), Item(171, 1),
                              Item(172, 0), Item(173, 0), Item(174, 0), Item(175, 0), Item(176, 0)};

/// The texts of table B1 are those of the language library.
const std::vector<UINT> kTextIdsB1 = {10024, 10026, 10028, 10030, 10032, 10034, 10036};
const ItemDataList kItemsB1 = {Item(171, 0), Item(171, 1), Item(172, 0), Item(173, 0),
                               Item(174, 0), Item(175, 0), Item(177, 0)};
const ItemDataList kItemsB2 = {Item(171, 0), Item(172, 0), Item(173, 0), Item(174, 0), Item(177, 0)};
const ItemDataList kItemsB3 = {Item(171, 0), Item(172, 0), Item(173, 0), Item(174, 0), Item(175, 0), Item(177, 0)};

const ItemDataList& ItemsOf(int plcType)
{
    if (plcType >= 70 && plcType <= 74)
        return kItemsB1;
    return plcType == 114 ? kItemsB2 : plcType == 117 ? kItemsB3 : kItemsA;
}

const std::vector<LPCSTR> kUnitTexts = {
    "E point control",
    "P point control  Start point",
    "P point control  Passing point",
    "JOG operation With no speed change",
    "JOG operation Those with a speed change",
    "JOG positioning operation",
    "Home position return",
    "Pulsar input operation",
};
const int kUnitVariants[] = {10010, 10020, 10030, 10040, 10050, 10060, 10070, 10080};

std::vector<CString> Strings(const std::vector<LPCSTR>& texts) { return {texts.begin(), texts.end()}; }

class CPosSelectListTest : public CPosSelectTest
{
};

/// The tab stops that texts with two tabs need: their widest columns in the font of the list.
std::vector<int> ExpectedTabStops(CWnd* list, const std::vector<CString>& texts)
{
    const HDC dc = ::GetDC(list->m_hWnd);
    const HGDIOBJ previous = ::SelectObject(dc, reinterpret_cast<HGDIOBJ>(list->SendMessage(WM_GETFONT)));
    int widest[2] = {0, 0};
    for (const CString& text : texts)
    {
        const std::string all = static_cast<LPCSTR>(text);
        size_t start = 0;
        for (int& width : widest)
        {
            const size_t end = std::min(all.find('\t', start), all.size());
            SIZE size = {};
            ::GetTextExtentPoint32A(dc, all.c_str() + start, static_cast<int>(end - start), &size);
            width = std::max<int>(width, size.cx);
            start = std::min(end + 1, all.size());
        }
    }
    ::SelectObject(dc, previous);
    ::ReleaseDC(list->m_hWnd, dc);
    const int unit = LOWORD(::GetDialogBaseUnits());
    const int first = (widest[0] > 0 ? widest[0] + 20 : 55) * 4 / unit;
    return {first, first + (widest[1] > 0 ? widest[1] + 15 : 43) * 4 / unit};
}

} // namespace

// ---- Mode 0 ---------------------------------------------------------------------------------------------------------

TEST_F(CPosSelectListTest, HasItsCaptionAndLabel)
{
    Look(0, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Caption(), "Positioning processing selection");
        EXPECT_EQ(robot.Text(kListLabel), "Instruction &list");
        EXPECT_EQ(robot.Text(kComments), "I/O comment is registered automatically.");
        EXPECT_EQ(robot.Text(IDOK), "&OK");
        EXPECT_EQ(robot.Text(IDCANCEL), "&Cancel");
        EXPECT_EQ(robot.Text(kHelp), "&Help");
    });
}

TEST_F(CPosSelectListTest, HasTheItemsOfThePlc)
{
    m_wizard.SetLanguageInfo(kEnglish);
    for (const int plcType : {0, 1, 69, 70, 71, 72, 73, 74, 75, 113, 114, 115, 117, 160, 161, 164, 165, 168, 255})
    {
        SCOPED_TRACE(testing::Message() << "PLC type " << plcType);
        m_wizard.SetPlcType(static_cast<BYTE>(plcType));
        Look(0, [&](CDialogRobot& robot) {
            EXPECT_EQ(ItemData(robot), ItemsOf(plcType));
            if (&ItemsOf(plcType) == &kItemsA)
            {
                EXPECT_EQ(robot.Items(kList), Strings(kTextsA));
            }
            EXPECT_EQ(robot.Selection(kList), 0);
        });
    }
}

TEST_F(CPosSelectListTest, HasTheSameItemsInTheModulesOwnTexts)
{
    Look(0, [&](CDialogRobot& robot) {
        EXPECT_EQ(ItemData(robot), kItemsA);
        EXPECT_EQ(robot.Items(kList), Strings(kTextsA));
    });
}

TEST_F(CPosSelectListTest, HasTheTextsOfFamilyBFromTheLibrary)
{
    m_wizard.SetLanguageInfo(kEnglish);
    m_wizard.SetPlcType(kPlcFamilyB);
    std::vector<CString> expected;
    {
        const CLanguage english(kEnglish);
        for (const UINT id : kTextIdsB1)
            expected.emplace_back(LoadText(id).value_or("missing").c_str());
    }
    Look(0, [&](CDialogRobot& robot) { EXPECT_EQ(robot.Items(kList), expected); });
    for (size_t i = 0; i < expected.size(); ++i)
    {
        const CString number = "\t(" + CString(std::to_string(HIWORD(kItemsB1[i])).c_str()) + ")\t";
        EXPECT_GT(expected[i].Find(number), 0) << expected[i];
    }
}

TEST_F(CPosSelectListTest, HasOnlyWhatIsRegistered)
{
    const std::vector<std::vector<int>> registered = {
        {},         {168},      {169},      {170},           {171},           {172},
        {173},      {174},      {175},      {176},           {177},           {168, 171},
        {176, 168}, {172, 170}, {177, 171}, {169, 173, 175}, {175, 173, 169}, {168, 169, 170, 172, 173, 174, 175, 176},
        {178},      {355},
    };
    for (const int plcType : {1, 70, 114, 117, 160})
    {
        m_wizard.SetPlcType(static_cast<BYTE>(plcType));
        for (const std::vector<int>& instructions : registered)
        {
            Support(instructions);
            ItemDataList expected;
            for (const DWORD item : ItemsOf(plcType))
                if (std::count(instructions.begin(), instructions.end(), HIWORD(item)) > 0)
                    expected.push_back(item);
            Look(0, [&](CDialogRobot& robot) {
                EXPECT_EQ(ItemData(robot), expected)
                    << "PLC type " << plcType << ", " << testing::PrintToString(instructions);
                EXPECT_EQ(robot.Selection(kList), expected.empty() ? -1 : 0);
            });
        }
    }
}

TEST_F(CPosSelectListTest, IgnoresTheLastConfirmedInstruction)
{
    SFunWizardTest::SetLastWizard(m_wizard, 0, 170, 0);
    Look(0, [](CDialogRobot& robot) { EXPECT_EQ(robot.Selection(kList), 0); });
}

// ---- Mode 1 ---------------------------------------------------------------------------------------------------------

TEST_F(CPosSelectListTest, HasTheOperationsOfTheUnitInOtherModes)
{
    ItemDataList expected;
    for (const int variant : kUnitVariants)
        expected.push_back(Item(151, variant));
    Support({}); // which is of no importance here
    for (const int mode : {1, 2, 255})
        for (const int plcType : {1, 70, 114, 160})
        {
            m_wizard.SetPlcType(static_cast<BYTE>(plcType));
            Look(mode, [&](CDialogRobot& robot) {
                EXPECT_EQ(robot.Caption(), "Positioning processing selection");
                EXPECT_EQ(robot.Text(kListLabel), "Processing &list");
                EXPECT_EQ(robot.Items(kList), Strings(kUnitTexts));
                EXPECT_EQ(ItemData(robot), expected);
            });
        }
}

TEST_F(CPosSelectListTest, SelectsTheLastConfirmedOperation)
{
    for (int item = 0; item < 8; ++item)
    {
        SFunWizardTest::SetLastWizard(m_wizard, 1, 151, kUnitVariants[item]);
        Look(1, [&](CDialogRobot& robot) { EXPECT_EQ(robot.Selection(kList), item); });
    }
    for (const int variant : {0, 1, -1, 10015, 10090})
    {
        SFunWizardTest::SetLastWizard(m_wizard, 1, 151, variant);
        Look(1, [&](CDialogRobot& robot) { EXPECT_EQ(robot.Selection(kList), 0) << variant; });
    }
    SFunWizardTest::SetLastWizard(m_wizard, 0, 168, 1);
    Look(1, [&](CDialogRobot& robot) { EXPECT_EQ(robot.Selection(kList), 0); });
    // The variant tells the operation, whatever instruction it was confirmed for.
    SFunWizardTest::SetLastWizard(m_wizard, 0, 168, 10040);
    Look(1, [&](CDialogRobot& robot) { EXPECT_EQ(robot.Selection(kList), 3); });
}

// ---- After a choice that led back -----------------------------------------------------------------------------------

TEST_F(CPosSelectListTest, SelectsTheChoiceThatLedBack)
{
    UseSelectionOnly(); // every choice leads back
    for (const int mode : {0, 1})
        Open(mode, {[](CDialogRobot& robot) {
                        robot.Select(kList, 2);
                        robot.Click(IDOK);
                    },
                    [](CDialogRobot& robot) {
                        EXPECT_EQ(robot.Selection(kList), 2);
                        robot.Select(kList, 5);
                        robot.Click(IDOK);
                    },
                    [](CDialogRobot& robot) {
                        EXPECT_EQ(robot.Selection(kList), 5);
                        robot.Click(IDOK);
                    },
                    [](CDialogRobot& robot) {
                        EXPECT_EQ(robot.Selection(kList), 5);
                        robot.Click(IDCANCEL);
                    }});
}

// ---- Whose texts ----------------------------------------------------------------------------------------------------

TEST_F(CPosSelectListTest, TakesEverythingFromTheLanguageLibrary)
{
    UseSelectionOnly();
    const HINSTANCE before = AfxGetResourceHandle();
    Support({168, 169});
    Look(0, [&](CDialogRobot& robot) {
        EXPECT_EQ(robot.Caption(), "Auswahl");
        EXPECT_EQ(robot.Text(kListLabel), "&Liste");
        EXPECT_EQ(robot.Items(kList)[0], "Eins\t(168)\tRampe");
        EXPECT_EQ(robot.Items(kList)[1], "") << "a text that the library does not have comes from nowhere else";
        EXPECT_EQ(robot.Items(kList)[2], "Zwei\t(169)\tTippen");
        EXPECT_EQ(AfxGetResourceHandle(), m_wizard.GetLoadInstance());
    });
    Look(1, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(kListLabel), "&Ablauf");
        EXPECT_EQ(robot.Items(kList)[0], "Ziel");
    });
    EXPECT_EQ(AfxGetResourceHandle(), before);

    m_wizard.SetLanguageInfo(7); // a language without a library: the module's own texts
    Look(0, [](CDialogRobot& robot) { EXPECT_EQ(robot.Caption(), "Positioning processing selection"); });
}

TEST_F(CPosSelectListTest, HasTheDialogFont)
{
    Look(0, [&](CDialogRobot& robot) {
        const CFont* font = SFunWizardTest::DialogFont(m_wizard);
        ASSERT_NE(font, nullptr);
        for (CWnd* control = robot.Dialog()->GetWindow(GW_CHILD); control; control = control->GetWindow(GW_HWNDNEXT))
            EXPECT_EQ(control->SendMessage(WM_GETFONT), reinterpret_cast<LRESULT>(font->GetSafeHandle()));
    });
}

// ---- Columns --------------------------------------------------------------------------------------------------------

TEST_F(CPosSelectListTest, HasColumnsAsWideAsTheWidestTextOfTheCatalogue)
{
    std::vector<CString> texts = Strings(kTextsA);
    texts.push_back("PID\t(355)\tPID processing"); // measured, though it is never listed
    for (const std::vector<int>& registered : {std::vector<int>{169}, {168, 176}, {}})
    {
        Support(registered);
        const CTabStopWatch watch;
        Look(0, [&](CDialogRobot& robot) {
            CWnd* list = robot.Dialog()->GetDlgItem(kList);
            EXPECT_EQ(watch.Of(list->m_hWnd), ExpectedTabStops(list, texts));
        });
    }
}

// The list draws a stop as so many quarters of the average width of the letters of its font.
TEST_F(CPosSelectListTest, KeepsItsColumnsApartInEveryLanguage)
{
    for (const int language : BuiltLanguages())
    {
        SCOPED_TRACE(testing::Message() << "language " << language);
        m_wizard.SetLanguageInfo(language);
        const CTabStopWatch watch;
        Look(0, [&](CDialogRobot& robot) {
            CWnd* list = robot.Dialog()->GetDlgItem(kList);
            CClientDC dc(list);
            CFont* previous = dc.SelectObject(list->GetFont());
            const CString letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
            const int unit = (dc.GetTextExtent(letters).cx / 26 + 1) / 2;
            const std::vector<int> stops = watch.Of(list->m_hWnd);
            ASSERT_EQ(stops.size(), 2u);
            for (const CString& item : robot.Items(kList))
            {
                const int first = item.Find('\t');
                const CString rest = item.Mid(first + 1);
                EXPECT_LT(dc.GetTextExtent(item.Left(first)).cx, stops[0] * unit / 4) << item;
                EXPECT_LT(dc.GetTextExtent(rest.Left(rest.Find('\t'))).cx, (stops[1] - stops[0]) * unit / 4) << item;
            }
            dc.SelectObject(previous);
        });
    }
}

TEST_F(CPosSelectListTest, HasColumnsInTheTextsOfTheLibrary)
{
    UseSelectionOnly();
    const CTabStopWatch watch;
    Look(0, [&](CDialogRobot& robot) {
        CWnd* list = robot.Dialog()->GetDlgItem(kList);
        EXPECT_EQ(watch.Of(list->m_hWnd), ExpectedTabStops(list, Strings({"Eins\t(168)\t", "Zwei\t(169)\t"})));
    });
}

TEST_F(CPosSelectListTest, HasColumnsOfAFixedWidthWithoutTexts)
{
    m_wizard.SetPlcType(kPlcFamilyB); // whose texts the module does not have
    const int unit = LOWORD(::GetDialogBaseUnits());
    const CTabStopWatch watch;
    Look(0, [&](CDialogRobot& robot) {
        EXPECT_EQ(watch.Of(robot.Dialog()->GetDlgItem(kList)->m_hWnd),
                  (std::vector<int>{55 * 4 / unit, 55 * 4 / unit + 43 * 4 / unit}));
    });
}

TEST_F(CPosSelectListTest, HasNoColumnsForOperations)
{
    const CTabStopWatch watch;
    Look(1, [&](CDialogRobot& robot) {
        EXPECT_EQ(watch.Of(robot.Dialog()->GetDlgItem(kList)->m_hWnd), std::vector<int>());
    });
}
