// What may be asked of a type: fields, texts and kinds.

#include "model/typequery.h"
#include "options/fixrec.h"
#include "support/typetrees.h"

// A view made by hand, for what depends on a few fields alone.
static AsnType typeOf(int mainType)
{
  AsnType type;
  type.base.mainType = static_cast<uint8_t>(mainType);
  return type;
}

static AsnType typeWithStatus(int status, int mainType = TYP_NULL)
{
  AsnType type = typeOf(mainType);
  type.compStatus = status;
  return type;
}

// A name that is printed as "pId".
static FixRec named(const char *id)
{
  FixRec fix;
  copyFixRec(fix, FixRec{}, id, 32);
  fix.pref = "p";
  return fix;
}

typedef std::string &Getter(std::string &, const char *, const AsnType &,
                            const char *);

// The text, once between others and once alone.
static std::string textOf(Getter *getter, const AsnType &type)
{
  std::string framed = "old";
  std::string plain = "old";
  getter(framed, "<", type, ">");
  EXPECT_EQ(&getter(plain, nullptr, type, nullptr), &plain);
  EXPECT_EQ(framed, "<" + plain + ">");
  return plain;
}

// The main types that a test says yes to.
static std::string mainTypesThat(bool (*test)(const AsnType &))
{
  std::string types;
  for (int i = 0; i <= 43; ++i)
    if (test(typeOf(i)))
      types += std::to_string(i) + " ";
  return types;
}

// The statuses that a test says yes to.
static std::string statusesThat(bool (*test)(const AsnType &))
{
  std::string statuses;
  for (int i = -6; i <= 8; ++i)
    if (test(typeWithStatus(i)))
      statuses += std::to_string(i) + " ";
  return statuses;
}

// --- fields -----------------------------------------------------------------

TEST(TypeQuery, Fields)
{
  AsnModule module;
  AsnType father;
  AsnType type = typeWithStatus(TCS_OPTIONAL, TYP_REAL);
  type.homeMod = &module;
  type.father = &father;
  type.base.compStatus = TCS_HEADER;
  type.base.nrComps = 12;
  type.compNbr = 3;
  type.base.valueField = VF_REAL64;
  type.base.valueFieldSize = VF_UI16;
  type.typeOptions.skipKind = 1;
  EXPECT_EQ(getModuleOfType(type), &module);
  EXPECT_EQ(getFatherOfTypeComp(type), &father);
  EXPECT_EQ(getTypeMainType(type), TYP_REAL);
  EXPECT_EQ(getTypeCompStatus(type), TCS_OPTIONAL);
  EXPECT_EQ(getBaseTypeCompStatus(type), TCS_HEADER);
  EXPECT_EQ(getNrOfTypeComps(type), 12);
  EXPECT_EQ(getTypeCompNbr(type), 3);
  EXPECT_EQ(getVF(type), VF_REAL64);
  EXPECT_EQ(getVFSize(type), VF_UI16);
  EXPECT_EQ(&getTypeOptions(type), &type.typeOptions);
}

// --- texts ------------------------------------------------------------------

TEST(TypeQueryTexts, Tables)
{
  AsnType type = typeOf(TYP_BITSTR);
  type.base.valueField = VF_STAS0;
  type.compStatus = TCS_CHOICE;
  EXPECT_EQ(textOf(getValueField, type), "VF_STAS0");
  EXPECT_EQ(textOf(getTypeMainTypeStri, type), "TYP_BITSTR");
  EXPECT_EQ(textOf(getTypeMainTypeRef, type), "BIT STRING");
  EXPECT_EQ(textOf(getTypeCompStatusStri, type), "TCS_CHOICE");
}

