// Constraint walkers.
//
// A constraint is the view of one record of kind 4. The elements of a type's
// list are the tops of trees of such records; a walker builds the view of an
// operand, calls, and gives the view back. What the walk is at is passed on
// in the view (module and record), never kept in the type, so walks over the
// same type nest in any order.
//
// Only WITH COMPONENT(S) needs more: the constraint is on the structure, the
// call-back is for its components, and the type iterators between them have
// no place for either. They travel on stacks, a level for each walk.

#include "model/constraint.h"
#include "base/diag.h"
#include "model/number.h"
#include "model/typeiter.h"
#include "model/typequery.h"

TypedStack<AsnType *> asnTypePtrStack;
TypedStack<AsnConstraint *> asnConstraintPtrStack;
TypedStack<CompFunc *> compFuncStack;
TypedStack<CompsFunc *> compsFuncStack;

static CacheBlock *cache__AsnConstraint;

// Operands of operands that are being walked at this moment. A level takes
// the stack of a walker and of its call-back, so fewer are borne than of
// other nestings.
static int constraintNesting;
constexpr int maxConstraintNesting = 1000;

// Views made since the outermost of the walks began. A damaged tree can have
// so many ways through few records that walking them all would never end; no
// constraint that somebody wrote comes near the limit.
static int64_t operandVisits;
constexpr int64_t maxOperandVisits = 1'000'000;
constexpr int64_t maxVisitsPerRecord = 100;

// The spelling of the fifth is what the tables of the tree format have.
const char *const subNameArr[18] = {
    "union",
    "INTERSECTION",
    "catenated",
    "EXCEPT",
    "ALL EXPECT",
    "range",
    "permitted alphabet",
    "size",
    "single value",
    "INCLUDES",
    "WITH COMPONENT",
    "WITH COMPONENTS",
    "table",
    "user defined",
    "component relation",
    "exception specification",
    "TypeConstraint",
    "extended ValueSet",
};

void initializeAsnConstraints()
{
  clearStack(asnTypePtrStack);
  clearStack(asnConstraintPtrStack);
  clearStack(compFuncStack);
  clearStack(compsFuncStack);
}

// Counts a level while a scope lasts.
struct WalkLevel {
  explicit WalkLevel(const ModRec *module)
  {
    if (constraintNesting >= maxConstraintNesting)
      treeInconsistent(module);
    ++constraintNesting;
  }
  ~WalkLevel() { --constraintNesting; }
  WalkLevel(const WalkLevel &) = delete;
  WalkLevel &operator=(const WalkLevel &) = delete;
};

template <class F>
static void requireCallBack(F *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
}

// --- one constraint ---------------------------------------------------------

const char *constraintKindName(int kind)
{
  constexpr int named = 5;  // kinds ahead of the gap
  if (kind >= SUB_UNION && kind <= SUB_ALL_EXCEPT)
    return subNameArr[kind - SUB_UNION];
  if (kind >= SUB_RANGE && kind <= SUB_EXTENDED_SET)
    return subNameArr[kind - SUB_RANGE + named];
  return "";
}

int getConstraintKind(const AsnConstraint &constraint)
{
  return constraint.rec.kind;
}

bool isExceptionSpecification(const AsnConstraint &constraint)
{
  return constraint.rec.subFlags & SF_EXCEPTION;
}

bool isPresenceConstraint(const AsnConstraint &constraint)
{
  return constraint.rec.subFlags & (SF_PRESENT | SF_ABSENT | SF_OPTIONAL);
}

int getPresenceConstraintKind(const AsnConstraint &constraint)
{
  if (constraint.rec.subFlags & SF_PRESENT)
    return PRESENCE_PRESENT;
  if (constraint.rec.subFlags & SF_ABSENT)
    return PRESENCE_ABSENT;
  if (constraint.rec.subFlags & SF_OPTIONAL)
    return PRESENCE_OPTIONAL;
  return PRESENCE_NONE;
}

bool isLeafConstraint(const AsnConstraint &constraint)
{
  return constraint.rec.kind == SUB_RANGE ||
         constraint.rec.kind == SUB_SINGLE_VALUE;
}

static bool areSimpleUnionElems(ModRec *module);

// Of the current record.
static bool isSimpleUnionElem(ModRec *module)
{
  switch (subRec.kind) {
  case SUB_RANGE:
  case SUB_SINGLE_VALUE:
    return true;
  case SUB_UNION:
  case SUB_INTERSECTION:
  case SUB_CATENATED:
    return areSimpleUnionElems(module);
  default:
    return false;
  }
}

