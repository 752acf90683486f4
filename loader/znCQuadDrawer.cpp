#include "loader/znCQuadDrawer.h"

#include <algorithm>
#include <cstddef>

namespace
{
constexpr s32 QUADS_MAX = 65536 / 4; // as many as 16-bit indices reach
constexpr u32 NO_BLEND_YET = ~0u;
constexpr float NO_UV[2] = {0.0f, 0.0f};

template <class Type>
const Type* behind(const Type* pStream, size_t pBytes)
{
    return reinterpret_cast<const Type*>(reinterpret_cast<const u8*>(pStream) + pBytes);
}

size_t quadVerticesOf(const s3eDrawRun& pRun)
{
    return static_cast<size_t>(pRun.mVertexCount / 4) * 4;
}

enum Attribute : GLuint
{
    POSITION,
    UV,
    COLOUR
};

// Textures come premultiplied, vertex colours don't.
const char* const VERTEX_SHADER = R"(
uniform vec2 uScale;
attribute vec2 aPosition;
attribute vec2 aUv;
attribute vec4 aColour;
varying vec2 vUv;
varying lowp vec4 vColour;
void main()
{
    gl_Position = vec4(aPosition * uScale + vec2(-1.0, 1.0), 0.0, 1.0);
    vUv = aUv;
    vColour = vec4(aColour.rgb * aColour.a, aColour.a);
}
)";

const char* const FRAGMENT_SHADER = R"(
#ifdef GL_FRAGMENT_PRECISION_HIGH
precision highp float;
#else
precision mediump float;
#endif
uniform sampler2D uTexture;
varying vec2 vUv;
varying lowp vec4 vColour;
void main()
{
    gl_FragColor = texture2D(uTexture, vUv) * vColour;
}
)";

std::vector<GLushort> quadIndices()
{
    std::vector<GLushort> indices;
    indices.reserve(QUADS_MAX * 6);
    for (s32 quad = 0; quad < QUADS_MAX; ++quad)
        for (s32 corner : {0, 1, 2, 0, 2, 3})
            indices.push_back(static_cast<GLushort>(quad * 4 + corner));
    return indices;
}
} // namespace

znCQuadDrawer::znCQuadDrawer(const znCGl& pGl, const znCTextureStore& pTextures) : mGl(pGl), mTextures(pTextures)
{
    programBuild();
    buffersBuild();
}

znCQuadDrawer::~znCQuadDrawer()
{
    mGl.DeleteBuffers(1, &mVertexBuffer);
    mGl.DeleteBuffers(1, &mIndexBuffer);
    mGl.DeleteProgram(mProgram);
}

GLuint znCQuadDrawer::shaderCompile(GLenum pType, const char* pText)
{
    const GLuint shader = mGl.CreateShader(pType);
    mGl.ShaderSource(shader, 1, &pText, nullptr);
    mGl.CompileShader(shader);
    mGl.AttachShader(mProgram, shader);
    return shader;
}

void znCQuadDrawer::programBuild()
{
    mProgram = mGl.CreateProgram();
    const GLuint vertex = shaderCompile(GL_VERTEX_SHADER, VERTEX_SHADER);
    const GLuint fragment = shaderCompile(GL_FRAGMENT_SHADER, FRAGMENT_SHADER);
    mGl.BindAttribLocation(mProgram, POSITION, "aPosition");
    mGl.BindAttribLocation(mProgram, UV, "aUv");
    mGl.BindAttribLocation(mProgram, COLOUR, "aColour");
    mGl.LinkProgram(mProgram);
    mGl.DeleteShader(vertex);
    mGl.DeleteShader(fragment);
    GLint linked = GL_FALSE;
    mGl.GetProgramiv(mProgram, GL_LINK_STATUS, &linked);
    if (linked != GL_TRUE)
        mError = "the display's driver can't build the shader";
    mScale = mGl.GetUniformLocation(mProgram, "uScale");
    mGl.UseProgram(mProgram);
}

