#ifndef LOADER_ZNCREPLAYER_H
#define LOADER_ZNCREPLAYER_H

#include "loader/znCInputEvent.h"
#include "loader/znCRecordingHeader.h"

#include <optional>
#include <string>

// A recording, read as a whole before the run, and where its repeat stands.
class znCReplayer
{
public:
    // False with a sentence in pError, with file and line where a line is wrong. A last line that was cut off in the
    // middle, as a run that ended badly leaves it, is passed over.
    bool read(const std::filesystem::path& pPath, std::string& pError);
    bool linesParse(const std::vector<std::string>& pLines, const std::filesystem::path& pPath, std::string& pError);
    const znCRecordingHeader& headerGet() const { return mHeader; }

    // The next frame's time and events; false behind the last one.
    bool frameTake(u64& pNowMs, std::vector<znCInputEvent>& pEvents);
    // The next answer to a text dialog within the frame taken last; nothing if it was called off or there is none.
    std::optional<std::string> answerTake();

private:
    struct Frame
    {
        u64 mTimeMs = 0;
        std::vector<znCInputEvent> mEvents;
        std::vector<std::optional<std::string>> mAnswers;
    };

    bool frameLineParse(std::string_view pLine);

    znCRecordingHeader mHeader;
    std::vector<Frame> mFrames;
    size_t mNextFrame = 0;
    size_t mNextAnswer = 0;
};

#endif
