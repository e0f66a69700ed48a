#include "cli/Settings.h"

#include "cli/Files.h"
#include "cli/InstructionNames.h"
#include "cli/NearName.h"
#include "host/JsonNode.h"
#include "host/PlcJson.h"

#include <nlohmann/json.hpp>

namespace
{
bool LooksLikeFile(const std::string& text) { return text.find_first_of("./\\") != std::string::npos; }
} // namespace

SPlc LoadPlc(const std::string& presetOrFile)
{
    if (const SPlc* preset = FindPlcPreset(presetOrFile))
        return *preset;
    if (!LooksLikeFile(presetOrFile))
    {
        std::vector<std::string> names;
        for (const SPlc& plc : PlcPresets())
            names.push_back(plc.name);
        throw CFileError("there is no PLC \"" + presetOrFile + "\"" + Suggestion(presetOrFile, names));
    }
    try
    {
        const nlohmann::json document = ParseJson(ReadFile(PathOf(presetOrFile)));
        return ReadPlc(CJsonNode(document, "the PLC"));
    }
    catch (const CFileError& error)
    {
        throw CFileError(presetOrFile + ": " + error.what());
    }
}

bool Configure(pexlo::Wizard& wizard, const SSettings& settings)
{
    settings.plc.Configure(wizard);
    wizard.SetCmtRec(settings.comments ? 1 : 0);
    wizard.SetOnlyDataTable(settings.onlyTable ? 1 : 0);
    constexpr int kEnglish = 0; // which the library knows by itself
    return wizard.SetLanguageInfo(settings.language) || settings.language == kEnglish;
}

pexlo::Form MakeForm(const SFormName& name, const SSettings& settings)
{
    pexlo::Form form(name.instruction, name.variant);
    form.axisFlag = settings.plc.axes == 2 ? 0 : 1;
    form.workArea = settings.workArea;
    form.controlCode = settings.controlCode;
    return form;
}
