// The explanations of every language, broken into lines of many widths.
#include "tests/languages/LineBreaks.h"
#include "tests/languages/Translations.h"

#include "tests/robust/CodePage.h"

#include "afx/CodePage.h"
#include "core/ResourceScope.h"
#include "core/Values.h"
#include "dialogs/base/Catalogue.h"

#include <set>

namespace
{

class CLineBreaksTest : public testing::Test, public testing::WithParamInterface<SLanguageOnSystem>
{
protected:
    CLineBreaksTest() { UseCodePage(GetParam().page); }
    ~CLineBreaksTest() override { UseCodePage(kWesternPage); }

    static std::set<unsigned> Explanations()
    {
        std::set<unsigned> ids;
        for (const EWizardMode mode : {kPulseInstructions, kUnitOperations})
            for (const BYTE plcType : {BYTE{1}, BYTE{50}, BYTE{70}, BYTE{114}, BYTE{117}, BYTE{160}})
                for (const SCatalogueItem& item : CatalogueItems(mode, plcType))
                    ids.insert(ExplanationText(mode, plcType, item.choice));
        ids.erase(0);
        return ids;
    }
};

TEST_P(CLineBreaksTest, StandWhereTheLanguageAllows)
{
    constexpr int kNarrowest = 250, kWidest = 600, kStep = 23;
    const CLibraryTexts texts(GetParam().translation.index);
    const CResourceScope scope(texts.Library());
    CClientDC dc(CWnd::FromHandle(::GetDesktopWindow()));
    size_t breaks = 0;
    for (const unsigned id : Explanations())
        for (int width = kNarrowest; width <= kWidest; width += kStep)
        {
            CString rest;
            ASSERT_TRUE(rest.LoadString(id));
            std::string lines;
            for (; !rest.IsEmpty(); ++breaks)
            {
                const CString line = TakeFittingLine(&dc, width, rest);
                const CWideText wide(line);
                lines += (lines.empty() ? "" : "\r\n") + Utf8(wide, wide.GetLength());
            }
            ExpectAllowedBreaks(lines);
        }
    EXPECT_GT(breaks, 100u);
}

INSTANTIATE_TEST_SUITE_P(Systems, CLineBreaksTest, testing::ValuesIn(LanguagesOnSystems()),
                         [](const auto& test) { return NameOf(test.param); });

} // namespace
