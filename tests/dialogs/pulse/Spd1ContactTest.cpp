// The starting condition of F168: which devices are offered, and how their numbers are shown and read.
#include "tests/dialogs/pulse/Spd1Test.h"

namespace
{

using Texts = std::vector<CString>;

constexpr int kE = 18;
constexpr int kP = 17;

struct SDevice
{
    int code;
    int low;
    int high;
    const char* label;
    const char* lowest;
    const char* highest;
    const char* below; // null: there is none that could be typed
    const char* above;
};

constexpr SDevice kDevices[] = {
    {kX, 5, 1759, "(5 - 109F)", "5", "109F", "4", "1100"},
    {kY, 16, 2559, "(10 - 159F)", "10", "159F", "F", "1600"},
    {kR, 0, 14031, "(0 - 876F)", "0", "876F", nullptr, "8770"},
    {kSpecialR, 14400, 14591, "(9000 - 911F)", "9000", "911F", "899F", "9120"},
    {kT, 10, 1007, "(10 - 1007)", "10", "1007", "9", "1008"},
    {kC, 1008, 1023, "(1008 - 1023)", "1008", "1023", "1007", "1024"},
    {kL, 0, 15, "(0 - F)", "0", "F", nullptr, "10"},
    {kE, 0, 2047, "(0 - 2047)", "0", "2047", nullptr, "2048"},
    {kP, 170, 171, "(10A - 10B)", "10A", "10B", "109", "10C"},
};

class CSpd1ContactTest : public CSpd1Test
{
protected:
    CSpd1ContactTest()
    {
        for (const SDevice& device : kDevices)
            SetDeviceRange(m_wizard, device.code, device.low, device.high);
    }

    /// Confirms a contact and returns it.
    std::vector<SContactRow> Stored(const SDevice& device, const char* text)
    {
        Confirm(kTrapezoidal, [&](CDialogRobot& dialog) {
            FillIn(dialog, {.device = device.code, .contact = text});
            EXPECT_EQ(dialog.Text(IDC_CONTACT_RANGE), CString(device.label));
        });
        return ReadResults(m_wizard).contacts;
    }
};

TEST_F(CSpd1ContactTest, IsOneOfTheBitDevicesInTheOrderOfTheDeviceTable)
{
    const Texts kAll = {"X", "Y", "R", "Sp.R", "T", "C", "L", "E", "P"};
    Leave(kTrapezoidal, [&](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Items(IDC_CONTACT_DEVICE), kAll);
        // Each item carries its device: the kind under which ranges are set, and the code.
        for (size_t i = 0; i < std::size(kDevices); ++i)
        {
            const auto data =
                static_cast<DWORD>(dialog.Dialog()->SendDlgItemMessage(IDC_CONTACT_DEVICE, CB_GETITEMDATA, i));
            EXPECT_EQ(data, 0xFFFF0000u | static_cast<DWORD>(kDevices[i].code)) << "of item " << i;
        }
    });
}

TEST_F(CSpd1ContactTest, IsOnlyOfferedOnDevicesThatThePlcHas)
{
    for (unsigned present = 0; present < 1u << std::size(kDevices); present += 37)
    {
        CFunWizard wizard;
        wizard.EntrySupportFunInfo(168);
        SetDeviceRange(wizard, kDT, 0, 100);
        SetDeviceRange(wizard, kWR, 0, 100); // no bit device
        Texts expected;
        for (size_t i = 0; i < std::size(kDevices); ++i)
        {
            if ((present >> i & 1) == 0)
                continue;
            SetDeviceRange(wizard, kDevices[i].code, kDevices[i].low, kDevices[i].high);
            expected.push_back(DeviceName(kDevices[i].code).c_str());
        }
        Play([&] { return wizard.DoOpenPosDlg(0, 1, nullptr); },
             {Choose(kHomeReturn),
              [&](CDialogRobot& dialog) {
                  EXPECT_EQ(dialog.Items(IDC_CONTACT_DEVICE), expected);
                  dialog.Click(IDCANCEL);
              },
              [](CDialogRobot& selection) { selection.Click(IDCANCEL); }});
    }
}

TEST_F(CSpd1ContactTest, ShowsTheRangeOfTheDeviceInItsNotation)
{
    for (ESpd1Variant variant : kVariants)
    {
        Leave(variant, [](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(IDC_CONTACT_RANGE), CString(kDevices[0].label));
            for (int i = static_cast<int>(std::size(kDevices)) - 1; i >= 0; --i)
            {
                dialog.Select(IDC_CONTACT_DEVICE, i);
                EXPECT_EQ(dialog.Text(IDC_CONTACT_RANGE), CString(kDevices[i].label)) << "of item " << i;
            }
        });
    }
}

TEST_F(CSpd1ContactTest, IsAcceptedAtBothBounds)
{
    for (const SDevice& device : kDevices)
    {
        const int code = device.code;
        EXPECT_EQ(Stored(device, device.lowest), (std::vector<SContactRow>{{2, code, device.low}})) << device.lowest;
        EXPECT_EQ(Stored(device, device.highest), (std::vector<SContactRow>{{2, code, device.high}})) << device.highest;
    }
}

