#include "loader/znCTextDialog.h"

#include "loader/znNUtf8.h"

#include <algorithm>
#include <ft2build.h>
#include <vector>
#include FT_FREETYPE_H

namespace
{
constexpr u32 GROUND = 0xff2a1a10; // packed alpha, blue, green, red
constexpr u32 PANEL = 0xffc1e7f6;
constexpr u32 INK = 0xff0a1a2b;
constexpr u32 FAINT_INK = 0xff557a8d;
constexpr u16 BACKSPACE = 8;
constexpr u16 ENTER = 13;
constexpr u16 FIRST_LETTER = 32;
constexpr s32 IDLE_MS = 15;
constexpr char ADVICE[] = "Enter when it is right, or press beside this sheet.";

// A line of text as alpha values.
struct Line
{
    s32 mWidth = 0;
    s32 mHeight = 0;
    std::vector<u8> mAlpha;
};

void glyphDraw(const FT_GlyphSlot pGlyph, s32 pPen, s32 pBase, Line& pLine)
{
    for (s32 y = 0; y < static_cast<s32>(pGlyph->bitmap.rows); ++y)
        for (s32 x = 0; x < static_cast<s32>(pGlyph->bitmap.width); ++x)
        {
            const s32 left = pPen + pGlyph->bitmap_left + x;
            const s32 top = pBase - pGlyph->bitmap_top + y;
            if (left >= 0 && left < pLine.mWidth && top >= 0 && top < pLine.mHeight)
                pLine.mAlpha[static_cast<size_t>(top * pLine.mWidth + left)] =
                    pGlyph->bitmap.buffer[y * pGlyph->bitmap.pitch + x];
        }
}

// As much of a text as fits, one letter behind the other; empty without the font.
Line lineMake(const std::filesystem::path& pFont, const std::string& pText, s32 pSize, s32 pWidth)
{
    Line line;
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    if (FT_Init_FreeType(&library) != 0)
        return line;
    if (FT_New_Face(library, pFont.c_str(), 0, &face) == 0)
    {
        FT_Set_Pixel_Sizes(face, 0, static_cast<FT_UInt>(pSize));
        line.mWidth = pWidth;
        line.mHeight = pSize * 3 / 2;
        line.mAlpha.assign(static_cast<size_t>(line.mWidth * line.mHeight), 0);
        s32 pen = 0;
        znNUtf8::unitsEach(pText,
                           [&](u16 pUnit)
                           {
                               if (FT_Load_Char(face, pUnit, FT_LOAD_RENDER) != 0)
                                   return;
                               glyphDraw(face->glyph, pen, pSize, line);
                               pen += static_cast<s32>(face->glyph->advance.x >> 6);
                           });
        FT_Done_Face(face);
    }
    FT_Done_FreeType(library);
    return line;
}

void letterAppend(std::string& pText, u16 pUnit)
{
    if (pUnit < 0x80)
        pText += static_cast<char>(pUnit);
    else if (pUnit < 0x800)
        pText += {static_cast<char>(0xc0 | (pUnit >> 6)), static_cast<char>(0x80 | (pUnit & 0x3f))};
    else
        pText += {static_cast<char>(0xe0 | (pUnit >> 12)), static_cast<char>(0x80 | ((pUnit >> 6) & 0x3f)),
                  static_cast<char>(0x80 | (pUnit & 0x3f))};
}

void letterRemove(std::string& pText)
{
    while (!pText.empty() && (static_cast<u8>(pText.back()) & 0xc0) == 0x80)
        pText.pop_back();
    if (!pText.empty())
        pText.pop_back();
}
} // namespace

znCTextDialog::znCTextDialog(znIWindow& pWindow, znCScreen& pScreen, znCInputQueue& pQueue,
                             const std::filesystem::path& pFont)
    : mWindow(pWindow), mScreen(pScreen), mQueue(pQueue), mFont(pFont)
{
}

// In the upper half, where no keys of the system's cover it.
s32 znCTextDialog::panelTopGet() const
{
    return mWindow.surfaceHeightGet() / 12;
}

s32 znCTextDialog::panelBottomGet() const
{
    return mWindow.surfaceHeightGet() / 2;
}

std::optional<std::string> znCTextDialog::ask(const std::string& pPrompt, const std::string& pDefault)
{
    mText = pDefault;
    std::vector<znCInputEvent> events;
    for (State state = State::OPEN; state == State::OPEN;)
    {
        show(pPrompt);
        mWindow.idle(IDLE_MS);
        mWindow.eventsPump(mQueue);
        mQueue.frameTake(events);
        for (size_t i = 0; i < events.size() && state == State::OPEN; ++i)
            state = eventTake(events[i]);
        if (state == State::CALLED_OFF)
            return std::nullopt;
    }
    return mText;
}

