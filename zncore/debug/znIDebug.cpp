#include "zncore/debug/znIDebug.h"
#include "zncore/impl/platform/znCDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace
{
znIDebug* sInstance = nullptr; // deleted by destroy()
u32 sReportCount = 0;

constexpr const char* LINE_END = "\r\n";
constexpr const char* LOG_FULL = "The log is full; nothing more is written.\r\n";
constexpr u32 MESSAGE_SIZE = 4096;

// The path from the repository's root, without the extension. Compiler caches may pass paths that start at a build
// folder below the root.
std::string sourceNameGet(const char* pFile)
{
    std::string_view file = pFile;
    while (file.starts_with("../"))
        file.remove_prefix(3);
    const std::string_view::size_type dot = file.rfind('.');
    const bool extension = dot != std::string_view::npos && file.find('/', dot) == std::string_view::npos;
    return std::string(file.substr(0, extension ? dot : file.size()));
}

void textErase(std::string& pText, const char* pPart)
{
    for (std::string::size_type at = pText.find(pPart); at != std::string::npos; at = pText.find(pPart))
        pText.erase(at, std::strlen(pPart));
}

// Where the method's parameter list opens: the first parenthesis outside template arguments.
std::string::size_type parametersFind(const std::string& pName)
{
    s32 depth = 0;
    for (std::string::size_type i = 0; i < pName.size(); ++i)
    {
        if (depth == 0 && pName.compare(i, 8, "operator") == 0)
            return pName.find('(', pName.compare(i + 8, 2, "()") == 0 ? i + 10 : i + 8);
        if (pName[i] == '<')
            ++depth;
        else if (pName[i] == '>')
            --depth;
        else if (pName[i] == '(' && depth == 0)
            return i;
    }
    return std::string::npos;
}

std::string templateArgumentsErase(const std::string& pName)
{
    std::string result;
    s32 depth = 0;
    for (char letter : pName)
    {
        depth += letter == '<';
        if (depth == 0)
            result += letter;
        depth -= letter == '>';
    }
    return result;
}

std::string lineStartGet(const char* pKind, const char* pFunction)
{
    return std::string(pKind) + "(" + znIDebug::methodNameGet(pFunction) + ") ";
}
} // namespace

void znIDebug::create()
{
    ZN_ASSERT(sInstance == nullptr, "znIDebug already created znIDebug.\n");
    if (sInstance == nullptr)
        sInstance = new znCDebug();
}

znIDebug* znIDebug::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "znIDebug not created.\n");
    return sInstance;
}

void znIDebug::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "znIDebug not created.\n");
    delete sInstance;
    sInstance = nullptr;
}

znIDebug::znIDebug() : mLogFile(znIFile::create())
{
    mLogFile->open(znCResourceName("log.txt", znCResourceName::USER_DATA), znIFile::MODE_WRITE);
}

znIDebug::~znIDebug()
{
    // Closing reports a full disk through the instance: by then there must be none.
    if (sInstance == this)
        sInstance = nullptr;
    mLogFile->close();
}

u32 znIDebug::reportCountGet()
{
    return sReportCount;
}

void znIDebug::textWrite(const std::string& pText)
{
    // The file would report that it isn't open, through this very log.
    if (!mLogFile->isOpenGet() || mBytesWritten > LOG_SIZE_LIMIT)
        return;
    mBytesWritten += static_cast<u32>(pText.size());
    const std::string& text = mBytesWritten > LOG_SIZE_LIMIT ? LOG_FULL : pText;
    mLogFile->write(text.data(), static_cast<uint32>(text.size()));
}

std::string znIDebug::methodNameGet(const char* pFunction)
{
    std::string name = pFunction;
    textErase(name, "(anonymous namespace)::");
    textErase(name, "{anonymous}::");
    name.resize(std::min(parametersFind(name), name.size()));
    const std::string::size_type operatorAt = name.find("operator");
    if (operatorAt == std::string::npos)
        name = templateArgumentsErase(name);
    std::string::size_type start = name.rfind(' ', operatorAt);
    start = name.find_first_not_of("*& ", start == std::string::npos ? 0 : start);
    return start == std::string::npos ? name : name.substr(start);
}

void znIDebug::assertionReport(const char* pFile, s32 pLine, const char* pFunction, const char* pFormat, ...)
{
    ++sReportCount;
    if (sInstance == nullptr)
        return;
    char message[MESSAGE_SIZE];
    va_list arguments;
    va_start(arguments, pFormat);
    std::vsnprintf(message, sizeof message, pFormat, arguments);
    va_end(arguments);
    const std::string start = lineStartGet("ERROR", pFunction);
    znIDebug& log = *sInstance;
    log.textWrite(
        log.textFormat("%sASSERT failure (%s line %d)\n", start.c_str(), sourceNameGet(pFile).c_str(), pLine));
    log.textWrite(LINE_END);
    log.textWrite(log.textFormat("%s%s", start.c_str(), message));
    log.textWrite(LINE_END);
}

void znIDebug::lineReport(const char* pFunction, const char* pFormat, ...)
{
    ++sReportCount;
    if (sInstance == nullptr)
        return;
    char message[MESSAGE_SIZE];
    va_list arguments;
    va_start(arguments, pFormat);
    std::vsnprintf(message, sizeof message, pFormat, arguments);
    va_end(arguments);
    znIDebug& log = *sInstance;
    log.textWrite(log.textFormat("%s%s", lineStartGet("LOG", pFunction).c_str(), message));
    log.textWrite(LINE_END);
}
