#ifndef ZNAPPCORE_SRC_ZNCENTITYFACTORY_H
#define ZNAPPCORE_SRC_ZNCENTITYFACTORY_H

// Makes entities by name: the start of the name picks a construction plan, the list of the components that such an
// entity starts with. A singleton; a game layer derives its own factory and makes that one the instance. This base has
// no plans.

#include "znappcore/znCUniqueId.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

class znCEntity;

class znCEntityFactory
{
public:
    // A second call logs "Already created znCEntityFactory.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCEntityFactory* instanceGet();
    static void destroy();

    // A new entity with the components of its plan, initialised and in no tree: it belongs to the caller until it is
    // added to a node. Null, with a log line, if no plan fits.
    virtual znCEntity* entityConstruct(const std::string& pName);
    // The name up to and including its first "-"; empty, with a log line, if it has none.
    virtual std::string entityPrefixGet(const std::string& pName);
    // A derived class calls the base's first and adds its plans.
    virtual void constructionPlansRegisterDo();
    virtual ~znCEntityFactory();

    void constructionPlansRegister();
    // pPlan in the order in which the components are to be added; it replaces an earlier plan of that prefix.
    void constructionPlanAdd(const std::string& pPrefix, const std::vector<znCUniqueId>& pPlan);

protected:
    znCEntityFactory() = default;

    // For a derived class's create(): makes pFactory the instance and has it register its plans.
    // pClassName: what "Already created" names.
    static void instanceSet(std::unique_ptr<znCEntityFactory> pFactory, const char* pClassName);

    // Null if there is none.
    const std::vector<znCUniqueId>* constructionPlanFind(const std::string& pPrefix) const;
    const std::map<std::string, std::vector<znCUniqueId>>& constructionPlansGet() const { return mConstructionPlans; }

private:
    std::map<std::string, std::vector<znCUniqueId>> mConstructionPlans;
    bool mBaseRegisterCalled = false;
};

#endif
