#include "znappcore/src/znCAppCoreMain.h"

#include "media/znNGraphics.h"
#include "tests/support/znCTestPlatform.h"
#include "tests/support/znNTestLog.h"
#include "znappcore/impl/platform/znCPlatformLoop.h"
#include "znappcore/src/znCSoftwareCursor.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znIDisplay.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace
{
using Lines = std::vector<std::string>;
using Deltas = std::vector<s32>;

class Main : public znCAppCoreMain
{
public:
    static void create()
    {
        auto* instance = new Main; // deleted by znCAppCoreMain::destroy()
        instanceSet(instance);
        instance->startUp();
    }
};

// Keeps the steps that it is updated by, and what happened in which order.
class Witness : public znINode
{
public:
    using znINode::znINode;
    void update(s32 pDeltaMs) override
    {
        mDeltas.push_back(pDeltaMs);
        sJournal.push_back(mName + " update");
        if (mOnUpdate)
            std::exchange(mOnUpdate, nullptr)();
    }
    void render() override { sJournal.push_back(mName + " render"); }

    static Lines journalTake() { return std::exchange(sJournal, {}); }

    Deltas mDeltas;
    std::function<void()> mOnUpdate;

private:
    inline static Lines sJournal;
};

// The program of the framework alone, with a screen that has no picture.
class znCAppCoreMainTest : public testing::Test
{
protected:
    void SetUp() override
    {
        mPlatform.mFiles.fileSet("appsettings.txt", "appCanvasW = \"800\",\r\nappCanvasH = \"600\",\r\n");
        mPlatform.mFiles.fileSet("strings.txt", "OK = \"OK\",\r\n");
        mPlatform.mFiles.fileSet("gui/splashscreen/splashscreen.txt", "znCModalGuiComponent { name = \"First\" }");
        mPlatform.mFiles.fileSet("gui/notificationsgui/notificationsgui.txt",
                                 "znCNotificationsGui { name = \"Notifications\" modal = false }");
        znNGraphics::initialise();
        Main::create();
        znNTestLog::errorsTake(mPlatform); // of the cursor and the font, which no test here looks at
        mWitness = new Witness("witness");
        main().appDisplayChildAdd(mWitness);
        Witness::journalTake();
    }

    void TearDown() override
    {
        EXPECT_EQ(znNTestLog::errorsTake(mPlatform), Lines());
        znCAppCoreMain::destroy();
        znNGraphics::terminate();
        EXPECT_EQ(znNTestLog::errorsTake(mPlatform), Lines()) << "on the way down";
        EXPECT_TRUE(mPlatform.mDraw.mTextures.empty());
    }

    static znCAppCoreMain& main() { return *znCAppCoreMain::instanceGet(); }
    Deltas deltasTake() { return std::exchange(mWitness->mDeltas, {}); }

    bool step(znCPlatformLoop& pLoop, u64 pMs)
    {
        mPlatform.mClockMs += pMs;
        return pLoop.step();
    }

    znCTestPlatform mPlatform;
    Witness* mWitness = nullptr; // owned by the tree
};
} // namespace

TEST_F(znCAppCoreMainTest, TheFadeCoversAllScreensAndTheCursorTheFade)
{
    Lines names;
    for (const znINode* child : znIDisplay::instanceGet()->childrenGet())
        names.push_back(child->nameGet());
    EXPECT_EQ(names, (Lines{"AppDisplay", "Notifications", "AppDisplayScreenFade", "CustomCursor"}));
    ASSERT_NE(main().appDisplayChildFind("First"), nullptr);
    EXPECT_EQ(main().appDisplayChildFind("First")->parentGet()->nameGet(), "AppDisplay");
    EXPECT_EQ(main().appDisplayChildFind("Notifications"), nullptr);
}

TEST_F(znCAppCoreMainTest, AHitchCountsAsOneShortStep)
{
    for (const s32 delta : {0, 16, 200, 201, 1000000, -5})
        EXPECT_FALSE(main().frameUpdate(delta));
    EXPECT_EQ(deltasTake(), (Deltas{0, 16, 200, 16, 16, -5}));
}

