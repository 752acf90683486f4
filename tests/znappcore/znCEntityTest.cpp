#include "znappcore/src/znCEntity.h"

#include "tests/znappcore/znCTreeTest.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/src/znCEntityFactory.h"
#include "znappcore/znIMessageListenerComponent.h"
#include "zncore/src/znCVariableTable.h"

#include <functional>
#include <map>
#include <memory>

namespace
{
using Journal = std::vector<std::string>;
using Hook = std::function<void(znIComponent*)>;

Journal sJournal;
std::map<std::string, Hook> sHooks; // what a component does in its steps, by the line it writes

void note(const std::string& pLine, znIComponent* pComponent)
{
    sJournal.push_back(pLine);
    const auto hook = sHooks.find(pLine);
    if (hook != sHooks.end())
        Hook(hook->second)(pComponent);
}

Journal journalTake()
{
    Journal journal;
    journal.swap(sJournal);
    return journal;
}

template <char Letter>
class Part : public znIComponent
{
public:
    static constexpr char NAME[] = {Letter, '\0'};
    static constexpr znCUniqueId TYPE{NAME};

    using znIComponent::znIComponent;
    ~Part() override { note(line("destroyed"), this); }
    void update(s32) override { note(line("update"), this); }
    void render() override { note(line("render"), this); }
    void posChangeHandle() override { note(line("position"), this); }
    void matrixApply() override { note(line("matrix"), this); }
    void mySave(std::string& pOut) override { znINode::strSave(pOut, NAME); }
    void myLoad(std::string& pIn) override { note(line("loads ") + znINode::strLoad(pIn), this); }
    void myPostLoad() override { note(line("loaded"), this); }
    void initialiseFromVariableTableDo(const znCVariableTable&) override { note(line("initialise"), this); }

private:
    static std::string line(const char* pWhat) { return std::string(NAME) + " " + pWhat; }
};

class Listener : public znIMessageListenerComponent
{
public:
    static constexpr znCUniqueId TYPE{"listener"};

    explicit Listener(znCEntity* pEntity) : znIMessageListenerComponent(pEntity) {}
    ~Listener() override { note("listener destroyed", this); }
    void messagesRegister() override { note("listens", this); }
    void messagesDeregister() override { note("deaf", this); }
    bool messageProcess(const znCUniqueId&, void*) override { return false; }
    void initialiseFromVariableTableDo(const znCVariableTable&) override { note("listener initialise", this); }
};

using A = Part<'A'>;
using B = Part<'B'>;
using C = Part<'C'>;

class znCEntityTest : public znCTreeTest
{
protected:
    void SetUp() override
    {
        znCTreeTest::SetUp();
        znCComponentFactory* factory = znCComponentFactory::instanceGet();
        factory->componentRegister<A>();
        factory->componentRegister<B>();
        factory->componentRegister<C>();
        factory->componentRegister<Listener>();
        sJournal.clear();
        sHooks.clear();
    }
};
} // namespace

TEST_F(znCEntityTest, ForwardsEveryEventInTheOrderOfAdding)
{
    {
        znCEntity entity("entity");
        entity.componentAdd<B>();
        entity.componentAdd<A>();
        entity.childAdd(new znCEntity("child"));
        znINode* child = entity.childFind("child");
        static_cast<znCEntity*>(child)->componentAdd<C>();

        znCVariableTable table;
        table.s32Set("posX", 3);
        entity.initialiseFromVariableTable(table);
        EXPECT_EQ(journalTake(), (Journal{"B position", "A position", "B initialise", "A initialise"}));
        entity.treeUpdate(16);
        EXPECT_EQ(journalTake(),
                  (Journal{"B update", "A update", "C update", "C matrix", "B matrix", "A matrix", "C matrix"}));
        entity.treeRender();
        EXPECT_EQ(journalTake(), (Journal{"B render", "A render", "C render"}));
    }
    EXPECT_EQ(journalTake(), (Journal{"B destroyed", "A destroyed", "C destroyed"}));
}

TEST_F(znCEntityTest, SavesItsActiveFlagBeforeTheComponents)
{
    znCEntity entity("abc");
    entity.componentAdd<B>();
    entity.componentAdd<A>();
    entity.activeSet(false);
    std::string text;
    entity.treeSave(text);
    EXPECT_EQ(text, "0001a9a6{0,B,A,}");
    entity.activeSet(true);
    entity.treeLoad(text);
    EXPECT_FALSE(entity.activeGet());
    EXPECT_EQ(journalTake(), (Journal{"B loads B", "A loads A", "B loaded", "A loaded"}));
}