// Of the operands of the current record.
static bool areSimpleUnionElems(ModRec *module)
{
  WalkLevel level(module);
  ChainGuard guard(module, REC_SUB);
  bool areSimple = true;
  for (int32_t next = subRec.operand1; next != 0 && areSimple;) {
    guard.step();
    readRec(module, REC_SUB, next);
    next = subRec.nextSub;
    areSimple = isSimpleUnionElem(module);
  }
  return areSimple;
}

bool isSimpleUnionConstraint(const AsnConstraint &)
{
  if (subRec.kind != SUB_UNION)
    return false;
  SavedNode saved(REC_SUB);
  return areSimpleUnionElems(currTPtr[REC_SUB]);
}

static void countVisit(const ModRec *module)
{
  if (constraintNesting == 0)
    operandVisits = 0;
  else if (++operandVisits >
           maxOperandVisits + maxVisitsPerRecord * recordsOfRun(REC_SUB))
    treeInconsistent(module);
}

void initAsnConstraint(AsnConstraint &constraint, AsnType &owner,
                       ModRec *module, int32_t subRecNr)
{
  countVisit(module);
  readRec(module, REC_SUB, subRecNr);
  constraint.owner = &owner;
  constraint.module = module;
  constraint.rec = subRec;
  constraint.element = nullptr;
}

static AsnConstraint *newConstraint()
{
  return cacheNew<AsnConstraint>(cache__AsnConstraint);
}

void delConstraint(AsnConstraint *constraint)
{
  cacheDelete(constraint, cache__AsnConstraint);
}

// A view that goes back to the free list at the end of a scope.
struct OwnedConstraint {
  AsnConstraint *constraint = newConstraint();
  OwnedConstraint() = default;
  OwnedConstraint(AsnType &owner, ModRec *module, int32_t subRecNr)
  {
    initAsnConstraint(*constraint, owner, module, subRecNr);
  }
  ~OwnedConstraint() { delConstraint(constraint); }
  OwnedConstraint(const OwnedConstraint &) = delete;
  OwnedConstraint &operator=(const OwnedConstraint &) = delete;
};

// --- the list of a type -----------------------------------------------------

// Fills the view from an element of the list, or deletes it at the end.
static AsnConstraint *takeElement(AsnConstraint *constraint, AsnType &type,
                                  const NodeElemRec *element)
{
  if (!element) {
    delConstraint(constraint);
    return nullptr;
  }
  initAsnConstraint(*constraint, type, element->module, element->index);
  constraint->element = element;
  return constraint;
}

AsnConstraint *firstConstraint(AsnType &type)
{
  if (!type.constraints.first)
    return nullptr;
  return takeElement(newConstraint(), type, type.constraints.first);
}

AsnConstraint *nextConstraint(AsnConstraint *constraint)
{
  if (!constraint)
    return nullptr;
  const NodeElemRec *element = constraint->element;
  return takeElement(constraint, *constraint->owner,
                     element ? element->next : nullptr);
}

// The first of the last `nrLocalConstraints` elements; null without any.
static const NodeElemRec *firstLocalElement(const AsnType &type)
{
  if (type.nrLocalConstraints <= 0)
    return nullptr;
  const NodeElemRec *element = type.constraints.first;
  for (int32_t left = type.nrConstraints - type.nrLocalConstraints;
       left > 0 && element; --left)
    element = element->next;
  return element;
}

static void forConstraintsFrom(AsnType &type, const NodeElemRec *element,
                               ConstraintCallBack *cb)
{
  requireCallBack(cb);
  AsnConstraint *constraint = takeElement(newConstraint(), type, element);
  for (; constraint; constraint = nextConstraint(constraint))
    if (constraint->rec.kind != SUB_HIDDEN)
      cb(type, constraint);
}

void forEachTypeConstraint(AsnType &type, ConstraintCallBack *cb)
{
  forConstraintsFrom(type, type.constraints.first, cb);
}

void forEachLocalTypeConstraint(AsnType &type, ConstraintCallBack *cb)
{
  forConstraintsFrom(type, firstLocalElement(type), cb);
}

bool isLocalTypeConstraints(const AsnType &type)
{
  const NodeElemRec *first = firstLocalElement(type);
  if (!first)
    return false;
  SavedNode saved(REC_SUB);
  readRec(first->module, REC_SUB, first->index);
  return subRec.kind != SUB_HIDDEN || first->next;
}

