// C names of types.

#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "support/typetrees.h"

typedef std::string &Builder(std::string &, const char *, const AsnType &,
                             const char *);

struct CNames : TypeTrees {
  static std::string named(Builder *build, const AsnType &type)
  {
    std::string text = "old";
    EXPECT_EQ(&build(text, "<", type, ">"), &text);
    std::string plain = "old";
    build(plain, nullptr, type, nullptr);
    EXPECT_EQ(text, "<" + plain + ">");
    return plain;
  }
  std::string ofType(Builder *build, int32_t record)
  {
    TestType type(module, record);
    return named(build, *type);
  }
  // The names of all components and elements below a type, outer ones first.
  std::string below(Builder *build, int32_t record)
  {
    TestType type(module, record);
    names.clear();
    builder = build;
    forEachTypeCompOrElem(*type, note);
    return names;
  }
  static void note(AsnType &, AsnType &comp_, int)
  {
    names += named(builder, comp_) + " ";
    forEachTypeCompOrElem(comp_, note);
  }
  int32_t structure(int32_t father, const char *name, int mainType = TYP_SEQ)
  {
    TNode node = stxNewTNode(mainType, VF_STRU);
    return comp(father, name, node);
  }
  static inline std::string names;
  static inline Builder *builder;
};

// --- the name of a type -----------------------------------------------------

TEST_F(CNames, Definitions)
{
  int32_t record = define("My-Type", TYP_SEQ);
  int32_t synonym = define("Other", stxNewSynonym(record));
  start();
  EXPECT_EQ(ofType(cTypeId, record), "My_Type");
  EXPECT_EQ(ofType(cTypeId, synonym), "Other");
}

TEST_F(CNames, PathOfInlineTypes)
{
  int32_t foo = define("Foo", TYP_SEQ);
  int32_t a = structure(foo, "a-x");
  int32_t b = structure(a, "b", TYP_CHOICE);
  comp(b, "c", TYP_NULL);
  comp(b, "d", stxNewSynonym(integer));
  start();
  EXPECT_EQ(below(cTypeId, foo), "a_x_Foo b_a_x_Foo c_b_a_x_Foo Int ");
}

TEST_F(CNames, ElementsOfLists)
{
  int32_t u = define("U", TYP_SEQOF);
  int32_t inner = structure(u, "", TYP_SETOF);
  structure(inner, "");
  int32_t foo = define("Foo", TYP_SEQ);
  int32_t a = structure(foo, "a", TYP_SEQOF);
  structure(a, "");
  int32_t named = define("N", TYP_SEQOF);
  comp(named, "", stxNewSynonym(integer));
  start();
  EXPECT_EQ(below(cTypeId, u), "1_U 2_U ");
  // The list's name stands twice: once as the element's own.
  EXPECT_EQ(below(cTypeId, foo), "a_Foo 1_a_a_Foo ");
  EXPECT_EQ(below(cTypeId, named), "Int ");
}

TEST_F(CNames, NamelessType)
{
  start();
  AsnType type;
  type.homeMod = &module;
  EXPECT_EQ(named(cTypeId, type), "<UNKNOWN_NAMELESS_TYPE>");
  type.compStatus = TCS_HEADER;
  EXPECT_EQ(named(cTypeId, type), "<UNKNOWN_NAMELESS_TYPE>");
}

TEST_F(CNames, NameOfTheNearestFatherThatHasOne)
{
  start();
  FixRec fix;
  fix.id = "Outer";
  fix.idLen = 5;
  AsnType outer, middle, inner;
  outer.baseFix = fix;
  middle.father = &outer;
  inner.father = &middle;
  FixRec own;
  own.id = "own";
  own.idLen = 3;
  inner.compFix = own;
  EXPECT_EQ(named(cTypeId, inner), "own_Outer");
  // A definition ends the search, with a name or without.
  middle.compStatus = TCS_HEADER;
  EXPECT_EQ(named(cTypeId, inner), "own_<UNKNOWN_NAMELESS_TYPE>");
}

TEST_F(CNames, DefinitionOfAnInlineAlternative)
{
  // It is not its own base, so that its name is the path to itself.
  int32_t choice = define("C", TYP_CHOICE);
  int32_t alternative = comp(choice, "x", TYP_SEQ);
  TNode node = stxNewTNode(TYP_SELECTION);
  node.ref = choice;
  node.refModule = 1;
  node.fieldRef = stxLink(tree, stxNewLink(alternative));
  int32_t record = define("A", node);
  start();
  EXPECT_EQ(ofType(cTypeId, record), "A_A");
}

