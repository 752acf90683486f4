#ifndef LOADER_ZNCQUADDRAWER_H
#define LOADER_ZNCQUADDRAWER_H

#include "loader/znCTextureStore.h"

#include <vector>

// Draws runs of quads into the framebuffer that is bound: one upload of all vertices at each flush, none if they are
// those of the flush before; one draw call a run (a run of more quads than 16-bit indices reach takes several), and no
// change of state that isn't needed.
class znCQuadDrawer
{
public:
    // Both must outlive the drawer, the context be current.
    znCQuadDrawer(const znCGl& pGl, const znCTextureStore& pTextures);
    ~znCQuadDrawer();
    znCQuadDrawer(const znCQuadDrawer&) = delete;
    znCQuadDrawer& operator=(const znCQuadDrawer&) = delete;

    // A sentence about the shader if it couldn't be built; else empty.
    const std::string& errorGet() const { return mError; }
    // The size that positions refer to.
    void surfaceSizeSet(s32 pWidth, s32 pHeight);
    // Queues a run; one without positions or whole quads is passed over. Its streams must stay valid until flush.
    void runAdd(const s3eDrawRun& pRun);
    void flush();
    // Covers the framebuffer's viewport with a texture of OpenGL, its first row at the bottom, without blending.
    void pictureDraw(GLuint pTexture);

private:
    using Vertex = s3eDrawVertex;

    void programBuild();
    GLuint shaderCompile(GLenum pType, const char* pText);
    void buffersBuild();
    void streamsUpload();
    bool streamsInOneArray() const;
    void verticesAppend(const s3eDrawRun& pRun);
    void verticesUpload(const Vertex* pVertices, size_t pCount, const void* pSource);
    void rebase(s32 pQuad);
    void blendSet(u32 pBlend);
    void textureSet(GLuint pTexture);
    void quadsDraw(s32 pFirst, s32 pCount);

    const znCGl& mGl;
    const znCTextureStore& mTextures;
    std::string mError;
    std::vector<s3eDrawRun> mRuns;
    std::vector<Vertex> mVertices;       // of runs that don't lie in one array; only grows, so that no frame clears it
    size_t mVertexCount = 0;             // of those the ones to upload
    const void* mUploadedFrom = nullptr; // the first stream of what the vertex buffer holds; null: of none to come
    size_t mUploadedCount = 0;
    GLuint mProgram = 0;
    GLint mScale = 0; // the uniform's place
    GLuint mVertexBuffer = 0;
    GLuint mIndexBuffer = 0;
    s32 mBaseQuad = 0; // the quad that the indices count from
    u32 mBlend = 0;
    GLuint mTexture = 0;
    s32 mWidth = 1;
    s32 mHeight = 1;
};

#endif
