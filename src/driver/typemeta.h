#pragma once
#include "base/upcalls.h"
#include "per/extinfo.h"
#include <string>

// What this back-end keeps beside a type: names that are asked for often, the
// FUNC option of its nodes, and extension information.
struct BETypMetaRec {
  std::string typeId;      // the C name
  std::string baseTypeId;  // the one for declarations and casts
  std::string compId;      // empty for what is no component
  std::string homeTypeId;  // of a string's elements; empty for other types
  std::string funcId;      // of FUNC: the function
  std::string funcOption;  // its further text
  uint8_t extensionInfoValid = 0;
  ExtensionInfo extensionInfo;       // worked out when it is asked for first
  BETypMetaRec *nextFree = nullptr;  // while it is not in use
};

// The C type of an element of a static string; null for other types.
const char *homeTypeId(const AsnType &type);

// Null-safe reads; null without a record or without the text.
const char *getMetaTypeId(const AsnType &type);
const char *getMetaBaseTypeId(const AsnType &type);
const char *getMetaCompId(const AsnType &type);
const char *getMetaHomeTypeId(const AsnType &type);
const char *getMetaFuncId(const AsnType &type);
const char *getMetaFuncOption(const AsnType &type);
