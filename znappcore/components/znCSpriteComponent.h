#ifndef ZNAPPCORE_COMPONENTS_ZNCSPRITECOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNCSPRITECOMPONENT_H

#include "znappcore/src/znCSprite.h"
#include "znappcore/znIComponent.h"

// A sprite at an entity's place.
//
// Settings: "image" names the image file; "hitMap", exactly "true", has it loaded with a hit map.
class znCSpriteComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCSpriteComponent"};

    explicit znCSpriteComponent(znCEntity* pEntity);
    ~znCSpriteComponent() override = default;

    void render() override;
    void matrixApply() override;
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;

    void brushSet(const znCBrushPtr& pBrush);
    const znCBrushPtr& brushGet() const { return mSprite.brushGet(); }
    void widthSet(s32 pWidth) { mSprite.widthSet(pWidth); }
    void heightSet(s32 pHeight) { mSprite.heightSet(pHeight); }
    s32 widthGet() const { return mSprite.widthGet(); }
    s32 heightGet() const { return mSprite.heightGet(); }
    void colourSet(const znCColour& pColour) { mSprite.colourSet(pColour); }
    void alphaModeSet(u32 pMode) { mSprite.alphaModeSet(pMode); }
    // For the entity, which draws and moves it without a detour over this component where nothing else draws.
    znCSprite& spriteGet() { return mSprite; }

    // Whether a point in device pixels hits the sprite; never while the entity or a node above it is inactive.
    bool hitTest(const znPoint& pWorld, bool pExpectHitMap);

    // Whether two sprites touch, by the rectangles of their hit brushes, with pPerPixel by a common hit pixel. Both
    // entities need the same parent, scale 1 and angle 0; what isn't so is logged and the test goes on. Without hit
    // maps on both sides the rectangles decide, with a log line if pPerPixel.
    bool hitTest(znCSpriteComponent& pOther, bool pPerPixel);

private:
    void overlapPreconditionsCheck(const znCSpriteComponent& pOther) const;

    znCSprite mSprite;
};

#endif
