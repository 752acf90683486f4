#ifndef ZNCORE_XML_ZNXMLHANDLE_H
#define ZNCORE_XML_ZNXMLHANDLE_H

#include "zncore/debug/znIDebug.h"
#include "zncore/xml/znXmlPools.h"

// An element of a pool, with the parse that it belongs to.
template <class T>
class znXmlHandle
{
public:
    znXmlHandle(T* pElement, u32 pGeneration) : mElement(pElement), mGeneration(pGeneration) {}

    // Null, with one line in the log, if the pools have been used for another parse since.
    T* elementGet() const
    {
        const bool valid = mElement == nullptr || mGeneration == znXmlPools::instanceGet().generationGet();
        ZN_ASSERT(valid, "XML nodes of an earlier parse are in use.\n");
        return valid ? mElement : nullptr;
    }
    u32 generationGet() const { return mGeneration; }

private:
    T* mElement; // the pool's
    u32 mGeneration;
};

#endif
