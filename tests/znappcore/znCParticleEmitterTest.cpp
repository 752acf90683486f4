#include "znappcore/particles/znCParticleEmitter.h"

#include "tests/support/allocationCount.h"
#include "tests/znappcore/znCPresentationTest.h"
#include "znappcore/components/znCParticleEmitterComponent.h"
#include "znappcore/particles/znCParticleDataManager.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/src/znCVariableTable.h"

#include <numbers>

namespace
{
const znCResourceName FILE_NAME("particles/test.txt", 0);

class znCParticleEmitterTest : public znCPresentationTest
{
protected:
    znCParticleEmitterTest() { imageSet("spark.png", 2, 2, "#"); }

    znCParticleDataPtr dataMake(const std::string& pText)
    {
        mCore.mPlatform.mFiles.fileSet("particles/test.txt", pText);
        znCParticleDataManager::instanceGet()->levelDataClear();
        logTake();
        return znCParticleDataManager::instanceGet()->dataGet(FILE_NAME);
    }

    znCParticleDataPtr sparksMake(const std::string& pText)
    {
        return dataMake("imageFileName = spark.png ; maxParticles = 10; " + pText);
    }

    // Draws the emitter and gives the runs.
    const std::vector<znCTestDraw::Run>& drawn(znCParticleEmitter& pEmitter)
    {
        znIRenderer::instanceGet()->frameClear();
        znIRenderer::instanceGet()->frameBegin();
        pEmitter.render();
        znIRenderer::instanceGet()->frameEnd();
        return mCore.mPlatform.mDraw.mPresented;
    }

    // The middle of the first particle that is drawn.
    znPointF placeGet(znCParticleEmitter& pEmitter)
    {
        const std::vector<float> corners = drawn(pEmitter).at(0).mPositions;
        return {(corners[0] + corners[4]) / 2, (corners[1] + corners[5]) / 2};
    }

    s32 drawnCount(znCParticleEmitter& pEmitter)
    {
        s32 count = 0;
        for (const znCTestDraw::Run& run : drawn(pEmitter))
            count += run.mVertexCount / 4;
        return count;
    }
};

// Live particles after each step.
std::string livesGet(znCParticleEmitter& pEmitter, s32 pSteps, s32 pStepMs)
{
    std::string lives;
    for (s32 i = 0; i < pSteps; ++i)
    {
        pEmitter.update(pStepMs);
        lives += std::to_string(pEmitter.liveCountGet());
    }
    return lives;
}
} // namespace