TEST_F(znCEntityTest, ComponentAddedDuringAnEventJoinsAtTheEndOfAnUpdate)
{
    for (const char* event : {"A update", "A render", "A position", "A initialise"})
    {
        SCOPED_TRACE(event);
        sHooks[event] = [](znIComponent* pComponent)
        {
            sHooks.clear();
            EXPECT_NE(pComponent->entityGet()->componentAdd<B>(), nullptr);
            // An event within the event doesn't end the waiting.
            pComponent->entityGet()->posSet(znPoint(7, 7));
            EXPECT_NE(pComponent->entityGet()->componentAdd<C>(), nullptr);
        };
        znCEntity entity("entity");
        entity.componentAdd<A>();
        znCVariableTable table;
        table.s32Set("posX", 1);
        entity.initialiseFromVariableTable(table);
        entity.render();
        entity.update(16);
        EXPECT_NE(entity.componentGet<B>(), nullptr);
        Journal before = journalTake();
        EXPECT_EQ(std::count(before.begin(), before.end(), "B update"), 0);
        entity.update(16);
        EXPECT_EQ(journalTake(), (Journal{"A update", "B update", "C update"}));
    }
}

TEST_F(znCEntityTest, PendingComponentDiesWithTheEntity)
{
    {
        znCEntity entity("entity");
        entity.componentAdd<A>();
        sHooks["A render"] = [](znIComponent* pComponent)
        {
            pComponent->entityGet()->componentAdd<Listener>();
        };
        entity.render();
        EXPECT_EQ(entity.entityWithComponentFind(typeid(Listener)), &entity);
    }
    EXPECT_EQ(journalTake(), (Journal{"A render", "listens", "A destroyed", "deaf", "listener destroyed"}));
}

TEST_F(znCEntityTest, ListenersListenFromTheirMakingToTheirEnd)
{
    znCEntity entity("entity");
    entity.componentAdd<Listener>();
    entity.initialiseFromVariableTable(znCVariableTable());
    entity.componentRemove(Listener::TYPE);
    EXPECT_EQ(journalTake(), (Journal{"listens", "listener initialise", "deaf", "listener destroyed"}));
    EXPECT_EQ(entity.componentGet<Listener>(), nullptr);
}

TEST_F(znCEntityTest, SecondComponentOfATypeIsLoggedAndWorks)
{
    znCEntity entity("entity");
    znIComponent* first = entity.componentAdd(A::TYPE);
    znIComponent* second = entity.componentAdd(A::TYPE);
    EXPECT_NE(first, second);
    EXPECT_EQ(entity.componentGet(A::TYPE), first);
    EXPECT_EQ(errorsTake(), (Journal{"Component type already exists in this entity."}));
    entity.update(16);
    EXPECT_EQ(journalTake(), (Journal{"A update", "A update"}));
    entity.componentRemove(A::TYPE);
    EXPECT_EQ(entity.componentGet(A::TYPE), nullptr);
    entity.update(16);
    EXPECT_EQ(journalTake(), (Journal{"A destroyed", "A update"}));
}

TEST_F(znCEntityTest, UnknownTypesAreLoggedAndLeaveTheRest)
{
    znCEntity entity("entity");
    EXPECT_EQ(entity.componentAdd(znCUniqueId("unknown")), nullptr);
    entity.componentAdd<A>();
    entity.treeUpdate(16);
    entity.treeRender();
    EXPECT_EQ(errorsTake(), (Journal{"No such component."}));
    entity.componentRemove(znCUniqueId("unknown"));
    EXPECT_EQ(errorsTake(), (Journal{"Component not found to remove."}));
}

TEST_F(znCEntityTest, RemovalDuringAnEventIsLoggedAndDone)
{
    for (const char* remover : {"A update", "B update", "C update"})
    {
        SCOPED_TRACE(remover);
        znCEntity entity("entity");
        entity.componentAdd<A>();
        entity.componentAdd<B>();
        entity.componentAdd<C>();
        sHooks[remover] = [](znIComponent* pComponent)
        {
            sHooks.clear();
            pComponent->entityGet()->componentRemove(B::TYPE);
        };
        entity.update(16);
        EXPECT_EQ(errorsTake(), (Journal{"Removing a component while iterators exist."}));
        sJournal.clear();
        entity.update(16);
        EXPECT_EQ(journalTake(), (Journal{"A update", "C update"}));
    }
}

TEST_F(znCEntityTest, DyingComponentsFindNoDeadNeighbours)
{
    bool foundDead = true;
    std::vector<znCEntity*> found;
    znCEntity root("root");
    auto* entity = new znCEntity("entity");
    root.childAdd(entity);
    entity->componentAdd<A>();
    entity->componentAdd<B>();
    entity->componentAdd<C>();
    sHooks["B destroyed"] = [&](znIComponent* pComponent)
    {
        foundDead = pComponent->entityGet()->componentGet(A::TYPE) != nullptr;
        found = root.entitiesWithComponentsGet({&typeid(A), &typeid(B), &typeid(C)});
        pComponent->entityGet()->posSet(znPoint(3, 3));
    };
    delete entity;
    EXPECT_FALSE(foundDead);
    EXPECT_EQ(found, std::vector<znCEntity*>{entity}) << "its last component still lives";
    EXPECT_EQ(journalTake(), (Journal{"A destroyed", "B destroyed", "C position", "C destroyed"}));
}

