#pragma once
#include "base/strings.h"
#include "per/peralphabet.h"
#include "per/variant.h"
#include "support/asncompile.h"
#include "support/constrainttrees.h"
#include <string>

// Types of ASN.1 text for tests of the PER rules; the variant is put back at
// the end.

constexpr int anUnknownVariant = 2;

struct PerStringTypes : ConstraintTrees {
  int variant = perGetEncodingVariant();

  PerStringTypes() { perSetEncodingVariant(VARIANT_ALIGNED); }
  ~PerStringTypes() override
  {
    perSetEncodingVariant(variant);
    glbEffectivePermittedAlphabet.reset();
  }

  // Module M of these assignments, loaded.
  void compile(const std::string &body)
  {
    AsnCompiled compiled = compileBody(body);
    tree = treeOf(compiled);
    load();
  }
  TestType named(const std::string &name)
  {
    return TestType(module, typeNamed(tree, name));
  }
  // The definition T of this notation.
  TestType typeOf(const std::string &notation)
  {
    compile("T ::= " + notation);
    return named("T");
  }
};
