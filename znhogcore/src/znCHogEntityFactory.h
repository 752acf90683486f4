#ifndef ZNHOGCORE_SRC_ZNCHOGENTITYFACTORY_H
#define ZNHOGCORE_SRC_ZNCHOGENTITYFACTORY_H

// Makes the entities of a scene: the start of an entity's name decides which components it gets, and so what it does.
// A name that starts with no known key becomes a plain sprite. It takes the framework factory's place.

#include "znappcore/src/znCEntityFactory.h"

#include <set>
#include <typeinfo>

class znCHogEntityFactory : public znCEntityFactory
{
public:
    // What pick lists find entities by; see znCEntity::entitiesWithComponentsGet.
    using Identifier = const std::type_info*;

    // A second call logs "Already created znCHogEntityFactory.\n" and starts anew.
    static void create();
    // Logs "Not created.\n" and returns null without an instance.
    static znCHogEntityFactory* instanceGet();

    // As the base's, by the base name of pName, which the entity keeps whole as its node name; znCNameComponent comes
    // first. Null if no plan stands under its key.
    znCEntity* entityConstruct(const std::string& pName) override;
    // The first key, in byte order, that pName starts with; "MASK-" if there is none.
    std::string entityPrefixGet(const std::string& pName) override;
    void constructionPlansRegisterDo() override;
    ~znCHogEntityFactory() override;

    // The component class that tells entities of that key, where they can stand on a pick list. Null, with "An
    // identifier id for entities of type %s has not been registered.\n", for another key.
    Identifier entityIdentifierIdGet(const std::string& pPrefix) const;

private:
    znCHogEntityFactory() = default;

    void planComponentsAdd(znCEntity& pEntity, const std::string& pPrefix, const std::vector<znCUniqueId>& pPlan);

    std::map<std::string, Identifier> mEntityIdentifiers; // by key
    std::set<std::string> mPrefixesReported;              // plans with a component that isn't registered
};

#endif
