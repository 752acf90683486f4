#include "znhogcore/src/znCCollectionEffectFactory.h"

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/src/znCEntity.h"
#include "znhogcore/components/znCAnimCollectionEffectComponent.h"
#include "znhogcore/components/znCFadeCollectionEffectComponent.h"
#include "znhogcore/components/znCParticleCollectionEffectComponent.h"

namespace
{
constexpr s32 COLLECTING = znICollectableComponent::STATE_COLLECTING;
constexpr s32 COLLECTED = znICollectableComponent::STATE_COLLECTED;

constexpr char ONCE[] =
    "<sequence name=\"s\"><framelist><frame w=\"0\" h=\"0\"/></framelist>"
    "<timeline name=\"main\" frametime=\"100\"><key frame=\"1\"/><key frame=\"1\"/></timeline></sequence>";
constexpr char LOOP[] =
    "<sequence name=\"s\"><framelist><frame w=\"0\" h=\"0\"/></framelist>"
    "<timeline name=\"main\" frametime=\"100\"><key frame=\"1\"/><key jumpto=\"0\"/></timeline></sequence>";
constexpr char BURST[] = "imageFileName = particles/p.png ; maxParticles = 4 ; particleLifeMs = 300 ; "
                         "emitterLifeMs = 100 ; emitSpeed = 40 ;";
constexpr char ENDLESS[] =
    "imageFileName = particles/p.png ; maxParticles = 4 ; particleLifeMs = 300 ; emitSpeed = 40 ;";

// A hot gull with the files of a case beside it.
class znCCollectionEffectFactoryTest : public znCHogTest
{
protected:
    void open(const char* pAnimation, const char* pParticles)
    {
        sceneSet("quay", "Background.png,0,0\nHOT-gull.png,200,0\n");
        imageSet("particles/p.png", 8, 8);
        fileLay("scenes/quay/hot-gull.xml", pAnimation);
        fileLay("particles/par-gull.txt", pParticles);
        sceneOpen("quay");
    }
    void fileLay(const char* pName, const char* pText)
    {
        mPlatform.mFiles.fileRemove(pName);
        if (pText != nullptr)
            mPlatform.mFiles.fileSet(pName, pText);
    }
    template <class Effect>
    bool shown()
    {
        const znCEntity* effect = find("HOT-gull.pngCollectionEffect");
        return effect != nullptr && effect->componentGet<Effect>() != nullptr;
    }
};
} // namespace

TEST_F(znCCollectionEffectFactoryTest, playsTheFirstKindThatHasItsFileAndWaitsForItsEnd)
{
    struct Case
    {
        const char* mWhat;
        const char* mAnimation;
        const char* mParticles;
        char mKind;
        s32 mFrames; // of 16 ms, at most, until it has reported
    };
    const Case cases[] = {
        {"nothing", nullptr, nullptr, 'f', 130},
        {"particles", nullptr, BURST, 'p', 40},
        {"animation", ONCE, nullptr, 'a', 20},
        {"both", ONCE, BURST, 'a', 20},
    };
    for (const Case& c : cases)
    {
        open(c.mAnimation, c.mParticles);
        tap(200, 0);
        frame();
        EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTING) << c.mWhat;
        EXPECT_EQ(shown<znCFadeCollectionEffectComponent>(), c.mKind == 'f') << c.mWhat;
        EXPECT_EQ(shown<znCParticleCollectionEffectComponent>(), c.mKind == 'p') << c.mWhat;
        EXPECT_EQ(shown<znCAnimCollectionEffectComponent>(), c.mKind == 'a') << c.mWhat;
        frame(c.mFrames);
        EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED) << c.mWhat;
        EXPECT_EQ(find("HOT-gull.pngCollectionEffect"), nullptr) << c.mWhat;
        levelEnd();
        programStop();
        programStart();
    }
}

TEST_F(znCCollectionEffectFactoryTest, neverWaitsForAnEffectWithoutEnd)
{
    struct Case
    {
        const char* mAnimation;
        const char* mParticles;
        const char* mMessage;
    };
    const Case cases[] = {
        {LOOP, nullptr, "Cannot use looping animations as collection effects scenes/quay/hot-gull.xml."},
        {nullptr, ENDLESS, "Collection particle effects (HOT-gull) should not run forever."},
    };
    for (const Case& c : cases)
    {
        open(c.mAnimation, c.mParticles);
        tap(200, 0);
        frame(3);
        EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED);
        EXPECT_EQ(errorsTake(), std::vector<std::string>{c.mMessage});
        levelEnd();
        programStop();
        programStart();
    }
}
