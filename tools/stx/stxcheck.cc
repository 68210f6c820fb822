// Checks of a tree: every index of every record, every code, every chain.
// Most indexes are rows of a table; those whose meaning hangs on a code have
// a function.

#include "stx/stxcheck.h"
#include "store/codes.h"
#include <cstddef>

// An index, and the module that it counts in.
struct StxIndexField {
  int kind;          // of the record
  size_t offset;     // of the index
  int target;        // kind that it leads to
  int moduleOffset;  // of the module number; -1: the module at hand
};

#define INDEX(kind, record, member, target)                                    \
  {                                                                            \
    kind, offsetof(record, member), target, -1                                 \
  }
#define INDEX_IN(kind, record, member, target, module)                         \
  {                                                                            \
    kind, offsetof(record, member), target,                                    \
        static_cast<int>(offsetof(record, module))                             \
  }

static const StxIndexField indexFields[] = {
    INDEX(REC_TNODE, TNode, defaultValue, REC_VNODE),
    INDEX(REC_TNODE, TNode, next, REC_TNODE),
    INDEX(REC_TNODE, TNode, firstConstraint, REC_SUB),
    INDEX(REC_TNODE, TNode, firstTag, REC_TAG),
    INDEX(REC_TNODE, TNode, firstTed, REC_TED),
    INDEX(REC_TNODE, TNode, lastTed, REC_TED),
    INDEX_IN(REC_TNODE, TNode, ref, REC_TNODE, refModule),
    INDEX(REC_TNODE, TNode, namedNumbers, REC_VNODE),
    INDEX(REC_VNODE, VNode, identifier, REC_STRI),
    INDEX_IN(REC_VNODE, VNode, governor, REC_TNODE, governorModule),
    INDEX(REC_VNODE, VNode, next, REC_VNODE),
    INDEX(REC_VNODE, VNode, firstTed, REC_TED),
    INDEX(REC_VNODE, VNode, lastTed, REC_TED),
    INDEX(REC_VNODE, VNode, fieldPath, REC_SNODE),
    INDEX(REC_TAG, TagRec, nextTag, REC_TAG),
    INDEX_IN(REC_SUB, SubRec, compNode, REC_TNODE, compModule),
    INDEX(REC_SUB, SubRec, nextSub, REC_SUB),
    INDEX(REC_SNODE, SNode, nextLink, REC_SNODE),
};

// Fields of one octet or a word with the codes that a file may have.
struct StxCodeField {
  int kind;
  size_t offset;
  int64_t least;
  int64_t most;
};

#define CODE(kind, record, member, least, most)                                \
  {                                                                            \
    kind, offsetof(record, member), least, most                                \
  }

static const StxCodeField codeFields[] = {
    // Negative: of a node of a synonym's or an instantiation's copy.
    CODE(REC_TNODE, TNode, compStatus, 1 - TCS_COUNT, TCS_COUNT - 1),
    CODE(REC_TNODE, TNode, mainType, 0, TYP_COUNT - 1),
    CODE(REC_TNODE, TNode, valueField, 0, VF_COUNT - 1),
    CODE(REC_TNODE, TNode, valueFieldSize, 0, VF_COUNT - 1),
    CODE(REC_VNODE, VNode, mainType, 0, TYP_COUNT - 1),
    CODE(REC_TAG, TagRec, tagClass, 0, 3),
    CODE(REC_TAG, TagRec, tagMode, 0, 1),
    CODE(REC_TED, TedRec, tedKind, 0, TED_FRONT_END),
};

#undef CODE
#undef INDEX
#undef INDEX_IN

static const FieldLayout &fieldAt(int kind, size_t offset)
{
  for (const FieldLayout &field : recLayout(kind))
    if (field.offset == offset)
      return field;
  return recLayout(kind).front();
}

