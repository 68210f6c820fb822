// Bits and counts that hang on several records, worked out when all records
// of the run are there.

#include "asn2stx/summary.h"
#include "asn2stx/chain.h"
#include "asn2stx/circles.h"
#include "asn2stx/gentype.h"
#include <algorithm>

// Components

// What the components of a node come to.
struct CompsSum {
  enum : uint8_t { NEW, RUNNING, DONE } state = NEW;
  int32_t root = 0;   // components ahead of the first marker
  int32_t total = 0;  // with markers and members
  uint16_t rootBits = 0;
  uint16_t bits = 0;
};

typedef std::vector<std::vector<CompsSum>> CompsSums;  // by module, node - 1

constexpr int maxFlattenDepth = 500;
constexpr int32_t maxFlattened = 100000;

static const TNode &nodeAt(Compilation &c, NodeAt at)
{
  return stxTypeAt(treeOf(c, at.module), at.node);
}

NamedPlace placeOf(Compilation &c, NodeAt at)
{
  const TNode &node = nodeAt(c, at);
  NamedPlace place;
  auto known = c.places.find({at.module, at.node});
  if (known != c.places.end()) {
    place = known->second;
  } else {
    place.pos.file = moduleAt(c, at.module).ast->pos.file;
    place.pos.line = node.line;
    place.pos.column = 1;
  }
  if (node.identifier > 0) {
    const StxTree &tree = treeOf(c, at.module);
    std::string name =
        tree.stris.texts[static_cast<size_t>(node.identifier) - 1];
    // As it was written: no name has a "_" of its own.
    std::replace(name.begin(), name.end(), '_', '-');
    place.shown = asnQuoted(name);
  }
  return place;
}

static bool isStructure(int mainType)
{
  return mainType == TYP_SEQ || mainType == TYP_SET || mainType == TYP_CHOICE;
}

// True for a CHOICE, ANY or open type that no tag stands ahead of.
static bool isUntagged(Compilation &c, NodeAt at)
{
  CircleGuard<NodeAt> guard;
  while (!guard.repeats(at)) {
    const TNode &node = nodeAt(c, at);
    if (node.firstTag != 0)
      return false;
    if (node.mainType != TYP_SYNONYM || node.ref == 0)
      break;
    NodeAt next = {moduleOfNumber(c, at.module, node.refModule), node.ref};
    if (next.module < 0)
      return false;
    at = next;
  }
  NodeAt base = baseNode(c, at);
  if (base.node <= 0)
    return false;
  int mainType = nodeAt(c, base).mainType;
  return mainType == TYP_CHOICE || mainType == TYP_ANY || mainType == TYP_OPEN;
}

static uint16_t compBits(Compilation &c, NodeAt at, bool automatic)
{
  const TNode &node = nodeAt(c, at);
  uint16_t bits = 0;
  if (node.mainType == TYP_EXTENSION_MARKER)
    return NF_EXTENSIBLE;
  if (node.compStatus == TCS_OPTIONAL)
    bits |= NF_OPTIONAL_COMPS;
  if (node.compStatus == TCS_MANDATORY)
    bits |= NF_MANDATORY_COMPS;
  if (!automatic && isUntagged(c, at))
    bits |= NF_UNTAGGED_COMPS;
  return bits;
}

struct FlattenRun {
  Compilation &c;
  CompsSums sums;
  int depth = 0;
};

static const CompsSum &sumOf(FlattenRun &run, NodeAt at);

static void addCounts(CompsSum &sum, int32_t count, uint16_t bits,
                      bool behindMarker)
{
  sum.total = std::min(maxFlattened, sum.total + count);
  sum.bits |= bits;
  if (!behindMarker) {
    sum.root = std::min(maxFlattened, sum.root + count);
    sum.rootBits |= bits;
  }
}

// The root components that a COMPONENTS OF node stands for.
static CompsSum sumOfCompsOf(FlattenRun &run, NodeAt at, int structureType)
{
  Compilation &c = run.c;
  NodeAt base = baseNode(c, at);
  if (base.node <= 0)
    return {};
  NamedPlace place = placeOf(c, at);
  int mainType = nodeAt(c, base).mainType;
  if (mainType != structureType) {
    asnError(c.errors, place.pos, "COMPONENTS OF %s: the type is no %s",
             place.shown.c_str(),
             structureType == TYP_SET ? "SET" : "SEQUENCE");
    return {};
  }
  const CompsSum &inner = sumOf(run, base);
  if (inner.state == CompsSum::RUNNING) {
    asnError(c.errors, place.pos, "circular COMPONENTS OF %s",
             place.shown.c_str());
    return {};
  }
  return inner;
}

