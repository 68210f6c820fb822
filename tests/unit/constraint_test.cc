// Constraint walkers: the list of a type, operands of every kind, values,
// subtypes, and damaged trees. Components have a file of their own.

#include "model/constraint.h"
#include "model/number.h"
#include "model/typequery.h"
#include "store/valuenode.h"
#include "support/constrainttrees.h"

using testing::ExitedWithCode;

// What call-backs have seen.
static std::string seen;

static std::string decimal(const AsnValue &value)
{
  char buffer[24];
  return i64tostr(payloadInt64(value.base), buffer, sizeof(buffer));
}

static void show(AsnType &type, AsnConstraint *constraint);

static void showOperand(AsnType &type, AsnConstraint &operand, int index)
{
  seen += std::to_string(index) + ":";
  show(type, &operand);
  seen += " ";
}

static void showPlain(AsnType &type, AsnConstraint *constraint)
{
  show(type, constraint);
  seen += " ";
}

static void showExcept(AsnType &type, AsnConstraint &from,
                       AsnConstraint &excluded)
{
  show(type, &from);
  seen += " but ";
  show(type, &excluded);
}

static void showValue(AsnType &, AsnValue &value)
{
  seen += decimal(value);
}

static void showRange(AsnType &, AsnValue &lower, bool lowerClosed,
                      AsnValue &upper, bool upperClosed)
{
  seen += (lowerClosed ? "[" : "(") + decimal(lower) + "," + decimal(upper) +
          (upperClosed ? "]" : ")");
}

static void showSubtype(AsnType &type, AsnType &subtype,
                        AsnConstraint *constraint)
{
  seen += "T" + std::to_string(subtype.compRecNr) + "=";
  show(type, constraint);
  seen += " ";
}

// The constraint as a text, by the walkers alone.
static void show(AsnType &type, AsnConstraint *constraint)
{
  if (!constraint) {
    seen += "null";
    return;
  }
  AsnConstraint &c = *constraint;
  int kind = getConstraintKind(c);
  seen += constraintKindName(kind);
  seen += "<";
  switch (kind) {
  case SUB_UNION:
    EXPECT_EQ(forUnionConstraint(type, c, showOperand), 0);
    break;
  case SUB_INTERSECTION:
    EXPECT_EQ(forIntersectionConstraint(type, c, showOperand), 0);
    break;
  case SUB_CATENATED:
    EXPECT_EQ(forEachCatenatedConstraint(type, c, showPlain), 0);
    break;
  case SUB_EXCEPT:
    EXPECT_EQ(forExceptConstraint(type, c, showExcept), 0);
    break;
  case SUB_ALL_EXCEPT:
    EXPECT_EQ(forAllExceptConstraint(type, c, show), 0);
    break;
  case SUB_RANGE:
    EXPECT_EQ(forValueRangeConstraint(type, c, showRange), 0);
    break;
  case SUB_ALPHABET:
    EXPECT_EQ(forPermittedAlphabetConstraint(type, c, show), 0);
    break;
  case SUB_SIZE:
    EXPECT_EQ(forSizeConstraint(type, c, show), 0);
    break;
  case SUB_SINGLE_VALUE:
    EXPECT_EQ(forSingleValueConstraint(type, c, showValue), 0);
    break;
  case SUB_INCLUDES:
    EXPECT_EQ(forContainedSubtypeConstraint(type, c, showPlain), 0);
    break;
  default:
    break;
  }
  seen += ">";
}

struct Constraint : ConstraintTrees {
  Constraint() { seen.clear(); }

  // All constraints of a type, as text.
  std::string shown(int32_t record)
  {
    load();
    TestType type(module, record);
    seen.clear();
    forEachTypeConstraint(*type, showPlain);
    return seen;
  }
  // The first constraint of an INTEGER with it.
  std::string shownSub(int32_t constraint, int mainType = TYP_INTEGER)
  {
    return shown(type(mainType, constraint));
  }
};

// --- the list of a type -----------------------------------------------------

