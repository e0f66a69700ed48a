#include "host/Session.h"

#include "afx/afx.h"
#include "host/JsonNode.h"
#include "host/Languages.h"
#include "host/PlcJson.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace
{
int Language(const CJsonNode& node)
{
    std::map<std::string, int> languages = {{"none", -1}};
    for (const SHostLanguage& language : kHostLanguages)
        languages[language.name] = language.index;
    return node.Choose(languages);
}

// ---- Steps ----------------------------------------------------------------------------------------------------------

unsigned ControlId(const CJsonNode& node) { return static_cast<unsigned>(node.Int(1, 65535)); }

SStep Step(const CJsonNode& node)
{
    struct SForm
    {
        const char* key;
        EVerb verb;
        bool namesControl; // the value is the control, else "in" names it, unless there is none
        bool hasIn;
    };
    constexpr SForm kForms[] = {
        {"type", EVerb::Type, false, true},
        {"set", EVerb::Set, false, true},
        {"select", EVerb::SelectText, false, true},
        {"check", EVerb::Check, true, false},
        {"uncheck", EVerb::Uncheck, true, false},
        {"click", EVerb::Click, true, false},
        {"doubleclick", EVerb::DoubleClick, true, false},
        {"focus", EVerb::Focus, true, false},
        {"press", EVerb::Press, false, false},
        {"paste", EVerb::Paste, false, false},
        {"shot", EVerb::Shot, false, false},
    };
    const auto form =
        std::find_if(std::begin(kForms), std::end(kForms), [&](const SForm& f) { return node.Has(f.key); });
    if (form == std::end(kForms))
    {
        node.ExpectKeys({});
        node.Refuse("a step is expected");
    }
    const CJsonNode value = node[form->key];

    SStep step;
    step.verb = form->verb;
    step.where = node.Where();
    if (form->hasIn)
        node.ExpectKeys({form->key, "in", "answer"});
    else
        node.ExpectKeys({form->key, "answer"});

    if (form->namesControl)
        step.control = ControlId(value);
    if (form->hasIn)
        step.control = ControlId(node["in"]);

    if (form->verb == EVerb::SelectText && !value.IsText())
    {
        step.verb = EVerb::SelectIndex;
        step.number = value.Int(0, INT32_MAX);
    }
    else if (form->verb == EVerb::Press)
    {
        constexpr int kCtrl = 0x100;
        const int key = value.Choose<int>({{"Enter", VK_RETURN},
                                           {"Esc", VK_ESCAPE},
                                           {"Tab", VK_TAB},
                                           {"Up", VK_UP},
                                           {"Down", VK_DOWN},
                                           {"Left", VK_LEFT},
                                           {"Right", VK_RIGHT},
                                           {"Home", VK_HOME},
                                           {"End", VK_END},
                                           {"Page up", VK_PRIOR},
                                           {"Page down", VK_NEXT},
                                           {"Delete", VK_DELETE},
                                           {"Insert", VK_INSERT},
                                           {"F2", VK_F2},
                                           {"Ctrl+Home", VK_HOME | kCtrl},
                                           {"Ctrl+End", VK_END | kCtrl},
                                           {"Ctrl+C", 'C' | kCtrl},
                                           {"Ctrl+D", 'D' | kCtrl},
                                           {"Ctrl+I", 'I' | kCtrl},
                                           {"Ctrl+V", 'V' | kCtrl}});
        step.number = key & ~kCtrl;
        step.ctrl = (key & kCtrl) != 0;
        step.text = value.Text();
    }
    else if (!form->namesControl)
    {
        step.text = value.Text();
    }

    if (node.Has("answer"))
    {
        step.answer = node["answer"].Choose<unsigned>({{"OK", IDOK},
                                                       {"Cancel", IDCANCEL},
                                                       {"Yes", IDYES},
                                                       {"No", IDNO},
                                                       {"Abort", IDABORT},
                                                       {"Retry", IDRETRY},
                                                       {"Ignore", IDIGNORE}});
    }
    return step;
}

// ---- Runs -----------------------------------------------------------------------------------------------------------

unsigned ControlCode(const CJsonNode& node)
{
    const std::string text = node.Text();
    const bool isHex =
        !text.empty() && text.size() <= 8 && text.find_first_not_of("0123456789ABCDEFabcdef") == std::string::npos;
    if (!isHex)
        node.Refuse("one to eight hexadecimal digits are expected");
    return static_cast<unsigned>(std::stoul(text, nullptr, 16));
}

SRun Run(const CJsonNode& node)
{
    node.ExpectKeys({"open", "workArea", "instruction", "permitted", "code", "dialogs"});
    SRun run;
    run.wizard = node["open"].Choose<EWizard>({{"pulse output", EWizard::Pulse},
                                               {"positioning unit", EWizard::Unit},
                                               {"PID", EWizard::Pid},
                                               {"scaling", EWizard::Scaling},
                                               {"screen display", EWizard::Screen},
                                               {"control code", EWizard::ControlCode}});
    run.name = node["open"].Text();
    if (node.Has("workArea"))
        run.workArea = node["workArea"].Int(INT32_MIN, INT32_MAX);
    if (node.Has("instruction"))
        run.instruction = node["instruction"].Int(282, 354);
    if (node.Has("code"))
        run.controlCode = ControlCode(node["code"]);
    if (node.Has("permitted"))
    {
        const std::vector<CJsonNode> masks = node["permitted"].Elements();
        if (masks.size() != 4)
            node["permitted"].Refuse("four masks are expected");
        run.permitted.emplace();
        std::transform(masks.begin(), masks.end(), run.permitted->begin(), [](const CJsonNode& mask) {
            return static_cast<unsigned long long>(mask.Number(0, INT64_MAX));
        });
    }
    for (const CJsonNode& dialog : node["dialogs"].Elements())
    {
        CDialogSteps steps;
        for (const CJsonNode& step : dialog.Elements())
            steps.push_back(Step(step));
        if (steps.empty())
            dialog.Refuse("a dialog needs at least the step that closes it");
        run.dialogs.push_back(std::move(steps));
    }
    return run;
}
} // namespace

SSession ParseSession(const std::string& text)
{
    const nlohmann::json document = ParseJson(text);
    const CJsonNode node(document, "the session");
    node.ExpectKeys({"title", "plc", "language", "help", "comments", "runs"});

    SSession session;
    if (node.Has("title"))
        session.title = node["title"].Text();
    session.plc = ReadPlc(node["plc"]);
    if (node.Has("language"))
        session.language = Language(node["language"]);
    if (node.Has("help"))
        session.help = node["help"].Text();
    if (node.Has("comments"))
        session.comments = node["comments"].Flag();
    for (const CJsonNode& run : node["runs"].Elements())
        session.runs.push_back(Run(run));
    return session;
}

SSession LoadSession(const std::string& path)
{
    try
    {
        return ParseSession(ReadFile(path));
    }
    catch (const CFileError& error)
    {
        throw CFileError(path + ": " + error.what());
    }
}
