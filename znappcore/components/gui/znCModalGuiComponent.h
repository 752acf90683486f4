#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNCMODALGUICOMPONENT_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNCMODALGUICOMPONENT_H

// Keeps the pointer messages that the elements of a GUI leave from whatever lies behind the GUI. It must be made before
// them: they register later and are asked first.

#include "znappcore/znIMessageListenerComponent.h"

class znCModalGuiComponent : public znIMessageListenerComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCModalGuiComponent"};

    explicit znCModalGuiComponent(znCEntity* pEntity) : znIMessageListenerComponent(pEntity) {}

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

    void modalSet(bool pModal) { mModal = pModal; }

private:
    bool mModal = true;
};

#endif
