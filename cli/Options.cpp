#include "cli/Options.h"

#include "cli/ExitCodes.h"
#include "cli/Jobs.h"
#include "cli/NearName.h"
#include "host/Languages.h"
#include "host/TextFile.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <sstream>

namespace
{
std::string VersionText()
{
    const int version = pexlo::Version();
    char text[48];
    std::snprintf(text, sizeof text, "pexlo %d.%d.%d", version >> 16, version >> 8 & 0xFF, version & 0xFF);
    return text;
}

// As the options stand in the command line.
struct SWords
{
    std::string plc = "compact";
    std::string format = "text";
    std::vector<std::string> set;
    std::string controlCode = "0";
};

void AddSettings(CLI::App& command, SOptions& options, SWords& words)
{
    command.add_option("--plc", words.plc, "The PLC: a preset, or a JSON file that describes one")
        ->capture_default_str();
    command.add_option("--language", options.language, "Of messages, items and comments")
        ->check(CLI::IsMember(LanguageNames(), CLI::ignore_case))
        ->default_str("English");
    command.add_option("--format", words.format, "Of what is printed")
        ->check(CLI::IsMember({"text", "json", "csv"}, CLI::ignore_case))
        ->capture_default_str();
}

void AddForm(CLI::App& command, SOptions& options, SWords& words)
{
    command.add_option("--set", words.set, "An entry, NAME=VALUE; once for each field")
        ->allow_extra_args(false)
        ->option_text("NAME=VALUE ...");
    command.add_option("--work-area", options.settings.workArea, "Registers that F355 uses beyond its first one")
        ->capture_default_str();
    command.add_option("--control-code", words.controlCode, "What control-code starts from, in hexadecimal")
        ->capture_default_str();
}

unsigned ControlCode(const std::string& text)
{
    constexpr int kHexadecimal = 16;
    const bool isHex =
        !text.empty() && text.size() <= 8 && text.find_first_not_of("0123456789ABCDEFabcdef") == std::string::npos;
    if (!isHex)
        throw CFileError("--control-code: one to eight hexadecimal digits are expected");
    return static_cast<unsigned>(std::stoul(text, nullptr, kHexadecimal));
}

std::vector<pexlo::Entry> Entries(const std::vector<std::string>& texts)
{
    std::vector<pexlo::Entry> entries;
    for (const std::string& text : texts)
    {
        const auto entry = ParseEntry(text);
        if (!entry)
            throw CFileError("--set " + text + ": NAME=VALUE is expected");
        entries.push_back(*entry);
    }
    return entries;
}

int LanguageOf(const std::string& name)
{
    for (const SHostLanguage& language : kHostLanguages)
    {
        if (CLI::detail::to_lower(language.name) == CLI::detail::to_lower(name))
            return language.index;
    }
    return 0;
}

EFormat FormatOf(const std::string& name)
{
    const std::string word = CLI::detail::to_lower(name);
    return word == "json" ? EFormat::Json : word == "csv" ? EFormat::Csv : EFormat::Text;
}

// The first word is no command.
std::string NoCommand(const CLI::App& app, const std::string& word)
{
    std::vector<std::string> names;
    for (const CLI::App* command : app.get_subcommands({}))
        names.push_back(command->get_name());
    return "pexlo: there is no command \"" + word + '"' + Suggestion(word, names) + '\n';
}

void Interpret(SOptions& options, const SWords& words)
{
    options.format = FormatOf(words.format);
    options.settings.plc = LoadPlc(words.plc);
    options.settings.language = LanguageOf(options.language);
    options.settings.controlCode = ControlCode(words.controlCode);
    options.entries = Entries(words.set);
    if (options.command == ECommand::Fill && options.instruction.empty() && options.input.empty())
        throw CFileError("an instruction, or a file with --input, is expected");
}
} // namespace

std::optional<SUsage> ParseOptions(const std::vector<std::string>& arguments, SOptions& options)
{
    CLI::App app("Fills in the instructions of a PLC ladder program: data tables, comments and the ladder, without a "
                 "window.",
                 "pexlo");
    app.require_subcommand(1);
    app.set_version_flag("--version", VersionText);
    app.footer("Exit codes: 0 everything was done, 1 some entries were refused, 2 wrong usage or a wrong file.");
    SWords words;

    CLI::App* list = app.add_subcommand("list", "Lists the instructions that a PLC has");
    CLI::App* describe = app.add_subcommand("describe", "Tells the fields of an instruction");
    CLI::App* fill = app.add_subcommand("fill", "Fills in an instruction, or those of a file");
    for (CLI::App* command : {list, describe, fill})
        AddSettings(*command, options, words);
    for (CLI::App* command : {describe, fill})
        AddForm(*command, options, words);

    describe->add_option("instruction", options.instruction, "Such as F168, F168:home, unit:jog; see list")->required();
    fill->add_option("instruction", options.instruction, "Such as F168, F168:home, unit:jog; see list");
    fill->add_option("--input", options.input, "CSV or JSON with a line for each instruction; - reads standard input");
    fill->add_flag("--comments,!--no-comments", options.settings.comments, "Whether comments are made");
    fill->add_flag("--only-table", options.settings.onlyTable, "Only the data table, not the instruction");
    fill->add_flag("--records", options.records, "Contacts, operands and instruction records as text, too");

    std::vector<const char*> argv;
    for (const std::string& argument : arguments)
        argv.push_back(argument.c_str());
    try
    {
        app.parse(static_cast<int>(argv.size()), argv.data());
    }
    catch (const CLI::ParseError& error)
    {
        const bool isWord = arguments.size() > 1 && !arguments[1].starts_with('-');
        if (isWord && app.get_subcommands().empty())
            return SUsage{kWrongUsage, NoCommand(app, arguments[1])};
        std::ostringstream out, complaint;
        const int code = app.exit(error, out, complaint);
        return SUsage{code == 0 ? kAllFilled : kWrongUsage, out.str() + complaint.str()};
    }
    options.command = list->parsed() ? ECommand::List : describe->parsed() ? ECommand::Describe : ECommand::Fill;
    Interpret(options, words);
    return std::nullopt;
}