// Adds the components of a structure, or of an addition group in one of
// `structureType`.
static void addChain(FlattenRun &run, NodeAt father, int structureType,
                     bool automatic, CompsSum &sum)
{
  Compilation &c = run.c;
  int32_t index = nodeAt(c, father).ref;
  bool behindMarker = false;
  while (index != 0) {
    NodeAt at = {father.module, index};
    const TNode &node = nodeAt(c, at);
    behindMarker = behindMarker || node.mainType == TYP_EXTENSION_MARKER;
    if (node.compStatus == TCS_COMPOF) {
      CompsSum inner = sumOfCompsOf(run, at, structureType);
      addCounts(
          sum, inner.root,
          static_cast<uint16_t>(inner.rootBits & ~(automatic ? NF_UNTAGGED_COMPS
                                                             : NF_EXTENSIBLE)),
          behindMarker);
    } else if (node.mainType == TYP_EXTADDGRP) {
      CompsSum members;
      addChain(run, at, structureType, automatic, members);
      TNode &group = stxTypeAt(treeOf(c, at.module), index);
      group.nrComps = members.total;
      group.nodeFlags |= members.bits;
      addCounts(sum, members.total, members.bits, behindMarker);
    } else {
      addCounts(sum, 1, compBits(c, at, automatic), behindMarker);
    }
    index = nodeAt(c, at).next;
  }
}

static const CompsSum &sumOf(FlattenRun &run, NodeAt at)
{
  Compilation &c = run.c;
  CompsSum &sum = run.sums[static_cast<size_t>(at.module)]
                          [static_cast<size_t>(at.node) - 1];
  if (sum.state != CompsSum::NEW)
    return sum;
  sum.state = CompsSum::RUNNING;
  if (++run.depth > maxFlattenDepth) {
    if (!c.exhausted)
      asnError(c.errors, placeOf(c, at).pos,
               "%s: COMPONENTS OF is nested too deeply",
               placeOf(c, at).shown.c_str());
    c.exhausted = true;
  } else {
    CompsSum made;
    TNode &node = stxTypeAt(treeOf(c, at.module), at.node);
    addChain(run, at, node.mainType, (node.nodeFlags & NF_AUTOMATIC_TAGS) != 0,
             made);
    node.nrComps = made.total;
    node.nodeFlags |= made.bits;
    sum = made;
    if (made.total == maxFlattened)
      asnError(c.errors, placeOf(c, at).pos, "%s has more than %d components",
               placeOf(c, at).shown.c_str(), maxFlattened - 1);
  }
  --run.depth;
  sum.state = CompsSum::DONE;
  return sum;
}

static void flattenAll(Compilation &c)
{
  FlattenRun run = {c, {}, 0};
  for (ModuleState &module : c.modules)
    run.sums.emplace_back(module.tree.tNodes.size());
  for (ModuleState &module : c.modules)
    for (size_t i = 0; i < module.tree.tNodes.size(); ++i)
      if (isStructure(module.tree.tNodes[i].mainType))
        sumOf(run, {module.number, static_cast<int32_t>(i) + 1});
}

// The graph of type nodes

// Edges from a node to what its type is made of, by node number over all
// modules.
struct TypeGraph : EdgeLists {
  std::vector<size_t> base;  // number of a module's first node
};

static bool hasChain(int mainType)
{
  return isStructure(mainType) || mainType == TYP_SEQOF ||
         mainType == TYP_SETOF || mainType == TYP_EXTADDGRP;
}

static void addEdges(Compilation &c, TypeGraph &graph, NodeAt at)
{
  const TNode &node = nodeAt(c, at);
  auto add = [&](NodeAt target) {
    if (target.node > 0 && target.module >= 0)
      graph.to.push_back(graph.base[static_cast<size_t>(target.module)] +
                         static_cast<size_t>(target.node) - 1);
  };
  if (node.mainType == TYP_SYNONYM && node.ref != 0)
    add({moduleOfNumber(c, at.module, node.refModule), node.ref});
  else if (node.mainType == TYP_SELECTION || node.mainType == TYP_FIELDLIST)
    add(baseNode(c, at));
  else if (hasChain(node.mainType))
    for (int32_t comp = node.ref; comp != 0;
         comp = nodeAt(c, {at.module, comp}).next)
      add({at.module, comp});
}

static TypeGraph makeGraph(Compilation &c)
{
  TypeGraph graph;
  size_t count = 0;
  for (ModuleState &module : c.modules) {
    graph.base.push_back(count);
    count += module.tree.tNodes.size();
  }
  for (ModuleState &module : c.modules)
    for (size_t i = 0; i < module.tree.tNodes.size(); ++i) {
      graph.first.push_back(graph.to.size());
      addEdges(c, graph, {module.number, static_cast<int32_t>(i) + 1});
    }
  graph.first.push_back(graph.to.size());
  return graph;
}

