#pragma once
#include "model/asnvalue.h"
#include "options/fixrec.h"
#include "support/stringvalues.h"
#include <string>
#include <vector>

// Views of values for tests: the two modules of `RestrString`, and views that
// are taken back at the end.
struct ValueViews : RestrString {
  AsnModule mod;  // on `modA`
  std::vector<AsnValue *> views;
  std::vector<AsnType *> types;

  ~ValueViews() override
  {
    for (AsnValue *value : views)
      delAsnValue(value);
    for (AsnType *type : types)
      delAsnType(type);
  }

  void start()
  {
    load();
    initAsnModule(mod, *modA);
  }

  // A view of a value of module A.
  AsnValue &view(int32_t index, int fixKind = FIX_VALUE)
  {
    readRec(modA, REC_VNODE, index);
    views.push_back(newAsnValue(&mod, &mod));
    getValuePath(nullptr, *views.back(), fixKind);
    return *views.back();
  }

  // A view of a type of module A.
  AsnType &typeView(int32_t index)
  {
    readRec(modA, REC_TNODE, index);
    types.push_back(newAsnType(&mod, &mod));
    getTypePath(nullptr, *types.back(), true);
    return *types.back();
  }

  // The value as a defined one, governed by a type without a name.
  int32_t valueOf(int mainType, VNode node, const char *name = "v")
  {
    node.governor = stxType(a, stxNewTNode(mainType));
    return stxDefineValue(a, name, node);
  }
  int32_t integerOf(int64_t number, const char *name = "v")
  {
    return valueOf(TYP_INTEGER, stxNewInteger(0, number), name);
  }
};
