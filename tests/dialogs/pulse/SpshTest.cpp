// What is particular to the dialog of F175: what the host says about the axes, their labels and speeds, the registers
// of the results, and the row that is left out.
#include "tests/dialogs/pulse/PulseFormTest.h"

namespace
{

constexpr UINT kXLabels[] = {2475, 2478, 2480, 2482};
constexpr UINT kYLabels[] = {2476, 2479, 2481, 2483};
constexpr UINT kResults[] = {2462, 2463, 2464, 2465, 2466, 2467, 2468, 2469};

class CSpshTest : public CPulseFormTest
{
protected:
    const SPulseForm& m_form = PulseForm("SpshChannel");
};

void ExpectAxes(CDialogRobot& dialog, const char* x, const char* y, const char* speeds)
{
    for (const UINT label : kXLabels)
        EXPECT_EQ(dialog.Text(label), CString(x)) << "of " << label;
    for (const UINT label : kYLabels)
        EXPECT_EQ(dialog.Text(label), CString(y)) << "of " << label;
    EXPECT_EQ(dialog.Text(2454), CString(speeds));
}

void ExpectFirstAxes(CDialogRobot& dialog) { ExpectAxes(dialog, "X-axis (CH0)", "Y-axis (CH1)", "(1 - 100000)"); }
void ExpectOtherAxes(CDialogRobot& dialog) { ExpectAxes(dialog, "X-axis (CH2)", "Y-axis (CH3)", "(1 - 20000)"); }

/// The registers behind a start address; none for a negative one.
void ExpectResults(CDialogRobot& dialog, int start)
{
    constexpr int kOffsets[] = {12, 14, 16, 18, 20, 21, 22, 23};
    for (size_t i = 0; i < std::size(kResults); ++i)
        EXPECT_EQ(std::string(dialog.Text(kResults[i])), start < 0 ? "" : " DT " + std::to_string(start + kOffsets[i]))
            << "of " << kResults[i];
}

void EnterStart(CDialogRobot& dialog, const char* text)
{
    SetTextByProgram(dialog, 2451, text);
    dialog.Focus(2451);
    dialog.Focus(2052);
}

} // namespace

// ---- Axes and speeds ------------------------------------------------------------------------------------------------

TEST_F(CSpshTest, NamesTheAxesOfTheChannel)
{
    Leave(m_form, [](CDialogRobot& dialog) {
        ExpectFirstAxes(dialog);
        for (int channel = 1; channel < 4; ++channel)
        {
            dialog.Select(2477, channel);
            ExpectOtherAxes(dialog);
            dialog.Select(2477, 0);
            ExpectFirstAxes(dialog);
        }
        SelectByProgram(dialog, 2477, -1);
        ExpectOtherAxes(dialog);
        for (int click = 0; click < 2; ++click) // each selects the first channel
        {
            SelectByProgram(dialog, 2477, 2);
            ExpectOtherAxes(dialog);
            dialog.Click(2061);
            EXPECT_EQ(dialog.Selection(2477), 0);
            ExpectFirstAxes(dialog);
        }
        dialog.Select(2477, 3);
        dialog.Click(2099);
        EXPECT_EQ(dialog.Selection(2477), 0);
        ExpectFirstAxes(dialog);
    });
    WriteResults(m_wizard, {.operands = {{9, 1}, {11, 4}}});
    Leave(m_form, [](CDialogRobot& dialog) { ExpectOtherAxes(dialog); });
    WriteResults(m_wizard, {.operands = {{9, 1}, {12, 1}}});
    Leave(m_form, [](CDialogRobot& dialog) { ExpectFirstAxes(dialog); });
}

TEST_F(CSpshTest, KeepsBothSpeedsInTheRangeOfTheChannel)
{
    Leave(m_form, [this](CDialogRobot& dialog) {
        FillIn(dialog, m_form);
        dialog.Type(2455, ""); // refused once the speeds are right
        for (const int channel : {0, 1, 2, 3, -1})
        {
            SCOPED_TRACE(testing::Message() << "channel " << channel);
            SelectByProgram(dialog, 2477, channel);
            const int highest = channel == 0 ? 100000 : 20000;
            for (const int speed : {1, highest})
            {
                dialog.Type(2453, std::to_string(speed).c_str());
                dialog.Type(2456, std::to_string(highest + 1 - speed).c_str()); // neither is compared with the other
                ExpectRefusal(dialog, 20001, 2455);
            }
            for (const int speed : {0, highest + 1})
            {
                dialog.Type(2453, std::to_string(speed).c_str());
                ExpectRefusal(dialog, 20004, 2453);
                dialog.Type(2453, "1");
                dialog.Type(2456, std::to_string(speed).c_str());
                ExpectRefusal(dialog, 20005, 2456);
                dialog.Type(2456, "1");
            }
        }
    });
}

