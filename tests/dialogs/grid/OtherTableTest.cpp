// The table in another dialog: so many rows as the dialog says, columns with notations, ranges and messages of their
// own, stored column by column.
#include "core/FunWizard.h"
#include "dialogs/base/WzdResults.h"
#include "dialogs/fields/Rows.h"
#include "dialogs/grid/GridField.h"
#include "tests/dialogs/grid/GridRobot.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/DialogChecks.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"

namespace
{

constexpr int kRows = 3;

constexpr UINT kHeadings[] = {IDC_SP0H_STEP_FREQUENCY, IDC_SP0H_STEP_TARGET};
constexpr UINT kRowLabels[] = {IDC_SP0H_ROW_1, IDC_SP0H_ROW_2, IDC_SP0H_ROW_3, IDC_SP0H_ROW_4, IDC_SP0H_ROW_5};
constexpr SGridControls kTable = {kHeadings, kRowLabels, IDC_SP0H_CELL_EDITOR, IDC_SP0H_SCROLL};

/// All rows count, filled or not; first the cells of the one column are stored, then those of the other.
class CPairsField : public CGridField
{
public:
    using CGridField::CGridField;

    bool Collect(CWzdResults& results) override
    {
        for (int row = 0; row < kRows; ++row)
            for (int column = 0; column < 2; ++column)
                if (!ReadCell({row, column}, m_values[column][row]))
                    return false;
        for (int i = 0; i < 2 * kRows; ++i)
            results.AddData({i}, kDecimalConstant, static_cast<LONG>(m_values[i / kRows][i % kRows]));
        return true;
    }

protected:
    int MostRows() const override { return kRows; }

    void Restore() override
    {
        SFunSetData data;
        for (int i = 0; m_dialog.Wizard().GetDataInfo(i, &data); ++i)
            SetValue({i % kRows, i / kRows}, data.value);
    }

private:
    LONGLONG m_values[2][kRows] = {};
};

class CPairsDlg : public CGridDlg
{
public:
    explicit CPairsDlg(CFunWizard* wizard) : CGridDlg(wizard, IDD_SP0H, kTable, nullptr) {}

    void DoFieldExchange(CWzdExchange* wx) override
    {
        const SGridColumn columns[] = {
            {.limit = 6, .format = Fixed(3, 2), .range = {100, 99999}, .message = IDS_ERR_DATA_X},
            {.limit = 4, .format = kUnsigned, .range = {0, 50}, .message = IDS_ERR_DATA_Y}};
        WDX_TableStart(wx, {.edit = IDC_SP0H_START, .rangeLabel = IDC_SP0H_START_RANGE});
        WzdDeclare<CPairsField>(wx, {.entry = {0, kOneRegister, 2LL * kRows}}, *this, columns);
    }
};

class COtherTableTest : public CDesktopTest
{
protected:
    COtherTableTest()
    {
        SetUpController(m_wizard);
        PexloDll_SetAppName(kTestAppName);
    }
    ~COtherTableTest() override { PexloDll_SetAppName(nullptr); }

    int Open(const CDialogRobot::Scene& scene)
    {
        return Play([&] { return static_cast<int>(CPairsDlg(&m_wizard).DoModal()); }, {scene});
    }

    CFunWizard m_wizard;
};

} // namespace

TEST_F(COtherTableTest, ReadsStoresAndRestoresItsOwnWay)
{
    EXPECT_EQ(Open([](CDialogRobot& dialog) {
                  dialog.Type(IDC_SP0H_START, "7");
                  PasteCells(dialog, "1.5\t10\n2.25\t20\n");
                  ExpectRefusal(dialog, 20001, IDC_SP0H_CELL_EDITOR); // of the third row
                  EXPECT_EQ(CellsOf(dialog).Current(), (SGridCell{2, 0}));
                  dialog.PressKey(VK_ESCAPE);
                  TypeCells(dialog, {"0.99", "51"});
                  ExpectRefusal(dialog, 20043, IDC_SP0H_CELL_EDITOR);
                  TypeHere(dialog, "1");
                  ExpectRefusal(dialog, 20044, IDC_SP0H_CELL_EDITOR);
                  TypeHere(dialog, "50");
                  dialog.Click(IDOK);
              }),
              IDOK);
    EXPECT_EQ(ReadResults(m_wizard).data, (std::vector<SDataRow>{{9, 7, 0, 0, 150},
                                                                 {9, 8, 0, 0, 225},
                                                                 {9, 9, 0, 0, 100},
                                                                 {9, 10, 0, 0, 10},
                                                                 {9, 11, 0, 0, 20},
                                                                 {9, 12, 0, 0, 50}}));
    Open([](CDialogRobot& dialog) {
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"1.5", "10"}, {"2.25", "20"}, {"1", "50"}}));
        EXPECT_EQ(RowLabels(dialog), (std::vector<std::string>{"1", "2", "3", "", ""}));
        EXPECT_EQ(dialog.Text(IDC_SP0H_STEP_FREQUENCY), CString("Frequency (Hz)\n")); // which it leaves alone
        dialog.Click(IDCANCEL);
    });
}

