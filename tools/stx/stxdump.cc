// The dump. A line holds a record's own fields, by the layout tables, zeros
// left out; what its indexes lead to stands indented below, unless it was
// printed before. Depth is bounded and no record is printed twice, so that a
// damaged tree ends like any other.

#include "stx/stxdump.h"
#include "base/strings.h"
#include "store/codes.h"
#include "stx/stxcheck.h"
#include "stx/stxnames.h"
#include <algorithm>
#include <cerrno>
#include <cinttypes>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <numeric>

// Records nested deeper than this are named and printed on their own later.
constexpr int maxDepth = 100;

// Characters of a string beside the record that names it. It stands in full
// in the list of strings; in full everywhere, output would not be linear.
constexpr uint32_t maxShown = 80;

// One run over one file.
struct StxPrinter {
  const StxFile &file;
  FILE *out;
  std::vector<bool> printed[REC_SNODE + 1];  // by kind and index
  std::vector<bool> chained[REC_SNODE + 1];  // passed by the walk of a chain
  // By index: the first line from here on that was not printed, the way
  // there being cut short as it is gone. Ranges of lines may overlap.
  std::vector<int32_t> freshTed;
};

static void line(const StxPrinter &dump, int depth, const std::string &text)
{
  fprintf(dump.out, "%*s%s\n", 2 * depth, "", text.c_str());
}

static const char *nameOf(int kind)
{
  static const char *const names[] = {"module", "type", "value", "tag",
                                      "sub",    "line", "link"};
  return names[kind];
}

// True if the record is there and new; it counts as printed then. If not,
// the line that stands in its place is printed.
static bool enter(StxPrinter &dump, int kind, int64_t index, int depth,
                  const char *label)
{
  const char *why = nullptr;
  if (!stxHas(dump.file, kind, index))
    why = "no such record";
  else if (dump.printed[kind][static_cast<size_t>(index)])
    why = "see above";
  else if (depth > maxDepth)
    why = "nested too deeply, see below";
  if (why)
    line(dump, depth,
         formatText("%s%s %" PRId64 " (%s)", label, nameOf(kind), index, why));
  else
    dump.printed[kind][static_cast<size_t>(index)] = true;
  return !why;
}

// Texts

static void addUnit(std::string &text, uint32_t unit, int kind)
{
  if (unit == '"' || unit == '\\')
    text += '\\';
  if (unit >= ' ' && unit <= '~')
    text += static_cast<char>(unit);
  else if (kind == REC_STRI)
    text += formatText("\\x%02X", unit);
  else
    text += formatText("\\u{%X}", unit);
}

// A string in quotes, cut to `most` characters.
static std::string quoted(const StxFile &file, int kind, int64_t index,
                          uint32_t most)
{
  if (!stxHas(file, kind, index))
    return "(no such string)";
  const StxText &stri =
      file.texts[kind - REC_STRI][static_cast<size_t>(index) - 1];
  std::string text = "\"";
  uint32_t shown = std::min(stri.units, most);
  for (uint32_t i = 0; i < shown; ++i)
    addUnit(text, stxUnit(file, kind, stri, i), kind);
  return text += shown < stri.units ? "\"..." : "\"";
}

static std::string named(const StxPrinter &dump, int64_t index)
{
  return quoted(dump.file, REC_STRI, index, maxShown);
}

// Fields

static void addField(std::string &text, const char *name,
                     const std::string &value)
{
  text += formatText(" %s=%s", name, value.c_str());
}

static void addNumber(std::string &text, const char *name, int64_t value)
{
  if (value != 0)
    addField(text, name, formatText("%" PRId64, value));
}

static void addBits(std::string &text, const char *name,
                    std::span<const StxBitName> names, uint32_t bits)
{
  if (bits != 0)
    addField(text, name, stxBitNames(names, bits));
}

// An index with the number of the module that it counts in.
static void addReference(std::string &text, const char *name, int64_t module,
                         int64_t index)
{
  if (module != 0 || index != 0)
    addField(text, name, formatText("%" PRId64 ":%" PRId64, module, index));
}

