// Numbers of values, and the bounds that constraints set.
//
// The search for a bound runs over the constraint records of a type node and
// looks for one side only. It carries a running endpoint and narrows it: a
// union begins at the infinity of the other side and takes what lies farther
// out, an intersection begins at the infinity of the side in question and
// takes what lies farther in. What it takes is always the value in `vNode`,
// where the operand's own search has left its best one; an infinite operand
// leaves some other value there, and that is taken.

#include "model/number.h"
#include "base/diag.h"
#include "model/valuecompare.h"
#include "store/codes.h"
#include "store/typenode.h"
#include "store/valuenode.h"
#include <algorithm>
#include <cfloat>

// Constraints inside constraints, and types inside those. A tree comes
// nowhere near it; the stack holds it many times.
constexpr int maxConstraintNesting = 1000;
static int constraintNesting;

struct ConstraintNesting {
  explicit ConstraintNesting(const ModRec *module)
  {
    if (constraintNesting >= maxConstraintNesting)
      treeInconsistent(module);
    ++constraintNesting;
  }
  ~ConstraintNesting() { --constraintNesting; }
  ConstraintNesting(const ConstraintNesting &) = delete;
  ConstraintNesting &operator=(const ConstraintNesting &) = delete;
};

// Kind of the set of size constraints that is being searched; 0: none. A
// single value in an intersection narrows it from the other side.
static int glbSubCode;

// --- real values ------------------------------------------------------------

constexpr int16_t specialBase = -1;
constexpr int32_t maxBaseOrExponent = 32767;

RealVal &makeRealVal(RealVal &real, sint64 mantissa, int16_t base,
                     int16_t exponent)
{
  return real = {mantissa, base, exponent};
}

RealVal &makeSpecialRealVal(RealVal &real, int32_t code)
{
  i64ltosint64(real.mantissa, code);
  real.base = specialBase;
  real.exponent = 0;
  return real;
}

bool isSpecialRealVal(const RealVal &real)
{
  return real.base == specialBase;
}

int32_t getSpecialRealVal(const RealVal &real)
{
  int32_t code = 0;
  i64tol(real.mantissa, code);
  return code;
}

RealVal payloadReal(const VNode &node)
{
  return {payloadInt64(node), payloadRealBase(node), payloadRealExponent(node)};
}

// A base; false for a negative number.
static bool baseFromInt64(sint64 value, int16_t &base)
{
  if (i64isneg(value))
    return false;
  bool fits = i64cmpl(value, maxBaseOrExponent) < 0;
  base = static_cast<int16_t>(fits ? i64lo(value) : maxBaseOrExponent);
  return true;
}

static int16_t exponentFromInt64(sint64 value)
{
  if (i64cmpl(value, maxBaseOrExponent) > 0)
    return maxBaseOrExponent;
  if (i64cmpl(value, -maxBaseOrExponent) < 0)
    return -maxBaseOrExponent;
  return static_cast<int16_t>(i64lo(value));
}

// Mantissa, base and exponent from a list of three.
static bool realFromList(ModRec *module, int32_t first, RealVal &real)
{
  sint64 parts[3];
  int32_t index = first;
  for (sint64 &part : parts) {
    if (index == 0)
      return false;
    readRec(module, REC_VNODE, index);
    if (vNode.mainType != TYP_INTEGER)
      return false;
    part = payloadInt64(vNode);
    index = vNode.next;
  }
  int16_t base = 0;
  if (index != 0 || !baseFromInt64(parts[1], base))
    return false;
  makeRealVal(real, parts[0], base, exponentFromInt64(parts[2]));
  return true;
}

bool getRealVal(RealVal &real)
{
  switch (vNode.mainType) {
  case TYP_REAL:
    real = payloadReal(vNode);
    return true;
  case TYP_INTEGER:
    // INTEGER 0 is how a REAL zero is written.
    makeSpecialRealVal(real, REAL_ZERO);
    return true;
  case TYP_SEQOF: {
    SavedNode saved(REC_VNODE);
    return realFromList(currTPtr[REC_VNODE], vNode.firstChild, real);
  }
  default:
    return false;
  }
}

