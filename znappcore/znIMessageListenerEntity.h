#ifndef ZNAPPCORE_ZNIMESSAGELISTENERENTITY_H
#define ZNAPPCORE_ZNIMESSAGELISTENERENTITY_H

// Base of the entities that hear messages themselves, from their treeInitialise() on.

#include "znappcore/src/znCEntity.h"
#include "znappcore/znIMessageListener.h"

class znIMessageListenerEntity : public znCEntity, public znIMessageListener
{
public:
    explicit znIMessageListenerEntity(const std::string& pName, s32 pPriority = 0)
        : znCEntity(pName), znIMessageListener(pPriority)
    {
    }
};

#endif