TEST(TypeQueryTexts, BeyondTheTables)
{
  AsnType type = typeOf(TYP_NONE);
  EXPECT_EQ(textOf(getTypeMainTypeStri, type), "TYP_NONE");
  for (int wild : {42, 255})
    EXPECT_EQ(textOf(getTypeMainTypeStri, typeOf(wild)), "");
  EXPECT_EQ(textOf(getTypeMainTypeRef, typeOf(TYP_INSTANCE_OF)),
            "InstanceOfType");
  // The table has a name for it, but it lies beyond the built-in types.
  EXPECT_EQ(textOf(getTypeMainTypeRef, typeOf(TYP_OPEN)), "");
  EXPECT_EQ(textOf(getTypeMainTypeRef, typeOf(255)), "");
  for (int status : {-5, 7, 8}) {
    EXPECT_EQ(textOf(getTypeCompStatusStri, typeWithStatus(status)), "");
  }
  type.base.valueField = 36;
  EXPECT_EQ(textOf(getValueField, type), "");
}

TEST(TypeQueryTexts, NamesOfNodes)
{
  AsnType type = typeWithStatus(TCS_HEADER, TYP_SEQ);
  type.base.nrComps = 1;
  type.compFix = named("Own");
  type.baseFix = named("Base");
  type.base.compStatus = TCS_HEADER;
  EXPECT_EQ(textOf(getTypeRef, type), "Own");
  EXPECT_EQ(textOf(getBaseTypeRef, type), "Base");
  EXPECT_EQ(textOf(getDefTypeId, type), "pOwn");
  EXPECT_EQ(textOf(getDefBaseTypeId, type), "pBase");
  EXPECT_EQ(textOf(getBaseTypeId, type), "pBase");
  EXPECT_EQ(textOf(getTypeCompId, type), "?!?");
  EXPECT_EQ(textOf(getTypeCompRef, type), "?!?");
  type.compStatus = TCS_COMPOF;
  EXPECT_EQ(textOf(getDefTypeId, type), "pBase");
  type.base.compStatus = TCS_MANDATORY;
  EXPECT_EQ(textOf(getDefTypeId, type), "?!?");
  EXPECT_EQ(textOf(getDefBaseTypeId, type), "?!?NOT-A-DEFINED-TYPE");
  for (int status : {TCS_MANDATORY, TCS_OPTIONAL, TCS_CHOICE}) {
    type.compStatus = status;
    EXPECT_EQ(textOf(getTypeCompId, type), "pOwn");
    EXPECT_EQ(textOf(getTypeCompRef, type), "Own");
  }
}

TEST(TypeQueryTexts, NoName)
{
  AsnType type = typeWithStatus(TCS_MANDATORY, TYP_SEQ);
  type.base.nrComps = 1;
  EXPECT_EQ(textOf(getTypeRef, type), "");
  EXPECT_EQ(textOf(getBaseTypeRef, type), "");
  EXPECT_EQ(textOf(getTypeCompId, type), "");
  EXPECT_EQ(textOf(getTypeCompRef, type), "");
  EXPECT_EQ(textOf(getBaseTypeId, type), "?!?");
}

TEST(TypeQueryTexts, BaseOfALeaf)
{
  AsnType type = typeOf(TYP_OCTSTR);
  type.baseFix = named("Base");
  EXPECT_EQ(textOf(getBaseTypeRef, type), "OCTET STRING");
  EXPECT_EQ(textOf(getBaseTypeRef, typeOf(TYP_OPEN)), "Open type");
  EXPECT_EQ(textOf(getBaseTypeRef, typeOf(TYP_EXTENSION_MARKER)), "");
}

TEST(TypeQueryTexts, BaseIdentifiers)
{
  for (int i = 0; i <= 43; ++i) {
    AsnType type = typeOf(i);
    type.baseFix = named("Base");
    type.base.valueField = VF_I32;
    bool hasName = i == TYP_ENUM || (i >= TYP_SEQ && i <= TYP_CHOICE);
    EXPECT_EQ(textOf(getBaseTypeId, type), hasName ? "pBase" : "sint32") << i;
  }
  AsnType type = typeOf(TYP_INTEGER);
  // No C type in the table, and none beyond it.
  for (int none : {+VF_UI64, 36, 255}) {
    type.base.valueField = static_cast<uint8_t>(none);
    bool isThere = none < VF_COUNT && defaultCTypeArr[none];
    EXPECT_EQ(textOf(getBaseTypeId, type),
              isThere ? defaultCTypeArr[none] : "?!?");
  }
}

