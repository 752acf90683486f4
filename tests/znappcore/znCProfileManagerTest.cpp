#include "znappcore/src/znCProfileManager.h"
#include "tests/support/znCTestPlatform.h"
#include "znappcore/src/znCGlobalSavedData.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znIAudioManager.h"
#include "zncore/debug/znIDebug.h"

#include <gtest/gtest.h>
#include <map>

namespace
{
// The saved tables and the manager, brought up as the program does it, as often as a test starts it.
class znCProfileManagerTest : public ::testing::Test
{
protected:
    znCProfileManagerTest()
    {
        znIDebug::create();
        znIAudioManager::create();
        znCGuiMessageDispatcher::create();
    }

    ~znCProfileManagerTest() override
    {
        if (mRunning)
            stop();
        znIAudioManager::destroy();
        znIDebug::destroy();
        znCGuiMessageDispatcher::destroy();
    }

    void start()
    {
        znCGlobalSavedData::create();
        znCUserSavedData::create();
        znCProfileManager::create();
        mRunning = true;
    }

    void stop()
    {
        znCProfileManager::destroy();
        mRunning = false;
    }

    void restart()
    {
        stop();
        start();
    }

    static znCProfileManager& manager() { return *znCProfileManager::instanceGet(); }
    static znCGlobalSavedData& global() { return *znCGlobalSavedData::instanceGet(); }
    static znCUserSavedData& user() { return *znCUserSavedData::instanceGet(); }

    void playerMake(const char* pName, s32 pCurrency)
    {
        manager().profileCreate(pName);
        user().s32Set(znCUserSavedData::CURRENCY, pCurrency);
    }

    znCTestPlatform mPlatform;
    bool mRunning = false;
};
} // namespace

TEST_F(znCProfileManagerTest, startsWithNoPlayerAndTheDefaults)
{
    start();
    EXPECT_EQ(global().currentProfileGet(), -1);
    EXPECT_EQ(global().profileCountGet(), 0);
    EXPECT_FLOAT_EQ(user().f32Get("MusicVolume"), 0.75f);
    EXPECT_EQ(mPlatform.mAudioCalls.back(), "set 0 192");
}

TEST_F(znCProfileManagerTest, keepsPlayersApartOverARestart)
{
    start();
    playerMake("Anna", 7);
    playerMake("Ben", 9);
    restart();
    EXPECT_EQ(global().currentProfileGet(), 1);
    EXPECT_EQ(user().s32Get("currency"), 9);
    manager().profileSelect(0);
    EXPECT_EQ(user().s32Get("currency"), 7);
    EXPECT_FALSE(manager().profileNameIsFreeGet("Anna"));
    EXPECT_TRUE(manager().profileNameIsFreeGet("anna"));
    restart();
    EXPECT_EQ(user().s32Get("currency"), 7);
}

TEST_F(znCProfileManagerTest, handsSettingsOnToTheNextPlayer)
{
    start();
    manager().profileCreate("Anna");
    EXPECT_FLOAT_EQ(user().f32Get("EffectsVolume"), 0.75f);
    user().f32Set("MusicVolume", 0.25f);
    user().boolSet("CustomCursors", false);
    manager().profileCreate("Ben");
    EXPECT_FLOAT_EQ(user().f32Get("MusicVolume"), 0.25f);
    EXPECT_FALSE(user().boolGet("CustomCursors", true));
    EXPECT_FALSE(user().boolGet("cheat"));
    manager().profileCreate("0bkvnqd0");
    EXPECT_TRUE(user().boolGet("cheat"));
}

