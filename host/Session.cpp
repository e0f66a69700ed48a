#include "host/Session.h"

#include "host/DeviceText.h"
#include "host/Languages.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <map>
#include <sstream>
#include <utility>

using nlohmann::json;

namespace
{
[[noreturn]] void Refuse(const std::string& where, const std::string& what)
{
    throw CSessionError((where.empty() ? "the session" : where) + ": " + what);
}

// A value of the file together with its place in it, so that every complaint can say where.
class CNode
{
public:
    CNode(const json& value, std::string where) : m_value(value), m_where(std::move(where)) {}

    const std::string& Where() const { return m_where; }
    [[noreturn]] void Refuse(const std::string& what) const { ::Refuse(m_where, what); }

    bool IsText() const { return m_value.is_string(); }
    bool Has(const char* key) const { return m_value.contains(key); }

    // Members of an object. A key that is not known is a mistake of the file, not something to pass over.
    void ExpectKeys(std::initializer_list<const char*> known) const;
    CNode operator[](const char* key) const;
    std::vector<std::pair<std::string, CNode>> Members() const;
    std::vector<CNode> Elements() const;

    std::string Text() const;
    bool Flag() const;
    long long Number(long long low, long long high) const;
    int Int(long long low, long long high) const { return static_cast<int>(Number(low, high)); }

private:
    const json& m_value;
    std::string m_where;
};

void CNode::ExpectKeys(std::initializer_list<const char*> known) const
{
    for (const auto& [key, value] : Members())
    {
        if (std::find(known.begin(), known.end(), key) == known.end())
            Refuse("unknown key \"" + key + "\"");
    }
}

CNode CNode::operator[](const char* key) const
{
    if (!Has(key))
        Refuse(std::string("\"") + key + "\" is missing");
    return {m_value[key], m_where.empty() ? key : m_where + "." + key};
}

std::vector<std::pair<std::string, CNode>> CNode::Members() const
{
    if (!m_value.is_object())
        Refuse("an object {...} is expected");
    std::vector<std::pair<std::string, CNode>> members;
    for (const auto& [key, value] : m_value.items())
        members.emplace_back(key, CNode(value, m_where.empty() ? key : m_where + "." + key));
    return members;
}

std::vector<CNode> CNode::Elements() const
{
    if (!m_value.is_array())
        Refuse("a list [...] is expected");
    std::vector<CNode> elements;
    for (const json& value : m_value)
        elements.emplace_back(value, m_where + "[" + std::to_string(elements.size()) + "]");
    return elements;
}

std::string CNode::Text() const
{
    if (!m_value.is_string())
        Refuse("a text is expected");
    return m_value.get<std::string>();
}

bool CNode::Flag() const
{
    if (!m_value.is_boolean())
        Refuse("true or false is expected");
    return m_value.get<bool>();
}

long long CNode::Number(long long low, long long high) const
{
    const std::string expected =
        "a whole number from " + std::to_string(low) + " to " + std::to_string(high) + " is expected";
    if (!m_value.is_number_integer() || (m_value.is_number_unsigned() && m_value.get<unsigned long long>() > INT64_MAX))
        Refuse(expected);
    const auto number = m_value.get<long long>();
    if (number < low || number > high)
        Refuse(expected);
    return number;
}

template <typename T>
T Choose(const CNode& node, const std::map<std::string, T>& choices)
{
    const std::string name = node.Text();
    const auto choice = choices.find(name);
    if (choice != choices.end())
        return choice->second;
    std::string names;
    for (const auto& entry : choices)
        names += (names.empty() ? "" : ", ") + entry.first;
    node.Refuse("\"" + name + "\" is none of " + names);
}

// ---- The controller -------------------------------------------------------------------------------------------------

SPlc Preset(const CNode& node)
{
    std::map<std::string, SPlc> presets;
    for (const SPlc& plc : PlcPresets())
        presets[plc.name] = plc;
    return Choose(node, presets);
}

std::vector<SDeviceRange> Ranges(const CNode& node)
{
    std::vector<SDeviceRange> ranges;
    for (const auto& [device, bounds] : node.Members())
    {
        if (DeviceCode(device) < 0)
            bounds.Refuse("there is no device \"" + device + "\"");
        const std::vector<CNode> pair = bounds.Elements();
        if (pair.size() != 2)
            bounds.Refuse("two numbers, [lowest, highest], are expected");
        ranges.push_back({device, pair[0].Int(INT32_MIN, INT32_MAX), pair[1].Int(INT32_MIN, INT32_MAX)});
    }
    return ranges;
}

std::vector<SOfferedChannel> Channels(const CNode& node)
{
    std::vector<SOfferedChannel> channels;
    for (const auto& [instruction, list] : node.Members())
    {
        const std::vector<std::string> known = {"171", "172", "173", "174", "175"};
        if (std::find(known.begin(), known.end(), instruction) == known.end())
            list.Refuse("only the instructions 171 to 175 take channels");
        for (const CNode& channel : list.Elements())
            channels.push_back({channel.Int(0, 15), std::stoi(instruction)});
    }
    return channels;
}

// A preset by its name, or an object that may start from a preset and says what is different.
SPlc Plc(const CNode& node)
{
    if (node.IsText())
        return Preset(node);

    node.ExpectKeys(
        {"preset", "type", "slots", "axes", "startType", "display175", "ranges", "channels", "instructions"});
    SPlc plc = node.Has("preset") ? Preset(node["preset"]) : SPlc();
    if (!node.Has("preset"))
        plc.name = "custom";
    if (node.Has("type"))
        plc.type = node["type"].Int(0, 255);
    if (node.Has("slots"))
        plc.slots = node["slots"].Int(0, 255);
    if (node.Has("axes"))
        plc.axes = node["axes"].Int(2, 4);
    if (node.Has("startType"))
        plc.startType = node["startType"].Int(0, 2);
    if (node.Has("display175"))
        plc.display175 = node["display175"].Int(0, 2);
    if (node.Has("ranges"))
        plc.ranges = Ranges(node["ranges"]);
    if (node.Has("channels"))
        plc.channels = Channels(node["channels"]);
    if (node.Has("instructions"))
    {
        plc.instructions.clear();
        for (const CNode& instruction : node["instructions"].Elements())
            plc.instructions.push_back(instruction.Int(168, 177));
    }
    return plc;
}

int Language(const CNode& node)
{
    std::map<std::string, int> languages = {{"none", -1}};
    for (const SHostLanguage& language : kHostLanguages)
        languages[language.name] = language.index;
    return Choose(node, languages);
}

// ---- Steps ----------------------------------------------------------------------------------------------------------

unsigned ControlId(const CNode& node) { return static_cast<unsigned>(node.Int(1, 65535)); }

SStep Step(const CNode& node)
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
    const CNode value = node[form->key];

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
        const int key = Choose<int>(value, {{"Enter", VK_RETURN},
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
        step.answer = Choose<unsigned>(node["answer"], {{"OK", IDOK},
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

unsigned ControlCode(const CNode& node)
{
    const std::string text = node.Text();
    const bool isHex =
        !text.empty() && text.size() <= 8 && text.find_first_not_of("0123456789ABCDEFabcdef") == std::string::npos;
    if (!isHex)
        node.Refuse("one to eight hexadecimal digits are expected");
    return static_cast<unsigned>(std::stoul(text, nullptr, 16));
}

SRun Run(const CNode& node)
{
    node.ExpectKeys({"open", "workArea", "instruction", "permitted", "code", "dialogs"});
    SRun run;
    run.wizard = Choose<EWizard>(node["open"], {{"pulse output", EWizard::Pulse},
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
        const std::vector<CNode> masks = node["permitted"].Elements();
        if (masks.size() != 4)
            node["permitted"].Refuse("four masks are expected");
        run.permitted.emplace();
        std::transform(masks.begin(), masks.end(), run.permitted->begin(),
                       [](const CNode& mask) { return static_cast<unsigned long long>(mask.Number(0, INT64_MAX)); });
    }
    for (const CNode& dialog : node["dialogs"].Elements())
    {
        CDialogSteps steps;
        for (const CNode& step : dialog.Elements())
            steps.push_back(Step(step));
        if (steps.empty())
            dialog.Refuse("a dialog needs at least the step that closes it");
        run.dialogs.push_back(std::move(steps));
    }
    return run;
}

json Parse(const std::string& text)
{
    try
    {
        return json::parse(text);
    }
    catch (const json::parse_error& error)
    {
        const size_t end = std::min(text.size(), error.byte);
        const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), '\n');
        throw CSessionError("no JSON: mistake in line " + std::to_string(line));
    }
}
} // namespace

SSession ParseSession(const std::string& text)
{
    const json document = Parse(text);
    const CNode node(document, "");
    node.ExpectKeys({"title", "plc", "language", "help", "comments", "runs"});

    SSession session;
    if (node.Has("title"))
        session.title = node["title"].Text();
    session.plc = Plc(node["plc"]);
    if (node.Has("language"))
        session.language = Language(node["language"]);
    if (node.Has("help"))
        session.help = node["help"].Text();
    if (node.Has("comments"))
        session.comments = node["comments"].Flag();
    for (const CNode& run : node["runs"].Elements())
        session.runs.push_back(Run(run));
    return session;
}

SSession LoadSession(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    if (!file || !(text << file.rdbuf()))
        throw CSessionError(path + ": the file cannot be read");
    try
    {
        return ParseSession(text.str());
    }
    catch (const CSessionError& error)
    {
        throw CSessionError(path + ": " + error.what());
    }
}
