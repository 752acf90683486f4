#ifndef BENCH_ZNNFRAMEBENCH_H
#define BENCH_ZNNFRAMEBENCH_H

// A frame of 1,023 turned sprites in 20 runs on the whole path: tree, batch, streams, and the loader's drawing down to
// the driver. The reference is a bare OpenGL ES 2 loop that streams the same vertices and does nothing else: one vertex
// buffer a frame, one shader, one draw call a run. Filling pixels, which a graphics processor does, is kept out on both
// sides; processor time of the whole process counts, that of the driver's threads included.
//
// The argument: 0, nothing moves, and the bare loop has its vertices ready and does no more than upload and draw them;
// 1, every sprite turns, and the bare loop writes each vertex straight to its place.

#include "bench/znCBenchScene.h"
#include "bench/znNBenchMain.h"
#include "loader/znCGlContext.h"
#include "loader/znCScreen.h"
#include "loader/znCVirtualWindow.h"
#include "media/znNGraphics.h"
#include "tests/support/znCTestCore.h"
#include "tests/support/znNTestImages.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCComponentFactory.h"
#include "zncore/znCResourceName.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

namespace znNFrameBench
{
enum class Driver
{
    SOFTWARE, // Mesa's software driver on a surface of one pixel: it places every corner and fills nothing
    NONE      // Mesa's driver that takes everything and does nothing
};

constexpr s32 SIDE = 64; // of a sprite and its texture
constexpr s32 CORNERS = 4;

constexpr s32 surfaceSideGet(Driver pDriver)
{
    return pDriver == Driver::NONE ? 1024 : 1;
}

// A context on SDL's offscreen driver.
class Context
{
public:
    explicit Context(Driver pDriver)
    {
        std::string error;
        if (!mContext.create(znCGlContext::Kind::OFFSCREEN, "bench", surfaceSideGet(pDriver), surfaceSideGet(pDriver),
                             error))
            throw std::runtime_error(error);
        const bool none = std::strcmp(reinterpret_cast<const char*>(glGet().GetString(GL_RENDERER)), "NOOP") == 0;
        if (none != (pDriver == Driver::NONE))
            throw std::runtime_error("another driver than the one asked for is in use");
    }

    const znCGl& glGet() const { return mContext.glGet(); }

private:
    znCGlContext mContext;
};

// The loader's screen without a window, and its drawing table.
class Screen
{
public:
    explicit Screen(Driver pDriver)
        : mContext(pDriver), mWindow(surfaceSideGet(pDriver), surfaceSideGet(pDriver), false, {}),
          mScreen(mContext.glGet(), mWindow, true)
    {
        sScreen = &mScreen;
    }

    static s3eDraw tableGet()
    {
        s3eDraw table = {};
        table.textureSizeLimitGet = []
        {
            return sScreen->texturesGet().sizeLimitGet();
        };
        table.textureCreate = [](s32 pFormat, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch)
        {
            return sScreen->texturesGet().create(pFormat, pWidth, pHeight, pPixels, pPitch);
        };
        table.textureFree = [](u32 pTexture)
        {
            sScreen->texturesGet().free(pTexture);
        };
        table.clear = [](u32 pColour)
        {
            sScreen->clear(pColour);
        };
        table.runAdd = [](const s3eDrawRun* pRun)
        {
            sScreen->runAdd(*pRun);
        };
        table.flush = []
        {
            sScreen->flush();
        };
        table.present = []
        {
            sScreen->present();
        };
        return table;
    }

private:
    static inline znCScreen* sScreen = nullptr;

    Context mContext;
    znCVirtualWindow mWindow;
    znCScreen mScreen;
};

// What a scene stands on.
class Stage
{
public:
    explicit Stage(Driver pDriver) : mScreen(pDriver)
    {
        const s3eDraw table = Screen::tableGet();
        mCore.mPlatform.extensionSet(S3E_DRAW_HASH, &table, sizeof table);
        znNGraphics::initialise();
        znINode::staticVectorsCreate();
        znIRenderer::create(1024, 1024);
        znCBrushManager::create();
        znCComponentFactory::create();
        const znNTestImages::Bytes png = znNTestImages::pngMake(SIDE, SIDE, znNTestImages::Bytes(SIDE * SIDE * 4, 128));
        for (s32 i = 0; i < znCBenchScene::RUNS; ++i)
        {
            const std::string name = "picture" + std::to_string(i) + ".png";
            mCore.mPlatform.mFiles.fileSet(name, std::string(png.begin(), png.end()));
            mBrushes.push_back(znCBrushManager::instanceGet()->brushGet(znCResourceName(name, 0), false));
        }
    }

