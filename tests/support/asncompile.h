#pragma once
#include "asn2stx/compile.h"
#include <string>
#include <vector>

// Compiles ASN.1 text for a test and finds records by name.

struct AsnCompiled {
  std::vector<CompiledTree> trees;
  std::vector<std::string> errors;  // "LINE:COLUMN: TEXT", in the text's order
  bool good = false;
};

// The text as one file, "t.asn".
AsnCompiled compileAsn(const std::string &text,
                       const Asn2StxOptions &options = {});

// One module M with automatic tags around the assignments; "tags" may give
// other words than AUTOMATIC TAGS.
AsnCompiled compileBody(const std::string &body,
                        const Asn2StxOptions &options = {},
                        const std::string &tags = "AUTOMATIC TAGS");

// The only error of a body, or "N errors".
std::string errorOf(const std::string &body);

// The tree; fails the test and gives an empty one if there is none.
StxTree &treeOf(AsnCompiled &compiled, size_t number = 0);

std::string striAt(const StxTree &tree, int32_t index);

// Index of a definition, component, item or value child by its name in the
// tree; 0 if there is none.
int32_t typeNamed(const StxTree &tree, const std::string &name);
int32_t valueNamed(const StxTree &tree, const std::string &name);
int32_t compNamed(const StxTree &tree, int32_t type, const std::string &name);
int32_t itemNamed(const StxTree &tree, int32_t type, const std::string &name);

// Chains as lists of indexes.
std::vector<int32_t> compsOf(const StxTree &tree, int32_t type);
std::vector<int32_t> childrenOf(const StxTree &tree, int32_t value);
std::vector<int32_t> operandsOf(const StxTree &tree, int32_t sub);

// The bounds of a type, and the integer of a value.
std::string boundsOf(const StxTree &tree, int32_t type);
int64_t integerAt(const StxTree &tree, int32_t value);
int64_t asInt64(sint64 number);

// A constraint in one line: kinds by name, numbers as they are, as in
// "size(range[1,4])", "(" and ")" around excluded ends.
std::string constraintText(const StxTree &tree, int32_t sub);

// The same of a type's constraint; empty if it has none.
std::string constraintOf(const StxTree &tree, int32_t type);