// The fields of a record that are not 0, without those at the offsets that
// the caller prints in another way.
static void addFields(std::string &text, int kind, const void *record,
                      std::span<const uint16_t> without)
{
  for (const FieldLayout &field : recLayout(kind)) {
    if (std::find(without.begin(), without.end(), field.offset) !=
        without.end())
      continue;
    // Of nested structures the member's own name will do.
    const char *point = strrchr(field.name, '.');
    const char *name = point ? point + 1 : field.name;
    if (field.count == 1) {
      addNumber(text, name, fieldValue(field, record));
      continue;
    }
    std::string elements;
    bool any = false;
    for (int i = 0; i < field.count; ++i) {
      int64_t value = fieldValue(field, record, i);
      any = any || value != 0;
      elements += formatText(i ? ",%" PRId64 : "%" PRId64, value);
    }
    if (any)
      addField(text, name, elements);
  }
}

// Constraints, values and types lead to each other. A record that stands in
// no chain tells its `next`.
static void dumpType(StxPrinter &dump, int64_t index, int depth,
                     const char *label, bool inChain);
static void dumpValue(StxPrinter &dump, int64_t index, int depth,
                      const char *label, bool inChain);
static void dumpSub(StxPrinter &dump, int64_t index, int depth,
                    const char *label, bool inChain);

// Prints a chain up to its end, or to where it leads to no record or into a
// chain that was walked before.
template <class T>
static void dumpChain(StxPrinter &dump, int kind, const std::vector<T> &records,
                      int32_t T::*next, auto *dumpRecord, int32_t first,
                      int depth, const char *heading)
{
  if (first == 0)
    return;
  line(dump, depth, heading);
  while (first != 0) {
    dumpRecord(dump, first, depth + 1, "", true);
    if (!stxHas(dump.file, kind, first) || depth + 1 > maxDepth)
      return;
    size_t at = static_cast<size_t>(first);
    if (dump.chained[kind][at])
      return;
    dump.chained[kind][at] = true;
    first = records[at - 1].*next;
  }
}

// Tags, lines, links

static void dumpTag(StxPrinter &dump, int64_t index, int depth,
                    const char *label, bool inChain)
{
  static const char *const classes[] = {"universal", "application", "context",
                                        "private"};
  static const char *const modes[] = {"implicit", "explicit"};
  if (!enter(dump, REC_TAG, index, depth, label))
    return;
  const TagRec &record = dump.file.tagRecs[static_cast<size_t>(index) - 1];
  bool knownClass = record.tagClass >= 0 && record.tagClass <= 3;
  bool knownMode = record.tagMode == 0 || record.tagMode == 1;
  std::string text = formatText("%stag %" PRId64 " ", label, index);
  text += stxCodeName(knownClass ? classes[record.tagClass] : "", "tagClass",
                      record.tagClass);
  text += formatText(" %d ", record.tagNumber);
  text += stxCodeName(knownMode ? modes[record.tagMode] : "", "tagMode",
                      record.tagMode);
  if (!inChain)
    addNumber(text, "nextTag", record.nextTag);
  line(dump, depth, text);
}

static void dumpTed(StxPrinter &dump, int32_t index, int depth)
{
  static const char *const kinds[] = {"dropped", "embedding", "back-end",
                                      "front-end"};
  static constexpr uint16_t without[] = {offsetof(TedRec, tedKind),
                                         offsetof(TedRec, text)};
  const TedRec &record = dump.file.tedRecs[static_cast<size_t>(index) - 1];
  bool known = record.tedKind <= TED_FRONT_END;
  std::string text = formatText("line %d ", index);
  text += stxCodeName(known ? kinds[record.tedKind] : "", "tedKind",
                      record.tedKind);
  text += ' ' + named(dump, record.text);
  addFields(text, REC_TED, &record, without);
  line(dump, depth, text);
  dump.freshTed[static_cast<size_t>(index)] = index + 1;
}

