// Endpoints of type nodes, worked out on the records as a reader of the tree
// would: a union takes the widest of its operands, an intersection and serial
// constraints the narrowest, and what says nothing of the numbers is passed
// over. Readers narrow along chains of references; a node holds what its own
// records say.

#include "asn2stx/endpoints.h"
#include "asn2stx/chain.h"
#include "asn2stx/gentype.h"
#include "asn2stx/summary.h"
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <tuple>

constexpr int64_t least = std::numeric_limits<int64_t>::min();
constexpr int64_t most = std::numeric_limits<int64_t>::max();

// Constraints within types within constraints.
constexpr int maxDepth = 6000;

// One side of a type; nothing if the records tell none.
typedef std::optional<int64_t> Endpoint;

// What is known of nodes, by module, node and side; a node that is being
// worked out has no endpoint yet.
struct EndMemo {
  std::map<std::tuple<int, int32_t, bool>, Endpoint> ends;
  std::set<std::tuple<int, int32_t, bool>> running;
};

struct EndRun {
  Compilation &c;
  EndMemo &memo;
  int module;  // whose records are walked
  bool isUpper;
  bool isSize;
  int depth = 0;
};

static int64_t infinity(bool isUpper)
{
  return isUpper ? most : least;
}

static Endpoint subEndpoint(EndRun run, int32_t sub);

// The integer behind a value's references.
static Endpoint valueOf(Compilation &c, int module, int32_t value)
{
  CircleGuard<NodeAt> guard;
  while (value > 0 && !guard.repeats({module, value})) {
    const VNode &node = stxValueAt(treeOf(c, module), value);
    if (node.mainType == TYP_INTEGER) {
      sint64 number = payloadInt64(node);
      return static_cast<int64_t>(
          static_cast<uint64_t>(static_cast<uint32_t>(number.high)) << 32 |
          number.low);
    }
    if (node.mainType != TYP_SYNONYM)
      return {};
    int next = moduleOfNumber(c, module, node.refModule);
    if (next < 0)
      return {};
    value = node.firstChild;
    module = next;
  }
  return {};
}

static Endpoint rangeEndpoint(EndRun run, const SubRec &sub)
{
  int32_t operand = run.isUpper ? sub.operand2 : sub.operand1;
  if (operand == 0)
    return infinity(run.isUpper);
  return valueOf(run.c, run.module, operand);
}

// Of the operands that tell one: the widest, or the narrowest.
static Endpoint joinedEndpoint(EndRun run, const SubRec &sub)
{
  bool takeGreater = (sub.kind == SUB_UNION) == run.isUpper;
  Endpoint joined;
  for (int32_t operand = sub.operand1; operand != 0;) {
    Endpoint end = subEndpoint(run, operand);
    // What one operand of a union of numbers allows is not known.
    if (!end && sub.kind == SUB_UNION && !run.isSize)
      return infinity(run.isUpper);
    if (end && (!joined || (takeGreater ? *end > *joined : *end < *joined)))
      joined = end;
    operand = stxSubAt(treeOf(run.c, run.module), operand).nextSub;
  }
  return joined ? joined : infinity(run.isUpper);
}

static Endpoint nodeEndpoint(EndRun run, int32_t node);

// Of the base of a contained type.
static Endpoint containedEndpoint(EndRun run, const SubRec &sub)
{
  const VNode &carrier = stxValueAt(treeOf(run.c, run.module), sub.operand1);
  NodeAt base = baseNode(run.c, {run.module, carrier.firstChild});
  if (base.node <= 0)
    return {};
  int mainType = stxTypeAt(treeOf(run.c, base.module), base.node).mainType;
  if (mainType != TYP_INTEGER && mainType != TYP_ENUM)
    return {};
  run.module = base.module;
  return nodeEndpoint(run, base.node);
}

static Endpoint subEndpoint(EndRun run, int32_t index)
{
  if (++run.depth > maxDepth)
    return {};
  const SubRec sub = stxSubAt(treeOf(run.c, run.module), index);
  switch (sub.kind) {
  case SUB_UNION:
  case SUB_INTERSECTION:
  case SUB_CATENATED:
    return joinedEndpoint(run, sub);
  case SUB_RANGE:
    return rangeEndpoint(run, sub);
  case SUB_SINGLE_VALUE:
    return valueOf(run.c, run.module, sub.operand1);
  case SUB_INCLUDES:
    return run.isSize ? Endpoint{} : containedEndpoint(run, sub);
  case SUB_SIZE:
    return run.isSize ? subEndpoint(run, sub.operand1) : Endpoint{};
  default:
    return {};
  }
}