// ---- What headings say, and what the dialog is told -----------------------------------------------------------------

namespace
{

/// A table that says what it is told of, and shows ranges in headings that have no second line yet.
class CTellingDlg : public CGridDlg
{
public:
    explicit CTellingDlg(CFunWizard* wizard) : CGridDlg(wizard, IDD_SP0H, kTable, nullptr) {}

    void DoFieldExchange(CWzdExchange* wx) override
    {
        const SGridColumn columns[] = {
            {.range = {-7, m_highest}, .rangeHeading = IDC_SP0H_STEP_FREQUENCY},
            {.range = {-7, 99}, .rangeHeading = IDC_SP0H_CORNER, .rangeText = IDS_RANGE_REAL}};
        WzdDeclare<CPairsField>(wx, {}, *this, columns);
    }

    void OnChanged(UINT id) override
    {
        if (id == IDC_SP0H_CELL_EDITOR)
            m_told.push_back({Grid().ToldRows(), Grid().Model().UsedRows()});
        CGridDlg::OnChanged(id);
    }

    struct STold
    {
        int before;
        int now;

        bool operator==(const STold&) const = default;
    };
    std::vector<STold> m_told;
    LONGLONG m_highest = 9;
};

std::ostream& operator<<(std::ostream& out, const CTellingDlg::STold& told)
{
    return out << told.before << " to " << told.now;
}

} // namespace

TEST_F(COtherTableTest, ShowsRangesBelowTheTextsOfHeadings)
{
    CTellingDlg table(&m_wizard);
    Play([&] { return static_cast<int>(table.DoModal()); }, {[&](CDialogRobot& dialog) {
             EXPECT_EQ(dialog.Text(IDC_SP0H_STEP_FREQUENCY), CString("Frequency (Hz)\n(-7 - 9)"));
             EXPECT_EQ(dialog.Text(IDC_SP0H_CORNER), CString("\n+-1.175494e-38 - 3.402823e+38"));
             dialog.Dialog()->SetDlgItemText(IDC_SP0H_STEP_FREQUENCY, "One line");
             table.m_highest = 12;
             table.OnChanged(IDC_SP0H_START);
             EXPECT_EQ(dialog.Text(IDC_SP0H_STEP_FREQUENCY), CString("One line\n(-7 - 12)"));
             table.m_highest = 5;
             table.OnChanged(IDC_SP0H_START);
             EXPECT_EQ(dialog.Text(IDC_SP0H_STEP_FREQUENCY), CString("One line\n(-7 - 5)"));
             EXPECT_EQ(dialog.Text(IDC_SP0H_CORNER), CString("\n+-1.175494e-38 - 3.402823e+38"));
             dialog.Click(IDCANCEL);
         }});
}

TEST_F(COtherTableTest, TellsTheDialogWhenRowsBecomeMoreOrFewer)
{
    CTellingDlg table(&m_wizard);
    Play([&] { return static_cast<int>(table.DoModal()); }, {[&](CDialogRobot& dialog) {
             using Told = std::vector<CTellingDlg::STold>;
             dialog.Focus(kGridCells);
             TypeCells(dialog, {"1", "2"}); // the first row is one that there always is
             EXPECT_EQ(table.m_told, Told());
             TypeCells(dialog, {"3"});
             EXPECT_EQ(table.m_told, (Told{{1, 2}}));
             TypeCells(dialog, {"4", "5"});
             EXPECT_EQ(table.m_told, (Told{{1, 2}, {2, 3}}));
             PressCtrl(dialog, VK_HOME);
             PressCtrl(dialog, 'D');
             EXPECT_EQ(table.m_told, (Told{{1, 2}, {2, 3}, {3, 2}}));
             table.m_told.clear();
             PressCtrl(dialog, VK_END); // the third row again, still in the editor
             dialog.PressKey(VK_DOWN);
             TypeHere(dialog, "7");
             EXPECT_EQ(table.m_told, Told());
             EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString(MessageText(20001).c_str()));
             EXPECT_EQ(table.m_told, (Told{{2, 3}})) << "once, by OK";
             dialog.PressKey(VK_ESCAPE);
             dialog.Click(IDCANCEL);
         }});
}

TEST_F(COtherTableTest, CommitsToldOnce)
{
    CTellingDlg table(&m_wizard);
    Play([&] { return static_cast<int>(table.DoModal()); }, {[&](CDialogRobot& dialog) {
             using Told = std::vector<CTellingDlg::STold>;
             dialog.Focus(kGridCells);
             dialog.PressKey(VK_DOWN);
             TypeHere(dialog, "7");
             table.Grid().Commit();
             EXPECT_EQ(table.m_told, (Told{{1, 2}}));
             EXPECT_FALSE(dialog.Visible(IDC_SP0H_CELL_EDITOR));
             table.Grid().Commit();
             EXPECT_EQ(table.m_told, (Told{{1, 2}}));
             EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"", ""}, {"7", ""}}));
             dialog.Click(IDCANCEL);
         }});
}