TEST_F(znCProfileManagerTest, deletesAnyPlayerAndReusesTheFileName)
{
    struct Case
    {
        s32 mCurrent;
        s32 mDeleted;
        s32 mCurrentAfter;
        const char* mNames;
        const char* mNextFile;
    };
    const Case cases[] = {{1, 0, 0, "Ben Cleo ", "user0.txt"},
                          {1, 1, -1, "Anna Cleo ", "user1.txt"},
                          {1, 2, 1, "Anna Ben ", "user2.txt"},
                          {1, 3, 1, "Anna Ben Cleo ", "user3.txt"}};
    for (const Case& c : cases)
    {
        start();
        playerMake("Anna", 1);
        playerMake("Ben", 2);
        playerMake("Cleo", 3);
        manager().profileSelect(c.mCurrent);
        manager().profileDelete(c.mDeleted);
        EXPECT_EQ(global().currentProfileGet(), c.mCurrentAfter);
        EXPECT_EQ(user().s32Get("currency"), c.mCurrentAfter == -1 ? 0 : 2);
        std::string names;
        for (s32 i = 0; i < global().profileCountGet(); ++i)
            names += global().profileNameGet(i) + " ";
        EXPECT_EQ(names, c.mNames);
        playerMake("Dora", 4);
        EXPECT_EQ(global().profileFileTextGet(global().profileCountGet() - 1), c.mNextFile);
        while (global().profileCountGet() > 0)
            manager().profileDelete(0);
        stop();
    }
}

TEST_F(znCProfileManagerTest, givesAPlayerWithoutAFileTheSettingsOfANewOne)
{
    start();
    manager().profileCreate("Anna");
    stop();
    mPlatform.mFiles.fileRemove("ram://user0.txt");
    start();
    EXPECT_EQ(global().profileNameGet(global().currentProfileGet()), "Anna");
    EXPECT_EQ(mPlatform.mAudioCalls.back(), "set 0 192");
    EXPECT_TRUE(user().customCursorsGet());
}

namespace
{
constexpr char ANNA[] = "currency = \"7\",\r\ntime = \"1\",\r\n";
}

TEST_F(znCProfileManagerTest, readsWhatIsLeftOfAPlayer)
{
    struct Case
    {
        const char* mName;
        std::string mFile;
        s32 mCurrency; // without a file saved before it
        s32 mRecovered;
    };
    const std::string anna = ANNA;
    const Case cases[] = {
        {"whole", anna, 7, 7},
        {"empty", "", 0, 5}, // the platform reads the one before
        {"cut off in a value", anna.substr(0, anna.size() - 5), 7, 5},
        {"cut off in a key", anna + "trashc", 7, 5},
        {"zeros", std::string(400, '\0'), 0, 5},
        {"zeros behind", anna + std::string(40, '\0'), 7, 5},
        {"binary",
         "\x7f"
         "ELF\x02\x01\x01\x00\xff\xfe\"\xc3",
         0, 5},
        {"no line end", "currency = 7,", 7, 7},
        {"comments", "-- mine\ncurrency = \"7\",\n-- the end", 7, 7},
        {"a later version's", anna + "wings = \"{2}\",\r\nlevdat:moon = \"c8e03bb6{1,zz}\",\r\n", 7, 7},
    };
    for (const Case& c : cases)
        for (const bool recovers : {false, true})
        {
            mPlatform.mFiles.fileSet("ram://global.txt",
                                     "currprofile = \"0\",\r\nnumprofiles = \"1\",\r\nprofilefilename0 = "
                                     "\"user0.txt\",\r\nprofilename0 = \"Anna\",\r\n");
            mPlatform.mFiles.fileRemove("ram://user0.txt");
            mPlatform.mFiles.fileSet("ram://user0.txt", c.mFile);
            if (recovers)
                mPlatform.mFiles.formerSet("ram://user0.txt", "currency = \"5\",\r\n");
            const s32 before = mPlatform.logCountGet("is damaged; the one saved before it is read instead");
            start();
            EXPECT_EQ(user().s32Get("currency"), recovers ? c.mRecovered : c.mCurrency) << c.mName << recovers;
            EXPECT_EQ(mPlatform.logCountGet("is damaged; the one saved before it is read instead") - before,
                      recovers && c.mRecovered == 5 && !c.mFile.empty())
                << c.mName;
            restart(); // and what was read is kept
            EXPECT_EQ(user().s32Get("currency"), recovers ? c.mRecovered : c.mCurrency) << c.mName << recovers;
            if (c.mFile.find("wings") != std::string::npos)
            {
                EXPECT_EQ(user().strGet("LevDat:moon") + user().strGet("Wings"), "c8e03bb6{1,zz}{2}");
            }
            stop();
        }
}

