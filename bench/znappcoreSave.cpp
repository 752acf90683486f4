// What saving and loading a tree cost for each of its nodes: the time must grow with their number and no faster, also
// when the text's sections stand in another order or are another tree's.

#include "znappcore/src/znCEntity.h"
#include "znappcore/znNSavedTree.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

namespace
{
constexpr s32 BRANCH = 50; // nodes below one of the root's children

enum class Order
{
    straight,
    reversed
};

// A tree of pNodes nodes, as flat as a scene is.
std::unique_ptr<znCEntity> treeMake(s64 pNodes, Order pOrder = Order::straight, const std::string& pName = "node")
{
    std::vector<s32> numbers;
    for (s32 i = 0; i < pNodes; ++i)
        numbers.push_back(i);
    if (pOrder == Order::reversed)
        std::reverse(numbers.begin(), numbers.end());
    auto root = std::make_unique<znCEntity>("root");
    znCEntity* branch = root.get();
    for (s32 i = 0; i < pNodes; ++i)
    {
        auto* node = new znCEntity(pName + std::to_string(numbers[static_cast<std::size_t>(i)])); // owned by the tree
        (i % BRANCH == 0 ? root.get() : branch)->childAdd(node);
        if (i % BRANCH == 0)
            branch = node;
    }
    return root;
}

std::string savedGet(znCEntity& pTree)
{
    std::string text;
    pTree.treeSave(text);
    return text;
}

void TreeSave(benchmark::State& pState)
{
    const auto tree = treeMake(pState.range(0));
    std::string text;
    for (auto _ : pState)
    {
        text.clear();
        tree->treeSave(text);
    }
    pState.SetComplexityN(pState.range(0));
}
BENCHMARK(TreeSave)->RangeMultiplier(10)->Range(100, 10000)->Complexity(benchmark::oN);

void TreeRestore(benchmark::State& pState)
{
    const auto tree = treeMake(pState.range(0));
    const std::string saved = savedGet(*tree);
    for (auto _ : pState)
    {
        std::string text = saved;
        tree->treeLoad(text);
    }
    pState.SetComplexityN(pState.range(0));
}
BENCHMARK(TreeRestore)->RangeMultiplier(10)->Range(100, 10000)->Complexity(benchmark::oN);

// As a level restores what it saved: fitted to the scene first.
void fittedRestore(benchmark::State& pState, const std::string& pSaved)
{
    const auto tree = treeMake(pState.range(0));
    for (auto _ : pState)
    {
        std::string text = znNSavedTree::fit(savedGet(*tree), pSaved).mText;
        tree->treeLoad(text);
    }
    pState.SetComplexityN(pState.range(0));
}

void TreeRestoreReversed(benchmark::State& pState)
{
    fittedRestore(pState, savedGet(*treeMake(pState.range(0), Order::reversed)));
}
BENCHMARK(TreeRestoreReversed)->RangeMultiplier(10)->Range(100, 10000)->Complexity(benchmark::oN);

void TreeRestoreAnother(benchmark::State& pState)
{
    fittedRestore(pState, savedGet(*treeMake(pState.range(0), Order::straight, "other")));
}
BENCHMARK(TreeRestoreAnother)->RangeMultiplier(10)->Range(100, 10000)->Complexity(benchmark::oN);
} // namespace

BENCHMARK_MAIN();