static double specialReal(sint64 mantissa)
{
  if (i64cmpl(mantissa, REAL_PLUS_INFINITY) == 0)
    return DBL_MAX;
  if (i64cmpl(mantissa, REAL_MINUS_INFINITY) == 0)
    return -DBL_MAX;
  return 0.0;
}

// The lower half counts away from zero, for negative numbers too, which so
// come out farther from zero than they are, and in an order of their own:
// bounds are compared by this measure and no other.
static double doubleFromInt64(sint64 value)
{
  double high = static_cast<double>(i64hi(value)) * 65536 * 65536;
  double low = static_cast<double>(i64lo(value));
  return i64hi(value) < 0 ? high - low : high + low;
}

double retRealVal(sint64 mantissa, int base, int exponent)
{
  if (base == specialBase)
    return specialReal(mantissa);
  long double result = doubleFromInt64(mantissa);
  for (; exponent > 0; --exponent)
    result *= base;
  for (; exponent < 0; ++exponent)
    result /= base;
  return static_cast<double>(result);
}

int compareReal(const RealVal &a, const RealVal &b)
{
  double left = retRealVal(a.mantissa, a.base, a.exponent);
  double right = retRealVal(b.mantissa, b.base, b.exponent);
  return left < right ? -1 : left > right;
}

int compareNumber(const VNode &a, const VNode &b, int mainType)
{
  switch (mainType) {
  case TYP_INTEGER:
    return i64cmp(payloadInt64(a), payloadInt64(b));
  case TYP_REAL:
    return compareReal(payloadReal(a), payloadReal(b));
  default:
    return 0;
  }
}

// --- endpoints --------------------------------------------------------------

static int32_t infiniteReal(bool isUpper)
{
  return isUpper ? REAL_PLUS_INFINITY : REAL_MINUS_INFINITY;
}

void setInfinity(VNode &endpoint, bool isUpper, int mainType)
{
  if (mainType == TYP_REAL) {
    RealVal real;
    makeSpecialRealVal(real, infiniteReal(isUpper));
    setPayloadReal(endpoint, real.mantissa, real.base, real.exponent);
  } else {
    setPayloadInt64(endpoint, isUpper ? i64max() : i64min());
  }
}

bool testInfinity(const VNode &endpoint, bool isUpper, int mainType)
{
  if (mainType == TYP_REAL) {
    RealVal real = payloadReal(endpoint);
    return isSpecialRealVal(real) &&
           getSpecialRealVal(real) == infiniteReal(isUpper);
  }
  sint64 value = payloadInt64(endpoint);
  return isUpper ? i64ismax(value) : i64ismin(value);
}

static bool isInfinite(const VNode &endpoint, int mainType)
{
  return testInfinity(endpoint, true, mainType) ||
         testInfinity(endpoint, false, mainType);
}

// Makes an endpoint that nothing has bounded yet.
static void startAtInfinity(VNode &endpoint, bool isUpper, int mainType)
{
  endpoint = VNode{};
  endpoint.mainType =
      static_cast<uint8_t>(mainType == TYP_REAL ? TYP_REAL : TYP_INTEGER);
  setInfinity(endpoint, isUpper, mainType);
}

static bool noEndpoint(VNode &endpoint)
{
  endpoint = VNode{};
  endpoint.mainType = VAL_NONE;
  return false;
}

static int closedFlagOf(bool isUpper)
{
  return isUpper ? UPPER_CLOSED : LOWER_CLOSED;
}

// True if `value` is greater than `than`, or less for a lower side.
static bool isBeyond(const VNode &value, const VNode &than, bool isUpper,
                     int mainType)
{
  int order = compareNumber(value, than, mainType);
  return isUpper ? order > 0 : order < 0;
}

// The value of the best endpoint so far, to make it current at the end.
struct BestValue {
  NodeContext context;
  void note() { saveNodeContext(REC_VNODE, &context); }
  void makeCurrent() const { restoreNodeContext(REC_VNODE, &context); }
};