void znCQuadDrawer::buffersBuild()
{
    const std::vector<GLushort> indices = quadIndices();
    mGl.GenBuffers(1, &mVertexBuffer);
    mGl.GenBuffers(1, &mIndexBuffer);
    mGl.BindBuffer(GL_ARRAY_BUFFER, mVertexBuffer);
    mGl.BindBuffer(GL_ELEMENT_ARRAY_BUFFER, mIndexBuffer);
    mGl.BufferData(GL_ELEMENT_ARRAY_BUFFER, static_cast<GLsizeiptr>(indices.size() * sizeof(GLushort)), indices.data(),
                   GL_STATIC_DRAW);
    for (GLuint attribute : {POSITION, UV, COLOUR})
        mGl.EnableVertexAttribArray(attribute);
    mGl.ActiveTexture(GL_TEXTURE0);
    mBlend = NO_BLEND_YET;
    rebase(0);
}

void znCQuadDrawer::surfaceSizeSet(s32 pWidth, s32 pHeight)
{
    mWidth = pWidth;
    mHeight = pHeight;
    mGl.Uniform2f(mScale, 2.0f / static_cast<float>(pWidth), -2.0f / static_cast<float>(pHeight));
}

void znCQuadDrawer::runAdd(const s3eDrawRun& pRun)
{
    if (pRun.mPositions != nullptr && pRun.mVertexCount >= 4)
        mRuns.push_back(pRun);
}

// Whether the streams of all runs are already what is uploaded.
bool znCQuadDrawer::streamsInOneArray() const
{
    const float* next = mRuns.front().mPositions;
    for (const s3eDrawRun& run : mRuns)
    {
        if (run.mStride != sizeof(Vertex) || run.mPositions != next || run.mUvs != next + offsetof(Vertex, mU) / 4 ||
            reinterpret_cast<const float*>(run.mColours) != next + offsetof(Vertex, mColour) / 4)
            return false;
        next = behind(next, quadVerticesOf(run) * sizeof(Vertex));
    }
    return true;
}

void znCQuadDrawer::streamsUpload()
{
    size_t count = 0;
    bool unchanged = true;
    for (const s3eDrawRun& run : mRuns)
    {
        count += quadVerticesOf(run);
        unchanged = unchanged && run.mUnchanged != 0;
    }
    const float* source = mRuns.front().mPositions;
    if (unchanged && source == mUploadedFrom && count == mUploadedCount)
        return;
    if (streamsInOneArray())
        return verticesUpload(reinterpret_cast<const Vertex*>(source), count, source);
    mVertexCount = 0;
    for (const s3eDrawRun& run : mRuns)
        verticesAppend(run);
    verticesUpload(mVertices.data(), count, source);
}

void znCQuadDrawer::verticesAppend(const s3eDrawRun& pRun)
{
    const size_t count = quadVerticesOf(pRun);
    const size_t stride = static_cast<size_t>(pRun.mStride);
    const float* position = pRun.mPositions;
    const size_t positionStep = stride == 0 ? sizeof(float[2]) : stride;
    const float* uv = pRun.mUvs == nullptr ? NO_UV : pRun.mUvs;
    const size_t uvStep = pRun.mUvs == nullptr ? 0 : positionStep;
    const u32* colour = pRun.mColours == nullptr ? &pRun.mColour : pRun.mColours;
    const size_t colourStep = pRun.mColours == nullptr ? 0 : stride == 0 ? sizeof(u32) : stride;
    if (mVertices.size() < mVertexCount + count)
        mVertices.resize(mVertexCount + count);
    Vertex* vertex = mVertices.data() + mVertexCount;
    for (const Vertex* end = vertex + count; vertex != end; ++vertex)
    {
        *vertex = {position[0], position[1], uv[0], uv[1], *colour};
        position = behind(position, positionStep);
        uv = behind(uv, uvStep);
        colour = behind(colour, colourStep);
    }
    mVertexCount += count;
}

void znCQuadDrawer::verticesUpload(const Vertex* pVertices, size_t pCount, const void* pSource)
{
    mGl.BufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(pCount * sizeof(Vertex)), pVertices, GL_STREAM_DRAW);
    mUploadedFrom = pSource;
    mUploadedCount = pCount;
}

