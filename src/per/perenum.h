#pragma once
#include "model/asntype.h"
#include <string>

// ENUMERATED values go by their place among the sorted numbers, X.691 (2002)
// clause 13. The shape of the generated code depends on whether a number can
// be had from its place by an addition. Arguments are those of
// `forSortedEnumeratedValueArray`.

enum EnumeratedKind : int {
  ENUM_NOT_EXTENSIBLE = 0,
  ENUM_EXTENSIBLE = 1,
  ENUM_UNSUPPORTED = 2
};

enum NonExtendedEnumeratedKind : int {
  ENUM_ONE_VALUE = 0,
  ENUM_FROM_ZERO = 1,  // contiguous
  ENUM_FROM_OTHER = 2,
  ENUM_WITH_HOLES = 3,
  ENUM_ROOT_UNSUPPORTED = 4
};

// Root, then additions.
enum ExtendedEnumeratedKind : int {
  ENUM_CONT_NONE = 0,
  ENUM_CONT_CONT = 1,
  ENUM_CONT_HOLES = 2,
  ENUM_HOLES_NONE = 3,
  ENUM_HOLES_CONT = 4,
  ENUM_HOLES_HOLES = 5,
  ENUM_EXT_UNSUPPORTED = 6
};

int perGetEnumeratedKind(int addCount);
int perGetNonExtendedEnumeratedKind(int rootCount, const int32_t *rootValues,
                                    bool rootIsContinued);
int perGetExtendedEnumeratedKind(int rootCount, bool rootIsContinued,
                                 int addCount, bool addIsContinued);

// --- The size of an index among `count` values.

// Bits up to 255 values, octets above, as the aligned variant has it; or
// always bits.
int perBitsOrOctetsInEnumRange(int32_t count);
int perBitsInEnumRange(int32_t count);

// --- Parts of the calls that both generators write.

// Writes the function for an index among `count` root values, up to the
// arguments or the size ending: prefix and name in one text, the aligned
// variant's word in another. Gives the size argument. More than 65536 values
// and an unknown variant leave an error text in the code and are reported.
int perEnumIndexFunctionToF(int file, const char *prefix, int32_t count);

// The function for an enumeration of one value, and that for the index of an
// addition; null for an unknown variant.
const char *perEnumOneValueFunctionName();
const char *perNormSmallNumberFunctionName();

// --- Enumerations treated as integers.

// A number that was not found, and the kind where there is none.
constexpr int32_t enumNumberUnset = INT32_MIN;
constexpr int enumNoKind = 4;

// Every number equals its position in the order of definition; so it is held
// of an inline enumeration, since only definitions are looked at.
bool checkEnumerated(AsnType &type);

// The function's name; null if there is none. `kind` is an `IntegerKind`, or
// `enumNoKind` if numbers differ from their positions; `addLower` is the number
// of the first addition. `bits` is the size as `perInteger32FunctionName`
// gives it or, of an extensible type, the bits of the root's range.
std::string *perEnumeratedFunctionName(std::string &text, const char *prefix,
                                       AsnType &type, const char *suffix,
                                       int &kind, int32_t &lower,
                                       int32_t &upper, int32_t &addLower,
                                       int &bits);