// The first line from `index` on that was not printed.
static int32_t freshTed(StxPrinter &dump, int32_t index)
{
  std::vector<int32_t> &fresh = dump.freshTed;
  int32_t found = index;
  while (fresh[static_cast<size_t>(found)] != found)
    found = fresh[static_cast<size_t>(found)];
  while (index != found) {
    int32_t next = fresh[static_cast<size_t>(index)];
    fresh[static_cast<size_t>(index)] = found;
    index = next;
  }
  return found;
}

// The lines of a range, without those that were printed in another one.
static void dumpRange(StxPrinter &dump, int32_t first, int32_t last, int depth)
{
  if (first == 0 && last == 0)
    return;
  int64_t present = stxPresent(dump.file, REC_TED);
  bool whole = first >= 0 && last <= present;
  line(dump, depth,
       formatText("lines %d to %d%s", first, last,
                  whole ? "" : " (no such lines)"));
  int32_t end = static_cast<int32_t>(std::min<int64_t>(last, present));
  for (int32_t index = std::max(first, 1); index <= end; ++index) {
    index = freshTed(dump, index);
    if (index <= end)
      dumpTed(dump, index, depth + 1);
  }
}

static void dumpLink(StxPrinter &dump, int64_t index, int depth,
                     const char *label, bool inChain)
{
  static constexpr uint16_t without[] = {offsetof(SNode, linkModule),
                                         offsetof(SNode, target),
                                         offsetof(SNode, nextLink)};
  if (!enter(dump, REC_SNODE, index, depth, label))
    return;
  const SNode &node = dump.file.sNodes[static_cast<size_t>(index) - 1];
  int64_t target = node.target;
  std::string text = formatText("%slink %" PRId64, label, index);
  addReference(text, target > 0 ? "type" : "value", node.linkModule,
               target > 0 ? target : -target);
  addFields(text, REC_SNODE, &node, without);
  if (!inChain)
    addNumber(text, "nextLink", node.nextLink);
  line(dump, depth, text);
}

static void dumpPath(StxPrinter &dump, int32_t first, int depth)
{
  dumpChain(dump, REC_SNODE, dump.file.sNodes, &SNode::nextLink, dumpLink,
            first, depth, "path");
}

// Constraints

static void dumpSubOperands(StxPrinter &dump, const SubRec &record, int depth)
{
  switch (stxOperand1(record)) {
  case STX_SUBS:
    dumpChain(dump, REC_SUB, dump.file.subRecs, &SubRec::nextSub, dumpSub,
              record.operand1, depth, "of");
    break;
  case STX_SUB:
    if (record.operand1 != 0)
      dumpSub(dump, record.operand1, depth, "", false);
    break;
  case STX_VALUE:
    if (record.operand1 != 0)
      dumpValue(dump, record.operand1, depth,
                record.kind == SUB_RANGE ? "lower " : "", false);
    else if (record.kind == SUB_RANGE)
      line(dump, depth, "lower MIN");
    break;
  default:
    break;
  }
  if (stxOperand2(record) == STX_NOTHING)
    return;
  if (record.operand2 != 0)
    dumpValue(dump, record.operand2, depth, "upper ", false);
  else
    line(dump, depth, "upper MAX");
}

static void dumpSub(StxPrinter &dump, int64_t index, int depth,
                    const char *label, bool inChain)
{
  static constexpr uint16_t without[] = {
      offsetof(SubRec, kind),     offsetof(SubRec, subFlags),
      offsetof(SubRec, compNode), offsetof(SubRec, compModule),
      offsetof(SubRec, nextSub),  offsetof(SubRec, operand1),
      offsetof(SubRec, operand2)};
  if (!enter(dump, REC_SUB, index, depth, label))
    return;
  const SubRec &record = dump.file.subRecs[static_cast<size_t>(index) - 1];
  std::string text = formatText("%ssub %" PRId64 " ", label, index);
  text += stxCodeName(stxSubKindName(record.kind), "kind", record.kind);
  addBits(text, "subFlags", stxSubFlagBits, record.subFlags);
  addReference(text, "comp", record.compModule, record.compNode);
  addFields(text, REC_SUB, &record, without);
  if (!inChain)
    addNumber(text, "nextSub", record.nextSub);
  // What is no index of ours is told as a number.
  if (stxOperand1(record) == STX_NOTHING)
    addNumber(text, "operand1", record.operand1);
  if (stxOperand2(record) == STX_NOTHING)
    addNumber(text, "operand2", record.operand2);
  line(dump, depth, text);
  dumpSubOperands(dump, record, depth + 1);
}