void znCQuadDrawer::rebase(s32 pQuad)
{
    const size_t begin = static_cast<size_t>(pQuad) * 4 * sizeof(Vertex);
    const auto place = [begin](size_t pOffset)
    {
        return reinterpret_cast<const void*>(begin + pOffset);
    };
    mGl.VertexAttribPointer(POSITION, 2, GL_FLOAT, GL_FALSE, sizeof(Vertex), place(offsetof(Vertex, mX)));
    mGl.VertexAttribPointer(UV, 2, GL_FLOAT, GL_FALSE, sizeof(Vertex), place(offsetof(Vertex, mU)));
    mGl.VertexAttribPointer(COLOUR, 4, GL_UNSIGNED_BYTE, GL_TRUE, sizeof(Vertex), place(offsetof(Vertex, mColour)));
    mBaseQuad = pQuad;
}

void znCQuadDrawer::blendSet(u32 pBlend)
{
    if (pBlend == mBlend)
        return;
    if (pBlend == S3E_DRAW_BLEND_NONE)
        mGl.Disable(GL_BLEND);
    else if (mBlend == S3E_DRAW_BLEND_NONE || mBlend == NO_BLEND_YET)
        mGl.Enable(GL_BLEND);
    mBlend = pBlend;
    if (pBlend == S3E_DRAW_BLEND_NONE)
        return;
    const bool subtracts = pBlend == S3E_DRAW_BLEND_SUBTRACT;
    const bool adds = pBlend == S3E_DRAW_BLEND_ADD;
    const GLenum beneath = adds || subtracts ? GL_ONE : GL_ONE_MINUS_SRC_ALPHA; // an unknown number blends by alpha
    mGl.BlendEquationSeparate(subtracts ? GL_FUNC_REVERSE_SUBTRACT : GL_FUNC_ADD, GL_FUNC_ADD);
    // Taking light away leaves what is covered covered.
    mGl.BlendFuncSeparate(GL_ONE, beneath, subtracts ? GL_ZERO : GL_ONE, beneath);
}

void znCQuadDrawer::textureSet(GLuint pTexture)
{
    if (pTexture != mTexture)
        mGl.BindTexture(GL_TEXTURE_2D, pTexture);
    mTexture = pTexture;
}

void znCQuadDrawer::quadsDraw(s32 pFirst, s32 pCount)
{
    while (pCount > 0)
    {
        if (pFirst - mBaseQuad == QUADS_MAX)
            rebase(pFirst);
        const s32 count = std::min(pCount, QUADS_MAX - (pFirst - mBaseQuad));
        const size_t begin = static_cast<size_t>(pFirst - mBaseQuad) * 6 * sizeof(GLushort);
        mGl.DrawElements(GL_TRIANGLES, count * 6, GL_UNSIGNED_SHORT, reinterpret_cast<const void*>(begin));
        pFirst += count;
        pCount -= count;
    }
}

void znCQuadDrawer::flush()
{
    if (mRuns.empty())
        return;
    streamsUpload();
    if (mBaseQuad != 0)
        rebase(0);
    mTexture = 0; // the texture store may have bound another since
    s32 quad = 0;
    for (const s3eDrawRun& run : mRuns)
    {
        blendSet(run.mBlend);
        textureSet(mTextures.nameGet(run.mTexture));
        quadsDraw(quad, run.mVertexCount / 4);
        quad += run.mVertexCount / 4;
    }
    mRuns.clear();
}

void znCQuadDrawer::pictureDraw(GLuint pTexture)
{
    const auto right = static_cast<float>(mWidth);
    const auto bottom = static_cast<float>(mHeight);
    const float corners[] = {0, 0, 0, bottom, right, bottom, right, 0};
    const float uvs[] = {0, 1, 0, 0, 1, 0, 1, 1};
    mVertexCount = 0;
    verticesAppend({0, S3E_DRAW_BLEND_NONE, 0xffffffff, 4, corners, uvs, nullptr});
    verticesUpload(mVertices.data(), mVertexCount, nullptr);
    if (mBaseQuad != 0)
        rebase(0);
    blendSet(S3E_DRAW_BLEND_NONE);
    mTexture = 0;
    textureSet(pTexture);
    quadsDraw(0, 1);
}
