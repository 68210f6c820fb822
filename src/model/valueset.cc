// Operations on flat sets of numbers.
//
// Each operation is one walk over both lists at a time, `t` in the target and
// `s` in the source, that takes the cases of how two ranges can lie to each
// other one by one. What a walk leaves behind in odd cases (order, joints,
// what a split lets pass) decides bounds and conditions in generated code, so
// the steps stand as they are. Sums wrap: the one that takes the number after
// the largest comes out as the smallest, which the next step needs.

#include "model/valueset.h"
#include "base/alloc.h"
#include "base/diag.h"
#include <cstdio>

static CacheBlock *cache__IntegerValueSetSeg;

static bool isLess(sint64 a, sint64 b)
{
  return i64cmp(a, b) < 0;
}

static bool isEqual(sint64 a, sint64 b)
{
  return i64cmp(a, b) == 0;
}

static sint64 after(sint64 value)
{
  sint64 sum;
  return i64addl(sum, value, 1);
}

static sint64 ahead(sint64 value)
{
  sint64 difference;
  return i64subl(difference, value, 1);
}

// --- segments ---------------------------------------------------------------

IntegerValueSetSeg *newSeg(sint64 lower, sint64 upper)
{
  auto *seg = cacheNew<IntegerValueSetSeg>(cache__IntegerValueSetSeg);
  seg->lower = lower;
  seg->upper = upper;
  return seg;
}

void insertSeg(IntegerValueSet &set, IntegerValueSetSeg *before,
               IntegerValueSetSeg *seg)
{
  seg->next = before;
  seg->prev = before ? before->prev : set.last;
  (seg->prev ? seg->prev->next : set.first) = seg;
  (before ? before->prev : set.last) = seg;
}

// Takes a segment out of the list.
static IntegerValueSetSeg *unlinkSeg(IntegerValueSet &set,
                                     IntegerValueSetSeg *seg)
{
  (seg->prev ? seg->prev->next : set.first) = seg->next;
  (seg->next ? seg->next->prev : set.last) = seg->prev;
  seg->prev = seg->next = nullptr;
  return seg;
}

static void freeSeg(IntegerValueSetSeg *seg)
{
  cacheDelete(seg, cache__IntegerValueSetSeg);
}

void removeSeg(IntegerValueSet &set, IntegerValueSetSeg *seg)
{
  if (seg)
    freeSeg(unlinkSeg(set, seg));
}

void removeFirstSeg(IntegerValueSet &set)
{
  removeSeg(set, set.first);
}

void removeLastSeg(IntegerValueSet &set)
{
  removeSeg(set, set.last);
}

void removeUnnecessarySegs(IntegerValueSet &set, IntegerValueSetSeg *seg)
{
  for (IntegerValueSetSeg *next, *other = seg->next; other; other = next) {
    next = other->next;
    if (!isLess(seg->upper, other->upper))
      removeSeg(set, other);
  }
}

// Removes the leading segments of `set` that end below `limit`.
static void removeBelow(IntegerValueSet &set, sint64 limit)
{
  while (set.first && isLess(set.first->upper, limit))
    removeFirstSeg(set);
}

static void removeAbove(IntegerValueSet &set, sint64 limit)
{
  while (set.last && isLess(limit, set.last->lower))
    removeLastSeg(set);
}

void removeHead(IntegerValueSet &a, IntegerValueSet &b)
{
  if (!a.first || !b.first)
    return;
  if (isLess(a.first->lower, b.first->lower))
    removeBelow(a, b.first->lower);
  else if (isLess(b.first->lower, a.first->lower))
    removeBelow(b, a.first->lower);
}

void removeTail(IntegerValueSet &a, IntegerValueSet &b)
{
  if (!a.last || !b.last)
    return;
  if (isLess(b.last->upper, a.last->upper))
    removeAbove(a, b.last->upper);
  else if (isLess(a.last->upper, b.last->upper))
    removeAbove(b, a.last->upper);
}

void freeIntegerValueSet(IntegerValueSet &set)
{
  while (set.first)
    removeFirstSeg(set);
}

// --- union ------------------------------------------------------------------

// The segment of the target that `s` meets or lies ahead of. Null if `s` lies
// wholly behind all of them, without touching the last.
static IntegerValueSetSeg *findMergePoint(IntegerValueSet &target,
                                          const IntegerValueSetSeg &s)
{
  IntegerValueSetSeg *t = target.last;
  if (!i64ismax(t->upper) && isLess(after(t->upper), s.lower))
    return nullptr;
  if (isLess(t->upper, s.lower))
    return t;
  IntegerValueSetSeg *x = target.first;
  while (isLess(x->upper, s.lower))
    x = x->next;
  return x;
}

// Lets `x` end where the segment that it takes in does.
static void extendUpper(IntegerValueSet &target, IntegerValueSetSeg *x,
                        sint64 upper)
{
  x->upper = upper;
  removeUnnecessarySegs(target, x);
}

