#include "loader/znCRecorder.h"

#include "loader/znNRecordedEvents.h"
#include "loader/znNReport.h"
#include "loader/znNTextFile.h"

#include <cerrno>
#include <cstring>

namespace
{
// At most this many frames without input are lost when the run ends badly.
constexpr u32 QUIET_FRAMES_MAX = 60;
} // namespace

bool znCRecorder::open(const std::filesystem::path& pPath, const znCRecordingHeader& pHeader, std::string& pError)
{
    mPath = pPath.string();
    mFile.reset(std::fopen(mPath.c_str(), "wbe"));
    if (mFile != nullptr && std::fputs(pHeader.textGet().c_str(), mFile.get()) >= 0 && std::fflush(mFile.get()) == 0)
        return true;
    pError = "cannot write " + mPath + ": " + std::strerror(errno);
    mFile.reset();
    return false;
}

void znCRecorder::lineWrite(const std::string& pLine)
{
    if (mFile == nullptr)
        return;
    std::fputs(pLine.c_str(), mFile.get());
    std::fputc('\n', mFile.get());
}

void znCRecorder::flush()
{
    mQuietFrames = 0;
    if (mFile == nullptr || (std::fflush(mFile.get()) == 0 && std::ferror(mFile.get()) == 0))
        return;
    znNReport::lineWrite("cannot go on recording to %s: %s", mPath.c_str(), std::strerror(errno));
    mFile.reset();
}

void znCRecorder::frameAdd(u64 pNowMs)
{
    if (mFile == nullptr)
        return;
    lineWrite("frame " + std::to_string(pNowMs));
    if (++mQuietFrames > QUIET_FRAMES_MAX)
        flush();
}

void znCRecorder::eventAdd(const znCInputEvent& pEvent)
{
    if (mFile == nullptr)
        return;
    lineWrite(znNRecordedEvents::lineGet(pEvent));
    flush();
}

void znCRecorder::answerAdd(const std::optional<std::string>& pAnswer)
{
    lineWrite(pAnswer.has_value() ? "answer " + znNTextFile::escaped(*pAnswer) : "noanswer");
    flush();
}
