// Arbitrary text as ASN.1 modules. Trees that come of it must write without a
// crash; errors are what most texts end with.

#include "asn2stx/compile.h"
#include "asn2stx/parser.h"
#include "harness.h"
#include <cstdio>

static std::string text;

static void compileText()
{
  for (bool other : {false, true}) {
    Asn2StxOptions options;
    options.unionOfAdditions = other;
    options.secondMarker = other;
    Ast ast;
    AsnErrors errors;
    parseAsnText(ast, errors, "fuzz.asn", text);
    std::vector<CompiledTree> trees;
    if (errors.errors.empty())
      compileModules(ast, options, errors, trees);
    for (const CompiledTree &tree : trees)
      stxWrite(tree.tree, "/dev/null");
  }
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
  text.assign(reinterpret_cast<const char *>(data), size);
  runGuarded(compileText);
  return 0;
}
