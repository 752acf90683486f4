#ifndef ZNHOGCORE_COMPONENTS_ZNCLEVELCOMPLETECHECKERCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCLEVELCOMPLETECHECKERCOMPONENT_H

// Ends the level that it sits on. Whoever has something that must be finished adds a requirement by a name of its own
// and reports it met; with the last open one the level is complete. A level without any never ends by itself.
//
// How the end is announced depends on who has a say in it:
//
//     nobody                              "LevelComplete"
//     the congratulations                 "LevelCompleteCongrats", and they send "LevelComplete"
//     the player                          "LevelCompleteWaiting", and continueRequest() sends "LevelComplete"
//     both                                "LevelCompleteWaitingCongrats", and they send "LevelCompleteWaiting"
//
// Nothing of this is saved: after a load everybody adds and reports anew.

#include "znappcore/znIMessageListenerComponent.h"

#include <map>

class znCLevelCompleteCheckerComponent : public znIMessageListenerComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCLevelCompleteCheckerComponent"};

    explicit znCLevelCompleteCheckerComponent(znCEntity* pEntity) : znIMessageListenerComponent(pEntity) {}

    void messagesRegister() override;
    void messagesDeregister() override;
    // Consumes what is added and met; what is cleared goes on to others.
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

    void waitForPlayerSet() { mWaitForPlayer = true; }
    bool waitForPlayerGet() const { return mWaitForPlayer; }
    void congratulateSet() { mCongratulate = true; }
    // The player wants to leave: true, and the level ends, if it waits for that and all requirements are met.
    bool continueRequest();

private:
    // A name that stands already logs "Requirement %s already registered.\n" and stays as it is.
    void requirementRegister(const std::string& pName);
    // Both: an unknown name logs "Requirement %s not registered.\n" and changes nothing; one that is in that state
    // logs "Requirement %s already flagged as %scomplete.\n".
    void requirementStatusProcess(const std::string& pName);
    void requirementClear(const std::string& pName);
    bool metSet(const std::string& pName, bool pMet);
    bool completeCheck();

    std::map<std::string, bool> mRequirements; // met or not, by name
    bool mWaitForPlayer = false;
    bool mCongratulate = false;
};

#endif
