#ifndef ZNCORE_XML_ZNXMLPARSER_H
#define ZNCORE_XML_ZNXMLPARSER_H

// Builds the tree of a file in the pools: a first pass over the text lists its tags, which sizes the pools; a second
// makes nodes and attributes of them.

#include "zncore/xml/znCXmlFileReader.h"
#include "zncore/xml/znXmlPools.h"
#include "zncore/znTypes.h"
#include <string_view>

class znXmlParser
{
public:
    // As znIXmlParser::parse.
    s32 parse(const znCResourceName& pName);
    znXmlNode* rootGet() const { return mRoot; } // valid until the pools restart

private:
    struct Fault
    {
        s32 mCode;   // of znIXmlParser; what the log says, more closely than the result
        s32 mOffset; // in the clean text; -1: of no place
    };

    bool preParse(const znCResourceName& pName);
    s32 parseDo(const znCResourceName& pName);
    bool tagsList();
    s32 treeBuild();
    s32 tagOpen(std::string_view pTag);
    s32 tagClose(std::string_view pTag);
    s32 attributesParse(znXmlNode& pNode, std::string_view pTag);
    s32 attributeParse(znXmlNode& pNode, std::string_view pName, std::string_view& pRest);
    void valueTake(znXmlNode& pNode);
    std::string_view tokenGet(s32 pTag) const;
    znXmlText textGet(std::string_view pPart) const;
    s32 faultSet(s32 pResult, s32 pCode, std::string_view pPlace);
    void faultReport(const znCResourceName& pName) const;

    znXmlPools& mPools = znXmlPools::instanceGet();
    znCXmlFileReader mReader;
    znXmlNode* mRoot = nullptr;    // the pools'
    znXmlNode* mCurrent = nullptr; // the innermost open element, by whose parents the others are found
    s32 mDepth = 0;
    const znXmlTagMarker* mTags = nullptr; // the tag table of this parse, in the pools
    s32 mTagCount = 0;
    s32 mTag = 0; // the one being looked at
    Fault mFault = {};
};

#endif
