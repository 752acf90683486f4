#include "znappcore/src/znCProfileManager.h"
#include "tests/support/znCTestPlatform.h"
#include "znappcore/src/znCGlobalSavedData.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znIAudioManager.h"
#include "zncore/debug/znIDebug.h"

#include <gtest/gtest.h>

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