    ~Stage()
    {
        mBrushes.clear();
        znCBrushManager::destroy();
        znIRenderer::destroy();
        znCComponentFactory::destroy();
        znINode::staticVectorsDestroy();
        znNGraphics::terminate();
    }

    const std::vector<znCBrushPtr>& brushesGet() const { return mBrushes; }

private:
    Screen mScreen;
    znCTestCore mCore;
    std::vector<znCBrushPtr> mBrushes;
};

inline void oursMeasure(benchmark::State& pState, Driver pDriver)
{
    Stage stage(pDriver);
    znCBenchScene scene(stage.brushesGet());
    for (auto _ : pState)
        scene.frame(pState.range(0) != 0);
}

// The bare loop.
class Bare
{
public:
    explicit Bare(Driver pDriver)
        : mContext(pDriver), mGl(mContext.glGet()), mVertices(znCBenchScene::SPRITES * CORNERS)
    {
        frameBufferMake(surfaceSideGet(pDriver));
        programUse(surfaceSideGet(pDriver));
        buffersMake();
        texturesMake();
        mGl.Enable(GL_BLEND);
        mGl.BlendFuncSeparate(GL_ONE, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
        quadsTurn(0.0f);
    }

    void quadsTurn(float pTurn)
    {
        for (s32 i = 0; i < znCBenchScene::SPRITES; ++i)
            quadTurn(i, pTurn);
    }

    void frame()
    {
        mGl.ClearColor(0.0f, 0.0f, 0.0f, 1.0f);
        mGl.Clear(GL_COLOR_BUFFER_BIT);
        mGl.BufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(mVertices.size() * sizeof(Vertex)), mVertices.data(),
                       GL_STREAM_DRAW);
        s32 first = 0;
        for (s32 run = 0; run < znCBenchScene::RUNS; ++run)
        {
            const s32 end = runEndGet(run);
            mGl.BindTexture(GL_TEXTURE_2D, mTextures[run]);
            mGl.DrawElements(GL_TRIANGLES, (end - first) * 6, GL_UNSIGNED_SHORT,
                             reinterpret_cast<const void*>(static_cast<size_t>(first) * 6 * sizeof(GLushort)));
            first = end;
        }
        mGl.Flush();
    }

private:
    struct Vertex
    {
        float mX, mY, mU, mV;
        u32 mColour;
    };

    // The number of the first sprite of the run behind.
    static s32 runEndGet(s32 pRun)
    {
        return ((pRun + 1) * znCBenchScene::SPRITES + znCBenchScene::RUNS - 1) / znCBenchScene::RUNS;
    }

    void quadTurn(s32 pSprite, float pTurn)
    {
        constexpr float HALF = SIDE / 2;
        const float x = static_cast<float>(pSprite % znCBenchScene::COLUMNS * znCBenchScene::SPACING);
        const float y = static_cast<float>(pSprite / znCBenchScene::COLUMNS * znCBenchScene::SPACING);
        const float angle = znCBenchScene::angleGet(pSprite) + pTurn;
        const float c = std::cos(angle) * HALF;
        const float s = std::sin(angle) * HALF;
        constexpr u32 WHITE = 0xFFFFFFFFu;
        Vertex* vertex = &mVertices[static_cast<size_t>(pSprite) * CORNERS];
        vertex[0] = {x - c - s, y + s - c, 0.0f, 0.0f, WHITE};
        vertex[1] = {x - c + s, y + s + c, 0.0f, 1.0f, WHITE};
        vertex[2] = {x + c + s, y - s + c, 1.0f, 1.0f, WHITE};
        vertex[3] = {x + c - s, y - s - c, 1.0f, 0.0f, WHITE};
    }

    GLuint textureMake(s32 pWidth, s32 pHeight)
    {
        GLuint name = 0;
        mGl.GenTextures(1, &name);
        mGl.BindTexture(GL_TEXTURE_2D, name);
        mGl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        mGl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
        mGl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
        mGl.TexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, pWidth, pHeight, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
        return name;
    }

