// The program for authors: looks at data the way the game does. docs/authors/README.md tells its use.

#include "tools/author/znCCheck.h"
#include "tools/author/znCFairness.h"
#include "tools/author/znCImport.h"
#include "tools/author/znCNewScene.h"
#include "tools/author/znCPacker.h"
#include "tools/author/znCShot.h"
#include "tools/author/znCWatch.h"
#include "tools/author/znNText.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>

namespace
{
namespace fs = std::filesystem;

int check(const fs::path& pData)
{
    znCCheck check(pData);
    const std::set<znSFault>& faults = check.run();
    for (const znSFault& fault : faults)
        std::printf("%s:%d: %s\n", (pData / fault.mFile).generic_string().c_str(), std::max(fault.mLine, 1),
                    fault.mText.c_str());
    if (faults.empty())
        std::printf("%s: no faults\n", pData.generic_string().c_str());
    else
        std::printf("%zu %s\n", faults.size(), faults.size() == 1 ? "fault" : "faults");
    return faults.empty() ? 0 : 1;
}

int fair(const fs::path& pData, const std::string& pScene, const fs::path& pPicture)
{
    znCFairness fairness(pData);
    if (!fairness.measure(pScene))
        return std::fprintf(stderr, "there is no scene %s in %s\n", pScene.c_str(), pData.c_str()), 1;
    std::printf("%3s %-34s %2s %6s %9s %6s %8s %6s %7s %7s\n", "", "object", "in", "sight", "size", "area", "contrast",
                "colour", "outline", "overlap");
    s32 number = 0;
    s32 unfair = 0;
    for (const znCFairness::Object& object : fairness.objectsGet())
    {
        const std::string size = std::to_string(object.mWidth) + "x" + std::to_string(object.mHeight);
        std::printf("%3d %-34s %2d %5.0f%% %9s %6d %8.0f %6.0f %7.0f %6.0f%%", ++number, object.mName.c_str(),
                    object.mSubScene, 100.0 * object.mInSight, size.c_str(), object.mArea, object.mContrast,
                    object.mColour, object.mOutline, 100.0 * object.mOverlap);
        for (const std::string& warning : object.mWarnings)
            std::printf("  <- %s", warning.c_str());
        std::printf("\n");
        unfair += !object.mWarnings.empty();
    }
    std::printf("%d objects, %d that a player may call unfair\n", number, unfair);
    fs::path start = pPicture;
    if (!fairness.picturesWrite(start.replace_extension()))
        return std::fprintf(stderr, "%s can't be written\n", pPicture.c_str()), 1;
    std::printf("pictures: %s.png, close-ups %s-N.png\n", start.c_str(), start.c_str());
    return 0;
}

int sceneNew(const fs::path& pData, const std::string& pName)
{
    znCNewScene scene(pData);
    if (!scene.make(pName))
        return 1;
    for (const fs::path& file : scene.filesGet())
        std::printf("%s\n", file.c_str());
    std::printf("play it: petrelmail --data %s -- %s\n", pData.c_str(), pName.c_str());
    return 0;
}

int import(const fs::path& pData, const fs::path& pFile, const std::string& pScene)
{
    znCImport import(pData);
    if (!import.import(pFile, pScene))
        return 1;
    for (const std::string& note : import.notesGet())
        std::printf("%s\n", note.c_str());
    std::printf("%zu files written to %s\n", import.filesGet().size(), (pData / "scenes" / pScene).c_str());
    return 0;
}

int pack(const fs::path& pData, const std::string& pScene)
{
    znCPacker packer(pData);
    const znCPacker::Cost before = packer.costGet(pScene);
    if (!packer.pack(pScene))
        return 1;
    for (const std::string& file : packer.tooLargeGet())
        std::printf("%s stays loose: no side may be longer than %d\n", file.c_str(), znCPacker::SIDE_MAX);
    for (const std::string& page : packer.pagesGet())
        std::printf("%s\n", page.c_str());
    std::printf("%zu pictures moved onto %zu pages\n", packer.movedGet().size(), packer.pagesGet().size());
    const znCPacker::Cost after = packer.costGet(pScene);
    std::printf("files read: %d before, %d now; draw runs a frame: %d before, %d now\n", before.mFiles, after.mFiles,
                before.mRuns, after.mRuns);
    return 0;
}

int unpack(const fs::path& pData, const std::string& pScene, bool pLooseWins)
{
    znCPacker packer(pData);
    if (!packer.unpack(pScene, pLooseWins))
        return 1;
    std::printf("%zu pictures taken off %zu pages\n", packer.movedGet().size(), packer.pagesGet().size());
    return 0;
}

int watch(const fs::path& pProgram, const fs::path& pData, const std::string& pScene, const std::string& pSize)
{
    const bool played = znCWatch(pProgram, pData)
                            .run(pScene, {"--windowed", "--size", pSize},
                                 [](const std::string& pComplaint)
                                 {
                                     std::printf("%s\n", pComplaint.c_str());
                                     std::fflush(stdout);
                                 });
    return played ? 0 : 1;
}
} // namespace

