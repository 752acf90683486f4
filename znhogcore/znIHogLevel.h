#ifndef ZNHOGCORE_ZNIHOGLEVEL_H
#define ZNHOGCORE_ZNIHOGLEVEL_H

// The entity that stands for the scene on the screen: it loads the scene's folder, holds its sub-scenes and stores its
// state in the player's data. There is at most one, named NAME, below the application's display node.
//
// A level lives until the first "FadeOutComplete" behind its opening: whoever begins a change of screen ends it.

#include "znappcore/znIMessageListenerEntity.h"
#include "zncore/src/znCVariableTable.h"

class znCSubSceneComponent;

class znIHogLevel : public znIMessageListenerEntity
{
public:
    static constexpr const char* NAME = "HogLevel";
    static constexpr const char* HINT_BUTTON_NAME = "gameGuiHintButton";
    static constexpr const char* NEXT_LEVEL_KEY = "ACT1NextLev"; // of the level's table: the screen behind it

    // Opens the level of that name from its folder "scenes/" + pName + "/". With a level on the screen it logs
    // "Already created.\n" and nothing more happens.
    static void create(const std::string& pName);
    static znIHogLevel* levelGet();                           // null if none is open
    static std::string folderOfGet(const std::string& pName); // of the level of that name, ends in "/"

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void update(s32 pDeltaMs) override;

    virtual void shutDownStateFix(); // brings a level that was won into the state to store
    virtual void skipDo();
    virtual void levelInitialise(); // the scene's entities stand, nothing saved is restored yet
    virtual void postLoadDo();      // what was saved is restored

    void levelLoad(const std::string& pName);
    void levelSkip();
    void levelQuit(); // to the main menu
    void levelStateStore();
    // The same, but in the middle of play: changes nothing in the level, and nothing in the player's data if the level
    // is as it was stored last.
    void progressStore();
    // Sends sparkles from the hint button to pEntity, which stands in the current sub-scene, and ends the player's row
    // of levels without a hint.
    void hintShow(znCEntity* pEntity);

    // The topmost open sub-scene. Null, with "Expected to find an active subscene.\n", if none is open.
    znCSubSceneComponent* currentSubSceneGet() const;
    std::string nextLevelGet() const; // the screen behind this level, empty if the level's table names none
    const znCVariableTable& variablesGet() const { return mVariables; } // the level's table
    const std::string& folderGet() const { return mLevelFolder; }       // ends in "/"
    const std::string& levelNameGet() const { return mLevelName; }
    bool skippedGet() const { return mSkipped; }
    bool sceneStandsGet() const { return !mSubScenes.empty(); } // false behind a folder that makes no scene

    // Steps of levelLoad().
    void subScenesStore();
    // The table's "numHogItems", if above 0, is the total of the list named "hogPickList", whatever its GUI file says.
    void guiInit();
    void miniGameHelpSet();

protected:
    znIHogLevel();

    void stateSave();
    void stateKeep(const std::string& pState);

    std::vector<znCEntity*> mSubScenes; // by index; owned by the tree
    std::string mLevelName;
    std::string mLevelFolder;
    znCVariableTable mVariables;
    s32 mTimePlayedMs = 0; // in this opening of the level
    s32 mTimeStoredMs = 0; // the part of it that the player's data has got
    bool mSkipped = false;
    std::string mProgress; // of progressStore(), kept for its room

private:
    void sceneLoad();
    void guiCreate();
    void savedStateLoad();
    void stateRestore(const std::string& pSaved);
    void soundStart();
};

#endif