TEST_F(Constraint, StepsOverTheListInOneObject)
{
  int32_t base = type(TYP_INTEGER, range(1, 10));
  int32_t hidden = synonym(base, sub(SUB_HIDDEN));
  int32_t record = synonym(hidden, single(4));
  load();
  TestType type(module, record);
  AsnConstraint *first = firstConstraint(*type);
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->rec.kind, SUB_RANGE);
  EXPECT_EQ(first->owner, type.type);
  EXPECT_EQ(first->module, module.rec);
  EXPECT_EQ(subRec.kind, SUB_RANGE);
  EXPECT_EQ(nextConstraint(first), first);
  EXPECT_EQ(first->rec.kind, SUB_HIDDEN);
  EXPECT_EQ(nextConstraint(first), first);
  EXPECT_EQ(first->rec.kind, SUB_SINGLE_VALUE);
  EXPECT_EQ(nextConstraint(first), nullptr);
  EXPECT_EQ(nextConstraint(nullptr), nullptr);
}

TEST_F(Constraint, NoConstraintsNoSteps)
{
  load();
  TestType type(module, integer);
  EXPECT_EQ(firstConstraint(*type), nullptr);
  EXPECT_EQ(getNrOfTypeConstraints(*type), 0);
  EXPECT_EQ(getNrOfLocalTypeConstraints(*type), 0);
  EXPECT_FALSE(isLocalTypeConstraints(*type));
  forEachTypeConstraint(*type, showPlain);
  forEachLocalTypeConstraint(*type, showPlain);
  EXPECT_EQ(seen, "");
}

TEST_F(Constraint, TheBaseComesFirst)
{
  int32_t base = type(TYP_INTEGER, single(1));
  int32_t middle = synonym(base, single(2));
  EXPECT_EQ(shown(synonym(middle, single(3))),
            "single value<1> single value<2> single value<3> ");
}

TEST_F(Constraint, LocalOnesAreThoseOfTheOwnNode)
{
  int32_t base = type(TYP_INTEGER, single(1));
  int32_t record = synonym(base, single(2));
  load();
  TestType synonym(module, record);
  EXPECT_EQ(getNrOfTypeConstraints(*synonym), 2);
  EXPECT_EQ(getNrOfLocalTypeConstraints(*synonym), 1);
  EXPECT_TRUE(isLocalTypeConstraints(*synonym));
  forEachLocalTypeConstraint(*synonym, showPlain);
  EXPECT_EQ(seen, "single value<2> ");
}

TEST_F(Constraint, NoLocalOnesOnABareSynonym)
{
  int32_t record = synonym(type(TYP_INTEGER, single(1)));
  load();
  TestType synonym(module, record);
  EXPECT_EQ(getNrOfTypeConstraints(*synonym), 1);
  EXPECT_EQ(getNrOfLocalTypeConstraints(*synonym), 0);
  EXPECT_FALSE(isLocalTypeConstraints(*synonym));
  forEachLocalTypeConstraint(*synonym, showPlain);
  EXPECT_EQ(seen, "");
}

TEST_F(Constraint, AHiddenOneAloneIsNone)
{
  int32_t record = type(TYP_INTEGER, sub(SUB_HIDDEN));
  load();
  TestType hidden(module, record);
  EXPECT_FALSE(isConstraints(*hidden));
  EXPECT_FALSE(isLocalTypeConstraints(*hidden));
  EXPECT_EQ(getNrOfTypeConstraints(*hidden), 1);
  EXPECT_EQ(getNrOfLocalTypeConstraints(*hidden), 1);
  forEachTypeConstraint(*hidden, showPlain);
  forEachLocalTypeConstraint(*hidden, showPlain);
  EXPECT_EQ(seen, "");
}

// A hidden one of the own node counts if another one follows it.
TEST_F(Constraint, AHiddenLocalOneAheadOfAnother)
{
  int32_t base = type(TYP_INTEGER, sub(SUB_HIDDEN));
  int32_t record = synonym(base, single(2));
  load();
  TestType both(module, record);
  both->nrLocalConstraints = 2;
  EXPECT_TRUE(isLocalTypeConstraints(*both));
  forEachLocalTypeConstraint(*both, showPlain);
  EXPECT_EQ(seen, "single value<2> ");
}

