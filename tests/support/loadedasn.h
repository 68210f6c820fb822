#pragma once
#include "support/asncompile.h"
#include "support/constrainttrees.h"
#include "support/loadedrun.h"
#include <gtest/gtest.h>
#include <string>

// Annotated ASN.1, compiled and loaded by the real start: views of its types
// have meta records. A text that is loaded replaces the one before.
struct LoadedAsn : testing::Test {
  LoadedRun run;
  bool metaRecs = setCreateBETypMetaFlag(true);
  Asn2StxOptions options;
  AsnCompiled compiled;
  AsnModule module;  // the first one

  ~LoadedAsn() override { setCreateBETypMetaFlag(metaRecs); }

  // A module M around the assignments.
  void load(const std::string &body, const std::string &tags = "AUTOMATIC TAGS")
  {
    start(compileBody(body, options, tags));
  }
  // Whole modules, of which the first one is named on the command line.
  void loadModules(const std::string &text)
  {
    start(compileAsn(text, options));
  }
  // What is compiled, a test having changed its trees.
  void loadCompiled()
  {
    resetStore();
    resetParams();
    for (const CompiledTree &tree : compiled.trees)
      run.add(tree.tree, tree.prefix.c_str());
    const char *prefix = compiled.trees[0].prefix.c_str();
    run.load({prefix});
    module = LoadedRun::module(prefix);
  }
  int32_t type(const std::string &name)
  {
    return typeNamed(treeOf(compiled), name);
  }

private:
  void start(AsnCompiled result)
  {
    compiled = std::move(result);
    treeOf(compiled);
    if (!compiled.trees.empty())
      loadCompiled();
  }
};
