// Kills, again and again, what is saving. Nobody may be lost, and nothing that a finished save had written.

#include "tests/play/gameRun.h"
#include "tests/saves/saverRun.h"
#include "znappcore/src/znCGlobalSavedData.h"
#include "znappcore/src/znCProfileManager.h"
#include "zncore/src/znCVariableTable.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
constexpr s32 KILLS = 1000;
constexpr s32 GAME_KILLS = 24;
constexpr s32 PLAYERS = 2;
constexpr s32 WAIT_US = 6000; // before a kill, at most: a few saves
constexpr char MEMORY_FOLDER[] = "/dev/shm";

// What the saver tells, also after its end.
struct Told
{
    volatile s32 mSaved[PLAYERS]; // each player's number in the last save that was finished
    volatile bool mRunning;
    char mFault[200]; // empty: all was found as it should be
};

void faultTell(Told& pTold, const std::string& pText)
{
    std::strncpy(pTold.mFault, pText.c_str(), sizeof pTold.mFault - 1);
}

// Whether the players are there, each with one whole table that is as new as what they were told.
bool playersCheck(Told& pTold)
{
    const std::string names = SaverRun::namesGet();
    if (names != "Anna Ben " && names != "Anna Ben Guest ")
    {
        faultTell(pTold, "the players are \"" + names + "\"");
        return false;
    }
    for (s32 i = 0; i < PLAYERS; ++i)
    {
        znCProfileManager::instanceGet()->profileSelect(i);
        const s32 number = SaverRun::numberGet();
        if (number < pTold.mSaved[i])
        {
            faultTell(pTold, "player " + std::to_string(i) + " has " + std::to_string(number) + " instead of " +
                                 std::to_string(pTold.mSaved[i]));
            return false;
        }
        pTold.mSaved[i] = number;
    }
    return true;
}

// Looks at what it finds and saves until somebody ends it.
[[noreturn]] void saverRun(const fs::path& pFolder, Told& pTold)
{
    SaverRun run(pFolder);
    znCProfileManager& manager = *znCProfileManager::instanceGet();
    const bool allThere = playersCheck(pTold);
    pTold.mRunning = true;
    if (!allThere)
        _exit(1);
    for (s32 round = 0;; ++round)
    {
        const s32 player = round % PLAYERS;
        manager.profileSelect(player);
        const s32 number = pTold.mSaved[player] + 1;
        SaverRun::numberSet(number);
        manager.dataSave();
        pTold.mSaved[player] = number;
        if (SaverRun::namesGet() == "Anna Ben Guest ")
            manager.profileDelete(PLAYERS);
        else if (round % 5 == 4)
            manager.profileCreate("Guest");
    }
}

