#ifndef ZNCORE_ZNCCOLOUR_H
#define ZNCORE_ZNCCOLOUR_H

#include "zncore/znTypes.h"
#include <string>

// Red, green, blue and alpha, each 0 to 1, not premultiplied. Differences of colours may be negative.
class znCColour
{
public:
    znCColour() = default; // opaque white
    znCColour(float pR, float pG, float pB, float pA) : mR(pR), mG(pG), mB(pB), mA(pA) {}
    // Eight hexadecimal digits RRGGBBAA. Anything else logs "Expected an 8 character hex string when creating an
    // znCColour from a string (%s).\n"; the whole bytes that could be read count, the others stay 1.
    explicit znCColour(const std::string& pText);
    virtual ~znCColour() = default;

    znCColour operator+(const znCColour& pOther) const; // each limited to 1, not to 0
    znCColour operator-(const znCColour& pOther) const; // no limit
    znCColour operator*(s32 pFactor) const;
    znCColour operator/(s32 pDivisor) const;

    bool operator==(const znCColour& pOther) const = default;

    float mR = 1.0f;
    float mG = 1.0f;
    float mB = 1.0f;
    float mA = 1.0f;
};

#endif
