// The wizards as a command line: pexlo list, pexlo describe, pexlo fill. README.md tells how to use it.

#include "cli/Console.h"
#include "cli/Describe.h"
#include "cli/ExitCodes.h"
#include "cli/Files.h"
#include "cli/FillReport.h"
#include "cli/Options.h"
#include "cli/Progress.h"
#include "host/TextFile.h"

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

namespace
{
void Complain(const std::string& text) { Write(stderr, "pexlo: " + text + '\n'); }

int List(pexlo::Wizard& wizard, const SOptions& options)
{
    Write(stdout, OfferText(Offered(wizard), options.format));
    return kAllFilled;
}

int Describe(pexlo::Wizard& wizard, const SOptions& options)
{
    const SFormName name = NamedForm(options.instruction);
    const pexlo::Form form = MakeForm(name, options.settings);
    const pexlo::Description description = wizard.DescribeFields(form, options.entries);
    if (description.refusal)
    {
        CFiller filler(wizard, options.settings);
        Complain(FormName(name.instruction, name.variant) + ": " +
                 filler.Explain(form, options.entries, *description.refusal).Text());
    }
    Write(stdout, DescriptionText(FormName(name.instruction, name.variant), description, options.format));
    return description.refusal ? kSomeRefused : kAllFilled;
}

std::vector<SJob> Jobs(const SOptions& options)
{
    if (options.input.empty())
        return {SJob{0, options.instruction, options.entries, {}}};
    try
    {
        const std::string text = options.input == "-" ? ReadAll(stdin) : ReadFile(PathOf(options.input));
        std::vector<SJob> jobs = ReadJobs(text, options.instruction);
        EnterEverywhere(jobs, options.entries);
        return jobs;
    }
    catch (const CFileError& error)
    {
        throw CFileError(options.input + ": " + error.what());
    }
}

// Which job it is: "moves.csv:12: F168: ".
std::string Place(const SFilled& filled, const SOptions& options)
{
    std::string place;
    if (filled.line != 0)
        place = options.input + ':' + std::to_string(filled.line) + ": ";
    return place + (filled.instruction.empty() ? "" : filled.instruction + ": ");
}

int Fill(pexlo::Wizard& wizard, const SOptions& options)
{
    if (!options.instruction.empty())
        static_cast<void>(NamedForm(options.instruction)); // one that does not exist is no matter of the lines
    const std::vector<SJob> jobs = Jobs(options);
    const auto report = MakeFillReport({options.format, !options.input.empty(), options.records});
    CFiller filler(wizard, options.settings);

    constexpr size_t kMany = 100; // that take long enough to look on
    const bool isWatched = jobs.size() >= kMany && IsTerminal(stderr);
    const auto draw = [](const std::string& text) { Write(stderr, text); };
    CProgress progress(static_cast<int>(jobs.size()), isWatched ? draw : std::function<void(const std::string&)>());

    int result = kAllFilled;
    Write(stdout, report->Begin());
    for (const SJob& job : jobs)
    {
        const SFilled filled = filler.Fill(job);
        if (filled.complaint)
        {
            result = kSomeRefused;
            progress.Hide();
            Complain(Place(filled, options) + filled.complaint->Text());
        }
        Write(stdout, report->Entry(filled));
        progress.Advance();
    }
    Write(stdout, report->End());
    return result;
}

int Run(const std::vector<std::string>& arguments)
{
    SOptions options;
    if (const auto usage = ParseOptions(arguments, options))
    {
        Write(usage->exitCode == kAllFilled ? stdout : stderr, usage->text);
        return usage->exitCode;
    }

    pexlo::Wizard wizard;
    if (!Configure(wizard, options.settings))
        Complain("the language library of " + options.language + " was not found: texts are English");
    switch (options.command)
    {
    case ECommand::List:
        return List(wizard, options);
    case ECommand::Describe:
        return Describe(wizard, options);
    default:
        return Fill(wizard, options);
    }
}
} // namespace

int main(int argc, char** argv)
{
    UseBinaryStreams();
    try
    {
        const int result = Run(Arguments(argc, argv));
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) // on a disk that is full, say
            throw CFileError("the results cannot be written");
        return result;
    }
    catch (const std::exception& error)
    {
        Complain(error.what());
        return kWrongUsage;
    }
}