// The label says what the axes could do; without a choice of the channel the entry is kept below it.
TEST_F(CSpshTest, RefusesTheSpeedThatItsLabelNames)
{
    const SPulseForm& form = PulseForm("SpshFirstAxes");
    Leave(form, [&](CDialogRobot& dialog) {
        FillIn(dialog, form);
        EXPECT_EQ(dialog.Text(2454), CString("(1 - 100000)"));
        dialog.Type(2456, "100000");
        ExpectRefusal(dialog, 20005, 2456);
        dialog.Type(2456, "20001");
        ExpectRefusal(dialog, 20005, 2456);
        dialog.Type(2456, "20000");
        dialog.Type(2453, "20001");
        ExpectRefusal(dialog, 20004, 2453);
    });
}

TEST_F(CSpshTest, TakesTheCommentsFromItsLabels)
{
    Confirm(m_form, [this](CDialogRobot& dialog) {
        FillIn(dialog, m_form);
        for (const UINT label : {2470, 2471, 2472, 2473, 2474, 2475, 2476})
            SetTextByProgram(dialog, label, "<" + std::to_string(label) + ">");
    });
    EXPECT_EQ(ReadResults(m_wizard).comments,
              (std::vector<std::string>{"Control code", "<2470> <2471>", "<2470> <2472>", "<2473>", "<2474> <2475>",
                                        "<2474> <2476>"}));
}

// ---- Results --------------------------------------------------------------------------------------------------------

TEST_F(CSpshTest, NamesTheRegistersOfTheResults)
{
    SetDeviceRange(m_wizard, kDT, 10, 1000);
    Leave(m_form, [](CDialogRobot& dialog) {
        ExpectResults(dialog, -1);
        const struct
        {
            const char* text;
            int start;
        } rows[] = {{"10", 10}, {"977", 977},  {"978", -1}, {"500", 500}, {"9", -1},   {"100", 100},
                    {"", -1},   {"10", 10},    {"x", -1},   {" 77 ", 77}, {"-77", -1}, {"77", 77},
                    {"-", -1},  {"0100", 100}, {"1.5", -1}, {"977", 977}, {"0", -1},   {"4294967396", -1}};
        for (const auto& row : rows)
        {
            SCOPED_TRACE(row.text);
            EnterStart(dialog, row.text);
            ExpectResults(dialog, row.start);
        }
        EXPECT_EQ(dialog.Text(2469), CString(""));
        EnterStart(dialog, "977");
        EXPECT_EQ(dialog.Text(2469), CString(" DT 1000"));
        dialog.Type(2451, "10");
        dialog.Click(2099);
        ExpectResults(dialog, -1);
    });
}

// Registers have no sign, and their names follow the start once it is left.
TEST_F(CSpshTest, NamesTheRegistersWhenTheStartIsLeft)
{
    Leave(m_form, [](CDialogRobot& dialog) {
        EnterStart(dialog, "0");
        ExpectResults(dialog, 0);
        for (const char* text : {"-", "-0", ""})
        {
            dialog.Focus(2451);
            SetTextByProgram(dialog, 2451, text);
            ExpectResults(dialog, 0);
            dialog.Focus(2061);
            ExpectResults(dialog, -1);
            EnterStart(dialog, "0");
        }
    });
}

TEST_F(CSpshTest, NamesTheRegistersOfTheRestoredStart)
{
    for (const char* name : {"SpshChannel", "SpshFirstAxes", "SpshPlainAxes"})
    {
        m_wizard.ResetChannelNo();
        for (const int channel : kFormChannels)
            m_wizard.SetChannelNo(channel, 175);
        for (const auto& [kind, start, shown] : std::initializer_list<std::tuple<int, int, int>>{
                 {9, 100, 100}, {9, 32741, 32741}, {9, 32742, -1}, {9, -5, -1}, {10, 100, -1}})
        {
            WriteResults(m_wizard, {.operands = {{kind, start}, {11, 1}}});
            Leave(PulseForm(name), [&, expected = shown](CDialogRobot& dialog) { ExpectResults(dialog, expected); });
        }
    }
}

