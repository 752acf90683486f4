#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNIMESSAGELISTENERGUICOMPONENT_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNIMESSAGELISTENERGUICOMPONENT_H

// Base of the GUIs that hear messages.

#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/znIMessageListener.h"

class znIMessageListenerGuiComponent : public znIGuiComponent, public znIMessageListener
{
public:
    explicit znIMessageListenerGuiComponent(znCEntity* pEntity, s32 pPriority = 0)
        : znIGuiComponent(pEntity), znIMessageListener(pPriority)
    {
    }
};

#endif
