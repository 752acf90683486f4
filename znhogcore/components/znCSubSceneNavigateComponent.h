#ifndef ZNHOGCORE_COMPONENTS_ZNCSUBSCENENAVIGATECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCSUBSCENENAVIGATECOMPONENT_H

// A door: a tap on it opens a close-up. It shows while that close-up holds something to do.
//
// The base name says where it leads: "SUB" and the index, "SUB2-crate". It sparkles by "particles/subScene.txt"; one
// named with "NAV-" behind the index ("SUB2-NAV-crate") doesn't. The entity needs a znCSpriteComponent and a
// znCNameComponent.

#include "znappcore/components/znIGestureHandlingComponent.h"

class znCSubSceneNavigateComponent : public znIGestureHandlingComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCSubSceneNavigateComponent"};

    explicit znCSubSceneNavigateComponent(znCEntity* pEntity);

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    bool inputEnabled() override;
    void onTap() override;

    s32 targetIndexGet() const { return mTargetIndex; } // 0 if the name names none, which is logged

private:
    void targetIndexCalculate(const std::string& pBaseName);
    void sparkleStart();

    s32 mTargetIndex = 0;
};

#endif
