#pragma once
#include "cbet/typefuncinfo.h"

// Prefixes of the functions that a generator writes, by the options for
// names and the encoding variant: aligned, unaligned, unknown.
struct FuncPrefixes {
  const char *normal[2][3];  // without and with a mark for the variant
  const char *entry[2][3];
  const char *entryBer[3];  // as the BER back-end names them
};

void perSetFuncPrefs(const AsnModule &module, TypeFuncInfo &info,
                     const FuncPrefixes &prefixes);