// ---- The row that is left out ---------------------------------------------------------------------------------------

namespace
{

bool IsFrame(const SRobotControl& control)
{
    return control.className == "Button" && (control.style & BS_TYPEMASK) == BS_GROUPBOX;
}

} // namespace

TEST_F(CSpshTest, ClosesTheGapOfTheChannelRow)
{
    std::vector<SRobotControl> whole;
    RECT wholeWindow = {};
    Leave(m_form, [&](CDialogRobot& dialog) {
        whole = dialog.Controls();
        dialog.Dialog()->GetWindowRect(&wholeWindow);
    });
    size_t channel = 0;
    for (size_t i = 0; i < whole.size(); ++i)
        if (whole[i].id == 2477)
            channel = i;
    ASSERT_GT(channel, 0u);
    const auto find = [&](UINT id) {
        return std::find_if(whole.begin(), whole.end(), [&](const SRobotControl& control) { return control.id == id; });
    };
    const LONG pitch = find(2460)->rect.top - find(2477)->rect.top; // to the next row
    ASSERT_GT(pitch, 0);

    for (const int displayType : {1, 2, 3, 4, 15})
    {
        SCOPED_TRACE(testing::Message() << "display type " << displayType);
        m_wizard.ResetChannelNo();
        for (int bit = 0; bit < 4; ++bit)
            if ((displayType >> bit & 1) != 0)
                m_wizard.SetChannelNo(12 + bit, 175); // where the display type is kept
        ASSERT_EQ(m_wizard.GetF175DispType(), displayType);
        Leave(m_form, [&](CDialogRobot& dialog) {
            RECT window = {};
            dialog.Dialog()->GetWindowRect(&window);
            EXPECT_EQ(window.right - window.left, wholeWindow.right - wholeWindow.left);
            EXPECT_EQ(window.bottom - window.top, wholeWindow.bottom - wholeWindow.top - pitch);
            const std::vector<SRobotControl> controls = dialog.Controls();
            ASSERT_EQ(controls.size(), whole.size());
            int frames = 0;
            for (size_t i = 0; i < controls.size(); ++i)
            {
                SCOPED_TRACE(testing::Message() << "control " << i << ", " << controls[i].id << controls[i].text);
                const bool left = i == channel || i + 1 == channel, after = i > channel;
                EXPECT_EQ(controls[i].visible, !left);
                EXPECT_EQ(controls[i].rect.left, whole[i].rect.left);
                EXPECT_EQ(controls[i].rect.right, whole[i].rect.right);
                if (left)
                    continue;
                const bool frame = IsFrame(controls[i]) && !after;
                frames += frame ? 1 : 0;
                EXPECT_EQ(controls[i].rect.top, whole[i].rect.top - (after ? pitch : 0));
                EXPECT_EQ(controls[i].rect.bottom, whole[i].rect.bottom - (after || frame ? pitch : 0));
            }
            EXPECT_EQ(frames, 1);
            EXPECT_EQ(TextBefore(dialog, 2477), "The channel for a pulse output");
            EXPECT_TRUE(dialog.Items(2477).empty());
            EXPECT_EQ(dialog.Selection(2477), -1);
            // Only 1 names the axes; any other type leaves what the template says.
            if (displayType == 1)
                ExpectFirstAxes(dialog);
            else
                ExpectAxes(dialog, "X-axis", "Y-axis", "(1 - 20000)");
        });
    }
}

TEST_F(CSpshTest, KeepsItsLabelsWithoutAChannel)
{
    for (const char* name : {"SpshFirstAxes", "SpshPlainAxes"})
    {
        m_wizard.ResetChannelNo();
        const SPulseForm& form = PulseForm(name);
        Leave(form, [&](CDialogRobot& dialog) {
            const auto expectAxes = [&] {
                for (const SLabelText& label : form.labels)
                    EXPECT_EQ(dialog.Text(label.id), CString(label.text)) << "of " << label.id;
            };
            dialog.Click(2061);
            expectAxes();
            dialog.Click(2061);
            expectAxes();
            dialog.Click(2099);
            expectAxes();
        });
    }
}

TEST_F(CSpshTest, StoresChannel0WithoutAChannel)
{
    const SPulseForm& form = PulseForm("SpshPlainAxes");
    WriteResults(m_wizard, {.operands = {{9, 1}, {11, 4}}});
    EXPECT_EQ(Confirmed(form, {}).operands, (std::vector<SOperandRow>{{9, 100}, {11, 0}}));
}
