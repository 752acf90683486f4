#ifndef ZNCORE_XML_ZNCXMLFILEREADER_H
#define ZNCORE_XML_ZNCXMLFILEREADER_H

// The bytes of an XML file, cleaned of comments, and the scanner that cuts them into tags and texts.

#include "zncore/xml/znXmlTagMarker.h"
#include "zncore/znTypes.h"
#include <string>

class znCResourceName;

class znCXmlFileReader
{
public:
    virtual ~znCXmlFileReader() = default;
    virtual void close();

    // Reads the whole file; false if it can't be read, is empty or too large.
    bool open(const znCResourceName& pName);
    // Cuts comments and turns backslash and n into a line feed. False if a comment has no end; faultOffsetGet then
    // says where the comment begins.
    bool commentsRemove();

    // The next tag or text from the read position; false at the end. A "<" without its ">" before the next "<" or the
    // end is passed over, and the first one noted in brokenOffsetGet (-1: none).
    bool tokenRead(znXmlTagMarker& pOut);
    void positionSet(s32 pOffset);
    s32 brokenOffsetGet() const { return mBrokenOffset; }

    const char* textGet() const { return mBytes; }
    s32 sizeGet() const { return mSize; }
    bool endGet() const { return mEnd; }
    // Gives the bytes away; they must stay where they are for as long as the scanner runs.
    std::string bufferRelease();
    void bufferUse(const char* pBytes, s32 pSize);

    // The line of the file, from 1, in which a byte of the cleaned text stood. Reads the file anew.
    static s32 lineGet(const znCResourceName& pName, s32 pOffset);

private:
    std::string mBuffer;
    const char* mBytes = nullptr;
    s32 mSize = 0;
    s32 mPosition = 0;
    s32 mBrokenOffset = -1;
    bool mEnd = true;
    bool mOwned = false; // mBytes is mBuffer's
};

#endif
