#include "znhogcore/components/znICollectionEffectComponent.h"

#include "znappcore/src/znCEntity.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

void znICollectionEffectComponent::effectComplete()
{
    const std::string& name = mEntity->nameGet();
    mCollectedName = name.substr(0, name.rfind(NAME_SUFFIX));
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::COLLECTION_EFFECT_COMPLETE,
                                                        &mCollectedName);
    mEntity->destroy();
}