static bool isSetKind(int kind)
{
  return kind == SUB_UNION || kind == SUB_INTERSECTION || kind == SUB_CATENATED;
}

// Calls `f` with each operand of the set in `subRec` as the current record.
template <class F>
static void forEachOperand(F f)
{
  ModRec *module = currTPtr[REC_SUB];
  ChainGuard guard(module, REC_SUB);
  for (int32_t index = subRec.operand1; index != 0;) {
    guard.step();
    readRec(module, REC_SUB, index);
    index = subRec.nextSub;
    f();
  }
}

// The value that an operand of `subRec` names, at the end of its chain.
static void readOperandValue(int32_t index)
{
  readRec(currTPtr[REC_SUB], REC_VNODE, index);
  skipValues(true);
}

static bool getNumberEndpoint(VNode &endpoint, int &closedFlag, int mainType,
                              bool isUpper);

static bool getSetEndpoint(VNode &endpoint, int &closedFlag, int mainType,
                           bool isUpper)
{
  bool isUnion = subRec.kind == SUB_UNION;
  bool searchUpper = isUpper != isUnion;
  startAtInfinity(endpoint, searchUpper, mainType);
  closedFlag = 0;
  BestValue best;
  forEachOperand([&] {
    VNode operand;
    int operandClosed = 0;
    startAtInfinity(operand, !isUpper, mainType);
    if (!getNumberEndpoint(operand, operandClosed, mainType, isUpper) ||
        !isBeyond(operand, endpoint, !searchUpper, mainType))
      return;
    endpoint = vNode;
    closedFlag = operandClosed;
    if (!isInfinite(operand, mainType))
      best.note();
  });
  if (isUnion && testInfinity(endpoint, searchUpper, mainType)) {
    startAtInfinity(endpoint, isUpper, mainType);
    closedFlag = 0;
  }
  best.makeCurrent();
  return true;
}

static bool getSingleValueEndpoint(VNode &endpoint, int &closedFlag,
                                   int mainType, bool isUpper)
{
  readOperandValue(subRec.operand1);
  if (vNode.mainType != mainType)
    return false;
  if (isBeyond(vNode, endpoint, isUpper, mainType)) {
    endpoint = vNode;
    closedFlag = 0;
  }
  return true;
}

// The type hangs on a value of the constraint's module and is one of it, too.
static bool getContainedEndpoint(VNode &endpoint, int &closedFlag, bool isUpper)
{
  ModRec *module = currTPtr[REC_SUB];
  SavedNode saved(REC_TNODE);
  readRec(module, REC_VNODE, subRec.operand1);
  readRec(module, REC_TNODE, vNode.firstChild);
  skipTypes(true);
  return getEndpoint(endpoint, closedFlag, isUpper);
}

// --- ranges -----------------------------------------------------------------

// The operand of the range in `subRec` on a side; 0: MIN or MAX.
static int32_t operandOf(bool isUpper)
{
  return isUpper ? subRec.operand2 : subRec.operand1;
}

// True if `subRec` is a range, or a chain of constraints with one.
static bool isRangeInSub()
{
  if (subRec.kind == SUB_RANGE)
    return true;
  if (subRec.kind != SUB_CATENATED)
    return false;
  bool found = false;
  forEachOperand([&] { found = found || subRec.kind == SUB_RANGE; });
  return found;
}

static bool hasRange()
{
  if (tNode.firstConstraint == 0)
    return false;
  readRec(currTPtr[REC_TNODE], REC_SUB, tNode.firstConstraint);
  return isRangeInSub();
}

// From a synonym down its chain to the first node with a range, or to the
// end; true if there is a range.
static bool stepToRange()
{
  ChainGuard guard(currTPtr[REC_TNODE], REC_TNODE);
  while (skipOneType(true)) {
    guard.step();
    if (hasRange())
      return true;
  }
  return false;
}

