#ifndef ZNAPPCORE_ZNIMESSAGELISTENERCOMPONENT_H
#define ZNAPPCORE_ZNIMESSAGELISTENERCOMPONENT_H

// Base of the components that hear messages.

#include "znappcore/znIComponent.h"
#include "znappcore/znIMessageListener.h"

class znIMessageListenerComponent : public znIComponent, public znIMessageListener
{
public:
    explicit znIMessageListenerComponent(znCEntity* pEntity, s32 pPriority = 0)
        : znIComponent(pEntity), znIMessageListener(pPriority)
    {
    }
};

#endif
