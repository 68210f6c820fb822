#pragma once
#include "base/upcalls.h"
#include <string>

// What this back-end keeps beside a type: names that are asked for often, and
// the FUNC option of its nodes.
struct BETypMetaRec {
  std::string compId;      // empty for what is no component
  std::string funcId;      // of FUNC: the function
  std::string funcOption;  // its further text
};

// Null-safe reads; null without a record or without the text.
const char *getMetaCompId(const AsnType &type);
const char *getMetaFuncId(const AsnType &type);
const char *getMetaFuncOption(const AsnType &type);