// The bound that the current node's own constraint sets.
static bool getNodeEndpoint(VNode &endpoint, int &closedFlag, int mainType,
                            bool isUpper)
{
  readRec(currTPtr[REC_TNODE], REC_SUB, tNode.firstConstraint);
  startAtInfinity(endpoint, !isUpper, mainType);
  return getNumberEndpoint(endpoint, closedFlag, mainType, isUpper);
}

// MIN and MAX mean what the type below allows.
static bool implicitRangeEndpoint(VNode &endpoint, int &closedFlag,
                                  bool isUpper, int mainType)
{
  closedFlag = 0;
  if (tNode.mainType != mainType) {
    if (tNode.mainType != TYP_SYNONYM)
      return false;
    bool found = stepToRange();
    if (!found && tNode.mainType != mainType)
      return false;
    if (tNode.firstConstraint != 0)
      return getNodeEndpoint(endpoint, closedFlag, mainType, isUpper);
  }
  startAtInfinity(endpoint, isUpper, mainType);
  return true;
}

// True if the operand lies inside the first range below a synonym; any
// operand does if there is none. Moves `tNode` and `vNode`.
static bool isInsideInherited(ModRec *module, const VNode &operand,
                              bool isUpper, int mainType)
{
  if (tNode.mainType != TYP_SYNONYM || !stepToRange())
    return true;
  VNode inherited;
  int closed = 0;
  if (!getNodeEndpoint(inherited, closed, mainType, isUpper))
    return true;
  int order = compareValue(module, inherited, module, operand);
  if (!isUpper)
    order = -order;
  return closed & closedFlagOf(isUpper) ? order >= 0 : order > 0;
}

static bool explicitRangeEndpoint(VNode &endpoint, int &closedFlag,
                                  bool isUpper, int mainType)
{
  int flags = subRec.subFlags;
  readOperandValue(operandOf(isUpper));
  VNode operand = vNode;
  NodeContext context;
  saveNodeContext(REC_VNODE, &context);
  if (operand.mainType != mainType ||
      !isInsideInherited(context.module, operand, isUpper, mainType))
    return false;
  restoreNodeContext(REC_VNODE, &context);
  endpoint = operand;
  closedFlag = flags & closedFlagOf(isUpper);
  return true;
}

static bool getRangeEndpoint(VNode &endpoint, int &closedFlag, bool isUpper)
{
  SavedNode saved(REC_TNODE);
  skipTypes(true);
  int mainType = tNode.mainType;
  restoreNodeContext(REC_TNODE, &saved.context);
  bool found = false;
  if (mainType == TYP_INTEGER || mainType == TYP_REAL)
    found =
        operandOf(isUpper) != 0
            ? explicitRangeEndpoint(endpoint, closedFlag, isUpper, mainType)
            : implicitRangeEndpoint(endpoint, closedFlag, isUpper, mainType);
  return found || noEndpoint(endpoint);
}

// On `subRec`.
static bool getNumberEndpoint(VNode &endpoint, int &closedFlag, int mainType,
                              bool isUpper)
{
  ConstraintNesting nesting(currTPtr[REC_SUB]);
  switch (subRec.kind) {
  case SUB_UNION:
  case SUB_INTERSECTION:
  case SUB_CATENATED:
    return getSetEndpoint(endpoint, closedFlag, mainType, isUpper);
  case SUB_RANGE:
    return getRangeEndpoint(endpoint, closedFlag, isUpper);
  case SUB_SINGLE_VALUE:
    return getSingleValueEndpoint(endpoint, closedFlag, mainType, isUpper);
  case SUB_INCLUDES:
    return getContainedEndpoint(endpoint, closedFlag, isUpper);
  default:
    return false;
  }
}

// --- sizes ------------------------------------------------------------------

// Makes the endpoint that a size constraint of a kind narrows: a chain of
// constraints goes on from the running one, if there is any.
static void initSizeEndpointElem(VNode &element, int kind, const VNode *running,
                                 bool isUpper)
{
  if (kind == SUB_CATENATED && running)
    element = *running;
  else
    startAtInfinity(
        element, isUpper == (kind == SUB_INTERSECTION || kind == SUB_CATENATED),
        TYP_INTEGER);
}

