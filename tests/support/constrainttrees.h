#pragma once
#include "base/diag.h"
#include "model/constraint.h"
#include "model/typeiter.h"
#include "options/params.h"
#include "store/module.h"
#include "stx/stxwrite.h"
#include "support/tempdir.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

// Trees with constraints for tests: module M under construction, which takes
// from module N (its number 2), both loaded by the real loader.

constexpr char noSuchRecord[] = "Can not read record from syntax tree";
constexpr char damagedM[] = "Syntax tree inconsistent\n +m\n";

// The owner of a view that a test works with.
struct TestType {
  AsnType *type;
  TestType(AsnModule &module, int32_t record)
  {
    readRec(module.rec, REC_TNODE, record);
    type = newAsnType(&module, &module);
    getTypePath(nullptr, *type, true);
  }
  ~TestType() { delAsnType(type); }
  TestType(const TestType &) = delete;
  AsnType &operator*() const { return *type; }
  AsnType *operator->() const { return type; }
};

struct ConstraintTrees : testing::Test {
  TempDir dir;
  StxTree tree = stxNewTree("M", "m");
  StxTree other = stxNewTree("N", "n");
  int32_t integer;  // governs the values of M
  std::string savedDir = stxDir;
  int level = verboseEx;
  bool metaRecs = setCreateBETypMetaFlag(false);
  AsnModule module;  // M, once it is loaded

  ConstraintTrees()
  {
    resetStore();
    resetParams();
    verboseEx = 1;
    stxDir = dir.path;
    stxImport(tree, "N", "n", true);
    integer = stxDefineType(tree, "Int", stxNewTNode(TYP_INTEGER));
  }
  ~ConstraintTrees() override
  {
    initializeAsnConstraints();
    resetStore();
    resetParams();
    stxDir = savedDir;
    verboseEx = level;
    setCreateBETypMetaFlag(metaRecs);
  }
  void load()
  {
    resetStore();
    ASSERT_TRUE(stxWrite(tree, (dir.path + "m.stx").c_str()));
    ASSERT_TRUE(stxWrite(other, (dir.path + "n.stx").c_str()));
    setModulePrefixes(*appendModRec(true), "m", "m");
    readAllSyntaxTrees();
    initBackendVars();
    initAsnModule(module, *bOfModRList);
  }

  // --- records of M

  int32_t value(int64_t number)
  {
    return stxValue(tree, stxNewInteger(integer, number));
  }
  int32_t sub(int kind, int32_t operand1 = 0, int32_t operand2 = 0,
              int flags = 0)
  {
    SubRec record = stxNewSub(kind, operand1, operand2);
    record.subFlags = static_cast<uint8_t>(flags);
    return stxSub(tree, record);
  }
  int32_t single(int64_t number)
  {
    return sub(SUB_SINGLE_VALUE, value(number));
  }
  // Both ends closed (32 is the flag of the lower, 64 of the upper one).
  int32_t range(int64_t lower, int64_t upper, int flags = 32 | 64)
  {
    return sub(SUB_RANGE, value(lower), value(upper), flags);
  }
  int32_t fromMin(int64_t upper)
  {
    return sub(SUB_RANGE, 0, value(upper), 32 | 64);
  }
  int32_t toMax(int64_t lower)
  {
    return sub(SUB_RANGE, value(lower), 0, 32 | 64);
  }
  // Of a kind with a chain of operands.
  int32_t set(int kind, const std::vector<int32_t> &operands)
  {
    return sub(kind, stxChainSubs(tree, operands));
  }
  int32_t except(int32_t from, int32_t excluded)
  {
    return set(SUB_EXCEPT, {from, excluded});
  }
  // A contained subtype.
  int32_t includes(int32_t type)
  {
    VNode carrier = stxNewVNode(TYP_SYNONYM, integer);
    carrier.firstChild = type;
    return sub(SUB_INCLUDES, stxValue(tree, carrier));
  }
  int32_t define(TNode node, int32_t constraint = 0)
  {
    node.firstConstraint = constraint;
    std::string name = "T" + std::to_string(tree.tNodes.size() + 1);
    return stxDefineType(tree, name, node);
  }
  int32_t type(int mainType, int32_t constraint = 0)
  {
    return define(stxNewTNode(mainType), constraint);
  }
  int32_t synonym(int32_t of, int32_t constraint = 0)
  {
    return define(stxNewSynonym(of), constraint);
  }
};
