// What the tests of the control code's two dialogs share.
#pragma once

#include "tests/dialogs/posunit/AxisWords.h"
#include "tests/dialogs/posunit/PosUnitTest.h"

/// A list of the dialog and the field of the word that it stands for.
struct SCodeCombo
{
    UINT id;
    int shift;
    const char* label;
};

/// In the order in which the word is composed.
inline constexpr SCodeCombo kCodeCombos[] = {
    {3351, 0, "Position command"},
    {3352, 1, "Accel./decel."},
    {3353, 2, "Direction of home return"},
    {3354, 3, "Startup speed"},
    {3051, 4, "Home input valid logic"},
    {3052, 5, "Near home input valid logic"},
    {3053, 6, "Home search"},
    {3054, 7, "Limit input valid logic"},
    {3355, 8, "Pulsar input transfer multiple"},
    {3061, 12, "\"S\" accel./decel."},
    {3067, 16, "Rotation direction"},
    {3068, 17, "Count"},
    {3069, 18, "Mode"},
    {3070, 20, "Transfer multiple"},
    {3065, 24, "Rotation direction"},
    {3066, 25, "Output mode"},
    {3071, 28, "Divided mode"},
    {3072, 31, "Deviation counter clear time"},
};

constexpr UINT kReadOut = 3356;
constexpr UINT kDirectInput = 3357;
constexpr UINT kHexEdit = 3358;

class CCtrlCodeTest : public CPosUnitTest
{
protected:
    /// Opens the dialog with a word, plays the scene and clicks OK, which must be accepted; returns the word that the
    /// host gets. The scenes of direct inputs follow in their order.
    DWORD Confirm(DWORD word, const Scene& scene = {}, std::vector<Scene> inputs = {})
    {
        ULONG code = word;
        EXPECT_EQ(Open(code, scene, IDOK, std::move(inputs)), 1);
        return static_cast<DWORD>(code);
    }

    /// The same, left by Cancel: the word stays.
    void Look(DWORD word, const Scene& scene, std::vector<Scene> inputs = {})
    {
        ULONG code = word;
        EXPECT_EQ(Open(code, scene, IDCANCEL, std::move(inputs)), 2);
        EXPECT_EQ(code, word);
    }

    /// A direct input: types a word and confirms it.
    static Scene Input(const std::string& text)
    {
        return [text](CDialogRobot& input) {
            input.Type(kHexEdit, text.c_str());
            EXPECT_EQ(input.ClickAndAnswer(IDOK), CString());
        };
    }

    /// The read-out and the selection of every list.
    static void ExpectShown(CDialogRobot& dialog, DWORD word)
    {
        EXPECT_EQ(dialog.Text(kReadOut), CString(HexText(ShownOf(word)).c_str()));
        for (const SCodeCombo& combo : kCodeCombos)
            EXPECT_EQ(dialog.Selection(combo.id), ItemOf(word, AxisFieldAt(combo.shift)))
                << "list " << combo.id << " for " << HexText(word);
    }

private:
    int Open(ULONG& code, const Scene& scene, UINT button, std::vector<Scene> inputs)
    {
        inputs.insert(inputs.begin(), [&scene, button](CDialogRobot& dialog) {
            if (scene)
                scene(dialog);
            if (dialog.IsOpen())
                dialog.Click(button);
        });
        return Play([&] { return m_wizard.DoInputPosCtrlDlg(code, nullptr); }, std::move(inputs));
    }
};