int32_t getNrOfTypeConstraints(const AsnType &type)
{
  return type.nrConstraints;
}

int32_t getNrOfLocalTypeConstraints(const AsnType &type)
{
  return type.nrLocalConstraints;
}

// --- operands ---------------------------------------------------------------

int forConstraint(AsnType &type, AsnConstraint &constraint, int32_t subRecNr,
                  ConstraintCallBack *cb, int kind)
{
  requireCallBack(cb);
  if (constraint.rec.kind != kind)
    return constraint.rec.kind;
  WalkLevel level(constraint.module);
  OwnedConstraint operand(type, constraint.module, subRecNr);
  cb(type, operand.constraint);
  return 0;
}

int forSizeConstraint(AsnType &type, AsnConstraint &constraint,
                      ConstraintCallBack *cb)
{
  return forConstraint(type, constraint, constraint.rec.operand1, cb, SUB_SIZE);
}

int forPermittedAlphabetConstraint(AsnType &type, AsnConstraint &constraint,
                                   ConstraintCallBack *cb)
{
  return forConstraint(type, constraint, constraint.rec.operand1, cb,
                       SUB_ALPHABET);
}

int forAllExceptConstraint(AsnType &type, AsnConstraint &constraint,
                           ConstraintCallBack *cb)
{
  return forConstraint(type, constraint, constraint.rec.operand1, cb,
                       SUB_ALL_EXCEPT);
}

int forSetConstraint(AsnType &type, AsnConstraint &constraint,
                     OperandCallBack *cbIndexed, ConstraintCallBack *cbPlain,
                     int kind)
{
  if (constraint.rec.kind != kind)
    return constraint.rec.kind;
  ModRec *module = constraint.module;
  WalkLevel level(module);
  ChainGuard guard(module, REC_SUB);
  OwnedConstraint operand;
  int index = 0;
  for (int32_t next = constraint.rec.operand1; next != 0;) {
    guard.step();
    initAsnConstraint(*operand.constraint, type, module, next);
    next = operand.constraint->rec.nextSub;
    if (cbIndexed)
      cbIndexed(type, *operand.constraint, index++);
    else if (cbPlain)
      cbPlain(type, operand.constraint);
  }
  return 0;
}

int forUnionConstraint(AsnType &type, AsnConstraint &constraint,
                       OperandCallBack *cb)
{
  requireCallBack(cb);
  return forSetConstraint(type, constraint, cb, nullptr, SUB_UNION);
}

int forIntersectionConstraint(AsnType &type, AsnConstraint &constraint,
                              OperandCallBack *cb)
{
  requireCallBack(cb);
  return forSetConstraint(type, constraint, cb, nullptr, SUB_INTERSECTION);
}

int forEachCatenatedConstraint(AsnType &type, AsnConstraint &constraint,
                               ConstraintCallBack *cb)
{
  requireCallBack(cb);
  return forSetConstraint(type, constraint, nullptr, cb, SUB_CATENATED);
}

int forExceptConstraint(AsnType &type, AsnConstraint &constraint,
                        ExceptCallBack *cb)
{
  requireCallBack(cb);
  if (constraint.rec.kind != SUB_EXCEPT)
    return constraint.rec.kind;
  ModRec *module = constraint.module;
  WalkLevel level(module);
  OwnedConstraint from(type, module, constraint.rec.operand1);
  OwnedConstraint excluded(type, module, from.constraint->rec.nextSub);
  cb(type, *from.constraint, *excluded.constraint);
  return 0;
}

// --- values -----------------------------------------------------------------

AsnValue *asnValueFromConstraint(const AsnConstraint &constraint,
                                 int32_t vNodeNr)
{
  AsnModule *module = newAsnModule(*constraint.module);
  module->cursors.values[SELECT_VALUES] = vNodeNr;
  if (!nextVNode(*module, SELECT_VALUES, true) ||
      recJustRead[REC_VNODE].index != vNodeNr) {
    delAsnModule(module);
    return nullptr;
  }
  AsnValue *value = newAsnValue(module, module);
  getValuePath(nullptr, *value, FIX_VALUE);
  return value;
}

