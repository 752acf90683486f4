#include "tools/author/znCWatch.h"

#include "tools/author/znCProgram.h"
#include "tools/author/znNGameLog.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <set>
#include <thread>

namespace
{
namespace fs = std::filesystem;
constexpr char LOG[] = "log.txt";                              // of the player's folder
constexpr char NEW_THINGS[] = "The stored state of the level"; // what an author adds was not there when it was stored
constexpr std::chrono::milliseconds PAUSE(200);

std::string textGet(const fs::path& pFile)
{
    std::ifstream file(pFile, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
} // namespace

bool znCWatch::run(const std::string& pScene, const std::vector<std::string>& pOptions,
                   const std::function<void(const std::string&)>& pSay) const
{
    if (!fs::exists(mData / "scenes" / pScene / "coords.txt"))
    {
        std::fprintf(stderr, "there is no scene %s in %s; begin one: new scene %s\n", pScene.c_str(), mData.c_str(),
                     pScene.c_str());
        return false;
    }
    const znCPassingFolder user;
    std::vector<std::string> arguments = {"--watch", "--data", mData.string(), "--user", user.pathGet().string()};
    arguments.insert(arguments.end(), pOptions.begin(), pOptions.end());
    arguments.insert(arguments.end(), {"--", pScene});
    znCProgram game(mProgram, arguments);
    // An interrupt from the keyboard reaches the game too; what it leaves is cleared away here.
    const auto before = std::signal(SIGINT, SIG_IGN);
    std::set<std::string> said;
    for (bool running = true; running;)
    {
        running = game.running();
        for (const std::string& complaint : znNGameLog::complaintsGet(textGet(user.pathGet() / LOG)))
            if (!complaint.starts_with(NEW_THINGS) && said.insert(complaint).second)
                pSay(complaint);
        if (running)
            std::this_thread::sleep_for(PAUSE);
    }
    std::signal(SIGINT, before);
    return game.wait() == 0;
}
