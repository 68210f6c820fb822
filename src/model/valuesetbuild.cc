// Flat sets of numbers from constraints.
//
// A build is one recursion over the constraint walkers: what a constraint
// contributes goes into `glbValueSet`, and whoever needs a contribution by
// itself (an operand of a union, say) points that at a fresh set for the
// time. Constraints of one list go into the same set one after the other: a
// range or a single value replaces what the base has said, anything else
// joins it.

#include "model/valuesetbuild.h"
#include "base/diag.h"
#include "model/asnvalue.h"
#include "model/modelcalls.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "model/valueiter.h"
#include <utility>

static const char integerLower[] = "Lower bound of Integer/enumerated type";
static const char integerUpper[] = "Upper bound of Integer/enumerated type";
static const char sizeLower[] = "Size constraint lower bound too large";
static const char sizeUpper[] = "Size constraint upper bound too large";

IntegerValueSet *glbValueSet;

static CacheBlock *cache__IntegerValueSet;

template <class F>
static void requireCallBack(F *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
}

// Points the builders at a set while a scope lasts.
struct BuildTarget {
  IntegerValueSet *before = glbValueSet;
  explicit BuildTarget(IntegerValueSet &set) { glbValueSet = &set; }
  ~BuildTarget() { glbValueSet = before; }
  BuildTarget(const BuildTarget &) = delete;
  BuildTarget &operator=(const BuildTarget &) = delete;
};

// A set that is freed at the end of a scope.
struct FreshSet {
  IntegerValueSet set;
  FreshSet() = default;
  ~FreshSet() { freeIntegerValueSet(set); }
  FreshSet(const FreshSet &) = delete;
  FreshSet &operator=(const FreshSet &) = delete;
};

// --- what one constraint contributes ----------------------------------------

static void setToSeg(IntegerValueSet &set, sint64 lower, sint64 upper)
{
  freeIntegerValueSet(set);
  insertSeg(set, nullptr, newSeg(lower, upper));
}

// Moves the segments over.
static void takeSegs(IntegerValueSet &target, IntegerValueSet &source)
{
  freeIntegerValueSet(target);
  std::swap(target, source);
}

static void buildInto(IntegerValueSet &set, AsnType &type,
                      AsnConstraint &constraint)
{
  BuildTarget target(set);
  makeValueSet(type, &constraint);
}

static void makeSingleValueValueSet(AsnType &, AsnValue &value)
{
  sint64 number = payloadInt64(value.base);
  setToSeg(*glbValueSet, number, number);
}

static void makeRangeValueSet(AsnType &, AsnValue &lower, bool lowerClosed,
                              AsnValue &upper, bool upperClosed)
{
  sint64 from = payloadInt64(lower.base);
  sint64 to = payloadInt64(upper.base);
  if (!lowerClosed)
    i64addl(from, from, 1);
  if (!upperClosed)
    i64subl(to, to, 1);
  setToSeg(*glbValueSet, from, to);
}

static void makeCatenatedValueSet(AsnType &type, AsnConstraint *constraint)
{
  FreshSet fresh;
  buildInto(fresh.set, type, *constraint);
  mergeValueSets(*glbValueSet, fresh.set);
}

static void makeUnionElemValueSet(AsnType &type, AsnConstraint &constraint, int)
{
  makeCatenatedValueSet(type, &constraint);
}

static void makeIntersectionElemValueSet(AsnType &type,
                                         AsnConstraint &constraint, int index)
{
  FreshSet fresh;
  buildInto(fresh.set, type, constraint);
  if (index == 0)
    takeSegs(*glbValueSet, fresh.set);
  else
    intersectValueSets(*glbValueSet, fresh.set);
}

static void makeExceptValueSet(AsnType &type, AsnConstraint &from,
                               AsnConstraint &excluded)
{
  FreshSet a;
  FreshSet b;
  buildInto(a.set, type, from);
  buildInto(b.set, type, excluded);
  excludeValueSets(a.set, b.set);
  takeSegs(*glbValueSet, a.set);
}

