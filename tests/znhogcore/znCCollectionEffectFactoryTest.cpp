#include "znhogcore/src/znCCollectionEffectFactory.h"

#include "tests/support/znCTestSound.h"
#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/src/znCEntity.h"
#include "znhogcore/components/znCAnimCollectionEffectComponent.h"
#include "znhogcore/components/znCFadeCollectionEffectComponent.h"
#include "znhogcore/components/znCParticleCollectionEffectComponent.h"
#include "znhogcore/components/znCPickListTrailCollectionEffectComponent.h"
#include "znhogcore/components/znCScoreTrailCollectionEffectComponent.h"
#include "znhogcore/components/znCSpinningCollectionEffectComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/src/znCHogUserSavedData.h"

namespace
{
constexpr s32 COLLECTING = znICollectableComponent::STATE_COLLECTING;
constexpr s32 COLLECTED = znICollectableComponent::STATE_COLLECTED;

constexpr char ONCE[] =
    "<sequence name=\"s\"><framelist><frame w=\"0\" h=\"0\"/></framelist>"
    "<timeline name=\"main\" frametime=\"100\"><key frame=\"1\"/><key frame=\"1\"/></timeline></sequence>";
constexpr char LOOP[] =
    "<sequence name=\"s\"><framelist><frame w=\"0\" h=\"0\"/></framelist>"
    "<timeline name=\"main\" frametime=\"100\"><key frame=\"1\"/><key jumpto=\"0\"/></timeline></sequence>";
constexpr char BURST[] = "imageFileName = particles/p.png ; maxParticles = 4 ; particleLifeMs = 300 ; "
                         "emitterLifeMs = 100 ; emitSpeed = 40 ;";
constexpr char ENDLESS[] =
    "imageFileName = particles/p.png ; maxParticles = 4 ; particleLifeMs = 300 ; emitSpeed = 40 ;";

// A hot gull with the files of a case beside it.
class znCCollectionEffectFactoryTest : public znCHogTest
{
protected:
    void open(const char* pAnimation, const char* pParticles)
    {
        sceneSet("quay", "Background.png,0,0\nHOT-gull.png,200,0\n");
        imageSet("particles/p.png", 8, 8);
        fileLay("scenes/quay/hot-gull.xml", pAnimation);
        fileLay("particles/par-gull.txt", pParticles);
        sceneOpen("quay");
    }
    void fileLay(const char* pName, const char* pText)
    {
        mPlatform.mFiles.fileRemove(pName);
        if (pText != nullptr)
            mPlatform.mFiles.fileSet(pName, pText);
    }
    template <class Effect>
    bool shown()
    {
        const znCEntity* effect = find("HOT-gull.pngCollectionEffect");
        return effect != nullptr && effect->componentGet<Effect>() != nullptr;
    }
};

constexpr s32 FLIGHT_MS = 2000;
constexpr s32 SPIN_MS = 1200;

// A scene with one thing of each kind and a panel with a list for one of them; what it shows flies.
class znCFlyingEffectsTest : public znCHogTest
{
protected:
    static constexpr const char* SETTINGS = "sfxCollectHOGList = \"list.wav\",\r\nsfxCollectTrash = "
                                            "\"trash.wav\",\r\nsfxCollectLostFound = \"lost.wav\",\r\n";