struct TypeQueryTree : TypeTrees {};

TEST_F(TypeQueryTree, NameUnderAnotherRecord)
{
  int32_t record = define("My-Type", TYP_NULL);
  start();
  TestType type(module, record);
  module.rec->options.fixRecs[FIX_VALUE - 1] = FixRec{};
  FixRec &head = fixRecForKind(module.rec->options, FIX_VALUE);
  head.pref = "v_";
  head.suff = "_x";
  std::string text;
  EXPECT_EQ(getTypeIdConvKindRaw(text, "<", *type, ">", FIX_VALUE),
            "<v_My_Type_x>");
  EXPECT_EQ(getTypeIdConvKindRaw(text, nullptr, *type, nullptr, FIX_TYPE),
            "My_Type");
  FixRec fix;
  fix.pref = "q";
  EXPECT_EQ(getTypeIdConvFix(text, "<", *type, ">", fix), "<qMy_Type>");
  // The given record is copied.
  EXPECT_EQ(fix.id, nullptr);
}

TEST_F(TypeQueryTree, MainTypeOfAnElement)
{
  int32_t synonym = define("Syn", stxNewSynonym(integer));
  int32_t list = define("L", TYP_SEQOF);
  comp(list, "", stxNewSynonym(synonym));
  int32_t another = define("K", TYP_SETOF);
  comp(another, "", TYP_REAL);
  start();
  TestType type(module, list);
  TestType leaf(module, integer);
  readRec(module.rec, REC_TNODE, list);
  EXPECT_EQ(getTypeElemMainType(*type), TYP_INTEGER);
  EXPECT_EQ(recJustRead[REC_TNODE].index, list);
  EXPECT_EQ(getTypeElemMainType(*leaf), TYP_NONE);
  // By the current node, whichever list that is.
  readRec(module.rec, REC_TNODE, another);
  EXPECT_EQ(getTypeElemMainType(*type), TYP_REAL);
}

TEST_F(TypeQueryTree, MainTypeOfAnElementElsewhere)
{
  int32_t list = stxDefineType(other, "L", stxNewTNode(TYP_SEQOF));
  stxAddComp(other, list, "", stxNewTNode(TYP_OBJID));
  int32_t synonym = define("Syn", stxNewSynonym(list, 2));
  start();
  TestType type(module, synonym);
  for (int32_t number : {0, 1}) {
    type->base.refModule = number;
    readRec(otherModule.rec, REC_TNODE, list);
    EXPECT_EQ(getTypeElemMainType(*type), TYP_OBJID);
  }
}

// --- kinds ------------------------------------------------------------------

TEST(TypeQueryKinds, ByStatus)
{
  EXPECT_EQ(statusesThat(isDefinedType), "5 ");
  EXPECT_EQ(statusesThat(isComponentType), "0 1 3 ");
  EXPECT_EQ(statusesThat(isCompOrElemType), "0 1 3 4 ");
  EXPECT_EQ(statusesThat(isElemType), "4 ");
  EXPECT_EQ(statusesThat(isMandatoryTypeComp), "0 ");
  EXPECT_EQ(statusesThat(isOptionalTypeComp), "1 ");
  AsnType type = typeWithStatus(TCS_MANDATORY);
  EXPECT_FALSE(isDefinedBaseType(type));
  type.base.compStatus = TCS_HEADER;
  EXPECT_TRUE(isDefinedBaseType(type));
  EXPECT_FALSE(isDefinedType(type));
}

