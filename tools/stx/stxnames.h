#pragma once
#include "base/int64.h"
#include "store/records.h"
#include <span>
#include <string>

// Codes, bits and numbers of a tree as the dump prints them.

struct StxBitName {
  int bit;
  const char *name;
};

extern const std::span<const StxBitName> stxNodeOptionBits;
extern const std::span<const StxBitName> stxNodeFlagBits;
extern const std::span<const StxBitName> stxClassFlagBits;
extern const std::span<const StxBitName> stxValueFlagBits;
extern const std::span<const StxBitName> stxSubFlagBits;

// The names of the bits that are set, joined by ","; "bit4" for one without a
// name.
std::string stxBitNames(std::span<const StxBitName> names, uint32_t bits);

// The name, or "field=code" if it is empty.
std::string stxCodeName(const char *name, const char *field, int code);

std::string stxMainTypeName(int code);
std::string stxCompStatusText(int code);

// Name of a constraint kind; empty if the file should not have it.
const char *stxSubKindName(int kind);

std::string stxInt64Text(sint64 value);

// An endpoint: MIN and MAX for those that are not known.
std::string stxBoundText(sint64 value);

// The REAL value that a node holds.
std::string stxRealText(const VNode &node);
