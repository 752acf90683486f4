#include "tools/author/znCShot.h"

#include "tools/author/znNText.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <vector>

namespace
{
namespace fs = std::filesystem;
constexpr char NAME[] = "shot";
constexpr char SCRIPT[] = "script";
} // namespace

bool znCShot::screenExists(const std::string& pScreen) const
{
    const std::string screen = znNText::lowerGet(pScreen);
    return fs::is_regular_file(mData / screen) || fs::exists(mData / "scenes" / screen / "coords.txt");
}

bool znCShot::take(const std::string& pScreen, const fs::path& pPicture, s32 pWaitMs) const
{
    if (!screenExists(pScreen))
    {
        std::fprintf(stderr, "%s is neither a scene nor a GUI file of %s\n", pScreen.c_str(), mData.c_str());
        return false;
    }
    std::string folder = (fs::temp_directory_path() / "petrelmail-shot-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr)
        return std::perror(folder.c_str()), false;
    std::ofstream(fs::path(folder) / SCRIPT) << "wait " << pWaitMs << "\nshot " << NAME << "\nquit\n";
    const fs::path shot = fs::path(folder) / (std::string(NAME) + ".png");
    std::error_code error;
    programRun(pScreen, folder);
    const bool taken = fs::exists(shot) && fs::copy_file(shot, pPicture, fs::copy_options::overwrite_existing, error);
    if (!taken)
        std::fprintf(stderr, "no picture of %s: %s failed, or %s can't be written\n", pScreen.c_str(), mProgram.c_str(),
                     pPicture.c_str());
    fs::remove_all(folder, error);
    return taken;
}

void znCShot::programRun(const std::string& pScreen, const fs::path& pFolder) const
{
    // The screen is made of the size that is asked for, so that the game takes all of it, as on a player's machine.
    std::vector<std::string> words = {mProgram.string(), "--headless", "--fullscreen", "--set",
                                      "s3e.DisplayModes=" + mSize};
    for (const char* fixed : {"--step", "16", "--seed", "1"})
        words.push_back(fixed);
    const std::string folder = pFolder.string();
    for (const std::string& given :
         {std::string("--data"), mData.string(), std::string("--user"), folder + "/user", std::string("--script"),
          folder + "/" + SCRIPT, std::string("--shots"), folder, std::string("--"), pScreen})
        words.push_back(given);
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t process = 0;
    int status = 0;
    if (posix_spawn(&process, mProgram.c_str(), nullptr, nullptr, arguments.data(), environ) != 0)
        return;
    waitpid(process, &status, 0); // what counts is the picture
}
