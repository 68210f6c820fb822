#pragma once
#include "model/asntype.h"
#include <string>

// How an INTEGER or a length is laid out: the kind tells how far its range is
// bounded, the field how large the range is, and both, with the variant and
// the C home, give the function of the run-time library that handles it.
// Encoder, decoder and ignore functions put "pe_", "pd_" or "pi_" before its
// name.

// X.691 (2002) 10.5 to 10.8. An upper bound alone does not count: nothing can
// be sent relative to it.
enum IntegerKind : int {
  INT_SINGLE = 0,
  INT_CONSTRAINED = 1,
  INT_SEMI_CONSTRAINED = 2,  // a lower bound alone
  INT_UNCONSTRAINED = 3
};

// By the number of values, X.691 (2002) 10.5.7.
enum IntegerField : int {
  INT_EQ1 = 0,
  INT_LE255 = 1,
  INT_EQ256 = 2,
  INT_LE64K = 3,
  INT_GT64K = 4,  // of types with an open end, too
  INT_NONE = 5    // beyond 63 bits: there is no function
};

// --- Sizes of ranges, given as the number of values.

// The number of values; false if it does not fit.
bool range64(sint64 &range, sint64 upper, sint64 lower);

// Octets of the largest offset; 0 for ranges below 256, which are bit fields.
int numberOfOctetsInRange32(int32_t range);
int numberOfOctetsInRange64(sint64 range);

// Bits of the largest offset. Fatal error 13 for a negative 64-bit range.
int numberOfBitsInRange32(int32_t range);
int numberOfBitsInRange64(sint64 range);

// The same between two bounds; fatal error 13 if the 64-bit range does not
// fit, while a 32-bit one wraps.
int perBitsInIntegerBitField(sint64 lower, sint64 upper);
int perBitsInInteger32BitField(int32_t lower, int32_t upper);

// Bits of the length that goes ahead of up to `octets` octets.
int perBitsInIntegerLenDeterminant(int octets);

// --- Classes. They give an `IntegerKind` or an `IntegerField`.

int perGetConstrainedWholeNumberField(sint64 range);

// For a length of a `LengthClass`; `INT_GT64K` if it may be fragmented.
int perGetLengthDeterminantField(int32_t lower, int32_t upper, int lengthClass);

// The lowest and the highest number that the constraints allow, whatever lies
// between them.
void getIntegerEndpoints(AsnType &type, sint64 &lower, sint64 &upper);

int getIntegerNumberKindByBounds(sint64 lower, sint64 upper);
int perGetIntegerNumberKind(AsnType &type);

// `octets` is -1 for an open end and left alone for `INT_NONE`.
int getIntegerNumberFieldByBounds(sint64 lower, sint64 upper, int &octets);
int perGetIntegerNumberField(AsnType &type, sint64 &lower, sint64 &upper,
                             int &octets);

// --- Indexes of the table of functions; -1 for none.

int encodingVariant2Index(int variant);
int vf2Index(int valueFormat);
int intFieldKind2Index(int kind, int field);

// --- Names. Null stands for "no such function"; null prefixes and suffixes
// count as empty.

// The function for an INTEGER's value, with the classification by which it
// was found. The classification is told even where there is no function.
std::string *perIntegerFunctionName(std::string &text, const char *prefix,
                                    AsnType &type, const char *suffix,
                                    int &kind, sint64 &lower, sint64 &upper,
                                    int &octets);
// The same with bounds in 32 bits.
std::string *perInteger32FunctionName(std::string &text, const char *prefix,
                                      AsnType &type, const char *suffix,
                                      int &kind, int32_t &lower, int32_t &upper,
                                      int &octets);

// Warns that the type has no function, in words that depend on its home.
void perNoIntegerFunction(const AsnType &type);

// The numbers that follow the bounds of a constrained INTEGER in the call:
// bits or octets of an offset, and for octets without a fixed number the bits
// of their length. Gives how many there are, 0 for an unknown variant.
int perIntegerCounts(int (&counts)[2], sint64 lower, sint64 upper, int octets);

// The whole call that handles the length of a list, in one text with prefix
// and suffix. Empty if the list goes through fragmentation; null, with an
// empty text, if there is no function.
std::string *perLengthDeterminantFunctionName(std::string &text,
                                              const char *prefix, int field,
                                              const AsnType &type,
                                              const char *length, int32_t lower,
                                              int32_t upper, int count,
                                              const char *suffix);

// The same for one variant; false if there is no function.
bool alignedLenDetFuncName(std::string &text, const char *prefix, int field,
                           const AsnType &type, const char *length,
                           int32_t lower, int32_t upper, int count,
                           const char *suffix);
bool unalignedLenDetFuncName(std::string &text, const char *prefix, int field,
                             const AsnType &type, const char *length,
                             int32_t lower, int32_t upper, int count,
                             const char *suffix);
