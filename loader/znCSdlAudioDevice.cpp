#include "loader/znCSdlAudioDevice.h"

#include "loader/znNVolume.h"

#include <algorithm>
#include <dlfcn.h>
#include <limits>
#include <SDL.h>

namespace
{
constexpr s32 LOOP = -1;

void voiceMix(int, void* pStream, int pBytes, void* pVoice)
{
    static_cast<znCVoice*>(pVoice)->mix(pStream, static_cast<u32>(pBytes));
}

void alsaErrorIgnore(const char*, int, const char*, int, const char*, ...) {}

// ALSA itself would tell the person in a dozen lines what SDL answers in one. Asked for at run time, since not every
// SDL stands on it.
void alsaSilence()
{
    if (void* handlerSet = dlsym(RTLD_DEFAULT, "snd_lib_error_set_handler"))
        reinterpret_cast<int (*)(decltype(&alsaErrorIgnore))>(handlerSet)(alsaErrorIgnore);
}
} // namespace

std::unique_ptr<znCSdlAudioDevice> znCSdlAudioDevice::open(std::string& pError)
{
    alsaSilence();
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
    {
        pError = SDL_GetError();
        return nullptr;
    }
    // No change is allowed: SDL converts where the device wants something else, so lengths in bytes are known.
    if (Mix_OpenAudioDevice(RATE, AUDIO_S16SYS, 2, BUFFER_FRAMES, nullptr, 0) != 0)
    {
        pError = Mix_GetError();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return nullptr;
    }
    std::unique_ptr<znCSdlAudioDevice> device(new znCSdlAudioDevice);
    // A channel beyond those allocated would be accepted without a word.
    device->mChannelCount = std::min(S3E_SOUND_CHANNELS, Mix_AllocateChannels(S3E_SOUND_CHANNELS));
    return device;
}

znCSdlAudioDevice::~znCSdlAudioDevice()
{
    Mix_HaltChannel(-1);
    trackStop();
    mSamples.clear();
    Mix_CloseAudio();
    Mix_Quit();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

bool znCSdlAudioDevice::trackStart(std::vector<u8> pBytes, Track pKind, u32 pRepeatCount, std::string& pError)
{
    trackStop();
    mTrackBytes = std::move(pBytes);
    SDL_RWops* source = SDL_RWFromConstMem(mTrackBytes.data(), static_cast<int>(mTrackBytes.size()));
    mTrack.reset(Mix_LoadMUSType_RW(source, pKind == Track::MP3 ? MUS_MP3 : MUS_OGG, 1));
    const u32 count = std::min(pRepeatCount, static_cast<u32>(std::numeric_limits<s32>::max()));
    if (mTrack != nullptr && Mix_PlayMusic(mTrack.get(), count == 0 ? LOOP : static_cast<s32>(count)) == 0)
        return true;
    pError = Mix_GetError();
    trackStop();
    return false;
}

void znCSdlAudioDevice::trackStop()
{
    mTrack.reset();
    mTrackBytes = {};
}

void znCSdlAudioDevice::trackPauseSet(bool pPaused)
{
    if (pPaused)
        Mix_PauseMusic();
    else
        Mix_ResumeMusic();
}

void znCSdlAudioDevice::trackVolumeSet(s32 pVolume)
{
    Mix_VolumeMusic(znNVolume::scale(pVolume, S3E_AUDIO_MAX_VOLUME, MIX_MAX_VOLUME));
}

bool znCSdlAudioDevice::sampleAdd(u32 pSample, const u8* pBytes, u32 pSize, const znCWavHeader&)
{
    Mix_Chunk* chunk = Mix_LoadWAV_RW(SDL_RWFromConstMem(pBytes, static_cast<int>(pSize)), 1);
    if (chunk == nullptr)
        return false;
    mSamples[pSample].reset(chunk);
    return true;
}

void znCSdlAudioDevice::samplesVolumeSet(s32 pVolume)
{
    Mix_Volume(-1, znNVolume::scale(pVolume, S3E_SOUND_MAX_VOLUME, MIX_MAX_VOLUME));
}

bool znCSdlAudioDevice::channelStart(s32 pChannel, u32 pSample)
{
    const auto sample = mSamples.find(pSample);
    if (pChannel < 0 || pChannel >= mChannelCount || sample == mSamples.end())
        return false;
    channelStop(pChannel);
    voiceGet(pChannel).begin(sample->second->alen);
    Mix_RegisterEffect(pChannel, voiceMix, nullptr, &voiceGet(pChannel)); // gone with the play
    if (Mix_PlayChannel(pChannel, sample->second.get(), LOOP) == pChannel)
        return true;
    Mix_UnregisterAllEffects(pChannel);
    return false;
}

void znCSdlAudioDevice::channelStop(s32 pChannel)
{
    Mix_HaltChannel(pChannel);
}

void znCSdlAudioDevice::channelPauseSet(s32 pChannel, bool pPaused)
{
    if (pPaused)
        Mix_Pause(pChannel);
    else
        Mix_Resume(pChannel);
}
