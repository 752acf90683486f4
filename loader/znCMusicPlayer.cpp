#include "loader/znCMusicPlayer.h"

#include "loader/znCFiles.h"
#include "loader/znNReport.h"

#include <cstring>
#include <optional>

namespace
{
// By the first bytes; the name's ending tells nothing of a file that someone renamed.
std::optional<znIAudioDevice::Track> trackKindGet(const std::vector<u8>& pBytes)
{
    if (pBytes.size() < 4)
        return std::nullopt;
    if (std::memcmp(pBytes.data(), "OggS", 4) == 0)
        return znIAudioDevice::Track::OGG_VORBIS;
    const bool isMp3 = std::memcmp(pBytes.data(), "ID3", 3) == 0 || (pBytes[0] == 0xff && (pBytes[1] & 0xe0) == 0xe0);
    return isMp3 ? std::optional(znIAudioDevice::Track::MP3) : std::nullopt;
}
} // namespace

bool znCMusicPlayer::fileRead(const char* pName, std::vector<u8>& pBytes, std::string& pError)
{
    const s32 size = mFiles.sizeGet(pName);
    pError = size < 0 ? "there is no such file" : size > BYTES_MAX ? "it is larger than 64 MB" : "it can't be read";
    s3eFile* file = size < 0 || size > BYTES_MAX ? nullptr : mFiles.open(pName, "rb");
    if (file == nullptr)
        return false;
    pBytes.resize(static_cast<size_t>(size));
    const bool whole = mFiles.read(pBytes.data(), static_cast<u32>(size), file) == static_cast<u32>(size);
    mFiles.close(file);
    return whole;
}

bool znCMusicPlayer::start(const char* pName, u32 pRepeatCount, std::string& pError)
{
    std::vector<u8> bytes;
    if (!fileRead(pName, bytes, pError))
        return false;
    const std::optional<znIAudioDevice::Track> kind = trackKindGet(bytes);
    pError = "it is neither Ogg Vorbis nor MP3";
    return kind.has_value() && mDevice.trackStart(std::move(bytes), *kind, pRepeatCount, pError);
}

bool znCMusicPlayer::play(const char* pName, u32 pRepeatCount)
{
    std::string error;
    if (start(pName, pRepeatCount, error))
        return true;
    mDevice.trackStop();
    znNReport::lineWrite("cannot play %s: %s", znNReport::printable(pName == nullptr ? "" : pName).c_str(),
                         error.c_str());
    return false;
}
