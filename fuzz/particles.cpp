// Any bytes as a particle file, emitted for a while.

#include "media/znNGraphics.h"
#include "tests/support/znCTestCore.h"
#include "tests/support/znNTestImages.h"
#include "znappcore/particles/znCParticleDataManager.h"
#include "znappcore/particles/znCParticleEmitter.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/znIRenderer.h"
#include "zncore/znCResourceName.h"

#include <cstdlib>

namespace
{
const std::string& pictureGet()
{
    static const std::string sPicture = []
    {
        const znNTestImages::Bytes png = znNTestImages::pngMake(2, 2, znNTestImages::Bytes(16, 255));
        return std::string(png.begin(), png.end());
    }();
    return sPicture;
}

void emit(const znCParticleDataPtr& pData)
{
    znCParticleEmitter emitter(pData);
    emitter.matrixApply(znAffineMtx2d());
    if (pData->mPrerunMs < 1000) // a longer one is legal; here it would only be slow
        emitter.prerunDo();
    for (s32 i = 0; i < 20; ++i)
    {
        emitter.update(i * 10);
        if (emitter.liveCountGet() < 0 || emitter.liveCountGet() > pData->mMaxParticles)
            std::abort();
        znIRenderer::instanceGet()->frameBegin();
        emitter.render();
        znIRenderer::instanceGet()->frameEnd();
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    const znCTestCore core; // anew for each run, so that the log stays short
    znCTestPlatform& platform = *znCTestPlatform::instanceGet();
    platform.mFiles.fileSet("particles/fuzz.txt", std::string(reinterpret_cast<const char*>(pData), pSize));
    platform.mFiles.fileSet("spark.png", pictureGet());
    platform.mFiles.fileSet("a.xml", "<sequence><framelist><f texPgFn=\"spark.png\" w=\"2\" h=\"2\"/></framelist>"
                                     "<timeline name=\"main\"><key frame=\"1\"/></timeline></sequence>");
    platform.mDraw.mRecording = false;
    znNGraphics::initialise();
    znIRenderer::create(1024, 1024);
    znCBrushManager::create();
    emit(znCParticleDataManager::instanceGet()->dataGet(znCResourceName("particles/fuzz.txt", 0)));
    znCBrushManager::destroy();
    znIRenderer::destroy();
    znNGraphics::terminate();
    return 0;
}
