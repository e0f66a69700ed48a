#include "host/ResultText.h"

#include "host/WizardLists.h"

#include <gtest/gtest.h>

TEST(ResultTextTest, NamesEmptyLists)
{
    CFunWizard wizard;
    EXPECT_EQ(ResultText(ReadLists(wizard)), "Contacts: 0\nOperands: 0\nData table: 0\nComments: 0\nInstructions: 0\n");
}

TEST(ResultTextTest, WritesOneEntryALine)
{
    CFunWizard wizard;
    wizard.AddContInfo(2, 1, 170);
    wizard.AddContInfo(17, -1, 0);
    wizard.AddOprdInfo(9, 100);
    wizard.AddOprdInfo(-1, -1);
    wizard.AddDataInfo(9, 100, 0, 1, 0x113);
    wizard.AddDataInfo(9, 101, 1, 0, -5);
    wizard.AddDataInfo(9, 103, 2, 2, 0x3F800000);
    wizard.AddCmtInfo("Control code");
    wizard.AddInstCodeInfo(-1, 12, -1, 1, 0);
    EXPECT_EQ(ResultText(ReadLists(wizard)), "Contacts: 2\n"
                                             "   0  kind 2   R10A\n"
                                             "   1  kind 17  -\n"
                                             "Operands: 2\n"
                                             "   0  DT100\n"
                                             "   1  -\n"
                                             "Data table: 3\n"
                                             "   0  DT100       1 word   H113\n"
                                             "   1  DT101       2 words  K-5\n"
                                             "   2  DT103       real     f1\n"
                                             "Comments: 1\n"
                                             "   0  Control code\n"
                                             "Instructions: 1\n"
                                             "   0   -1     12          -1  1 0\n");
}
