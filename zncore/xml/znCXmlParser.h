#ifndef ZNCORE_XML_ZNCXMLPARSER_H
#define ZNCORE_XML_ZNCXMLPARSER_H

// znIXmlParser over the pools.

#include "zncore/xml/znIXmlParser.h"
#include "zncore/xml/znXmlParser.h"

class znCXmlParser : public znIXmlParser
{
public:
    // Room for so many tags; parse makes as much as its file needs by itself. Nodes of earlier parses become invalid if
    // the pools grow.
    static void poolsCreate(s32 pTags);
    // Gives the memory back, at shut-down.
    static void poolsDestroy();

    s32 parse(const znCResourceName& pName) override;
    boost::shared_ptr<znIXmlNode> rootGet() const override;
    boost::shared_ptr<znIXmlNode> nodeFind(const boost::shared_ptr<znIXmlNode>& pParent,
                                           const char* pName) const override;

private:
    znXmlParser mParser;
    u32 mGeneration = 0; // of the pools, when mParser's tree was made
};

#endif
