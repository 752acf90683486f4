#ifndef TOOLS_AUTHOR_ZNCPROGRAM_H
#define TOOLS_AUTHOR_ZNCPROGRAM_H

// Another program that runs beside this one.

#include <filesystem>
#include <string>
#include <vector>

#include <sys/types.h>

class znCProgram
{
public:
    // Starts it at once.
    znCProgram(const std::filesystem::path& pProgram, const std::vector<std::string>& pArguments);
    // Waits for its end.
    ~znCProgram();
    znCProgram(const znCProgram&) = delete;
    znCProgram& operator=(const znCProgram&) = delete;

    bool running();
    // Waits for its end; the exit status, -1 if it could not be started or ended by a signal.
    int wait();

private:
    pid_t mProcess = 0; // 0: none
    int mStatus = -1;   // of the end
};

// A folder below the temporary one, removed with all that is in it at the end of the object's life.
class znCPassingFolder
{
public:
    znCPassingFolder();
    ~znCPassingFolder();
    znCPassingFolder(const znCPassingFolder&) = delete;
    znCPassingFolder& operator=(const znCPassingFolder&) = delete;

    const std::filesystem::path& pathGet() const { return mPath; } // empty if it could not be made

private:
    std::filesystem::path mPath;
};

#endif
