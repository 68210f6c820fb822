// Types by a field of a class, and the governors of field values.

#include "model/asntype.h"
#include "support/typetrees.h"

using testing::ExitedWithCode;

constexpr char noClass[] =
    "Trying to obtain class of an ObjectClassFieldType\\.";

struct ClassField : TypeTrees {
  int32_t cls, synonym, setOfObjects;
  ClassField()
  {
    cls = define("CLS", TYP_CLASS);
    synonym = define("CLS-2", stxNewSynonym(cls));
    TNode set = stxNewSynonym(cls);
    set.classFlags = CF_SET;
    setOfObjects = define("Objects", set);
  }
  // CLS.&field as a definition, a component, ...
  TNode fieldOf(int32_t of, int status)
  {
    TNode node = stxNewTNode(TYP_FIELDLIST);
    node.ref = of;
    node.refModule = 1;
    node.compStatus = status;
    node.identifier = stxStri(tree, "field");
    return node;
  }
  bool isField(int32_t record)
  {
    readRec(module.rec, REC_TNODE, record);
    bool result = isObjClassFieldTypeTNode();
    EXPECT_EQ(recJustRead[REC_TNODE].index, record);
    return result;
  }
  bool isField(const TNode &node)
  {
    int32_t record = stxType(tree, node);
    start();
    return isField(record);
  }
};

TEST_F(ClassField, ByTheStatus)
{
  for (int sign : {1, -1}) {
    EXPECT_TRUE(isField(fieldOf(cls, sign * TCS_CHOICE)));
    EXPECT_TRUE(isField(fieldOf(cls, sign * TCS_MULTIPLE)));
    EXPECT_TRUE(isField(fieldOf(cls, sign * TCS_HEADER)));
    EXPECT_FALSE(isField(fieldOf(cls, sign * TCS_COMPOF)));
    EXPECT_FALSE(isField(fieldOf(cls, sign * TCS_FORMAL)));
    EXPECT_FALSE(isField(fieldOf(cls, sign * 7)));
  }
  EXPECT_FALSE(isField(fieldOf(cls, INT32_MIN)));
}

TEST_F(ClassField, DefinitionNeedsAName)
{
  for (int32_t identifier : {0, -1}) {
    TNode node = fieldOf(cls, TCS_HEADER);
    node.identifier = identifier;
    EXPECT_FALSE(isField(node));
  }
}

TEST_F(ClassField, FieldsOfClasses)
{
  for (int status : {TCS_MANDATORY, TCS_OPTIONAL}) {
    TNode node = fieldOf(cls, status);
    EXPECT_FALSE(isField(node));
    // A value field, and a value set field.
    node.identifier = -node.identifier;
    EXPECT_TRUE(isField(node));
    TNode set = fieldOf(cls, status);
    set.classFlags = CF_SET;
    EXPECT_TRUE(isField(set));
    node.classFlags = CF_VARIABLE_TYPE;
    EXPECT_FALSE(isField(node));
    set.classFlags |= CF_VARIABLE_TYPE;
    EXPECT_FALSE(isField(set));
    node = fieldOf(cls, status);
    node.identifier = -node.identifier;
    node.refModule = -1;
    EXPECT_FALSE(isField(node));
  }
}

TEST_F(ClassField, OnlyOfClasses)
{
  EXPECT_TRUE(isField(fieldOf(synonym, TCS_CHOICE)));
  EXPECT_FALSE(isField(fieldOf(integer, TCS_CHOICE)));
  // The way ends at an object set.
  EXPECT_FALSE(isField(fieldOf(setOfObjects, TCS_CHOICE)));
  start();
  EXPECT_FALSE(isField(integer));
  EXPECT_FALSE(isField(cls));
}

TEST_F(ClassField, BehindSynonyms)
{
  int32_t field = stxType(tree, fieldOf(cls, TCS_CHOICE));
  int32_t reference = define("Ref", stxNewSynonym(field));
  start();
  EXPECT_TRUE(isField(reference));
}

