// Fills in F168, trapezoidal control, without showing its dialog, and prints the data table. C++17, for any compiler.
#include "core/pexlo.hpp"

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
// What the wizard has to know about the PLC. Bits are numbered word x 16 + bit.
void DescribePlc(pexlo::Wizard& wizard)
{
    wizard.SetPlcType(1);
    wizard.SetDevRange(-1, PEXLO_DEVICE_X, 0, 12 * 16 + 15); // X0 to X12F
    wizard.SetDevRange(-1, PEXLO_DEVICE_Y, 0, 12 * 16 + 15); // Y0 to Y12F
    wizard.SetDevRange(-1, PEXLO_DEVICE_R, 0, 62 * 16 + 15); // R0 to R62F
    wizard.SetDevRange(-1, PEXLO_DEVICE_DT, 0, 1659);        // DT0 to DT1659
    wizard.EntrySupportFunInfo(168);                         // it has F168
}

// F168 has no real numbers: of its entries type and format are 0 or 1.
void PrintDataTable(const std::vector<PexloData>& table)
{
    static const char* const widths[] = {"1 word", "2 words"};
    std::printf("Data table: %d\n", static_cast<int>(table.size()));
    int index = 0;
    for (const PexloData& data : table)
    {
        const std::string name = "DT" + std::to_string(data.number);
        std::printf("%4d  %-10s  %-7s  ", index++, name.c_str(), widths[data.type]);
        std::printf(data.format == 1 ? "H%X\n" : "K%d\n", data.value);
    }
}

void Fill()
{
    pexlo::Wizard wizard;
    DescribePlc(wizard);

    // What a user would type and select, by the names of the fields.
    std::vector<pexlo::Entry> entries = {
        {"start", "1654"}, // the table needs seven registers: one too many from here
        {"contact-device", "R"},
        {"contact-number", "10A"},
        {"output", "Y1"},
        {"width", "#1"}, // an item by its code, in any language
        {"mode", "absolute  forward on/reverse off"},
        {"initial-speed", "500"},
        {"maximum-speed", "9500"},
        {"acceleration-time", "300"},
        {"target", "-8388608"},
    };
    pexlo::Form form(168);
    if (const auto refusal = wizard.Fill(form, entries))
        std::printf("%s is refused: %s\n\n", refusal->name.c_str(), refusal->message.c_str());

    entries[0].text = "1653";
    if (const auto refusal = wizard.Fill(form, entries))
        throw std::runtime_error(refusal->name + " is refused: " + refusal->message);
    PrintDataTable(wizard.DataTable());
}
} // namespace

int main()
{
    try
    {
        Fill();
        return 0;
    }
    catch (const std::exception& error) // pexlo::Error among them, when the library is called wrongly
    {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
