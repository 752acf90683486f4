#include "zncore/znNCoreUtils.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "zncore/znNByteOrderMark.h"
#include <bit>
#include <cmath>

namespace
{
constexpr uint32 RANDOM_FACTOR = 0x343FD;
constexpr uint32 RANDOM_STEP = 0x269EC3;

uint32 sRandomState = 0;

bool existsCheck(const znCResourceName& pName)
{
    const bool exists = znIFile::existsGet(pName);
    ZN_ASSERT(exists, "File %s does not exist.\n", pName.nameGet().c_str());
    return exists;
}
} // namespace

znNCoreUtils::FileResult znNCoreUtils::fileRead(const znCResourceName& pName, s32 pSizeLimit, std::string& pOut)
{
    pOut.clear();
    const s32 size = znIFile::sizeGet(pName);
    const boost::shared_ptr<znIFile> file = znIFile::create();
    if (size <= 0 || !file->open(pName, znIFile::MODE_READ))
        return FileResult::missing;
    ZN_ASSERT(size <= pSizeLimit, "File %s is larger than %d bytes.\n", pName.nameGet().c_str(), pSizeLimit);
    if (size > pSizeLimit)
        return FileResult::failed;
    pOut.resize(static_cast<std::string::size_type>(size));
    const bool read = file->read(pOut.data(), static_cast<uint32>(size));
    ZN_ASSERT(read, "File %s could not be read.\n", pName.nameGet().c_str());
    if (!read)
        pOut.clear();
    return read ? FileResult::done : FileResult::failed;
}

s32 znNCoreUtils::unicodeExtraCharacterCountGet(u8 pLeadByte)
{
    const s32 count = leadingOnesBelowTop(pLeadByte);
    ZN_ASSERT(count <= 3, "Too many unicode extra characters reported!");
    return count;
}

s32 znNCoreUtils::leadingOnesBelowTop(u8 pLeadByte)
{
    return pLeadByte < 0x80 ? 0 : std::countl_one(pLeadByte) - 1;
}

znStr znNCoreUtils::strGetFromFile(const znCResourceName& pName)
{
    znStr text;
    if (existsCheck(pName))
        fileRead(pName, TEXT_FILE_SIZE_LIMIT, text);
    return text;
}

std::vector<std::string> znNCoreUtils::textFileReadToVector(const znCResourceName& pName)
{
    std::string text;
    if (existsCheck(pName))
        fileRead(pName, TEXT_FILE_SIZE_LIMIT, text);
    text.resize(std::min(text.find('\0'), text.size()));
    std::vector<std::string> lines;
    std::string line;
    for (std::string::size_type at = text.size() - znNByteOrderMark::cut(text).size(); at < text.size(); ++at)
    {
        if (text[at] == '\n')
        {
            lines.push_back(line);
            line.clear();
        }
        else if (text[at] != '\r')
            line += text[at];
    }
    if (!line.empty())
        lines.push_back(line);
    return lines;
}

void znNCoreUtils::randomSeedSet(uint32 pSeed)
{
    sRandomState = pSeed;
}

uint32 znNCoreUtils::randomGet()
{
    sRandomState = sRandomState * RANDOM_FACTOR + RANDOM_STEP;
    return (sRandomState >> 16) ^ sRandomState;
}

uint32 znNCoreUtils::randomGet(uint32 pLimit)
{
    const uint32 value = randomGet();
    return pLimit == 0 ? 0 : value % pLimit;
}

float znNCoreUtils::sqrt(float pValue)
{
    return std::sqrt(pValue);
}

float znNCoreUtils::sin(float pRadians)
{
    return std::sin(pRadians);
}

float znNCoreUtils::cos(float pRadians)
{
    return std::cos(pRadians);
}

float znNCoreUtils::atan2(float pY, float pX)
{
    return std::atan2(pY, pX);
}

float znNCoreUtils::fabs(float pValue)
{
    return std::fabs(pValue);
}

s32 znNCoreUtils::abs(s32 pValue)
{
    return pValue < 0 ? s32Saturate(-static_cast<s64>(pValue)) : pValue;
}
