#ifndef ZNHOGCORE_COMPONENTS_ZNCBONUSENTITYCOUNTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCBONUSENTITYCOUNTCOMPONENT_H

// Counts the bonus things that a level offers and those that the player has found in it. Sits on the level. Bonus
// things stay found when the level is played again, and so do the counts.
//
// The saved values begin with a text by which they can be found in a level's stored state: the decimal id of TYPE.

#include "znappcore/znIMessageListenerComponent.h"

#include <string>

class znCBonusEntityCountComponent : public znIMessageListenerComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCBonusEntityCountComponent"};

    // What begins this component's saved values, by which the map finds them in a level's saved text.
    static std::string markerGet();

    explicit znCBonusEntityCountComponent(znCEntity* pEntity); // the scene stands: it is counted here

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    // The text; bonus things found and on offer; lost-and-found things found and on offer.
    void mySave(std::string& pOut) override;
    void myLoad(std::string& pIn) override;

    s32 silhouetteCollectedGet() const { return mSilhouetteCollected; }
    s32 silhouetteTotalGet() const { return mSilhouetteTotal; }
    s32 bonusCollectedGet() const { return mBonusCollected; }
    s32 bonusTotalGet() const { return mBonusTotal; }

private:
    s32 mSilhouetteCollected = 0;
    s32 mSilhouetteTotal = 0;
    s32 mBonusCollected = 0;
    s32 mBonusTotal = 0;
};

#endif