static void badIndex(StxFaults &faults, int kind, int64_t index,
                     const char *field, int64_t value)
{
  stxFault(faults, "%s %lld: %s %lld is out of range", stxKindName(kind),
           static_cast<long long>(index), field, static_cast<long long>(value));
}

// An index of 0 is none; module numbers of 2 and more count in a tree that
// is not at hand, where only the sign can be wrong.
static bool indexGood(const StxFile &file, int target, int64_t value,
                      int64_t module = 1)
{
  return value >= 0 && (module >= 2 || value <= stxDeclared(file, target));
}

// What one kind's rows of the tables say of its records.
template <class T>
static void checkRows(const StxFile &file, int kind,
                      const std::vector<T> &records, bool codes,
                      StxFaults &faults)
{
  for (const StxIndexField &row : indexFields) {
    if (row.kind != kind)
      continue;
    const FieldLayout &field = fieldAt(kind, row.offset);
    const FieldLayout *module =
        row.moduleOffset < 0
            ? nullptr
            : &fieldAt(kind, static_cast<size_t>(row.moduleOffset));
    int64_t index = 0;
    for (const T &record : records) {
      int64_t value = fieldValue(field, &record);
      int64_t number = module ? fieldValue(*module, &record) : 1;
      ++index;
      if (!indexGood(file, row.target, value, number))
        badIndex(faults, kind, index, field.name, value);
      // -2 is no module but a mark of class fields.
      bool marked = kind == REC_TNODE && number == -2;
      if (module && !marked &&
          (number < 0 || number > stxDeclared(file, REC_MNODE)))
        badIndex(faults, kind, index, module->name, number);
    }
  }
  for (const StxCodeField &row : codeFields) {
    if (row.kind != kind || !codes)
      continue;
    const FieldLayout &field = fieldAt(kind, row.offset);
    int64_t index = 0;
    for (const T &record : records) {
      int64_t value = fieldValue(field, &record);
      ++index;
      if (value < row.least || value > row.most)
        stxFault(faults, "%s %lld: %s has the unknown code %lld",
                 stxKindName(kind), static_cast<long long>(index), field.name,
                 static_cast<long long>(value));
    }
  }
}

// A range may be empty, its last being just before its first.
static void checkRange(int kind, int64_t index, int64_t first, int64_t last,
                       StxFaults &faults)
{
  if (last < first - 1)
    stxFault(faults, "%s %lld: TED range %lld to %lld runs backwards",
             stxKindName(kind), static_cast<long long>(index),
             static_cast<long long>(first), static_cast<long long>(last));
}

// Fields whose meaning hangs on others

static void checkHeader(const StxFile &file, bool codes, StxFaults &faults)
{
  const MNode &header = file.header;
  auto check = [&](const char *field, int64_t value, int target,
                   int64_t least = 0) {
    if (value < least || value > stxDeclared(file, target))
      badIndex(faults, REC_MNODE, 1, field, value);
  };
  check("moduleName", header.moduleName, REC_STRI, 1);
  check("filePrefix", header.filePrefix, REC_STRI);
  check("firstType", header.firstType, REC_TNODE);
  check("firstValue", header.firstValue, REC_VNODE);
  check("auxValueA", header.auxValueA, REC_VNODE);
  check("auxValueB", header.auxValueB, REC_VNODE);
  check("sourceDirectory", header.sourceDirectory, REC_STRI);
  check("sourceFileName", header.sourceFileName, REC_STRI);
  check("firstGlobalTed", header.firstGlobalTed, REC_TED);
  check("lastGlobalTed", header.lastGlobalTed, REC_TED);
  checkRange(REC_MNODE, 1,
             header.firstGlobalTed == 0 ? 1 : header.firstGlobalTed,
             header.lastGlobalTed, faults);
  if (header.counts[REC_MNODE] < 1)
    stxFault(faults, "section mNode has a count of %d",
             header.counts[REC_MNODE]);
  if (!codes)
    return;
  auto notNegative = [&](const char *field, int32_t value) {
    if (value < 0)
      stxFault(faults, "mNode 1: %s is negative: %d", field, value);
  };
  notNegative("date", header.date);
  notNegative("time", header.time);
  notNegative("nrEntryTypes", header.nrEntryTypes);
  notNegative("nrVisibleTypes", header.nrVisibleTypes);
  notNegative("nrObjects", header.nrObjects);
  notNegative("nrObjectSets", header.nrObjectSets);
  if (header.visibilityMode > 2)
    stxFault(faults, "mNode 1: visibilityMode has the unknown code %d",
             header.visibilityMode);
}

