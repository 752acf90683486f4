#ifndef ZNAPPCORE_COMPONENTS_ZNCTEXTSPRITECOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNCTEXTSPRITECOMPONENT_H

#include "znappcore/src/znCTextRenderData.h"
#include "znappcore/znIComponent.h"

#include <string>

// A text at an entity's place, the entity at the centre of the text's box.
//
// Settings: "textKey" (of a localised string; empty text), "font" (file name) and "fontSize" (canvas units), both
// required; "width", "height" of the box (below 1: the canvas's); "alignmentH" ("left", "centre", "right"; centre),
// "alignmentV" ("top", "middle", "bottom"; middle); "colourRGBA" (white). A missing font or size logs
// "No font set for text sprite %s.\n" or "Invalid font size for text sprite %s (%d).\n", and nothing shows; an unknown
// alignment is logged with what there is and the default stays.
class znCTextSpriteComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCTextSpriteComponent"};

    explicit znCTextSpriteComponent(znCEntity* pEntity) : znIComponent(pEntity) {}
    ~znCTextSpriteComponent() override = default;

    void render() override;
    void matrixApply() override;
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    virtual void textSet(const std::string& pText);
    virtual std::string textGet() const;

    // The text of an entity's component; without one logs "Entity %s does not have a TextSpriteComponent.\n".
    static void textSet(znCEntity* pEntity, const std::string& pText);

    void colourSet(const znCColour& pColour) { mRenderData.colourSet(pColour); }
    s32 textWidthGet() const { return mRenderData.textWidthGet(); } // canvas units
    const znPoint& boxSizeGet() const { return mRenderData.formattingRectSizeGet(); }

protected:
    znCTextRenderData mRenderData;

private:
    void boxFromTable(const znCVariableTable& pTable);
    void alignmentFromTable(const znCVariableTable& pTable);
};

#endif