AsnValue *asnValueForMinMaxValueRange(const AsnType &type,
                                      const AsnConstraint &constraint,
                                      bool isUpper)
{
  bool isReal = type.base.mainType == TYP_REAL;
  VNode end;
  end.mainType = isReal ? TYP_REAL : TYP_INTEGER;
  // MIN is 0 for what is counted or coded: sizes, characters, items.
  if (isUpper || isReal || type.base.mainType == TYP_INTEGER)
    setInfinity(end, isUpper, end.mainType);
  AsnModule *module = newAsnModule(*constraint.module);
  AsnValue *value = newAsnValue(module, module);
  initInfinityValue(*value, end);
  return value;
}

void delConstrValue(AsnValue *value)
{
  if (!value)
    return;
  AsnModule *module = value->mod;
  delAsnValue(value);
  delAsnModule(module);
}

int forSingleValueConstraint(AsnType &type, AsnConstraint &constraint,
                             SingleValueCallBack *cb)
{
  requireCallBack(cb);
  if (constraint.rec.kind != SUB_SINGLE_VALUE)
    return constraint.rec.kind;
  AsnValue *value = asnValueFromConstraint(constraint, constraint.rec.operand1);
  if (!value)
    fatalError(FATAL_INTERNAL, "Unable to construct a value for a constraint.");
  cb(type, *value);
  delConstrValue(value);
  return 0;
}

static AsnValue *endOfRange(const AsnType &type,
                            const AsnConstraint &constraint, bool isUpper)
{
  AsnValue *value = asnValueFromConstraint(
      constraint, isUpper ? constraint.rec.operand2 : constraint.rec.operand1);
  return value ? value : asnValueForMinMaxValueRange(type, constraint, isUpper);
}

int forValueRangeConstraint(AsnType &type, AsnConstraint &constraint,
                            ValueRangeCallBack *cb)
{
  requireCallBack(cb);
  if (constraint.rec.kind != SUB_RANGE)
    return constraint.rec.kind;
  AsnValue *lower = endOfRange(type, constraint, false);
  AsnValue *upper = endOfRange(type, constraint, true);
  cb(type, *lower, constraint.rec.subFlags & LOWER_CLOSED, *upper,
     constraint.rec.subFlags & UPPER_CLOSED);
  delConstrValue(lower);
  delConstrValue(upper);
  return 0;
}

// --- contained subtypes -----------------------------------------------------

// The type that a value of the constraint's module carries. Its node is one
// of that module, too: the value's own module number is not asked.
static AsnType *newSubtype(const AsnType &type, const AsnConstraint &constraint)
{
  readRec(constraint.module, REC_VNODE, constraint.rec.operand1);
  readRec(constraint.module, REC_TNODE, vNode.firstChild);
  AsnType *subtype = newAsnType(type.homeMod, type.homeMod);
  getTypePath(nullptr, *subtype, true);
  return subtype;
}

// The first from this one on that is not hidden.
static AsnConstraint *passHidden(AsnConstraint *constraint)
{
  while (constraint && constraint->rec.kind == SUB_HIDDEN)
    constraint = nextConstraint(constraint);
  return constraint;
}

static int forSubtypeConstraints(AsnType &type, AsnConstraint &constraint,
                                 ConstraintCallBack *cb,
                                 ContSubtypeCallBack *cbSubtype)
{
  if (constraint.rec.kind != SUB_INCLUDES)
    return constraint.rec.kind;
  WalkLevel level(constraint.module);
  AsnType *subtype = newSubtype(type, constraint);
  AsnConstraint *of = passHidden(firstConstraint(*subtype));
  // A subtype without constraints has one call, with null.
  do {
    if (cb)
      cb(type, of);
    else
      cbSubtype(type, *subtype, of);
    of = passHidden(nextConstraint(of));
  } while (of);
  delAsnType(subtype);
  return 0;
}

int forContainedSubtypeConstraint(AsnType &type, AsnConstraint &constraint,
                                  ConstraintCallBack *cb)
{
  requireCallBack(cb);
  return forSubtypeConstraints(type, constraint, cb, nullptr);
}

int forContSubtypeConstraint(AsnType &type, AsnConstraint &constraint,
                             ContSubtypeCallBack *cb)
{
  requireCallBack(cb);
  return forSubtypeConstraints(type, constraint, nullptr, cb);
}

// --- components -------------------------------------------------------------