// Puts one segment, which is nobody's, into the target. The order of the
// questions matters where a segment is upside down.
static void mergeSeg(IntegerValueSet &target, IntegerValueSetSeg *s)
{
  IntegerValueSetSeg *x = findMergePoint(target, *s);
  if (!x) {
    insertSeg(target, nullptr, s);
    return;
  }
  bool beginsAhead = isLess(s->lower, x->lower);
  bool reachesFurther = isLess(x->upper, s->upper);
  if (!i64ismax(x->upper) && isEqual(s->lower, after(x->upper))) {
    extendUpper(target, x, s->upper);
  } else if (!beginsAhead) {
    if (isLess(x->upper, s->lower))
      fatalError(FATAL_INTERNAL,
                 "Unable to construct a flat integer value set");
    if (reachesFurther)
      extendUpper(target, x, s->upper);
  } else if (!isLess(s->upper, x->lower)) {
    x->lower = s->lower;
    if (reachesFurther)
      extendUpper(target, x, s->upper);
  } else {
    insertSeg(target, x, s);
    return;
  }
  freeSeg(s);
}

void mergeValueSets(IntegerValueSet &target, IntegerValueSet &source)
{
  if (!target.first) {
    target = source;
    source = {};
    return;
  }
  while (source.first)
    mergeSeg(target, unlinkSeg(source, source.first));
}

// --- intersection -----------------------------------------------------------

// False, with both sets freed, if they can have nothing in common.
static bool checkForNonEmptyIntersectValueSet(IntegerValueSet &target,
                                              IntegerValueSet &source)
{
  if (target.first && source.first &&
      !isLess(source.last->upper, target.first->lower) &&
      !isLess(target.last->upper, source.first->lower))
    return true;
  if (verboseEx > 1)
    fputs("** BET Warning: An empty flat integer value set.\n", stderr);
  freeIntegerValueSet(target);
  freeIntegerValueSet(source);
  return false;
}

// `s` is the first of the source; `t` and `s` have numbers in common. Gives
// the segment of the target to go on with.
static IntegerValueSetSeg *intersectSegs(IntegerValueSet &target,
                                         IntegerValueSetSeg *t,
                                         IntegerValueSet &source)
{
  IntegerValueSetSeg *s = source.first;
  bool beginsInside = isLess(t->lower, s->lower);
  int order = i64cmp(s->upper, t->upper);
  if (order < 0) {
    // What is in common goes ahead of the rest of `t`.
    insertSeg(target, t, newSeg(beginsInside ? s->lower : t->lower, s->upper));
    t->lower = after(s->upper);
    removeFirstSeg(source);
    return t;
  }
  if (beginsInside)
    t->lower = s->lower;
  t = t->next;
  if (order == 0)
    removeFirstSeg(source);
  else if (!beginsInside)
    s->lower = after(s->lower);
  else if (t)
    s->lower = after(t->upper);  // of the segment that is stepped to
  return t;
}

void intersectValueSets(IntegerValueSet &target, IntegerValueSet &source)
{
  if (!checkForNonEmptyIntersectValueSet(target, source))
    return;
  removeHead(target, source);
  removeTail(target, source);
  if (!checkForNonEmptyIntersectValueSet(target, source))
    return;
  IntegerValueSetSeg *t = target.first;
  while (t && source.first) {
    if (isLess(t->upper, source.first->lower)) {
      IntegerValueSetSeg *passed = t;
      t = t->next;
      removeSeg(target, passed);
    } else if (isLess(source.first->upper, t->lower)) {
      removeFirstSeg(source);
    } else {
      t = intersectSegs(target, t, source);
    }
  }
  freeIntegerValueSet(source);
  while (t) {
    IntegerValueSetSeg *passed = t;
    t = t->next;
    removeSeg(target, passed);
  }
}

// --- difference -------------------------------------------------------------

// `s` is the first of the source; `t` and `s` have numbers in common. Gives
// the segment of the target to go on with.
static IntegerValueSetSeg *excludeSegs(IntegerValueSet &target,
                                       IntegerValueSetSeg *t,
                                       IntegerValueSet &source)
{
  IntegerValueSetSeg *s = source.first;
  bool beginsInside = isLess(t->lower, s->lower);
  int order = i64cmp(s->upper, t->upper);
  if (order < 0) {
    if (beginsInside) {
      insertSeg(target, t, newSeg(after(s->upper), t->upper));
      t->upper = ahead(s->lower);
    } else {
      t->lower = after(s->upper);
    }
    removeFirstSeg(source);
    return t;
  }
  if (beginsInside) {
    t->upper = ahead(s->lower);
    return t;
  }
  IntegerValueSetSeg *passed = t;
  t = t->next;
  removeSeg(target, passed);
  if (order == 0)
    removeFirstSeg(source);
  return t;
}

void excludeValueSets(IntegerValueSet &target, IntegerValueSet &source)
{
  IntegerValueSetSeg *t = target.first;
  while (t && source.first) {
    if (isLess(t->upper, source.first->lower))
      t = t->next;
    else if (isLess(source.first->upper, t->lower))
      removeFirstSeg(source);
    else
      t = excludeSegs(target, t, source);
  }
}
