#include "znhogcore/components/znCNameComponent.h"

#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "zncore/debug/znIDebug.h"

#include <algorithm>

namespace
{
constexpr char PLACEMENT_TAIL[] = "-m"; // and a digit from 1 to 9

std::string displayTextMake(const std::string& pBaseName, const std::string& pKey)
{
    std::string text = pKey;
    std::replace(text.begin(), text.end(), '_', ' ');
    znCLocalisedStrings::localisedStringGetIfExists(pBaseName, text);
    return text;
}
} // namespace

znCNameComponent::znCNameComponent(znCEntity* pEntity)
    : znIComponent(pEntity), mBaseName(baseNameFromNodeName(pEntity->nameGet())), mKey(keyFromBaseName(mBaseName)),
      mDisplayText(displayTextMake(mBaseName, mKey))
{
}

znCNameComponent* znCNameComponent::get(const znCEntity* pEntity)
{
    auto* name = pEntity->componentGet<znCNameComponent>();
    ZN_ASSERT(name != nullptr, "Expected entity %s to have a name component.\n", pEntity->nameGet().c_str());
    return name;
}

std::string znCNameComponent::baseNameFromNodeName(const std::string& pNodeName)
{
    std::string name = pNodeName.substr(0, pNodeName.rfind('.'));
    const std::size_t tail = name.rfind(PLACEMENT_TAIL);
    if (tail == std::string::npos)
        return name;
    const std::size_t digit = tail + sizeof(PLACEMENT_TAIL) - 1;
    if (digit < name.size() && name[digit] >= '1' && name[digit] <= '9')
        name.erase(tail);
    return name;
}

std::string znCNameComponent::keyFromBaseName(const std::string& pBaseName)
{
    const std::size_t dash = pBaseName.rfind('-'); // npos + 1 is 0
    std::string key = pBaseName.substr(dash + 1);
    key.erase(0, key.find('+') + 1);
    return key;
}