TEST_F(CNames, NamingOptionsAreObeyed)
{
  int32_t record = define("Foo", TYP_SEQ);
  structure(record, "a");
  stxNodeTed(tree, record, TED_FRONT_END, "-TNAME=Renamed");
  start();
  EXPECT_EQ(ofType(cTypeId, record), "Renamed");
  EXPECT_EQ(below(cTypeId, record), "a_Renamed ");
}

// --- names by the value format ----------------------------------------------

struct CNamesFormat : CNames {
  AsnType type;
  FixRec own;
  CNamesFormat()
  {
    own.id = "Own";
    own.idLen = 3;
    start();
    type.homeMod = &module;
    type.compFix = type.baseFix = own;
    type.compStatus = type.base.compStatus = TCS_HEADER;
  }
  std::string at(Builder *build, int mainType, int format)
  {
    type.base.mainType = static_cast<uint8_t>(mainType);
    type.base.valueField = static_cast<uint8_t>(format);
    return named(build, type);
  }
  std::string cType(int format)
  {
    return at(getPredefinedType, TYP_OCTSTR, format);
  }
  std::string member(int format)
  {
    return at(cAsnHomeMember, TYP_OCTSTR, format);
  }
  void options(uint32_t bits) { module.rec->options.cGeneration = bits; }
  void option(int bit) { type.base.nodeOptions |= 1u << bit; }
};

struct FormatRow {
  const char *member;
  const char *cType;
};

// A null type is the type's own name.
static const FormatRow formatRows[36] = {
    {nullptr, "/* VF_NONE */"},
    {"bool", "BOOLE"},
    {"ui8", "uint8"},
    {"ui16", "uint16"},
    {"ui32", "uint32"},
    {"", "uint64"},
    {"i8", "sint8"},
    {"i16", "sint16"},
    {"i32", "sint32"},
    {"i64", "sint64"},
    {"real32", "REAL32"},
    {"real64", "REAL64"},
    {"real128", "REAL128"},
    {"stas0", nullptr},
    {"stas8", nullptr},
    {"stas16", nullptr},
    {"stas", nullptr},
    {"dyns0", "DYNSTR0"},
    {"dyns8", "DYNSTR8"},
    {"dyns16", "DYNSTR16"},
    {"dyns", "DYNSTR"},
    {"list", "LIST"},
    {"frm", "FRAME_PTR"},
    {"null", "NULLTYPE"},
    {"stru", nullptr},
    {"any", "ANY"},
    {"", nullptr},
    {"obji", "OBJECTIDENTIFIER"},
    {"datetime", "DATETIMEZ"},
    {"ext1990", "EXTERNAL_1990"},
    {"ext1994", "EXTERNAL_1994"},
    {"openType", "OPENTYPE"},
    {"bmpstr0", "ASN_BMPString0"},
    {"bmpstr8", "ASN_BMPString8"},
    {"bmpstr16", "ASN_BMPString16"},
    {"bmpstr", "ASN_BMPString"},
};

TEST_F(CNamesFormat, EveryRow)
{
  options(1u << 5);
  for (int format = 0; format < 36; ++format) {
    const FormatRow &row = formatRows[format];
    EXPECT_EQ(cType(format), row.cType ? row.cType : "Own") << format;
    if (row.member) {
      EXPECT_EQ(member(format), row.member) << format;
    }
  }
  for (int format : {36, 255})
    EXPECT_EQ(cType(format), "?!?");
}

TEST_F(CNamesFormat, NoMember)
{
  for (int format : {0, 36, 255})
    EXPECT_EXIT(member(format), testing::ExitedWithCode(2),
                "Internal error\n +CBET: Unrecognized ASNHOME member "
                "indicator\n");
}

TEST_F(CNamesFormat, Reals)
{
  options(1u << 5);
  for (int format : {10, 11, 12})
    EXPECT_NE(cType(format), "REAL");
  options(1u << 5 | 1u << 1);
  for (int format : {10, 11, 12}) {
    EXPECT_EQ(cType(format), "REAL");
    EXPECT_EQ(member(format), "real");
  }
  for (int format : {9, 13, 28, 29})
    EXPECT_EQ(cType(format),
              formatRows[format].cType ? formatRows[format].cType : "Own");
}

