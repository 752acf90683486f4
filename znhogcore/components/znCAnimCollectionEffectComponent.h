#ifndef ZNHOGCORE_COMPONENTS_ZNCANIMCOLLECTIONEFFECTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCANIMCOLLECTIONEFFECTCOMPONENT_H

// A collected thing's own animation, played once.

#include "znappcore/animatingSprite/znCAnimatingSprite.h"
#include "znhogcore/components/znICollectionEffectComponent.h"

#include <memory>

class znCResourceName;

class znCAnimCollectionEffectComponent final : public znICollectionEffectComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCAnimCollectionEffectComponent"};

    using znICollectionEffectComponent::znICollectionEffectComponent;

    // A file that loops logs "Cannot use looping animations as collection effects %s.\n" and counts as played. What a
    // frame does before this logs "Not initialised.\n".
    void animationInitialise(const znCResourceName& pFile);

    void update(s32 pDeltaMs) override;
    void render() override;
    void matrixApply() override;

private:
    bool initialisedCheck() const;

    std::unique_ptr<znCAnimatingSprite> mAnim;
};

#endif
