// The bounds of type nodes.

#include "base/diag.h"
#include "model/number.h"
#include "support/stringvalues.h"
#include <cstring>

using testing::ExitedWithCode;

constexpr int bothClosed = LOWER_CLOSED | UPPER_CLOSED;

struct Endpoint : RestrString {
  int32_t integer = stxType(a, stxNewTNode(TYP_INTEGER));

  int32_t number(int64_t value)
  {
    return stxValue(a, stxNewInteger(integer, value));
  }
  int32_t sub(int kind, int32_t operand1 = 0, int32_t operand2 = 0)
  {
    return stxSub(a, stxNewSub(kind, operand1, operand2));
  }
  // A range over values, of which 0 is MIN or MAX. Its numbers' type serves
  // for sizes.
  int32_t rangeOf(int32_t lower, int32_t upper, int flags = bothClosed,
                  int32_t governor = 0)
  {
    SubRec record = stxNewSub(SUB_RANGE, lower, upper);
    record.subFlags = static_cast<uint8_t>(flags);
    record.compModule = 1;
    record.compNode = governor ? governor : integer;
    return stxSub(a, record);
  }
  int32_t range(int64_t lower, int64_t upper, int flags = bothClosed)
  {
    return rangeOf(number(lower), number(upper), flags);
  }
  int32_t single(int64_t value) { return sub(SUB_SINGLE_VALUE, number(value)); }
  int32_t set(int kind, const std::vector<int32_t> &operands)
  {
    return sub(kind, stxChainSubs(a, operands));
  }
  int32_t size(int32_t inner) { return sub(SUB_SIZE, inner); }
  // INCLUDES of a type, through its carrier.
  int32_t includes(int32_t type)
  {
    VNode carrier = stxNewVNode(TYP_NULL, 0);
    carrier.firstChild = type;
    return sub(SUB_INCLUDES, stxValue(a, carrier));
  }
  int32_t type(int mainType, int32_t constraint = 0)
  {
    TNode node = stxNewTNode(mainType);
    node.firstConstraint = constraint;
    return stxType(a, node);
  }
  int32_t synonym(int32_t target) { return stxType(a, stxNewSynonym(target)); }

  static std::string textOf(const VNode &endpoint)
  {
    int mainType = endpoint.mainType;
    if (testInfinity(endpoint, true, mainType))
      return "+inf";
    if (testInfinity(endpoint, false, mainType))
      return "-inf";
    if (mainType == TYP_REAL)
      return std::to_string(i64lo(payloadReal(endpoint).mantissa)) + "E" +
             std::to_string(payloadReal(endpoint).exponent);
    char digits[24];
    return i64tostr(payloadInt64(endpoint), digits, sizeof digits);
  }
  std::string side(int32_t index, bool isUpper)
  {
    readRec(modA, REC_TNODE, index);
    VNode endpoint;
    int closed = -1;
    bool found = getEndpoint(endpoint, closed, isUpper);
    EXPECT_EQ(recJustRead[REC_TNODE].index, index);
    EXPECT_EQ(found, endpoint.mainType != VAL_NONE);
    if (!found)
      return "none";
    EXPECT_EQ(closed & ~(isUpper ? UPPER_CLOSED : LOWER_CLOSED), 0);
    return isUpper ? textOf(endpoint) + (closed ? "]" : ")")
                   : (closed ? "[" : "(") + textOf(endpoint);
  }
  // Both bounds, in brackets if they belong to the range.
  std::string bounds(int32_t index)
  {
    load();
    std::string lower = side(index, false);
    return lower + ", " + side(index, true);
  }
  std::string integerBounds(int32_t constraint)
  {
    return bounds(type(TYP_INTEGER, constraint));
  }
  std::string stringBounds(int32_t constraint)
  {
    return bounds(type(TYP_IA5STR, constraint));
  }
};

// --- numbers ----------------------------------------------------------------

