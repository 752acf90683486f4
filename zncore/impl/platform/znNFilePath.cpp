#include "zncore/impl/platform/znNFilePath.h"
#include "zncore/debug/znIDebug.h"
#include <string_view>

namespace
{
constexpr std::string_view DRIVE = "ram://";

bool upwardStepHas(std::string_view pPath)
{
    for (;;)
    {
        const std::string_view::size_type slash = pPath.find('/');
        if (pPath.substr(0, slash) == "..")
            return true;
        if (slash == std::string_view::npos)
            return false;
        pPath.remove_prefix(slash + 1);
    }
}
} // namespace

bool znNFilePath::allowedGet(const std::string& pName)
{
    std::string_view path = pName;
    const bool onDrive = path.starts_with(DRIVE);
    if (onDrive)
        path.remove_prefix(DRIVE.size());
    const bool absolute = !onDrive && path.starts_with('/');
    const bool oddLetters = path.find('\0') != std::string_view::npos || path.find('\\') != std::string_view::npos;
    const bool allowed = !absolute && !oddLetters && !upwardStepHas(path);
    ZN_ASSERT(allowed, "File %s isn't a name inside the game's folders.\n", pName.c_str());
    return allowed;
}
