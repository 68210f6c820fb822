#pragma once
#include "base/int64.h"
#include <cstdint>
#include <string>
#include <unordered_map>

struct FixRec;

// The records behind a head by ASN.1 name, "-" turned to "_", and the last of
// their chain.
struct FixIndex {
  std::unordered_map<std::string, FixRec *> byName;
  FixRec *last = nullptr;
};

// How one ASN.1 name becomes an identifier of generated C. The texts are not
// owned: they point into option lines, which live until the process ends. A
// null text reads as empty.
struct FixRec {
  const char *pref = nullptr;
  const char *name = nullptr;  // replaces the ASN.1 name
  const char *suff = nullptr;
  const char *conv = nullptr;  // letters of the conversion rule
  const char *id = nullptr;    // the ASN.1 name; behind a head: the name in
                               // the option's text, ended by ":"
  int32_t idLen = 0;           // characters of `id` to use
  FixRec *next = nullptr;      // records of named definitions
  FixIndex *index = nullptr;   // of a head, once there are any
};

// Kinds of names, as the naming options tell them apart.
enum FixKind : int {
  FIX_TYPE = 1,
  FIX_CLASS = 2,
  FIX_VALUE = 3,
  FIX_OBJECT = 4,
  FIX_VALUE_SET = 5,
  FIX_OBJECT_SET = 6,
  FIX_COMP = 7,
  FIX_FIELD = 8,
  FIX_COMP_VALUE = 9
};

constexpr int fixHeadCount = 8;

// A REAL value. Base -1 marks a special value, with mantissa 0 for zero, -1
// for MINUS-INFINITY and -2 for PLUS-INFINITY.
struct RealVal {
  sint64 mantissa;
  int16_t base = -1;
  int16_t exponent = 0;
};
