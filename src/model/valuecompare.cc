// Comparison of values. Both sides are copies: one buffer serves them all.

#include "model/valuecompare.h"
#include "base/diag.h"
#include "model/number.h"
#include "model/restrstring.h"
#include "store/codes.h"
#include "store/typenode.h"
#include "store/valuenode.h"
#include <cstdio>
#include <cstring>
#include <vector>

// Values inside values. A tree comes nowhere near it; the stack holds it many
// times.
constexpr int maxValueNesting = 1000;
static int valueNesting;

constexpr int notComparable = -1;

// A value with the module that its indexes are good in.
struct ValueAt {
  ModRec *module;
  VNode node;
  int32_t index = 0;  // of its record; 0: a caller's image
};

static ValueAt readValue(ModRec *module, int32_t index)
{
  readRec(module, REC_VNODE, index);
  return {module, vNode, index};
}

// The type node at the end of the chain of the value's governor.
static RecPlace governorOf(const ValueAt &value)
{
  readRec(getModPtr(value.module, value.node.governorModule), REC_TNODE,
          value.node.governor);
  skipTypes(true);
  return recJustRead[REC_TNODE];
}

static bool haveSameGovernor(const ValueAt &left, const ValueAt &right)
{
  RecPlace l = governorOf(left);
  RecPlace r = governorOf(right);
  return l.module == r.module && l.index == r.index;
}

// The value at the end of the chain that begins at a component.
static ValueAt baseOf(const ValueAt &value)
{
  readRec(value.module, REC_VNODE, value.index);
  skipValues(true);
  return {currTPtr[REC_VNODE], vNode, recJustRead[REC_VNODE].index};
}

static int compareBases(const ValueAt &left, const ValueAt &right)
{
  ValueAt l = baseOf(left);
  ValueAt r = baseOf(right);
  return compareValue(l.module, l.node, r.module, r.node);
}

// --- structures -------------------------------------------------------------

// Reads the right-hand partner of a component; 0 if there is none.
static int32_t partnerOf(const ValueAt &comp, bool byName, ModRec *rightMod,
                         int32_t rightFirst, int32_t rightNext)
{
  if (!byName)
    return rightNext;
  const char *name = getStriOrEmpty(comp.module, comp.node.identifier);
  bool found = findValueCompById(rightMod, rightFirst, name);
  return found ? recJustRead[REC_VNODE].index : 0;
}

// Components of a SET go by name; of others they go in order, where the next
// one on the right is taken from the first child of the one before, not from
// its chain: past the first pair, plain components have no partner and the
// walk ends as equal.
static int compareStruVal(int mainType, const ValueAt &left,
                          const ValueAt &right)
{
  bool byName = mainType == TYP_SET;
  int32_t rightNext = right.node.firstChild;
  ChainGuard guard(left.module, REC_VNODE);
  for (int32_t index = left.node.firstChild; index != 0;) {
    guard.step();
    ValueAt leftComp = readValue(left.module, index);
    index = leftComp.node.next;
    int32_t partner = partnerOf(leftComp, byName, right.module,
                                right.node.firstChild, rightNext);
    if (partner == 0)
      return byName ? notComparable : 0;
    ValueAt rightComp = readValue(right.module, partner);
    rightNext = rightComp.node.firstChild;
    if (!haveSameGovernor(leftComp, rightComp))
      return notComparable;
    if (int result = compareBases(leftComp, rightComp))
      return result;
  }
  return 0;
}

// --- lists ------------------------------------------------------------------

static int32_t lengthOfList(const ValueAt &list)
{
  int32_t length = 0;
  ChainGuard guard(list.module, REC_VNODE);
  for (int32_t index = list.node.firstChild; index != 0; index = vNode.next) {
    guard.step();
    readRec(list.module, REC_VNODE, index);
    ++length;
  }
  return length;
}

static int compareInOrder(const ValueAt &left, const ValueAt &right)
{
  int32_t rightIndex = right.node.firstChild;
  for (int32_t index = left.node.firstChild; index != 0;) {
    ValueAt leftElem = readValue(left.module, index);
    ValueAt rightElem = readValue(right.module, rightIndex);
    index = leftElem.node.next;
    rightIndex = rightElem.node.next;
    if (int result = compareBases(leftElem, rightElem))
      return result;
  }
  return 0;
}

