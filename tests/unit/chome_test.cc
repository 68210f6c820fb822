// References to the value at hand.

#include "cbet/cgenstate.h"
#include "cbet/chome.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "model/typepath.h"
#include "support/typetrees.h"

struct CHome : TypeTrees {
  AsnType type, father;
  CHome()
  {
    start();
    cInitVars();
    father.homeMod = type.homeMod = &module;
    type.base.mainType = TYP_INTEGER;
    type.base.valueField = VF_I32;
    module.rec->options.nrEntryTypes = 1;
  }
  ~CHome() override
  {
    glbIterHome = false;
    glbGeneratingEntryFunction = false;
    clearOutFiles();
    resetPath();
    cInitVars();
  }

  void path(const char *text)
  {
    type.typePath = text;
    type.typePathLen = static_cast<uint32_t>(strlen(text));
  }
  static void option(AsnType &of, int bit) { of.base.nodeOptions |= 1u << bit; }
  typedef std::string &Ref(std::string &, const char *, bool, const AsnType &,
                           bool, const char *);
  std::string made(Ref *build, bool address, bool member)
  {
    std::string text = "old", plain;
    EXPECT_EQ(&build(text, "<", address, type, member, ">"), &text);
    build(plain, nullptr, address, type, member, nullptr);
    EXPECT_EQ(text, "<" + plain + ">");
    return plain;
  }
  std::string ref(bool address, bool member)
  {
    return made(cHomeRef, address, member);
  }
  std::string compRef(bool address, bool cast)
  {
    return made(cAsnHomeCompRef, address, cast);
  }
  std::string home(bool address, bool member)
  {
    return made(cHome, address, member);
  }
  void makeHometab(AsnType &of)
  {
    glbGeneratingEntryFunction = true;
    module.rec->options.definitionCategory = 2;
    of.entryFlags = entryFlagBit;
  }
  void format(int mainType, int valueField)
  {
    type.base.mainType = static_cast<uint8_t>(mainType);
    type.base.valueField = static_cast<uint8_t>(valueField);
  }
};

// --- paths ------------------------------------------------------------------

TEST_F(CHome, PathOfAView)
{
  std::string text = "old";
  EXPECT_EQ(&cGetPath(text, type), &text);
  EXPECT_EQ(text, "");
  const struct {
    const char *path;
    const char *expected;
  } cases[] = {{"->a_fld", "a_fld"},
               {".a_fld", "a_fld"},
               {"a_fld->b_fld", "a_fld->b_fld"},
               {"", ""},
               {"->", ""}};
  for (const auto &c : cases) {
    path(c.path);
    EXPECT_EQ(cGetPath(text, type), c.expected);
  }
}

TEST_F(CHome, PathIsCutAtTheViewsLength)
{
  std::string text;
  path("->a_fld.b_fld");
  type.typePathLen = 7;
  EXPECT_EQ(cGetPath(text, type), "a_fld");
  // A length of 0 is no path, and its address must not be followed.
  type.typePathLen = 0;
  EXPECT_EQ(cGetPath(text, type), "");
  type.typePath = nullptr;
  type.typePathLen = 7;
  EXPECT_EQ(cGetPath(text, type), "");
}

TEST_F(CHome, PathIsReadFromItsLevel)
{
  std::string text;
  pushPath();
  type.typePath = getPath();
  EXPECT_EQ(cGetPath(text, type), "");
  addElemToPath("->a_fld");
  EXPECT_EQ(ref(false, false), "*home");
  type.typePathLen = 7;
  EXPECT_EQ(ref(false, false), "home->a_fld");
  addElemToPath(".b_fld");
  EXPECT_EQ(ref(false, false), "home->a_fld");
  removeElemFromPath();
  removeElemFromPath();
  EXPECT_EQ(cGetPath(text, type), "");
}

// --- references by path -----------------------------------------------------

struct RefRow {
  const char *path;
  bool pointer;
  bool address;
  bool member;
  const char *expected;
};

static const RefRow refRows[] = {
    {"", false, false, false, "*home"},
    {"", false, true, false, "home"},
    {"", false, false, true, "home->"},
    {"a_fld", false, false, false, "home->a_fld"},
    {"a_fld", false, true, false, "&home->a_fld"},
    {"a_fld", false, false, true, "home->a_fld."},
    {"a_fld", false, true, true, "&home->a_fld."},
    {"a_fld", true, false, false, "*home->a_fld"},
    {"a_fld", true, true, false, "home->a_fld"},
    {"a_fld", true, false, true, "home->a_fld->"},
    // By the same rules.
    {"", false, true, true, "&home->"},
    {"a_fld", true, true, true, "&home->a_fld->"},
};

