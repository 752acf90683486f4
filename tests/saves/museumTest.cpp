// Every layout of saves that players may have is still read: each folder of tests/museum is one, as the program of its
// time left it.

#include "tests/play/gameRun.h"
#include "znappcore/znCUniqueId.h"
#include "zncore/src/znCVariableTable.h"

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace fs = std::filesystem;

namespace
{
struct Exhibit
{
    const char* mFolder;
    const char* mScene;                          // which the current player goes on in
    std::map<std::string, std::string> mGlobal;  // what must be there after a visit to the scene
    std::map<std::string, std::string> mCurrent; // of the current player, whose file is user0.txt
    std::map<std::string, std::string> mOther;   // user1.txt
    std::vector<std::string> mFound;             // in the scene, before
};

const Exhibit EXHIBITS[] = {
    // Settings, "CurrLev", "time" and the states of the things in a scene.
    {"1",
     "quay",
     {{"NumProfiles", "2"}, {"CurrProfile", "0"}, {"ProfileName0", "Anna"}, {"ProfileName1", "Ben"}},
     {{"MusicVolume", "0.4"}, {"EffectsVolume", "0.6"}, {"CurrLev", "quay"}, {"currency", "0"}},
     {{"MusicVolume", "0.25"}, {"MuteAll", "1"}, {"CustomCursors", "0"}, {"currency", "35"}},
     {"HOT-brass_bell.png", "HOT-telescope.png"}},
    // All keys of a player; of a scene also its lists, the counts of its bonus items and its celebration.
    {"2",
     "quay",
     {{"NumProfiles", "2"}, {"CurrProfile", "0"}, {"ProfileName0", "Anna"}, {"ProfileName1", "Ben"}},
     {{"MusicVolume", "0.4"},
      {"Casual", "0"},
      {"Male", "1"},
      {"CurrLev", "quay"},
      {"currency", "120"},
      {"lostAndFoundCount", "3"},
      {"trashCount", "4"},
      {"miniGameCount", "2"},
      {"succesiveHintFreeLevel", "1"}},
     {{"MusicVolume", "0.25"}, {"MuteAll", "1"}, {"CustomCursors", "0"}, {"currency", "35"}},
     {"HOT-brass_bell.png", "HOT-telescope.png"}},
};

znCVariableTable tableRead(const fs::path& pPath)
{
    std::ifstream file(pPath, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    znCVariableTable table;
    table.textParse(text.data(), text.data() + text.size());
    return table;
}

void valuesCheck(const fs::path& pFile, const std::map<std::string, std::string>& pValues)
{
    const znCVariableTable table = tableRead(pFile);
    for (const auto& [key, value] : pValues)
        EXPECT_EQ(table.strGet(key, "missing"), value) << pFile << " " << key;
}

// The state of a collectable: behind its key and its active flag.
std::string stateGet(const std::string& pLevel, const std::string& pName)
{
    char key[16];
    std::snprintf(key, sizeof key, "%08x{", znCUniqueId::hashGet(pName));
    const size_t at = pLevel.find(key);
    return at == std::string::npos ? "missing" : pLevel.substr(at + 11, 1);
}
} // namespace

TEST(museumTest, everyLayoutIsRead)
{
    std::set<std::string> shown;
    for (const Exhibit& exhibit : EXHIBITS)
    {
        SCOPED_TRACE(exhibit.mFolder);
        shown.insert(exhibit.mFolder);
        GameRun run(std::string("museum") + exhibit.mFolder);
        const fs::path folder = fs::path(PETREL_ROOT "/tests/museum") / exhibit.mFolder;
        fs::copy(folder, run.userFolderGet(), fs::copy_options::overwrite_existing | fs::copy_options::recursive);
        const znCVariableTable before = tableRead(folder / "user0.txt");
        const std::string script = run.scriptWrite("wait 4000\nquit\n");
        EXPECT_EQ(run.headlessRun({"--script", script, "--", exhibit.mScene}), 0) << run.errorGet();

        const std::string log = run.logGet();
        for (const char* fault :
             {"is damaged", "No saved data", "Failed to match", "Expected to find a ','", "list of players"})
            EXPECT_EQ(log.find(fault), std::string::npos) << fault;
        valuesCheck(run.userFolderGet() / "global.txt", exhibit.mGlobal);
        valuesCheck(run.userFolderGet() / "user0.txt", exhibit.mCurrent);
        valuesCheck(run.userFolderGet() / "user1.txt", exhibit.mOther);
        const znCVariableTable after = tableRead(run.userFolderGet() / "user0.txt");
        EXPECT_GE(after.s32Get("time"), before.s32Get("time") + 3000);
        for (const std::string& name : exhibit.mFound)
            EXPECT_EQ(stateGet(after.strGet(std::string("LevDat:") + exhibit.mScene), name), "3") << name;
    }
    for (const auto& entry : fs::directory_iterator(PETREL_ROOT "/tests/museum"))
        if (entry.is_directory())
            EXPECT_EQ(shown.count(entry.path().filename()), 1u) << entry.path() << " is in the museum and isn't shown";
}