TEST_F(znCParticleEmitterTest, readsEveryCommand)
{
    const znCParticleDataPtr data = dataMake("# a comment; with = signs\n"
                                             "imageFileName = spark.png ;alphaMode=add;linkToEmitter = true;\n"
                                             "maxParticles=12;particleLifeMs = 300 ; emitterLifeMs=400;\n"
                                             "emitSpeed = 2.5; emitPosXY = 1,-2 rndRangeXY = 3.9,4;\r\n"
                                             "velocityXY = 0,-100.5;  # another\n"
                                             "velocityDeltaXY = 5 , 6 rndRangeXY=1,0 ;\n"
                                             "scale = 1.5 rndRange = 0.5 ; scaleDelta = -0.25;\n"
                                             "angle = 90 rndRange = 10 ; angleDelta = 180;\n"
                                             "colour = 0000ff80; prerun = 96;\n"
                                             "colourGraph = ff0000ff, 00ff00ff, 100, 0000ff00 ,200; ;");
    EXPECT_EQ(logTake(), "");
    constexpr float PI = std::numbers::pi_v<float>;
    EXPECT_NE(data->mBrush, nullptr);
    EXPECT_EQ(data->mAlphaMode, 2u);
    EXPECT_TRUE(data->mLinkToEmitter);
    EXPECT_EQ(data->mMaxParticles, 12);
    EXPECT_EQ(data->mParticleLifeMs, 300);
    EXPECT_EQ(data->mEmitterLifeMs, 400);
    EXPECT_EQ(data->mEmitSpeed, 2.5f);
    EXPECT_EQ(data->mEmitPos.mX.mBase, -2.0f); // ranges of places are whole
    EXPECT_EQ(data->mEmitPos.mX.mRangeFixed, 3 * 2048);
    EXPECT_EQ(data->mEmitPos.mY.mBase, -6.0f);
    EXPECT_EQ(data->mVelocity.mY.mBase, -100.5f);
    EXPECT_EQ(data->mVelocity.mY.mRangeFixed, 0);
    EXPECT_EQ(data->mVelocityDelta.mX.mBase, 4.0f);
    EXPECT_EQ(data->mScale.mBase, 1.0f);
    EXPECT_EQ(data->mScale.mRangeFixed, 1024);
    EXPECT_EQ(data->mScaleDelta.mBase, -0.25f);
    EXPECT_FLOAT_EQ(data->mAngle.mBase, 80.0f * PI / 180.0f);
    EXPECT_EQ(data->mAngle.mRangeFixed, static_cast<s32>(10.0f * PI / 180.0f * 2048.0f));
    EXPECT_FLOAT_EQ(data->mAngleDelta.mBase, PI);
    EXPECT_FLOAT_EQ(data->mColour.mA, 128.0f / 255.0f);
    EXPECT_EQ(data->mPrerunMs, 96);
    ASSERT_NE(data->mColourGraph, nullptr);
    EXPECT_EQ(data->mColourGraph->valueGet(50), znCColour(0.5f, 0.5f, 0.0f, 1.0f));
    EXPECT_EQ(data->mColourGraph->valueGet(1000), znCColour(0.0f, 0.0f, 1.0f, 0.0f));
}

TEST_F(znCParticleEmitterTest, namesEachFaultAndReadsOn)
{
    const std::pair<const char*, const char*> cases[] = {
        {"wobble = 5;", "Unknown particle command:wobble in particle file particles/test.txt"},
        {"= 5;", "Unknown particle command: in particle file"},
        {"scale 5;", "Expected to find a '=' after command scale in particle file"},
        {"scale = ;", "Expected a number value after command scale in particle file"},
        {"scale = .-;", "Expected a number value after command scale in particle file"},
        {"maxParticles = -5;", "Expected a number value after command maxParticles in particle file"},
        {"scale = 5", "Expected to find a ';' at the end of command scale in particle file"}, // the next command stands
        {"scale = 5 6;", "Expected to find a 'rndRange' after command scale in particle file"},
        {"scale = 5 rndRange 6;", "Expected to find a '=' after command rndRange in particle file"},
        {"velocityXY = 5;", "Expected to find a ',' after command velocityXY in particle file"},
        {"velocityXY = 5,6 rndRangeXY = 7;", "Expected to find a ',' after command velocityXY in particle file"},
        {"alphaMode = bright;",
         "Unknown alphaMode bright in particle file particles/test.txt. Use none, normal, add or subtract."},
        {"linkToEmitter = 1;",
         "Expect a value of 'true' or 'false' for linkToEmitter in particle file particles/test.txt."},
        {"colour = fff;",
         "Expected colour values to be 8 characters long, eg 'ff7300c8' in a colour setting, in particle file"},
        {"colour = ff7300cx;",
         "Expected colour values to be 8 characters long, eg 'ff7300c8' in a colour setting, in particle file"},
        {"colourGraph = ffffffff, fff, 100;",
         "Expected colour values to be 8 characters long, eg 'ff7300c8' in a colourGraph, in particle file"},
        {"colourGraph = ffffffff 00000000, 100;",
         "Expected a ',' between colour values and durations in a colourGraph, in particle file"},
        {"colourGraph = ffffffff, 00000000 100;",
         "Expected a ',' between colour values and durations in a colourGraph, in particle file"},
        {"maxParticles = 99999999999;", "cut to 4096"},
        {"prerun = 2000000000;", "cut to 60000"},
        {"imageFileName = \n", "Expected to find a 'path' after command imageFileName"},
        {"prerun", "Expected to find a '=' after command prerun"},
    };
    for (const auto& [text, message] : cases)
    {
        const znCParticleDataPtr data = dataMake("# one\n#two\n" + std::string(text) + "\nparticleLifeMs = 77;");
        const std::string log = logTake();
        EXPECT_NE(log.find(message), std::string::npos) << text << "\n" << log;
        EXPECT_NE(log.find("particles/test.txt line 3: "), std::string::npos) << text << "\n" << log;
        EXPECT_EQ(std::count(log.begin(), log.end(), '\r'), 2) << text << "\n" << log; // of one failed check
        EXPECT_EQ(data->mParticleLifeMs, 77) << text;
    }
    dataMake(std::string(100000, 'x') + " = 1;");
    EXPECT_NE(logTake().find(" in particle file particles/test.txt"), std::string::npos);
    std::string rubbish;
    for (s32 i = 0; i < 1000; ++i)
        rubbish += "rubbish = 1;";
    dataMake(rubbish);
    const std::string log = logTake();
    EXPECT_LE(std::count(log.begin(), log.end(), '\r'), 40);
    znCParticleDataManager::instanceGet()->dataGet(znCResourceName("none.txt", 0));
    EXPECT_NE(logTake().find("File none.txt does not exist."), std::string::npos);
}

