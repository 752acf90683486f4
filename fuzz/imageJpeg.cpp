// Any bytes behind a JPEG start marker: a picture or the default one, never a fault.

#include <vector>

#include "media/znCImage.h"

namespace
{
// True if a frame header anywhere announces more than a megapixel: legal, but here it would only be slow.
bool isLarge(const std::vector<u8>& pFile)
{
    for (std::size_t i = 0; i + 9 < pFile.size(); ++i)
        if (pFile[i] == 0xFF && pFile[i + 1] >= 0xC0 && pFile[i + 1] <= 0xCF && (pFile[i + 5] > 3 || pFile[i + 7] > 3))
            return true;
    return false;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    std::vector<u8> file(pData, pData + pSize);
    if (pSize < 4 || isLarge(file))
        return 0;
    file[0] = 0xFF;
    file[1] = 0xD8;
    file[2] = 0xFF;
    znCImage image;
    image.decode(file.data(), file.size(), "fuzz");
    image.alphaPremultiply();
    image.scaleDown(16);
    return 0;
}
