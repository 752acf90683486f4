#ifndef ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCPRESSBRUSHES_H
#define ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCPRESSBRUSHES_H

// The pictures of a control that may look different while it is pressed or pointed at, and the sprite that shows them.

#include "znappcore/src/znCBrush.h"

#include <string>

class znCEntity;
class znCSpriteComponent;

class znCPressBrushes
{
public:
    // Gives the entity a sprite and shows pUpImage on it. An empty pDownImage: no second picture.
    void init(znCEntity& pEntity, const std::string& pUpImage, const std::string& pDownImage);
    // False if there is no second picture to show.
    bool show(bool pHighlighted);
    // A picture for the time in which neither of the two fits; null brings the first one back.
    void otherShow(const znCBrushPtr& pBrush);

    // A control's picture, with a hit map: it is pressed on its opaque pixels only.
    static znCBrushPtr brushGet(const std::string& pImage);

private:
    znCSpriteComponent* mSprite = nullptr; // owned by the entity
    znCBrushPtr mUpBrush;
    znCBrushPtr mDownBrush; // may be null
};

#endif