TEST_F(znCParticleEmitterTest, spawnsAtItsRate)
{
    struct Case
    {
        const char* mSettings;
        s32 mStepMs;
        const char* mLives;
    };
    const Case cases[] = {
        {"emitSpeed = 2.5;", 100, "000111122223"},
        {"emitSpeed = 2.5; particleLifeMs = 400;", 100, "00011111"}, // one dies as the next comes
        {"emitSpeed = 40; emitterLifeMs = 200;", 100, "4444"},
        {"emitSpeed = 40; emitterLifeMs = 250; particleLifeMs = 200;", 100, "4840"},
        {"emitSpeed = 1000;", 100, "^^^"}, // the pool holds ten; ^ stands for that
        {"emitSpeed = 100; particleLifeMs = 250;", 100, "^^^^"},
        {"emitSpeed = -5;", 100, "000"},
        {"emitSpeed = 99999999999999999999999999999999999999;", 100, "^^^"},
        {"emitSpeed = 99999999999999999999999999999999999999; particleLifeMs = 100;", 100, "^^^"},
        {"", 100, "000"},
    };
    for (const Case& c : cases)
    {
        znCParticleEmitter emitter(sparksMake(c.mSettings));
        std::string lives = livesGet(emitter, static_cast<s32>(std::string(c.mLives).size()), c.mStepMs);
        for (std::size_t ten = lives.find("10"); ten != std::string::npos; ten = lives.find("10"))
            lives.replace(ten, 2, "^");
        EXPECT_EQ(lives, c.mLives) << c.mSettings;
        EXPECT_EQ(drawnCount(emitter), emitter.liveCountGet()) << c.mSettings;
    }
}

TEST_F(znCParticleEmitterTest, prerunsInWholeSteps)
{
    for (const auto& [prerun, lives] :
         {std::pair(0, 0), std::pair(1, 1), std::pair(32, 1), std::pair(96, 3), std::pair(100, 4)})
    {
        // One a step of 32 ms.
        znCParticleEmitter emitter(sparksMake("emitSpeed = 31.25; prerun = " + std::to_string(prerun) + ";"));
        emitter.prerunDo();
        EXPECT_EQ(emitter.liveCountGet(), lives) << prerun;
    }
}

