// Bookkeeping of structures: the numbers of local variables, their texts, and
// the order in which walks give out bits.

#include "base/strings.h"
#include "base/upcalls.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "per/perstruct.h"
#include "support/loadedasn.h"
#include "support/writtentext.h"

namespace {

// A structure of the wanted depth is open.
struct PerStruct : LoadedAsn {
  PerStruct() { perInitStructure(); }
  ~PerStruct() override
  {
    while (glbRootOptFieldSetCount)
      perEndStructure();
    perInitStructure();
  }
  static void begin(int structures)
  {
    for (int i = 0; i < structures; ++i)
      perBeginStructure();
  }
};

// What one call writes.
std::string text(const TextWriter &write)
{
  return writtenText(write);
}

// --- nesting

TEST_F(PerStruct, NumbersByDepth)
{
  EXPECT_EQ(glbLocalVarNSuffix, -1);
  begin(2);
  EXPECT_EQ(glbLocalVarNSuffix, 1);
  perEndStructure();
  EXPECT_EQ(glbLocalVarNSuffix, 0);
  perBeginStructure();  // a sibling has the same number
  EXPECT_EQ(glbLocalVarNSuffix, 1);
  perInitStructure();
  EXPECT_EQ(glbLocalVarNSuffix, -1);
}

TEST_F(PerStruct, IntegerStacks)
{
  IntStackCell *top = nullptr;
  popIntStack(top);
  EXPECT_EQ(top, nullptr);
  pushIntStack(top);
  top->value = 7;
  pushIntStack(top);
  EXPECT_EQ(top->value, 0);
  popIntStack(top);
  EXPECT_EQ(top->value, 7);
  popIntStack(top);
  EXPECT_EQ(top, nullptr);
}

TEST_F(PerStruct, WordsOfTheOptionalField)
{
  const struct {
    int32_t count, lastWord, bits;
  } rows[] = {
      {0, 0, 0},   {1, 0, 1},  {31, 0, 31},   {32, 0, 32},  {33, 1, 1},
      {64, 1, 32}, {65, 2, 1}, {512, 15, 32}, {513, 16, 1},
  };
  begin(1);
  for (const auto &row : rows) {
    perSetOptFieldVars(row.count);
    EXPECT_EQ(glbRootOptFieldSetCount->value, row.lastWord) << row.count;
    EXPECT_EQ(glbRootOptFieldLastIndex->value, row.bits) << row.count;
  }
}

// Each open structure has cells of its own; without one nothing is set.
TEST_F(PerStruct, CellsOfEachStructure)
{
  perSetOptFieldVars(40);
  EXPECT_EQ(glbRootOptFieldSetCount, nullptr);
  begin(1);
  perSetOptFieldVars(40);
  begin(1);
  perSetOptFieldVars(3);
  EXPECT_EQ(glbRootOptFieldSetCount->value, 0);
  perEndStructure();
  EXPECT_EQ(glbRootOptFieldSetCount->value, 1);
  EXPECT_EQ(glbRootOptFieldLastIndex->value, 8);
}

// --- variables

TEST_F(PerStruct, OptionalField)
{
  begin(1);
  perSetOptFieldVars(32);
  EXPECT_EQ(text([](int f) { perWriteOptFieldRef(f, 0); }), "optfield_0");
  EXPECT_EQ(text([](int f) { perWriteSetOptField(f, 31); }),
            "optfield_0 |= BITL(31);\n");
  EXPECT_EQ(text([](int f) { perWriteGetOptField(f, 5); }),
            "optfield_0 & BITL(5)");
  begin(1);
  perSetOptFieldVars(33);
  EXPECT_EQ(text([](int f) { perWriteOptFieldRef(f, 2); }), "optfield_1[2]");
  EXPECT_EQ(text([](int f) { perWriteSetOptField(f, 31); }),
            "optfield_1[0] |= BITL(31);\n");
  EXPECT_EQ(text([](int f) { perWriteSetOptField(f, 32); }),
            "optfield_1[1] |= BITL(0);\n");
  EXPECT_EQ(text([](int f) { perWriteGetOptField(f, 40); }),
            "optfield_1[1] & BITL(8)");
}

TEST_F(PerStruct, ExtensionBit)
{
  begin(1);
  EXPECT_EQ(text([](int f) { perDefineExtensionBit(f, "pd_extensionBit ()"); }),
            "BOOLE extensionBit_0 = pd_extensionBit ();\n");
  EXPECT_EQ(text([](int f) { perSetExtensionBit(f, "1"); }),
            "extensionBit_0 = 1;\n");
  EXPECT_EQ(text([](int f) { perRefExtensionBit(f, "if (!", ")"); }),
            "if (!extensionBit_0)");
  EXPECT_EQ(text([](int f) { perRefExtensionBit(f, nullptr, nullptr); }),
            "extensionBit_0");
}

TEST_F(PerStruct, OtherVariables)
{
  const ExtensionInfo none;
  std::string name;
  begin(3);
  EXPECT_EQ(text([&](int f) { perDefineExtensionAddField(f, nullptr, none); }),
            "sint32 extensionAdditionField_2 = 0;\n");
  EXPECT_EQ(text([](int f) { perRefExtensionAddField(f, " &", ");\n"); }),
            " &extensionAdditionField_2);\n");
  EXPECT_EQ(text([](int f) { perDefineExtensionAddCount(f); }),
            "int extensionAdditionCount_2 =");
  EXPECT_EQ(text([](int f) { perRefExtensionAddCount(f, " ", ");\n"); }),
            " extensionAdditionCount_2);\n");
  EXPECT_EQ(text([](int f) { perDefineLengthDeterminant(f); }),
            "uint32 len_2;\n");
  EXPECT_EQ(perRefLengthDeterminant(name, "&", nullptr), "&len_2");
  EXPECT_EQ(perRefLengthDeterminant(name, " ", ")"), " len_2)");
  EXPECT_EQ(text([](int f) { perDefineOpenCtxBuffer(f); }),
            "ASNPEROPENCTX openctx_2;\n");
  EXPECT_EQ(text([](int f) { perRefOpenCtxBuffer(f, nullptr, ");\n"); }),
            "openctx_2);\n");
  EXPECT_EQ(text([](int f) { perDefineChoiceVar(f); }), "sint8 choice_2;\n");
  EXPECT_EQ(perGetChoiceVar(name), "choice_2");
  EXPECT_EQ(text([](int f) { perRefChoiceVar(f, "switch (", ")"); }),
            "switch (choice_2)");
}

// Lines break between the pieces alone.
TEST_F(PerStruct, Pieces)
{
  typedef std::set<std::string> Rests;
  begin(1);
  perSetOptFieldVars(33);
  EXPECT_EQ(brokenTexts([](int f) { perWriteSetOptField(f, 32); }),
            (Rests{"optfield_0[1] |= BITL(0);\n", "[1] |= BITL(0);\n",
                   "|= BITL(0);\n"}));
  EXPECT_EQ(brokenTexts([](int f) { perDefineExtensionBit(f, "0"); }),
            (Rests{"BOOLE extensionBit_0 = 0;\n", "0;\n"}));
  load("T ::= SEQUENCE { ..., a NULL, b NULL }");
  TestType view(module, type("T"));
  const ExtensionInfo info = getExtensionInfo(*view);
  EXPECT_EQ(
      brokenTexts([&](int f) { perDefineExtensionAddField(f, &*view, info); }),
      (Rests{"sint32 extensionAdditionField_0 = 0|BITL(1)|BITL(0);\n",
             "|BITL(1)|BITL(0);\n", "|BITL(0);\n"}));
  EXPECT_EQ(brokenTexts([](int f) { perSetExtensionBit(f, "1"); }),
            (Rests{"extensionBit_0 = 1;\n"}));
}

// --- walks

// Numbers of components and their bits, in the order of the walk.
std::string visits;

void note(AsnType &, AsnType &comp, int compNbr, int32_t index,
          const ExtensionInfo &)
{
  std::string id;
  getTypeCompId(id, nullptr, comp, nullptr);
  visits += id + formatText(" %d:%d; ", compNbr, index);
}

std::string visitsOf(AsnType &type,
                     void (*walk)(AsnType &, const ExtensionInfo &,
                                  PerCompVisit *))
{
  visits.clear();
  walk(type, getExtensionInfo(type), note);
  return visits;
}

TEST_F(PerStruct, OptionalRootComponents)
{
  load("T ::= SEQUENCE { a BOOLEAN OPTIONAL, b NULL, c INTEGER DEFAULT 1,"
       " ..., d NULL OPTIONAL, [[ e NULL OPTIONAL ]] }");
  TestType view(module, type("T"));
  EXPECT_EQ(visitsOf(*view, perForEachOptionalRootComp), "a 0:1; c 2:0; ");
}

// A group is one addition; the father's numbering goes on behind it.
TEST_F(PerStruct, Additions)
{
  load("T ::= SEQUENCE { a BOOLEAN, ..., b NULL, [[ c NULL OPTIONAL,"
       " d NULL ]], e NULL OPTIONAL }");
  TestType view(module, type("T"));
  EXPECT_EQ(visitsOf(*view, perForEachExtensionAddComp),
            "b 2:2;  3:1; e 5:0; ");
}

TEST_F(PerStruct, NoAdditions)
{
  load("T ::= SEQUENCE { a BOOLEAN OPTIONAL, ... }  U ::= SEQUENCE { b NULL }");
  TestType extensible(module, type("T"));
  TestType plain(module, type("U"));
  EXPECT_EQ(visitsOf(*extensible, perForEachExtensionAddComp), "");
  EXPECT_EQ(visitsOf(*plain, perForEachExtensionAddComp), "");
  EXPECT_EQ(visitsOf(*plain, perForEachOptionalRootComp), "");
}

void visitGroup(AsnType &father, AsnType &comp, int)
{
  if (getTypeMainType(comp) != TYP_EXTADDGRP)
    return;
  ExtensionInfo info = getExtensionAdditionGroupInfo(comp);
  perForEachAdditionGroupComp(comp, info, note);
  visits += "all: ";
  perForEachExtensionAdditionGroupComp(father, comp, info, note);
}

// Optional members have bits of their own; the second walk passes all, with
// the index of the addition at hand, which is 0 outside a walk.
TEST_F(PerStruct, MembersOfAGroup)
{
  load("T ::= SEQUENCE { a BOOLEAN, ..., [[ b NULL OPTIONAL, c NULL,"
       " d INTEGER DEFAULT 2 ]] }");
  TestType view(module, type("T"));
  visits.clear();
  forEachTypeComp(*view, visitGroup);
  EXPECT_EQ(visits, "b 2:1; d 4:0; all: b 2:0; c 3:0; d 4:0; ");
}

void visitMembers(AsnType &father, AsnType &comp, int, int32_t,
                  const ExtensionInfo &info)
{
  if (getTypeMainType(comp) == TYP_EXTADDGRP)
    perForEachExtensionAdditionGroupComp(father, comp, info, note);
}

TEST_F(PerStruct, MembersInsideTheWalkOfAdditions)
{
  load("T ::= SEQUENCE { a BOOLEAN, ..., [[ b NULL, c NULL ]], d NULL }");
  TestType view(module, type("T"));
  visits.clear();
  perForEachExtensionAddComp(*view, getExtensionInfo(*view), visitMembers);
  EXPECT_EQ(visits, "b 2:1; c 3:1; ");
}

// --- the bitmap

std::string bitmap(AsnType &type)
{
  return text([&](int f) {
    perDefineExtensionAddField(f, &type, getExtensionInfo(type));
  });
}

// Mandatory additions, and groups with a mandatory member, are set at once.
TEST_F(PerStruct, MandatoryBits)
{
  begin(1);
  load("T ::= SEQUENCE { ..., a NULL, b NULL OPTIONAL, [[ c NULL,"
       " d NULL OPTIONAL ]], [[ e NULL OPTIONAL ]] }"
       " U ::= SEQUENCE { x NULL, ..., y NULL OPTIONAL }");
  TestType mixed(module, type("T"));
  TestType optional(module, type("U"));
  EXPECT_EQ(bitmap(*mixed),
            "sint32 extensionAdditionField_0 = 0|BITL(3)|BITL(1);\n");
  EXPECT_EQ(bitmap(*optional), "sint32 extensionAdditionField_0 = 0;\n");
}

void setBits(AsnType &, AsnType &comp, int, int32_t, const ExtensionInfo &info)
{
  visits += writtenText([&](int f) { perSetExtensionAddField(f, comp, info); });
}

TEST_F(PerStruct, SetBits)
{
  begin(1);
  load("T ::= SEQUENCE { ..., a NULL OPTIONAL, b NULL OPTIONAL }");
  TestType view(module, type("T"));
  visits.clear();
  perForEachExtensionAddComp(*view, getExtensionInfo(*view), setBits);
  EXPECT_EQ(visits, "extensionAdditionField_0 |= BITL(1);\n"
                    "extensionAdditionField_0 |= BITL(0);\n");
}

// --- types

TEST_F(PerStruct, SimpleTypes)
{
  load("A ::= BOOLEAN B ::= OCTET STRING C ::= ENUMERATED { x }"
       " D ::= OBJECT IDENTIFIER E ::= SEQUENCE { } F ::= SEQUENCE OF NULL"
       " G ::= SET { } H ::= SET OF NULL I ::= CHOICE { x NULL }"
       " J ::= EMBEDDED PDV K ::= CHARACTER STRING L ::= EXTERNAL"
       " N ::= REAL");
  for (const char *name : {"A", "B", "C", "D", "N"}) {
    TestType view(module, type(name));
    EXPECT_TRUE(perIsSimpleType(*view)) << name;
  }
  for (const char *name : {"E", "F", "G", "H", "I", "J", "K", "L"}) {
    TestType view(module, type(name));
    EXPECT_FALSE(perIsSimpleType(*view)) << name;
  }
}

// Both of EXTERNAL, of which ASN.1 of today has one.
TEST_F(PerStruct, ExternalTypes)
{
  load("L ::= EXTERNAL");
  TestType external(module, type("L"));
  for (uint8_t mainType : {TYP_EXTERNAL, TYP_EXTERNAL_1994}) {
    external->base.mainType = mainType;
    EXPECT_FALSE(perIsSimpleType(*external)) << int{mainType};
  }
}

void noteSupported(AsnType &, AsnType &comp, int)
{
  std::string id;
  if (perIsDefaultKeywordUsedWithSupportedType(comp))
    visits += getTypeCompId(id, nullptr, comp, " ");
}

TEST_F(PerStruct, SupportedDefaults)
{
  load("T ::= SEQUENCE { a BOOLEAN DEFAULT TRUE, b INTEGER DEFAULT 1,"
       " c ENUMERATED { x, y } DEFAULT x, d OCTET STRING DEFAULT '00'H,"
       " e BOOLEAN OPTIONAL, f INTEGER }");
  TestType view(module, type("T"));
  visits.clear();
  forEachTypeComp(*view, noteSupported);
  EXPECT_EQ(visits, "a b c ");
}

}  // namespace
