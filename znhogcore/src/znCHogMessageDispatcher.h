#ifndef ZNHOGCORE_SRC_ZNCHOGMESSAGEDISPATCHER_H
#define ZNHOGCORE_SRC_ZNCHOGMESSAGEDISPATCHER_H

// The game's message bus: collection, completion, sub-scenes, reset of a level. Input and GUI events have their own.
//
// Lives from start-up to the very end of shut-down.

#include "znappcore/znIMessageDispatcher.h"

class znCHogMessageDispatcher : public znIMessageDispatcher
{
public:
    // Payload of these: znCEmptyMessageData.
    static constexpr znCUniqueId LEVEL_LOAD_COMP{"levelLoadComp"};   // the level stands and is placed
    static constexpr znCUniqueId RESET_LEVEL{"resetLevel"};          // clear yourself
    static constexpr znCUniqueId POST_RESET_LEVEL{"postResetLevel"}; // all collectables are clear
    static constexpr znCUniqueId LEVEL_COMPLETE{"LevelComplete"};    // won: nothing more is to come in it
    // All requirements are met, and LEVEL_COMPLETE follows: behind the congratulations, at the player's word, or both.
    static constexpr znCUniqueId LEVEL_COMPLETE_CONGRATS{"LevelCompleteCongrats"};
    static constexpr znCUniqueId LEVEL_COMPLETE_WAITING{"LevelCompleteWaiting"};
    static constexpr znCUniqueId LEVEL_COMPLETE_WAITING_CONGRATS{"LevelCompleteWaitingCongrats"};
    static constexpr znCUniqueId CONTINUE_GAME{"continueGame"};            // on to the next screen
    static constexpr znCUniqueId REPLAY_LEVEL{"replayLevel"};              // the same level again
    static constexpr znCUniqueId CLOSE_TOP_SUB_SCENE{"CloseTopSubScene"};  // consumed by the one that closes
    static constexpr znCUniqueId ADDED_ENTRY{"AddedEntry"};                // a list has put an item on show
    static constexpr znCUniqueId HINT_BUTTON_PRESSED{"HintButtonPressed"}; // consumed by who gave a hint
    static constexpr znCUniqueId GHOST_HINT_BUTTON_PRESSED{"ghostHintButtonPressed"};
    static constexpr znCUniqueId SUB_EXIT_BUTTON_SHOW{"SubExitButtonShow"}; // a full-screen sub-scene has opened
    static constexpr znCUniqueId SUB_EXIT_BUTTON_HIDE{"SubExitButtonHide"}; // a full-screen sub-scene has closed
    static constexpr znCUniqueId STD_DIFFERENCE_FOUND{"STDDifferenceFound"};
    // Sent only with the player's setting "cheat": a second, a third finger was lifted.
    static constexpr znCUniqueId DUAL_TOUCH{"DualTouch"};
    static constexpr znCUniqueId TRIPLE_TOUCH{"TripleTouch"};
    // Payload: std::string.
    static constexpr znCUniqueId CONVERSATION_COMPLETE{"conversationComplete"};          // the conversation's name
    static constexpr znCUniqueId COLLECTION_EFFECT_COMPLETE{"CollectionEffectComplete"}; // the collected node's name
    static constexpr znCUniqueId TASK_COMPLETE{"TaskComplete"};                          // the task's key
    static constexpr znCUniqueId NAVIGATE_TAP{"navigateTap"};                            // where to
    // Payload: std::string, the name of what must be finished before the level ends. One who adds it reports it.
    static constexpr znCUniqueId COMPLETION_REQUIREMENT_ADD{"CompletionRequirementAdd"};
    static constexpr znCUniqueId COMPLETION_REQUIREMENT_MET{"CompletionRequirementMet"};
    static constexpr znCUniqueId COMPLETION_REQUIREMENT_CLEAR{"CompletionRequirementClear"}; // not met any more
    // Payload: znCEntity, the collected one.
    static constexpr znCUniqueId COLLECTABLE_ENTITY_COLLECTED{"CollectableEntityCollected"};
    // Payload: znCScoreCollectionEffectData, the points that have arrived at the player's score.
    static constexpr znCUniqueId SCORE_COLLECTION_EFFECT_COMPLETE{"scoreCollectionEffectComplete"};
    // Payload: s32, the sub-scene's index.
    static constexpr znCUniqueId OPEN_SUB_SCENE{"OpenSubScene"};
    static constexpr znCUniqueId ACTIVATE_SUB_SCENE{"ActivateSubScene"};     // it holds something to do
    static constexpr znCUniqueId DEACTIVATE_SUB_SCENE{"DeactivateSubScene"}; // nothing any more

    // A second call logs "Already created znCHogMessageDispatcher.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCHogMessageDispatcher* instanceGet();
    static void destroy();

private:
    znCHogMessageDispatcher() = default;
};

#endif