static void makeAllExceptValueSet(AsnType &type, AsnConstraint *constraint)
{
  FreshSet excluded;
  buildInto(excluded.set, type, *constraint);
  if (!glbValueSet->first)
    setToSeg(*glbValueSet, i64min(), i64max());
  excludeValueSets(*glbValueSet, excluded.set);
}

void makeValueSet(AsnType &type, AsnConstraint *constraint)
{
  if (!constraint || !glbValueSet)
    return;
  switch (constraint->rec.kind) {
  case SUB_UNION:
    forUnionConstraint(type, *constraint, makeUnionElemValueSet);
    break;
  case SUB_INTERSECTION:
    forIntersectionConstraint(type, *constraint, makeIntersectionElemValueSet);
    break;
  case SUB_CATENATED:
    forEachCatenatedConstraint(type, *constraint, makeCatenatedValueSet);
    break;
  case SUB_EXCEPT:
    forExceptConstraint(type, *constraint, makeExceptValueSet);
    break;
  case SUB_ALL_EXCEPT:
    forAllExceptConstraint(type, *constraint, makeAllExceptValueSet);
    break;
  case SUB_RANGE:
    forValueRangeConstraint(type, *constraint, makeRangeValueSet);
    break;
  case SUB_SIZE:
    forSizeConstraint(type, *constraint, makeValueSet);
    break;
  case SUB_SINGLE_VALUE:
    forSingleValueConstraint(type, *constraint, makeSingleValueValueSet);
    break;
  case SUB_INCLUDES:
    forContainedSubtypeConstraint(type, *constraint, makeValueSet);
    break;
  case SUB_TABLE:
    if (!glbValueSet->first)
      setToSeg(*glbValueSet, i64min(), i64max());
    break;
  default:
    break;
  }
}

// --- the set of a type ------------------------------------------------------

void makeIntegerValueSet(AsnType &type, IntegerValueSet &set)
{
  freeIntegerValueSet(set);
  if (isConstraints(type)) {
    BuildTarget target(set);
    forEachTypeConstraint(type, makeValueSet);
  }
  if (!set.first)
    setToSeg(set, i64min(), i64max());
}

static void addNamedNumber(AsnType &, AsnValue &item, int)
{
  FreshSet fresh;
  sint64 number = payloadInt64(item.base);
  setToSeg(fresh.set, number, number);
  mergeValueSets(*glbValueSet, fresh.set);
}

static void addItemsOfBase(AsnType &, AsnType &base)
{
  forEachNamedNumber(base, addNamedNumber);
}

void makeEnumeratedValueSet(AsnType &type, IntegerValueSet &set)
{
  if (type.base.mainType != TYP_ENUM)
    return;
  {
    BuildTarget target(set);
    if (isBaseTypeInCurrentModule(type))
      forEachNamedNumber(type, addNamedNumber);
    else
      forDefBaseTypeDefinedInAnotherModule(type, addItemsOfBase);
  }
  if (!isConstraints(type))
    return;
  FreshSet fresh;
  {
    BuildTarget target(fresh.set);
    forEachTypeConstraint(type, makeValueSet);
  }
  if (fresh.set.first)
    intersectValueSets(set, fresh.set);
}

void freeValueSetOfType(AsnType &type)
{
  if (!type.valueSet)
    return;
  freeIntegerValueSet(*type.valueSet);
  cacheDelete(type.valueSet, cache__IntegerValueSet);
  type.valueSet = nullptr;
}

static IntegerValueSet &newValueSetOfType(AsnType &type)
{
  freeValueSetOfType(type);
  type.valueSet = cacheNew<IntegerValueSet>(cache__IntegerValueSet);
  return *type.valueSet;
}

void initValueSet(AsnType &type)
{
  IntegerValueSet &set = newValueSetOfType(type);
  if (type.base.mainType == TYP_INTEGER)
    makeIntegerValueSet(type, set);
  else
    makeEnumeratedValueSet(type, set);
}