static bool getSizeEndpoint(VNode &endpoint, int &closedFlag, bool isUpper);

// Takes an operand's value if it is the better one.
static void modifySizeEndpoint(VNode &endpoint, int &closedFlag,
                               const VNode &operand, int operandClosed,
                               bool isUpper, BestValue &best)
{
  bool outwards = glbSubCode == SUB_UNION;
  if (!isBeyond(operand, endpoint, isUpper == outwards, TYP_INTEGER))
    return;
  endpoint = vNode;
  closedFlag = operandClosed;
  if (!isInfinite(operand, TYP_INTEGER))
    best.note();
}

// Nothing has bounded the union.
static bool isInitialUnionValue(const VNode &endpoint, int kind, bool isUpper)
{
  return kind == SUB_UNION && testInfinity(endpoint, !isUpper, TYP_INTEGER);
}

static bool getUnionIntersectionCatenationSizeEndpoint(VNode &endpoint,
                                                       int &closedFlag,
                                                       bool isUpper)
{
  int kind = subRec.kind;
  int enclosing = glbSubCode;
  glbSubCode = kind;
  closedFlag = 0;
  initSizeEndpointElem(endpoint, kind, nullptr, isUpper);
  BestValue best;
  forEachOperand([&] {
    VNode operand;
    int operandClosed = 0;
    initSizeEndpointElem(operand, kind, &endpoint, isUpper);
    if (getSizeEndpoint(operand, operandClosed, isUpper))
      modifySizeEndpoint(endpoint, closedFlag, operand, operandClosed, isUpper,
                         best);
  });
  if (isInitialUnionValue(endpoint, kind, isUpper)) {
    startAtInfinity(endpoint, isUpper, TYP_INTEGER);
    closedFlag = 0;
  }
  glbSubCode = enclosing;
  best.makeCurrent();
  return true;
}

// A range of sizes names the type of its numbers itself.
static bool getRangeSizeEndpoint(VNode &endpoint, int &closedFlag, bool isUpper)
{
  SavedNode saved(REC_TNODE);
  ModRec *module = getModPtr(currTPtr[REC_SUB], subRec.compModule);
  readRec(module, REC_TNODE, subRec.compNode);
  return getRangeEndpoint(endpoint, closedFlag, isUpper);
}

static bool getSingleValueSizeEndpoint(VNode &endpoint, int &closedFlag,
                                       bool isUpper)
{
  bool narrows = glbSubCode == SUB_INTERSECTION || glbSubCode == SUB_CATENATED;
  bool found =
      getNumberEndpoint(endpoint, closedFlag, TYP_INTEGER, isUpper != narrows);
  closedFlag = closedFlagOf(isUpper);
  return found;
}

// On `subRec`.
static bool getSizeEndpoint(VNode &endpoint, int &closedFlag, bool isUpper)
{
  ConstraintNesting nesting(currTPtr[REC_SUB]);
  if (isSetKind(subRec.kind))
    return getUnionIntersectionCatenationSizeEndpoint(endpoint, closedFlag,
                                                      isUpper);
  switch (subRec.kind) {
  case SUB_RANGE:
    return getRangeSizeEndpoint(endpoint, closedFlag, isUpper);
  case SUB_SIZE:
    readRec(currTPtr[REC_SUB], REC_SUB, subRec.operand1);
    return getSizeEndpoint(endpoint, closedFlag, isUpper);
  case SUB_SINGLE_VALUE:
    return getSingleValueSizeEndpoint(endpoint, closedFlag, isUpper);
  default:
    return false;
  }
}

// --- types ------------------------------------------------------------------

// Types whose values have a length.
static bool isSizedType(int mainType)
{
  return mainType == TYP_BITSTR || mainType == TYP_OCTSTR ||
         mainType == TYP_SEQOF || mainType == TYP_SETOF ||
         (mainType >= TYP_NUMSTR && mainType <= TYP_UNISTR) ||
         mainType == TYP_OBJDESCR;
}