TEST_F(Endpoint, UnconstrainedNumbers)
{
  EXPECT_EQ(integerBounds(0), "[-inf, +inf]");
  EXPECT_EQ(bounds(type(TYP_REAL)), "[-inf, +inf]");
}

TEST_F(Endpoint, Range)
{
  EXPECT_EQ(integerBounds(range(-3, 5)), "[-3, 5]");
  EXPECT_EQ(integerBounds(range(-3, 5, UPPER_CLOSED)), "(-3, 5]");
  EXPECT_EQ(integerBounds(range(-3, 5, LOWER_CLOSED)), "[-3, 5)");
}

TEST_F(Endpoint, RangeWithMinAndMax)
{
  EXPECT_EQ(integerBounds(rangeOf(0, number(5))), "(-inf, 5]");
  EXPECT_EQ(integerBounds(rangeOf(number(5), 0)), "[5, +inf)");
}

TEST_F(Endpoint, RealRange)
{
  VNode node = stxNewVNode(TYP_REAL, 0);
  setPayloadReal(node, stxInt64(0), 10, 0);
  int32_t zero = stxValue(a, node);
  int32_t index = type(TYP_REAL, rangeOf(zero, 0));
  EXPECT_EQ(bounds(index), "[0E0, +inf)");
  VNode endpoint;
  int closed;
  readRec(modA, REC_TNODE, index);
  ASSERT_TRUE(getEndpoint(endpoint, closed, true));
  EXPECT_EQ(endpoint.mainType, TYP_REAL);
  EXPECT_EQ(getSpecialRealVal(payloadReal(endpoint)), REAL_PLUS_INFINITY);
}

TEST_F(Endpoint, OperandIsFollowedToItsEnd)
{
  int32_t lower = stxValue(a, ref(number(4)));
  EXPECT_EQ(integerBounds(rangeOf(lower, stxValue(a, ref(lower)))), "[4, 4]");
}

TEST_F(Endpoint, OperandOfAnotherMainTypeIsNone)
{
  int32_t real = stxValue(a, stxNewVNode(TYP_REAL, 0));
  EXPECT_EQ(integerBounds(rangeOf(real, number(5))), "[-inf, 5]");
  EXPECT_EQ(integerBounds(sub(SUB_SINGLE_VALUE, real)), "[-inf, +inf]");
}

TEST_F(Endpoint, SingleValueIsOpen)
{
  EXPECT_EQ(integerBounds(single(7)), "(7, 7)");
}

TEST_F(Endpoint, UnionTakesTheWidest)
{
  EXPECT_EQ(integerBounds(set(SUB_UNION, {range(1, 5), range(3, 9)})),
            "[1, 9]");
  EXPECT_EQ(integerBounds(set(SUB_UNION, {single(4), range(1, 2), single(3)})),
            "[1, 4)");
}

TEST_F(Endpoint, IntersectionAndChainTakeTheNarrowest)
{
  for (int kind : {SUB_INTERSECTION, SUB_CATENATED}) {
    EXPECT_EQ(integerBounds(set(kind, {range(1, 5), range(3, 9)})), "[3, 5]");
    EXPECT_EQ(integerBounds(set(kind, {range(3, 9), range(1, 5)})), "[3, 5]");
  }
}

TEST_F(Endpoint, TieKeepsTheRunningOne)
{
  EXPECT_EQ(integerBounds(set(SUB_UNION, {range(1, 5, 0), range(1, 5)})),
            "(1, 5)");
  EXPECT_EQ(integerBounds(set(SUB_INTERSECTION, {range(1, 5), range(1, 5, 0)})),
            "[1, 5]");
}

TEST_F(Endpoint, SetOfNothing)
{
  int32_t alphabet = sub(SUB_ALPHABET);
  EXPECT_EQ(integerBounds(set(SUB_UNION, {alphabet})), "(-inf, +inf)");
  EXPECT_EQ(integerBounds(set(SUB_UNION, {})), "(-inf, +inf)");
  EXPECT_EQ(integerBounds(set(SUB_INTERSECTION, {sub(SUB_ALPHABET)})),
            "(-inf, +inf)");
}

