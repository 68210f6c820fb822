#pragma once
#include "base/textfile.h"
#include "store/modrec.h"
#include <cstddef>
#include <cstdint>
#include <string>

// Validators of option values. Each takes a destination and the value's text
// and returns true if the value was taken; otherwise the destination is as
// before.

// A name and the byte that it stands for; a table ends with a null name.
// Names compare ignoring case.
struct NamedByte {
  const char *name;
  int8_t value;
};

extern const NamedByte yesNoVal[];
extern const NamedByte ignoreWarningErrorVal[];
extern const NamedByte glbDefLenVal[];
extern const NamedByte extensionsVal[];
extern const NamedByte generateVal[];
extern const NamedByte setnVal[];
extern const NamedByte optVals[];  // C-GENERATION: negative clears a bit

// DEFINITION-CATEGORY; OTHER is 255.
struct CategoryName {
  const char *name;
  uint8_t value;
};
extern const CategoryName defCatVal[5];

// A number of up to three digits in the range, or a name of the table (which
// may be null); a name's byte is stored whatever the range.
bool byteOptionOK(uint8_t &destination, const char *text, int minimum,
                  int maximum, const NamedByte *table);

// A decimal number in the range; the empty text counts as 0.
bool int32OptionOK(int32_t &destination, const char *text, int32_t minimum,
                   int32_t maximum);

// 1, YES, TRUE; 0, NO, FALSE.
bool booleOptionOK(uint8_t &destination, const char *text);

// Digits 0 to 7, each setting its bit.
bool bitVector8OptionOK(uint8_t &destination, const char *text);

// Codes of integer sizes: 0, or 2 to 5 unsigned and 6 to 9 signed.
bool intSizeOptionOK(uint8_t &destination, const char *text,
                     bool unsignedAllowed);

// Codes of REAL sizes.
bool realSizeOptionOK(uint8_t &destination, const char *text);

// {mantissa,10,exponent}.
bool realLimOptionOK(RealVal &destination, const char *text);

// Up to three entries of a generation array, from `index` on and mirrored 6
// places behind; written only if all are good.
bool genArrOptionOK(uint8_t *array, const char *text, int index);

// INDEX:BITS, with the index below `limit`.
bool altCodOption(uint8_t *array, const char *text, int limit);

// A printable text, blanks included, with "/" added unless it ends in one.
bool directoryOptionOK(std::string &destination, const char *text);
bool directorySearchPathOptionOK(SearchPath &destination, const char *text);

// The text with "/" added unless it ends in one.
bool copyDirOption(std::string &destination, const char *text);

// The whole text is of the class and its length, in characters, in the range.
bool alphaStriOptionOK(std::string &destination, const char *text,
                       size_t shortest, size_t longest);
bool digitStriOptionOK(std::string &destination, const char *text,
                       size_t shortest, size_t longest);
bool xdigitStriOptionOK(std::string &destination, const char *text,
                        size_t shortest, size_t longest);
bool bdigitStriOptionOK(std::string &destination, const char *text,
                        size_t shortest, size_t longest);
bool alnumStriOptionOK(std::string &destination, const char *text,
                       size_t shortest, size_t longest);
// Letters, digits and the characters of `set`.
bool alnumSpecialStriOptionOK(std::string &destination, const char *text,
                              const char *set, size_t shortest, size_t longest);
// Only the first character is examined: it must be in `set`.
bool specialStriOptionOK(std::string &destination, const char *text,
                         const char *set, size_t shortest, size_t longest);

// 1990 or 1994.
bool standardVersionOptionOK(int32_t &destination, const char *text);

// [PREFIX:]NAME; with another module's prefix it is good and does nothing.
// A category brings options of its own along.
bool defCatOption(GlobalOptions &options, const ModRec &module,
                  const char *text);

// A category as a number from 0 to 2.
bool varnoOption(GlobalOptions &options, const char *text);

// Yes or no, but no is refused in the categories 1 to 3.
bool memoryOptionOK(GlobalOptions &options, const char *text);
bool zeroHomeOptionOK(GlobalOptions &options, const char *text);

// A list of names of `optVals`, separated by ":".
bool cGenerationOptionOK(GlobalOptions &options, const char *text);

// Position of the first character that is not printable, blanks being
// allowed only if `isOption`; the length if there is none.
size_t findNonPrint(const char *text, bool isOption);
