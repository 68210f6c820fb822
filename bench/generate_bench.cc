// Generation: encoders and decoders of modules at two sizes, to show the
// growth; of the modules in a directory of ASN.1 files; and the search for
// circles among the imports of a thousand modules.

#include "asn2stx/compile.h"
#include "asn2stx/parser.h"
#include "base/diag.h"
#include "base/upcalls.h"
#include "cbet/cvars.h"
#include "cbet/importstatus.h"
#include "cbet/outfile.h"
#include "driver/meta.h"
#include "per/decoder.h"
#include "per/encoder.h"
#include "stx/stxwrite.h"
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

// Trees in a directory of their own, loaded under their prefixes; gone from
// the disk with the object.
struct BenchTrees {
  std::string path;
  std::vector<std::string> prefixes;

  BenchTrees()
  {
    char name[] = "/tmp/quorven-bench-XXXXXX";
    path = std::string(mkdtemp(name)) + "/";
  }
  ~BenchTrees()
  {
    fs::remove_all(path);
    resetStore();
  }
  BenchTrees(const BenchTrees &) = delete;

  void add(const StxTree &tree, const std::string &prefix)
  {
    stxWrite(tree, (path + prefix + ".stx").c_str());
    prefixes.push_back(prefix);
  }
  void load() const
  {
    stxDir = path;
    for (const std::string &prefix : prefixes)
      setModulePrefixes(*appendModRec(true), prefix.c_str(), prefix.c_str());
    readAllSyntaxTrees();
    initBackendVars();
    cInitVars();
  }
};

static int64_t linesWritten;

static void generateModule(AsnModule &module)
{
  openNamedF(1, "/dev/", "null");
  fiEnc = fiEncE = fiDec = fiDecE = 1;
  generatePEREncodingFunctions(module);
  generatePERDecodingFunctions(module);
  linesWritten += linesInF(1);
  closeF(1);
}

static void generateAll(benchmark::State &state)
{
  linesWritten = 0;
  verboseEx = 1;
  // Once: every traversal must find the nodes below its stamps.
  resetStamps();
  for (auto _ : state)
    forEachModule(generateModule);
  state.SetItemsProcessed(linesWritten);
  state.SetLabel("items are lines");
}

// SEQUENCEs of ten components: optional ones, a marker and additions, inline
// structures and lists, and a reference to the first of them.
static StxTree typesTree(int64_t nodes)
{
  StxTree tree = stxNewTree("Bench", "bench");
  int32_t father = 0;
  for (int64_t i = 0; i < nodes; ++i) {
    int64_t place = i % 11;
    TNode node = stxNewTNode(TYP_BOOLEAN, VF_BOOL);
    if (place == 0) {
      node = stxNewTNode(TYP_SEQ, VF_STRU);
      node.valueFieldSize = VF_UI16;
      father = stxDefineType(tree, "T" + std::to_string(i), node);
      continue;
    }
    if (place == 6)
      node = stxNewTNode(TYP_EXTENSION_MARKER);
    if (place == 4)
      node = stxNewSynonym(1);
    node.compStatus = place % 3 == 0 && place != 6 ? TCS_OPTIONAL : 0;
    stxAddComp(tree, father, "c" + std::to_string(place), node);
  }
  return tree;
}

static void generateBench(benchmark::State &state)
{
  BenchTrees trees;
  trees.add(typesTree(state.range(0)), "bench");
  trees.load();
  generateAll(state);
}
BENCHMARK(generateBench)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

static void compileFile(Ast &ast, AsnErrors &errors, const fs::path &path)
{
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  parseAsnText(ast, errors, path.string().c_str(), text.str());
}

// A set of modules that the repository does not hold: the variable names a
// directory of *.asn files.
static void generateSetBench(benchmark::State &state)
{
  const char *directory = getenv("QUORVEN_BENCH_ASN");
  if (!directory) {
    state.SkipWithError("QUORVEN_BENCH_ASN names no directory of *.asn files");
    return;
  }
  Ast ast;
  AsnErrors errors;
  Asn2StxOptions options;
  std::vector<CompiledTree> compiled;
  for (const fs::directory_entry &entry : fs::directory_iterator(directory))
    if (entry.path().extension() == ".asn")
      compileFile(ast, errors, entry.path());
  if (!errors.errors.empty() ||
      !compileModules(ast, options, errors, compiled)) {
    state.SkipWithError("the files do not compile");
    return;
  }
  BenchTrees trees;
  for (const CompiledTree &tree : compiled)
    trees.add(tree.tree, tree.prefix);
  trees.load();
  generateAll(state);
}
BENCHMARK(generateSetBench)->Unit(benchmark::kMillisecond);

// Each module imports from three others; all are in one great circle.
static void circularImportsBench(benchmark::State &state)
{
  int64_t count = state.range(0);
  BenchTrees trees;
  for (int64_t i = 0; i < count; ++i) {
    StxTree tree = stxNewTree("M" + std::to_string(i), "m" + std::to_string(i));
    stxDefineType(tree, "T", stxNewTNode(TYP_NULL, VF_NULL));
    for (int64_t step : {1, 7, 101}) {
      std::string other = std::to_string((i + step) % count);
      stxImport(tree, "M" + other, "m" + other, true);
    }
    trees.add(tree, "m" + std::to_string(i));
  }
  trees.load();
  AsnModule *module = newAsnModule(*bOfModRList);
  for (auto _ : state) {
    getModuleInfoCache(*module).known = 0;
    benchmark::DoNotOptimize(cIsCircularImports(*module));
  }
  delAsnModule(module);
}
BENCHMARK(circularImportsBench)
    ->Arg(250)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);