TEST_F(Endpoint, SetInsideASet)
{
  int32_t inner = set(SUB_UNION, {range(1, 5), range(8, 20)});
  EXPECT_EQ(integerBounds(set(SUB_INTERSECTION, {inner, range(3, 40)})),
            "[3, 20]");
}

// What is taken is the value in the buffer: 5, read for the first operand.
TEST_F(Endpoint, InfiniteOperandTakesTheCurrentValue)
{
  int32_t open = rangeOf(number(10), 0);
  EXPECT_EQ(integerBounds(set(SUB_UNION, {range(0, 5), open})), "[0, 5)");
}

TEST_F(Endpoint, ContainedSubtype)
{
  int32_t inner = type(TYP_INTEGER, range(2, 4));
  EXPECT_EQ(integerBounds(includes(inner)), "[2, 4]");
  EXPECT_EQ(integerBounds(includes(synonym(synonym(inner)))), "[2, 4]");
  EXPECT_EQ(integerBounds(includes(type(TYP_BOOLEAN))), "[-inf, +inf]");
}

TEST_F(Endpoint, OtherKindsSetNoBound)
{
  for (int kind : {SUB_EXCEPT, SUB_ALL_EXCEPT, SUB_ALPHABET, SUB_SIZE,
                   SUB_WITH_COMPONENT, SUB_TABLE, SUB_HIDDEN})
    EXPECT_EQ(integerBounds(sub(kind, number(1))), "[-inf, +inf]") << kind;
}

TEST_F(Endpoint, ValueIsLeftCurrent)
{
  int32_t low = number(1), high = number(9);
  int32_t first = rangeOf(low, number(3));
  int32_t second = rangeOf(number(2), high);
  int32_t third = rangeOf(number(4), number(5));
  int32_t index = type(TYP_INTEGER, set(SUB_UNION, {first, second, third}));
  load();
  EXPECT_EQ(side(index, false), "[1");
  EXPECT_EQ(recJustRead[REC_VNODE].index, low);
  EXPECT_EQ(side(index, true), "9]");
  EXPECT_EQ(recJustRead[REC_VNODE].index, high);
}

TEST_F(Endpoint, TypesWithoutBounds)
{
  for (int mainType : {TYP_BOOLEAN, TYP_NULL, TYP_SEQ, TYP_SET, TYP_CHOICE,
                       TYP_ANY, TYP_EMB_PDV, TYP_OBJID, TYP_CHASTR, TYP_GENTIME,
                       TYP_UTCTIME, TYP_SYNONYM, TYP_OPEN})
    EXPECT_EQ(bounds(type(mainType)), "none, none") << mainType;
}

// --- enumerations -----------------------------------------------------------

TEST_F(Endpoint, Enumeration)
{
  int32_t index = type(TYP_ENUM);
  stxAddNamedNumber(a, index, "five", 5);
  int32_t two = stxAddNamedNumber(a, index, "two", 2);
  stxAddNamedMarker(a, index);
  int32_t nine = stxAddNamedNumber(a, index, "nine", 9);
  stxAddNamedNumber(a, index, "three", 3);
  EXPECT_EQ(bounds(index), "(2, 9)");
  EXPECT_EQ(recJustRead[REC_VNODE].index, nine);
  side(index, false);
  EXPECT_EQ(recJustRead[REC_VNODE].index, two);
}

TEST_F(Endpoint, EnumerationEndsAtAnItemThatIsNone)
{
  int32_t index = type(TYP_ENUM);
  stxAddNamedNumber(a, index, "one", 1);
  int32_t other = stxAddNamedNumber(a, index, "two", 2);
  stxAddNamedNumber(a, index, "three", 3);
  stxValueAt(a, other).valueStatus = 2;
  EXPECT_EQ(bounds(index), "(1, 1)");
  stxValueAt(a, other).valueStatus = 0;
  stxValueAt(a, other).governor = integer;
  EXPECT_EQ(bounds(index), "(1, 1)");
  stxValueAt(a, other).governor = index;
  EXPECT_EQ(bounds(index), "(1, 3)");
}

