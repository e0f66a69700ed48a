// The ladder tool: a small customer of the wizard library.
//
//     LadderHost                                   opens the main window
//     LadderHost --play session.json ... [--shots DIR] [--language NAME]
//                                                  plays recorded sessions and prints what came of them

#include "afx/Console.h"
#include "host/HostDlg.h"
#include "host/HostName.h"
#include "host/Languages.h"
#include "host/SessionLanguage.h"
#include "host/SessionPlayer.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace
{
constexpr int kBadSession = 2; // exit code

int PlaySession(const std::string& path, const std::string& shots, const std::string& language)
{
    SSession session = LoadSession(path);
    if (!language.empty())
        session = InLanguage(session, *LanguageIndex(language));
    std::filesystem::path pictures;
    if (!shots.empty())
    {
        std::filesystem::create_directories(shots);
        pictures = std::filesystem::path(shots) / std::filesystem::path(path).stem();
    }
    return CSessionPlayer(std::cout, pictures.string()).Play(session) ? EXIT_SUCCESS : EXIT_FAILURE;
}

int Run(int argc, char** argv)
{
    CLI::App app("Enters PLC instructions with the wizard library.", kHostName);
    app.allow_windows_style_options(false); // a path may begin with a slash
    std::vector<std::string> sessions;
    std::string shots;
    std::string language;
    CLI::Option* play = app.add_option("--play", sessions, "Play recorded sessions and print the result lists");
    app.add_option("--shots", shots, "Save a picture of every dialog to this folder")->needs(play);
    app.add_option("--language", language, "Play them in another language than they were recorded in")
        ->needs(play)
        ->check(CLI::IsMember(LanguageNames()));
    CLI11_PARSE(app, argc, argv);

    AfxSetBinaryOutput(); // reports have the same line ends everywhere
    PexloDll_SetAppName(kHostName);
    AfxSetResourceHandle(::GetModuleHandleA(nullptr)); // the library's own are its English ones
    if (*play)
    {
        int result = EXIT_SUCCESS;
        for (const std::string& session : sessions)
            result = std::max(result, PlaySession(session, shots, language));
        return result;
    }

    // Without windows to show there is no main window either.
    if (CHostDlg().DoModal() != -1)
        return EXIT_SUCCESS;
    std::cout << app.help();
    return EXIT_FAILURE;
}
} // namespace

int main(int argc, char** argv)
{
    try
    {
        return Run(argc, argv);
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "%s: %s\n", kHostName, error.what());
        return kBadSession;
    }
}
