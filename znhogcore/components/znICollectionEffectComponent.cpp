#include "znhogcore/components/znICollectionEffectComponent.h"

#include "znappcore/src/znCEntity.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

void znICollectionEffectComponent::effectComplete()
{
    if (mEnded)
        return;
    mEnded = true;
    const std::string& name = mEntity->nameGet();
    mCollectedName = name.substr(0, name.rfind(NAME_SUFFIX));
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::COLLECTION_EFFECT_COMPLETE,
                                                        &mCollectedName);
    mEntity->destroy();
}

void znICollectionEffectComponent::effectCancel()
{
    if (mEnded)
        return;
    mEnded = true;
    cancelDo();
    mEntity->destroy();
}

void znICollectionEffectComponent::cancelDo() {}