// Values

static std::string hexText(std::span<const uint8_t> octets)
{
  std::string text;
  for (uint8_t octet : octets)
    text += formatText("%02X", octet);
  return text;
}

static bool isNumber(int mainType)
{
  return mainType == TYP_INTEGER || mainType == TYP_ENUM;
}

static bool isBinaryString(int mainType)
{
  return mainType == TYP_BITSTR || mainType == TYP_OCTSTR;
}

// True if the text of a value tells the octet of its payload. Of strings
// that is a length, of 16 or 32 bits, and an index at 4.
static bool isShownOctet(const VNode &node, size_t octet)
{
  if (node.mainType == TYP_BOOLEAN)
    return octet < 1;
  if (isNumber(node.mainType))
    return octet < 8;
  if (node.mainType == TYP_REAL)
    return true;
  if (stxPayloadKind(node) == 0)
    return false;
  size_t lengthEnd = isBinaryString(node.mainType) ? 2 : 4;
  return octet < lengthEnd || (octet >= 4 && octet < 8);
}

// All octets, if there is one that is not told otherwise.
static std::string restOfPayload(const VNode &node)
{
  for (size_t i = 0; i < std::size(node.payload); ++i)
    if (node.payload[i] != 0 && !isShownOctet(node, i))
      return " payload=" + hexText(node.payload);
  return "";
}

// The value that a node holds itself.
static std::string payloadText(const StxPrinter &dump, const VNode &node)
{
  if (node.mainType == TYP_BOOLEAN)
    return payloadBool(node) ? " TRUE" : " FALSE";
  if (isNumber(node.mainType))
    return ' ' + stxInt64Text(payloadInt64(node));
  if (node.mainType == TYP_REAL)
    return ' ' + stxRealText(node);
  int kind = stxPayloadKind(node);
  if (kind == 0)
    return "";
  // Front-ends give object identifiers a length, too.
  std::string text;
  uint32_t length = isBinaryString(node.mainType) ? littleU16(node.payload)
                                                  : littleU32(node.payload);
  addNumber(text, "length", static_cast<int32_t>(length));
  if (payloadStri(node) != 0)
    text += ' ' + quoted(dump.file, kind, payloadStri(node), maxShown);
  return text;
}

static void dumpValueParts(StxPrinter &dump, int32_t index, int depth)
{
  const VNode &node = dump.file.vNodes[static_cast<size_t>(index) - 1];
  if (stxFirstChild(dump.file, index) == STX_VALUES)
    dumpChain(dump, REC_VNODE, dump.file.vNodes, &VNode::next, dumpValue,
              node.firstChild, depth, "of");
  dumpPath(dump, node.fieldPath, depth);
  dumpRange(dump, node.firstTed, node.lastTed, depth);
}

