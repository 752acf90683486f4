#include "zncore/xml/znCXmlNode.h"
#include "zncore/xml/znCXmlAttribute.h"
#include <boost/make_shared.hpp>

namespace
{
// Walks a list of the pools; shows Element elements as Wrapper objects.
template <class Interface, class Wrapper, class Element>
class ListIterator : public znIXmlIterator<Interface>
{
public:
    explicit ListIterator(const znXmlHandle<Element>& pHandle) : mHandle(pHandle) {}

    boost::shared_ptr<const znIXmlIterator<Interface>> next() const override
    {
        const Element* element = mHandle.elementGet();
        Element* following = element != nullptr ? element->mNext : nullptr;
        return boost::make_shared<ListIterator>(znXmlHandle<Element>(following, mHandle.generationGet()));
    }
    bool notEqual(const znIXmlIterator<Interface>& pOther) const override
    {
        return mHandle.elementGet() != static_cast<const ListIterator&>(pOther).mHandle.elementGet();
    }
    boost::shared_ptr<Interface> dereference() const override
    {
        if (mHandle.elementGet() == nullptr)
            return boost::shared_ptr<Interface>();
        return boost::make_shared<Wrapper>(mHandle);
    }

private:
    znXmlHandle<Element> mHandle;
};

znCXmlIterator<znIXmlAttribute> attributesFrom(znXmlAttribute* pFirst, u32 pGeneration)
{
    return znCXmlIterator<znIXmlAttribute>(
        boost::make_shared<ListIterator<znIXmlAttribute, znCXmlAttribute, znXmlAttribute>>(
            znXmlHandle<znXmlAttribute>(pFirst, pGeneration)));
}

znCXmlIterator<znIXmlNode> childrenFrom(znXmlNode* pFirst, u32 pGeneration)
{
    return znCXmlIterator<znIXmlNode>(boost::make_shared<ListIterator<znIXmlNode, znCXmlNode, znXmlNode>>(
        znXmlHandle<znXmlNode>(pFirst, pGeneration)));
}
} // namespace

std::string znCXmlNode::nameGet() const
{
    const znXmlNode* node = mHandle.elementGet();
    return node != nullptr ? std::string(node->mName.viewGet()) : std::string();
}

std::string znCXmlNode::valueGet() const
{
    const znXmlNode* node = mHandle.elementGet();
    return node != nullptr && node->mHasValue ? std::string(node->mValue.viewGet()) : std::string();
}

znCXmlIterator<znIXmlAttribute> znCXmlNode::attributesBegin() const
{
    const znXmlNode* node = mHandle.elementGet();
    return attributesFrom(node != nullptr ? node->mFirstAttribute : nullptr, mHandle.generationGet());
}

znCXmlIterator<znIXmlAttribute> znCXmlNode::attributesEnd() const
{
    return attributesFrom(nullptr, mHandle.generationGet());
}

znCXmlIterator<znIXmlNode> znCXmlNode::childrenBegin() const
{
    const znXmlNode* node = mHandle.elementGet();
    return childrenFrom(node != nullptr ? node->mFirstChild : nullptr, mHandle.generationGet());
}

znCXmlIterator<znIXmlNode> znCXmlNode::childrenEnd() const
{
    return childrenFrom(nullptr, mHandle.generationGet());
}
