#include "loader/znCModule.h"

#include <dlfcn.h>

bool znCModule::open(const std::filesystem::path& pPath, std::string& pError)
{
    void* library = dlopen(pPath.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr)
    {
        const char* reason = dlerror();
        pError = std::string("cannot open the game: ") + (reason == nullptr ? pPath.c_str() : reason);
        return false;
    }
    mEntry = reinterpret_cast<Entry>(dlsym(library, "_IwAppEntry"));
    if (mEntry != nullptr)
        return versionCheck(library, pError);
    pError = pPath.string() + " is no game module: it has no _IwAppEntry";
    return false;
}

bool znCModule::versionCheck(void* pLibrary, std::string& pError) const
{
    const auto* major = static_cast<const u8*>(dlsym(pLibrary, "_IwAppVersionMajor"));
    const auto* minor = static_cast<const u8*>(dlsym(pLibrary, "_IwAppVersionMinor"));
    if (major != nullptr && minor != nullptr && *major == S3E_VERSION_MAJOR && *minor == S3E_VERSION_MINOR)
        return true;
    const std::string found =
        major == nullptr || minor == nullptr ? "none" : std::to_string(*major) + "." + std::to_string(*minor);
    pError = "the game's interface version is " + found + ", this loader has " + std::to_string(S3E_VERSION_MAJOR) +
             "." + std::to_string(S3E_VERSION_MINOR);
    return false;
}

s32 znCModule::run(const s3eFunctionTable& pTable) const
{
    mEntry(&pTable);
    return mEntry(nullptr);
}
