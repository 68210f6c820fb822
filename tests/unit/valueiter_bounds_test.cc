// Visits of the bounds of types.

#include "base/diag.h"
#include "model/number.h"
#include "model/valueiter.h"
#include "model/valuetext.h"
#include "support/valueviews.h"

using testing::ExitedWithCode;

// What the call-back has seen.
static std::string seen;

static void noteEndpoints(AsnType &, AsnValue &lower, bool lowerClosed,
                          AsnValue &upper, bool upperClosed)
{
  auto text = [](AsnValue &value) {
    std::string out;
    if (value.base.mainType == TYP_REAL)
      return realValueStri(out, nullptr, value, nullptr);
    return integerValueStri(out, nullptr, value, nullptr);
  };
  for (AsnValue *value : {&lower, &upper}) {
    bool infinite = isPlusInfinity(*value) || isMinusInfinity(*value);
    EXPECT_EQ(value->governor == nullptr, infinite);
    EXPECT_EQ(value->compStatus, 2);
    EXPECT_NE(value->metaRec, nullptr);
  }
  seen += (lowerClosed ? "[" : "(") + text(lower) + ", " + text(upper) +
          (upperClosed ? "]" : ")");
}

// An item's view has the status of the item.
static void noteItemEndpoints(AsnType &, AsnValue &lower, bool, AsnValue &upper,
                              bool)
{
  EXPECT_EQ(lower.compStatus, 0);
  EXPECT_EQ(upper.compStatus, 0);
  std::string text;
  seen += integerValueStri(text, nullptr, lower, " ");
  seen += integerValueStri(text, nullptr, upper, nullptr);
}

struct TypeEndpoints : ValueViews {
  TypeEndpoints() { seen.clear(); }

  VNode governed(int64_t number)
  {
    return stxNewInteger(stxType(a, stxNewTNode(TYP_INTEGER)), number);
  }
  int32_t single(int64_t number)
  {
    int32_t value = stxValue(a, governed(number));
    return stxSub(a, stxNewSub(SUB_SINGLE_VALUE, value, 0));
  }
  std::string endpointsAt(int32_t index)
  {
    start();
    forTypeEndpoints(typeView(index), noteEndpoints);
    std::string text;
    text.swap(seen);
    return text;
  }
  std::string endpoints(int mainType, int32_t constraint = 0)
  {
    TNode node = stxNewTNode(mainType);
    node.firstConstraint = constraint;
    return endpointsAt(stxDefineType(a, "T", node));
  }
};

TEST_F(TypeEndpoints, Unconstrained)
{
  // The texts of infinite integers are crossed.
  static const char sizes[] = "(PLUS-INFINITY, MINUS-INFINITY)";
  for (int mainType = 0; mainType <= 31; ++mainType) {
    bool sized = mainType == 4 || mainType == 5 || mainType == 8 ||
                 mainType == 10 || (mainType >= 15 && mainType <= 24) ||
                 mainType == 30;
    std::string expected = sized ? sizes : "";
    if (mainType == TYP_INTEGER)
      expected = "[PLUS-INFINITY, MINUS-INFINITY]";
    if (mainType == TYP_REAL)
      expected = "[MINUS-INFINITY, PLUS-INFINITY]";
    if (mainType != TYP_ENUM) {
      EXPECT_EQ(endpoints(mainType), expected) << mainType;
    }
  }
}

TEST_F(TypeEndpoints, Range)
{
  int32_t lower = stxValue(a, governed(3));
  int32_t upper = stxValue(a, governed(8));
  SubRec range = stxNewSub(SUB_RANGE, lower, upper);
  range.subFlags = LOWER_CLOSED;
  EXPECT_EQ(endpoints(TYP_INTEGER, stxSub(a, range)), "[3, 8)");
  range.operand2 = 0;
  range.subFlags = UPPER_CLOSED;
  EXPECT_EQ(endpoints(TYP_INTEGER, stxSub(a, range)), "(3, MINUS-INFINITY)");
}

TEST_F(TypeEndpoints, BrokenEnumeration)
{
  int32_t index = stxDefineType(a, "E", stxNewTNode(TYP_ENUM));
  int32_t item = stxAddNamedNumber(a, index, "one", 1);
  stxValueAt(a, item).mainType = TYP_REAL;
  start();
  AsnType &type = typeView(index);
  EXPECT_EXIT(forTypeEndpoints(type, noteEndpoints), ExitedWithCode(2),
              "Cannot obtain endpoint for a type\\.");
}

TEST_F(TypeEndpoints, RealRange)
{
  VNode zero = stxNewVNode(TYP_REAL, stxType(a, stxNewTNode(TYP_REAL)));
  setPayloadReal(zero, stxInt64(0), 10, 0);
  SubRec range = stxNewSub(SUB_RANGE, stxValue(a, zero), 0);
  range.subFlags = LOWER_CLOSED;
  EXPECT_EQ(endpoints(TYP_REAL, stxSub(a, range)),
            "[{0, 10, 0}, PLUS-INFINITY)");
}

TEST_F(TypeEndpoints, Sizes)
{
  SubRec values = stxNewSub(SUB_UNION, stxChainSubs(a, {single(1), single(5)}));
  int32_t size = stxSub(a, stxNewSub(SUB_SIZE, stxSub(a, values)));
  EXPECT_EQ(endpoints(TYP_IA5STR, size), "[1, 5]");
}

TEST_F(TypeEndpoints, Enumeration)
{
  int32_t index = stxDefineType(a, "E", stxNewTNode(TYP_ENUM));
  for (int64_t number : {4, -2, 3})
    stxAddNamedNumber(a, index, "n" + std::to_string(number), number);
  start();
  forTypeEndpoints(typeView(index), noteItemEndpoints);
  EXPECT_EQ(seen, "-2 4");
}

// The base node counts, in whichever module it is.
TEST_F(TypeEndpoints, OfASynonym)
{
  TNode node = stxNewTNode(TYP_INTEGER);
  int32_t integer = stxType(b, stxNewTNode(TYP_INTEGER));
  SubRec range = stxNewSub(SUB_RANGE, stxValue(b, stxNewInteger(integer, 3)),
                           stxValue(b, stxNewInteger(integer, 8)));
  range.subFlags = LOWER_CLOSED | UPPER_CLOSED;
  node.firstConstraint = stxSub(b, range);
  int32_t far = stxDefineType(b, "Far", node);
  EXPECT_EQ(endpointsAt(stxDefineType(a, "Near", stxNewSynonym(far, 2))),
            "[3, 8]");
}