Told& toldMake()
{
    void* memory = mmap(nullptr, sizeof(Told), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return *new (memory) Told();
}

bool unfinishedStands(const fs::path& pFolder)
{
    for (const auto& entry : fs::directory_iterator(pFolder))
    {
        const std::string name = entry.path().filename();
        const size_t mark = name.find('~');
        if (mark != std::string::npos && mark + 1 < name.size())
            return true;
    }
    return false;
}

pid_t gameStart(const fs::path& pUser, const std::string& pScript)
{
    const char* chosen = std::getenv("PETREL_PROGRAM");
    const std::string program = chosen != nullptr ? chosen : PETREL_BIN "/petrelmail";
    const pid_t child = fork();
    if (child != 0)
        return child;
    const int nothing = open("/dev/null", O_RDWR);
    for (int file = 0; file < 3; ++file)
        dup2(nothing, file);
    execl(program.c_str(), program.c_str(), "--headless", "--data", PETREL_ROOT "/data", "--user", pUser.c_str(),
          "--step", "100", "--seed", "1000", "--script", pScript.c_str(), "--", "quay", nullptr);
    _exit(127);
}

// Until the file is another one, or half a minute has passed.
void saveAwait(const fs::path& pFile)
{
    const fs::file_time_type before = fs::last_write_time(pFile);
    std::error_code missing; // for a moment
    for (s32 i = 0; i < 600 && (fs::last_write_time(pFile, missing) == before || missing); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
}

znCVariableTable tableRead(const fs::path& pPath)
{
    std::ifstream file(pPath, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    znCVariableTable table;
    table.textParse(text.data(), text.data() + text.size());
    return table;
}
} // namespace

TEST(killTest, aThousandKillsLoseNobody)
{
    // In memory, where there is such a folder: how long a disk takes to flush is of no interest to a killed process.
    if (fs::is_directory(MEMORY_FOLDER))
        setenv("TMPDIR", MEMORY_FOLDER, 1);
    GameRun folders("kills"); // for its folder
    unsetenv("TMPDIR");
    Told& told = toldMake();
    {
        SaverRun run(folders.userFolderGet());
        for (const char* name : {"Anna", "Ben"})
        {
            znCProfileManager::instanceGet()->profileCreate(name);
            SaverRun::numberSet(0);
        }
    }
    std::mt19937 random(1); // the same waits each time
    s32 amid = 0;
    for (s32 i = 0; i < KILLS; ++i)
    {
        told.mRunning = false;
        const pid_t saver = fork();
        if (saver == 0)
            saverRun(folders.userFolderGet(), told);
        while (!told.mRunning)
            std::this_thread::sleep_for(std::chrono::microseconds(100));
        std::this_thread::sleep_for(std::chrono::microseconds(random() % WAIT_US));
        kill(saver, SIGKILL);
        waitpid(saver, nullptr, 0);
        ASSERT_STREQ(told.mFault, "") << "after " << i << " kills";
        amid += unfinishedStands(folders.userFolderGet());
    }
    EXPECT_GE(amid, KILLS / 20) << "the kills don't meet the saving";
    EXPECT_GT(told.mSaved[0], KILLS / 20);
    munmap(&told, sizeof told);
}

// The whole program, with its own saving every ten seconds of its clock, which runs fast here.
TEST(killTest, theGameLosesNobodyEither)
{
    GameRun run("gamekills");
    std::ofstream(run.userFolderGet() / "global.txt")
        << "currprofile = \"1\",\r\nnumprofiles = \"2\",\r\nprofilefilename0 = \"user0.txt\",\r\nprofilefilename1 = "
           "\"user1.txt\",\r\nprofilename0 = \"Anna\",\r\nprofilename1 = \"Ben\",\r\n";
    std::ofstream(run.userFolderGet() / "user0.txt") << "currency = \"7\",\r\n";
    std::ofstream(run.userFolderGet() / "user1.txt") << "currency = \"9\",\r\n";
    std::string text = "wait 2000\n";
    for (s32 i = 0; i < 300; ++i) // all over the scene, for many rounds of saving
        text +=
            "tap " + std::to_string(40 + i * 37 % 1280) + " " + std::to_string(200 + i * 53 % 520) + "\nwait 1000\n";
    const std::string script = run.scriptWrite(text + "quit\n");

    std::mt19937 random(1);
    s32 time = 0;
    s32 saved = 0;
    for (s32 i = 0; i < GAME_KILLS; ++i)
    {
        const pid_t game = gameStart(run.userFolderGet(), script);
        if (i % 3 == 0)
            saveAwait(run.userFolderGet() / "user1.txt");
        std::this_thread::sleep_for(std::chrono::milliseconds(random() % 1000));
        kill(game, SIGKILL);
        waitpid(game, nullptr, 0);
        const znCVariableTable ben = tableRead(run.userFolderGet() / "user1.txt");
        EXPECT_GE(ben.s32Get("currency"), 9);
        EXPECT_GE(ben.s32Get("time"), time) << "play was lost";
        saved += ben.s32Get("time") > time;
        time = ben.s32Get("time");
    }
    EXPECT_GE(saved, GAME_KILLS / 6) << "the kills come before the first save";
    run.scriptWrite("wait 3000\nquit\n");
    EXPECT_EQ(run.headlessRun({"--script", script, "--", "quay"}), 0) << run.errorGet();
    EXPECT_EQ(run.logGet().find("is damaged"), std::string::npos);
    const znCVariableTable global = tableRead(run.userFolderGet() / "global.txt");
    EXPECT_EQ(global.strGet("NumProfiles") + global.strGet("ProfileName0") + global.strGet("ProfileName1"), "2AnnaBen");
    EXPECT_EQ(tableRead(run.userFolderGet() / "user0.txt").s32Get("currency"), 7);
}