TEST(TypeQueryKinds, ByMainType)
{
  EXPECT_EQ(mainTypesThat(isStructuredType), "7 9 11 ");
  EXPECT_EQ(mainTypesThat(isListType), "8 10 ");
  EXPECT_EQ(mainTypesThat(isSelectionType), "34 ");
  EXPECT_EQ(mainTypesThat(isTypeExtensionmarker), "33 ");
  EXPECT_EQ(mainTypesThat(isRestrCharStringType),
            "15 16 17 18 19 20 21 22 23 24 30 ");
  std::string tagless;
  for (int i = 0; i <= 43; ++i)
    if (!isTypeWithPredefinedTag(typeOf(i)))
      tagless += std::to_string(i) + " ";
  EXPECT_EQ(tagless, "11 12 36 ");
}

TEST(TypeQueryKinds, Synonym)
{
  AsnType type = typeWithStatus(TCS_HEADER);
  EXPECT_FALSE(isSynonymType(type));
  type.firstMainType = TYP_SYNONYM;
  EXPECT_TRUE(isSynonymType(type));
  type.compStatus = TCS_MANDATORY;
  EXPECT_FALSE(isSynonymType(type));
}

TEST(TypeQueryKinds, AnyDefinedBy)
{
  AsnType type = typeOf(TYP_ANY);
  EXPECT_FALSE(isAnyDefinedByType(type));
  type.base.fieldRef = 1;
  EXPECT_TRUE(isAnyDefinedByType(type));
  type.base.mainType = TYP_OPEN;
  EXPECT_FALSE(isAnyDefinedByType(type));
}

TEST(TypeQueryKinds, Leaves)
{
  struct Case {
    int mainType;
    int32_t nrComps;
    bool extensible;
    bool skipped;
    bool leaf;
    bool cvLeaf;
  };
  const Case cases[] = {
      {TYP_INTEGER, 0, false, false, true, true},
      {TYP_SEQ, 0, false, false, true, true},
      {TYP_SEQ, 0, true, false, false, false},
      {TYP_SET, 0, true, false, false, false},
      {TYP_CHOICE, 0, true, false, false, false},
      {TYP_ENUM, 0, true, false, true, true},
      {TYP_OCTSTR, 0, true, false, true, true},
      {TYP_SEQ, 2, false, false, false, false},
      {TYP_SEQ, 2, true, true, true, true},
      {TYP_EXTADDGRP, 0, false, false, false, false},
      {TYP_EXTADDGRP, 0, false, true, true, true},
      {TYP_SEQOF, 1, false, false, false, true},
      {TYP_SETOF, 1, false, false, false, true},
      {TYP_SEQOF, 0, false, false, true, true},
  };
  for (const Case &c : cases) {
    AsnType type = typeOf(c.mainType);
    type.base.nrComps = c.nrComps;
    type.base.nodeFlags = c.extensible ? NF_EXTENSIBLE : 0;
    type.base.nodeOptions = c.skipped ? 1u << optSkip : 0;
    EXPECT_EQ(isLeafType(type), c.leaf) << c.mainType << " " << c.nrComps;
    EXPECT_EQ(isCVLeafType(type), c.cvLeaf) << c.mainType << " " << c.nrComps;
  }
}

TEST(TypeQueryKinds, Flags)
{
  struct Case {
    bool (*test)(const AsnType &);
    uint16_t ofBase;
    uint16_t ofNode;
  };
  const Case cases[] = {
      {isMandatoryTypeComps, 0x0040, 0},
      {isOptionalTypeComps, 0x0001, 0},
      {isUntaggedChoiceOrOpenTypeComps, 0x0008, 0},
      {isRecursiveBaseType, 0x0020, 0},
      {isRecursiveType, 0, 0x0020},
      {isInstantiatedType, 0, 0x0200},
      {isTopLevelInstantiatedType, 0, 0x0400},
  };
  for (const Case &c : cases) {
    AsnType type = typeOf(TYP_SEQ);
    EXPECT_FALSE(c.test(type));
    type.base.nodeFlags = c.ofBase;
    type.nodeFlags = c.ofNode;
    EXPECT_TRUE(c.test(type));
    type.base.nodeFlags = static_cast<uint16_t>(~c.ofBase);
    type.nodeFlags = static_cast<uint16_t>(~c.ofNode);
    EXPECT_FALSE(c.test(type));
  }
}

