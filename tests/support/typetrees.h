#pragma once
#include "model/typequery.h"
#include "support/constrainttrees.h"
#include <string_view>

// Trees for tests of types: the modules M and N of `ConstraintTrees`, each of
// which has the other one as its number 2.

// The plain name of a type's node.
inline std::string refOf(const AsnType &type)
{
  std::string text;
  return getTypeRef(text, nullptr, type, nullptr);
}

struct TypeTrees : ConstraintTrees {
  AsnModule otherModule;  // N, once it is loaded

  TypeTrees() { stxImport(other, "M", "m", true); }

  void start()
  {
    load();
    initAsnModule(otherModule, *bOfModRList->next);
  }

  // A definition with a name of its own choice.
  int32_t define(std::string_view name, const TNode &node)
  {
    return stxDefineType(tree, name, node);
  }
  int32_t define(std::string_view name, int mainType)
  {
    return define(name, stxNewTNode(mainType));
  }
  int32_t comp(int32_t father, std::string_view name, const TNode &node)
  {
    return stxAddComp(tree, father, name, node);
  }
  int32_t comp(int32_t father, std::string_view name, int mainType,
               int status = TCS_MANDATORY)
  {
    TNode node = stxNewTNode(mainType);
    node.compStatus = status;
    return comp(father, name, node);
  }
  int32_t marker(int32_t father)
  {
    return comp(father, "", TYP_EXTENSION_MARKER);
  }
  // COMPONENTS OF, which brings `count` components to a father of type nodes.
  int32_t componentsOf(int32_t father, int32_t ref, int32_t count,
                       int32_t refModule = 1)
  {
    TNode node = stxNewSynonym(ref, refModule);
    node.compStatus = TCS_COMPOF;
    int32_t index = comp(father, "", node);
    stxTypeAt(tree, father).nrComps += count - 1;
    return index;
  }
  TNode &at(int32_t index) { return stxTypeAt(tree, index); }
};