TEST_F(znCProfileManagerTest, mendsTheListOfPlayers)
{
    const std::string anna = "profilefilename0 = \"user0.txt\",\r\nprofilename0 = \"Anna\",\r\n";
    const std::string ben = "profilefilename1 = \"user1.txt\",\r\nprofilename1 = \"Ben\",\r\n";
    struct Case
    {
        std::string mFile;
        const char* mNames;
        s32 mCurrent;
    };
    const Case cases[] = {
        {"currprofile = \"1\",\r\nnumprofiles = \"2\",\r\n" + anna + ben, "Anna Ben ", 1},
        {"currprofile = \"5\",\r\nnumprofiles = \"2\",\r\n" + anna + ben, "Anna Ben ", 0},
        {"currprofile = \"-7\",\r\nnumprofiles = \"2\",\r\n" + anna + ben, "Anna Ben ", 0},
        {"currprofile = \"Anna\",\r\nnumprofiles = \"2\",\r\n" + anna + ben, "Anna Ben ", 0},
        {"currprofile = \"-1\",\r\nnumprofiles = \"2\",\r\n" + anna + ben, "Anna Ben ", -1},
        {"currprofile = \"1\",\r\nnumprofiles = \"1\",\r\n" + anna + ben, "Anna ", 0}, // beyond the count
        {"currprofile = \"1\",\r\nnumprofiles = \"9\",\r\n" + anna + ben, "Anna Ben ", 1},
        {"currprofile = \"1\",\r\nnumprofiles = \"2\",\r\n" + ben, "Ben ", 0},
        {"currprofile = \"0\",\r\nnumprofiles = \"1\",\r\nprofilefilename0 = \"user0.txt\",\r\n", "user0 ", 0},
        {"currprofile = \"0\",\r\nnumprofiles = \"many\",\r\n" + anna, "", -1},
        {"currprofile = \"0\",\r\n", "", -1},
    };
    for (const Case& c : cases)
    {
        mPlatform.mFiles.fileRemove("ram://global.txt");
        mPlatform.mFiles.fileSet("ram://global.txt", c.mFile);
        start();
        std::string names;
        for (s32 i = 0; i < global().profileCountGet(); ++i)
            names += global().profileNameGet(i) + " ";
        EXPECT_EQ(names, c.mNames) << c.mFile;
        EXPECT_EQ(global().currentProfileGet(), c.mCurrent) << c.mFile;
        stop();
    }
}