TEST_F(znCAppCoreMainTest, ChangesOfTheTreeTakeEffectBetweenUpdateAndPicture)
{
    auto* doomed = new Witness("doomed");
    mWitness->childAdd(doomed);
    auto* actor = new Witness("actor");
    mWitness->childAdd(actor);
    doomed->mOnUpdate = [&]
    {
        mWitness->childAdd(new Witness("late"));
        doomed->destroy();
        actor->mOnUpdate = []
        {
            main().quitSet(true);
        };
    };
    EXPECT_TRUE(main().frameUpdate(16)) << "and yet the frame is drawn";
    EXPECT_EQ(Witness::journalTake(), (Lines{"witness update", "doomed update", "actor update", "witness render",
                                             "actor render", "late render"}));
    main().quitSet(false);
    EXPECT_FALSE(main().frameUpdate(16));
    EXPECT_EQ(Witness::journalTake(), (Lines{"witness update", "actor update", "late update", "witness render",
                                             "actor render", "late render"}));
}

TEST_F(znCAppCoreMainTest, QuitsOnRequestBackAltWithF4AndByItself)
{
    struct Case
    {
        const char* mWhat;
        std::vector<s32> mKeys;
        bool mRequest;
        bool mItself;
        bool mQuits;
        std::size_t mFrames;
    };
    const Case cases[] = {
        {"nothing", {}, false, false, false, 1},
        {"alt alone", {S3E_KEY_ALT}, false, false, false, 1},
        {"F4 alone", {S3E_KEY_F4}, false, false, false, 1},
        {"alt with F4", {S3E_KEY_ALT, S3E_KEY_F4}, false, false, true, 0},
        {"back", {S3E_KEY_BACK}, false, false, true, 0},
        {"a request", {}, true, false, true, 0},
        {"itself", {}, false, true, true, 1},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mWhat);
        znCPlatformLoop loop;
        for (const s32 key : c.mKeys)
            mPlatform.mInput.keyQueue(key, true);
        mPlatform.mInput.mQuitRequested = c.mRequest;
        main().quitSet(c.mItself);
        EXPECT_EQ(step(loop, 16), c.mQuits);
        EXPECT_EQ(deltasTake().size(), c.mFrames);
        for (const s32 key : c.mKeys)
            mPlatform.mInput.keyQueue(key, false);
        s3eKeyboardUpdate();
    }
    mPlatform.mInput.mQuitRequested = false;
}

TEST_F(znCAppCoreMainTest, TimeSpentSuspendedIsNoPlayTime)
{
    {
        znCPlatformLoop loop;
        EXPECT_FALSE(step(loop, 16));
        mPlatform.mAudioCalls.clear();
        mPlatform.mInput.deviceEventQueue(S3E_DEVICE_SUSPEND);
        EXPECT_FALSE(step(loop, 4));
        mPlatform.mInput.mQuitRequested = true;
        EXPECT_FALSE(step(loop, 5000)) << "nobody is there to ask";
        mPlatform.mInput.mQuitRequested = false;
        EXPECT_EQ(deltasTake(), Deltas{16});
        EXPECT_EQ(mPlatform.mAudioCalls, Lines{"pause"});

        // What the player chose holds again afterwards.
        znCUserSavedData::instanceGet()->boolSet(znCUserSavedData::FULL_SCREEN,
                                                 !znIDisplay::instanceGet()->isFullScreenGet());
        mPlatform.mInput.deviceEventQueue(S3E_DEVICE_RESUME);
        EXPECT_FALSE(step(loop, 1000));
        EXPECT_FALSE(step(loop, 10));
        EXPECT_EQ(deltasTake(), (Deltas{4, 10}));
        EXPECT_EQ(mPlatform.mAudioCalls[1], "resume");
        EXPECT_EQ(znIDisplay::instanceGet()->isFullScreenGet(),
                  znCUserSavedData::instanceGet()->boolGet(znCUserSavedData::FULL_SCREEN));

        mPlatform.mInput.deviceEventQueue(S3E_DEVICE_RESUME); // without a suspend before it
        EXPECT_FALSE(step(loop, 20));
        EXPECT_EQ(deltasTake(), Deltas{20});
    }
    mPlatform.mInput.deviceEventQueue(S3E_DEVICE_SUSPEND); // nobody listens any more
    s3eDeviceYield(0);
}

TEST_F(znCAppCoreMainTest, StartsWithoutAnyFile)
{
    znCAppCoreMain::destroy();
    for (const char* file : {"appsettings.txt", "strings.txt", "gui/splashscreen/splashscreen.txt",
                             "gui/notificationsgui/notificationsgui.txt"})
        mPlatform.mFiles.fileRemove(file);
    Main::create();
    EXPECT_NE(mPlatform.logGet().find("Expect to find a znCNotificationsGui after loading notificationsGui.txt\n"),
              std::string::npos);
    EXPECT_FALSE(main().frameUpdate(16));
    znNTestLog::errorsTake(mPlatform);
}
