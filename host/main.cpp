// The ladder tool: a small customer of the wizard library.
//
//     LadderHost                                   opens the main window
//     LadderHost --play session.json [--shots DIR] plays a recorded session and prints what came of it

#include "host/HostDlg.h"
#include "host/SessionPlayer.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace
{
constexpr const char* kName = "LadderHost";

int PlaySession(const std::string& path, const std::string& shots)
{
    try
    {
        const SSession session = LoadSession(path);
        if (!shots.empty())
            std::filesystem::create_directories(shots);
        return CSessionPlayer(std::cout, shots).Play(session) ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    catch (const std::exception& error)
    {
        std::cerr << kName << ": " << error.what() << '\n';
        return 2;
    }
}
} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Enters PLC instructions with the wizard library.", kName);
    std::string session;
    std::string shots;
    CLI::Option* play = app.add_option("--play", session, "Play a recorded session and print the result lists");
    app.add_option("--shots", shots, "Save a picture of every dialog to this folder")->needs(play);
    CLI11_PARSE(app, argc, argv);

    PexloDll_SetAppName(kName);
    if (*play)
        return PlaySession(session, shots);

    // Without windows to show there is no main window either.
    if (CHostDlg().DoModal() != -1)
        return EXIT_SUCCESS;
    std::cout << app.help();
    return EXIT_FAILURE;
}