TEST_F(znCParticleEmitterTest, movesTurnsAndScalesItsParticles)
{
    znCParticleEmitter emitter(sparksMake("emitSpeed = 10; emitterLifeMs = 101; emitPosXY = 5,6; velocityXY = 10,0;"
                                          "velocityDeltaXY = 0,100; scale = 2; scaleDelta = -10;"));
    emitter.posSet({100, 200});
    emitter.update(100);
    EXPECT_TRUE(emitter.isEmitting());
    EXPECT_EQ(placeGet(emitter).mX, 105.0f);
    EXPECT_EQ(placeGet(emitter).mY, 206.0f);
    EXPECT_EQ(drawn(emitter)[0].mPositions, (std::vector<float>{103, 204, 103, 208, 107, 208, 107, 204}));
    emitter.posSet({0, 0}); // those that fly already don't follow
    emitter.update(100);
    EXPECT_FALSE(emitter.isEmitting());
    EXPECT_FLOAT_EQ(placeGet(emitter).mX, 106.0f);
    EXPECT_FLOAT_EQ(placeGet(emitter).mY, 206.0f); // place first, then speed
    emitter.update(100);
    EXPECT_FLOAT_EQ(placeGet(emitter).mY, 207.0f);
    emitter.update(1000);
    const std::vector<float> corners = drawn(emitter)[0].mPositions;
    EXPECT_EQ(corners[0], corners[4]); // scaled to nothing, and no further

    // A quarter turn: y points down, and the corner order shows the way round.
    znCParticleEmitter turned(sparksMake("emitSpeed = 10; emitterLifeMs = 1; angle = 90;"));
    turned.matrixApply(znAffineMtx2d(2, 0, 0, 2, 10, 20));
    turned.update(0);
    EXPECT_EQ(turned.liveCountGet(), 0);
    znCParticleEmitter quarter(sparksMake("emitSpeed = 10; emitterLifeMs = 200; angle = 90;"));
    quarter.matrixApply(znAffineMtx2d(2, 0, 0, 2, 10, 20));
    quarter.update(100);
    const std::vector<float> turnedCorners = drawn(quarter)[0].mPositions;
    const std::vector<float> expected = {8, 22, 12, 22, 12, 18, 8, 18};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_NEAR(turnedCorners[i], expected[i], 1e-4f) << i;
}

TEST_F(znCParticleEmitterTest, drawsByLotWithinTheRange)
{
    const znCParticleDataPtr data = sparksMake("scale = 1.0 rndRange = 0.5; emitPosXY = 10,0 rndRangeXY = 2,0;");
    float least = 9.0f;
    float most = -9.0f;
    for (s32 i = 0; i < 2000; ++i)
    {
        const float scale = data->mScale.drawGet();
        least = std::min(least, scale);
        most = std::max(most, scale);
        const znPointF place = data->mEmitPos.drawGet();
        EXPECT_GE(place.mX, 8.0f);
        EXPECT_LT(place.mX, 12.0f);
        EXPECT_EQ(place.mY, 0.0f);
    }
    EXPECT_GE(least, 0.5f);
    EXPECT_LT(least, 0.51f);
    EXPECT_LT(most, 1.5f);
    EXPECT_GT(most, 1.49f);
}

TEST_F(znCParticleEmitterTest, coloursItsParticlesByAge)
{
    znCParticleEmitter emitter(sparksMake("emitSpeed = 10; emitterLifeMs = 101; alphaMode = add; colour = ff0000ff;"
                                          "colourGraph = 000000ff, ffffffff, 100;"));
    emitter.update(100);
    EXPECT_EQ(drawn(emitter)[0].mColours[0], 0xFF000000u);
    EXPECT_EQ(drawn(emitter)[0].mBlend, 2u);
    emitter.update(100);
    EXPECT_EQ(drawn(emitter)[0].mColours[0], 0xFFFFFFFFu);
}

