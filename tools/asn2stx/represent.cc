// Choice of the representation in C. The rules are in docs/asn2stx.md; they
// depend on the node alone and on the options of the catalogue.

#include "asn2stx/represent.h"
#include "asn2stx/gentype.h"
#include <algorithm>

// The bounds of a node as numbers; the infinities of the tree are the limits.
struct Bounds {
  int64_t lower;
  int64_t upper;
};

static int64_t asNumber(sint64 value)
{
  return static_cast<int64_t>(static_cast<uint64_t>(value.high) << 32 |
                              value.low);
}

static Bounds boundsOf(const TNode &node)
{
  return {asNumber(node.lowerEndpoint), asNumber(node.upperEndpoint)};
}

static bool isOpen(int64_t bound)
{
  return bound == INT64_MIN || bound == INT64_MAX;
}

// --- numbers ----------------------------------------------------------------

static bool fits(Bounds bounds, int bits)
{
  int64_t limit = int64_t{1} << (bits - 1);
  return bounds.lower >= -limit && bounds.upper < limit;
}

static bool fitsUnsigned(Bounds bounds, int bits)
{
  return bounds.lower >= 0 && bounds.upper < int64_t{1} << bits;
}

// The smallest field for the numbers; an open end counts as one of 32 bits,
// which is what most protocols mean, but of 64 bits if a number stands there
// that is beyond these.
static uint8_t smallestField(Bounds bounds, bool isWide)
{
  if (isWide && (isOpen(bounds.lower) || isOpen(bounds.upper)))
    return bounds.lower >= 0 ? VF_UI64 : VF_I64;
  if (isOpen(bounds.upper))
    bounds.upper = std::max<int64_t>(
        bounds.lower, bounds.lower >= 0 ? UINT32_MAX : INT32_MAX);
  if (isOpen(bounds.lower))
    bounds.lower = std::min<int64_t>(bounds.upper, INT32_MIN);
  static const int sizes[] = {8, 16, 32};
  for (int i = 0; i < 3; ++i) {
    if (fitsUnsigned(bounds, sizes[i]))
      return static_cast<uint8_t>(VF_UI8 + i);
    if (fits(bounds, sizes[i]))
      return static_cast<uint8_t>(VF_I8 + i);
  }
  return bounds.lower >= 0 ? VF_UI64 : VF_I64;
}

static uint8_t integerField(const GlobalOptions &options, Bounds bounds,
                            bool isWide)
{
  if (options.intSize != 0)
    return options.intSize;
  // Without any bound, in either direction: the plain integer of C.
  if (isOpen(bounds.lower) && isOpen(bounds.upper) && !isWide)
    return VF_I32;
  return smallestField(bounds, isWide);
}

// The bases of the subtypes that a node's constraint contains.
static std::vector<NodeAt> containedNodes(Compilation &c, int module,
                                          const TNode &node)
{
  std::vector<NodeAt> found;
  StxTree &tree = treeOf(c, module);
  std::vector<int32_t> open = {node.firstConstraint};
  while (!open.empty()) {
    int32_t index = open.back();
    open.pop_back();
    const SubRec *sub = index != 0 ? &stxSubAt(tree, index) : nullptr;
    if (!sub)
      continue;
    if (sub->kind == SUB_INCLUDES) {
      const VNode &carrier = stxValueAt(tree, sub->operand1);
      found.push_back(baseNode(c, {module, carrier.firstChild}));
    } else if (sub->kind >= SUB_UNION && sub->kind <= SUB_CATENATED) {
      for (int32_t at = sub->operand1; at != 0; at = stxSubAt(tree, at).nextSub)
        open.push_back(at);
    }
  }
  return found;
}

void spreadWideNodes(Compilation &c)
{
  if (c.wideNodes.empty())
    return;
  // From a subtype to those that contain it.
  std::map<std::pair<int, int32_t>, std::vector<std::pair<int, int32_t>>> users;
  for (ModuleState &module : c.modules)
    for (size_t i = 0; i < module.tree.tNodes.size(); ++i) {
      const TNode &node = module.tree.tNodes[i];
      if (node.mainType == TYP_INTEGER)
        for (NodeAt at : containedNodes(c, module.number, node))
          users[{at.module, at.node}].push_back(
              {module.number, static_cast<int32_t>(i) + 1});
    }
  std::vector<std::pair<int, int32_t>> open(c.wideNodes.begin(),
                                            c.wideNodes.end());
  while (!open.empty()) {
    std::pair<int, int32_t> wide = open.back();
    open.pop_back();
    for (const std::pair<int, int32_t> &user : users[wide])
      if (c.wideNodes.insert(user).second)
        open.push_back(user);
  }
}

static Bounds itemBounds(StxTree &tree, int32_t first)
{
  Bounds bounds = {INT64_MAX, INT64_MIN};
  for (int32_t index = first; index != 0;) {
    const VNode &item = stxValueAt(tree, index);
    if (item.mainType != TYP_EXTENSION_MARKER) {
      int64_t number = asNumber(payloadInt64(item));
      bounds.lower = std::min(bounds.lower, number);
      bounds.upper = std::max(bounds.upper, number);
    }
    index = item.next;
  }
  return bounds;
}

// --- control members --------------------------------------------------------

// The signed field that counts so far.
static uint8_t countField(int64_t count)
{
  return count <= INT8_MAX ? VF_I8 : count <= INT16_MAX ? VF_I16 : VF_I32;
}