TEST_F(Constraint, AHiddenOneIsPassedOverAmongOthers)
{
  int32_t base = type(TYP_INTEGER, single(1));
  EXPECT_EQ(shown(synonym(synonym(base, sub(SUB_HIDDEN)), single(3))),
            "single value<1> single value<3> ");
}

// --- operands ---------------------------------------------------------------

TEST_F(Constraint, OperandsOfEveryKind)
{
  struct Row {
    int32_t constraint;
    const char *expected;
  };
  for (const Row &row : {
           Row{set(SUB_UNION, {single(7), range(1, 2)}),
               "union<0:single value<7> 1:range<[1,2]> > "},
           Row{set(SUB_INTERSECTION, {single(7), single(8), single(9)}),
               "INTERSECTION<0:single value<7> 1:single value<8> "
               "2:single value<9> > "},
           Row{set(SUB_CATENATED, {single(7), single(8)}),
               "catenated<single value<7> single value<8> > "},
           Row{except(range(0, 9), single(5)),
               "EXCEPT<range<[0,9]> but single value<5>> "},
           Row{sub(SUB_ALL_EXCEPT, single(5)), "ALL EXPECT<single value<5>> "},
           Row{sub(SUB_ALPHABET, single(5)),
               "permitted alphabet<single value<5>> "},
           Row{sub(SUB_SIZE, range(1, 4)), "size<range<[1,4]>> "},
           Row{sub(SUB_TABLE, 1), "table<> "},
           Row{sub(SUB_EXTENDED_SET, 1), "extended ValueSet<> "},
       })
    EXPECT_EQ(shownSub(row.constraint), row.expected);
}

TEST_F(Constraint, CompoundsNest)
{
  int32_t inner = set(SUB_UNION, {single(1), single(2)});
  int32_t all = sub(SUB_ALL_EXCEPT, inner);
  EXPECT_EQ(
      shownSub(set(SUB_INTERSECTION, {all, except(single(3), single(4))})),
      "INTERSECTION<0:ALL EXPECT<union<0:single value<1> "
      "1:single value<2> >> 1:EXCEPT<single value<3> but "
      "single value<4>> > ");
}

TEST_F(Constraint, NoOperandsNoCalls)
{
  EXPECT_EQ(shownSub(sub(SUB_UNION)), "union<> ");
  EXPECT_EQ(shownSub(sub(SUB_CATENATED)), "catenated<> ");
}

// Operands are shown as they stand, hidden ones too.
TEST_F(Constraint, OperandsAreNotHidden)
{
  EXPECT_EQ(shownSub(set(SUB_UNION, {sub(SUB_HIDDEN), single(2)})),
            "union<0:<> 1:single value<2> > ");
}

// Each walker with a constraint of every kind.
static int callWalker(int walker, AsnType &type, AsnConstraint &c)
{
  switch (walker) {
  case SUB_UNION:
    return forUnionConstraint(type, c, showOperand);
  case SUB_INTERSECTION:
    return forIntersectionConstraint(type, c, showOperand);
  case SUB_CATENATED:
    return forEachCatenatedConstraint(type, c, showPlain);
  case SUB_EXCEPT:
    return forExceptConstraint(type, c, showExcept);
  case SUB_ALL_EXCEPT:
    return forAllExceptConstraint(type, c, show);
  case SUB_RANGE:
    return forValueRangeConstraint(type, c, showRange);
  case SUB_ALPHABET:
    return forPermittedAlphabetConstraint(type, c, show);
  case SUB_SIZE:
    return forSizeConstraint(type, c, show);
  case SUB_SINGLE_VALUE:
    return forSingleValueConstraint(type, c, showValue);
  case SUB_INCLUDES:
    return forContainedSubtypeConstraint(type, c, show) |
           forContSubtypeConstraint(type, c, showSubtype);
  case SUB_WITH_COMPONENT:
    return forWithComponentConstraint(
        type, c, [](AsnType &, AsnType &, AsnConstraint &) { seen += "e"; });
  default:
    return forWithComponentsConstraint(
        type, c,
        [](AsnType &, AsnType &, AsnConstraint &, int) { seen += "c"; });
  }
}

