// Lists that refuse an item: a pulse-output dialog ends before it is seen.
#include "afx/offscreen/Desktop.h"
#include "tests/dialogs/pulse/PulseFormTest.h"

#include <algorithm>

namespace
{

class CPulseFormCapacityTest : public CPulseFormsTest
{
protected:
    ~CPulseFormCapacityTest() override { offscreen::SetListCapacity(offscreen::kNoListLimit); }
};

INSTANTIATE_TEST_SUITE_P(Forms, CPulseFormCapacityTest, testing::ValuesIn(PulseForms()), PulseFormName);

} // namespace

TEST_P(CPulseFormCapacityTest, OpensOnlyWhenEveryListHoldsItsItems)
{
    const SPulseForm& form = GetParam();
    WriteResults(m_wizard, {.data = {{9, 100, 1, 1, ControlCode(form, {})}}}); // the form is that of the start
    size_t longest = 7;                                                        // devices of the contact
    for (const SFormList& list : form.lists)
        longest = std::max(longest, list.items.size());
    for (size_t capacity = 0; capacity <= longest + 1; ++capacity)
    {
        SCOPED_TRACE(testing::Message() << capacity << " items");
        offscreen::SetListCapacity(capacity);
        std::vector<Scene> scenes;
        if (capacity >= longest)
            scenes.emplace_back([](CDialogRobot& dialog) { dialog.Click(IDCANCEL); });
        EXPECT_EQ(Open(form, scenes), IDCANCEL);
    }
    EXPECT_TRUE(m_robot.MessageBoxes().empty());
}