TEST_F(CNamesFormat, Times)
{
  options(1u << 2);
  EXPECT_EQ(cType(28), "COMMONTIME");
  EXPECT_EQ(member(28), "comt");
  EXPECT_EQ(cType(29), "EXTERNAL_1990");
  EXPECT_EQ(member(29), "ext1990");
}

TEST_F(CNamesFormat, Externals)
{
  options(1u << 3);
  EXPECT_EQ(cType(29), "EXTERNAL");
  EXPECT_EQ(member(29), "ext");
  EXPECT_EQ(cType(30), "EXTERNAL_1994");
  EXPECT_EQ(member(30), "ext1994");
  EXPECT_EQ(cType(28), "DATETIMEZ");
  EXPECT_EQ(member(28), "datetime");
}

TEST_F(CNamesFormat, ExtensibleEnumerations)
{
  for (int format : {0, 2, 8, 24, 255}) {
    type.base.nodeFlags = NF_EXTENSIBLE;
    EXPECT_EQ(at(getPredefinedType, TYP_ENUM, format), "EXTENSIBLE_ENUMERATED");
    EXPECT_EQ(at(cAsnHomeMember, TYP_ENUM, format), "xenum");
  }
  EXPECT_EQ(at(getPredefinedType, TYP_INTEGER, 8), "sint32");
  type.base.nodeFlags = 0;
  EXPECT_EQ(at(getPredefinedType, TYP_ENUM, 8), "sint32");
  EXPECT_EQ(at(cAsnHomeMember, TYP_ENUM, 8), "i32");
}

TEST_F(CNamesFormat, Frames)
{
  // Without functions for them open values are frames.
  EXPECT_EQ(cType(25), "FRAME_PTR");
  EXPECT_EQ(cType(31), "FRAME_PTR");
  EXPECT_EQ(member(25), "frm");
  EXPECT_EQ(member(31), "frm");
  // The C type of other formats is not that of the frame.
  option(optFrame);
  EXPECT_EQ(cType(8), "sint32");
  EXPECT_EQ(member(8), "frm");
}

// --- names in declarations --------------------------------------------------

TEST_F(CNamesFormat, SkippedAndFrames)
{
  option(optFrame);
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "FRAME_PTR");
  EXPECT_EQ(at(cTypeIdForTypeCompDef, TYP_INTEGER, 8), "FRAME_PTR");
  option(optSkip);
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "SKIPPED");
  EXPECT_EQ(at(cTypeIdForTypeCompDef, TYP_INTEGER, 8), "SKIPPED");
}

TEST_F(CNamesFormat, RegisteredNames)
{
  static const char *const mine[] = {"A", "B", "C", "D"};
  static const char *const theirs[] = {cSpecialType(0), cSpecialType(1),
                                       cSpecialType(2), cSpecialType(3)};
  cRegisterSpecialTypes(mine);
  option(optFrame);
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "B");
  option(optSkip);
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "A");
  cRegisterSpecialTypes(theirs);
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "SKIPPED");
}

TEST_F(CNamesFormat, BaseNames)
{
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "sint32");
  EXPECT_EQ(at(cBaseTypeId, TYP_SEQ, 24), "Own");
  EXPECT_EQ(at(cBaseTypeId, TYP_OCTSTR, 14), "Own");
  // Components of a defined type are named by it, whatever its format.
  for (int status : {TCS_MANDATORY, TCS_OPTIONAL, TCS_CHOICE, TCS_MULTIPLE}) {
    type.compStatus = status;
    EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "Own");
    type.baseFix = {};
    EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "<UNKNOWN_NAMELESS_TYPE>");
    type.baseFix = own;
  }
  type.compStatus = TCS_COMPOF;
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "sint32");
  // Inline ones by their format or their path.
  type.compStatus = type.base.compStatus = TCS_MANDATORY;
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "sint32");
  EXPECT_EQ(at(cBaseTypeId, TYP_SEQ, 24), "struct t_Own_Own");
}

TEST_F(CNamesFormat, EntryThatIsASynonym)
{
  FixRec base;
  base.id = "Base";
  base.idLen = 4;
  type.baseFix = base;
  type.entryFlags = 0x40;
  module.rec->options.nrEntryTypes = 1;
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "sint32");
  type.firstMainType = TYP_SYNONYM;
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "Base");
  type.entryFlags = 0x3F;
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "sint32");
  type.entryFlags = 0x40;
  module.rec->options.nrEntryTypes = 0;
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "sint32");
  type.baseFix = {};
  module.rec->options.nrEntryTypes = 1;
  EXPECT_EQ(at(cBaseTypeId, TYP_INTEGER, 8), "<UNKNOWN_NAMELESS_TYPE>");
}

