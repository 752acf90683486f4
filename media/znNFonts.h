#ifndef MEDIA_ZNNFONTS_H
#define MEDIA_ZNNFONTS_H

// The font layer: what all fonts (znCGraphicsFont) and laid-out texts (znCGraphicsText) share, above all the one
// texture that holds every glyph.
//
// initialise() comes after znNGraphics::initialise() and before the first font is loaded, terminate() before
// znNGraphics::terminate(). Outside the two, fonts are empty and texts have no glyphs; fonts that outlive terminate()
// can only be loaded anew or deleted.

#include "zncore/znTypes.h"

class znCGraphicsTexture;
class znCResourceName;

namespace znNFonts
{
void initialise();
void terminate();

// A font to look in for what another font lacks, after those that were added before it. It is read when first needed.
void fallbackAdd(const znCResourceName& pName);

// Once a frame, before texts are refreshed and drawn. The scale is device pixels to a canvas unit, 1 at first: glyphs
// are drawn for it, texts are laid out without regard to it. When it changes, or when the glyph texture was full, every
// text places its glyphs anew in its refresh(); otherwise this costs nothing. A scale that is none leaves the last one.
void frameBegin(float pDisplayScale);
float displayScaleGet();

// How much larger than their fonts' sizes letters are laid out where there is room for that, 1 (at first) to
// TEXT_SCALE_MAX; a number outside is limited. A text shows it at its next layout.
// May be set before initialise, as a player's settings are; terminate forgets it.
constexpr float TEXT_SCALE_MAX = 2.0f;
void textScaleSet(float pScale);
float textScaleGet();

// White glyphs with their coverage as alpha, in a texture that grows: ask for it at each draw. Null before the first
// glyph.
const znCGraphicsTexture* glyphTextureGet();

// Changes whenever texture coordinates of glyphs do.
u32 glyphUvGenerationGet();

// How many glyphs have been drawn from their outlines since initialise(): each once a size and scale.
s32 glyphsRasterisedGet();
} // namespace znNFonts

#endif
