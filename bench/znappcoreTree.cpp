// What the node tree and the messages cost beside the bare walk and the bare calls that no design could do without.

#include "znappcore/src/znCEntity.h"
#include "znappcore/znIMessageDispatcher.h"
#include "znappcore/znIMessageListener.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

// In no unnamed namespace, and each with a second class below it: the compiler must not guess whom a call reaches.
class BareNode
{
public:
    virtual ~BareNode()
    {
        for (BareNode* child : mChildren)
            delete child;
    }
    [[gnu::noinline]] virtual void update(s32 pDeltaMs) { benchmark::DoNotOptimize(pDeltaMs); }
    void childAdd(BareNode* pChild) { mChildren.push_back(pChild); }
    void treeUpdate(s32 pDeltaMs)
    {
        update(pDeltaMs);
        for (BareNode* child : mChildren)
            child->treeUpdate(pDeltaMs);
    }

private:
    std::vector<BareNode*> mChildren; // deleted in the destructor
    char mRoomOfANode[sizeof(znINode) - sizeof(std::vector<BareNode*>)] = {};
};

class BareOtherNode : public BareNode
{
public:
    [[gnu::noinline]] void update(s32 pDeltaMs) override { benchmark::DoNotOptimize(&pDeltaMs); }
};

class Declines : public znIMessageListener
{
public:
    void messagesRegister() override {}
    void messagesDeregister() override {}
    [[gnu::noinline]] bool messageProcess(const znCUniqueId& pType, void*) override
    {
        return pType == znCUniqueId("a");
    }
};

class DeclinesToo : public Declines
{
public:
    [[gnu::noinline]] bool messageProcess(const znCUniqueId& pType, void*) override
    {
        return pType == znCUniqueId("b");
    }
};

namespace
{
constexpr std::size_t NODES = 2000;
constexpr std::size_t CHILDREN_EACH = 8;
constexpr std::size_t LISTENERS = 500;

// A tree of NODES nodes in which the i-th hangs below node (i - 1) / CHILDREN_EACH.
template <class Node, class Make>
std::unique_ptr<Node> treeMake(Make pMake)
{
    std::vector<Node*> nodes{pMake()};
    for (std::size_t i = 1; i < NODES; ++i)
    {
        nodes.push_back(pMake());
        nodes[(i - 1) / CHILDREN_EACH]->childAdd(nodes.back());
    }
    return std::unique_ptr<Node>(nodes.front());
}

void StillTreeUpdate_ours(benchmark::State& pState)
{
    const auto root = treeMake<znINode>([] { return new znINode("node"); });
    root->treeUpdate(16);
    for (auto _ : pState)
        root->treeUpdate(16);
}
BENCHMARK(StillTreeUpdate_ours);

void StillTreeUpdate_reference(benchmark::State& pState)
{
    const auto root = treeMake<BareNode>(
        [i = 0]() mutable { return ++i % 2 == 0 ? new BareNode : static_cast<BareNode*>(new BareOtherNode); });
    for (auto _ : pState)
        root->treeUpdate(16);
}
BENCHMARK(StillTreeUpdate_reference);

// Every node moves each frame: what a rebuild of all matrices costs.
void MovingTreeUpdate_ours(benchmark::State& pState)
{
    const auto root = treeMake<znINode>([] { return new znINode("node"); });
    s32 x = 0;
    for (auto _ : pState)
    {
        root->posSet(++x, 0);
        root->treeUpdate(16);
    }
}
BENCHMARK(MovingTreeUpdate_ours);

void TreeLoad_ours(benchmark::State& pState)
{
    znCEntity root("root");
    for (s32 i = 0; i < pState.range(0); ++i)
        root.childAdd(new znCEntity("node" + std::to_string(i)));
    std::string saved;
    root.treeSave(saved);
    for (auto _ : pState)
    {
        std::string text = saved;
        root.treeLoad(text);
    }
    pState.SetComplexityN(pState.range(0));
}
BENCHMARK(TreeLoad_ours)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity(benchmark::oN);

using Listeners = std::vector<std::unique_ptr<Declines>>;

Listeners listenersMake()
{
    Listeners listeners;
    for (std::size_t i = 0; i < LISTENERS; ++i)
        if (i % 2 == 0)
            listeners.push_back(std::make_unique<Declines>());
        else
            listeners.push_back(std::make_unique<DeclinesToo>());
    return listeners;
}

void Press_ours(benchmark::State& pState)
{
    const znCUniqueId press("press");
    const Listeners listeners = listenersMake();
    znIMessageDispatcher dispatcher;
    for (const auto& listener : listeners)
        dispatcher.listenerRegister(press, listener.get());
    for (auto _ : pState)
        benchmark::DoNotOptimize(dispatcher.messageSend(press, nullptr));
}
BENCHMARK(Press_ours);

void Press_reference(benchmark::State& pState)
{
    const znCUniqueId press("press");
    const Listeners listeners = listenersMake();
    std::vector<znIMessageListener*> pointers;
    for (const auto& listener : listeners)
        pointers.push_back(listener.get());
    for (auto _ : pState)
    {
        bool consumed = false;
        for (auto pointer = pointers.rbegin(); pointer != pointers.rend() && !consumed; ++pointer)
            consumed = (*pointer)->messageProcess(press, nullptr);
        benchmark::DoNotOptimize(consumed);
    }
}
BENCHMARK(Press_reference);
} // namespace

BENCHMARK_MAIN();