    void SetUp() override
    {
        mPlatform.mFiles.fileSet("appsettings.txt", std::string(znCHogTestProgram::SETTINGS) + SETTINGS);
        for (const char* sound : {"list", "trash", "lost"})
            mPlatform.mFiles.fileSet(std::string(sound) + ".wav", sound);
        mPlatform.mFiles.fileSet("audio/sfx/find.wav", "find");
        mPlatform.mFiles.fileSet(
            "gui/hoggui/hoggui.txt",
            "znCGameGui { name = GameGui modal = false\n"
            " znCSpriteComponent { name = topGuiBackground posY = -250\n"
            "  znCTextSpriteComponent { name = currency posX = 300 font = f.ttf fontSize = 20 }\n }\n"
            " znCSpriteComponent { name = recyclePickList posX = -300 posY = 200\n"
            "  znCSpriteComponent { name = completeSprite posX = 7 }\n }\n"
            " znCPickListGui { name = hogPickList posY = 250 randomEntityTypes = PCK-\n"
            "  znCDropOffPickListEntryGui { name = pickItem0 posX = 60\n"
            "   znCTextSpriteComponent { name = PickListEntryText font = f.ttf fontSize = 20 }\n  }\n }\n}\n");
        mPlatform.mFiles.fileSet("gui/score.txt", "znCSpriteComponent { name = roundScoreGui }\n");
        znCHogTest::SetUp();
        sceneSet("quay",
                 "Background.png,0,0\nPCK-can.png,100,50\nHDN-key.png,0,0\nREQ-map.png,0,0\nTSK-light,0,0\n"
                 "BNS-cup.png,0,-100\nBNSL-tin.png,0,0\nBSL-hat.png,0,0\nHOT-gull.png,200,0\n",
                 "rewardLayoutFile = \"gui/score.txt\",\r\n");
        sceneOpen("quay");
        errorsTake(); // of the font
        frame(10);    // the list shows its one thing
    }
    template <class Effect>
    std::vector<znCEntity*> flyingGet()
    {
        return level().entitiesWithComponentsGet({&typeid(Effect)});
    }
    template <class Effect>
    znPoint flyerPosGet()
    {
        const std::vector<znCEntity*> flying = flyingGet<Effect>();
        EXPECT_EQ(flying.size(), 1u);
        EXPECT_EQ(flying[0]->parentGet(), &level());
        return flying[0]->posGet();
    }
    static s32 currencyGet() { return znCHogUserSavedData::instanceGet()->s32Get(znCHogUserSavedData::CURRENCY); }
    s32 collectedCount(const std::string& pName)
    {
        const std::string heard = mEar.take();
        const std::string message = "CollectableEntityCollected " + pName;
        s32 count = 0;
        for (std::size_t at = heard.find(message); at != std::string::npos; at = heard.find(message, at + 1))
            ++count;
        return count;
    }
    void roundScoreClose()
    {
        znCAppCoreMain::instanceGet()->appDisplayChildFind("roundScoreGui")->destroy();
        frame();
    }
    static void expectNear(const znPoint& pPoint, s32 pX, s32 pY, s32 pOff)
    {
        EXPECT_NEAR(pPoint.mX, pX, pOff);
        EXPECT_NEAR(pPoint.mY, pY, pOff);
    }

    znCTestSound mSound;
};
} // namespace

TEST_F(znCCollectionEffectFactoryTest, playsTheFirstKindThatHasItsFileAndWaitsForItsEnd)
{
    struct Case
    {
        const char* mWhat;
        const char* mAnimation;
        const char* mParticles;
        char mKind;
        s32 mFrames; // of 16 ms, at most, until it has reported
    };
    const Case cases[] = {
        {"nothing", nullptr, nullptr, 'f', 130},
        {"particles", nullptr, BURST, 'p', 40},
        {"animation", ONCE, nullptr, 'a', 20},
        {"both", ONCE, BURST, 'a', 20},
    };
    for (const Case& c : cases)
    {
        open(c.mAnimation, c.mParticles);
        tap(200, 0);
        frame();
        EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTING) << c.mWhat;
        EXPECT_EQ(shown<znCFadeCollectionEffectComponent>(), c.mKind == 'f') << c.mWhat;
        EXPECT_EQ(shown<znCParticleCollectionEffectComponent>(), c.mKind == 'p') << c.mWhat;
        EXPECT_EQ(shown<znCAnimCollectionEffectComponent>(), c.mKind == 'a') << c.mWhat;
        frame(c.mFrames);
        EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED) << c.mWhat;
        EXPECT_EQ(find("HOT-gull.pngCollectionEffect"), nullptr) << c.mWhat;
        levelEnd();
        programStop();
        programStart();
    }
}