TEST_F(Constraint, OtherKindsAreHandedBack)
{
  load();
  TestType type(module, integer);
  AsnConstraint constraint;
  constraint.owner = type.type;
  constraint.module = module.rec;
  for (int walker : {1, 2, 3, 4, 5, 10, 11, 12, 13, 14, 15, 16})
    for (int kind = 1; kind <= 24; ++kind) {
      if (kind == walker)
        continue;
      constraint.rec.kind = static_cast<uint8_t>(kind);
      EXPECT_EQ(callWalker(walker, *type, constraint), kind)
          << walker << " " << kind;
    }
  EXPECT_EQ(seen, "");
}

static AsnConstraint *firstOperand;

TEST_F(Constraint, OperandsOfASetShareOneObject)
{
  int32_t record =
      type(TYP_INTEGER, set(SUB_CATENATED, {single(1), single(2)}));
  load();
  TestType type(module, record);
  firstOperand = nullptr;
  forEachTypeConstraint(*type, [](AsnType &owner, AsnConstraint *c) {
    forEachCatenatedConstraint(owner, *c, [](AsnType &, AsnConstraint *sub) {
      if (!firstOperand)
        firstOperand = sub;
      EXPECT_EQ(sub, firstOperand);
      seen += std::to_string(sub->rec.kind) + " ";
    });
  });
  EXPECT_EQ(seen, "13 13 ");
}

// The general form asks for no call-back.
TEST_F(Constraint, SetWithoutCallBacks)
{
  int32_t record = type(TYP_INTEGER, set(SUB_UNION, {single(1)}));
  load();
  TestType type(module, record);
  AsnConstraint *constraint = firstConstraint(*type);
  EXPECT_EQ(forSetConstraint(*type, *constraint, nullptr, nullptr, SUB_UNION),
            0);
  EXPECT_EQ(
      forSetConstraint(*type, *constraint, nullptr, nullptr, SUB_CATENATED),
      SUB_UNION);
  delConstraint(constraint);
}

TEST_F(Constraint, AnyRecordCanBeTheOperand)
{
  int32_t record = type(TYP_INTEGER, sub(SUB_SIZE, single(1)));
  int32_t elsewhere = single(6);
  load();
  TestType type(module, record);
  AsnConstraint *constraint = firstConstraint(*type);
  EXPECT_EQ(forConstraint(*type, *constraint, elsewhere, show, SUB_SIZE), 0);
  EXPECT_EQ(seen, "single value<6>");
  EXPECT_EQ(forConstraint(*type, *constraint, elsewhere, show, SUB_ALPHABET),
            SUB_SIZE);
  EXPECT_EQ(seen, "single value<6>");
  delConstraint(constraint);
}

// A walk over the same type within each call-back changes nothing.
TEST_F(Constraint, WalksOverOneTypeNest)
{
  int32_t base = type(TYP_INTEGER, set(SUB_UNION, {single(1), single(2)}));
  int32_t record = synonym(base, single(3));
  load();
  TestType type(module, record);
  forEachTypeConstraint(*type, [](AsnType &owner, AsnConstraint *c) {
    seen += "{";
    if (forUnionConstraint(owner, *c,
                           [](AsnType &again, AsnConstraint &sub, int) {
                             forEachTypeConstraint(again, showPlain);
                             seen += "; ";
                             show(again, &sub);
                             seen += "; ";
                           }) != 0)
      show(owner, c);
    seen += "}";
  });
  const std::string all = "union<0:single value<1> 1:single value<2> > "
                          "single value<3> ";
  EXPECT_EQ(seen, "{" + all + "; single value<1>; " + all +
                      "; single value<2>; }{single value<3>}");
}

// --- values -----------------------------------------------------------------

TEST_F(Constraint, RangeEndsAreOpenOrClosed)
{
  EXPECT_EQ(shownSub(range(1, 5, 0)), "range<(1,5)> ");
  EXPECT_EQ(shownSub(range(1, 5, 32)), "range<[1,5)> ");
  EXPECT_EQ(shownSub(range(1, 5, 64)), "range<(1,5]> ");
}

TEST_F(Constraint, MinAndMaxOfIntegers)
{
  EXPECT_EQ(shownSub(toMax(1)), "range<[1,9223372036854775807]> ");
  EXPECT_EQ(shownSub(fromMin(5)), "range<[-9223372036854775808,5]> ");
}

