#ifndef ZNHOGCORE_COMPONENTS_ZNCNAMECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCNAMECOMPONENT_H

// The names of a scene entity, read from its node name, which is a file name. Always the first component of a scene
// entity. The names stay as they were when the component was made.
//
// From "PCK-boat+red_lamp-m2.png": base name "PCK-boat+red_lamp", key "red_lamp", display text "red lamp".

#include "znappcore/znIComponent.h"

class znCNameComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCNameComponent"};

    explicit znCNameComponent(znCEntity* pEntity);

    // Null, with "Expected entity %s to have a name component.\n", if it has none.
    static znCNameComponent* get(const znCEntity* pEntity);

    // The node name without extension and without the tail "-m" and a digit from 1 to 9, which tells several placements
    // of one item apart. What stands behind the digit goes too.
    const std::string& baseNameGet() const { return mBaseName; }
    // The base name's last field, behind its last "-" and then behind its first "+": what files are looked up by.
    const std::string& keyGet() const { return mKey; }
    // What the player reads: the localised string named by the base name, or the key with blanks for "_".
    const std::string& displayTextGet() const { return mDisplayText; }

    static std::string baseNameFromNodeName(const std::string& pNodeName);
    static std::string keyFromBaseName(const std::string& pBaseName);

private:
    std::string mBaseName;
    std::string mKey;
    std::string mDisplayText;
};

#endif
