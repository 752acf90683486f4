#ifndef TESTS_SUPPORT_ZNCTESTFILES_H
#define TESTS_SUPPORT_ZNCTESTFILES_H

// The platform's files, in memory, by the rules of s3e.h: plain names can only be read, "ram://" names can be written
// and appear when they are closed, whole or not at all; the generation before is read when the newer one is missing or
// empty, and under its own name with a "~" behind it; "ram://log.txt" is written as it goes. A name that leaves its
// folder is refused.
//
// A test puts files in with fileSet and makes operations fail with faultSet.

#include "zncore/impl/platform/s3e.h"
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

// What the platform's handles point to.
struct s3eFile
{
    std::string mName;
    std::string mContent; // read: what is left is from mPosition on; write: so far
    std::string::size_type mPosition = 0;
    bool mWriting = false;
    bool mBroken = false; // a write or flush failed: the file must not appear
};

struct s3eFileList
{
    std::vector<std::string> mNames;
    std::vector<std::string>::size_type mNext = 0;
};

class znCTestFiles
{
public:
    enum class Operation
    {
        open,
        read,
        write, // half of the bytes go through
        flush,
        close,
        remove
    };
    static constexpr s32 FOR_EVER = -1;

    // --- for the test ---
    void fileSet(const std::string& pName, const std::string& pContent);
    void fileRemove(const std::string& pName);                             // both generations
    void formerSet(const std::string& pName, const std::string& pContent); // the generation before
    bool fileExists(const std::string& pName) const;
    std::string fileGet(const std::string& pName) const; // as a reader sees it; "" if it is missing
    std::vector<std::string> namesGet() const;           // of all files
    // Makes the pNth such operation from now (1 is the next) and the ones after it fail, pCount in all. Only those on
    // the file pName count; without a name those on every file but the log. One fault an operation.
    void faultSet(Operation pOperation, s32 pNth, s32 pCount = 1, const std::string& pName = "");
    void faultsClear() { mFaults.clear(); }
    // The names that somebody asked for, to read or to see whether they are there; missing ones too.
    const std::set<std::string>& askedGet() const { return mAsked; }
    s32 openCountGet() const { return static_cast<s32>(mOpen.size()); } // handles that nobody closed
    s32 operationCountGet(Operation pOperation) const;                  // calls so far, the log's left out

    // --- for the table ---
    s3eFile* open(const char* pName, const char* pMode);
    u32 read(void* pBuffer, u32 pBytes, s3eFile* pFile);
    u32 write(const void* pBuffer, u32 pBytes, s3eFile* pFile);
    s3eResult flush(s3eFile* pFile);
    s3eResult close(s3eFile* pFile);
    s32 checkExists(const char* pName) const;
    s32 intGet(const char* pName, s32 pProperty) const;
    s3eResult remove(const char* pName);
    s3eFileList* listOpen(const char* pName);
    s3eResult listNext(s3eFileList* pList, char* pName, s32 pSize);
    s3eResult listClose(s3eFileList* pList);

private:
    struct Fault
    {
        s32 mWait;
        s32 mCount;
        std::string mName;
    };

    const std::string* contentFind(const std::string& pName) const;
    bool directoryGet(const std::string& pName) const;
    bool faultTake(Operation pOperation, const std::string& pName);
    void commit(const s3eFile& pFile);

    std::map<std::string, std::string> mFiles;
    std::map<std::string, std::string> mFormer; // the generation before
    std::map<s3eFile*, std::unique_ptr<s3eFile>> mOpen;
    std::map<s3eFileList*, std::unique_ptr<s3eFileList>> mLists;
    std::map<Operation, Fault> mFaults;
    std::map<Operation, s32> mCounts;
    mutable std::set<std::string> mAsked;
};

#endif