TEST_F(Endpoint, EnumerationWithAnotherMainType)
{
  int32_t index = type(TYP_ENUM);
  int32_t item = stxAddNamedNumber(a, index, "one", 1);
  stxValueAt(a, item).mainType = TYP_REAL;
  EXPECT_EQ(bounds(index), "none, none");
}

// --- sizes ------------------------------------------------------------------

TEST_F(Endpoint, UnconstrainedSizes)
{
  for (int mainType = 0; mainType <= 31; ++mainType) {
    bool sized = mainType == 4 || mainType == 5 || mainType == 8 ||
                 mainType == 10 || (mainType >= 15 && mainType <= 24) ||
                 mainType == 30;
    if (sized) {
      EXPECT_EQ(bounds(type(mainType)), "(-inf, +inf)") << mainType;
    }
  }
}

TEST_F(Endpoint, SizeRange)
{
  EXPECT_EQ(stringBounds(size(range(1, 5))), "[1, 5]");
  EXPECT_EQ(stringBounds(size(range(1, 5, 0))), "(1, 5)");
  EXPECT_EQ(stringBounds(size(rangeOf(0, number(5)))), "(-inf, 5]");
}

TEST_F(Endpoint, SizeOfASingleValueIsClosed)
{
  EXPECT_EQ(stringBounds(size(single(3))), "[3, 3]");
}

TEST_F(Endpoint, SizeUnion)
{
  EXPECT_EQ(stringBounds(size(set(SUB_UNION, {single(1), single(5)}))),
            "[1, 5]");
  EXPECT_EQ(stringBounds(set(SUB_UNION, {size(range(4, 6)), size(single(2))})),
            "[2, 6]");
}

TEST_F(Endpoint, SizeIntersectionNarrows)
{
  EXPECT_EQ(
      stringBounds(set(SUB_INTERSECTION, {size(range(1, 5)), size(single(3))})),
      "[3, 3]");
  EXPECT_EQ(stringBounds(
                set(SUB_INTERSECTION, {size(range(1, 5)), size(range(2, 9))})),
            "[2, 5]");
  // Single values alone: from both sides the narrowest.
  EXPECT_EQ(stringBounds(size(set(SUB_INTERSECTION, {single(1), single(5)}))),
            "[5, 1]");
}

TEST_F(Endpoint, SizeChainGoesOnFromTheRunningOne)
{
  EXPECT_EQ(
      stringBounds(set(SUB_CATENATED, {size(range(1, 10)), size(single(4))})),
      "[4, 4]");
  // 9 does not narrow the upper bound, but does the lower one.
  EXPECT_EQ(
      stringBounds(set(SUB_CATENATED, {size(range(2, 5)), size(single(9))})),
      "[9, 5]");
}

TEST_F(Endpoint, SizeUnionInsideAnIntersection)
{
  int32_t inner = set(SUB_UNION, {single(2), single(7)});
  EXPECT_EQ(
      stringBounds(set(SUB_INTERSECTION, {size(inner), size(range(1, 5))})),
      "[2, 5]");
}

TEST_F(Endpoint, SizeOfNothing)
{
  EXPECT_EQ(stringBounds(sub(SUB_ALPHABET)), "(-inf, +inf)");
  EXPECT_EQ(stringBounds(set(SUB_UNION, {sub(SUB_ALPHABET)})), "(-inf, +inf)");
  EXPECT_EQ(stringBounds(
                set(SUB_INTERSECTION, {size(range(1, 5)), sub(SUB_ALPHABET)})),
            "[1, 5]");
}

// --- ranges over a synonym --------------------------------------------------