TEST_F(CSpd1ContactTest, IsRefusedOutsideTheBounds)
{
    Leave(kTrapezoidal, [](CDialogRobot& dialog) {
        for (const SDevice& device : kDevices)
        {
            for (const char* text : {device.below, device.above})
            {
                if (text == nullptr)
                    continue;
                SCOPED_TRACE(testing::Message() << DeviceName(device.code) << text);
                FillIn(dialog, {.device = device.code, .contact = text});
                ExpectRefusal(dialog, 20020, IDC_CONTACT_NUMBER);
            }
        }
    });
}

struct SReading
{
    int device;
    const char* text;
    int number; // -1: not a number
};

constexpr SReading kReadings[] = {
    {kR, "A", 10},
    {kR, "a", 10},
    {kR, "10a", 170},
    {kR, "0010", 16},
    {kR, " 1F", 31},
    {kR, "1 F", 31},
    {kR, "1G", -1},
    {kR, "A0", -1},
    {kR, "-1", -1},
    {kR, "1.0", -1},
    {kT, "100", 100},
    {kT, "1A", -1},
    {kT, "0100", 100},
    {kT, " 99", 99},
    {kT, "9 9", -1},
    {kE, "10", 10},
    {kE, "A", -1},
    {kC, "1010", 1010},
    {kSpecialR, "901f", 14431},
};

TEST_F(CSpd1ContactTest, IsReadInTheNotationOfItsDevice)
{
    for (const SReading& reading : kReadings)
    {
        SCOPED_TRACE(testing::Message() << DeviceName(reading.device) << " \"" << reading.text << '"');
        const auto fillIn = [&](CDialogRobot& dialog) {
            FillIn(dialog, {.device = reading.device, .contact = reading.text});
            if (reading.number < 0)
                ExpectRefusal(dialog, 20001, IDC_CONTACT_NUMBER);
        };
        reading.number < 0 ? Leave(kTrapezoidal, fillIn) : Confirm(kTrapezoidal, fillIn);
        const std::vector<SContactRow> expected = {{2, reading.device, reading.number}};
        EXPECT_EQ(ReadResults(m_wizard).contacts == expected, reading.number >= 0);
    }
}

TEST_F(CSpd1ContactTest, IsRestoredOnEveryDevice)
{
    for (const SDevice& device : kDevices)
    {
        Stored(device, device.highest);
        Leave(kTrapezoidal, [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(IDC_CONTACT_DEVICE), CString(DeviceName(device.code).c_str()));
            EXPECT_EQ(dialog.Text(IDC_CONTACT_NUMBER), CString(device.highest));
            EXPECT_EQ(dialog.Text(IDC_CONTACT_RANGE), CString(device.label));
        });
    }
}

TEST_F(CSpd1ContactTest, KeepsItsNumberWhenAnotherDeviceIsSelected)
{
    Leave(kTrapezoidal, [](CDialogRobot& dialog) {
        FillIn(dialog, {.device = kT, .contact = "100"});
        dialog.SelectText(IDC_CONTACT_DEVICE, "R");
        EXPECT_EQ(dialog.Text(IDC_CONTACT_NUMBER), CString("100"));
    });
}

// ---- Controllers without a usable device ----------------------------------------------------------------------------

TEST_F(CSpd1Test, WithoutBitDevicesTheContactIsOutsideOfItsRange)
{
    CFunWizard wizard;
    wizard.EntrySupportFunInfo(168);
    SetDeviceRange(wizard, kDT, 0, 100);
    Play([&] { return wizard.DoOpenPosDlg(0, 1, nullptr); },
         {Choose(kTrapezoidal),
          [](CDialogRobot& dialog) {
              EXPECT_EQ(dialog.Items(IDC_CONTACT_DEVICE), Texts());
              EXPECT_EQ(dialog.Selection(IDC_CONTACT_DEVICE), -1);
              EXPECT_EQ(dialog.Text(IDC_CONTACT_RANGE), CString("Impossible settings"));
              for (const char* text : {"", "0", "10A", "x"})
              {
                  dialog.Type(IDC_CONTACT_NUMBER, text);
                  ExpectRefusal(dialog, 20020, IDC_CONTACT_NUMBER);
              }
              dialog.Click(IDC_CLEAR_SETTINGS);
              EXPECT_EQ(dialog.Text(IDC_CONTACT_RANGE), CString("Impossible settings"));
              ExpectRefusal(dialog, 20020, IDC_CONTACT_NUMBER);
              dialog.Click(IDCANCEL);
          },
          [](CDialogRobot& selection) { selection.Click(IDCANCEL); }});
    EXPECT_EQ(ReadResults(wizard), SResults());
}

TEST_F(CSpd1Test, ADeviceWithoutNumbersTakesNoContact)
{
    SetDeviceRange(m_wizard, kR, 10, 9);
    Leave(kTrapezoidal, [](CDialogRobot& dialog) {
        for (const char* text : {"9", "A", "0"})
        {
            FillIn(dialog, {.contact = text});
            ExpectRefusal(dialog, 20020, IDC_CONTACT_NUMBER);
        }
    });
}

} // namespace
