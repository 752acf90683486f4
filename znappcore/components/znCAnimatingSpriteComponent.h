#ifndef ZNAPPCORE_COMPONENTS_ZNCANIMATINGSPRITECOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNCANIMATINGSPRITECOMPONENT_H

#include "znappcore/animatingSprite/znCAnimatingSprite.h"
#include "znappcore/znIComponent.h"

#include <memory>

// A playing animation at an entity's place.
//
// Settings: "xml" names the animation file; "hitMap" (bool, false) has its pictures loaded with hit maps.
// Until it has an animation, stop and reset log "Not initialised.\n", and so does the first of what a frame does
// (update, render, matrixApply).
class znCAnimatingSpriteComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCAnimatingSpriteComponent"};

    explicit znCAnimatingSpriteComponent(znCEntity* pEntity) : znIComponent(pEntity) {}

    void update(s32 pDeltaMs) override;
    void render() override;
    void matrixApply() override;
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;

    void stop();
    void reset();
    // Plays a file from its start, in place of what was playing. A file that doesn't exist shows nothing.
    void xmlLoad(const znCResourceName& pName, bool pHitMap);
    // Makes an animation that shows nothing until it is given data.
    void emptyCreate();
    // Null until there is one.
    znCAnimatingSprite* spriteGet() const { return mSprite.get(); }

private:
    bool initialisedCheck() const;
    bool frameCheck();

    std::unique_ptr<znCAnimatingSprite> mSprite;
    bool mFrameReported = false; // once tells the author; every frame would only fill the log
};

#endif