znCTextDialog::State znCTextDialog::eventTake(const znCInputEvent& pEvent)
{
    using Kind = znCInputEvent::Kind;
    releaseKeep(pEvent);
    if (pEvent.mKind == Kind::QUIT)
    {
        mQueue.eventAdd(pEvent);
        return State::CALLED_OFF;
    }
    if (pEvent.mKind == Kind::CHARACTER && pEvent.mId == ENTER)
        return State::DONE;
    if (pEvent.mKind == Kind::CHARACTER)
        characterTake(static_cast<u16>(pEvent.mId));
    const bool press = (pEvent.mKind == Kind::TOUCH || pEvent.mKind == Kind::BUTTON) && pEvent.mPressed;
    return press && (pEvent.mY < panelTopGet() || pEvent.mY >= panelBottomGet()) ? State::CALLED_OFF : State::OPEN;
}

void znCTextDialog::releaseKeep(const znCInputEvent& pEvent)
{
    using Kind = znCInputEvent::Kind;
    if (pEvent.mKind != Kind::KEY && pEvent.mKind != Kind::BUTTON && pEvent.mKind != Kind::TOUCH)
        return;
    const auto same = [&pEvent](const znCInputEvent& pPress)
    {
        return pPress.mKind == pEvent.mKind && pPress.mId == pEvent.mId;
    };
    if (pEvent.mPressed)
        mPresses.push_back(pEvent);
    else if (std::erase_if(mPresses, same) == 0)
        mLateReleases.push_back(pEvent);
}

void znCTextDialog::characterTake(u16 pUnit)
{
    const bool half = pUnit >= 0xd800 && pUnit < 0xe000;
    if (pUnit == BACKSPACE)
        letterRemove(mText);
    else if (pUnit >= FIRST_LETTER && !half)
        letterAppend(mText, pUnit);
}

void znCTextDialog::show(const std::string& pPrompt)
{
    const float width = static_cast<float>(mWindow.surfaceWidthGet());
    const float top = static_cast<float>(panelTopGet());
    const float bottom = static_cast<float>(panelBottomGet());
    const float left = width / 10.0f;
    const s32 size = std::max(12, (panelBottomGet() - panelTopGet()) / 7);
    const float step = static_cast<float>(size) * 1.7f;
    mScreen.clear(GROUND);
    rectangleAdd({left, top, left, bottom, width - left, bottom, width - left, top}, 0, PANEL);
    mScreen.flush();
    lineShow(pPrompt, left * 1.3f, top + step * 0.5f, size, INK);
    lineShow(mText + "_", left * 1.3f, top + step * 1.7f, size, INK);
    lineShow(ADVICE, left * 1.3f, top + step * 3.0f, size * 2 / 3, FAINT_INK);
    mScreen.present();
}

void znCTextDialog::rectangleAdd(const float (&pCorners)[8], u32 pTexture, u32 pColour)
{
    static constexpr float UVS[8] = {0, 0, 0, 1, 1, 1, 1, 0};
    mScreen.runAdd({.mTexture = pTexture,
                    .mBlend = S3E_DRAW_BLEND_ALPHA,
                    .mColour = pColour,
                    .mVertexCount = 4,
                    .mPositions = pCorners,
                    .mUvs = UVS,
                    .mColours = nullptr});
}

void znCTextDialog::lineShow(const std::string& pText, float pX, float pY, s32 pSize, u32 pColour)
{
    const s32 room = static_cast<s32>(static_cast<float>(mWindow.surfaceWidthGet()) * 0.9f - pX);
    const Line line = lineMake(mFont, pText, pSize, std::max(room, 1));
    const u32 texture = line.mAlpha.empty() ? 0
                                            : mScreen.texturesGet().create(S3E_DRAW_ALPHA_8, line.mWidth, line.mHeight,
                                                                           line.mAlpha.data(), line.mWidth);
    if (texture == 0)
        return;
    const float right = pX + static_cast<float>(line.mWidth);
    const float bottom = pY + static_cast<float>(line.mHeight);
    const float corners[8] = {pX, pY, pX, bottom, right, bottom, right, pY};
    rectangleAdd(corners, texture, pColour);
    mScreen.flush();
    mScreen.texturesGet().free(texture);
}
