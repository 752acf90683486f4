#ifndef ZNAPPCORE_COMPONENTS_ZNCSCREENFADECOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNCSCREENFADECOMPONENT_H

#include "znappcore/src/znCSpriteRenderData.h"
#include "znappcore/znIComponent.h"

// A rectangle of one colour, as large as the canvas, centred on its entity.
//
// Settings: "colourRGBA"; without it "Expected a colourRGBA value for ScreenFadeComponent %s.\n" is logged and it is
// white.
class znCScreenFadeComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCScreenFadeComponent"};

    explicit znCScreenFadeComponent(znCEntity* pEntity) : znIComponent(pEntity) {}

    void render() override; // a colour of alpha 0 costs nothing
    void matrixApply() override;
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;

    // Takes the size of the canvas.
    void quadSet();
    void colourSet(const znCColour& pColour) { mRenderData.colourSet(pColour); }

private:
    znCSpriteRenderData mRenderData;
    znPointF mLocalCorners[4] = {};
    znPointF mWorldCorners[4] = {};
};

#endif
