// Any bytes behind a PNG signature: a picture or the default one, never a fault.

#include <cstring>
#include <vector>

#include "media/znCImage.h"

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    static constexpr u8 sSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    // A picture of many megapixels is legal; here it would only be slow.
    static constexpr std::size_t sHeaderBytes = 24;
    if (pSize < sHeaderBytes || pData[16] != 0 || pData[17] != 0 || pData[18] > 4 || pData[20] != 0 || pData[21] != 0 ||
        pData[22] > 4)
        return 0;
    std::vector<u8> file(pData, pData + pSize);
    std::memcpy(file.data(), sSignature, sizeof sSignature);
    znCImage image;
    image.decode(file.data(), file.size(), "fuzz");
    image.alphaPremultiply();
    image.scaleDown(16);
    return 0;
}
