// What dialogs put into their controls when they are open: that it fits them in every language.
#include "tests/dialogs/InstructionDialogs.h"
#include "tests/resources/RoomForText.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/Sampled.h"

#include <cstring>

namespace
{

bool IsShown(const SPicturedControl& control) { return (control.style & WS_VISIBLE) != 0; }

/// Texts that the user enters, or that scroll.
bool HoldsEntries(const SPicturedControl& control)
{
    const EControl kind = KindOf(control);
    return kind == EControl::Edit || kind == EControl::ListBox || kind == EControl::DropList;
}

void ExpectTextsToFit(CDialogRobot& robot)
{
    SDialogPicture picture;
    TakePicture(robot, picture);
    for (const SPicturedControl& control : picture.controls)
        if (IsShown(control) && !control.text.empty() && !HoldsEntries(control))
            ExpectToFit(control, picture.lineHeight);
}

/// The drop-down lists that a user can open.
std::vector<SPicturedControl> Lists(CDialogRobot& robot)
{
    SDialogPicture picture;
    TakePicture(robot, picture);
    std::erase_if(picture.controls, [](const SPicturedControl& control) {
        return control.className != "ComboBox" || !IsShown(control) || (control.style & WS_DISABLED) != 0;
    });
    return picture.controls;
}

void ExpectItemsToFit(CDialogRobot& robot, const SPicturedControl& list)
{
    const CTextRuler ruler(robot.Dialog()->GetFont());
    for (const CString& item : robot.Items(list.id))
        EXPECT_LE(ruler.Width(Plain(item)), RoomForItem(list))
            << list.id << ": " << Utf8(FromPage(Plain(item), AfxGetTextPage()));
}

class COpenDialogsTest : public CDesktopTest, public testing::WithParamInterface<SInstructionDialog>
{
protected:
    std::vector<int> Languages() const
    {
        std::vector<int> languages = BuiltLanguages();
        if (GetParam().sources == kLibrariesOnly)
            std::erase(languages, kModule);
        return languages;
    }
    /// All of them, or as a sample a single one, the next one for the next dialog.
    std::vector<int> SampledLanguages() const
    {
        const std::vector<int> languages = Languages();
        size_t dialog = 0;
        while (std::strcmp(kInstructionDialogs[dialog].name, GetParam().name) != 0)
            ++dialog;
        return IsThorough() ? languages : std::vector<int>{languages[dialog % languages.size()]};
    }

    template <typename TLook>
    void InLanguages(const std::vector<int>& languages, TLook look)
    {
        for (const int language : languages)
        {
            SCOPED_TRACE("language " + std::to_string(language));
            CLanguage scope(language);
            SetUpController(scope.Wizard());
            scope.Wizard().CreateDlgFont(nullptr);
            const auto dialog = GetParam().make(&scope.Wizard());
            Play([&] { return static_cast<int>(dialog->DoModal()); }, {[&](CDialogRobot& robot) {
                     look(robot);
                     robot.Click(IDCANCEL);
                 }});
        }
    }
};

TEST_P(COpenDialogsTest, ShowEveryTextAndItemWhole)
{
    InLanguages(Languages(), [](CDialogRobot& robot) {
        ExpectTextsToFit(robot);
        for (const SPicturedControl& list : Lists(robot))
            ExpectItemsToFit(robot, list);
    });
}

// Ranges, labels and other lists follow what is selected.
TEST_P(COpenDialogsTest, ShowEveryTextWholeWhateverIsSelected)
{
    InLanguages(SampledLanguages(), [](CDialogRobot& robot) {
        for (const SPicturedControl& list : Lists(robot))
        {
            const int items = static_cast<int>(robot.Items(list.id).size());
            for (int item = 0; item < items && robot.Enabled(list.id) && robot.Visible(list.id); ++item)
            {
                SCOPED_TRACE("item " + std::to_string(item) + " of " + std::to_string(list.id));
                robot.Select(list.id, item);
                ExpectTextsToFit(robot);
            }
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Dialogs, COpenDialogsTest, testing::ValuesIn(kInstructionDialogs),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace
