#ifndef ZNAPPCORE_SRC_ZNCRENDERJOBSPRITES_H
#define ZNAPPCORE_SRC_ZNCRENDERJOBSPRITES_H

#include "znappcore/znIRenderJob.h"

// Draws sprites, one call for each material change.
class znCRenderJobSprites final : public znIRenderJob
{
public:
    static constexpr znCUniqueId TYPE{"znCRenderJobSprites"};

    znCRenderJobSprites(znIRenderer* pRenderer, s32 pIndex) : znIRenderJob(pRenderer, pIndex) {}

    const znCUniqueId& typeIdGet() const override { return TYPE; }
    void execute() override;
};

#endif
