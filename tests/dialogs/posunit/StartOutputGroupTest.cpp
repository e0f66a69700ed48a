// The group of the start output: which controls are enabled, and what a dialog looks like without it.
#include "dialogs/posunit/StartOutputGroup.h"

#include "core/ResourceScope.h"
#include "resources/resource.h"
#include "tests/dialogs/base/ProbeDlg.h"

#include <map>

namespace
{

enum EForm
{
    kNormal,
    kExtended
};

constexpr EForm kForms[] = {kNormal, kExtended};

struct SPlace
{
    CRect rect;
    bool visible;
    bool enabled;

    bool operator==(const SPlace& other) const
    {
        return rect == other.rect && visible == other.visible && enabled == other.enabled;
    }
};

std::ostream& operator<<(std::ostream& out, const SPlace& place)
{
    return out << "(" << place.rect.left << ", " << place.rect.top << ", " << place.rect.right << ", "
               << place.rect.bottom << ")" << (place.visible ? "" : " hidden") << (place.enabled ? "" : " disabled");
}

using Places = std::map<UINT, SPlace>;

Places PlacesOf(const CDialogRobot& robot)
{
    Places places;
    for (const SRobotControl& control : robot.Controls())
        places.emplace(control.id, SPlace{CRect(control.rect), control.visible, control.enabled});
    return places;
}

CRect ClientOf(CDialogRobot& robot)
{
    CRect client;
    robot.Dialog()->GetClientRect(&client);
    return client;
}

class CStartOutputGroupTest : public CProbeTest
{
protected:
    /// Opens the template of a form as a plain dialog, does something to it, and leaves.
    template <typename TAction>
    void InForm(EForm form, TAction action)
    {
        CResourceScope scope(m_wizard.GetLoadInstance());
        CDialog dialog(form == kNormal ? IDD_GROUP : IDD_GROUP_EXTENDED);
        Play([&] { return static_cast<int>(dialog.DoModal()); }, {[&](CDialogRobot& robot) {
                 action(dialog, robot);
                 dialog.EndDialog(IDCANCEL);
             }});
    }

    /// The ids that a form's group has after its first check box, in tab order.
    static std::vector<UINT> FollowersOf(EForm form)
    {
        std::vector<UINT> ids = {IDC_SAME_CONDITION, IDC_GROUP_SECOND_LABEL, IDC_SECOND_DEVICE, IDC_SECOND_NUMBER,
                                 IDC_SECOND_RANGE};
        if (form == kExtended)
            ids.insert(ids.end(), {IDC_GROUP_DIRECTION_LABEL, IDC_JOG_DIRECTION});
        ids.insert(ids.end(), {IDC_GROUP_OUTPUT_LABEL, IDC_GROUP_DEVICE_LABEL, IDC_GROUP_WORD_LABEL,
                               IDC_START_OUTPUT_WORD, IDC_START_OUTPUT_RANGE});
        return ids;
    }

    static bool IsOfSecondCondition(UINT id)
    {
        return id == IDC_GROUP_SECOND_LABEL || id == IDC_SECOND_DEVICE || id == IDC_SECOND_NUMBER ||
               id == IDC_SECOND_RANGE;
    }
};

} // namespace

// ---- Enabling -------------------------------------------------------------------------------------------------------

TEST_F(CStartOutputGroupTest, EnablesWhatTheCheckBoxesLeaveToFillIn)
{
    for (const EForm form : kForms)
        InForm(form, [&](CDialog& dialog, CDialogRobot& robot) {
            const Places before = PlacesOf(robot);
            // Every state after every other one.
            for (const int state : {0, 1, 2, 3, 0, 2, 1, 3, 1, 0, 3, 2, 0})
            {
                const bool wanted = (state & 1) != 0;
                const bool same = (state & 2) != 0;
                SCOPED_TRACE(testing::Message() << "form " << form << ", " << wanted << same);
                dialog.CheckDlgButton(2054, wanted);
                dialog.CheckDlgButton(2055, same);
                CStartOutputGroup(&dialog).UpdateEnabling();

                Places expected = before;
                for (const UINT id : FollowersOf(form))
                    expected.at(id).enabled = wanted && !(same && IsOfSecondCondition(id));
                EXPECT_EQ(PlacesOf(robot), expected);
            }
        });
}

// ---- Compaction -----------------------------------------------------------------------------------------------------