TEST_F(Constraint, MinIsZeroForOtherTypes)
{
  for (int mainType : {TYP_ENUM, TYP_IA5STR, TYP_SEQOF, TYP_OCTSTR}) {
    EXPECT_EQ(shownSub(fromMin(5), mainType), "range<[0,5]> ");
    EXPECT_EQ(shownSub(toMax(5), mainType), "range<[5,9223372036854775807]> ");
  }
}

static void showRealRange(AsnType &, AsnValue &lower, bool, AsnValue &upper,
                          bool)
{
  for (AsnValue *value : {&lower, &upper}) {
    RealVal real = payloadReal(value->base);
    seen += std::to_string(value->base.mainType) + ":" +
            std::to_string(getSpecialRealVal(real)) + " ";
    EXPECT_TRUE(isSpecialRealVal(real));
    EXPECT_EQ(value->governor, nullptr);
  }
}

TEST_F(Constraint, MinAndMaxOfReals)
{
  int32_t record = type(TYP_REAL, sub(SUB_RANGE));
  load();
  TestType real(module, record);
  forEachTypeConstraint(*real, [](AsnType &type, AsnConstraint *constraint) {
    forValueRangeConstraint(type, *constraint, showRealRange);
  });
  EXPECT_EQ(seen, "3:-1 3:-2 ");
}

TEST_F(Constraint, ValuesHaveAModuleOfTheirOwn)
{
  int32_t record = type(TYP_INTEGER, single(1));
  load();
  TestType type(module, record);
  forEachTypeConstraint(*type, [](AsnType &owner, AsnConstraint *constraint) {
    forSingleValueConstraint(owner, *constraint,
                             [](AsnType &walking, AsnValue &value) {
                               EXPECT_NE(value.mod, walking.mod);
                               EXPECT_EQ(value.mod, value.homeMod);
                               EXPECT_EQ(value.mod->rec, walking.mod->rec);
                               EXPECT_NE(value.governor, nullptr);
                               seen += decimal(value);
                             });
  });
  EXPECT_EQ(seen, "1");
}

// The record that says MIN or MAX tells the module, not the type.
TEST_F(Constraint, EndsWithoutAValueHaveAModuleOfTheirOwn)
{
  TNode far = stxNewTNode(TYP_INTEGER);
  far.firstConstraint = stxSub(other, stxNewSub(SUB_RANGE));
  int32_t record = define(stxNewSynonym(stxDefineType(other, "Far", far), 2));
  load();
  TestType type(module, record);
  forEachTypeConstraint(*type, [](AsnType &owner, AsnConstraint *constraint) {
    forValueRangeConstraint(
        owner, *constraint,
        [](AsnType &walking, AsnValue &lower, bool, AsnValue &upper, bool) {
          for (AsnValue *value : {&lower, &upper}) {
            EXPECT_EQ(value->mod, value->homeMod);
            EXPECT_NE(value->mod, walking.mod);
            seen += value->mod->rec->moduleName;
          }
          EXPECT_NE(lower.mod, upper.mod);
        });
  });
  EXPECT_EQ(seen, "NN");
}

TEST_F(Constraint, ValuesMayBeHiddenOrReferences)
{
  VNode hidden = stxNewInteger(integer, 12);
  hidden.hidden = 1;
  VNode reference = stxNewVNode(TYP_SYNONYM, integer);
  reference.refModule = 1;
  reference.firstChild = stxValue(tree, hidden);
  EXPECT_EQ(shownSub(sub(SUB_SINGLE_VALUE, stxValue(tree, reference))),
            "single value<12> ");
  EXPECT_EQ(shownSub(sub(SUB_SINGLE_VALUE, reference.firstChild)),
            "single value<12> ");
}

// A node of status 0 or 1 is no value by itself, nor is what comes behind it.
TEST_F(Constraint, ComponentsAreNoValues)
{
  int32_t behind = value(5);
  VNode item = stxNewInteger(integer, 4);
  item.valueStatus = 1;
  item.next = behind;
  int32_t refused = stxValue(tree, item);
  EXPECT_EQ(shownSub(sub(SUB_RANGE, refused, behind, 32 | 64)),
            "range<[-9223372036854775808,5]> ");
  int32_t record = type(TYP_INTEGER, sub(SUB_SINGLE_VALUE, refused));
  EXPECT_EXIT(shown(record), ExitedWithCode(2),
              "Unable to construct a value for a constraint\\.");
}