TEST_F(znCCollectionEffectFactoryTest, neverWaitsForAnEffectWithoutEnd)
{
    struct Case
    {
        const char* mAnimation;
        const char* mParticles;
        const char* mMessage;
    };
    const Case cases[] = {
        {LOOP, nullptr, "Cannot use looping animations as collection effects scenes/quay/hot-gull.xml."},
        {nullptr, ENDLESS, "Collection particle effects (HOT-gull) should not run forever."},
    };
    for (const Case& c : cases)
    {
        open(c.mAnimation, c.mParticles);
        tap(200, 0);
        frame(3);
        EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED);
        EXPECT_EQ(errorsTake(), std::vector<std::string>{c.mMessage});
        levelEnd();
        programStop();
        programStart();
    }
}

TEST_F(znCFlyingEffectsTest, followFromTheKindOfTheThing)
{
    struct Case
    {
        const char* mName;
        s32 mReports;
        s32 mPoints;
        const char* mSound;
    };
    const Case cases[] = {
        {"PCK-can.png", 3, 10, "list"}, {"HDN-key.png", 3, 10, "list"},  {"REQ-map.png", 3, 10, "list"},
        {"TSK-light", 2, 10, "list"},   {"BNS-cup.png", 3, 20, "trash"}, {"BSL-hat.png", 3, 50, "lost"},
        {"BNSL-tin.png", 1, 0, ""},     {"HOT-gull.png", 1, 0, ""},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mName);
        const s32 before = currencyGet();
        const u32 plays = mSound.mLastPlay;
        if (collectable(c.mName).inactiveGet())
            activate(c.mName);
        collectable(c.mName).collectionProcessTrigger();
        std::size_t flying = 0;
        for (const znINode* child : level().childrenGet())
            flying += child->nameGet() == std::string(c.mName) + "CollectionEffect" ? 1 : 0;
        const bool visual = find("SubScene0")->childFind(std::string(c.mName) + "CollectionEffect") != nullptr;
        EXPECT_EQ(static_cast<s32>(flying) + (visual ? 1 : 0), c.mReports);
        EXPECT_EQ(mSound.mLastPlay != plays ? mSound.mSamples[mSound.mPlays[mSound.mLastPlay]] : "", c.mSound);
        frame((FLIGHT_MS - 100) / FRAME_MS);
        EXPECT_EQ(currencyGet(), before);
        EXPECT_EQ(stateGet(c.mName), COLLECTING);
        frame(200 / FRAME_MS);
        EXPECT_EQ(currencyGet(), before + c.mPoints);
        EXPECT_EQ(stateGet(c.mName), COLLECTED);
        EXPECT_EQ(level().childFind(std::string(c.mName) + "CollectionEffect"), nullptr);
    }
    EXPECT_EQ(unlistedTake(), (std::vector<std::string>{"key", "map", "light", "hat"}));
}

TEST_F(znCFlyingEffectsTest, flyFromTheThingToTheirPlaceOnThePanel)
{
    collectable("PCK-can.png").collectionProcessTrigger();
    expectNear(flyerPosGet<znCPickListTrailCollectionEffectComponent>(), 100, 50, 1);
    expectNear(flyerPosGet<znCScoreTrailCollectionEffectComponent>(), 100, 50, 1);
    frame(FLIGHT_MS / 2 / FRAME_MS);
    expectNear(flyerPosGet<znCPickListTrailCollectionEffectComponent>(), 80, 150, 2);
    frame(FLIGHT_MS / 2 / FRAME_MS);
    expectNear(flyerPosGet<znCPickListTrailCollectionEffectComponent>(), 60, 250, 4);
    expectNear(flyerPosGet<znCScoreTrailCollectionEffectComponent>(), 300, -250, 4);
    frame(4);
    activate("BNS-cup.png");
    collectable("BNS-cup.png").collectionProcessTrigger();
    expectNear(flyerPosGet<znCSpinningCollectionEffectComponent>(), 0, -100, 1);
    const znCEntity* spinning = flyingGet<znCSpinningCollectionEffectComponent>()[0];
    const float turn = spinning->rotationGet();
    frame();
    EXPECT_NEAR(spinning->rotationGet() - turn, 0.314159f, 1e-4f);
    frame(SPIN_MS / FRAME_MS - 3);
    expectNear(flyerPosGet<znCSpinningCollectionEffectComponent>(), -293, 200, 16);
    frame(5);
    EXPECT_TRUE(flyingGet<znCSpinningCollectionEffectComponent>().empty());
}

