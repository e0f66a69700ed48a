// The ladder tool: a small customer of the wizard library.
//
//     LadderHost                                   opens the main window
//     LadderHost --play session.json [--shots DIR] plays a recorded session and prints what came of it

#include "afx/Console.h"
#include "host/HostDlg.h"
#include "host/HostName.h"
#include "host/SessionPlayer.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>

namespace
{
constexpr int kBadSession = 2; // exit code

int PlaySession(const std::string& path, const std::string& shots)
{
    const SSession session = LoadSession(path);
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
    std::string session;
    std::string shots;
    CLI::Option* play = app.add_option("--play", session, "Play a recorded session and print the result lists");
    app.add_option("--shots", shots, "Save a picture of every dialog to this folder")->needs(play);
    CLI11_PARSE(app, argc, argv);

    AfxSetBinaryOutput(); // reports have the same line ends everywhere
    PexloDll_SetAppName(kHostName);
    AfxSetResourceHandle(::GetModuleHandleA(nullptr)); // the library's own are its English ones
    if (*play)
        return PlaySession(session, shots);

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
