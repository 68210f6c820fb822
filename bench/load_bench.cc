// Loading of trees at three sizes, to show the growth, and the calls that a
// run is made of.

#include "memory.h"
#include "store/module.h"
#include "stx/stxwrite.h"
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

// A directory for trees, removed at the end.
struct BenchDir {
  std::string path;
  BenchDir()
  {
    char name[] = "/tmp/quorven-bench-XXXXXX";
    path = std::string(mkdtemp(name)) + "/";
  }
  ~BenchDir() { rmdir(path.c_str()); }
};

static const BenchDir benchDir;

// A tree of that many type nodes, each with a name of its own, in SEQUENCEs
// of ten components. No name was in a tree before.
static size_t makeTree(int64_t nodes)
{
  static int64_t made;
  StxTree tree = stxNewTree("Bench", "bench");
  int32_t father = 0;
  for (int64_t i = 0; i < nodes; ++i) {
    std::string name = std::to_string(made++);
    if (i % 11 == 0)
      father = stxDefineType(tree, "Type-" + name, stxNewTNode(TYP_SEQ));
    else
      stxAddComp(tree, father, "comp-" + name, stxNewTNode(TYP_INTEGER));
  }
  std::string octets = stxEncode(tree);
  stxWriteOctets(octets, (benchDir.path + "bench.stx").c_str());
  return octets.size();
}

static ModRec *loadTree()
{
  stxDir = benchDir.path;
  ModRec *module = appendModRec(true);
  module->options.prefixLen = 5;
  setModulePrefixes(*module, "bench", "bench");
  readAllSyntaxTrees();
  initBackendVars();
  return module;
}

static void removeTree() { unlink((benchDir.path + "bench.stx").c_str()); }

// Memory is that of the first load: strings stay interned for the next ones,
// which are timed.
static void loadBench(benchmark::State &state)
{
  size_t size = makeTree(state.range(0));
  size_t before = liveOctets();
  loadTree();
  double memory = static_cast<double>(liveOctets() - before);
  resetStore();
  for (auto _ : state) {
    benchmark::DoNotOptimize(loadTree());
    state.PauseTiming();
    resetStore();
    state.ResumeTiming();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(size));
  state.counters["memory/file"] = memory / static_cast<double>(size);
  removeTree();
}
BENCHMARK(loadBench)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond);

// What the disk cache gives: the same file, read and dropped.
static void readFileBench(benchmark::State &state)
{
  size_t size = makeTree(state.range(0));
  std::string path = benchDir.path + "bench.stx";
  std::string block(256 * 1024, 0);
  for (auto _ : state) {
    FILE *file = fopen(path.c_str(), "rb");
    setvbuf(file, nullptr, _IONBF, 0);
    while (fread(block.data(), 1, block.size(), file) == block.size())
      benchmark::ClobberMemory();
    fclose(file);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(size));
  removeTree();
}
BENCHMARK(readFileBench)->Arg(1000000)->Unit(benchmark::kMillisecond);

// Records in turn, and the same record again.
static void readRecBench(benchmark::State &state)
{
  makeTree(100000);
  ModRec *module = loadTree();
  removeTree();
  int32_t step = static_cast<int32_t>(state.range(0));
  int32_t index = 1;
  for (auto _ : state) {
    readRec(module, REC_TNODE, index);
    benchmark::DoNotOptimize(tNode.next);
    index += step;
    if (index > 100000)
      index -= 100000;
  }
  resetStore();
}
BENCHMARK(readRecBench)->Arg(0)->Arg(1)->Arg(7919);

// A chain of all definitions, with its guard.
static void chainBench(benchmark::State &state)
{
  makeTree(state.range(0));
  ModRec *module = loadTree();
  removeTree();
  for (auto _ : state)
    forEachTNodeByMod(
        module, module->firstType,
        [](void *) { benchmark::DoNotOptimize(tNode.mainType); }, nullptr);
  state.SetItemsProcessed(state.iterations() * (state.range(0) / 11));
  resetStore();
}
BENCHMARK(chainBench)->Arg(10000)->Arg(1000000);
