#pragma once
#include "model/asntype.h"

// Visits of types, their components and the types that they refer to. A view
// belongs to the visit that made it and is good during the call-back only. A
// null call-back is fatal error 18. Call-backs may walk what they like, the
// same father included.

typedef void TypeIndexCallBack(AsnType &type, int index);
typedef void TypeVisit(AsnType &type);
typedef void TypePairVisit(AsnType &type, AsnType &other);
typedef void CompCallBack(AsnType &father, AsnType &comp, int compNbr);
typedef void ElemCallBack(AsnType &father, AsnType &elem);
typedef void SelectionVisit(AsnType &type, AsnType &alternative,
                            AsnType &choice);
typedef void TypeCommentCallBack(AsnType &type, const char *text, int index);

// Counts a level of a recursion through walks, of which each is entered by
// another type node: beyond their number, and beyond `maxNesting`, the tree is
// damaged, fatal error 15.
struct WalkNesting {
  NestingGuard guard;
  WalkNesting(int &depth, const ModRec *module) : guard(depth, module)
  {
    if (depth > recordsOfRun(REC_TNODE))
      treeInconsistent(module);
  }
};

// The same for walks over objects and object sets, whose levels take more of
// the stack.
constexpr int maxWalkNesting = 1000;

// --- Node selection. Moves the type cursor of `kind` in the module along its
// chain to the next node that fits, which becomes current; the cursor stands
// behind it. False at the end.
enum NodeSelection : int {
  SELECT_TYPES = 1,
  SELECT_CLASSES = 2,
  SELECT_VALUE_SETS = 5,
  SELECT_OBJECT_SETS = 6,
  SELECT_COMPS = 7,
  SELECT_SPARE_COMPS = 8
};
bool nextTNode(AsnModule &module, int kind, bool includeHidden);

// Saves the cursors of a module and puts them back.
void saveAsnModState(const AsnModule &module, ModuleCursors &saved);
void restoreAsnModState(AsnModule &module, const ModuleCursors &saved);

// --- Definitions of a module.
void forEachType(AsnModule &module, TypeIndexCallBack *cb);
void forEachEntryType(AsnModule &module, TypeIndexCallBack *cb);
void forEachVisType(AsnModule &module, TypeIndexCallBack *cb);
void forEachEntryVisType(AsnModule &module, TypeIndexCallBack *cb);
// The one node, hidden or not, of kind 1, 5 or 6; nothing if it does not fit.
void forTypeByRecNr(AsnModule &module, TypeIndexCallBack *cb, int kind,
                    int32_t recNr);
// The entry type with that record, with its index among the entries.
void forEntryTypeByRecNr(AsnModule &module, TypeIndexCallBack *cb,
                         int32_t recNr);

// --- Components in order, COMPONENTS OF flattened, markers included.
void forEachTypeComp(AsnType &type, CompCallBack *cb);
void forEachTypeCompRevOrd(AsnType &type, CompCallBack *cb);
// The element of a list.
void forTypeElem(AsnType &type, ElemCallBack *cb);
// Components, or the element of a list as component 0.
void forEachTypeCompOrElem(AsnType &type, CompCallBack *cb);
// The members of an extension addition group of the father.
void forEachAdditionGroupComp(AsnType &father, AsnType &group,
                              CompCallBack *cb);

// --- Types that a type refers to; nothing if it does not.
void forSynonymType(AsnType &type, TypeVisit *cb);
void forSynonymAndBaseType(AsnType &type, TypePairVisit *cb);
void forDefinedBaseType(AsnType &type, TypeVisit *cb);
void forDefBaseType(AsnType &type, TypePairVisit *cb);
void forSelectionType(AsnType &type, SelectionVisit *cb);
void forTypeDefinedInAnotherModule(AsnType &type, TypeVisit *cb);
void forDefBaseTypeDefinedInAnotherModule(AsnType &type, TypePairVisit *cb);
// The first node over the module border.
void forSynonymTypeInAnotherModule(AsnType &type, TypeVisit *cb);
// The next defined node, or the module border.
void forNextDefinedType(AsnType &type, TypeVisit *cb);
void forNextDefinedTypeAndBaseType(AsnType &type, TypePairVisit *cb);

// Makes the definition behind a reference current: the base, or, if that is
// the header of an inner synonym, the nearest instance or definition on the
// chain, which is followed from the type's own node or, with `step`, from the
// next one. Fatal error 13 if there is no definition.
void readSynonymTypeTNode(const AsnType &type, bool step);

// The module of a type's base node.
void forBaseTypeModule(AsnType &type, ModuleCallBack *cb);

// The classifier component of an ANY DEFINED BY; null without one. The caller
// deletes it.
AsnType *getClassifier(AsnType &father, AsnType &any);
typedef void ClassifierVisit(AsnType &father, AsnType &classifier,
                             AsnType &any);
void forAnyDefinedByClassifierType(AsnType &father, AsnType &any,
                                   ClassifierVisit *cb);

// Comment options of the type's own node, of an instance those of the
// parameterized type.
void forEachTypeCommentOption(AsnType &type, TypeCommentCallBack *cb);

// --- Steps. All but the first of a pair reuse the object, and delete it and
// give null at the end.
AsnType *firstType(AsnModule &module);
AsnType *nextType(AsnType *type);
AsnType *firstTypeComp(AsnType &type, bool compsOnly, int autoTagNr);
AsnType *lastTypeComp(AsnType &type, int autoTagNr);
AsnType *nextTypeComp(AsnType *comp, int autoTagNr);
AsnType *prevTypeComp(AsnType *comp, int autoTagNr);
