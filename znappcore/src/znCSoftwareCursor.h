#ifndef ZNAPPCORE_SRC_ZNCSOFTWARECURSOR_H
#define ZNAPPCORE_SRC_ZNCSOFTWARECURSOR_H

#include "znappcore/animatingSprite/znCAnimationDataInstance.h"
#include "znappcore/znIMessageListenerEntity.h"

#include <map>

class znCAnimatingSpriteComponent;

// The game's own mouse pointer, in place of the system's. It exists only on machines with a mouse, hangs under the
// display in front of everything, and dies with the tree.
class znCSoftwareCursor : public znIMessageListenerEntity
{
public:
    static constexpr znCUniqueId CURSOR_DEFAULT{"CursorDefault"};

    ~znCSoftwareCursor() override;

    // Nothing on a device without a mouse. A second call logs "Already created znCSoftwareCursor.\n" and changes
    // nothing.
    static void create();
    // Whether the game's pointer shows instead of the system's: off when the program starts. Kept also while there is
    // no cursor. A cursor without a picture leaves the system's in its place.
    static void enabledSet(bool pEnabled);

    // The animation of that file, whose registration point is the hot spot, under an id.
    void cursorAdd(const znCUniqueId& pId, const std::string& pFile);

    void initialiseDo() override;
    void messagesRegister() override;
    void messagesDeregister() override;
    // Follows the mouse and consumes nothing.
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

protected:
    virtual void cursorsLoad();

private:
    znCSoftwareCursor();

    static void refresh();
    void pictureApply();

    znCAnimatingSpriteComponent* mSpriteComponent = nullptr; // owned by the entity
    std::map<znCUniqueId, znCAnimationDataPtr> mCursors;

    static bool mEnabled;
};

#endif
