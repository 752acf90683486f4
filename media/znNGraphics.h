#ifndef MEDIA_ZNNGRAPHICS_H
#define MEDIA_ZNNGRAPHICS_H

// Drawing of textured quads through the loader's drawing table.
//
// initialise() comes first and terminate() last; both may be called again. Without a drawing table, or outside the two,
// every operation is harmless: nothing is drawn, sizes are 0, frame memory still works.
//
// A frame: clear(), then for each run of quads: materialSet(), the streams, quadsDraw(); then flush() and present().
// Paint order is call order. Streams are read at flush(), so they lie in frame memory, or somewhere else that stays as
// it is until then.

#include <cstddef>

#include "media/znCGraphicsMaterial.h"
#include "zncore/znPointF.h"
#include "zncore/znTypes.h"

// A corner with all that streams say about it.
struct znCGraphicsVertex
{
    znPointF mPosition;
    znPointF mUv;
    u32 mColour;
};

namespace znNGraphics
{
void initialise();
void terminate();
// True between the two if the loader has a drawing table.
bool isAvailable();

// Pixels. Device: the display as it was built, which may stand upright; display and surface: as it is used.
void deviceSizeGet(s32* pWidth, s32* pHeight);
void displaySizeGet(s32* pWidth, s32* pHeight);
void surfaceSizeGet(s32* pWidth, s32* pHeight);
// The longest side of a texture, in texels; znCImage::sSideMax without a drawing table.
s32 textureSizeLimitGet();

// Scratch memory for the streams of a frame, aligned for any scalar, not cleared, never null. It is valid until
// frameMemoryReset(), which comes before the first piece of a frame: one like the frame before can draw that one's
// streams again instead. Pieces of a multiple of 16 bytes mostly lie one behind the other.
void frameMemoryReset();
void* frameMemoryTake(std::size_t pBytes);
template <class Type>
Type* frameArrayTake(s32 pCount)
{
    return static_cast<Type*>(frameMemoryTake(sizeof(Type) * static_cast<std::size_t>(pCount)));
}
// Bytes that frame memory holds, used or not; the same from frame to frame once the fullest frame has been.
std::size_t frameMemoryCapacityGet();
// Counts the resets: what was taken under an earlier number is no longer valid.
u32 frameMemoryNumberGet();

// Packed as (alpha << 24) | (blue << 16) | (green << 8) | red, like every colour below.
void clear(u32 pColour);

// What the following quadsDraw calls use. The material is copied, its texture must live until flush().
void materialSet(const znCGraphicsMaterial& pMaterial);
// Corners in pixels of the surface, (0, 0) top left; four to a quad: top left, bottom left, bottom right, top right.
void positionsSet(const znPointF* pPositions);
// 0 to 1 over the texture, in the order of the corners.
void uvsSet(const znPointF* pUvs);
// One packed colour a vertex; null: the material's colour for all of them.
void coloursSet(const u32* pColours);
// All three streams side by side; runs that lie one behind the other in memory are drawn without being copied.
void verticesSet(const znCGraphicsVertex* pVertices);
// Whether the following runs are, from the frame's first on, those of the frame before with the same in their streams.
// Ends with flush().
void unchangedSet(bool pUnchanged);
// Queues pVertexCount / 4 quads from the start of the streams: one draw call.
void quadsDraw(s32 pVertexCount);

// Draws what is queued.
void flush();
// Counts the flushes: what was queued under an earlier number has been drawn.
u32 frameNumberGet();
void present();

// Rows from the top, bytes R, G, B, A, of what was flushed since the last clear. False, and pPixels as it was, on
// failure.
bool pixelsRead(s32 pX, s32 pY, s32 pWidth, s32 pHeight, u8* pPixels);
} // namespace znNGraphics

#endif
