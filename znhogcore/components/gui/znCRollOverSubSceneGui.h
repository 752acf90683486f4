#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCROLLOVERSUBSCENEGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCROLLOVERSUBSCENEGUI_H

// The captions of a scene; what lies behind an open close-up has none.
//
// When a level has been loaded and nobody has handed over captions, it takes those that the strings table holds: an
// object's caption is the string of its base name with CAPTION_SUFFIX behind it.

#include "znappcore/components/gui/znCRollOverGui.h"

class znCRollOverSubSceneGui : public znCRollOverGui
{
public:
    static constexpr znCUniqueId TYPE{"znCRollOverSubSceneGui"};
    static constexpr const char* CAPTION_SUFFIX = "RO";

    using znCRollOverGui::znCRollOverGui;

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

    void pointerMoveHandle(const znPoint& pPoint) override;

private:
    void captionsCollect();
};

#endif
