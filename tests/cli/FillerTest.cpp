#include "cli/Filler.h"

#include "cli/FillReport.h"

#include <gtest/gtest.h>

namespace
{
class CFillerTest : public testing::Test
{
protected:
    explicit CFillerTest(const std::string& plc = "large")
    {
        m_settings.plc = *FindPlcPreset(plc);
        Configure(m_wizard, m_settings);
    }

    SFilled Fill(const std::string& instruction, const std::vector<std::string>& entries)
    {
        return Fill(m_wizard, instruction, entries);
    }

    SFilled FillAlone(const std::string& instruction, const std::vector<std::string>& entries)
    {
        pexlo::Wizard alone;
        Configure(alone, m_settings);
        return Fill(alone, instruction, entries);
    }

    static std::string Text(const SFilled& filled)
    {
        if (filled.complaint)
            return filled.complaint->Text();
        return MakeFillReport({EFormat::Text, false, true})->Entry(filled);
    }

    SSettings m_settings;
    pexlo::Wizard m_wizard;

private:
    SFilled Fill(pexlo::Wizard& wizard, const std::string& instruction, const std::vector<std::string>& entries) const
    {
        SJob job;
        job.instruction = instruction;
        for (const std::string& entry : entries)
            job.entries.push_back(*ParseEntry(entry));
        return CFiller(wizard, m_settings).Fill(job);
    }
};
} // namespace

TEST_F(CFillerTest, CarriesNothingOver)
{
    struct SCase
    {
        const char* instruction;
        std::vector<std::string> other; // entries that shall leave no trace
        std::vector<std::string> least;
    };
    const SCase cases[] = {
        {"F168",
         {"contact-device=R", "contact-number=10A", "start=1000", "width=#1", "mode=#0x13", "initial-speed=500",
          "maximum-speed=9500", "acceleration-time=300", "target=7", "output=Y1"},
         {"contact-number=1", "start=10", "initial-speed=40", "maximum-speed=6000", "acceleration-time=30",
          "target=0"}},
        {"F169",
         {"contact-number=2", "start=1000", "width=#1", "frequency=50", "only-data-table=on"},
         {"contact-number=1", "start=10", "frequency=100"}},
        {"F174",
         {"contact-number=2", "start=1000", "frequency-range=#1", "mode=#1", "table=1000,5\n2000,6\n3000,7"},
         {"contact-number=1", "start=10", "table=1000,5"}},
        {"pid",
         {"contact-number=2", "start=1000", "set-value=5", "auto-tuning=#1", "control-cycle=9", "upper-limit=50",
          "comments=off"},
         {"contact-number=1", "start=10", "set-value=100", "control-cycle=60"}},
        {"F282",
         {"contact-device=R", "contact-number=2", "differential=on", "input-number=5", "output-number=6", "start=1000",
          "points=3", "table=0,1\n2,3\n4,5"},
         {"contact-number=1", "input-number=1", "output-number=2", "start=300", "points=2", "table=0,0\n1,1"}},
        {"unit:jog",
         {"contact-device=R", "contact-number=2", "slot=5", "axis=4", "start=900", "acceleration=#1", "startup-speed=1",
          "target-speed=2", "acceleration-time=3", "start-output=off"},
         {"contact-number=1", "slot=3", "axis=1", "start=400", "startup-speed=0", "target-speed=5000",
          "acceleration-time=100", "start-output-word=5"}},
        {"screen",
         {"screen=#1", "control-number=1", "upside-number=2", "downside-number=3", "mark-1=on", "color=#2",
          "comments=off"},
         {"control-number=10", "upside-number=20", "downside-number=30"}},
    };
    for (const SCase& each : cases)
    {
        SCOPED_TRACE(each.instruction);
        const SFilled alone = FillAlone(each.instruction, each.least);
        EXPECT_FALSE(alone.complaint) << Text(alone);
        const SFilled other = Fill(each.instruction, each.other);
        EXPECT_FALSE(other.complaint) << Text(other);
        EXPECT_NE(Text(other), Text(alone));
        EXPECT_EQ(Text(Fill(each.instruction, each.least)), Text(alone));
        Fill(each.instruction, {"no-such-field=1"});
        EXPECT_EQ(Text(Fill(each.instruction, each.least)), Text(alone)) << "after a refusal";
    }
}

TEST_F(CFillerTest, FlagsAreThoseOfTheCommandLineForEachJob)
{
    m_settings.comments = false;
    const std::vector<std::string> entries = {"contact-number=1", "start=10", "frequency=100"};
    EXPECT_TRUE(Fill("F169", entries).lists.comments.empty());
    m_settings.comments = true;
    EXPECT_FALSE(Fill("F169", entries).lists.comments.empty());
    m_settings.onlyTable = true;
    EXPECT_EQ(Text(Fill("F169", entries)).find("F169"), std::string::npos);
    m_settings.onlyTable = false;
    EXPECT_NE(Text(Fill("F169", entries)).find("F169"), std::string::npos);
}

TEST_F(CFillerTest, TwoAxisUnitsHaveTwoAxes)
{
    const std::vector<std::string> entries = {"contact-number=1",
                                              "slot=3",
                                              "axis=4",
                                              "start=400",
                                              "startup-speed=0",
                                              "target-speed=5000",
                                              "acceleration-time=100",
                                              "start-output-word=5"};
    EXPECT_FALSE(Fill("unit:jog", entries).complaint);
    m_settings.plc = *FindPlcPreset("large-two-axis");
    Configure(m_wizard, m_settings);
    ASSERT_TRUE(Fill("unit:jog", entries).complaint);
    EXPECT_EQ(Fill("unit:jog", entries).complaint->field, "axis");
}

TEST_F(CFillerTest, ComplainsInOneLine)
{
    SComplaint complaint{"a\r\nb"};
    EXPECT_EQ(complaint.Text(), "a b");
    complaint.field = "table";
    EXPECT_EQ(complaint.Text(), "table: a b");
    complaint.row = 2;
    complaint.column = 1;
    EXPECT_EQ(complaint.Text(), "table row 2 column 1: a b");
}

TEST_F(CFillerTest, EveryNamedDialogOpensOnSomePlc)
{
    for (const SFormName& form : FormNames())
    {
        SCOPED_TRACE(form.name);
        bool opens = false;
        for (const char* plc : {"large", "family-b"})
        {
            m_settings.plc = *FindPlcPreset(plc);
            Configure(m_wizard, m_settings);
            const auto complaint = Fill(form.name, {"no-such-field=1"}).complaint;
            ASSERT_TRUE(complaint);
            opens = opens || complaint->field == "no-such-field";
        }
        EXPECT_TRUE(opens);
    }
}