TEST_F(CNamesFormat, Markers)
{
  AsnType father;
  EXPECT_EQ(at(cBaseTypeId, TYP_EXTENSION_MARKER, 0), "SKIPPED");
  type.father = &father;
  EXPECT_EQ(at(cBaseTypeId, TYP_EXTENSION_MARKER, 0), "SKIPPED");
  father.base.nodeOptions = 1u << optExtMarkerField;
  EXPECT_EQ(at(cBaseTypeId, TYP_EXTENSION_MARKER, 0), "EXTENSIONMARKER");
}

TEST_F(CNamesFormat, ComponentsInDeclarations)
{
  EXPECT_EQ(at(cTypeIdForTypeCompDef, TYP_INTEGER, 8), "Own");
  type.compStatus = type.base.compStatus = TCS_MANDATORY;
  EXPECT_EQ(at(cTypeIdForTypeCompDef, TYP_INTEGER, 8), "sint32");
  EXPECT_EQ(at(cTypeIdForTypeCompDef, TYP_SEQ, 24), "struct t_Own_Own");
  type.nodeFlags = NF_RECURSIVE;
  EXPECT_EQ(at(cTypeIdForTypeCompDef, TYP_SEQOF, 21), "LIST /* Own_Own */");
  EXPECT_EQ(at(cTypeIdForTypeCompDef, TYP_INTEGER, 8), "struct t_Own_Own");
  type.compStatus = type.base.compStatus = TCS_HEADER;
  EXPECT_EQ(at(cTypeIdForTypeCompDef, TYP_SEQ, 24), "struct t_Own");
}

TEST_F(CNamesFormat, ComponentsWhereTheyAreReferredTo)
{
  EXPECT_EQ(at(cTypeIdForDefinedTypeCompRef, TYP_SEQ, 24), "Own");
  type.compStatus = type.base.compStatus = TCS_MANDATORY;
  EXPECT_EQ(at(cTypeIdForDefinedTypeCompRef, TYP_SEQ, 24), "?!?");
}

TEST_F(CNamesFormat, FieldOfABuiltInClass)
{
  AsnObjClass objClass;
  objClass.baseFix.id = "TYPE_IDENTIFIER";
  objClass.baseFix.idLen = 15;
  AsnObjClassField field;
  field.objClass = &objClass;
  field.fix.id = "Type";
  field.fix.idLen = 4;
  type.compStatus = type.base.compStatus = TCS_MANDATORY;
  cUpdateBuiltinTypeFieldType(type, field);
  EXPECT_EQ(at(cTypeId, TYP_OPEN, 31), "Type_TYPE_IDENTIFIER");
}

// --- variables --------------------------------------------------------------

TEST_F(CNames, Variables)
{
  int32_t foo = define("Foo-Bar", TYP_SEQ);
  comp(foo, "a-x", TYP_NULL);
  comp(foo, "", TYP_EXTENSION_MARKER);
  int32_t list = define("L", TYP_SEQOF);
  comp(list, "", TYP_NULL);
  int32_t synonym = define("Other", stxNewSynonym(foo));
  start();
  EXPECT_EQ(ofType(cASN1VariableName, foo), "foo_Bar");
  EXPECT_EQ(ofType(cASN1VariableName, synonym), "other");
  EXPECT_EQ(below(cASN1VariableName, foo), "a_x extensionmarker ");
  EXPECT_EQ(below(cASN1VariableName, list), " ");
  module.rec->options.optVars = 1;
  EXPECT_EQ(ofType(cASN1VariableName, synonym), "foo_Bar");
  EXPECT_EQ(ofType(cASN1VariableName, foo), "foo_Bar");
}

TEST_F(CNames, VariablesAreCut)
{
  int32_t record = define("Abcdefgh", TYP_NULL);
  start();
  module.rec->options.nameLen = 8;
  EXPECT_EQ(ofType(cASN1VariableName, record), "abcdefgh");
  module.rec->options.nameLen = 7;
  EXPECT_EQ(ofType(cASN1VariableName, record), "abcdefg");
}