static void checkImports(const StxFile &file, StxFaults &faults)
{
  for (size_t i = 0; i < file.imports.size(); ++i) {
    const MNode &entry = file.imports[i];
    int64_t number = static_cast<int64_t>(i) + 2;
    if (entry.moduleName < 1 || !indexGood(file, REC_STRI, entry.moduleName))
      badIndex(faults, REC_MNODE, number, "moduleName", entry.moduleName);
    if (!indexGood(file, REC_STRI, entry.filePrefix))
      badIndex(faults, REC_MNODE, number, "filePrefix", entry.filePrefix);
  }
}

static void checkTypes(const StxFile &file, bool codes, StxFaults &faults)
{
  // The other bits are written 0.
  constexpr uint32_t knownOptions =
      1u << optEmbedding | 1u << optClearedBit2 | 1u << optNaming |
      1u << optSkip | 1u << optAsnHome | 1u << optPointer | 1u << optAsnhc |
      1u << optPtrComps | 1u << optFrame | 1u << optHomeList |
      1u << optHomeElems | 1u << optDynamicArray | 1u << optInherited15 |
      1u << optExtMarkerField;
  int64_t index = 0;
  for (const TNode &node : file.tNodes) {
    ++index;
    // The sign marks a value field of a class.
    int64_t name = node.identifier;
    if (!indexGood(file, REC_STRI, name < 0 ? -name : name))
      badIndex(faults, REC_TNODE, index, "identifier", name);
    if (stxHasPath(node) && !indexGood(file, REC_SNODE, node.fieldRef))
      badIndex(faults, REC_TNODE, index, "fieldRef", node.fieldRef);
    checkRange(REC_TNODE, index, node.firstTed, node.lastTed, faults);
    if (codes && (node.nodeOptions & ~knownOptions))
      stxFault(faults, "tNode %lld: nodeOptions has unknown bits 0x%X",
               static_cast<long long>(index), node.nodeOptions & ~knownOptions);
  }
}

static void checkFirstChild(const StxFile &file, int32_t index,
                            StxFaults &faults)
{
  const VNode &node = file.vNodes[static_cast<size_t>(index) - 1];
  int use = stxFirstChild(file, index);
  bool good;
  if (use == STX_NOTHING)
    good = node.firstChild >= 0;
  else
    good = indexGood(file, use == STX_TYPE ? REC_TNODE : REC_VNODE,
                     node.firstChild, use == STX_VALUE ? node.refModule : 1);
  if (!good)
    badIndex(faults, REC_VNODE, index, "firstChild", node.firstChild);
  if (use == STX_VALUE &&
      (node.refModule < 0 || node.refModule > stxDeclared(file, REC_MNODE)))
    badIndex(faults, REC_VNODE, index, "refModule", node.refModule);
}

static void checkValues(const StxFile &file, StxFaults &faults)
{
  int32_t index = 0;
  for (const VNode &node : file.vNodes) {
    ++index;
    checkFirstChild(file, index, faults);
    int kind = stxPayloadKind(node);
    if (kind && !indexGood(file, kind, payloadStri(node)))
      badIndex(faults, REC_VNODE, index, "payload", payloadStri(node));
    checkRange(REC_VNODE, index, node.firstTed, node.lastTed, faults);
  }
}