// Finds an equal element on the right that no other has taken, and takes it.
static bool takeEqual(const ValueAt &elem, const ValueAt &right,
                      std::vector<bool> &used)
{
  size_t i = 0;
  for (int32_t index = right.node.firstChild; index != 0; ++i) {
    ValueAt rightElem = readValue(right.module, index);
    index = rightElem.node.next;
    if (used[i] || !haveSameGovernor(elem, rightElem) ||
        compareBases(elem, rightElem) != 0)
      continue;
    used[i] = true;
    return true;
  }
  return false;
}

static int compareInAnyOrder(const ValueAt &left, const ValueAt &right,
                             int32_t length)
{
  std::vector<bool> used(static_cast<size_t>(length));
  for (int32_t index = left.node.firstChild; index != 0;) {
    ValueAt elem = readValue(left.module, index);
    index = elem.node.next;
    if (!takeEqual(elem, right, used))
      return notComparable;
  }
  return 0;
}

static int compareListVal(int mainType, const ValueAt &left,
                          const ValueAt &right)
{
  int32_t length = lengthOfList(left);
  if (length != lengthOfList(right))
    return notComparable;
  return mainType == TYP_SEQOF ? compareInOrder(left, right)
                               : compareInAnyOrder(left, right, length);
}

// --- the whole --------------------------------------------------------------

// Object identifiers are compared by their canonical texts.
static int compareObjIdVal(const ValueAt &left, const ValueAt &right)
{
  return strcmp(getStriOrEmpty(left.module, payloadStri(left.node)),
                getStriOrEmpty(right.module, payloadStri(right.node)));
}

static int compareAny()
{
  if (verboseEx > 1)
    fprintf(stderr, "** BET Warning %s\n",
            "Comparison of two ANY values not yet implemented, sorry.");
  return notComparable;
}

static int compareByMainType(const ValueAt &left, const ValueAt &right)
{
  int mainType = left.node.mainType;
  switch (mainType) {
  case TYP_BOOLEAN:
    return payloadBool(left.node) - payloadBool(right.node);
  case TYP_INTEGER:
  case TYP_ENUM:
    return compareNumber(left.node, right.node, TYP_INTEGER);
  case TYP_REAL:
    return compareNumber(left.node, right.node, TYP_REAL);
  case TYP_BITSTR:
  case TYP_OCTSTR:
  case TYP_TELSTR:
  case TYP_VIDSTR:
  case TYP_GRASTR:
  case TYP_GENSTR:
  case TYP_GENTIME:
  case TYP_UTCTIME:
  case TYP_OBJDESCR:
    return !equalStrings(mainType, left.module, left.node, right.module,
                         right.node);
  case TYP_NULL:
    return 0;
  case TYP_SEQ:
  case TYP_SET:
  case TYP_CHOICE:
  case TYP_EMB_PDV:
  case TYP_CHASTR:
  case TYP_EXTERNAL:
  case TYP_EXTERNAL_1994:
  case TYP_INSTANCE_OF:
    return compareStruVal(mainType, left, right);
  case TYP_SEQOF:
  case TYP_SETOF:
    return compareListVal(mainType, left, right);
  case TYP_ANY:
    return compareAny();
  case TYP_OBJID:
    return compareObjIdVal(left, right);
  case TYP_NUMSTR:
  case TYP_PRISTR:
  case TYP_VISSTR:
  case TYP_IA5STR:
  case TYP_BMPSTR:
  case TYP_UNISTR:
    return compareStrings(mainType, left.module, left.node, right.module,
                          right.node);
  default:
    return notComparable;
  }
}

int compareValue(ModRec *leftMod, const VNode &left, ModRec *rightMod,
                 const VNode &right)
{
  if (valueNesting >= maxValueNesting)
    treeInconsistent(leftMod);
  ++valueNesting;
  SavedNode savedType(REC_TNODE);
  SavedNode savedValue(REC_VNODE);
  int result = compareByMainType({leftMod, left}, {rightMod, right});
  --valueNesting;
  return result;
}
