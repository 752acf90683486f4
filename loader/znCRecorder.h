#ifndef LOADER_ZNCRECORDER_H
#define LOADER_ZNCRECORDER_H

#include "loader/znCInputEvent.h"
#include "loader/znCRecordingHeader.h"
#include "loader/znNStdio.h"

#include <optional>
#include <string>

// Writes a recording while the run goes on, so that a run that ends badly leaves one too. A write that fails is
// reported once and ends the recording, not the game.
class znCRecorder
{
public:
    // False with a sentence in pError when the file can't be written.
    bool open(const std::filesystem::path& pPath, const znCRecordingHeader& pHeader, std::string& pError);
    // A new frame at that time; the events and answers that follow belong to it.
    void frameAdd(u64 pNowMs);
    void eventAdd(const znCInputEvent& pEvent);
    // What a person answered to a text dialog; nothing: it was called off.
    void answerAdd(const std::optional<std::string>& pAnswer);

private:
    void lineWrite(const std::string& pLine);
    void flush();

    znNStdio::File mFile; // null: not recording
    std::string mPath;
    u32 mQuietFrames = 0;
};

#endif