TEST_F(Endpoint, MinOfASynonymIsInherited)
{
  int32_t far = synonym(synonym(type(TYP_INTEGER, range(2, 8))));
  EXPECT_EQ(stringBounds(size(rangeOf(0, number(5), bothClosed, far))),
            "[2, 5]");
  EXPECT_EQ(stringBounds(size(rangeOf(0, 0, bothClosed, far))), "[2, 8]");
}

TEST_F(Endpoint, MinOfAPlainSynonymIsInfinite)
{
  int32_t plain = synonym(type(TYP_INTEGER));
  EXPECT_EQ(stringBounds(size(rangeOf(0, 0, bothClosed, plain))),
            "(-inf, +inf)");
}

TEST_F(Endpoint, MinOverAnotherConstraint)
{
  int32_t values = set(SUB_UNION, {single(1), single(5)});
  int32_t base = synonym(type(TYP_INTEGER, values));
  EXPECT_EQ(stringBounds(size(rangeOf(0, 0, bothClosed, base))), "(1, 5)");
  int32_t chain = set(SUB_CATENATED, {range(0, 9), range(1, 4)});
  int32_t chained = synonym(type(TYP_INTEGER, chain));
  EXPECT_EQ(stringBounds(size(rangeOf(0, 0, bothClosed, chained))), "[1, 4]");
}

TEST_F(Endpoint, ExplicitBoundMustLieInsideTheInheritedRange)
{
  int32_t closed = synonym(type(TYP_INTEGER, range(2, 8)));
  int32_t open = synonym(type(TYP_INTEGER, range(2, 8, 0)));
  auto sized = [&](int64_t lower, int64_t upper, int32_t governor) {
    return stringBounds(
        size(rangeOf(number(lower), number(upper), bothClosed, governor)));
  };
  EXPECT_EQ(sized(2, 8, closed), "[2, 8]");
  EXPECT_EQ(sized(1, 9, closed), "(-inf, +inf)");
  EXPECT_EQ(sized(3, 7, closed), "[3, 7]");
  EXPECT_EQ(sized(2, 8, open), "(-inf, +inf)");
  EXPECT_EQ(sized(3, 7, open), "[3, 7]");
  EXPECT_EQ(sized(-5, 900, synonym(type(TYP_INTEGER))), "[-5, 900]");
}

TEST_F(Endpoint, UnboundSynonymHasNone)
{
  EXPECT_EQ(stringBounds(size(rangeOf(0, 0, bothClosed, synonym(0)))),
            "(-inf, +inf)");
  EXPECT_EQ(
      stringBounds(size(rangeOf(number(1), number(2), bothClosed, synonym(0)))),
      "(-inf, +inf)");
}

// --- bounds of a type node --------------------------------------------------

struct SetTNodeEndpoints : Endpoint {
  // The bounds that are written into a type node.
  std::string stored(int32_t index)
  {
    load();
    readRec(modA, REC_TNODE, index);
    TNode before = tNode;
    setTNodeEndpoints();
    readRec(modA, REC_TNODE, integer);
    readRec(modA, REC_TNODE, index);
    char lower[24], upper[24];
    std::string text = i64tostr(tNode.lowerEndpoint, lower, sizeof lower);
    text +=
        std::string("..") + i64tostr(tNode.upperEndpoint, upper, sizeof upper);
    TNode after = tNode;
    after.lowerEndpoint = before.lowerEndpoint;
    after.upperEndpoint = before.upperEndpoint;
    EXPECT_EQ(memcmp(&after, &before, sizeof after), 0);
    return text;
  }
};

static const char wholeRange[] = "-9223372036854775808..9223372036854775807";

TEST_F(SetTNodeEndpoints, OtherTypes)
{
  for (int mainType : {TYP_BOOLEAN, TYP_REAL, TYP_NULL, TYP_SEQ, TYP_CHOICE,
                       TYP_OBJID, TYP_CHASTR, TYP_UTCTIME})
    EXPECT_EQ(stored(type(mainType)), wholeRange) << mainType;
}

