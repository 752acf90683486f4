#ifndef TESTS_PLAY_PICTURE_H
#define TESTS_PLAY_PICTURE_H

#include "zncore/znTypes.h"

#include <string>
#include <vector>

// A decoded picture of three bytes a pixel; empty if it could not be read.
struct Picture
{
    s32 mWidth = 0;
    s32 mHeight = 0;
    std::vector<u8> mPixels;
};

Picture pictureDecode(const std::string& pPng);
// Half as wide and high, each pixel the mean of four: what golden pictures are kept as.
Picture pictureHalve(const Picture& pPicture);

// Holds a picture against tests/play/golden/NAME.png: the mean difference of all channels, 0 to 255, or 255 if the
// sizes differ or there is no such file. Above pLimit three pictures are left in build/differences: expected, actual
// and difference. With PETREL_GOLDEN_UPDATE in the environment the golden picture is written anew instead.
double goldenDifferenceGet(const std::string& pName, const std::string& pPng, double pLimit);

#endif
