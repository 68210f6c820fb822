#pragma once
#include "store/treestore.h"
#include <string>

// Restricted character strings and string values. A tree keeps such a value
// in pieces: leaves in the 8, 16 and 32-bit string tables, and lists of
// leaves and references. A piece counts as many characters as it states, but
// never more than its stored string has. All functions take the value at the
// end of a chain of references, leave the current records as they were, and
// end the run with fatal error 15 on a value that contains itself.

// A whole string. The text is in `text16` for the main type BMPString, in
// `text32` for UniversalString and else in `text`; the other two are empty. A
// character that is a zero counts and ends its piece: what the text lacks
// then is made up for by zeros at its end.
struct RestrCharStri {
  uint32_t mainType = 0;  // of the value
  int32_t length = 0;     // in characters
  std::string text;
  std::u16string text16;
  std::u32string text32;
};

// Fills `out` from a value node of the module, which may be `vNode` itself.
// A piece of another width than the whole is converted unit by unit.
void makeRestrCharStri(ModRec *module, const VNode &vnodeImage,
                       RestrCharStri &out);

// Empties `out` and gives its text's memory back.
void delRestrCharStri(RestrCharStri &out);

// Length of the value in `vNode` for the base type in `tNode`: in octets for
// an OCTET STRING, in bits for a BIT STRING (0 for a list of named bits), in
// characters for all others. For the first two `vNode` is no reference.
int32_t getAnyStringLength();

// The bits of a BIT STRING (`mainType` 4) or OCTET STRING (5) value as "0" and
// "1". Binary strings and named bits are cut at 32000 bits; a hexadecimal
// digit gives its upper three bits only. Fatal error 13 for a named bit
// beyond 32 bits.
std::string convBitString(int mainType, ModRec *module,
                          const VNode &vnodeImage);

// True if the values of a type of that main type are equal. Trailing zero
// bits of a BIT STRING don't count.
bool equalStrings(int mainType, ModRec *leftMod, const VNode &left,
                  ModRec *rightMod, const VNode &right);

// 0 if the character strings are equal, else 1 for different main types or
// the text comparison's result. `mainType` is not looked at.
int compareStrings(int mainType, ModRec *leftMod, const VNode &left,
                   ModRec *rightMod, const VNode &right);

// Number of bits that a list of named bits needs, the highest bit number plus
// 1; 2147483647 if that is out of range, 0 without a list.
int32_t lenFromNamedBits(ModRec *module, int32_t firstVNode);