int main(int pCount, char** pArguments)
{
    CLI::App program("Looks at the game's data the way the game does, for those who make it.", "petrelmail-author");
    program.require_subcommand(1);
    std::string data = "data";
    std::string name;
    std::string picture;
    std::string size = "1366x768";
    bool looseWins = false;
    s32 wait = znCShot::WAIT_MS;

    CLI::App* checkCommand = program.add_subcommand("check", "Names everything that is wrong in the data");
    checkCommand->add_option("DATA", data, "The data folder")->capture_default_str()->check(CLI::ExistingDirectory);
    CLI::App* fairCommand = program.add_subcommand("fair", "Measures how findable each object of a scene is");
    fairCommand->add_option("SCENE", name)->required();
    fairCommand->add_option("--out", picture, "The picture (fair-SCENE.png)");
    CLI::App* shotCommand = program.add_subcommand("shot", "Takes a picture of a screen or a scene");
    shotCommand->add_option("SCREEN", name, "A scene, or a GUI file")->required();
    shotCommand->add_option("--size", size, "WxH, pixels")->capture_default_str();
    shotCommand->add_option("--out", picture, "The picture (SCREEN.png)");
    shotCommand->add_option("--wait", wait, "Milliseconds of the game's time before it is taken")
        ->capture_default_str();
    CLI::App* newCommand = program.add_subcommand("new", "Makes something to begin with");
    newCommand->require_subcommand(1);
    CLI::App* sceneCommand = newCommand->add_subcommand("scene", "A scene with one object of each kind");
    sceneCommand->add_option("NAME", name)->required();
    CLI::App* packCommand = program.add_subcommand("pack", "Puts a scene's loose pictures onto texture pages");
    packCommand->add_option("SCENE", name)->required();
    CLI::App* unpackCommand = program.add_subcommand("unpack", "Makes loose pictures of a scene's texture pages");
    unpackCommand->add_option("SCENE", name)->required();
    unpackCommand->add_flag("--loose-wins", looseWins, "Keep what lies loose, whatever a page has of that name");
    CLI::App* importCommand = program.add_subcommand("import", "Makes a scene of a layered OpenRaster file");
    importCommand->add_option("FILE", picture, "FILE.ora")->required();
    importCommand->add_option("SCENE", name)->required();
    CLI::App* watchCommand = program.add_subcommand("watch", "Plays a scene that opens anew when its files change");
    watchCommand->add_option("SCENE", name)->required();
    watchCommand->add_option("--size", size, "WxH of the window, pixels")->capture_default_str();
    for (CLI::App* command :
         {fairCommand, watchCommand, shotCommand, sceneCommand, packCommand, unpackCommand, importCommand})
        command->add_option("--data", data, "The data folder")->capture_default_str()->check(CLI::ExistingDirectory);
    CLI11_PARSE(program, pCount, pArguments);

    if (checkCommand->parsed())
        return check(data);
    if (fairCommand->parsed())
        return fair(data, name, picture.empty() ? "fair-" + name + ".png" : picture);
    if (newCommand->parsed())
        return sceneNew(data, name);
    if (importCommand->parsed())
        return import(data, picture, name);
    if (packCommand->parsed())
        return pack(data, name);
    if (unpackCommand->parsed())
        return unpack(data, name, looseWins);
    const fs::path game = fs::canonical("/proc/self/exe").parent_path() / "petrelmail";
    if (watchCommand->parsed())
        return watch(game, data, name, size);
    const std::string file = picture.empty() ? znNText::stemGet(name) + ".png" : picture;
    return znCShot(game, data, size).take(name, file, wait) ? 0 : 1;
}
