// The tables of bits and the texts of codes and numbers.

#include "stx/stxnames.h"
#include "base/strings.h"
#include "store/codes.h"
#include <algorithm>
#include <cinttypes>
#include <iterator>

std::string stxInt64Text(sint64 value)
{
  uint64_t bits = static_cast<uint64_t>(static_cast<uint32_t>(value.high))
                      << 32 |
                  value.low;
  return formatText("%" PRId64, static_cast<int64_t>(bits));
}

static constexpr StxBitName nodeOptionRows[] = {
    {optEmbedding, "optEmbedding"},
    {optClearedBit2, "optClearedBit2"},
    {optNaming, "optNaming"},
    {optSkip, "optSkip"},
    {optAsnHome, "optAsnHome"},
    {optPointer, "optPointer"},
    {optAsnhc, "optAsnhc"},
    {optPtrComps, "optPtrComps"},
    {optFrame, "optFrame"},
    {optHomeList, "optHomeList"},
    {optHomeElems, "optHomeElems"},
    {optDynamicArray, "optDynamicArray"},
    {optInherited15, "optInherited15"},
    {optExtMarkerField, "optExtMarkerField"},
};

static constexpr StxBitName nodeFlagRows[] = {
    {0, "optionalComps"}, {3, "untaggedComps"},  {4, "unique"},
    {5, "recursive"},     {6, "mandatoryComps"}, {7, "extensible"},
    {8, "automaticTags"}, {9, "instantiated"},   {10, "topLevelInstantiated"},
    {11, "ignorable"},
};

static constexpr StxBitName classFlagRows[] = {
    {1, "visible"},
    {3, "set"},
    {5, "variableType"},
};

static constexpr StxBitName valueFlagRows[] = {
    {0, "visible"},
    {1, "set"},
    {3, "naming"},
};

static constexpr StxBitName subFlagRows[] = {
    {0, "exception"}, {1, "full"},        {2, "present"},     {3, "absent"},
    {4, "optional"},  {5, "lowerClosed"}, {6, "upperClosed"},
};

const std::span<const StxBitName> stxNodeOptionBits = nodeOptionRows;
const std::span<const StxBitName> stxNodeFlagBits = nodeFlagRows;
const std::span<const StxBitName> stxClassFlagBits = classFlagRows;
const std::span<const StxBitName> stxValueFlagBits = valueFlagRows;
const std::span<const StxBitName> stxSubFlagBits = subFlagRows;

std::string stxBitNames(std::span<const StxBitName> names, uint32_t bits)
{
  std::string text;
  for (int bit = 0; bit < 32; ++bit) {
    if (!(bits >> bit & 1))
      continue;
    auto found =
        std::find_if(names.begin(), names.end(),
                     [&](const StxBitName &b) { return b.bit == bit; });
    text += text.empty() ? "" : ",";
    text += found != names.end() ? found->name : formatText("bit%d", bit);
  }
  return text;
}

std::string stxCodeName(const char *name, const char *field, int code)
{
  return *name ? name : formatText("%s=%d", field, code);
}

std::string stxMainTypeName(int code)
{
  // The two rows of EXTERNAL have one name.
  if (code == TYP_EXTERNAL_1994)
    return formatText("%s(%d)", typeRow(code).name, code);
  bool known = code < TYP_COUNT;
  return stxCodeName(known ? typeRow(code).name : "", "mainType", code);
}

std::string stxCompStatusText(int code)
{
  if (code >= 0 || code <= -TCS_COUNT)
    return stxCodeName(compStatusName(code), "compStatus", code);
  return std::string("-") + compStatusName(-code);
}

const char *stxSubKindName(int kind)
{
  static const char *const names[] = {
      "",
      "union",
      "intersection",
      "catenated",
      "except",
      "all except",
      "",
      "",
      "",
      "",
      "range",
      "permitted alphabet",
      "size",
      "single value",
      "includes",
      "with component",
      "with components",
      "table",
      "user defined",
      "component relation",
      "exception specification",
      "type constraint",
      "extended value set",
      "",
      "hidden",
  };
  return static_cast<size_t>(kind) < std::size(names) ? names[kind] : "";
}

std::string stxRealText(const VNode &node)
{
  sint64 mantissa = payloadInt64(node);
  if (payloadRealBase(node) != -1)
    return formatText("%s*%d^%d", stxInt64Text(mantissa).c_str(),
                      payloadRealBase(node), payloadRealExponent(node));
  if (i64iszero(mantissa))
    return "zero";
  if (mantissa.high == -1 && mantissa.low == UINT32_MAX)
    return "MINUS-INFINITY";
  if (mantissa.high == -1 && mantissa.low == UINT32_MAX - 1)
    return "PLUS-INFINITY";
  return formatText("special(%s)", stxInt64Text(mantissa).c_str());
}

std::string stxBoundText(sint64 value)
{
  return i64ismin(value)   ? "MIN"
         : i64ismax(value) ? "MAX"
                           : stxInt64Text(value);
}
