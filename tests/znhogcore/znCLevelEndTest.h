#ifndef TESTS_ZNHOGCORE_ZNCLEVELENDTEST_H
#define TESTS_ZNHOGCORE_ZNCLEVELENDTEST_H

// Levels that are won: the names "TST-" of a scene make pieces of a minigame that is only here, and the announcements
// of a level's end are heard. Files of the celebration lie ready.

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCEntityFactory.h"
#include "znhogcore/components/znCLevelCompleteCheckerComponent.h"
#include "znhogcore/components/znIMinigameComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/src/znCHogUserSavedData.h"

// A piece that is done when it is tapped.
class znCTestPieceComponent : public znIMinigameComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCTestPieceComponent"};

    using znIMinigameComponent::znIMinigameComponent;

    bool inputEnabled() override { return !mLevelEnding; }
    void onTap() override { doneSet(true); }
    void minigameSkip() override { doneSet(false); }
    void minigameReset() override { mDone = false; }
    void minigameInitialiseDo(const znCVariableTable& pLevelTable) override
    {
        mDone = false;
        mSetUp += pLevelTable.strGet("pieces");
    }
    void mySave(std::string& pOut) override { znINode::boolSave(pOut, mDone); }
    void myLoad(std::string& pIn) override
    {
        if (znINode::boolLoad(pIn))
            doneSet(false);
    }
    void doneSet(bool pWithEffect)
    {
        mDone = true;
        completeStateSet(true, pWithEffect);
    }

    std::string mSetUp; // what the level's table said, once for each time

private:
    bool mDone = false;
};

// Hears how a level's end is announced, as "LevelCompleteCongrats LevelComplete ".
class znCLevelEndTestEar : public znIMessageListener
{
public:
    void messagesRegister() override { each(&znIMessageDispatcher::listenerRegister); }
    void messagesDeregister() override { each(&znIMessageDispatcher::listenerDeregister); }
    bool messageProcess(const znCUniqueId& pType, void*) override
    {
        for (const char* name : NAMES)
            if (pType == znCUniqueId(name))
                mHeard += std::string(name) + " ";
        return false;
    }
    std::string take() { return std::exchange(mHeard, ""); }

private:
    static constexpr const char* NAMES[] = {"LevelComplete", "LevelCompleteCongrats", "LevelCompleteWaiting",
                                            "LevelCompleteWaitingCongrats"};

    void each(void (znIMessageDispatcher::*pStep)(const znCUniqueId&, znIMessageListener*))
    {
        for (const char* name : NAMES)
            (znCHogMessageDispatcher::instanceGet()->*pStep)(znCUniqueId(name), this);
    }

    std::string mHeard;
};

class znCLevelEndTest : public znCHogTest
{
protected:
    static constexpr const char* PANEL = "gui/hoggui/hoggui.txt";
    static constexpr s32 CELEBRATION_MS = 4000; // of a level without pieces

    void SetUp() override
    {
        mPlatform.mFiles.fileSet("particles/pminigamecompleteeffect.txt",
                                 "imageFileName = particles/p.png ; maxParticles = 1 ; emitSpeed = 1 ;");
        imageSet("button.png", 40, 40);
        panelSet("znCSpriteComponent { name = gameGuiHintButton posX = 100 posY = 50 }\n");
        znCHogTest::SetUp();
        begin();
    }
    void TearDown() override
    {
        mEndEar.messagesDeregister();
        znCHogTest::TearDown();
    }
    // Another run on the same files; to be called where a run would begin.
    void begin()
    {
        znCComponentFactory::instanceGet()->componentRegister<znCTestPieceComponent>();
        znCEntityFactory::instanceGet()->constructionPlanAdd("TST-",
                                                             {znCSpriteComponent::TYPE, znCTestPieceComponent::TYPE});
        mEndEar.messagesRegister();
    }
    void restart()
    {
        mEndEar.messagesDeregister();
        programStop();
        programStart();
        begin();
    }
    void panelSet(const std::string& pElements)
    {
        mPlatform.mFiles.fileSet(PANEL, "znCGameGui { name = GameGui modal = false\n" + pElements + "}\n");
    }
    // A scene with pieces at these places, named TST-p0.png and so on, and a screen behind it.
    void piecesSet(const std::string& pLevel, const std::vector<znPoint>& pPlaces, const std::string& pTable = "")
    {
        std::string coords = "Background.png,0,0\n";
        for (std::size_t i = 0; i < pPlaces.size(); ++i)
        {
            imageSet("scenes/" + pLevel + "/tst-p" + std::to_string(i) + ".png", 4, 4);
            coords += "TST-p" + std::to_string(i) + ".png," + std::to_string(pPlaces[i].mX) + "," +
                      std::to_string(pPlaces[i].mY) + "\n";
        }
        sceneSet(pLevel, coords, "ACT1NextLev = \"shop\",\r\n" + pTable);
        sceneSet("shop", "Background.png,0,0\n");
    }
    // The first piece is done; in a scene without others the celebration begins.
    void win() { piece("TST-p0.png").doneSet(false); }
    void framesRun(s32 pMs) { frame(pMs / FRAME_MS + 1); }

    znCTestPieceComponent& piece(const std::string& pName)
    {
        return *find(pName)->componentGet<znCTestPieceComponent>();
    }
    znCLevelCompleteCheckerComponent& checker() { return *level().componentGet<znCLevelCompleteCheckerComponent>(); }
    static znCEntity* roundScore()
    {
        return dynamic_cast<znCEntity*>(znCAppCoreMain::instanceGet()->appDisplayChildFind("roundScoreGui"));
    }
    static znCHogUserSavedData& user() { return *znCHogUserSavedData::instanceGet(); }

    znCLevelEndTestEar mEndEar;
};

#endif
