// Which code page the texts of a wizard are in, and what goes by it: comments do, the host's own texts do not.
#include "tests/core/FunWizardTest.h"

#include "afx/CodePage.h"
#include "dialogs/pulse/Spd1Dlg.h"
#include "resources/resource.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"

namespace
{

struct SLanguage
{
    int index;
    UINT page; ///< 0 for the system's
    const char* face;
};

constexpr SLanguage kLanguages[] = {
    {0, 0, "MS Sans Serif"}, {1, 932, "MS UI Gothic"},   {2, 936, "SimSun"},         {3, 950, "PMingLiU"},
    {4, 949, "Gulim"},       {5, 1252, "MS Sans Serif"}, {6, 1252, "MS Sans Serif"}, {9, 874, "Microsoft Sans Serif"},
};
constexpr int kJapanese = 1;
constexpr int kThai = 9;

UINT PageOf(const SLanguage& language) { return language.page != 0 ? language.page : ::GetACP(); }

CString FaceOf(CFont* font)
{
    LOGFONTA description = {};
    EXPECT_NE(font->GetLogFont(&description), 0);
    return description.lfFaceName;
}

std::u16string Held(HWND window)
{
    WCHAR text[300] = {};
    ::GetWindowTextW(window, text, 300);
    return reinterpret_cast<const char16_t*>(text);
}

std::u16string Wide(LPCSTR text, UINT page)
{
    return reinterpret_cast<const char16_t*>(static_cast<LPCWSTR>(CWideText(text, -1, page)));
}

TEST(TextCodePage, IsThatOfTheLanguage)
{
    CFunWizard wizard;
    for (const SLanguage& language : kLanguages)
    {
        ASSERT_NE(wizard.SetLanguageInfo(language.index), nullptr) << language.index;
        EXPECT_EQ(wizard.GetTextCodePage(), PageOf(language)) << language.index;
    }
}

TEST(TextCodePage, IsTheSystemsWithoutALanguage)
{
    CFunWizard wizard;
    EXPECT_EQ(wizard.GetTextCodePage(), ::GetACP());
    for (const int none : {7, 8, -1, 100})
    {
        wizard.SetLanguageInfo(kJapanese);
        EXPECT_EQ(wizard.SetLanguageInfo(none), nullptr);
        EXPECT_EQ(wizard.GetTextCodePage(), ::GetACP()) << none;
    }
    wizard.SetLanguageInfo(kThai);
    wizard.ResetContents();
    EXPECT_EQ(wizard.GetTextCodePage(), ::GetACP());
}

TEST(TextCodePage, BelongsToEachObject)
{
    CFunWizard japanese;
    CFunWizard thai;
    japanese.SetLanguageInfo(kJapanese);
    thai.SetLanguageInfo(kThai);
    EXPECT_EQ(japanese.GetTextCodePage(), 932u);
    EXPECT_EQ(thai.GetTextCodePage(), 874u);
    EXPECT_EQ(AfxGetTextPage(), static_cast<UINT>(CP_ACP)) << "between operations nothing is in a page";
}

TEST(DialogFontOfALanguage, HasItsFaceAndTheSameHeight)
{
    CFunWizard wizard;
    LOGFONTA english = {};
    wizard.CreateDlgFont(nullptr)->GetLogFont(&english);
    for (const SLanguage& language : kLanguages)
    {
        ASSERT_NE(wizard.SetLanguageInfo(language.index), nullptr);
        CFont* font = wizard.CreateDlgFont(nullptr);
        ASSERT_NE(font, nullptr);
        EXPECT_EQ(FaceOf(font), language.face) << language.index;
        LOGFONTA description = {};
        font->GetLogFont(&description);
        EXPECT_EQ(description.lfHeight, english.lfHeight) << language.index;
        EXPECT_EQ(AfxGetTextPage(), static_cast<UINT>(CP_ACP));
    }
}

// ---- What goes by the page ------------------------------------------------------------------------------------------

/// A dialog that reads the caption of what takes the activity from it.
class CWatchedDlg : public CSpd1Dlg
{
public:
    explicit CWatchedDlg(CFunWizard* wizard) : CSpd1Dlg(wizard, false, nullptr) {}