static void dumpValue(StxPrinter &dump, int64_t index, int depth,
                      const char *label, bool inChain)
{
  static constexpr uint16_t without[] = {
      offsetof(VNode, identifier), offsetof(VNode, valueFlags),
      offsetof(VNode, governor),   offsetof(VNode, governorModule),
      offsetof(VNode, next),       offsetof(VNode, mainType),
      offsetof(VNode, refModule),  offsetof(VNode, firstChild),
      offsetof(VNode, firstTed),   offsetof(VNode, lastTed),
      offsetof(VNode, payload),    offsetof(VNode, fieldPath)};
  if (!enter(dump, REC_VNODE, index, depth, label))
    return;
  const VNode &node = dump.file.vNodes[static_cast<size_t>(index) - 1];
  std::string text = formatText("%svalue %" PRId64, label, index);
  if (node.identifier != 0)
    text += ' ' + named(dump, node.identifier);
  text += ' ' + stxMainTypeName(node.mainType) + payloadText(dump, node);
  text += restOfPayload(node);
  addReference(text, "governor", node.governorModule, node.governor);
  addBits(text, "valueFlags", stxValueFlagBits, node.valueFlags);
  int use = stxFirstChild(dump.file, static_cast<int32_t>(index));
  if (use == STX_TYPE)
    addNumber(text, "type", node.firstChild);
  if (use == STX_VALUE)
    addReference(text, "value", node.refModule, node.firstChild);
  else
    addNumber(text, "refModule", node.refModule);
  if (use == STX_NOTHING)
    addNumber(text, "firstChild", node.firstChild);
  addFields(text, REC_VNODE, &node, without);
  if (!inChain)
    addNumber(text, "next", node.next);
  line(dump, depth, text);
  dumpValueParts(dump, static_cast<int32_t>(index), depth + 1);
}

// Types

// Fields of a type node that are codes, bits, or not 0 where they are unset.
static void addTypeFields(std::string &text, const TNode &node)
{
  if (node.valueField != VF_NONE)
    text += ' ' + stxCodeName(vfIdName(node.valueField), "valueField",
                              node.valueField);
  if (node.valueFieldSize != 0)
    addField(text, "valueFieldSize",
             stxCodeName(vfIdName(node.valueFieldSize), "code",
                         node.valueFieldSize));
  addBits(text, "nodeOptions", stxNodeOptionBits, node.nodeOptions);
  addBits(text, "nodeFlags", stxNodeFlagBits, node.nodeFlags);
  addBits(text, "classFlags", stxClassFlagBits, node.classFlags);
  if (node.entryFlags != 0)
    addField(text, "entryFlags", formatText("0x%02X", node.entryFlags));
  if (!i64ismin(node.lowerEndpoint) || !i64ismax(node.upperEndpoint))
    addField(text, "bounds",
             stxBoundText(node.lowerEndpoint) + ".." +
                 stxBoundText(node.upperEndpoint));
  if (node.typeOptions.definiteLength != 255)
    addField(text, "definiteLength",
             formatText("%d", node.typeOptions.definiteLength));
  if (node.typeOptions.skipKind != 255)
    addField(text, "skipKind", formatText("%d", node.typeOptions.skipKind));
}

static void dumpTypeParts(StxPrinter &dump, const TNode &node, int depth)
{
  const StxFile &file = dump.file;
  dumpChain(dump, REC_TAG, file.tagRecs, &TagRec::nextTag, dumpTag,
            node.firstTag, depth, "tags");
  dumpChain(dump, REC_SUB, file.subRecs, &SubRec::nextSub, dumpSub,
            node.firstConstraint, depth, "constraint");
  dumpRange(dump, node.firstTed, node.lastTed, depth);
  if (node.defaultValue != 0)
    dumpValue(dump, node.defaultValue, depth, "default ", false);
  dumpChain(dump, REC_VNODE, file.vNodes, &VNode::next, dumpValue,
            node.namedNumbers, depth, "named numbers");
  if (stxHasPath(node))
    dumpPath(dump, node.fieldRef, depth);
  if (stxHasComps(file, node))
    dumpChain(dump, REC_TNODE, file.tNodes, &TNode::next, dumpType, node.ref,
              depth, "components");
}

