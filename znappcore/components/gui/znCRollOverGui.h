#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNCROLLOVERGUI_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNCROLLOVERGUI_H

// A caption over what the pointer is on. Whoever knows what has captions hands them over; where several lie under the
// pointer, the first counts.
//
// Its file holds a text and, behind the text, a sprite that stretches with it. Key: "maxStr", a text of the length for
// which the sprite is drawn.

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCUniqueId.h"
#include "zncore/znPoint.h"

#include <string>
#include <vector>

class znCSpriteComponent;
class znCTextSpriteComponent;

class znCRollOverGui : public znIMessageListenerGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCRollOverGui"};
    // On znCGuiMessageDispatcher; payload: znCEmptyMessageData. The caption goes away until the pointer moves.
    static constexpr znCUniqueId CLOSE_ROLL_OVER{"closeRollOver"};

    struct Entry
    {
        std::string mText;
        znCEntity* mEntity; // lives as long as it is an entry; hit by its znCSpriteComponent
    };

    using znIMessageListenerGuiComponent::znIMessageListenerGuiComponent;

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override; // consumes nothing
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void update(s32 pDeltaMs) override; // a caption goes with its entity
    void myPostLoad() override;         // a caption that was saved on view is nobody's

    virtual void pointerMoveHandle(const znPoint& pPoint); // device pixels

    void rollOverEntriesSet(const std::vector<Entry>& pEntries);
    const std::vector<Entry>& rollOverEntriesGet() const { return mRollOverEntries; }

protected:
    // The first entry that pPoint hits and that pCounts, called with it, answers true for; null if there is none.
    template <class Counts>
    const Entry* entryFind(const znPoint& pPoint, const Counts& pCounts) const;
    // Null takes the caption away. pPos: of what it belongs to, in the space of this GUI's parent.
    void captionShow(const Entry* pEntry, const znPoint& pPos);

private:
    static bool hitGet(znCSpriteComponent* pSprite, const znPoint& pPoint);
    void textShow(const std::string& pText);

    s32 mMaxTextWidth = 0; // of the key "maxStr"
    std::vector<Entry> mRollOverEntries;
    std::vector<znCSpriteComponent*> mSprites; // of the entries, null for one without; owned by the entities
    const Entry* mShown = nullptr;             // one of the entries
};

template <class Counts>
const znCRollOverGui::Entry* znCRollOverGui::entryFind(const znPoint& pPoint, const Counts& pCounts) const
{
    for (std::size_t i = 0; i < mSprites.size(); ++i)
        if (hitGet(mSprites[i], pPoint) && pCounts(mRollOverEntries[i]))
            return &mRollOverEntries[i];
    return nullptr;
}

#endif
