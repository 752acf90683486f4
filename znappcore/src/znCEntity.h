#ifndef ZNAPPCORE_SRC_ZNCENTITY_H
#define ZNAPPCORE_SRC_ZNCENTITY_H

// A node that is the sum of its components, at most one of each type, which it owns and to which it forwards every node
// event in the order in which they were added. Components die before the child nodes.
//
// A component added while events are being forwarded (by one of the components, mostly) is pending: it is returned and
// found at once, and gets events from the end of the entity's next update on.

#include "znappcore/znCUniqueId.h"
#include "znappcore/znIComponent.h"
#include "znappcore/znINode.h"

#include <map>
#include <memory>
#include <typeinfo>
#include <utility>
#include <vector>

class znCEntity : public znINode
{
public:
    explicit znCEntity(const std::string& pName);
    ~znCEntity() override;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void update(s32 pDeltaMs) override;
    void render() override;
    void posChangeHandle() override;
    void matrixApply() override;
    void mySave(std::string& pOut) override; // the active flag, then the components
    void myLoad(std::string& pIn) override;
    void myPostLoad() override;

    // Returns the new component, which the entity owns; null, with a log line, if the type isn't registered. A second
    // one of a type is logged and works, but isn't found.
    znIComponent* componentAdd(const znCUniqueId& pType);
    // Deletes the component. Logged if there is none, or if it is pending. Not for use while events are being
    // forwarded: that is logged and done.
    void componentRemove(const znCUniqueId& pType);
    znIComponent* componentGet(const znCUniqueId& pType) const; // null if there is none

    // componentAdd() and componentGet() for a class that names its type.
    template <class T>
    T* componentAdd()
    {
        return dynamic_cast<T*>(componentAdd(T::TYPE));
    }
    template <class T>
    T* componentGet() const
    {
        return dynamic_cast<T*>(componentGet(T::TYPE));
    }

    // The first component, in their order, that can be seen as a T; null if there is none.
    template <class T>
    T* componentFind() const;

    // The first entity at or below this one that holds a component of exactly that class; what stands below comes
    // before the entity itself. Null if there is none.
    znCEntity* entityWithComponentFind(const std::type_info& pClass);
    // All entities at or below this one that hold a component of any of these classes, children before parents.
    std::vector<znCEntity*> entitiesWithComponentsGet(const std::vector<const std::type_info*>& pClasses);
    // The same for a component that can be seen as a T.
    template <class T>
    std::vector<znCEntity*> entitiesWithKindGet();

private:
    template <class T>
    static void kindCollect(znINode& pNode, std::vector<znCEntity*>& pFound);
    bool componentOfClassHeld(const std::vector<const std::type_info*>& pClasses) const;
    void pendingComponentsJoin();
    void componentEnter(const znCUniqueId& pType, std::unique_ptr<znIComponent> pComponent);
    void componentDelete(std::unique_ptr<znIComponent> pComponent);
    void stepsReview();
    bool eventHeard(u8 pEvent) const;
    template <class Event>
    void forward(Event pEvent);

    bool mIterating = false;
    std::vector<std::unique_ptr<znIComponent>> mComponentsVector;
    std::vector<std::pair<std::unique_ptr<znIComponent>, znCUniqueId>> mPendingComponents;
    std::map<u32, znIComponent*> mComponentsMap; // by type; not owned
};

template <class T>
T* znCEntity::componentFind() const
{
    for (const auto& component : mComponentsVector)
        if (T* found = dynamic_cast<T*>(component.get()))
            return found;
    return nullptr;
}

template <class T>
std::vector<znCEntity*> znCEntity::entitiesWithKindGet()
{
    std::vector<znCEntity*> found;
    kindCollect<T>(*this, found);
    return found;
}

template <class T>
void znCEntity::kindCollect(znINode& pNode, std::vector<znCEntity*>& pFound)
{
    for (znINode* child : pNode.childrenGet())
        kindCollect<T>(*child, pFound);
    auto* entity = dynamic_cast<znCEntity*>(&pNode);
    if (entity != nullptr && entity->componentFind<T>() != nullptr)
        pFound.push_back(entity);
}

#endif