    std::u16string m_captionAbove;

protected:
    DECLARE_MESSAGE_MAP()

    LRESULT OnActivate(WPARAM state, LPARAM other)
    {
        if (LOWORD(state) == WA_INACTIVE && other != 0)
            m_captionAbove = Held(reinterpret_cast<HWND>(other));
        return Default();
    }
};

BEGIN_MESSAGE_MAP(CWatchedDlg, CSpd1Dlg)
ON_MESSAGE(WM_ACTIVATE, &CWatchedDlg::OnActivate)
END_MESSAGE_MAP()

class CTextPageTest : public CDesktopTest, public testing::WithParamInterface<SLanguage>
{
protected:
    CTextPageTest()
    {
        m_wizard.SetLanguageInfo(GetParam().index);
        SetUpController(m_wizard);
        m_wizard.CreateDlgFont(nullptr);
    }
    ~CTextPageTest() override { PexloDll_SetAppName(""); }

    int Open(const CDialogRobot::Scene& scene)
    {
        CWatchedDlg dialog(&m_wizard);
        const int result = Play([&] { return static_cast<int>(dialog.DoModal()); }, {scene});
        m_captionAbove = dialog.m_captionAbove;
        return result;
    }

    CFunWizard m_wizard;
    std::u16string m_captionAbove; // of the last message box
};

HWND LabelOf(const CDialogRobot& dialog, UINT edit)
{
    return ::GetWindow(::GetDlgItem(dialog.Dialog()->m_hWnd, static_cast<int>(edit)), GW_HWNDPREV);
}

TEST_P(CTextPageTest, IsThatOfTheComments)
{
    constexpr UINT kEntries[] = {IDC_SPD1_INITIAL, IDC_SPD1_MAXIMUM, IDC_SPD1_TIME, IDC_SPD1_TARGET};
    std::vector<std::u16string> labels;
    m_wizard.SetCmtRec(1);
    EXPECT_EQ(Open([&](CDialogRobot& dialog) {
                  for (const UINT entry : kEntries)
                      labels.push_back(Held(LabelOf(dialog, entry)));
                  dialog.Type(IDC_CONTACT_NUMBER, "5");
                  dialog.Type(IDC_SPD1_START, "100");
                  dialog.Type(IDC_SPD1_INITIAL, "100");
                  dialog.Type(IDC_SPD1_MAXIMUM, "1000");
                  dialog.Type(IDC_SPD1_TIME, "100");
                  dialog.Type(IDC_SPD1_TARGET, "10000");
                  dialog.Click(IDOK);
              }),
              1);
    const std::vector<std::string> comments = ReadResults(m_wizard).comments;
    ASSERT_EQ(comments.size(), 1 + std::size(kEntries)) << "the first one is that of the control code";
    for (size_t i = 0; i < labels.size(); ++i)
    {
        EXPECT_FALSE(labels[i].empty());
        EXPECT_EQ(Wide(comments[1 + i].c_str(), m_wizard.GetTextCodePage()), labels[i]);
    }
}

// The application is the host's: its name is in the system's page whatever the language of the library.
TEST_P(CTextPageTest, IsNotThatOfTheApplicationsName)
{
    constexpr char16_t kName[] = u"Caf\u00E9";
    const CString name = AfxNarrow(reinterpret_cast<LPCWSTR>(kName), 4, CP_ACP);
    PexloDll_SetAppName(name);
    Open([&](CDialogRobot& dialog) {
        EXPECT_STRNE(dialog.ClickAndAnswer(IDOK), "");
        dialog.Click(IDCANCEL);
    });
    EXPECT_EQ(m_captionAbove, Wide(name, CP_ACP));
    if (::GetACP() == 1252)
    {
        EXPECT_EQ(m_captionAbove, kName);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, CTextPageTest, testing::ValuesIn(kLanguages),
                         [](const auto& test) { return std::to_string(test.param.index); });

} // namespace
