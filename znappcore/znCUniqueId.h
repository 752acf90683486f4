#ifndef ZNAPPCORE_ZNCUNIQUEID_H
#define ZNAPPCORE_ZNCUNIQUEID_H

// Identifies message types, component types, cache entries and the keys of saved node state by the hash of a text.
// The text isn't kept, case matters, and two texts that hash alike are one id. A constant id is made when the program
// is compiled:
//
//     inline constexpr znCUniqueId TAPPED{"tapped"};

#include "zncore/znTypes.h"

#include <compare>
#include <string_view>

class znCUniqueId
{
public:
    constexpr explicit znCUniqueId(std::string_view pText) : mId(hashGet(pText)) {}
    constexpr znCUniqueId(const znCUniqueId&) = default;
    constexpr znCUniqueId& operator=(const znCUniqueId&) = default;
    constexpr virtual ~znCUniqueId() {}

    constexpr u32 idGet() const { return mId; }

    constexpr bool operator==(const znCUniqueId& pOther) const { return mId == pOther.mId; }
    constexpr std::strong_ordering operator<=>(const znCUniqueId& pOther) const { return mId <=> pOther.mId; }

    // h = h * 33 + byte, from 0, modulo 2^32; 0 for the empty text.
    static constexpr u32 hashGet(std::string_view pText)
    {
        u32 hash = 0;
        for (const char byte : pText)
            hash = hash * 33u + static_cast<u8>(byte);
        return hash;
    }

private:
    u32 mId;
};

#endif
