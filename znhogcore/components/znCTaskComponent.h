#ifndef ZNHOGCORE_COMPONENTS_ZNCTASKCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCTASKCOMPONENT_H

// A collectable without a picture of its own: it is collected when "TaskComplete" brings its key, which a lock named
// with that task sends once it is open.

#include "znhogcore/components/znICollectableComponent.h"

class znCTaskComponent : public znICollectableComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCTaskComponent"};

    using znICollectableComponent::znICollectableComponent;

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
};

#endif
