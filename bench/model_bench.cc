// Views of types: every type and component of trees at two sizes, to show the
// growth, with the allocations that one visit takes once the free lists are
// filled. Names are short, as strings keep short texts in themselves.

#include "memory.h"
#include "model/typeiter.h"
#include "stx/stxwrite.h"
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <malloc.h>
#include <string>
#include <unistd.h>

static int64_t visits;

// A tree of that many type nodes: SEQUENCEs of ten components, of which one
// refers to the first of them, with a marker among them.
static void makeModelTree(int64_t nodes, const std::string &path)
{
  StxTree tree = stxNewTree("Bench", "bench");
  int32_t father = 0;
  for (int64_t i = 0; i < nodes; ++i) {
    int64_t place = i % 11;
    std::string name = "c" + std::to_string(place);
    TNode node = stxNewTNode(place == 5 ? TYP_EXTENSION_MARKER : TYP_INTEGER);
    if (place == 7)
      node = stxNewSynonym(1);
    if (place == 0)
      father =
          stxDefineType(tree, "T" + std::to_string(i), stxNewTNode(TYP_SEQ));
    else
      stxAddComp(tree, father, name, node);
  }
  stxWrite(tree, path.c_str());
}

static ModRec *loadModelTree(int64_t nodes)
{
  char directory[] = "/tmp/quorven-bench-XXXXXX";
  stxDir = std::string(mkdtemp(directory)) + "/";
  makeModelTree(nodes, stxDir + "bench.stx");
  ModRec *module = appendModRec(true);
  module->options.prefixLen = 5;
  setModulePrefixes(*module, "bench", "bench");
  readAllSyntaxTrees();
  initBackendVars();
  unlink((stxDir + "bench.stx").c_str());
  rmdir(directory);
  return module;
}

static void visitComp(AsnType &, AsnType &comp, int compNbr)
{
  ++visits;
  benchmark::DoNotOptimize(comp.base.mainType);
  benchmark::DoNotOptimize(compNbr);
}

typedef void CompWalk(AsnType &, CompCallBack *);
static CompWalk *compWalk;

static void visitType(AsnType &type, int)
{
  ++visits;
  compWalk(type, visitComp);
}

// Free-list blocks come from the C heap: growth of the heap in use counts
// them.
static void walkBench(benchmark::State &state, CompWalk *walk, bool metaRecs)
{
  AsnModule module;
  initAsnModule(module, *loadModelTree(state.range(0)));
  bool before = setCreateBETypMetaFlag(metaRecs);
  compWalk = walk;
  forEachType(module, visitType);
  visits = 0;
  size_t allocations = allocationsSoFar();
  size_t inUse = mallinfo2().uordblks;
  for (auto _ : state)
    forEachType(module, visitType);
  double perVisit = 1.0 / static_cast<double>(visits);
  state.counters["allocations/visit"] =
      static_cast<double>(allocationsSoFar() - allocations) * perVisit;
  state.counters["heap growth"] =
      static_cast<double>(mallinfo2().uordblks) - static_cast<double>(inUse);
  state.SetItemsProcessed(visits);
  setCreateBETypMetaFlag(before);
  resetStore();
}

static void forwardBench(benchmark::State &state)
{
  walkBench(state, forEachTypeComp, false);
}
BENCHMARK(forwardBench)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

static void forwardMetaBench(benchmark::State &state)
{
  walkBench(state, forEachTypeComp, true);
}
BENCHMARK(forwardMetaBench)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

static void reverseBench(benchmark::State &state)
{
  walkBench(state, forEachTypeCompRevOrd, false);
}
BENCHMARK(reverseBench)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
