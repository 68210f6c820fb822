#pragma once
#include "store/treestore.h"

// Numbers of values: real values with their special cases, comparisons, and
// the bounds that the constraints of a type node set. All of it works on
// records and on the current-record buffers; there are no views here.
//
// An endpoint is the image of a value node: that of the value that bounds the
// type, or one that holds an infinity, and of main type `VAL_NONE` if there is
// none.

// Flags of an endpoint that is part of its range, as in `subFlags`.
enum ClosedFlag : int { LOWER_CLOSED = 32, UPPER_CLOSED = 64 };

// Special real values.
enum SpecialReal : int {
  REAL_ZERO = 0,
  REAL_MINUS_INFINITY = -1,
  REAL_PLUS_INFINITY = -2
};

RealVal &makeRealVal(RealVal &real, sint64 mantissa, int16_t base,
                     int16_t exponent);
RealVal &makeSpecialRealVal(RealVal &real, int32_t code);
bool isSpecialRealVal(const RealVal &real);
// The code of a special value; 2147483647 if its mantissa is too large.
int32_t getSpecialRealVal(const RealVal &real);

// The payload of a REAL value's image, as it lies there.
RealVal payloadReal(const VNode &node);

// The real value in `vNode`: a REAL, a list of exactly three INTEGERs, or an
// INTEGER, which stands for zero. False for any other value.
bool getRealVal(RealVal &real);

// The number as a double; plus infinity is the largest one.
double retRealVal(sint64 mantissa, int base, int exponent);

// -1, 0 or 1.
int compareReal(const RealVal &a, const RealVal &b);

// The same for the payloads of two values of main type INTEGER or REAL; 0 for
// any other main type.
int compareNumber(const VNode &a, const VNode &b, int mainType);

// Stores an infinity of a main type's numbers in an endpoint's payload, and
// asks for it.
void setInfinity(VNode &endpoint, bool isUpper, int mainType);
bool testInfinity(const VNode &endpoint, bool isUpper, int mainType);

// The bound of the type in `tNode`, which is the same afterwards: of its
// numbers, or of its lengths. False if such a type has none. `closedFlag` is
// the flag of that side, or 0. The node of a finite bound is left in `vNode`.
bool getEndpoint(VNode &endpoint, int &closedFlag, bool isUpper);

// Writes both bounds into the type node in `tNode`; fatal error 13 if the
// numbers of its main type have bounds and these can't be told.
void setTNodeEndpoints();