TEST_F(znCParticleEmitterTest, playsAnimationsAsParticles)
{
    imageSet("anim/sheet.png", 4, 2, "#");
    mCore.mPlatform.mFiles.fileSet(
        "anim/a.xml", "<sequence name=\"sheet\"><framelist><f w=\"2\" h=\"2\"/><f x=\"2\" w=\"2\" h=\"2\"/>"
                      "</framelist><timeline name=\"main\" frametime=\"100\"><key frame=\"1\"/>"
                      "<key frame=\"2\"/></timeline></sequence>");
    znCParticleEmitter emitter(dataMake("animFileName = anim/a.xml; maxParticles = 2; emitSpeed = 10;"
                                        "emitterLifeMs = 101; colourGraph = 000000ff;"));
    emitter.update(100);
    EXPECT_EQ(drawn(emitter)[0].mUvs[0], 0.0f);
    emitter.update(100);
    EXPECT_EQ(drawn(emitter)[0].mUvs[0], 0.5f);
    const std::string log = logTake();
    EXPECT_NE(log.find("particles/test.txt: Colours on animation particles are not supported currently."),
              std::string::npos);
    EXPECT_EQ(std::count(log.begin(), log.end(), '\r'), 2) << log; // no line a frame
}

TEST_F(znCParticleEmitterTest, saysThatItHasNoPicture)
{
    znCParticleEmitter emitter(dataMake("maxParticles = 5; emitSpeed = 100;"));
    EXPECT_NE(
        logTake().find("particles/test.txt: Expecting either an 'imageFileName' or 'animFileName' for a particle."),
        std::string::npos);
    emitter.update(1000);
    emitter.prerunDo();
    EXPECT_EQ(emitter.liveCountGet(), 0);
}

TEST_F(znCParticleEmitterTest, takesNothingFromTheHeapOnceItIsMade)
{
    mCore.mPlatform.mDraw.mRecording = false;
    znCParticleEmitter emitter(sparksMake("emitSpeed = 50; particleLifeMs = 150; colourGraph = ff0000ff, 00ff00ff, 100;"
                                          "angleDelta = 90; velocityXY = 10,10 rndRangeXY = 10,10;"));
    drawnCount(emitter);
    emitter.update(300);
    drawn(emitter);
    drawn(emitter);
    const std::size_t before = allocationCountGet();
    for (s32 i = 0; i < 50; ++i)
    {
        emitter.update(16);
        drawn(emitter);
    }
    EXPECT_EQ(allocationCountGet(), before);
}

TEST_F(znCParticleEmitterTest, standsAtItsEntity)
{
    for (const bool linked : {false, true})
    {
        sparksMake(std::string("emitSpeed = 10; emitterLifeMs = 150; prerun = 100; linkToEmitter = ") +
                   (linked ? "true;" : "false;"));
        znINode root("root");
        root.posSet(1000, 0);
        root.treeUpdate(0);
        auto* entity = new znCEntity("entity");
        auto* component = entity->componentAdd<znCParticleEmitterComponent>();
        entity->posSet(100, 50);
        root.childAdd(entity);
        znCVariableTable table;
        table.strSet("particleFile", "particles/test.txt");
        entity->initialiseFromVariableTable(table);
        znCParticleEmitter& emitter = *component->emitterGet();
        EXPECT_EQ(emitter.liveCountGet(), 1);
        EXPECT_EQ(placeGet(emitter).mX, 1100.0f);
        EXPECT_EQ(placeGet(emitter).mY, 50.0f);

        entity->posSet(200, 50);
        root.treeUpdate(1);
        EXPECT_EQ(placeGet(emitter).mX, linked ? 1200.0f : 1100.0f);
        root.posSet(0, 0); // the space itself moves
        root.treeUpdate(1);
        EXPECT_EQ(placeGet(emitter).mX, linked ? 200.0f : 100.0f);

        component->activeSet(false);
        root.treeUpdate(10000);
        EXPECT_TRUE(emitter.isEmitting());
        component->initialise(FILE_NAME);
        EXPECT_NE(logTake().find("Already initialised!"), std::string::npos);
    }
    znCEntity bare("bare");
    bare.componentAdd<znCParticleEmitterComponent>();
    bare.initialiseFromVariableTable(znCVariableTable());
    EXPECT_NE(logTake().find("Expected a 'particleFile' setting for a ParticleEmitterComponente."), std::string::npos);
    bare.treeUpdate(16);
}
