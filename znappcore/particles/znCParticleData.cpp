#include "znappcore/particles/znCParticleData.h"

#include "zncore/znNCoreUtils.h"

float znCParticleValue::drawGet() const
{
    constexpr float FIXED_ONE = 1024.0f;
    if (mRangeFixed <= 0)
        return mBase;
    return mBase + static_cast<float>(znNCoreUtils::randomGet(static_cast<uint32>(mRangeFixed))) / FIXED_ONE;
}

znPointF znCParticlePair::drawGet() const
{
    const float x = mX.drawGet();
    return {x, mY.drawGet()};
}
