#include "tests/support/znNTestLog.h"

#include <algorithm>

std::vector<std::string> znNTestLog::errorsTake(znCTestPlatform& pPlatform)
{
    std::vector<std::string> errors;
    const std::string log = pPlatform.logTake();
    for (std::size_t begin = 0, end = 0; begin < log.size(); begin = end + 1)
    {
        end = std::min(log.find('\n', begin), log.size());
        const std::string line = log.substr(begin, end - begin);
        const std::size_t message = line.find(") ");
        // A line feed ends the message, and a carriage return and a line feed the entry.
        if (line.find("ERROR(") <= 1 && line.find("ASSERT failure (") == std::string::npos)
            errors.push_back(line.substr(message + 2));
    }
    return errors;
}