static void dumpType(StxPrinter &dump, int64_t index, int depth,
                     const char *label, bool inChain)
{
  static constexpr uint16_t without[] = {
      offsetof(TNode, identifier),
      offsetof(TNode, compStatus),
      offsetof(TNode, defaultValue),
      offsetof(TNode, next),
      offsetof(TNode, firstConstraint),
      offsetof(TNode, firstTag),
      offsetof(TNode, nodeOptions),
      offsetof(TNode, classFlags),
      offsetof(TNode, firstTed),
      offsetof(TNode, lastTed),
      offsetof(TNode, mainType),
      offsetof(TNode, valueField),
      offsetof(TNode, valueFieldSize),
      offsetof(TNode, nodeFlags),
      offsetof(TNode, entryFlags),
      offsetof(TNode, typeOptions.definiteLength),
      offsetof(TNode, typeOptions.skipKind),
      offsetof(TNode, refModule),
      offsetof(TNode, ref),
      offsetof(TNode, namedNumbers),
      offsetof(TNode, fieldRef),
      offsetof(TNode, lowerEndpoint.high),
      offsetof(TNode, lowerEndpoint.low),
      offsetof(TNode, upperEndpoint.high),
      offsetof(TNode, upperEndpoint.low)};
  if (!enter(dump, REC_TNODE, index, depth, label))
    return;
  const TNode &node = dump.file.tNodes[static_cast<size_t>(index) - 1];
  std::string text = formatText("%stype %" PRId64, label, index);
  if (node.identifier < 0)
    text += " value field";
  if (node.identifier != 0)
    text += ' ' + named(dump, std::abs(int64_t{node.identifier}));
  text += ' ' + stxMainTypeName(node.mainType);
  text += ' ' + stxCompStatusText(node.compStatus);
  addTypeFields(text, node);
  addReference(text, "ref", node.refModule, node.ref);
  if (!stxHasPath(node))
    addNumber(text, "fieldRef", node.fieldRef);
  addFields(text, REC_TNODE, &node, without);
  if (!inChain)
    addNumber(text, "next", node.next);
  line(dump, depth, text);
  dumpTypeParts(dump, node, depth + 1);
}

// Sections

static void dumpHeader(const StxPrinter &dump, const MNode &header,
                       size_t octets, int depth)
{
  static constexpr uint16_t strings[] = {
      offsetof(MNode, moduleName), offsetof(MNode, filePrefix),
      offsetof(MNode, sourceDirectory), offsetof(MNode, sourceFileName)};
  for (const FieldLayout &field : recLayout(REC_MNODE)) {
    for (int i = 0; i < field.count; ++i) {
      int64_t value = fieldValue(field, &header, i);
      size_t end = field.offset + static_cast<size_t>((i + 1) * field.width);
      if (value == 0 || end > octets)
        continue;
      std::string text = formatText("%s %" PRId64, field.name, value);
      if (field.count > 1)
        text = formatText("%s %s %" PRId64, field.name, stxKindName(i), value);
      if (std::find(std::begin(strings), std::end(strings), field.offset) !=
          std::end(strings))
        text += ' ' + named(dump, value);
      if (field.offset == offsetof(MNode, tagDefaultAndUse))
        text = formatText("tagDefault %d, use %d", int(value) & 15,
                          int(value) >> 4);
      line(dump, depth, text);
    }
  }
}

static void dumpImports(const StxPrinter &dump)
{
  if (dump.file.imports.empty())
    return;
  line(dump, 0, "imports");
  int number = 1;
  for (const MNode &entry : dump.file.imports) {
    line(dump, 1, formatText("module %d", ++number));
    dumpHeader(dump, entry, sizeof(MNode), 2);
  }
}

// What the chains from the header did not reach: hidden nodes, values of
// constraints of other kinds, and whatever a broken chain has lost.
static void dumpRest(StxPrinter &dump, int kind, auto *dumpRecord)
{
  bool first = true;
  for (int64_t index = 1; index <= stxPresent(dump.file, kind); ++index) {
    if (dump.printed[kind][static_cast<size_t>(index)])
      continue;
    if (first)
      line(dump, 0, formatText("%ss reached by no chain", nameOf(kind)));
    first = false;
    dumpRecord(dump, index, 1, "", false);
  }
}

static void dumpOtherTeds(StxPrinter &dump)
{
  int32_t present = static_cast<int32_t>(stxPresent(dump.file, REC_TED));
  int32_t index = freshTed(dump, 1);
  if (index <= present)
    line(dump, 0, "lines in no range");
  for (; index <= present; index = freshTed(dump, index + 1))
    dumpTed(dump, index, 1);
}

