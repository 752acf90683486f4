#ifndef ZNHOGCORE_COMPONENTS_ZNCFADECOLLECTIONEFFECTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCFADECOLLECTIONEFFECTCOMPONENT_H

// The plain show: a copy of the collected picture swells by a quarter and fades out within two seconds.

#include "znappcore/src/znCSprite.h"
#include "zncore/znCColour.h"
#include "zncore/znCGraph.h"
#include "znhogcore/components/znICollectionEffectComponent.h"

class znCFadeCollectionEffectComponent final : public znICollectionEffectComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCFadeCollectionEffectComponent"};

    explicit znCFadeCollectionEffectComponent(znCEntity* pEntity);

    // Takes the picture of pEntity's sprite; without one it logs "Expecting a sprite component to copy.\n" and shows
    // nothing.
    void spriteInitialise(const znCEntity* pEntity);

    void update(s32 pDeltaMs) override;
    void render() override;
    void matrixApply() override;

private:
    znCSprite mSprite;
    znCGraph<znCColour> mColourGraph;
    znCGraph<float> mScaleGraph;
    s32 mDurationMs = 2000;
    s32 mElapsedMs = 0;
};

#endif
