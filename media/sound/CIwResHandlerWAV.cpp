#include "media/sound/CIwResHandlerWAV.h"

#include "media/sound/CIwSoundManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"

#include <vector>

namespace
{
constexpr s32 FILE_BYTES_MAX = 32 * 1024 * 1024; // some three minutes of stereo; longer sounds are music

std::vector<u8> fileRead(const znCResourceName& pName)
{
    const s32 size = znIFile::sizeGet(pName);
    if (size <= 0 || size > FILE_BYTES_MAX)
        return {};
    std::vector<u8> bytes(static_cast<std::size_t>(size));
    const auto file = znIFile::create();
    if (!file->open(pName, 0) || !file->read(bytes.data(), static_cast<uint32>(size)))
        return {};
    return bytes;
}
} // namespace

std::unique_ptr<CIwSoundData> CIwResHandlerWAV::build(const znCResourceName& pName) const
{
    CIwSoundManager* manager = CIwSoundManager::instanceGet();
    if (manager == nullptr || !manager->isAvailable())
        return std::make_unique<CIwSoundData>(0);
    const std::vector<u8> bytes = fileRead(pName);
    const u32 sample = bytes.empty() ? 0 : manager->sampleCreate(bytes.data(), static_cast<u32>(bytes.size()));
    ZN_ASSERT(sample != 0, "Sound %s can't be played.\n", pName.nameGet().c_str());
    return std::make_unique<CIwSoundData>(sample);
}
