#include "tools/author/znCShot.h"

#include "tools/author/znCProgram.h"
#include "tools/author/znNText.h"

#include <cstdio>
#include <fstream>

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
    const znCPassingFolder folder;
    std::ofstream(folder.pathGet() / SCRIPT) << "wait " << pWaitMs << "\nshot " << NAME << "\nquit\n";
    const fs::path shot = folder.pathGet() / (std::string(NAME) + ".png");
    programRun(pScreen, folder.pathGet());
    std::error_code error;
    const bool taken = fs::exists(shot) && fs::copy_file(shot, pPicture, fs::copy_options::overwrite_existing, error);
    if (!taken)
        std::fprintf(stderr, "no picture of %s: %s failed, or %s can't be written\n", pScreen.c_str(), mProgram.c_str(),
                     pPicture.c_str());
    return taken;
}

// What counts of its end is the picture.
void znCShot::programRun(const std::string& pScreen, const fs::path& pFolder) const
{
    // The screen is made of the size that is asked for, so that the game takes all of it, as on a player's machine.
    const std::string folder = pFolder.string();
    znCProgram(mProgram, {"--headless", "--fullscreen", "--set", "s3e.DisplayModes=" + mSize, "--step", "16", "--seed",
                          "1", "--data", mData.string(), "--user", folder + "/user", "--script", folder + "/" + SCRIPT,
                          "--shots", folder, "--", pScreen});
}