TEST_F(Constraint, ObjectsAreNoValues)
{
  int32_t object = stxValue(tree, stxNewVNode(TYP_CLASS, integer));
  int32_t record = type(TYP_INTEGER, sub(SUB_SINGLE_VALUE, object));
  EXPECT_EXIT(shown(record), ExitedWithCode(2),
              "Unable to construct a value for a constraint\\.");
}

TEST_F(Constraint, ASingleValueMustBeThere)
{
  int32_t record = type(TYP_INTEGER, sub(SUB_SINGLE_VALUE));
  EXPECT_EXIT(shown(record), ExitedWithCode(2),
              "Unable to construct a value for a constraint\\.");
}

TEST_F(Constraint, DeletingNoValueIsAllowed)
{
  delConstrValue(nullptr);
  SUCCEED();
}

// --- contained subtypes -----------------------------------------------------

TEST_F(Constraint, SubtypeGivesItsConstraintsInTurn)
{
  int32_t base = type(TYP_INTEGER, single(1));
  int32_t subtype = synonym(base, single(2));
  EXPECT_EQ(shownSub(includes(subtype)),
            "INCLUDES<single value<1> single value<2> > ");
}

TEST_F(Constraint, SubtypeWithoutConstraintsGivesNullOnce)
{
  EXPECT_EQ(shownSub(includes(integer)), "INCLUDES<null > ");
  EXPECT_EQ(shownSub(includes(type(TYP_INTEGER, sub(SUB_HIDDEN)))),
            "INCLUDES<null > ");
}

TEST_F(Constraint, HiddenOnesOfASubtypeArePassedOver)
{
  int32_t base = type(TYP_INTEGER, sub(SUB_HIDDEN));
  int32_t subtype = synonym(base, single(2));
  EXPECT_EQ(shownSub(includes(subtype)), "INCLUDES<single value<2> > ");
}

static AsnType *walkingType;

TEST_F(Constraint, SubtypeIsShownWithTheWalkingType)
{
  int32_t base = type(TYP_INTEGER, single(1));
  int32_t subtype = synonym(base, single(2));
  int32_t record = type(TYP_INTEGER, includes(subtype));
  load();
  TestType type(module, record);
  walkingType = type.type;
  forEachTypeConstraint(*type, [](AsnType &owner, AsnConstraint *constraint) {
    EXPECT_EQ(forContSubtypeConstraint(
                  owner, *constraint,
                  [](AsnType &walking, AsnType &contained, AsnConstraint *sub) {
                    EXPECT_EQ(&walking, walkingType);
                    EXPECT_EQ(contained.mod, walking.homeMod);
                    EXPECT_EQ(contained.homeMod, walking.homeMod);
                    EXPECT_EQ(sub->owner, &contained);
                    showSubtype(walking, contained, sub);
                  }),
              0);
  });
  std::string name = "T" + std::to_string(subtype);
  EXPECT_EQ(seen, name + "=single value<1> " + name + "=single value<2> ");
}

// Value and type are read where the constraint stands, whatever module the
// value names; the view is one of the walking type's module.
TEST_F(Constraint, SubtypeIsOfTheModuleOfTheConstraint)
{
  int32_t farInteger = stxDefineType(other, "Int", stxNewTNode(TYP_INTEGER));
  TNode limited = stxNewTNode(TYP_INTEGER);
  int32_t six = stxValue(other, stxNewInteger(farInteger, 6));
  limited.firstConstraint = stxSub(other, stxNewSub(SUB_SINGLE_VALUE, six));
  VNode carrier = stxNewVNode(TYP_SYNONYM, farInteger);
  carrier.firstChild = stxDefineType(other, "Limited", limited);
  carrier.refModule = 2;  // M as seen from N
  TNode far = stxNewTNode(TYP_INTEGER);
  far.firstConstraint =
      stxSub(other, stxNewSub(SUB_INCLUDES, stxValue(other, carrier)));
  stxImport(other, "M", "m", true);
  int32_t record = define(stxNewSynonym(stxDefineType(other, "Far", far), 2));
  EXPECT_EQ(shown(record), "INCLUDES<single value<6> > ");
}

