#ifndef ZNCORE_IMPL_PLATFORM_S3EEXTENSIONS_H
#define ZNCORE_IMPL_PLATFORM_S3EEXTENSIONS_H

// Tables of functions that the loader may have beyond the plain operations, each asked for with s3eExtGetHash by its
// hash. All belong to the one thread of the game.

#include "zncore/impl/platform/s3e.h"

// --- s3eWindow: a desktop window; its presence makes a desktop
// --------------------------------------------------------
constexpr u32 S3E_WINDOW_HASH = 0xd31aa8a8;
constexpr s32 S3E_WINDOW_SYSTEM_CURSOR = 1; // intGet, intSet: 1 visible, 0 hidden

struct s3eWindowMode
{
    s32 mWidth;
    s32 mHeight;
    s32 mBpp;     // 0 where the platform doesn't tell
    s32 mRefresh; // Hz, 0 where unknown
    s32 mIndex;   // the loader's own number of the mode
};

struct s3eWindow
{
    s3eResult (*sizeSet)(s32 pWidth, s32 pHeight); // pixels of the drawn surface while not in full screen
    s3eResult (*sizeGet)(s32* pWidth, s32* pHeight);
    // Without pModes stores the number of full-screen modes in *pCount; with it fills at most *pCount of them and
    // stores how many.
    s3eResult (*displayModesGet)(s3eWindowMode* pModes, s32* pCount);
    s3eResult (*fullScreenSet)(const s3eWindowMode* pMode); // null leaves full screen
    s32 (*fullScreenGet)();
    s32 (*intGet)(s32 pProperty);
    s3eResult (*intSet)(s32 pProperty, s32 pValue);
    s3eFunction mReserved[7]; // the table has fourteen places; null
};

// --- windowsMouseExt: the mouse on a desktop
// --------------------------------------------------------------------------
constexpr u32 S3E_MOUSE_HASH = 0x2067e94a;

// The log callback gets the text as system data.
struct windowsMouseExt
{
    s32 (*cursorVisibleSet)(s32 pVisible); // 1 if the cursor now is as asked
    s32 (*inClientAreaGet)();
    void (*logCallbackRegister)(s3eCallback pCallback, void* pUserData);
    void (*logCallbackUnRegister)(s3eCallback pCallback);
    void (*logTextReturn)(const char* pText); // the callback hands its text back here
    s3eFunction mReserved[4];                 // the table has nine places; null
};

// --- petrelDraw: textured quads -------------------------------------------------------------------------------------
constexpr u32 S3E_DRAW_HASH = s3eHash("petrelDraw");

// Texel formats. Colours are premultiplied by alpha before they come here.
constexpr s32 S3E_DRAW_ABGR_8888 = 0; // bytes R, G, B, A
constexpr s32 S3E_DRAW_RGB_888 = 1;   // bytes R, G, B
constexpr s32 S3E_DRAW_ALPHA_8 = 2;   // one byte: white of that alpha

// How a run meets what lies beneath it. The numbers are those that materials and particle files use.
constexpr u32 S3E_DRAW_BLEND_NONE = 0;
constexpr u32 S3E_DRAW_BLEND_ADD = 2;
constexpr u32 S3E_DRAW_BLEND_SUBTRACT = 3;
constexpr u32 S3E_DRAW_BLEND_ALPHA = 4;

// The three streams of a run side by side.
struct s3eDrawVertex
{
    float mX, mY;
    float mU, mV;
    u32 mColour;
};

// One run of quads: four corners each in the order top left, bottom left, bottom right, top right. Runs whose streams
// are those of one array of s3eDrawVertex, each behind the one before, are uploaded from where they lie.
struct s3eDrawRun
{
    u32 mTexture;     // 0: plain colour
    u32 mBlend;       // one of the four above
    u32 mColour;      // of every vertex when mColours is null: (a << 24) | (b << 16) | (g << 8) | r, not premultiplied
    s32 mVertexCount; // a multiple of 4
    const float* mPositions; // x and y of each vertex in pixels of the surface, (0, 0) top left
    const float* mUvs;       // u and v of each vertex, 0 to 1; may be null with texture 0
    const u32* mColours;     // one a vertex, packed as mColour; null: mColour
    s32 mStride = 0;         // bytes from one vertex to the next in each stream; 0: each is packed
    s32 mUnchanged = 0;      // 1: the streams hold what they held at the flush before, for the same runs up to here
};

struct s3eDraw
{
    s32 (*textureSizeLimitGet)(); // longest side that textureCreate takes
    // A texture of that format with the pixels copied in, rows pPitch bytes apart; pixels null: transparent black.
    // Linear filtering, edges clamped. 0 on failure.
    u32 (*textureCreate)(s32 pFormat, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch);
    s3eResult (*textureUpdate)(u32 pTexture, s32 pX, s32 pY, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch);
    void (*textureFree)(u32 pTexture);
    // Device: the display as it was built, which may stand upright; display and surface: as it is used. Pixels.
    void (*deviceSizeGet)(s32* pWidth, s32* pHeight);
    void (*displaySizeGet)(s32* pWidth, s32* pHeight);
    void (*surfaceSizeGet)(s32* pWidth, s32* pHeight);
    void (*clear)(u32 pColour);             // packed as in a run; also ends nothing and flushes nothing
    void (*runAdd)(const s3eDrawRun* pRun); // queues; the streams must stay valid until flush
    void (*flush)();                        // uploads all queued vertices at once and draws each run with one call
    void (*present)();
    // Rows from the top, 4 bytes a pixel R, G, B, A, of what was drawn since the last clear.
    s3eResult (*pixelsRead)(s32 pX, s32 pY, s32 pWidth, s32 pHeight, void* pPixels);
};

// --- petrelSound: short sounds
// ----------------------------------------------------------------------------------------
constexpr u32 S3E_SOUND_HASH = s3eHash("petrelSound");
constexpr s32 S3E_SOUND_CHANNELS = 32; // how many samples sound at once
constexpr s32 S3E_SOUND_MAX_VOLUME = 4096;

// A play is known by a number that counts up and is never used again. Its end is reported once, inside update, unless
// it was stopped.
struct s3eSound
{
    // A sample from the bytes of a WAV file, which are copied. 0 if they are no sound.
    u32 (*sampleCreate)(const void* pBytes, u32 pSize);
    void (*sampleFree)(u32 pSample); // stops its plays
    u32 (*play)(u32 pSample);        // the play's number; 0 when no channel is free
    void (*stop)(u32 pPlay);         // a play that has ended is ignored here and below
    void (*pause)(u32 pPlay);
    void (*resume)(u32 pPlay);
    void (*volumeSet)(s32 pVolume); // of all samples, 0 to S3E_SOUND_MAX_VOLUME
    // pSystemData of the callback points to the u32 number of the play that ended; null: nobody is told
    void (*endCallbackSet)(s3eCallback pCallback, void* pUserData);
    // Reports the ends that came before this call; a play that begins within waits for the next. An end may be told
    // some milliseconds early: a play of the same sample from within then joins without a gap. Without a sound device
    // time passes here alone.
    void (*update)(s32 pDeltaMs);
};

// --- petrelAuthor: data that changes while the game runs; there only where the loader watches it --------------------
constexpr u32 S3E_AUTHOR_HASH = s3eHash("petrelAuthor");

struct s3eAuthor
{
    // Called between two frames, with null as system data, after files of the data folder have changed; null: nobody
    // is told.
    void (*changeCallbackSet)(s3eCallback pCallback, void* pUserData);
};

#endif