    void frameBufferMake(s32 pSide)
    {
        GLuint name = 0;
        mGl.GenFramebuffers(1, &name);
        mGl.BindFramebuffer(GL_FRAMEBUFFER, name);
        mGl.FramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, textureMake(pSide, pSide), 0);
        mGl.Viewport(0, 0, pSide, pSide);
    }

    void shaderAttach(GLuint pProgram, GLenum pKind, const char* pText)
    {
        const GLuint shader = mGl.CreateShader(pKind);
        mGl.ShaderSource(shader, 1, &pText, nullptr);
        mGl.CompileShader(shader);
        mGl.AttachShader(pProgram, shader);
    }

    void programUse(s32 pSide)
    {
        const GLuint program = mGl.CreateProgram();
        shaderAttach(
            program, GL_VERTEX_SHADER,
            "attribute vec2 p; attribute vec2 u; attribute vec4 c; varying vec2 t; varying lowp vec4 d; "
            "uniform vec2 k; void main() { gl_Position = vec4(p * k + vec2(-1.0, 1.0), 0.0, 1.0); t = u; d = c; }");
        shaderAttach(program, GL_FRAGMENT_SHADER,
                     "precision mediump float; varying vec2 t; varying lowp vec4 d; uniform sampler2D s; "
                     "void main() { gl_FragColor = texture2D(s, t) * d; }");
        mGl.BindAttribLocation(program, 0, "p");
        mGl.BindAttribLocation(program, 1, "u");
        mGl.BindAttribLocation(program, 2, "c");
        mGl.LinkProgram(program);
        mGl.UseProgram(program);
        const float scale = 2.0f / static_cast<float>(pSide);
        mGl.Uniform2f(mGl.GetUniformLocation(program, "k"), scale, -scale);
    }

    void buffersMake()
    {
        GLuint names[2];
        mGl.GenBuffers(2, names);
        std::vector<GLushort> indices;
        for (s32 quad = 0; quad < znCBenchScene::SPRITES; ++quad)
            for (s32 corner : {0, 1, 2, 0, 2, 3})
                indices.push_back(static_cast<GLushort>(quad * CORNERS + corner));
        mGl.BindBuffer(GL_ELEMENT_ARRAY_BUFFER, names[0]);
        mGl.BufferData(GL_ELEMENT_ARRAY_BUFFER, static_cast<GLsizeiptr>(indices.size() * sizeof(GLushort)),
                       indices.data(), GL_STATIC_DRAW);
        mGl.BindBuffer(GL_ARRAY_BUFFER, names[1]);
        const auto place = [](size_t pOffset)
        {
            return reinterpret_cast<const void*>(pOffset);
        };
        mGl.VertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, sizeof(Vertex), place(offsetof(Vertex, mX)));
        mGl.VertexAttribPointer(1, 2, GL_FLOAT, GL_FALSE, sizeof(Vertex), place(offsetof(Vertex, mU)));
        mGl.VertexAttribPointer(2, 4, GL_UNSIGNED_BYTE, GL_TRUE, sizeof(Vertex), place(offsetof(Vertex, mColour)));
        for (GLuint attribute : {0, 1, 2})
            mGl.EnableVertexAttribArray(attribute);
    }

    void texturesMake()
    {
        for (GLuint& texture : mTextures)
            texture = textureMake(SIDE, SIDE);
    }

    Context mContext;
    const znCGl& mGl;
    std::vector<Vertex> mVertices;
    GLuint mTextures[znCBenchScene::RUNS] = {};
};

inline void referenceMeasure(benchmark::State& pState, Driver pDriver)
{
    Bare bare(pDriver);
    float turn = 0.0f;
    for (auto _ : pState)
    {
        if (pState.range(0) != 0)
            bare.quadsTurn(turn += znCBenchScene::TURN_STEP);
        bare.frame();
    }
}

// Adds pThing_ours and pThing_reference.
inline void add(const std::string& pThing, Driver pDriver)
{
    if (pDriver == Driver::NONE)
        setenv("GALLIUM_NOOP", "true", 1); // before the first context
    const auto measureAdd = [&](const char* pSide, void (*pMeasure)(benchmark::State&, Driver))
    {
        auto* added = benchmark::RegisterBenchmark((pThing + pSide).c_str(), pMeasure, pDriver);
        added->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();
        znNBenchMain::bestTake(added, 25);
    };
    measureAdd("_ours", oursMeasure);
    measureAdd("_reference", referenceMeasure);
}
} // namespace znNFrameBench

#endif
