#ifndef ZNHOGCORE_COMPONENTS_ZNICOLLECTIONEFFECTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNICOLLECTIONEFFECTCOMPONENT_H

// Base of the pieces of the show that plays when something is collected. Each is an entity of its own, named after the
// collected one with NAME_SUFFIX behind it; that is how its report finds the way back.

#include "znappcore/znIComponent.h"

class znICollectionEffectComponent : public znIComponent
{
public:
    static constexpr const char* NAME_SUFFIX = "CollectionEffect";

    using znIComponent::znIComponent;

    // Ends the effect without a report, for a collectable that begins anew. Nothing happens once it has reported.
    void effectCancel();

protected:
    // Reports to the collectable and destroys the entity. Once; a second call does nothing.
    void effectComplete();
    bool endedGet() const { return mEnded; } // the entity goes at the end of the frame
    virtual void cancelDo();                 // what the player must not lose by an end before its time

private:
    std::string mCollectedName; // set just before the report
    bool mEnded = false;
};

#endif