// Sizes within unions and intersections are not looked for.
static void hopeItIsSizeConstraint(AsnType &type, AsnConstraint *constraint)
{
  if (constraint->rec.kind == SUB_CATENATED)
    forEachCatenatedConstraint(type, *constraint, hopeItIsSizeConstraint);
  else if (constraint->rec.kind == SUB_SIZE)
    makeValueSet(type, constraint);
}

void initSizeValueSet(AsnType &type)
{
  BuildTarget target(newValueSetOfType(type));
  forEachTypeConstraint(type, hopeItIsSizeConstraint);
}

// --- tests ------------------------------------------------------------------

static bool hasIntegerSet(const AsnType &type)
{
  return type.base.mainType == TYP_INTEGER || type.base.mainType == TYP_ENUM;
}

static bool hasSizes(const AsnType &type)
{
  switch (type.base.mainType) {
  case TYP_BITSTR:
  case TYP_OCTSTR:
  case TYP_SEQOF:
  case TYP_SETOF:
    return true;
  default:
    return isRestrCharStringType(type);
  }
}

static const IntegerValueSet &integerSet(AsnType &type)
{
  if (!type.valueSet)
    initValueSet(type);
  return *type.valueSet;
}

static const IntegerValueSet &sizeSet(AsnType &type)
{
  if (!type.valueSet)
    initSizeValueSet(type);
  return *type.valueSet;
}

static bool isOneSeg(const IntegerValueSet &set)
{
  return set.first && set.first == set.last;
}

bool isSimpleIntegerValueSet(AsnType &type)
{
  return hasIntegerSet(type) && isOneSeg(integerSet(type));
}

bool isSimpleSizeConstraintValueSet(AsnType &type)
{
  return hasSizes(type) && isOneSeg(sizeSet(type));
}

bool isSizeConstraintValueSet(AsnType &type)
{
  return hasSizes(type) && sizeSet(type).first;
}

bool isExtensibleIntegerValueSet(const AsnType &type)
{
  return (type.base.nodeFlags & NF_EXTENSIBLE) &&
         type.base.mainType == TYP_INTEGER;
}

bool isExtensibleSizeConstraintValueSet(const AsnType &type)
{
  int mainType = type.base.mainType;
  bool isString = mainType >= TYP_NUMSTR && mainType <= TYP_CHASTR;
  return (type.base.nodeFlags & NF_EXTENSIBLE) &&
         (isString || (hasSizes(type) && mainType != TYP_OBJDESCR));
}

// --- readers ----------------------------------------------------------------

static int32_t to32(const AsnType &type, sint64 value, const char *label)
{
  return int64ToInt32(value, getModuleOfType(type), type.base.line, label);
}

static IntegerPair integerPair(const AsnType &type,
                               const IntegerValueSetSeg &seg)
{
  return {to32(type, seg.lower, integerLower),
          to32(type, seg.upper, integerUpper)};
}

static IntegerPair sizePair(const AsnType &type, const IntegerValueSetSeg &seg)
{
  return {to32(type, seg.lower, sizeLower), to32(type, seg.upper, sizeUpper)};
}

static Int64Pair int64Pair(const IntegerValueSetSeg &seg)
{
  return {seg.lower, seg.upper};
}

// Calls with the pair that `pairOf` makes of each segment; gives their count.
template <class Pair, class F>
static int forEachSeg(AsnType &type, const IntegerValueSet &set,
                      void (*cb)(AsnType &, const Pair &, int), F pairOf)
{
  int count = 0;
  for (const IntegerValueSetSeg *seg = set.first; seg; seg = seg->next)
    cb(type, pairOf(*seg), count++);
  return count;
}