// The subtype is the alternative that a selection leads to.
TEST_F(Constraint, SubtypeBySelection)
{
  int32_t choice = type(TYP_CHOICE);
  TNode alternative = stxNewTNode(TYP_INTEGER);
  alternative.firstConstraint = single(6);
  TNode selection = stxNewTNode(TYP_SELECTION);
  selection.ref = choice;
  selection.refModule = 1;
  selection.fieldRef =
      stxLink(tree, stxNewLink(stxAddComp(tree, choice, "a", alternative)));
  EXPECT_EQ(shownSub(includes(define(selection))),
            "INCLUDES<single value<6> > ");
}

// --- simple unions ----------------------------------------------------------

TEST_F(Constraint, SimpleUnions)
{
  struct Row {
    int32_t constraint;
    bool expected;
  };
  int32_t all = sub(SUB_ALL_EXCEPT, single(1));
  const Row rows[] = {
      {single(1), false},
      {set(SUB_CATENATED, {single(1)}), false},
      {sub(SUB_UNION), true},
      {set(SUB_UNION, {single(1), range(2, 3)}), true},
      {set(SUB_UNION,
           {set(SUB_UNION, {single(1)}), set(SUB_INTERSECTION, {range(2, 3)}),
            set(SUB_CATENATED, {single(4)}), single(5)}),
       true},
      {set(SUB_UNION, {single(1), sub(SUB_SIZE, single(1))}), false},
      {set(SUB_UNION, {all, single(1)}), false},
      {set(SUB_UNION, {set(SUB_INTERSECTION,
                           {single(1), sub(SUB_ALL_EXCEPT, single(2))})}),
       false},
  };
  std::vector<int32_t> records;
  for (const Row &row : rows)
    records.push_back(type(TYP_INTEGER, row.constraint));
  load();
  for (size_t i = 0; i < records.size(); ++i) {
    TestType type(module, records[i]);
    AsnConstraint *constraint = firstConstraint(*type);
    EXPECT_EQ(isSimpleUnionConstraint(*constraint), rows[i].expected) << i;
    // The buffer is as it was: the answer stays.
    EXPECT_EQ(isSimpleUnionConstraint(*constraint), rows[i].expected) << i;
    delConstraint(constraint);
  }
}

// What counts is the record that was read last.
TEST_F(Constraint, SimpleUnionAsksTheCurrentRecord)
{
  int32_t simple = set(SUB_UNION, {single(1)});
  int32_t record = type(TYP_INTEGER, single(1));
  load();
  TestType type(module, record);
  AsnConstraint *constraint = firstConstraint(*type);
  readRec(module.rec, REC_SUB, simple);
  EXPECT_TRUE(isSimpleUnionConstraint(*constraint));
  delConstraint(constraint);
}

// --- failures ---------------------------------------------------------------

TEST_F(Constraint, NullCallBacks)
{
  load();
  TestType type(module, integer);
  AsnType &t = *type;
  AsnConstraint c;
  auto dies = [](auto call) {
    EXPECT_EXIT(call(), ExitedWithCode(2), "Call-back function not defined");
  };
  dies([&] { forEachTypeConstraint(t, nullptr); });
  dies([&] { forEachLocalTypeConstraint(t, nullptr); });
  dies([&] { forConstraint(t, c, 1, nullptr, SUB_SIZE); });
  dies([&] { forSizeConstraint(t, c, nullptr); });
  dies([&] { forPermittedAlphabetConstraint(t, c, nullptr); });
  dies([&] { forAllExceptConstraint(t, c, nullptr); });
  dies([&] { forUnionConstraint(t, c, nullptr); });
  dies([&] { forIntersectionConstraint(t, c, nullptr); });
  dies([&] { forEachCatenatedConstraint(t, c, nullptr); });
  dies([&] { forExceptConstraint(t, c, nullptr); });
  dies([&] { forSingleValueConstraint(t, c, nullptr); });
  dies([&] { forValueRangeConstraint(t, c, nullptr); });
  dies([&] { forContainedSubtypeConstraint(t, c, nullptr); });
  dies([&] { forContSubtypeConstraint(t, c, nullptr); });
  dies([&] { forWithComponentConstraint(t, c, nullptr); });
  dies([&] { forWithComponentsConstraint(t, c, nullptr); });
}

