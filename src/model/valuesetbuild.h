#pragma once
#include "model/constraint.h"
#include "model/valueset.h"

// Flat sets of numbers of types: of the values of an INTEGER or ENUMERATED,
// or of the sizes of a string or list, by the constraints in force. A type
// has one such set, of one sort or the other by its main type, which is built
// when it is first asked for and lives as long as the view of the type.
//
// A null call-back is fatal error 18. In the 32-bit forms numbers go through
// `int64ToInt32`.

struct IntegerPair {
  int32_t lower = 0;
  int32_t upper = 0;
};

struct Int64Pair {
  sint64 lower;
  sint64 upper;
};

typedef void IntegerPairCallBack(AsnType &type, const IntegerPair &pair,
                                 int index);
typedef void Int64PairCallBack(AsnType &type, const Int64Pair &pair, int index);

// --- Builders.

// What is being built; null between builds. Whoever starts one puts back
// what was there.
extern IntegerValueSet *glbValueSet;

// What the constraint contributes to `glbValueSet`; nothing for null. A
// single value or a range replaces what stands there.
void makeValueSet(AsnType &type, AsnConstraint *constraint);

// The values of an INTEGER: all constraints of the list into one set, one
// after the other; all numbers if nothing comes of it.
void makeIntegerValueSet(AsnType &type, IntegerValueSet &set);

// The items of an ENUMERATED that its constraints leave; nothing for another
// type.
void makeEnumeratedValueSet(AsnType &type, IntegerValueSet &set);

// Build the set of the type anew, of its values resp. of its sizes. Without a
// SIZE the set of sizes is empty.
void initValueSet(AsnType &type);
void initSizeValueSet(AsnType &type);

// --- Tests. They build the set if need be, and are false for types of other
// main types.

bool isSimpleIntegerValueSet(AsnType &type);         // one range
bool isSimpleSizeConstraintValueSet(AsnType &type);  // one range
bool isSizeConstraintValueSet(AsnType &type);        // not empty

// The constraint has a marker. What stands behind it is in the set, too.
bool isExtensibleIntegerValueSet(const AsnType &type);
bool isExtensibleSizeConstraintValueSet(const AsnType &type);

// --- Readers.

// Each range of the values; gives their count, 0 for other types.
int forIntegerValueSet(AsnType &type, IntegerPairCallBack *cb);
int forInt64ValueSet(AsnType &type, Int64PairCallBack *cb);

// Each range of one SIZE constraint on a type with sizes; gives their count.
// The 32-bit form shows the first range of the type's own set each time, and
// calls nothing without that.
int forSizeConstraintValueSet(AsnType &type, AsnConstraint &constraint,
                              IntegerPairCallBack *cb);
int forInt64SizeConstraintValueSet(AsnType &type, AsnConstraint &constraint,
                                   Int64PairCallBack *cb);

// Bounds of the size, 0 and the largest number without a SIZE, and the
// smaller of the upper one and the size limit; `limit` may be null. In 32 bits
// both bounds are those of the first range, and `limit` is left alone without
// a SIZE; in 64 bits it is then the largest number, whatever the size limit.
void getSizeConstraintEndpoints(AsnType &type, int32_t &lower, int32_t &upper,
                                int32_t *limit);
void getInt64SizeConstraintEndpoints(AsnType &type, sint64 &lower,
                                     sint64 &upper, sint64 *limit);

// The pair begins where the first, resp. the last, range of the type's set
// does; false without a set.
bool isFirstIntegerValueSetSeg(const AsnType &type, const IntegerPair &pair);
bool isLastIntegerValueSetSeg(const AsnType &type, const IntegerPair &pair);
bool isFirstInt64ValueSetSeg(const AsnType &type, const Int64Pair &pair);
bool isLastInt64ValueSetSeg(const AsnType &type, const Int64Pair &pair);