TEST_F(CStartOutputGroupTest, StaysAsItIsWithStartType2)
{
    for (const EForm form : kForms)
        for (const BYTE startType : std::initializer_list<BYTE>{2, 3, 255})
            InForm(form, [&](CDialog& dialog, CDialogRobot& robot) {
                const Places before = PlacesOf(robot);
                const CRect client = ClientOf(robot);
                CStartOutputGroup(&dialog).Compact(startType);
                EXPECT_EQ(PlacesOf(robot), before);
                EXPECT_EQ(ClientOf(robot), client);
            });
}

TEST_F(CStartOutputGroupTest, GoesWithStartType0)
{
    for (const EForm form : kForms)
        InForm(form, [&](CDialog& dialog, CDialogRobot& robot) {
            const Places before = PlacesOf(robot);
            const CRect client = ClientOf(robot);
            CStartOutputGroup(&dialog).Compact(0);

            const int gained = before.at(3099).rect.top - before.at(IDC_GROUP_FRAME).rect.top;
            ASSERT_GT(gained, 0);
            Places expected = before;
            expected.at(IDC_GROUP_FRAME).visible = false;
            expected.at(2054).visible = false;
            for (const UINT id : FollowersOf(form))
                expected.at(id).visible = false;
            for (const UINT id : {IDC_GROUP_AFTER, 1, 2, 3099})
                expected.at(id).rect.OffsetRect(0, -gained);
            EXPECT_EQ(PlacesOf(robot), expected) << "form " << form;
            EXPECT_EQ(ClientOf(robot), CRect(0, 0, client.right, client.bottom - gained));
        });
}

TEST_F(CStartOutputGroupTest, LosesTheWordWithStartType1)
{
    for (const EForm form : kForms)
        InForm(form, [&](CDialog& dialog, CDialogRobot& robot) {
            const Places before = PlacesOf(robot);
            const CRect client = ClientOf(robot);
            CStartOutputGroup(&dialog).Compact(1);

            const CRect word = before.at(2059).rect;
            const int gained = before.at(3099).rect.top - word.bottom;
            ASSERT_GT(gained, 0);
            Places expected = before;
            for (const UINT id : {IDC_GROUP_OUTPUT_LABEL, IDC_GROUP_DEVICE_LABEL, IDC_GROUP_WORD_LABEL, 2059, 2060})
                expected.at(id).visible = false;
            expected.at(IDC_GROUP_FRAME).rect.bottom = word.top + word.Height() / (form == kExtended ? 2 : 4);
            for (const UINT id : {IDC_GROUP_AFTER, 1, 2, 3099})
                expected.at(id).rect.OffsetRect(0, -gained);
            EXPECT_EQ(PlacesOf(robot), expected) << "form " << form;
            EXPECT_EQ(ClientOf(robot), CRect(0, 0, client.right, client.bottom - gained));
        });
}

// ---- Templates without the group ------------------------------------------------------------------------------------

TEST_F(CStartOutputGroupTest, DoesNothingWhenAControlToMeasureByIsMissing)
{
    for (const EForm form : kForms)
        for (const int missing : {2054, 2059, 2060, 3099})
            InForm(form, [&](CDialog& dialog, CDialogRobot& robot) {
                SCOPED_TRACE(testing::Message() << "form " << form << " without " << missing);
                dialog.CheckDlgButton(2055, BST_CHECKED);
                dialog.GetDlgItem(missing)->DestroyWindow();
                const Places before = PlacesOf(robot);
                const CRect client = ClientOf(robot);
                const CStartOutputGroup group(&dialog);
                group.UpdateEnabling();
                group.Compact(0);
                group.Compact(1);
                EXPECT_EQ(PlacesOf(robot), before);
                EXPECT_EQ(ClientOf(robot), client);
            });
}

TEST_F(CStartOutputGroupTest, DoesNothingInATemplateThatNeverHadIt)
{
    CResourceScope scope(nullptr);
    CDialog dialog(IDD_SPD1_TRAPEZOIDAL);
    Play([&] { return static_cast<int>(dialog.DoModal()); }, {[&](CDialogRobot& robot) {
             const auto before = robot.Controls().size();
             const CRect client = ClientOf(robot);
             const CStartOutputGroup group(&dialog);
             group.UpdateEnabling();
             group.Compact(0);
             EXPECT_EQ(robot.Controls().size(), before);
             for (const SRobotControl& control : robot.Controls())
             {
                 EXPECT_TRUE(control.visible);
                 EXPECT_TRUE(control.enabled);
             }
             EXPECT_EQ(ClientOf(robot), client);
             dialog.EndDialog(IDCANCEL);
         }});
}