TEST_F(znCEntityTest, FindsEntitiesByTheClassOfAComponent)
{
    znCEntity root("root");
    root.componentAdd<A>();
    auto* plain = new znINode("plain");
    root.childAdd(plain);
    auto* below = new znCEntity("below");
    plain->childAdd(below);
    below->componentAdd<A>();
    below->componentAdd<B>();
    auto* last = new znCEntity("last");
    root.childAdd(last);
    last->componentAdd<B>();

    EXPECT_EQ(root.entityWithComponentFind(typeid(A)), below) << "what stands below comes first";
    EXPECT_EQ(last->entityWithComponentFind(typeid(A)), nullptr);
    EXPECT_EQ(root.entityWithComponentFind(typeid(znIComponent)), nullptr) << "exactly that class";
    EXPECT_EQ(root.entitiesWithComponentsGet({&typeid(A), &typeid(B)}), (std::vector<znCEntity*>{below, last, &root}));
    EXPECT_EQ(below->componentFind<znIComponent>(), below->componentGet(A::TYPE));
}

// --- factories ---

TEST_F(znCEntityTest, TheFirstRegistrationOfATypeStands)
{
    znCComponentFactory* factory = znCComponentFactory::instanceGet();
    const znCUniqueId type("thing");
    EXPECT_FALSE(factory->componentExistsGet(type));
    factory->componentRegister(type, [](znCEntity* pEntity) -> znIComponent* { return new A(pEntity); });
    factory->componentRegister(type, [](znCEntity* pEntity) -> znIComponent* { return new B(pEntity); });
    EXPECT_TRUE(factory->componentExistsGet(type));
    znCEntity entity("entity");
    EXPECT_NE(dynamic_cast<A*>(entity.componentAdd(type)), nullptr);
}

TEST_F(znCEntityTest, ConstructsByThePrefixOfTheName)
{
    znCEntityFactory* factory = znCEntityFactory::instanceGet();
    factory->constructionPlanAdd("COL-", {B::TYPE, A::TYPE});
    struct Case
    {
        const char* mName;
        const char* mPrefix;
        bool mBuilt;
        Journal mErrors;
    };
    const Case cases[] = {
        {"COL-lamp-m1", "COL-", true, {}},
        {"COL-", "COL-", true, {}},
        {"KEY-lamp", "KEY-", false, {"Failed to find a construction plan to construct KEY-lamp."}},
        {"lamp",
         "",
         false,
         {"Expected a prefix on entity name lamp.", "Expected a prefix on entity name lamp.",
          "Failed to find a construction plan to construct lamp."}},
    };
    for (const Case& test : cases)
    {
        SCOPED_TRACE(test.mName);
        EXPECT_EQ(factory->entityPrefixGet(test.mName), test.mPrefix);
        const std::unique_ptr<znCEntity> entity(factory->entityConstruct(test.mName));
        EXPECT_EQ(entity != nullptr, test.mBuilt);
        EXPECT_EQ(errorsTake(), test.mErrors);
        if (entity == nullptr)
            continue;
        EXPECT_EQ(entity->nameGet(), test.mName);
        sJournal.clear();
        entity->update(16);
        EXPECT_EQ(journalTake(), (Journal{"B update", "A update"}));
    }
}

TEST_F(znCEntityTest, DerivedFactoryMustRegisterTheBasesPlans)
{
    class Factory : public znCEntityFactory
    {
    public:
        static void create() { instanceSet(std::make_unique<Factory>(), "Factory"); }
        void constructionPlansRegisterDo() override {}
    };
    znCEntityFactory::destroy();
    Factory::create();
    EXPECT_EQ(errorsTake(), (Journal{"All derived classes need to call super::constructionPlansRegisterDo()"}));
}

TEST_F(znCEntityTest, FactoriesComplainAboutTheWrongOrder)
{
    znCComponentFactory::create();
    znCEntityFactory::create();
    EXPECT_EQ(errorsTake(), (Journal{"Already created znCComponentFactory.", "Already created znCEntityFactory."}));
    znCComponentFactory::destroy();
    znCComponentFactory::destroy();
    EXPECT_EQ(errorsTake(), Journal{}) << "this one is silent";
    znCEntity entity("entity");
    EXPECT_EQ(entity.componentAdd(A::TYPE), nullptr);
    znCEntityFactory::destroy();
    EXPECT_EQ(znCEntityFactory::instanceGet(), nullptr);
    znCEntityFactory::destroy();
    EXPECT_EQ(errorsTake(), (Journal{"Not created.", "Not created.", "Not created."}));
    znCComponentFactory::create();
    znCEntityFactory::create();
}