TEST_F(CHome, References)
{
  for (const RefRow &row : refRows) {
    path(row.path);
    type.base.nodeOptions = row.pointer ? 1u << optPointer : 0;
    EXPECT_EQ(ref(row.address, row.member), row.expected);
  }
  // A pointer to a home is no pointer to the value.
  path("a_fld");
  option(type, optPointer);
  option(type, optAsnHome);
  EXPECT_EQ(ref(false, false), "home->a_fld");
  EXPECT_EQ(ref(false, true), "home->a_fld.");
}

TEST_F(CHome, LocalHomes)
{
  localVarCount[VAR_HOME] = 2;
  EXPECT_EQ(ref(true, false), "h2");
  EXPECT_EQ(ref(false, false), "*h2");
  EXPECT_EQ(ref(false, true), "h2->");
  path("->a_fld");
  EXPECT_EQ(ref(true, false), "&h2->a_fld");
  localVarCount[VAR_HOME] = -1;
  EXPECT_EQ(ref(false, false), "h-1->a_fld");
}

TEST_F(CHome, Iterator)
{
  glbIterHome = true;
  EXPECT_EQ(ref(false, false), "*iter");
  EXPECT_EQ(ref(true, false), "iter");
  EXPECT_EQ(home(false, true), "iter->");
  path("a_fld");
  EXPECT_EQ(home(true, false), "&iter->a_fld");
  option(type, optAsnHome);
  EXPECT_EQ(home(false, false), "iter->a_fld->val.i32");
  // Variables keep their names.
  localVarCount[VAR_HOME] = 1;
  EXPECT_EQ(ref(true, false), "&h1->a_fld");
}

// --- values inside an ASNHOME -----------------------------------------------

TEST_F(CHome, ScalarInAHome)
{
  path("a_fld");
  EXPECT_EQ(compRef(false, false), "home->a_fld->val.i32");
  EXPECT_EQ(compRef(true, false), "&home->a_fld->val.i32");
  EXPECT_EQ(compRef(false, true), "home->a_fld->val.i32->");
  EXPECT_EQ(compRef(true, true), "&home->a_fld->val.i32->");
}

TEST_F(CHome, PointerInAHome)
{
  path("a_fld");
  format(TYP_OBJID, VF_OBJI);
  EXPECT_EQ(compRef(false, false), "*home->a_fld->val.obji");
  EXPECT_EQ(compRef(true, false), "home->a_fld->val.obji");
  EXPECT_EQ(compRef(false, true), "home->a_fld->val.obji->");
  EXPECT_EQ(compRef(true, true), "&home->a_fld->val.obji->");
}

TEST_F(CHome, StructureInAHome)
{
  path("a_fld");
  format(TYP_SEQ, VF_STRU);
  type.base.compStatus = TCS_HEADER;
  type.baseFix.id = "Bar";
  type.baseFix.idLen = 3;
  EXPECT_EQ(compRef(false, false), "*(Bar *)home->a_fld->val.stru");
  EXPECT_EQ(compRef(true, false), "(Bar *)home->a_fld->val.stru");
  EXPECT_EQ(compRef(false, true), "((Bar *)home->a_fld->val.stru)->");
  EXPECT_EQ(compRef(true, true), "&((Bar *)home->a_fld->val.stru)->");
}

TEST_F(CHome, MembersThatAreStructures)
{
  path("a_fld");
  format(TYP_OCTSTR, VF_DYNS8);
  EXPECT_EQ(compRef(false, true), "home->a_fld->val.dyns8.");
  format(TYP_OCTSTR, VF_STAS8);
  EXPECT_EQ(compRef(false, true), "home->a_fld->val.stas8->");
  format(TYP_SEQOF, VF_LIST);
  EXPECT_EQ(compRef(false, true), "home->a_fld->val.list.");
  format(TYP_BMPSTR, VF_BMPSTR16);
  EXPECT_EQ(compRef(false, true), "home->a_fld->val.bmpstr16.");
  format(TYP_ENUM, VF_I8);
  EXPECT_EQ(compRef(false, true), "home->a_fld->val.i8->");
  type.base.nodeFlags = NF_EXTENSIBLE;
  EXPECT_EQ(compRef(false, true), "home->a_fld->val.xenum.");
}

TEST_F(CHome, MemberWithoutAName)
{
  path("a_fld");
  format(TYP_INTEGER, VF_UI64);
  EXPECT_EQ(compRef(false, false), "home->a_fld->val.");
}

