#include "loader/znCReplayer.h"

#include "loader/znNRecordedEvents.h"
#include "loader/znNTextFile.h"

#include <limits>

bool znCReplayer::read(const std::filesystem::path& pPath, std::string& pError)
{
    std::vector<std::string> lines;
    return znNTextFile::linesRead(pPath, lines, pError) && linesParse(lines, pPath, pError);
}

bool znCReplayer::linesParse(const std::vector<std::string>& pLines, const std::filesystem::path& pPath,
                             std::string& pError)
{
    if (pLines.empty() || pLines[0] != znCRecordingHeader::FIRST_LINE)
    {
        pError = znNTextFile::placed(pPath, 1, "this is no recording");
        return false;
    }
    bool inHeader = true;
    for (size_t i = 1; i < pLines.size(); ++i)
    {
        const std::string& line = pLines[i];
        const bool headerEnds = inHeader && line == znCRecordingHeader::LAST_LINE;
        const bool right = headerEnds || (inHeader ? mHeader.lineParse(line) : frameLineParse(line));
        if (!right && (inHeader || i + 1 < pLines.size()))
        {
            pError = znNTextFile::placed(pPath, i + 1, "cannot read \"" + line + "\"");
            return false;
        }
        inHeader = inHeader && !headerEnds;
    }
    if (!inHeader && mHeader.mWidth > 0)
        return true;
    pError = znNTextFile::placed(pPath, pLines.size(), "the recording ends before its first frame");
    return false;
}

bool znCReplayer::frameLineParse(std::string_view pLine)
{
    std::string_view rest = pLine;
    const std::string_view word = znNTextFile::wordTake(rest);
    if (word == "frame")
    {
        Frame frame;
        if (!znNTextFile::numberParse(rest, u64(0), std::numeric_limits<u64>::max(), frame.mTimeMs))
            return false;
        mFrames.push_back(std::move(frame));
        return true;
    }
    if (mFrames.empty())
        return false;
    if (word == "answer" || word == "noanswer")
    {
        const size_t textAt = std::min(pLine.size(), word.size() + 1); // blanks at its start belong to the answer
        mFrames.back().mAnswers.push_back(word == "answer" ? std::optional(znNTextFile::unescaped(pLine.substr(textAt)))
                                                           : std::nullopt);
        return true;
    }
    znCInputEvent event;
    if (!znNRecordedEvents::lineParse(pLine, event))
        return false;
    mFrames.back().mEvents.push_back(event);
    return true;
}

bool znCReplayer::frameTake(u64& pNowMs, std::vector<znCInputEvent>& pEvents)
{
    if (mNextFrame == mFrames.size())
        return false;
    const Frame& frame = mFrames[mNextFrame++];
    pNowMs = frame.mTimeMs;
    pEvents = frame.mEvents;
    mNextAnswer = 0;
    return true;
}

std::optional<std::string> znCReplayer::answerTake()
{
    if (mNextFrame == 0 || mNextAnswer == mFrames[mNextFrame - 1].mAnswers.size())
        return std::nullopt;
    return mFrames[mNextFrame - 1].mAnswers[mNextAnswer++];
}
