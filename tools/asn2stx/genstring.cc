// Values of strings: binary and hexadecimal digits, characters, tuples and
// quadruples, and concatenations of them.

#include "asn2stx/genvalue.h"
#include "asn2stx/resolve.h"
#include "asn2stx/shown.h"
#include <algorithm>
#include <cctype>
#include <limits>

// A string of a tree has at most so many characters.
constexpr size_t maxChars = maxStriUnits - 1;

void genOctetsValue(Compilation &c, int into, const AstValue &value,
                    int32_t node)
{
  if (value.text.size() > maxChars) {
    asnError(c.errors, value.pos, "a string has more than %zu digits",
             maxChars);
    return;
  }
  std::string digits = value.text;
  for (char &digit : digits)
    digit = static_cast<char>(toupper(static_cast<unsigned char>(digit)));
  StxTree &tree = treeOf(c, into);
  int32_t stri = stxStri(tree, digits);
  VNode &filled = stxValueAt(tree, node);
  filled.mainType = value.kind == AV_BSTRING ? TYP_BITSTR : TYP_OCTSTR;
  setPayloadStri(filled, static_cast<uint16_t>(digits.size()), stri);
}

// Characters

// The code points of UTF-8 text; an octet that is part of none counts by
// itself.
static std::u32string codePoints(const std::string &text)
{
  std::u32string points;
  for (size_t i = 0; i < text.size();) {
    uint8_t lead = static_cast<uint8_t>(text[i]);
    size_t more = lead >= 0xF0 && lead < 0xF8   ? 3
                  : lead >= 0xE0 && lead < 0xF0 ? 2
                  : lead >= 0xC0 && lead < 0xE0 ? 1
                                                : 0;
    char32_t point = more == 0 ? lead : lead & (0x3Fu >> more);
    bool good = i + more < text.size();
    for (size_t k = 1; good && k <= more; ++k) {
      uint8_t next = static_cast<uint8_t>(text[i + k]);
      good = (next & 0xC0) == 0x80;
      point = point << 6 | (next & 0x3Fu);
    }
    points += good ? point : lead;
    i += good ? more + 1 : 1;
  }
  return points;
}

// The characters by the width of the type: octets as they stand, or code
// points.
static std::u32string charactersOf(const std::string &text, int mainType)
{
  if (mainType == TYP_BMPSTR || mainType == TYP_UNISTR)
    return codePoints(text);
  std::u32string characters;
  for (char octet : text)
    characters += static_cast<uint8_t>(octet);
  return characters;
}

static int32_t internCharacters(StxTree &tree, const std::u32string &text,
                                int mainType)
{
  if (mainType == TYP_UNISTR)
    return stxStri32(tree, text);
  std::u16string wide;
  std::string narrow;
  for (char32_t character : text) {
    wide += static_cast<char16_t>(character);
    narrow += static_cast<char>(character);
  }
  return mainType == TYP_BMPSTR ? stxStri16(tree, wide) : stxStri(tree, narrow);
}

static void setCharacters(Compilation &c, int into, int32_t node, int mainType,
                          const std::u32string &text)
{
  StxTree &tree = treeOf(c, into);
  int32_t stri = internCharacters(tree, text, mainType);
  VNode &filled = stxValueAt(tree, node);
  filled.mainType = static_cast<uint8_t>(mainType);
  setPayloadStri(filled, static_cast<uint16_t>(text.size()), stri);
}

// A segment of a concatenation.
static int32_t addSegment(Compilation &c, int into, int32_t node, NodeAt at,
                          int mainType, int line)
{
  VNode segment = stxNewVNode(mainType, at.node);
  segment.valueStatus = 0;
  segment.line = line;
  segment.governorModule = moduleNumber(c, into, at.module);
  return stxAddChild(treeOf(c, into), node, "", segment);
}

static void genCharacters(Compilation &c, int into, const AstValue &value,
                          const std::u32string &text, int mainType, NodeAt at,
                          int32_t node)
{
  char32_t most = mainType == TYP_BMPSTR   ? 0xFFFF
                  : mainType == TYP_UNISTR ? 0x7FFFFFFF
                                           : 0xFF;
  if (std::any_of(text.begin(), text.end(),
                  [&](char32_t point) { return point > most; })) {
    asnError(c.errors, value.pos, "%s has a character beyond the type",
             valueShown(value).c_str());
    return;
  }
  if (text.size() <= maxChars)
    return setCharacters(c, into, node, mainType, text);
  stxValueAt(treeOf(c, into), node).mainType = static_cast<uint8_t>(mainType);
  for (size_t i = 0; i < text.size(); i += maxChars) {
    int32_t segment = addSegment(c, into, node, at, mainType, value.pos.line);
    setCharacters(c, into, segment, mainType, text.substr(i, maxChars));
  }
}

// {column, row} and {group, plane, row, cell}, X.680 37.8 and 37.9.
static bool isPoint(const AstBraces &braces)
{
  size_t count = braces.items.size();
  return (count == 2 || count == 4) &&
         std::all_of(braces.items.begin(), braces.items.end(),
                     [](const AstItem &item) {
                       return item.name.empty() && item.value &&
                              item.value->kind == AV_INTEGER;
                     });
}

static bool pointOf(Compilation &c, const Scope &scope, const AstValue &value,
                    std::u32string &text)
{
  const std::vector<AstItem> &items = value.braces->items;
  bool isTuple = items.size() == 2;
  int64_t point = 0;
  for (size_t i = 0; i < items.size(); ++i) {
    int64_t part = 0;
    if (!integerOf(c, scope, *items[i].value, {}, part))
      return false;
    int64_t most = !isTuple ? (i == 0 ? 127 : 255) : (i == 0 ? 7 : 15);
    if (part < 0 || part > most) {
      asnError(c.errors, items[i].pos, "%lld is out of range here",
               static_cast<long long>(part));
      return false;
    }
    point = point * (isTuple ? 16 : 256) + part;
  }
  text.assign(1, static_cast<char32_t>(point));
  return true;
}

void genStringValue(Compilation &c, int into, const Scope &scope,
                    const AstValue &value, TypeUse base, NodeAt at,
                    int32_t node)
{
  int mainType = mainTypeOf(*base.type);
  std::u32string text;
  if (value.kind == AV_CSTRING) {
    text = charactersOf(value.text, mainType);
  } else if (value.kind != AV_BRACES) {
    return valueMisfit(c, value);
  } else if (isPoint(*value.braces)) {
    if (!pointOf(c, scope, value, text))
      return;
  } else {
    if (value.braces->items.empty() && !value.braces->isEmpty)
      return valueMisfit(c, value);
    stxValueAt(treeOf(c, into), node).mainType = static_cast<uint8_t>(mainType);
    for (const AstItem &item : value.braces->items) {
      if (!item.value || !item.name.empty())
        return valueMisfit(c, value);
      int32_t segment = addSegment(c, into, node, at, mainType, item.pos.line);
      genValueInto(c, into, scope, *item.value, base, at, segment);
    }
    if (!value.braces->isEmpty)
      return;
  }
  genCharacters(c, into, value, text, mainType, at, node);
}