TEST_F(Constraint, WildOperands)
{
  for (int kind : {1, 2, 3, 4, 5, 11, 12, 14})
    for (int32_t operand : {99, -1, INT32_MIN}) {
      int32_t record = type(TYP_INTEGER, sub(kind, operand));
      EXPECT_EXIT(shown(record), ExitedWithCode(2), noSuchRecord) << kind;
    }
  value(1);
  for (int32_t operand : {99, -1}) {
    int32_t record = type(TYP_INTEGER, sub(SUB_SINGLE_VALUE, operand));
    EXPECT_EXIT(shown(record), ExitedWithCode(2), noSuchRecord);
    record = type(TYP_INTEGER, sub(SUB_RANGE, 0, operand));
    EXPECT_EXIT(shown(record), ExitedWithCode(2), noSuchRecord);
  }
}

// A compound that needs an operand has none: there is no record 0.
TEST_F(Constraint, MissingOperands)
{
  for (int32_t constraint :
       {sub(SUB_EXCEPT), sub(SUB_EXCEPT, single(1)), sub(SUB_ALL_EXCEPT),
        sub(SUB_SIZE), sub(SUB_ALPHABET), sub(SUB_INCLUDES), includes(0)}) {
    int32_t record = type(TYP_INTEGER, constraint);
    EXPECT_EXIT(shown(record), ExitedWithCode(2), noSuchRecord);
  }
}

TEST_F(Constraint, CyclicOperandChains)
{
  for (int kind : {SUB_UNION, SUB_INTERSECTION, SUB_CATENATED}) {
    int32_t first = single(1);
    int32_t second = single(2);
    int32_t record = type(TYP_INTEGER, set(kind, {first, second}));
    stxSubAt(tree, second).nextSub = first;
    EXPECT_EXIT(shown(record), ExitedWithCode(2), damagedM);
  }
}

TEST_F(Constraint, ConstraintsWithinThemselves)
{
  for (int kind : {1, 2, 3, 4, 5, 11, 12}) {
    int32_t self = sub(kind);
    stxSubAt(tree, self).operand1 = self;
    // The second operand of EXCEPT.
    stxSubAt(tree, self).nextSub = kind == SUB_EXCEPT ? single(1) : 0;
    int32_t record = type(TYP_INTEGER, self);
    EXPECT_EXIT(shown(record), ExitedWithCode(2), damagedM) << kind;
  }
}

TEST_F(Constraint, SubtypesWithinThemselves)
{
  int32_t record = type(TYP_INTEGER);
  int32_t constraint = includes(record);
  stxTypeAt(tree, record).firstConstraint = constraint;
  EXPECT_EXIT(shown(record), ExitedWithCode(2), damagedM);
}

TEST_F(Constraint, SimpleUnionOfItself)
{
  int32_t self = sub(SUB_UNION);
  stxSubAt(tree, self).operand1 = self;
  load();
  readRec(module.rec, REC_SUB, self);
  EXPECT_EXIT(isSimpleUnionConstraint(AsnConstraint{}), ExitedWithCode(2),
              damagedM);
}

// Each of the records holds all that follow it: a way for every selection.
TEST_F(Constraint, TooManyWays)
{
  int32_t first = sub(SUB_CATENATED);
  int32_t last = first;
  for (int i = 0; i < 40; ++i) {
    int32_t next = sub(SUB_CATENATED);
    stxSubAt(tree, last).operand1 = next;
    stxSubAt(tree, last).nextSub = next;
    last = next;
  }
  stxSubAt(tree, first).nextSub = 0;
  int32_t record = type(TYP_INTEGER, first);
  load();
  TestType type(module, record);
  struct Walk {
    static void step(AsnType &owner, AsnConstraint *constraint)
    {
      forEachCatenatedConstraint(owner, *constraint, step);
    }
  };
  EXPECT_EXIT(forEachTypeConstraint(*type, Walk::step), ExitedWithCode(2),
              damagedM);
}