static void markRecursion(Compilation &c)
{
  TypeGraph graph = makeGraph(c);
  std::vector<bool> onCircle = nodesOnCircles(graph);
  for (ModuleState &module : c.modules) {
    size_t base = graph.base[static_cast<size_t>(module.number)];
    for (size_t i = 0; i < module.tree.tNodes.size(); ++i) {
      TNode &node = module.tree.tNodes[i];
      bool isDefinition = std::abs(node.compStatus) == TCS_HEADER;
      bool isReference =
          node.mainType == TYP_SYNONYM || node.mainType == TYP_SELECTION;
      if (onCircle[base + i] && (isDefinition || isReference))
        node.nodeFlags |= NF_RECURSIVE;
    }
  }
}

void summarizeTypes(Compilation &c)
{
  flattenAll(c);
  markRecursion(c);
}

// Behind the annotations

static bool isSkipped(const TNode &node)
{
  return node.nodeOptions & (1u << optSkip);
}

// A reference carries the SKIP kind of the definition it leads to.
static void spreadSkip(Compilation &c, ModuleState &module)
{
  for (TNode &node : module.tree.tNodes) {
    NodeAt at = {module.number, 0};
    const TNode *target = &node;
    CircleGuard<const TNode *> guard;
    while (!guard.repeats(target) && !isSkipped(*target) &&
           target->mainType == TYP_SYNONYM && target->ref != 0) {
      int next = moduleOfNumber(c, at.module, target->refModule);
      if (next < 0)
        break;
      at = {next, target->ref};
      target = &nodeAt(c, at);
    }
    if (isSkipped(*target))
      node.typeOptions.skipKind = target->typeOptions.skipKind;
  }
}

static void markIgnorable(Compilation &c)
{
  TypeGraph graph = makeGraph(c);
  std::vector<size_t> open;
  std::vector<bool> seen(graph.first.size());
  auto visit = [&](size_t node) {
    if (!seen[node])
      open.push_back(node);
    seen[node] = true;
  };
  for (ModuleState &module : c.modules) {
    size_t base = graph.base[static_cast<size_t>(module.number)];
    for (size_t i = 0; i < module.tree.tNodes.size(); ++i) {
      const TNode &node = module.tree.tNodes[i];
      const TypeOptions &options = node.typeOptions;
      bool isList = node.mainType == TYP_SEQOF || node.mainType == TYP_SETOF;
      if (options.skipKind == 0)
        visit(base + i);
      if (isList && options.sizeLimit > 0 && options.limitAction == 0 &&
          node.ref > 0)
        visit(base + static_cast<size_t>(node.ref) - 1);
    }
  }
  while (!open.empty()) {
    size_t at = open.back();
    open.pop_back();
    for (size_t e = graph.first[at]; e < graph.first[at + 1]; ++e)
      visit(graph.to[e]);
  }
  for (ModuleState &module : c.modules) {
    size_t base = graph.base[static_cast<size_t>(module.number)];
    for (size_t i = 0; i < module.tree.tNodes.size(); ++i)
      if (seen[base + i] &&
          module.tree.tNodes[i].mainType != TYP_EXTENSION_MARKER)
        module.tree.tNodes[i].nodeFlags |= NF_IGNORABLE;
    for (int32_t index : module.notIgnorable)
      stxTypeAt(module.tree, index).nodeFlags &=
          static_cast<uint16_t>(~NF_IGNORABLE);
  }
}

static void countDefinitions(Compilation &c, ModuleState &module)
{
  MNode &header = module.tree.header;
  header.nrVisibleTypes = header.nrEntryTypes = header.nrObjectSets = 0;
  for (const Definition *def : module.order) {
    if (def->node == 0 || def->kind == DK_VALUE || def->kind == DK_OBJECT)
      continue;
    const TNode &node = nodeAt(c, {module.number, def->node});
    bool isType = def->kind == DK_TYPE || def->kind == DK_VALUE_SET;
    if (def->kind == DK_OBJECT_SET)
      ++header.nrObjectSets;
    if (isType &&
        (header.visibilityMode == 0 || (node.classFlags & CF_VISIBLE)))
      ++header.nrVisibleTypes;
  }
  for (int32_t made : module.madeTypes) {
    const TNode &node = nodeAt(c, {module.number, made});
    if (header.visibilityMode == 0 || (node.classFlags & CF_VISIBLE))
      ++header.nrVisibleTypes;
  }
  // Entries may be components, and copies that uses of parameterized
  // definitions have.
  for (const TNode &node : module.tree.tNodes)
    if (node.entryFlags != 0)
      ++header.nrEntryTypes;
}

void finishHeaders(Compilation &c)
{
  for (ModuleState &module : c.modules)
    spreadSkip(c, module);
  markIgnorable(c);
  for (ModuleState &module : c.modules)
    countDefinitions(c, module);
}