static void checkOperand(const StxFile &file, int64_t index, const char *field,
                         int use, int32_t value, StxFaults &faults)
{
  if (use == STX_NOTHING)
    return;
  if (!indexGood(file, use == STX_VALUE ? REC_VNODE : REC_SUB, value))
    badIndex(faults, REC_SUB, index, field, value);
}

static void checkSubs(const StxFile &file, bool codes, StxFaults &faults)
{
  int64_t index = 0;
  for (const SubRec &record : file.subRecs) {
    ++index;
    checkOperand(file, index, "operand1", stxOperand1(record), record.operand1,
                 faults);
    checkOperand(file, index, "operand2", stxOperand2(record), record.operand2,
                 faults);
    // A range's 0 is MIN or MAX; elsewhere there must be an operand.
    if (record.operand1 == 0 && record.kind != SUB_RANGE &&
        record.kind != SUB_WITH_COMPONENTS &&
        stxOperand1(record) != STX_NOTHING)
      badIndex(faults, REC_SUB, index, "operand1", 0);
    bool known =
        (record.kind >= SUB_UNION && record.kind <= SUB_ALL_EXCEPT) ||
        (record.kind >= SUB_RANGE && record.kind <= SUB_EXTENDED_SET) ||
        record.kind == SUB_HIDDEN;
    if (codes && !known)
      stxFault(faults, "subRec %lld: kind has the unknown code %d",
               static_cast<long long>(index), record.kind);
  }
}

static void checkTeds(const StxFile &file, StxFaults &faults)
{
  int64_t index = 0;
  for (const TedRec &record : file.tedRecs) {
    ++index;
    bool none = record.text == 0 && record.tedKind == TED_DROPPED;
    if (!none && (record.text < 1 || !indexGood(file, REC_STRI, record.text)))
      badIndex(faults, REC_TED, index, "text", record.text);
  }
}

static void checkLinks(const StxFile &file, StxFaults &faults)
{
  int64_t index = 0;
  for (const SNode &node : file.sNodes) {
    ++index;
    int64_t target = node.target;
    bool foreign = node.linkModule >= 2;
    bool good = foreign || (target > 0 ? indexGood(file, REC_TNODE, target)
                                       : indexGood(file, REC_VNODE, -target));
    // Only a path's last link is followed.
    if (!foreign && target == 0 && node.nextLink == 0)
      good = false;
    if (!good)
      badIndex(faults, REC_SNODE, index, "target", target);
    if (node.linkModule < 0 || node.linkModule > stxDeclared(file, REC_MNODE))
      badIndex(faults, REC_SNODE, index, "linkModule", node.linkModule);
  }
}

// Circles

constexpr int maxEdges = 2;

// Where a record leads within its own kind; 0: nowhere.
struct StxEdges {
  int64_t to[maxEdges] = {};
  const char *name[maxEdges] = {};
};

typedef StxEdges StxEdgesOf(const StxFile &file, int64_t index);

// Reports each edge that leads back to a record on the way to it. The way is
// a list and no recursion: a chain is as long as the file makes it.
static void checkCircles(const StxFile &file, int kind, StxEdgesOf *edgesOf,
                         StxFaults &faults)
{
  enum : uint8_t { NEW, ON_WAY, DONE };
  struct Step {
    int64_t index;
    int edge;
  };
  int64_t count = stxPresent(file, kind);
  std::vector<uint8_t> state(static_cast<size_t>(count) + 1, NEW);
  std::vector<Step> way;
  for (int64_t start = 1; start <= count; ++start) {
    if (state[static_cast<size_t>(start)] == NEW)
      way.push_back({start, 0});
    while (!way.empty()) {
      auto [index, edge] = way.back();
      state[static_cast<size_t>(index)] = ON_WAY;
      if (edge == maxEdges) {
        state[static_cast<size_t>(index)] = DONE;
        way.pop_back();
        continue;
      }
      ++way.back().edge;
      StxEdges edges = edgesOf(file, index);
      int64_t to = edges.to[edge];
      if (!stxHas(file, kind, to))
        continue;
      if (state[static_cast<size_t>(to)] == NEW)
        way.push_back({to, 0});
      else if (state[static_cast<size_t>(to)] == ON_WAY)
        stxFault(faults, "%s %lld: cyclic chain, %s leads back to %lld",
                 stxKindName(kind), static_cast<long long>(index),
                 edges.name[edge], static_cast<long long>(to));
    }
  }
}