// Whichever file operation of an action fails, once or from then on up to the end of the run, which is as good as the
// end of the run itself: the next start finds the players before or behind it, each with a whole file.
TEST_F(znCProfileManagerTest, losesNobodyWhenFilesFail)
{
    using Operation = znCTestFiles::Operation;
    struct Action
    {
        const char* mName;
        void (*mDo)();
        const char* mAfter;
    };
    const Action actions[] = {
        {"save", [] { manager().dataSave(); }, "Anna Ben Cleo "},
        {"select", [] { manager().profileSelect(2); }, "Anna Ben Cleo "},
        {"create", [] { manager().profileCreate("Dora"); }, "Anna Ben Cleo Dora "},
        {"delete first", [] { manager().profileDelete(0); }, "Ben Cleo "},
        {"delete current", [] { manager().profileDelete(1); }, "Anna Cleo "},
        {"delete last", [] { manager().profileDelete(2); }, "Anna Ben "},
        {"end and start", nullptr, "Anna Ben Cleo "},
    };
    const std::map<std::string, s32> currencies = {{"Anna", 1}, {"Ben", 2}, {"Cleo", 3}, {"Dora", 0}};
    for (const Action& action : actions)
        for (const Operation operation : {Operation::open, Operation::read, Operation::write, Operation::flush,
                                          Operation::close, Operation::remove})
            for (const s32 count : {1, znCTestFiles::FOR_EVER})
                for (s32 nth = 1; nth <= 4; ++nth)
                {
                    SCOPED_TRACE(std::string(action.mName) + " operation " +
                                 std::to_string(static_cast<int>(operation)) + " no. " + std::to_string(nth) +
                                 (count == 1 ? " once" : " for ever"));
                    for (const char* name : {"global.txt", "user0.txt", "user1.txt", "user2.txt", "user3.txt"})
                        mPlatform.mFiles.fileRemove(std::string("ram://") + name);
                    start();
                    for (const char* name : {"Anna", "Ben", "Cleo"})
                        playerMake(name, currencies.at(name));
                    manager().profileSelect(1);
                    user().s32Set(znCUserSavedData::CURRENCY, 22);
                    mPlatform.mFiles.faultSet(operation, nth, count);
                    if (action.mDo != nullptr)
                        action.mDo();
                    else
                        restart();
                    stop();
                    mPlatform.mFiles.faultsClear();
                    start();
                    std::string names;
                    for (s32 i = 0; i < global().profileCountGet(); ++i)
                    {
                        const std::string name = global().profileNameGet(i);
                        names += name + " ";
                        manager().profileSelect(i);
                        const s32 currency = user().s32Get("currency", -1);
                        EXPECT_TRUE(currency == currencies.at(name) ||
                                    (currency == 22 && (name == "Ben" || name == "Dora")))
                            << name << " " << currency;
                    }
                    EXPECT_TRUE(names == action.mAfter || names == "Anna Ben Cleo ") << names;
                    stop();
                }
}

TEST_F(znCProfileManagerTest, writesOnlyWhatChanged)
{
    start();
    manager().profileCreate("Anna");
    const auto writes = [this]
    {
        return mPlatform.mFiles.operationCountGet(znCTestFiles::Operation::write);
    };
    s32 before = writes();
    manager().changesSave();
    user().s32Set("currency", 0); // as it was
    manager().changesSave();
    EXPECT_EQ(writes(), before);
    user().s32Set("currency", 3);
    manager().changesSave();
    EXPECT_EQ(writes(), before + 1);
    mPlatform.mFiles.faultSet(znCTestFiles::Operation::write, 1, znCTestFiles::FOR_EVER, "ram://user0.txt");
    user().s32Set("currency", 4);
    before = writes();
    for (s32 i = 0; i < 5; ++i)
        manager().changesSave(); // a full disk is tried once a change
    EXPECT_EQ(writes(), before + 1);
    mPlatform.mFiles.faultsClear();
    restart();
    EXPECT_EQ(user().s32Get("currency"), 4);
}

TEST_F(znCProfileManagerTest, goesOnWithBrokenFiles)
{
    const char* const files[] = {
        "",
        "\xff\xfe rubbish",
        "currprofile = \"5\",\r\nnumprofiles = \"2\",\r\n",
        "currprofile = \"0\",\r\nnumprofiles = \"2000000000\",\r\n",
        "currprofile = \"0\",\r\nnumprofiles = \"1\",\r\nprofilefilename0 = \"user0.txt\",\r\n",
        "currprofile = \"0\",\r\nnumprofiles = \"-3"};
    for (const char* file : files)
    {
        mPlatform.mFiles.fileSet("ram://global.txt", file);
        mPlatform.mFiles.fileSet("ram://user0.txt", "currency = \"12\",\r\nrubbish");
        start();
        manager().profileCreate("Anna");
        const s32 index = global().currentProfileGet();
        restart();
        EXPECT_EQ(global().currentProfileGet(), index) << file;
        EXPECT_EQ(global().profileNameGet(index), "Anna") << file;
        stop();
    }
}
