#ifndef ZNAPPCORE_COMPONENTS_ZNCTEXTENTRYCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNCTEXTENTRYCOMPONENT_H

#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/znIMessageListener.h"

// A field in which the player types a name: by keyboard, or, on a device without one, in the device's own dialog after
// a tap on the sprite of the entity's grandparent. It takes every character, so there is one of them at a time.
//
// Further settings: "maxStringLength", characters; below 1 logs "maxStringLength is expected to be above 0.\n" and
// nothing can be typed.
class znCTextEntryComponent : public znCTextSpriteComponent, public znIMessageListener
{
public:
    static constexpr znCUniqueId TYPE{"znCTextEntryComponent"};
    static constexpr const char* CARET_NAME = "TextEntryCaret";
    static constexpr const char* CARET_ANIMATION = "gui/misc/caret.xml";
    static constexpr const char* PROMPT_KEY = "enterNamePrompt";
    static constexpr s32 LISTENER_PRIORITY = 3;

    explicit znCTextEntryComponent(znCEntity* pEntity);
    ~znCTextEntryComponent() override = default;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

private:
    void caretCreate();
    void caretUpdate();
    void characterTake(s32 pCode);
    bool entryChange(s32 pCode);
    bool dialogOpen(const znPoint& pPoint);
    void entryShow();

    znCEntity* mCaret = nullptr; // a child of the entity, which owns it
    std::string mEntry;
    s32 mMaxStringLength = 0;
    s32 mFirstHalf = 0; // of a character of which the second half is still to come
};

#endif