// The main type counts ahead of the chain.
TEST_F(SetTNodeEndpoints, Synonym)
{
  EXPECT_EQ(stored(synonym(type(TYP_INTEGER, range(1, 5)))), wholeRange);
}

TEST_F(SetTNodeEndpoints, Integers)
{
  EXPECT_EQ(stored(type(TYP_INTEGER)), wholeRange);
  EXPECT_EQ(stored(type(TYP_INTEGER, range(1, 5))), "1..5");
  EXPECT_EQ(stored(type(TYP_INTEGER, rangeOf(0, number(5)))),
            "-9223372036854775808..5");
}

TEST_F(SetTNodeEndpoints, Enumeration)
{
  int32_t index = type(TYP_ENUM);
  stxAddNamedNumber(a, index, "minus", -4);
  stxAddNamedNumber(a, index, "plus", 6);
  EXPECT_EQ(stored(index), "-4..6");
}

TEST_F(SetTNodeEndpoints, SizesBeginAtZero)
{
  for (int mainType : {TYP_BITSTR, TYP_OCTSTR, TYP_SEQOF, TYP_SETOF, TYP_IA5STR,
                       TYP_UNISTR, TYP_OBJDESCR})
    EXPECT_EQ(stored(type(mainType)), "0..9223372036854775807") << mainType;
  EXPECT_EQ(stored(type(TYP_OCTSTR, size(range(2, 4)))), "2..4");
  EXPECT_EQ(stored(type(TYP_OCTSTR, size(rangeOf(0, number(4))))), "0..4");
}

TEST_F(SetTNodeEndpoints, NoBoundIsFatal)
{
  int32_t index = type(TYP_ENUM);
  int32_t item = stxAddNamedNumber(a, index, "one", 1);
  stxValueAt(a, item).mainType = TYP_REAL;
  load();
  readRec(modA, REC_TNODE, index);
  EXPECT_EXIT(setTNodeEndpoints(), ExitedWithCode(2),
              "Cannot obtain endpoint for a type\\.");
}

// --- damaged trees ----------------------------------------------------------

TEST_F(Endpoint, TypeThatIncludesItself)
{
  int32_t index = type(TYP_INTEGER);
  stxTypeAt(a, index).firstConstraint = includes(index);
  load();
  EXPECT_EXIT(side(index, true), ExitedWithCode(2), inconsistent);
}

TEST_F(Endpoint, SizeInsideItself)
{
  int32_t own = size(0);
  stxSubAt(a, own).operand1 = own;
  int32_t index = type(TYP_IA5STR, own);
  load();
  EXPECT_EXIT(side(index, true), ExitedWithCode(2), inconsistent);
}

TEST_F(Endpoint, CyclicOperands)
{
  int32_t operand = range(1, 2);
  stxSubAt(a, operand).nextSub = operand;
  int32_t index = type(TYP_INTEGER, sub(SUB_UNION, operand));
  load();
  EXPECT_EXIT(side(index, true), ExitedWithCode(2), inconsistent);
}

TEST_F(Endpoint, CyclicItems)
{
  int32_t index = type(TYP_ENUM);
  int32_t item = stxAddNamedNumber(a, index, "one", 1);
  stxValueAt(a, item).next = item;
  load();
  EXPECT_EXIT(side(index, true), ExitedWithCode(2), inconsistent);
}

TEST_F(Endpoint, WildIndexes)
{
  int32_t value = type(TYP_INTEGER, rangeOf(900, 900));
  int32_t constraint = type(TYP_INTEGER, 900);
  int32_t governor = type(TYP_IA5STR, size(rangeOf(0, 0, bothClosed, 900)));
  load();
  for (int32_t index : {value, constraint, governor})
    EXPECT_EXIT(side(index, true), ExitedWithCode(2), noRecord);
}