template <class Pair, class F>
static int forEachSegOfValues(AsnType &type,
                              void (*cb)(AsnType &, const Pair &, int),
                              F pairOf)
{
  requireCallBack(cb);
  return hasIntegerSet(type) ? forEachSeg(type, integerSet(type), cb, pairOf)
                             : 0;
}

int forIntegerValueSet(AsnType &type, IntegerPairCallBack *cb)
{
  return forEachSegOfValues(type, cb, [&](const IntegerValueSetSeg &seg) {
    return integerPair(type, seg);
  });
}

int forInt64ValueSet(AsnType &type, Int64PairCallBack *cb)
{
  return forEachSegOfValues(type, cb, int64Pair);
}

// The segments of one SIZE constraint; none for anything else.
template <class Pair, class F>
static int forEachSegOfSize(AsnType &type, AsnConstraint &constraint,
                            void (*cb)(AsnType &, const Pair &, int), F pairOf)
{
  requireCallBack(cb);
  if (!hasSizes(type) || constraint.rec.kind != SUB_SIZE)
    return 0;
  FreshSet sizes;
  buildInto(sizes.set, type, constraint);
  return forEachSeg(type, sizes.set, cb, pairOf);
}

int forSizeConstraintValueSet(AsnType &type, AsnConstraint &constraint,
                              IntegerPairCallBack *cb)
{
  requireCallBack(cb);
  if (!type.valueSet || !type.valueSet->first)
    return 0;
  return forEachSegOfSize(type, constraint, cb,
                          [&](const IntegerValueSetSeg &) {
                            return sizePair(type, *type.valueSet->first);
                          });
}

int forInt64SizeConstraintValueSet(AsnType &type, AsnConstraint &constraint,
                                   Int64PairCallBack *cb)
{
  return forEachSegOfSize(type, constraint, cb, int64Pair);
}

void getSizeConstraintEndpoints(AsnType &type, int32_t &lower, int32_t &upper,
                                int32_t *limit)
{
  lower = 0;
  upper = INT32_MAX;
  if (!isSizeConstraintValueSet(type))
    return;
  IntegerPair pair = sizePair(type, *type.valueSet->first);
  lower = pair.lower;
  upper = pair.upper;
  int32_t stored = type.base.typeOptions.sizeLimit;
  if (limit)
    *limit = stored != 0 && stored < upper ? stored : upper;
}

void getInt64SizeConstraintEndpoints(AsnType &type, sint64 &lower,
                                     sint64 &upper, sint64 *limit)
{
  lower = {};
  upper = i64max();
  int32_t stored = 0;
  if (isSizeConstraintValueSet(type)) {
    lower = type.valueSet->first->lower;
    upper = type.valueSet->last->upper;
    stored = type.base.typeOptions.sizeLimit;
  }
  if (!limit)
    return;
  *limit = upper;
  if (stored != 0 && i64cmpl(upper, stored) > 0)
    i64ltosint64(*limit, stored);
}

static bool beginsAt(const AsnType &type, const IntegerValueSetSeg *seg,
                     const IntegerPair &pair)
{
  return seg && to32(type, seg->lower,
                     hasSizes(type) ? sizeLower : integerLower) == pair.lower;
}

static bool beginsAt(const IntegerValueSetSeg *seg, const Int64Pair &pair)
{
  return seg && i64cmp(seg->lower, pair.lower) == 0;
}

bool isFirstIntegerValueSetSeg(const AsnType &type, const IntegerPair &pair)
{
  return type.valueSet && beginsAt(type, type.valueSet->first, pair);
}

bool isLastIntegerValueSetSeg(const AsnType &type, const IntegerPair &pair)
{
  return type.valueSet && beginsAt(type, type.valueSet->last, pair);
}

bool isFirstInt64ValueSetSeg(const AsnType &type, const Int64Pair &pair)
{
  return type.valueSet && beginsAt(type.valueSet->first, pair);
}

bool isLastInt64ValueSetSeg(const AsnType &type, const Int64Pair &pair)
{
  return type.valueSet && beginsAt(type.valueSet->last, pair);
}