TEST(TypeQueryKinds, Options)
{
  AsnType type;
  type.base.nodeOptions = 1u << optSkip | 1u << 31;
  for (int i = 0; i < 32; ++i)
    EXPECT_EQ(testTypeOption(type, i), i == optSkip || i == 31);
}

TEST(TypeQueryKinds, TheSameType)
{
  ModRec m, n;
  for (int i = 0; i <= 41; ++i) {
    AsnType a = typeOf(i);
    a.baseModRec = &m;
    a.baseRecNr = 4;
    AsnType b = a;
    EXPECT_TRUE(isTheSameType(a, b));
    bool byPath = i == TYP_ENUM || (i >= TYP_SEQ && i <= TYP_CHOICE);
    b.baseRecNr = 5;
    EXPECT_EQ(isTheSameType(a, b), !byPath) << i;
    b.baseRecNr = 4;
    b.baseModRec = &n;
    EXPECT_EQ(isTheSameType(a, b), !byPath) << i;
    b.baseModRec = &m;
    b.base.mainType = static_cast<uint8_t>(i + 1);
    EXPECT_FALSE(isTheSameType(a, b));
  }
}

TEST(TypeQueryKinds, NamedNumbersAndDefault)
{
  for (int i = 0; i <= 41; ++i) {
    AsnType type = typeOf(i);
    EXPECT_FALSE(isNamedNumbers(type));
    type.base.namedNumbers = 1;
    EXPECT_EQ(isNamedNumbers(type),
              i == TYP_INTEGER || i == TYP_ENUM || i == TYP_BITSTR);
  }
  AsnType type;
  EXPECT_FALSE(isDefaultValue(type));
  type.defaultValue = 3;
  EXPECT_TRUE(isDefaultValue(type));
}

TEST(TypeQueryKinds, ExtensibleEnumeration)
{
  AsnType type = typeOf(TYP_ENUM);
  EXPECT_FALSE(isExtensibleEnumeratedList(type));
  type.base.nodeFlags = NF_EXTENSIBLE;
  EXPECT_TRUE(isExtensibleEnumeratedList(type));
  EXPECT_FALSE(isTypeExtensionmarkerComp(type));
  type.base.mainType = TYP_SEQ;
  EXPECT_FALSE(isExtensibleEnumeratedList(type));
  EXPECT_TRUE(isTypeExtensionmarkerComp(type));
  type.base.nodeFlags = 0;
  EXPECT_FALSE(isTypeExtensionmarkerComp(type));
}

TEST(TypeQueryKinds, OptionalNeighbours)
{
  AsnType father = typeOf(TYP_SEQ);
  AsnType comp = typeWithStatus(TCS_MANDATORY);
  EXPECT_FALSE(prevTypeCompIsOptional(comp));
  comp.father = &father;
  EXPECT_FALSE(prevTypeCompIsOptional(comp));
  father.prevCompOptional = true;
  for (int status = -5; status <= 6; ++status) {
    comp.compStatus = status;
    EXPECT_EQ(prevTypeCompIsOptional(comp), status == 0 || status == 1);
  }
  EXPECT_TRUE(lastTypeCompIsOptional(father));
  father.base.mainType = TYP_SET;
  EXPECT_TRUE(lastTypeCompIsOptional(father));
  father.base.mainType = TYP_CHOICE;
  EXPECT_FALSE(lastTypeCompIsOptional(father));
  father.base.mainType = TYP_SEQ;
  father.prevCompOptional = false;
  EXPECT_FALSE(lastTypeCompIsOptional(father));
}
