#include "tests/play/picture.h"

#include "media/znCImage.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <spng.h>

namespace fs = std::filesystem;

namespace
{
constexpr s32 CHANNELS = 3;
constexpr double DIFFERENT = 255.0;

const fs::path GOLDEN_FOLDER = PETREL_ROOT "/tests/play/golden";
const fs::path DIFFERENCES_FOLDER = PETREL_ROOT "/build/differences";

void pictureWrite(const fs::path& pPath, const Picture& pPicture)
{
    fs::create_directories(pPath.parent_path());
    spng_ctx* context = spng_ctx_new(SPNG_CTX_ENCODER);
    spng_set_option(context, SPNG_ENCODE_TO_BUFFER, 1);
    spng_ihdr header{};
    header.width = static_cast<u32>(pPicture.mWidth);
    header.height = static_cast<u32>(pPicture.mHeight);
    header.bit_depth = 8;
    header.color_type = SPNG_COLOR_TYPE_TRUECOLOR;
    spng_set_ihdr(context, &header);
    spng_encode_image(context, pPicture.mPixels.data(), pPicture.mPixels.size(), SPNG_FMT_PNG, SPNG_ENCODE_FINALIZE);
    size_t size = 0;
    int error = 0;
    void* bytes = spng_get_png_buffer(context, &size, &error);
    if (bytes != nullptr)
        std::ofstream(pPath, std::ios::binary).write(static_cast<char*>(bytes), static_cast<std::streamsize>(size));
    std::free(bytes);
    spng_ctx_free(context);
}

Picture fileDecode(const fs::path& pPath)
{
    std::ifstream file(pPath, std::ios::binary);
    return pictureDecode(std::string(std::istreambuf_iterator<char>(file), {}));
}

Picture differenceMake(const Picture& pFirst, const Picture& pSecond)
{
    Picture difference = pFirst;
    for (size_t i = 0; i < difference.mPixels.size(); ++i)
        difference.mPixels[i] = static_cast<u8>(std::abs(pFirst.mPixels[i] - pSecond.mPixels[i]));
    return difference;
}
} // namespace

Picture pictureDecode(const std::string& pPng)
{
    znCImage image;
    Picture picture;
    if (!image.decode(reinterpret_cast<const u8*>(pPng.data()), pPng.size(), "picture"))
        return picture;
    picture.mWidth = image.widthGet();
    picture.mHeight = image.heightGet();
    const s32 step = znCImage::pixelBytesGet(image.formatGet());
    for (s32 y = 0; y < picture.mHeight; ++y)
        for (s32 x = 0; x < picture.mWidth; ++x)
        {
            const u8* pixel = image.pixelsGet() + y * image.pitchGet() + x * step;
            picture.mPixels.insert(picture.mPixels.end(), pixel, pixel + CHANNELS);
        }
    return picture;
}

Picture pictureHalve(const Picture& pPicture)
{
    Picture half;
    half.mWidth = pPicture.mWidth / 2;
    half.mHeight = pPicture.mHeight / 2;
    const auto at = [&pPicture](s32 pX, s32 pY, s32 pChannel)
    {
        return pPicture.mPixels[static_cast<size_t>((pY * pPicture.mWidth + pX) * CHANNELS + pChannel)];
    };
    for (s32 y = 0; y < half.mHeight; ++y)
        for (s32 x = 0; x < half.mWidth; ++x)
            for (s32 channel = 0; channel < CHANNELS; ++channel)
                half.mPixels.push_back(
                    static_cast<u8>((at(2 * x, 2 * y, channel) + at(2 * x + 1, 2 * y, channel) +
                                     at(2 * x, 2 * y + 1, channel) + at(2 * x + 1, 2 * y + 1, channel)) /
                                    4));
    return half;
}

double goldenDifferenceGet(const std::string& pName, const std::string& pPng, double pLimit)
{
    const Picture actual = pictureHalve(pictureDecode(pPng));
    const fs::path golden = GOLDEN_FOLDER / (pName + ".png");
    if (std::getenv("PETREL_GOLDEN_UPDATE") != nullptr)
        pictureWrite(golden, actual);
    const Picture expected = fileDecode(golden);
    if (expected.mWidth != actual.mWidth || expected.mHeight != actual.mHeight || actual.mPixels.empty())
        return DIFFERENT;
    const Picture difference = differenceMake(expected, actual);
    double sum = 0.0;
    for (u8 value : difference.mPixels)
        sum += value;
    const double mean = sum / static_cast<double>(difference.mPixels.size());
    if (mean > pLimit)
    {
        pictureWrite(DIFFERENCES_FOLDER / (pName + "-expected.png"), expected);
        pictureWrite(DIFFERENCES_FOLDER / (pName + "-actual.png"), actual);
        pictureWrite(DIFFERENCES_FOLDER / (pName + "-difference.png"), difference);
    }
    return mean;
}