TEST_F(znCFlyingEffectsTest, endWithoutATarget)
{
    levelEnd();
    mPlatform.mFiles.fileSet("gui/hoggui/hoggui.txt", "znCGameGui { name = GameGui modal = false }\n");
    sceneOpen("quay");
    for (const char* name : {"PCK-can.png", "BNS-cup.png"})
    {
        activate(name);
        collectable(name).collectionProcessTrigger();
    }
    frame((SPIN_MS - 50) / FRAME_MS);
    expectNear(flyerPosGet<znCPickListTrailCollectionEffectComponent>(), 100, 50, 0); // stays where it was
    expectNear(flyerPosGet<znCSpinningCollectionEffectComponent>(), 0, 0, 12);
    frame((FLIGHT_MS - SPIN_MS + 100) / FRAME_MS);
    EXPECT_EQ(stateGet("PCK-can.png"), COLLECTED);
    EXPECT_EQ(stateGet("BNS-cup.png"), COLLECTED);
    EXPECT_EQ(unlistedTake(), std::vector<std::string>{"can"});
    level().scaleSet(0.0f);
    frame();
    EXPECT_EQ(znCCollectionEffectFactory::instanceGet()->localStartCoordGet(znPoint(5, 6)), znPoint(5, 6));
    EXPECT_EQ(errorsTake(), std::vector<std::string>{"Failed to convert coordinates."});
    level().scaleSet(1.0f);
}

TEST_F(znCFlyingEffectsTest, arriveFromTheEndOfTheWorld)
{
    levelEnd();
    sceneSet("far", "Background.png,0,0\nBNS-jar.png,2147483647,-2147483648\nBNS-pin.png,-2147483648,2147483647\n");
    sceneOpen("far");
    errorsTake(); // of the font
    for (const char* name : {"BNS-jar.png", "BNS-pin.png"})
    {
        activate(name);
        collectable(name).collectionProcessTrigger();
    }
    frame((FLIGHT_MS + 100) / FRAME_MS);
    EXPECT_EQ(stateGet("BNS-jar.png"), COLLECTED);
    EXPECT_EQ(stateGet("BNS-pin.png"), COLLECTED);
}

TEST_F(znCFlyingEffectsTest, ofAFormerPlayDoNotReachIntoTheNext)
{
    tap(200, 0);
    activate("BNS-cup.png");
    collectable("BNS-cup.png").collectionProcessTrigger();
    frame(FLIGHT_MS / 2 / FRAME_MS);
    send(znCHogMessageDispatcher::LEVEL_COMPLETE); // both count as collected
    EXPECT_EQ(currencyGet(), 0);
    send(znCHogMessageDispatcher::REPLAY_LEVEL);
    roundScoreClose();
    EXPECT_EQ(currencyGet(), 20); // no longer on their way
    EXPECT_EQ(stateGet("HOT-gull.png"), znICollectableComponent::STATE_ACTIVE);
    EXPECT_EQ(collectedCount("HOT-gull.png"), 1);
    tap(200, 0);
    frame((FLIGHT_MS - 100) / FRAME_MS); // the former show would have ended by now
    EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTING);
    frame(200 / FRAME_MS);
    EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED);
    EXPECT_EQ(collectedCount("HOT-gull.png"), 1);
    EXPECT_EQ(stateGet("BNS-cup.png"), COLLECTED); // stays so
    EXPECT_EQ(currencyGet(), 20);
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
}

TEST_F(znCFlyingEffectsTest, startAgainWhenTheLevelComesBack)
{
    collectable("PCK-can.png").collectionProcessTrigger();
    frame(FLIGHT_MS / 2 / FRAME_MS);
    levelEnd(false);
    EXPECT_EQ(currencyGet(), 0);
    sceneOpen("quay");
    errorsTake(); // of the font
    EXPECT_EQ(stateGet("PCK-can.png"), COLLECTING);
    frame((FLIGHT_MS + 100) / FRAME_MS);
    EXPECT_EQ(stateGet("PCK-can.png"), COLLECTED);
    EXPECT_EQ(currencyGet(), 10);
    EXPECT_EQ(unlistedTake(), std::vector<std::string>()); // the list still shows it
}
