#include "tests/dialogs/pulse/PulseFormTest.h"

#include "tests/support/Sampled.h"

CPulseFormTest::CPulseFormTest()
{
    SetUpController(m_wizard);
    m_wizard.ResetChannelNo();
    for (int instruction = 171; instruction <= 175; ++instruction)
        for (const int channel : kFormChannels)
            m_wizard.SetChannelNo(channel, instruction);
    PexloDll_SetAppName(kTestAppName);
}

CPulseFormTest::~CPulseFormTest() { PexloDll_SetAppName(nullptr); }

void SetUpFamily(CFunWizard& wizard, const SPulseForm& form)
{
    constexpr int kEnglish = 0;
    wizard.SetPlcType(static_cast<BYTE>(form.plcType));
    if (form.plcType != kPlcFamilyA)
        wizard.SetLanguageInfo(kEnglish);
}

void CPulseFormTest::SetChannels(int instruction, const std::vector<int>& channels)
{
    m_wizard.ResetChannelNo();
    for (const int channel : channels)
        m_wizard.SetChannelNo(channel, instruction);
}

int CPulseFormTest::Open(const SPulseForm& form, std::vector<Scene> scenes)
{
    if (form.displayType != 0)
        m_wizard.SetF175DispType(static_cast<unsigned short>(form.displayType));
    const auto dialog = form.make(&m_wizard);
    return Play([&] { return static_cast<int>(dialog->DoModal()); }, std::move(scenes));
}

void CPulseFormTest::Confirm(const SPulseForm& form, const Scene& scene)
{
    EXPECT_EQ(Open(form, {[&](CDialogRobot& dialog) {
                       if (scene)
                           scene(dialog);
                       if (dialog.IsOpen())
                       {
                           EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString()) << "OK was refused";
                       }
                   }}),
              IDOK);
}

void CPulseFormTest::Leave(const SPulseForm& form, const Scene& scene)
{
    EXPECT_EQ(Open(form, {[&](CDialogRobot& dialog) {
                       scene(dialog);
                       if (dialog.IsOpen())
                           dialog.Click(IDCANCEL);
                   }}),
              IDCANCEL);
}

SResults CPulseFormTest::Confirmed(const SPulseForm& form, const SFormEntries& entries)
{
    Confirm(form, [&](CDialogRobot& dialog) { FillIn(dialog, form, entries); });
    return ReadResults(m_wizard);
}

std::vector<SPulseForm> SweptForms()
{
    std::vector<SPulseForm> forms = PulseForms();
    if (!IsThorough())
        std::erase_if(forms, [](const SPulseForm& form) { return form.displayType == 1; });
    return forms;
}

std::string PulseFormName(const testing::TestParamInfo<SPulseForm>& info) { return info.param.name; }

void ChooseForm(CDialogRobot& dialog, const SPulseForm& form)
{
    if (form.radio != 0)
        dialog.Click(form.radio);
    for (const SFormList& list : form.lists)
        if (list.formItem >= 0)
            dialog.Select(list.id, list.formItem);
}

void FillIn(CDialogRobot& dialog, const SPulseForm& form, const SFormEntries& entries)
{
    dialog.SelectText(2051, "R");
    dialog.Type(2052, "10A");
    dialog.Type(form.start, "100");
    dialog.Check(2061, entries.onlyDataTable);
    if (form.output != kNoOutput && !entries.onlyDataTable)
        dialog.Select(form.outputList, entries.output);
    ChooseForm(dialog, form);
    for (size_t i = 0; i < form.lists.size(); ++i)
        dialog.Select(form.lists[i].id, static_cast<int>(SelectedItem(form, entries, i)));
    for (const SFormNumber& number : form.numbers)
        dialog.Type(number.id, number.good[std::min(entries.entry, number.good.size() - 1)].text);
}

std::vector<std::pair<UINT, UINT>> CheckedEdits(const SPulseForm& form)
{
    std::vector<std::pair<UINT, UINT>> edits = {{2052, 20020}, {form.start, 20003}};
    for (const SFormNumber& number : form.numbers)
        edits.emplace_back(number.id, number.message);
    return edits;
}

CString RangeText(long long low, long long high)
{
    return ("(" + std::to_string(low) + " - " + std::to_string(high) + ")").c_str();
}
