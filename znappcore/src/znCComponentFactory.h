#ifndef ZNAPPCORE_SRC_ZNCCOMPONENTFACTORY_H
#define ZNAPPCORE_SRC_ZNCCOMPONENTFACTORY_H

// Makes components by their type. A singleton; a game layer derives its own factory, whose componentsRegister() calls
// the base's and adds its types, and makes that one the instance.

#include "znappcore/znCUniqueId.h"
#include "znappcore/znIComponent.h"

#include <map>
#include <memory>

class znCEntity;

class znCComponentFactory
{
public:
    using Creator = znIComponent* (*)(znCEntity* pEntity);

    virtual ~znCComponentFactory();

    // A second call logs "Already created znCComponentFactory.\n" and starts anew.
    static void create();
    // Logs "Not created.\n" and answers null without an instance.
    static znCComponentFactory* instanceGet();
    static void destroy(); // silent without an instance

    // The first registration of a type stands, a second is ignored.
    void componentRegister(const znCUniqueId& pType, Creator pCreator);
    template <class T>
    void componentRegister()
    {
        componentRegister(T::TYPE, creator<T>);
    }
    bool componentExistsGet(const znCUniqueId& pType) const;
    // The new component belongs to pEntity, the caller enters it there; it listens already if it is a listener. Null,
    // with a log line, for a type that isn't registered.
    znIComponent* componentCreate(znCEntity* pEntity, const znCUniqueId& pType);

protected:
    znCComponentFactory() = default;
    virtual void componentsRegister();

    // For a derived class's create(): makes pFactory the instance and has it register its types.
    static void instanceSet(std::unique_ptr<znCComponentFactory> pFactory);

private:
    template <class T>
    static znIComponent* creator(znCEntity* pEntity)
    {
        T* component = new T(pEntity); // deleted by the entity
        component->eventsSet(znIComponent::eventsOf<T>());
        return component;
    }

    std::map<u32, Creator> mCreators;
};

#endif
