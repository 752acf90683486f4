#include "zncore/xml/znCXmlFileReader.h"
#include "zncore/xml/znCXmlCommentCutter.h"
#include "zncore/znCResourceName.h"
#include "zncore/znNCoreUtils.h"
#include <algorithm>
#include <cstring>
#include <string_view>

namespace
{
bool spaceGet(char pLetter)
{
    return pLetter == ' ' || pLetter == '\t' || pLetter == '\n' || pLetter == '\r';
}
} // namespace

void znCXmlFileReader::close()
{
    mBuffer.clear();
    mBuffer.shrink_to_fit();
    bufferUse(nullptr, 0);
}

bool znCXmlFileReader::open(const znCResourceName& pName)
{
    close();
    const bool read =
        znNCoreUtils::fileRead(pName, znNCoreUtils::TEXT_FILE_SIZE_LIMIT, mBuffer) == znNCoreUtils::FileResult::done;
    bufferUse(mBuffer.data(), static_cast<s32>(mBuffer.size()));
    mOwned = true;
    return read;
}

bool znCXmlFileReader::commentsRemove()
{
    znCXmlCommentCutter cutter(mBuffer);
    if (!mOwned || !cutter.neededGet())
        return true;
    std::string clean;
    clean.reserve(mBuffer.size());
    for (std::string_view part; cutter.partRead(part);)
        clean += part;
    mBuffer = std::move(clean);
    bufferUse(mBuffer.data(), static_cast<s32>(mBuffer.size()));
    mOwned = true;
    if (cutter.commentOpenGet())
        mBrokenOffset = mSize;
    return !cutter.commentOpenGet();
}

bool znCXmlFileReader::tokenRead(znXmlTagMarker& pOut)
{
    for (;;)
    {
        while (mPosition < mSize && spaceGet(mBytes[mPosition]))
            ++mPosition;
        mEnd = mPosition >= mSize;
        if (mEnd)
            return false;
        const s32 begin = mPosition;
        const auto left = static_cast<std::size_t>(mSize - begin - 1);
        const void* nextTag = std::memchr(mBytes + begin + 1, '<', left);
        const s32 limit = nextTag != nullptr ? static_cast<s32>(static_cast<const char*>(nextTag) - mBytes) : mSize;
        mPosition = limit;
        if (mBytes[begin] == '<')
        {
            const void* close = std::memchr(mBytes + begin + 1, '>', static_cast<std::size_t>(limit - begin - 1));
            if (close == nullptr)
            {
                mBrokenOffset = mBrokenOffset < 0 ? begin : mBrokenOffset;
                continue;
            }
            mPosition = static_cast<s32>(static_cast<const char*>(close) - mBytes) + 1;
        }
        pOut = {begin, mPosition - begin};
        return true;
    }
}

void znCXmlFileReader::positionSet(s32 pOffset)
{
    mPosition = std::clamp(pOffset, 0, mSize);
    mEnd = mPosition == mSize;
    mBrokenOffset = -1;
}

std::string znCXmlFileReader::bufferRelease()
{
    mOwned = false;
    return std::move(mBuffer);
}

void znCXmlFileReader::bufferUse(const char* pBytes, s32 pSize)
{
    mBytes = pBytes;
    mSize = pSize;
    mOwned = false;
    positionSet(0);
}

s32 znCXmlFileReader::lineGet(const znCResourceName& pName, s32 pOffset)
{
    std::string text;
    znNCoreUtils::fileRead(pName, znNCoreUtils::TEXT_FILE_SIZE_LIMIT, text);
    znCXmlCommentCutter cutter(text);
    s32 left = pOffset;
    std::string_view part;
    while (left >= 0 && cutter.partRead(part))
        left -= static_cast<s32>(part.size());
    // The last part holds the byte, unless the text ended before it.
    const auto behind = static_cast<std::string_view::size_type>(std::max(-left, 0));
    const std::string_view::size_type at = cutter.positionGet() - std::min(behind, cutter.positionGet());
    return static_cast<s32>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n')) + 1;
}