// What a walk over components carries.
template <class F>
struct WalkTops {
  AsnType *type = nullptr;
  AsnConstraint *constraint = nullptr;
  F *cb = nullptr;
  explicit WalkTops(const TypedStack<F *> &funcStack)
  {
    if (!getStackTop(asnTypePtrStack, type))
      fatalError(FATAL_INTERNAL, "Empty type stack");
    if (!getStackTop(asnConstraintPtrStack, constraint))
      fatalError(FATAL_INTERNAL, "Empty constraint stack");
    if (!getStackTop(funcStack, cb))
      fatalError(FATAL_INTERNAL, "Empty function stack");
  }
};

// A level of the stacks while a scope lasts.
template <class F>
struct PushedWalk {
  TypedStack<F *> &funcStack;
  PushedWalk(AsnType &type, AsnConstraint &constraint, TypedStack<F *> &stack,
             F *cb)
      : funcStack(stack)
  {
    pushStack(asnConstraintPtrStack, &constraint);
    pushStack(asnTypePtrStack, &type);
    pushStack(funcStack, cb);
  }
  ~PushedWalk()
  {
    popStack(funcStack);
    popStack(asnTypePtrStack);
    popStack(asnConstraintPtrStack);
  }
  PushedWalk(const PushedWalk &) = delete;
  PushedWalk &operator=(const PushedWalk &) = delete;
};

void constrainElement(AsnType &, AsnType &element)
{
  WalkTops<CompFunc> tops(compFuncStack);
  tops.cb(*tops.type, element, *tops.constraint);
}

static void constrainListType(AsnType &type)
{
  WalkLevel level(type.compModRec);
  if (isSynonymType(type))
    forSynonymType(type, constrainListType);
  else
    forTypeElem(type, constrainElement);
}

int forWithComponentConstraint(AsnType &type, AsnConstraint &constraint,
                               CompFunc *cb)
{
  requireCallBack(cb);
  if (constraint.rec.kind != SUB_WITH_COMPONENT)
    return constraint.rec.kind;
  OwnedConstraint operand(type, constraint.module, constraint.rec.operand1);
  PushedWalk<CompFunc> walk(type, *operand.constraint, compFuncStack, cb);
  constrainListType(type);
  return 0;
}

static void constrainStructuredType(AsnType &type)
{
  WalkLevel level(type.compModRec);
  if (!isSynonymType(type))
    forEachTypeComp(type, constrainComponent);
  else if (isBaseTypeInCurrentModule(type))
    forSynonymType(type, constrainStructuredType);
  else
    forTypeDefinedInAnotherModule(type, constrainStructuredType);
}

int forWithComponentsConstraint(AsnType &type, AsnConstraint &constraint,
                                CompsFunc *cb)
{
  requireCallBack(cb);
  if (constraint.rec.kind != SUB_WITH_COMPONENTS)
    return constraint.rec.kind;
  PushedWalk<CompsFunc> walk(type, constraint, compsFuncStack, cb);
  constrainStructuredType(type);
  return 0;
}

// The record that names the component; 0 if none does. What is said of the
// others is not looked at, so they are no visits.
static int32_t findNamedComp(const AsnConstraint &constraint,
                             const AsnType &comp)
{
  ModRec *module = constraint.module;
  ChainGuard guard(module, REC_SUB);
  for (int32_t next = constraint.rec.operand1; next != 0;
       next = subRec.nextSub) {
    guard.step();
    readRec(module, REC_SUB, next);
    if (subRec.compNode == comp.compRecNr &&
        getModPtr(module, subRec.compModule) == comp.compModRec)
      return next;
  }
  return 0;
}

void constrainComponent(AsnType &, AsnType &comp, int compNbr)
{
  WalkTops<CompsFunc> tops(compsFuncStack);
  AsnType &type = *tops.type;
  bool fullSpec = tops.constraint->rec.subFlags & SF_FULL_SPEC;
  OwnedConstraint owned;
  AsnConstraint &sub = *owned.constraint;
  if (int32_t named = findNamedComp(*tops.constraint, comp)) {
    initAsnConstraint(sub, type, tops.constraint->module, named);
    if (fullSpec && isOptionalTypeComp(comp) && !isPresenceConstraint(sub))
      sub.rec.subFlags |= SF_PRESENT;
  } else {
    // Of a CHOICE one alternative is there; naming any excludes the others.
    if (!fullSpec && type.base.mainType != TYP_CHOICE)
      return;
    sub = AsnConstraint{};
    sub.owner = &type;
    sub.rec.kind = SUB_EXCEPTION;
    sub.rec.subFlags = SF_ABSENT;
  }
  tops.cb(type, comp, sub, compNbr);
}
