#pragma once
#include "base/int64.h"

// Flat sets of numbers: lists of closed ranges, the largest and the smallest
// number standing for the infinities. The operations keep sorted and disjoint
// what comes sorted and disjoint, but not always: a split range stands with
// its upper half first, neighbours are not always joined, and a range may be
// upside down where a tree says so. No reader may rely on the order; `first`
// is simply the first.

struct IntegerValueSetSeg {
  sint64 lower;
  sint64 upper;
  IntegerValueSetSeg *prev = nullptr;
  IntegerValueSetSeg *next = nullptr;
};

struct IntegerValueSet {
  IntegerValueSetSeg *first = nullptr;  // null: the set is empty
  IntegerValueSetSeg *last = nullptr;
};

// --- Segments. They are never shared between sets.

IntegerValueSetSeg *newSeg(sint64 lower, sint64 upper);

// Puts a segment ahead of `before`, or at the end if that is null.
void insertSeg(IntegerValueSet &set, IntegerValueSetSeg *before,
               IntegerValueSetSeg *seg);

// Take a segment out and free it; nothing happens to an empty set.
void removeSeg(IntegerValueSet &set, IntegerValueSetSeg *seg);
void removeFirstSeg(IntegerValueSet &set);
void removeLastSeg(IntegerValueSet &set);

// Removes what follows `seg` and ends no higher; a segment that is covered in
// part stays as it is.
void removeUnnecessarySegs(IntegerValueSet &set, IntegerValueSetSeg *seg);

// Of the set that begins lower, resp. ends higher, removes the segments that
// lie wholly beyond the other's first lower, resp. last upper, number.
void removeHead(IntegerValueSet &a, IntegerValueSet &b);
void removeTail(IntegerValueSet &a, IntegerValueSet &b);

// Frees the segments and leaves the set empty.
void freeIntegerValueSet(IntegerValueSet &set);

// --- Operations on `target`. The first two leave the source empty.

// Union. A segment that comes behind what it touches is joined with it; one
// that comes ahead of it stays a neighbour.
void mergeValueSets(IntegerValueSet &target, IntegerValueSet &source);

// Intersection; an empty one draws a warning.
void intersectValueSets(IntegerValueSet &target, IntegerValueSet &source);

// What is left without the source, which loses the segments that are used
// up. Behind a segment that splits one of the target's, the lower half is
// looked at next, so that further ones in the upper half are missed.
void excludeValueSets(IntegerValueSet &target, IntegerValueSet &source);