// A size is bounded by SIZE alone: a range of characters is none.
static Endpoint sizeEndpoint(EndRun run, int32_t index)
{
  if (++run.depth > maxDepth)
    return {};
  const SubRec sub = stxSubAt(treeOf(run.c, run.module), index);
  if (sub.kind == SUB_SIZE)
    return subEndpoint(run, sub.operand1);
  if (sub.kind < SUB_UNION || sub.kind > SUB_CATENATED)
    return {};
  bool takeGreater = (sub.kind == SUB_UNION) == run.isUpper;
  Endpoint joined;
  for (int32_t operand = sub.operand1; operand != 0;) {
    Endpoint end = sizeEndpoint(run, operand);
    if (end && (!joined || (takeGreater ? *end > *joined : *end < *joined)))
      joined = end;
    operand = stxSubAt(treeOf(run.c, run.module), operand).nextSub;
  }
  return joined;
}

static Endpoint itemsEndpoint(EndRun run, const TNode &node)
{
  Endpoint end;
  const StxTree &tree = treeOf(run.c, run.module);
  for (int32_t item = node.namedNumbers; item != 0;) {
    Endpoint number = valueOf(run.c, run.module, item);
    if (number && (!end || (run.isUpper ? *number > *end : *number < *end)))
      end = number;
    item = tree.vNodes[static_cast<size_t>(item) - 1].next;
  }
  return end;
}

static Endpoint freshEndpoint(EndRun run, int32_t index)
{
  const TNode &node = stxTypeAt(treeOf(run.c, run.module), index);
  if (node.mainType == TYP_ENUM)
    return itemsEndpoint(run, node);
  if (node.firstConstraint == 0)
    return infinity(run.isUpper);
  Endpoint end = run.isSize ? sizeEndpoint(run, node.firstConstraint)
                            : subEndpoint(run, node.firstConstraint);
  return end ? end : infinity(run.isUpper);
}

// Reports a constraint that cannot be worked out, by the type that a node's
// constraint stands on.
static void tellFault(const EndRun &run, int32_t index, bool isCircle)
{
  NamedPlace at = placeOf(run.c, {run.module, index});
  if (isCircle)
    asnError(run.c.errors, at.pos, "circular constraint of %s",
             at.shown.c_str());
  else
    asnError(run.c.errors, at.pos, "%s: constraints are nested too deeply",
             at.shown.c_str());
}

static Endpoint nodeEndpoint(EndRun run, int32_t index)
{
  std::tuple<int, int32_t, bool> key = {run.module, index, run.isUpper};
  auto known = run.memo.ends.find(key);
  if (known != run.memo.ends.end())
    return known->second;
  bool isCircle = run.memo.running.count(key) > 0;
  if (isCircle || ++run.depth > maxDepth) {
    tellFault(run, index, isCircle);
    return {};
  }
  run.memo.running.insert(key);
  Endpoint end = freshEndpoint(run, index);
  run.memo.running.erase(key);
  run.memo.ends.emplace(key, end);
  return end;
}

static bool isSized(int mainType)
{
  return mainType == TYP_BITSTR || mainType == TYP_OCTSTR ||
         mainType == TYP_SEQOF || mainType == TYP_SETOF ||
         (mainType >= TYP_NUMSTR && mainType <= TYP_UNISTR) ||
         mainType == TYP_OBJDESCR;
}

static void setNodeEndpoints(Compilation &c, EndMemo &memo, int module,
                             int32_t index)
{
  int mainType = stxTypeAt(treeOf(c, module), index).mainType;
  int64_t ends[2] = {least, most};
  bool isSize = isSized(mainType);
  if (isSize || mainType == TYP_INTEGER || mainType == TYP_ENUM)
    for (int side = 0; side < 2; ++side) {
      Endpoint end = nodeEndpoint({c, memo, module, side == 1, isSize}, index);
      if (end)
        ends[side] = *end;
    }
  if (isSize && ends[0] == least)
    ends[0] = 0;
  stxSetBounds(stxTypeAt(treeOf(c, module), index), ends[0], ends[1]);
}

void setEndpoints(Compilation &c)
{
  EndMemo memo;
  for (ModuleState &module : c.modules)
    for (size_t i = 0; i < module.tree.tNodes.size(); ++i)
      setNodeEndpoints(c, memo, module.number, static_cast<int32_t>(i) + 1);
}
