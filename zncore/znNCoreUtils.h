#ifndef ZNCORE_ZNNCOREUTILS_H
#define ZNCORE_ZNNCOREUTILS_H

// Free helpers: bytes of UTF-8, whole text files, the one random generator, float arithmetic.

#include "zncore/znStr.h"
#include "zncore/znTypes.h"
#include <algorithm>
#include <limits>
#include <string>
#include <vector>

class znCResourceName;

namespace znNCoreUtils
{
// A text file larger than this is no text file of the game: it is refused, so that rubbish can't fill the memory.
constexpr s32 TEXT_FILE_SIZE_LIMIT = 16 << 20;

enum class FileResult
{
    done,
    missing, // not there, empty, or not to be opened
    failed   // larger than the limit, or the reading failed; logged
};

// The bytes of a whole file. A file that fails logs "File %s is larger than %d bytes.\n" or
// "File %s could not be read.\n" and gives no bytes.
FileResult fileRead(const znCResourceName& pName, s32 pSizeLimit, std::string& pOut);

// The number of continuation bytes behind a lead byte: the row of set bits that starts at bit 6, 0 for a byte below
// 0x80. More than 3, which UTF-8 doesn't have, logs "Too many unicode extra characters reported!"; who reads on must
// mind the end of the text.
s32 unicodeExtraCharacterCountGet(u8 pLeadByte);
// The same without the log.
s32 leadingOnesBelowTop(u8 pLeadByte);

// A missing file logs "File %s does not exist.\n" and gives an empty text or no lines.
znStr strGetFromFile(const znCResourceName& pName);
// Lines without their ends, up to the first byte 0. A leading byte-order mark and all carriage returns are dropped; a
// last line without a line feed counts if it isn't empty.
std::vector<std::string> textFileReadToVector(const znCResourceName& pName);

// The random generator of the whole program, so that a seed and the same order of calls repeat a run.
void randomSeedSet(uint32 pSeed);
uint32 randomGet();              // all 32 bits
uint32 randomGet(uint32 pLimit); // 0 to pLimit - 1; 0 for a limit of 0

float sqrt(float pValue);
float sin(float pRadians);
float cos(float pRadians);
float atan2(float pY, float pX);
float fabs(float pValue);
s32 abs(s32 pValue); // the largest s32 for the smallest one

// The nearest s32. Numbers from data are added and multiplied as s64 and come back through this.
constexpr s32 s32Saturate(s64 pValue)
{
    return static_cast<s32>(std::clamp<s64>(pValue, std::numeric_limits<s32>::min(), std::numeric_limits<s32>::max()));
}
} // namespace znNCoreUtils

#endif
