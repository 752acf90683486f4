#include "media/impl/znCFontFace.h"

#include <new>

#include FT_OUTLINE_H

#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"

namespace
{
constexpr s32 sFileBytesMax = 64 * 1024 * 1024;
constexpr FT_Pos sBitmapSideMax = 1024 * 64; // of a glyph, in 1/64 pixel; a faulty outline can span anything
} // namespace

znCFontFace::znCFontFace(FT_Library pLibrary, const znCResourceName& pName, s32 pId) : mName(pName.nameGet()), mId(pId)
{
    const char* reason = fileRead(pName) ? open(pLibrary) : "no such file, or it can't be read";
    if (reason != nullptr)
        ZN_LOG("Font %s could not be loaded (%s).\n", mName.c_str(), reason);
}

znCFontFace::~znCFontFace()
{
    hb_face_destroy(mShaperFace);
    if (mFace != nullptr)
        FT_Done_Face(mFace);
}

bool znCFontFace::fileRead(const znCResourceName& pName)
{
    mSize = znIFile::sizeGet(pName);
    if (mSize <= 0 || mSize > sFileBytesMax)
        return false;
    mBytes.reset(new (std::nothrow) u8[static_cast<std::size_t>(mSize)]);
    const boost::shared_ptr<znIFile> file = znIFile::create();
    return mBytes != nullptr && file->open(pName, znIFile::MODE_READ) &&
           file->read(mBytes.get(), static_cast<u32>(mSize));
}

// Null, or why the file is no use.
const char* znCFontFace::open(FT_Library pLibrary)
{
    if (FT_New_Memory_Face(pLibrary, mBytes.get(), mSize, 0, &mFace) != 0)
        return "not a font";
    if (!FT_IS_SCALABLE(mFace))
        return "not a font of outlines";
    hb_blob_t* blob = hb_blob_create(reinterpret_cast<const char*>(mBytes.get()), static_cast<unsigned>(mSize),
                                     HB_MEMORY_MODE_READONLY, new std::shared_ptr<u8[]>(mBytes),
                                     [](void* pHolder) { delete static_cast<std::shared_ptr<u8[]>*>(pHolder); });
    mShaperFace = hb_face_create(blob, 0);
    hb_blob_destroy(blob);
    return nullptr;
}

znCFontFace::Bitmap znCFontFace::glyphRasterise(u32 pGlyph, u32 pSize)
{
    if (mRasterSize != pSize)
    {
        if (FT_Set_Char_Size(mFace, 0, static_cast<FT_F26Dot6>(pSize), 0, 0) != 0)
            return Bitmap();
        mRasterSize = pSize;
    }
    // Light hinting moves outlines up and down only: crisp horizontals, and the widths that the layout counts on.
    if (FT_Load_Glyph(mFace, pGlyph, FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_LIGHT) != 0)
        return Bitmap();
    FT_GlyphSlot slot = mFace->glyph;
    if (slot->format != FT_GLYPH_FORMAT_OUTLINE)
        return Bitmap();
    FT_BBox box;
    FT_Outline_Get_CBox(&slot->outline, &box);
    if (box.xMax - box.xMin > sBitmapSideMax || box.yMax - box.yMin > sBitmapSideMax)
        return Bitmap();
    if (FT_Render_Glyph(slot, FT_RENDER_MODE_NORMAL) != 0 || slot->bitmap.width == 0 || slot->bitmap.rows == 0)
        return Bitmap();
    return {slot->bitmap.buffer,
            static_cast<s32>(slot->bitmap.width),
            static_cast<s32>(slot->bitmap.rows),
            slot->bitmap.pitch,
            slot->bitmap_left,
            slot->bitmap_top};
}

void znCFontFace::missingReport(u32 pCodePoint)
{
    if (mMissing.size() < sMissingMax && mMissing.insert(pCodePoint).second)
        ZN_LOG("Font %s has no glyph for U+%04X, nor has any fallback font.\n", mName.c_str(), pCodePoint);
}