static void dumpStrings(const StxPrinter &dump, int kind, const char *heading)
{
  int64_t present = stxPresent(dump.file, kind);
  if (present > 0)
    line(dump, 0, heading);
  for (int64_t index = 1; index <= present; ++index)
    line(dump, 1,
         formatText("string %" PRId64 " ", index) +
             quoted(dump.file, kind, index, UINT32_MAX));
}

void stxDump(const StxFile &file, FILE *out)
{
  StxPrinter dump{file, out, {}, {}, {}};
  for (int kind = 0; kind <= REC_SNODE; ++kind) {
    size_t size = static_cast<size_t>(stxPresent(file, kind)) + 1;
    dump.printed[kind].resize(size);
    dump.chained[kind].resize(size);
  }
  dump.freshTed.resize(static_cast<size_t>(stxPresent(file, REC_TED)) + 2);
  std::iota(dump.freshTed.begin(), dump.freshTed.end(), 0);

  line(dump, 0, "header");
  dumpHeader(dump, file.header, file.headerOctets, 1);
  if (!file.headerGood)
    return;
  dumpImports(dump);
  int32_t firstTed = file.header.firstGlobalTed;
  if (file.header.lastGlobalTed != 0) {
    line(dump, 0, "global options");
    dumpRange(dump, firstTed == 0 ? 1 : firstTed, file.header.lastGlobalTed, 1);
  }
  dumpChain(dump, REC_TNODE, file.tNodes, &TNode::next, dumpType,
            file.header.firstType, 0, "types");
  dumpChain(dump, REC_VNODE, file.vNodes, &VNode::next, dumpValue,
            file.header.firstValue, 0, "values");
  dumpRest(dump, REC_TNODE, dumpType);
  dumpRest(dump, REC_VNODE, dumpValue);
  dumpRest(dump, REC_SUB, dumpSub);
  dumpRest(dump, REC_TAG, dumpTag);
  dumpRest(dump, REC_SNODE, dumpLink);
  dumpOtherTeds(dump);
  dumpStrings(dump, REC_STRI, "strings");
  dumpStrings(dump, REC_STRI16, "strings of 16 bits");
  dumpStrings(dump, REC_STRI32, "strings of 32 bits");
  if (file.end < file.octets.size())
    line(dump, 0,
         formatText("%zu octets behind the last section",
                    file.octets.size() - file.end));
}

// The program

static void usageText(FILE *messages)
{
  fputs("Usage: stxdump [--check] FILE.stx...\n"
        "Prints syntax trees. With --check only what is wrong with them.\n",
        messages);
}

// False if the file has a fault or cannot be read.
static bool dumpFile(const char *path, bool checkOnly, FILE *out,
                     FILE *messages)
{
  StxFaults faults{messages, path, 0};
  std::string octets;
  if (!stxReadOctets(octets, path)) {
    stxFault(faults, "%s", strerror(errno));
    return false;
  }
  StxFile file;
  stxParse(file, std::move(octets), faults);
  if (!checkOnly)
    stxDump(file, out);
  stxCheck(file, checkOnly, faults);
  return faults.count == 0;
}

int stxDumpRun(std::span<const char *const> arguments, FILE *out,
               FILE *messages)
{
  std::vector<const char *> paths;
  bool checkOnly = false;
  for (const char *argument : arguments) {
    if (strcmp(argument, "--check") == 0) {
      checkOnly = true;
    } else if (argument[0] == '-') {
      usageText(messages);
      return 2;
    } else {
      paths.push_back(argument);
    }
  }
  if (paths.empty()) {
    usageText(messages);
    return 2;
  }
  bool good = true;
  for (const char *path : paths) {
    if (paths.size() > 1 && !checkOnly)
      fprintf(out, "==> %s <==\n", path);
    good = dumpFile(path, checkOnly, out, messages) && good;
  }
  if (fflush(out) != 0 || ferror(out)) {
    fprintf(messages, "stxdump: output: %s\n", strerror(errno));
    good = false;
  }
  return good ? 0 : 1;
}
