#ifndef ZNAPPCORE_SRC_ZNCRENDERJOBTEXT_H
#define ZNAPPCORE_SRC_ZNCRENDERJOBTEXT_H

#include "znappcore/znIRenderJob.h"

// Draws texts, at least one call for each.
class znCRenderJobText final : public znIRenderJob
{
public:
    static constexpr znCUniqueId TYPE{"znCRenderJobText"};

    znCRenderJobText(znIRenderer* pRenderer, s32 pIndex) : znIRenderJob(pRenderer, pIndex) {}

    const znCUniqueId& typeIdGet() const override { return TYPE; }
    void execute() override;
};

#endif
