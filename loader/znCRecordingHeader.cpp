#include "loader/znCRecordingHeader.h"

#include "loader/znCCommandLine.h"
#include "loader/znCDisplayModes.h"
#include "loader/znNTextFile.h"

#include <algorithm>
#include <limits>

std::string znCRecordingHeader::textGet() const
{
    std::string text = std::string(FIRST_LINE) + "\n";
    text += "start " + std::to_string(mStartMs) + "\n";
    text += "step " + std::to_string(mStepMs) + "\n";
    text += "size " + std::to_string(mWidth) + "x" + std::to_string(mHeight) + "\n";
    text += std::string("touch ") + (mTouch ? "1" : "0") + "\n";
    if (!mDisplayModes.empty())
        text += "modes " + mDisplayModes + "\n";
    for (const znCSetting& setting : mSettings)
        text += "set " + znNTextFile::escaped(setting.mGroup + "." + setting.mKey + "=" + setting.mValue) + "\n";
    for (const std::string& argument : mArguments)
        text += "arg " + znNTextFile::escaped(argument) + "\n";
    return text + LAST_LINE + "\n";
}

bool znCRecordingHeader::lineParse(std::string_view pLine)
{
    const std::string_view line = pLine;
    const std::string_view word = znNTextFile::wordTake(pLine);
    const std::string text = znNTextFile::unescaped(line.substr(std::min(line.size(), word.size() + 1)));
    s32 flag = 0;
    if (word == "start")
        return znNTextFile::numberParse(pLine, u64(0), std::numeric_limits<u64>::max(), mStartMs);
    if (word == "step")
        return znNTextFile::numberParse(pLine, 0, 1000, mStepMs);
    if (word == "size")
        return znCCommandLine::sizeParse(std::string(pLine), mWidth, mHeight);
    if (word == "set")
        return znCCommandLine::settingParse(text, mSettings.emplace_back());
    if (word == "modes")
    {
        mDisplayModes = pLine;
        return znCDisplayModes().textParse(mDisplayModes);
    }
    if (word == "arg")
    {
        mArguments.push_back(text); // blanks at its start are its own
        return true;
    }
    if (word != "touch" || !znNTextFile::numberParse(pLine, 0, 1, flag))
        return false;
    mTouch = flag != 0;
    return true;
}

void znCRecordingHeader::optionsApply(znCOptions& pOptions) const
{
    pOptions.mSeed = mStartMs;
    pOptions.mStepMs = mStepMs;
    pOptions.mWidth = mWidth;
    pOptions.mHeight = mHeight;
    pOptions.mTouch = mTouch;
    pOptions.mDisplayModes = mDisplayModes;
    pOptions.mSettings.insert(pOptions.mSettings.begin(), mSettings.begin(), mSettings.end());
    if (pOptions.mArguments.empty())
        pOptions.mArguments = mArguments;
}