TEST_F(CHome, NoMember)
{
  format(TYP_INTEGER, VF_NONE);
  EXPECT_EXIT(compRef(false, false), testing::ExitedWithCode(2),
              "CBET: Unrecognized ASNHOME member indicator");
}

TEST_F(CHome, ElementsInHomes)
{
  path("a_fld");
  type.father = &father;
  localVarCount[VAR_ASN_HOME] = 1;
  EXPECT_EQ(compRef(false, false), "home->a_fld->val.i32");
  for (int bit : {+optHomeElems, +optHomeList}) {
    father.base.nodeOptions = 1u << bit;
    EXPECT_EQ(compRef(false, false), "a1->val.i32");
  }
  localVarCount[VAR_ASN_HOME] = -1;
  EXPECT_EQ(compRef(false, false), "a-1->val.i32");
}

TEST_F(CHome, TableOfHomes)
{
  path("a_fld");
  type.compNbr = 3;
  makeHometab(type);
  EXPECT_EQ(compRef(false, false), "hometab [3]->val.i32");
  // Of a component its father decides.
  type.father = &father;
  EXPECT_EQ(compRef(false, false), "home->a_fld->val.i32");
  type.entryFlags = 0;
  makeHometab(father);
  EXPECT_EQ(compRef(false, false), "hometab [3]->val.i32");
}

TEST_F(CHome, Written)
{
  path("a_fld");
  openNamedF(1, dir.path.c_str(), "out.c");
  putToF(1, std::string(74, 'x').c_str());
  // One text: it moves to the next line whole.
  cAsnHomeCompRefToF(1, " ", true, type, false, ";\n");
  closeF(1);
  EXPECT_EQ(readFile(dir.path + "out.c"),
            std::string(74, 'x') + "\n  &home->a_fld->val.i32;\n");
}

// --- either -----------------------------------------------------------------

TEST_F(CHome, WhereTheValueLives)
{
  path("a_fld");
  EXPECT_EQ(home(false, false), "home->a_fld");
  EXPECT_EQ(home(false, true), "home->a_fld.");
  option(type, optAsnHome);
  EXPECT_EQ(home(false, false), "home->a_fld->val.i32");
  EXPECT_EQ(home(true, true), "&home->a_fld->val.i32->");
}

TEST_F(CHome, ElementOfALinkedList)
{
  path("a_fld");
  type.father = &father;
  father.base.valueField = VF_LIST;
  option(father, optHomeElems);
  for (int count : {0, -1}) {
    localVarCount[VAR_ASN_HOME] = count;
    EXPECT_EQ(home(false, false), "home->a_fld");
  }
  localVarCount[VAR_ASN_HOME] = 1;
  EXPECT_EQ(home(false, false), "a1->val.i32");
  father.base.valueField = VF_STRU;
  EXPECT_EQ(home(false, false), "home->a_fld");
}

// Only the mark on the list has its elements named by the iterator.
TEST_F(CHome, ElementOfAnUnmarkedLinkedList)
{
  type.father = &father;
  father.base.valueField = VF_LIST;
  localVarCount[VAR_ASN_HOME] = 1;
  EXPECT_EQ(home(false, false), "*home->val.i32");
  option(father, optHomeList);
  EXPECT_EQ(home(false, false), "a1->val.i32");
  // It goes ahead of the table.
  makeHometab(father);
  EXPECT_EQ(home(false, false), "a1->val.i32");
}

TEST_F(CHome, ComponentInTheTable)
{
  path("a_fld");
  type.father = &father;
  makeHometab(father);
  for (int count : {0, -1}) {
    localVarCount[VAR_HOME] = count;
    EXPECT_EQ(home(false, false), "hometab [0]->val.i32");
  }
  // Behind a local home it is reached as any other, in a home or not.
  localVarCount[VAR_HOME] = 1;
  option(type, optAsnHome);
  EXPECT_EQ(home(false, false), "h1->a_fld");
}

TEST_F(CHome, ClassifierOfAnAny)
{
  type.father = &father;
  type.compFix.id = "kind";
  type.compFix.idLen = 4;
  std::string text = "old";
  EXPECT_EQ(&cAnyDefinedByClassifierTypeHome(text, "(", false, type, "));\n"),
            &text);
  EXPECT_EQ(text, "(home->kind));\n");
  father.typePath = "a_fld";
  father.typePathLen = 5;
  cAnyDefinedByClassifierTypeHome(text, nullptr, true, type, nullptr);
  EXPECT_EQ(text, "&home->a_fld.kind");
}