TEST_F(ClassField, ClassOfAField)
{
  int32_t direct = stxType(tree, fieldOf(cls, TCS_CHOICE));
  int32_t bySynonym = stxType(tree, fieldOf(synonym, TCS_CHOICE));
  start();
  for (int32_t record : {direct, bySynonym}) {
    readRec(module.rec, REC_TNODE, record);
    getClassOfObjClassFieldTypeTNode();
    EXPECT_EQ(recJustRead[REC_TNODE].index, cls);
  }
  readRec(module.rec, REC_TNODE, integer);
  EXPECT_EXIT(getClassOfObjClassFieldTypeTNode(), ExitedWithCode(2), noClass);
}

TEST_F(ClassField, CyclicClasses)
{
  int32_t loop = define("LOOP", stxNewSynonym(5));
  ASSERT_EQ(loop, 5);
  int32_t field = stxType(tree, fieldOf(loop, TCS_CHOICE));
  start();
  readRec(module.rec, REC_TNODE, field);
  EXPECT_EXIT(isObjClassFieldTypeTNode(), ExitedWithCode(2), damagedM);
}

// --- governors --------------------------------------------------------------

// CLS ::= CLASS { &Type, &value &Type, &plain INTEGER } and an object of it.
struct GovernorOfField : ClassField {
  int32_t typeField, valueField, plainField, object, firstValue;
  int32_t real;
  GovernorOfField()
  {
    real = define("Real", TYP_REAL);
    typeField = stxAddComp(tree, cls, "Type", stxNewTNode(TYP_OPEN));
    TNode node = stxNewSynonym(typeField);
    node.classFlags = CF_VARIABLE_TYPE;
    valueField = stxAddComp(tree, cls, "value", node);
    plainField = stxAddComp(tree, cls, "plain", stxNewSynonym(integer));
    object = stxDefineValue(tree, "obj", stxNewVNode(TYP_CLASS, cls));
    VNode setting = stxNewVNode(TYP_SYNONYM, typeField);
    setting.firstChild = real;
    firstValue = stxAddChild(tree, object, "Type", setting);
  }
  int32_t fieldValue(int32_t field, const char *name)
  {
    return stxAddChild(tree, object, name, stxNewInteger(field, 1));
  }
  // The record that becomes current, 0 for none.
  int32_t governor(int32_t value, int32_t first)
  {
    start();
    readRec(module.rec, REC_VNODE, value);
    bool found = readGovTNodeForFieldVNode(module.rec, first);
    EXPECT_EQ(recJustRead[REC_VNODE].index, value);
    return found ? recJustRead[REC_TNODE].index : 0;
  }
};

TEST_F(GovernorOfField, FixedType)
{
  EXPECT_EQ(governor(fieldValue(plainField, "plain"), firstValue), integer);
}

TEST_F(GovernorOfField, TypeThatTheObjectGives)
{
  EXPECT_EQ(governor(fieldValue(valueField, "value"), firstValue), real);
}

TEST_F(GovernorOfField, DefaultOfTheTypeField)
{
  int32_t value = fieldValue(valueField, "value");
  stxValueAt(tree, firstValue).identifier = stxStri(tree, "Other");
  EXPECT_EQ(governor(value, firstValue), 0);
  VNode fallback = stxNewVNode(TYP_SYNONYM, typeField);
  fallback.firstChild = define("ToInt", stxNewSynonym(integer));
  at(typeField).defaultValue = stxValue(tree, fallback);
  // To the end of its chain.
  EXPECT_EQ(governor(value, firstValue), integer);
}

TEST_F(GovernorOfField, WildIndexes)
{
  int32_t value = fieldValue(plainField, "plain");
  stxValueAt(tree, value).governor = 999;
  start();
  readRec(module.rec, REC_VNODE, value);
  EXPECT_EXIT(readGovTNodeForFieldVNode(module.rec, firstValue),
              ExitedWithCode(2), noSuchRecord);
}