// An item of another governor, or a value of its own, ends the list.
static bool getEnumEndpoint(VNode &endpoint, bool isUpper)
{
  ModRec *module = currTPtr[REC_TNODE];
  int32_t governor = recJustRead[REC_TNODE].index;
  startAtInfinity(endpoint, !isUpper, TYP_INTEGER);
  BestValue best;
  ChainGuard guard(module, REC_VNODE);
  for (int32_t index = tNode.namedNumbers; index != 0; index = vNode.next) {
    guard.step();
    readRec(module, REC_VNODE, index);
    if (vNode.valueStatus != 0 || vNode.governor != governor)
      break;
    if (vNode.mainType == TYP_EXTENSION_MARKER)
      continue;
    if (vNode.mainType != TYP_INTEGER)
      return false;
    if (!isBeyond(vNode, endpoint, isUpper, TYP_INTEGER))
      continue;
    endpoint = vNode;
    best.note();
  }
  best.makeCurrent();
  return true;
}

static bool getNumberTypeEndpoint(VNode &endpoint, int &closedFlag,
                                  bool isUpper)
{
  int mainType = tNode.mainType;
  if (tNode.firstConstraint != 0 &&
      getNodeEndpoint(endpoint, closedFlag, mainType, isUpper))
    return true;
  startAtInfinity(endpoint, isUpper, mainType);
  closedFlag = closedFlagOf(isUpper);
  return true;
}

static bool getSizedTypeEndpoint(VNode &endpoint, int &closedFlag, bool isUpper)
{
  if (tNode.firstConstraint != 0) {
    readRec(currTPtr[REC_TNODE], REC_SUB, tNode.firstConstraint);
    initSizeEndpointElem(endpoint, subRec.kind, nullptr, isUpper);
    if (getSizeEndpoint(endpoint, closedFlag, isUpper))
      return true;
  }
  startAtInfinity(endpoint, isUpper, TYP_INTEGER);
  closedFlag = 0;
  return true;
}

bool getEndpoint(VNode &endpoint, int &closedFlag, bool isUpper)
{
  ConstraintNesting nesting(currTPtr[REC_TNODE]);
  SavedNode saved(REC_TNODE);
  int enclosing = glbSubCode;
  glbSubCode = 0;
  closedFlag = 0;
  int mainType = tNode.mainType;
  bool found = false;
  if (mainType == TYP_ENUM)
    found = getEnumEndpoint(endpoint, isUpper);
  else if (mainType == TYP_INTEGER || mainType == TYP_REAL)
    found = getNumberTypeEndpoint(endpoint, closedFlag, isUpper);
  else if (isSizedType(mainType))
    found = getSizedTypeEndpoint(endpoint, closedFlag, isUpper);
  glbSubCode = enclosing;
  return found || noEndpoint(endpoint);
}

// The number of one side, as it is stored in a type node. Lengths begin at 0.
static sint64 storedEndpoint(int mainType, bool isUpper)
{
  SavedNode saved(REC_TNODE);
  skipTypes(true);
  VNode endpoint;
  int closedFlag = 0;
  if (!getEndpoint(endpoint, closedFlag, isUpper))
    fatalError(FATAL_INTERNAL, "Cannot obtain endpoint for a type.");
  if (testInfinity(endpoint, true, TYP_INTEGER))
    return i64max();
  if (testInfinity(endpoint, false, TYP_INTEGER))
    return mainType == TYP_INTEGER || mainType == TYP_ENUM ? i64min()
                                                           : sint64{};
  skipValues(true);
  return payloadInt64(vNode);
}

void setTNodeEndpoints()
{
  int mainType = tNode.mainType;
  sint64 lower = i64min();
  sint64 upper = i64max();
  if (mainType == TYP_INTEGER || mainType == TYP_ENUM ||
      isSizedType(mainType)) {
    lower = storedEndpoint(mainType, false);
    upper = storedEndpoint(mainType, true);
  }
  tNode.lowerEndpoint = lower;
  tNode.upperEndpoint = upper;
  writeRec(currTPtr[REC_TNODE], REC_TNODE, recJustRead[REC_TNODE].index);
}
