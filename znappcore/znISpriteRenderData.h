#ifndef ZNAPPCORE_ZNISPRITERENDERDATA_H
#define ZNAPPCORE_ZNISPRITERENDERDATA_H

#include "znappcore/znCMaterial.h"
#include "znappcore/znNRenderChanges.h"
#include "zncore/znCColour.h"
#include "zncore/znPointF.h"

// One quad as the renderer takes it. Owned by what submits it, and left alone from submission to the end of the frame.
// Corners are in the order top left, bottom left, bottom right, top right. What a setter changes it marks, see
// znNRenderChanges.
class znISpriteRenderData
{
public:
    // Corners in device pixels.
    virtual void verticesSet(const znPointF pCorners[4]) = 0;
    virtual void uvsSet(float pU0, float pU1, float pV0, float pV1) = 0;
    virtual void colourSet(const znCColour& pColour) = 0;
    virtual ~znISpriteRenderData() = default;

    // Takes texture coordinates and material from the brush, which must outlive the use of this object.
    void brushApply(const znCBrush& pBrush);

    void materialSet(const znCMaterial& pMaterial);
    void alphaModeSet(u32 pMode);
    const znCMaterial& materialGet() const { return mMaterial; }

protected:
    znISpriteRenderData() = default;
    znISpriteRenderData(const znISpriteRenderData&) = default;
    znISpriteRenderData& operator=(const znISpriteRenderData&) = default;

private:
    znCMaterial mMaterial;
    [[no_unique_address]] znNRenderChanges::Marker mMarker;
};

#endif