template <class T>
static const T &at(const std::vector<T> &records, int64_t index)
{
  return records[static_cast<size_t>(index) - 1];
}

// A reference that leads to references only never reaches a type; through a
// component it may well come back.
static StxEdges typeEdges(const StxFile &file, int64_t index)
{
  const TNode &node = at(file.tNodes, index);
  return {{node.next, stxHasComps(file, node) ? node.ref : 0}, {"next", "ref"}};
}

static StxEdges synonymEdges(const StxFile &file, int64_t index)
{
  const TNode &node = at(file.tNodes, index);
  bool own = node.mainType == TYP_SYNONYM && node.refModule < 2;
  return {{own ? node.ref : 0, 0}, {"ref", ""}};
}

static StxEdges valueEdges(const StxFile &file, int64_t index)
{
  const VNode &node = at(file.vNodes, index);
  int use = stxFirstChild(file, static_cast<int32_t>(index));
  return {{node.next, use == STX_VALUES ? node.firstChild : 0},
          {"next", "firstChild"}};
}

static StxEdges referenceEdges(const StxFile &file, int64_t index)
{
  const VNode &node = at(file.vNodes, index);
  bool own = stxFirstChild(file, static_cast<int32_t>(index)) == STX_VALUE &&
             node.refModule < 2;
  return {{own ? node.firstChild : 0, 0}, {"firstChild", ""}};
}

static StxEdges tagEdges(const StxFile &file, int64_t index)
{
  return {{at(file.tagRecs, index).nextTag, 0}, {"nextTag", ""}};
}

static StxEdges subEdges(const StxFile &file, int64_t index)
{
  const SubRec &record = at(file.subRecs, index);
  int use = stxOperand1(record);
  bool subs = use == STX_SUB || use == STX_SUBS;
  return {{record.nextSub, subs ? record.operand1 : 0},
          {"nextSub", "operand1"}};
}

static StxEdges linkEdges(const StxFile &file, int64_t index)
{
  return {{at(file.sNodes, index).nextLink, 0}, {"nextLink", ""}};
}

void stxCheck(const StxFile &file, bool codes, StxFaults &faults)
{
  if (!file.headerGood)
    return;
  checkHeader(file, codes, faults);
  checkImports(file, faults);
  checkRows(file, REC_TNODE, file.tNodes, codes, faults);
  checkTypes(file, codes, faults);
  checkRows(file, REC_VNODE, file.vNodes, codes, faults);
  checkValues(file, faults);
  checkRows(file, REC_TAG, file.tagRecs, codes, faults);
  checkRows(file, REC_SUB, file.subRecs, codes, faults);
  checkSubs(file, codes, faults);
  checkRows(file, REC_TED, file.tedRecs, codes, faults);
  checkTeds(file, faults);
  checkRows(file, REC_SNODE, file.sNodes, codes, faults);
  checkLinks(file, faults);

  checkCircles(file, REC_TNODE, typeEdges, faults);
  checkCircles(file, REC_TNODE, synonymEdges, faults);
  checkCircles(file, REC_VNODE, valueEdges, faults);
  checkCircles(file, REC_VNODE, referenceEdges, faults);
  checkCircles(file, REC_TAG, tagEdges, faults);
  checkCircles(file, REC_SUB, subEdges, faults);
  checkCircles(file, REC_SNODE, linkEdges, faults);
}
