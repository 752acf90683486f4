#include "tools/author/znNGameLog.h"

#include "tools/author/znNText.h"

namespace
{
// What the game tells about the device, which is none here.
bool isAboutTheDevice(const std::string& pLine)
{
    return pLine.starts_with("LOG(znCDisplay::") || pLine.starts_with("LOG(znIDisplay::") ||
           pLine.starts_with("LOG(znCHardware::");
}

std::string trimmed(const std::string& pText)
{
    const auto end = pText.find_last_not_of(" \r\n\t");
    return end == std::string::npos ? "" : pText.substr(0, end + 1);
}
} // namespace

std::vector<std::string> znNGameLog::complaintsGet(const std::string& pLog)
{
    std::vector<std::string> complaints;
    bool taken = false; // the line before, whose message may go on
    for (const std::string& line : znNText::linesGet(pLog))
    {
        const bool begins = line.starts_with("ERROR(") || line.starts_with("LOG(");
        const auto message = begins ? line.find(") ") : std::string::npos;
        if (begins)
            taken = message != std::string::npos && line.find("ASSERT failure (") == std::string::npos &&
                    !isAboutTheDevice(line);
        if (begins && taken)
            complaints.push_back(trimmed(line.substr(message + 2)));
        else if (taken && !trimmed(line).empty())
            complaints.back() += " " + trimmed(line);
    }
    return complaints;
}
