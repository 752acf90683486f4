#ifndef ZNCORE_DEBUG_ZNIDEBUG_H
#define ZNCORE_DEBUG_ZNIDEBUG_H

// The log file and the two macros that write to it.
//
// ZN_ASSERT(condition, format, ...) evaluates its condition once, in every build. When it is false two lines go to the
// log, the place and the message, and the program carries on: what follows a check must therefore be harmless. The
// arguments are evaluated on failure only. ZN_LOG(format, ...) writes one line.
//
// Both are safe at any time: before create(), after destroy(), and when the log could not be opened, they write
// nothing. The file is "ram://log.txt"; each run overwrites it, and each line is handed to the platform as it is
// written. A log that reaches LOG_SIZE_LIMIT says so in its last line and takes no more.

#include "zncore/znTypes.h"
#include <boost/shared_ptr.hpp>
#include <string>

class znIFile;

class znIDebug
{
public:
    static constexpr u32 LOG_SIZE_LIMIT = 64u << 20;

    // A second create logs "znIDebug already created znIDebug.\n" and leaves the first in place. Without an instance
    // the other two have no log to complain to; instanceGet then answers null.
    static void create();
    static znIDebug* instanceGet();
    static void destroy();

    // printf's rules. The text is cut after 4095 bytes.
    virtual std::string textFormat(const char* pFormat, ...) __attribute__((format(printf, 2, 3))) = 0;
    virtual ~znIDebug();

    // No line ending is added.
    void textWrite(const std::string& pText);

    // How many lines and failed checks have been reported so far, also without a log: who reads a file can tell whether
    // something below had a complaint about a part of it.
    static u32 reportCountGet();

    // What the macros call. pFunction is the compiler's pretty name of the function.
    static void assertionReport(const char* pFile, s32 pLine, const char* pFunction, const char* pFormat, ...)
        __attribute__((cold, noinline, format(printf, 4, 5)));
    static void lineReport(const char* pFunction, const char* pFormat, ...)
        __attribute__((cold, noinline, format(printf, 2, 3)));

    // "znCThing::partAdd" from the compiler's pretty name: no result type, arguments or template arguments.
    static std::string methodNameGet(const char* pFunction);

protected:
    // Opens the log; a failure leaves logging silent.
    znIDebug();

private:
    boost::shared_ptr<znIFile> mLogFile;
    u32 mBytesWritten = 0;
};

#define ZN_ASSERT(pCondition, ...)                                                                                     \
    do                                                                                                                 \
    {                                                                                                                  \
        if (!(pCondition)) [[unlikely]]                                                                                \
            znIDebug::assertionReport(__FILE__, __LINE__, __PRETTY_FUNCTION__, __VA_ARGS__);                           \
    } while (false)

#define ZN_LOG(...) znIDebug::lineReport(__PRETTY_FUNCTION__, __VA_ARGS__)

#endif
