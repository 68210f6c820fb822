#pragma once
#include "model/restrstring.h"
#include "options/params.h"
#include "store/module.h"
#include "stx/stxwrite.h"
#include "support/tempdir.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

// String values for tests: nodes for a tree under construction, and two
// modules that the loader has read.

inline constexpr char inconsistent[] = "Syntax tree inconsistent\n +mod[ab]\n";
inline constexpr char noRecord[] = "Can not read record from syntax tree";

// Leaf: a value of a main type over a stored string, with its stated length.
inline VNode leaf(int mainType, int32_t stri, size_t length)
{
  VNode node = stxNewVNode(mainType, 0);
  setPayloadStri(node, static_cast<uint16_t>(length), stri);
  return node;
}

inline VNode leaf8(StxTree &tree, int mainType, const std::string &text)
{
  return leaf(mainType, stxStri(tree, text), text.size());
}

inline VNode leaf16(StxTree &tree, const std::u16string &text)
{
  return leaf(TYP_BMPSTR, stxStri16(tree, text), text.size());
}

inline VNode leaf32(StxTree &tree, const std::u32string &text)
{
  return leaf(TYP_UNISTR, stxStri32(tree, text), text.size());
}

inline VNode ref(int32_t index, int32_t module = 1)
{
  VNode node = stxNewVNode(TYP_SYNONYM, 0);
  node.refModule = module;
  node.firstChild = index;
  return node;
}

inline int32_t list(StxTree &tree, int mainType,
                    const std::vector<VNode> &children)
{
  int32_t index = stxValue(tree, stxNewVNode(mainType, 0));
  for (const VNode &child : children)
    stxAddChild(tree, index, "", child);
  return index;
}

inline int32_t bitList(StxTree &tree, const std::vector<int64_t> &numbers)
{
  std::vector<VNode> items;
  for (int64_t number : numbers)
    items.push_back(stxNewInteger(0, number));
  return list(tree, TYP_BITSTR, items);
}

// Two modules that import each other: module 2 of one is the other.
struct RestrString : testing::Test {
  TempDir dir;
  std::string savedDir = stxDir;
  StxTree a = stxNewTree("ModA", "moda");
  StxTree b = stxNewTree("ModB", "modb");
  ModRec *modA = nullptr;
  ModRec *modB = nullptr;

  RestrString()
  {
    stxImport(a, "ModB", "modb", false);
    stxImport(b, "ModA", "moda", false);
    // Equal indexes mean different strings in the two modules.
    stxStri(b, "only in B");
    stxStri16(b, u"only in B");
    stxStri32(b, U"only in B");
  }
  ~RestrString() override
  {
    resetStore();
    resetParams();
    stxDir = savedDir;
  }

  void load()
  {
    resetStore();
    ASSERT_TRUE(stxWrite(a, (dir.path + "moda.stx").c_str()));
    ASSERT_TRUE(stxWrite(b, (dir.path + "modb.stx").c_str()));
    stxDir = dir.path;
    modA = appendModRec(true);
    setModulePrefixes(*modA, "moda", "moda");
    readAllSyntaxTrees();
    initBackendVars();
    modB = getModPtr(modA, 2);
    ASSERT_NE(modB, nullptr);
  }

  // The stored node; the buffers stay as they are.
  static const VNode &at(ModRec *module, int32_t index)
  {
    return *static_cast<VNode *>(findRPos(module, REC_VNODE, index));
  }
  const VNode &inA(int32_t index) const { return at(modA, index); }

  RestrCharStri made(int32_t index)
  {
    load();
    RestrCharStri stri;
    makeRestrCharStri(modA, inA(index), stri);
    return stri;
  }
  int32_t lengthOf(int32_t type, int32_t value)
  {
    load();
    readRec(modA, REC_TNODE, type);
    readRec(modA, REC_VNODE, value);
    return getAnyStringLength();
  }
  std::string bits(int mainType, int32_t index)
  {
    load();
    return convBitString(mainType, modA, inA(index));
  }
  bool equal(int mainType, const VNode &left, const VNode &right)
  {
    int32_t l = stxValue(a, left);
    int32_t r = stxValue(a, right);
    load();
    bool result = equalStrings(mainType, modA, inA(l), modA, inA(r));
    EXPECT_EQ(equalStrings(mainType, modA, inA(r), modA, inA(l)), result);
    return result;
  }
  int compare(const VNode &left, const VNode &right)
  {
    int32_t l = stxValue(a, left);
    int32_t r = stxValue(a, right);
    load();
    return compareStrings(TYP_IA5STR, modA, inA(l), modA, inA(r));
  }
};
