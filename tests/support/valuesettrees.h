#pragma once
#include "model/valuesetbuild.h"
#include "support/constrainttrees.h"
#include "support/segs.h"

// Sets of numbers of types, for tests.

// What call-backs have got.
inline Segs got;
inline std::vector<int> gotIndexes;

inline void take32(AsnType &, const IntegerPair &pair, int index)
{
  got.emplace_back(pair.lower, pair.upper);
  gotIndexes.push_back(index);
}

inline void take64(AsnType &, const Int64Pair &pair, int index)
{
  got.emplace_back(native(pair.lower), native(pair.upper));
  gotIndexes.push_back(index);
}

struct ValueSetTrees : ConstraintTrees {
  ValueSetTrees()
  {
    got.clear();
    gotIndexes.clear();
  }

  // The set of an INTEGER or ENUMERATED of M.
  Segs values(int32_t record)
  {
    load();
    TestType type(module, record);
    initValueSet(*type);
    EXPECT_EQ(glbValueSet, nullptr);
    return segsOf(*type->valueSet);
  }
  Segs integers(int32_t constraint)
  {
    return values(type(TYP_INTEGER, constraint));
  }
  Segs sizes(int32_t record)
  {
    load();
    TestType type(module, record);
    initSizeValueSet(*type);
    EXPECT_EQ(glbValueSet, nullptr);
    return segsOf(*type->valueSet);
  }
  int32_t size(int32_t inner) { return sub(SUB_SIZE, inner); }
  int32_t unionOf(const std::vector<int32_t> &operands)
  {
    return set(SUB_UNION, operands);
  }
  int32_t intersection(const std::vector<int32_t> &operands)
  {
    return set(SUB_INTERSECTION, operands);
  }

  static int32_t enumeration(StxTree &in, const std::vector<int64_t> &numbers)
  {
    int32_t record = stxDefineType(in, "Enum", stxNewTNode(TYP_ENUM));
    for (int64_t number : numbers)
      stxAddNamedNumber(in, record, "i", number);
    return record;
  }
};
