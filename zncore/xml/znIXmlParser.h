#ifndef ZNCORE_XML_ZNIXMLPARSER_H
#define ZNCORE_XML_ZNIXMLPARSER_H

// A small reader of XML files: elements, attributes and text, nothing validated. It works on bytes, so that UTF-8
// passes through. Comments are cut, and the two characters backslash and n count as one line feed everywhere.
//
// The nodes of all parsers lie in the same static pools: a parse makes the nodes of every earlier one invalid, so that
// callers read a tree out before the next. Using an old one logs "XML nodes of an earlier parse are in use.\n" and
// shows an element without name, text, attributes or children. The pools hold room for the largest file so far, in
// steps of 1024 tags (texts and end tags count as tags, and the last place of a pool is never used) with eight
// attributes a tag.
//
// Limits: 16 MB a file, 262,144 tags, 256 attributes an element, 512 elements deep.

#include "zncore/xml/znIXmlNode.h"
#include "zncore/znTypes.h"
#include <boost/shared_ptr.hpp>

class znCResourceName;

class znIXmlParser
{
public:
    static constexpr s32 SUCCESS = 0;
    static constexpr s32 NO_TAGS = 1;
    static constexpr s32 READ_FAILED = 2;
    static constexpr s32 MISSING_END_TAG = 3;
    static constexpr s32 MISSING_CLOSE_COMMENT = 4;
    static constexpr s32 MISMATCHED_END_TAG = 5;
    static constexpr s32 MISSING_EQUALS = 6;
    static constexpr s32 MISSING_VALUE = 7;
    static constexpr s32 MISSING_CLOSING_QUOTE = 8;
    static constexpr s32 INVALID_TAG = 9;
    static constexpr s32 TAG_POOL_EXHAUSTED = 11;
    static constexpr s32 POOLS_NOT_SET_UP = 12;

    static boost::shared_ptr<znIXmlParser> create();
    // What a result means, for reports.
    static const char* resultTextGet(s32 pResult);
    // The line of the file, from 1, in which an element of its last parse begins; 0 for one of an earlier parse. Reads
    // the file anew: for reports of faults.
    static s32 lineGet(const znCResourceName& pName, const znIXmlNode& pNode);

    // SUCCESS, READ_FAILED (also for a comment without its end), MISMATCHED_END_TAG, INVALID_TAG, TAG_POOL_EXHAUSTED
    // (of a limit, too) or POOLS_NOT_SET_UP (no file could be opened so far). With a result other than SUCCESS the tree
    // stands as far as it got; callers take it for no data. Elements without an end tag are no failure. What was wrong
    // in a file is one line in the log with the file's name and the line.
    virtual s32 parse(const znCResourceName& pName) = 0;
    // The element "." that holds those of the file; null before the first parse and after one that could not read.
    virtual boost::shared_ptr<znIXmlNode> rootGet() const = 0;
    // pParent, or the root for null, or the first element of that name below it, depth first; null without one.
    virtual boost::shared_ptr<znIXmlNode> nodeFind(const boost::shared_ptr<znIXmlNode>& pParent,
                                                   const char* pName) const = 0;
    virtual ~znIXmlParser() = default;
};

#endif
