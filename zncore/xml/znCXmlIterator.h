#ifndef ZNCORE_XML_ZNCXMLITERATOR_H
#define ZNCORE_XML_ZNCXMLITERATOR_H

// Walks the attributes or the children of an XML node in file order:
//
//     for (auto child = node->childrenBegin(); child != node->childrenEnd(); ++child)
//         ... (*child)->nameGet() ...
//
// Copies are independent of each other. At the end, ++ changes nothing and * gives a null pointer.

#include <boost/shared_ptr.hpp>

// What an iterator holds. Never changes: next gives the one that stands behind.
template <class T>
class znIXmlIterator
{
public:
    virtual boost::shared_ptr<const znIXmlIterator> next() const = 0;
    virtual bool notEqual(const znIXmlIterator& pOther) const = 0;
    virtual boost::shared_ptr<T> dereference() const = 0;
    virtual ~znIXmlIterator() = default;
};

template <class T>
class znCXmlIterator
{
public:
    explicit znCXmlIterator(boost::shared_ptr<const znIXmlIterator<T>> pImplementation)
        : mImplementation(std::move(pImplementation))
    {
    }

    znCXmlIterator& operator++()
    {
        mImplementation = mImplementation->next();
        return *this;
    }
    bool operator!=(const znCXmlIterator& pOther) const { return mImplementation->notEqual(*pOther.mImplementation); }
    boost::shared_ptr<T> operator*() const { return mImplementation->dereference(); }
    boost::shared_ptr<T> operator->() const { return mImplementation->dereference(); }

private:
    boost::shared_ptr<const znIXmlIterator<T>> mImplementation;
};

#endif