// The field of a mask: a bit for each component, 32 to the word beyond that.
static uint8_t maskField(int32_t comps)
{
  return comps <= 8 ? VF_I8 : comps <= 16 ? VF_I16 : VF_I32;
}

static uint8_t chosen(uint8_t option, uint8_t byCount)
{
  return option != 0 ? option : byCount;
}

// --- strings ----------------------------------------------------------------

// A string's field by the width of its count: without one, 8, 16 or 32 bits.
static uint8_t byCountWidth(int first, bool isFixed, uint8_t countField)
{
  int step = isFixed ? 0 : countField - VF_I8 + 1;
  return static_cast<uint8_t>(first + std::min(step, 3));
}

static void representString(const GlobalOptions &options, TNode &node)
{
  Bounds size = boundsOf(node);
  bool isUnbounded = isOpen(size.upper);
  bool isFixed = !isUnbounded && size.lower == size.upper;
  uint8_t count = chosen(options.nSize, countField(size.upper));
  node.valueFieldSize = isFixed ? 0 : count;
  if (node.mainType == TYP_BMPSTR) {
    node.valueField = byCountWidth(VF_BMPSTR0, isFixed, count);
  } else if (!isUnbounded && size.upper > options.segStrLim) {
    node.valueField = VF_LIST;
    node.valueFieldSize = count;
  } else if (isUnbounded || size.upper > options.dynStrLim) {
    node.valueField = byCountWidth(VF_DYNS0, isFixed, count);
  } else {
    node.valueField = byCountWidth(VF_STAS0, isFixed, count);
  }
}

// --- lists ------------------------------------------------------------------

static void representList(const GlobalOptions &options, TNode &node)
{
  Bounds size = boundsOf(node);
  node.valueFieldSize = chosen(options.nSize, countField(size.upper));
  bool arrays = options.dynArrLim != 0;
  bool isLinked = isOpen(size.upper) || size.upper > options.segListLim ||
                  (size.upper > options.dynListLim && !arrays);
  if (isLinked) {
    node.valueField = VF_LIST;
    node.nodeOptions |= 1u << optHomeList;
    return;
  }
  node.valueField = VF_STRU;
  if (arrays && size.upper > options.dynArrLim)
    node.nodeOptions |= 1u << optDynamicArray;
}

// --- structures -------------------------------------------------------------

static void representStructure(const GlobalOptions &options, TNode &node)
{
  node.valueField = VF_STRU;
  if (node.mainType == TYP_CHOICE)
    node.valueFieldSize = chosen(options.choiceSize, countField(node.nrComps));
  else if (node.mainType == TYP_SET || node.nodeFlags & NF_OPTIONAL_COMPS)
    node.valueFieldSize = chosen(options.compMaskSize, maskField(node.nrComps));
}

// --- entries ----------------------------------------------------------------

// Marks a definition that an "ENTRY=" option names.
static void markEntry(Compilation &c, int module, TNode &node)
{
  if (node.compStatus != TCS_HEADER || node.identifier <= 0)
    return;
  StxTree &tree = treeOf(c, module);
  const std::string &name =
      tree.stris.texts[static_cast<size_t>(node.identifier) - 1];
  for (const EntryOption &entry : c.options.entries) {
    if (stxName(entry.type) != name)
      continue;
    node.entryFlags |= entryOfBoth;
    node.entryCategory = entry.category;
  }
}

void representType(Compilation &c, int module, int32_t index)
{
  const GlobalOptions &options = c.options.catalogue;
  TNode &node = stxTypeAt(treeOf(c, module), index);
  switch (node.mainType) {
  case TYP_BOOLEAN:
    node.valueField = VF_BOOL;
    break;
  case TYP_INTEGER:
    node.valueField = integerField(options, boundsOf(node),
                                   c.wideNodes.count({module, index}) > 0);
    break;
  case TYP_ENUM:
    node.valueField = integerField(
        options, itemBounds(treeOf(c, module), node.namedNumbers), false);
    break;
  case TYP_REAL:
    node.valueField = chosen(options.realSize, VF_REAL64);
    break;
  case TYP_NULL:
    node.valueField = VF_NULL;
    break;
  case TYP_BITSTR:
  case TYP_OCTSTR:
  case TYP_OBJDESCR:
    representString(options, node);
    break;
  case TYP_SEQ:
  case TYP_SET:
  case TYP_CHOICE:
    representStructure(options, node);
    break;
  case TYP_SEQOF:
  case TYP_SETOF:
    representList(options, node);
    break;
  case TYP_INSTANCE_OF:
    node.valueField = VF_STRU;
    break;
  case TYP_ANY:
    node.valueField = VF_ANY;
    break;
  case TYP_OPEN:
    node.valueField = VF_OPEN;
    break;
  case TYP_EMB_PDV:
    node.valueField = VF_EMB_PDV;
    break;
  case TYP_OBJID:
    node.valueField = VF_OBJI;
    break;
  case TYP_GENTIME:
  case TYP_UTCTIME:
    node.valueField = VF_COMT;
    break;
  case TYP_EXTERNAL:
    node.valueField = VF_EXTERNAL_1990;
    break;
  case TYP_EXTERNAL_1994:
    node.valueField = VF_EXTERNAL_1994;
    break;
  default:
    if (node.mainType >= TYP_NUMSTR && node.mainType <= TYP_UNISTR)
      representString(options, node);
    break;
  }
  markEntry(c, module, node);
}
