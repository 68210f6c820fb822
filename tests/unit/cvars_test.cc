// Local variables, blocks and shared names of generated code.

#include "cbet/cvars.h"
#include "store/module.h"
#include "support/fragtrees.h"
#include <gtest/gtest.h>
#include <string>

using testing::ExitedWithCode;

struct CVars : testing::Test {
  CVars() { resetStore(); }
  ~CVars() override
  {
    resetStore();
    cInitVars();
  }
};

constexpr uint32_t signedControlMemberBit = 1u << 4;

TEST_F(CVars, FixedRows)
{
  cInitVars();
  const struct {
    int row;
    std::string name;
    std::string type;
  } rows[] = {
      {0, "a", "ASNHOME *"},
      {1, "h", ""},
      {2, "n", "uint32 "},
      {3, "ok", "BOOLE "},
  };
  for (const auto &[row, name, type] : rows) {
    EXPECT_EQ(localVarName[row], name);
    EXPECT_EQ(localVarType[row], type);
    EXPECT_EQ(localVarCount[row], 0);
  }
}

TEST_F(CVars, ClearsAllRows)
{
  for (int row = 0; row < 10; ++row) {
    localVarName[row] = "x";
    localVarType[row] = "int ";
    localVarCount[row] = 7;
  }
  cInitVars();
  EXPECT_EQ(localVarRows, 10);
  EXPECT_EQ(localVarName[1], "h");
  EXPECT_EQ(localVarType[1], "");
  for (int row = 0; row < 10; ++row)
    EXPECT_EQ(localVarCount[row], 0) << row;
  for (int row = 4; row < 10; ++row) {
    EXPECT_EQ(localVarName[row], "") << row;
    EXPECT_EQ(localVarType[row], "") << row;
  }
}

TEST_F(CVars, SignedLoopCounter)
{
  appendModRec(true)->options.cGeneration = signedControlMemberBit;
  cInitVars();
  EXPECT_EQ(localVarType[2], "sint32 ");
  bOfModRList->options.cGeneration = ~signedControlMemberBit;
  cInitVars();
  EXPECT_EQ(localVarType[2], "uint32 ");
}

TEST_F(CVars, FirstModuleOfTheListDecides)
{
  appendModRec(true);
  appendModRec(true)->options.cGeneration = signedControlMemberBit;
  cInitVars();
  EXPECT_EQ(localVarType[2], "uint32 ");
}

// --- operations on rows -----------------------------------------------------

struct CVarsText : FragTrees {};

TEST_F(CVarsText, Reset)
{
  for (int row = 0; row < localVarRows; ++row)
    localVarCount[row] = row - 5;
  cResetVars();
  for (int row = 0; row < localVarRows; ++row)
    EXPECT_EQ(localVarCount[row], 0) << row;
  EXPECT_EQ(localVarName[VAR_N], "n");
  EXPECT_EQ(localVarType[VAR_N], "uint32 ");
}

TEST_F(CVarsText, Register)
{
  std::string type = "MINE", name = "x";
  cRegisterVar(4, type.c_str(), name.c_str());
  type = "other";
  name = "y";
  EXPECT_EQ(localVarType[4], "MINE ");
  EXPECT_EQ(localVarName[4], "x ");
  cRegisterVar(9, "MINE *", "");
  EXPECT_EQ(localVarType[9], "MINE *");
  EXPECT_EQ(localVarName[9], "");
  EXPECT_EQ(localVarName[5], "");
}

TEST_F(CVarsText, NoSuchRow)
{
  const char *text = "CBET variable index overflow.";
  std::string ref;
  for (int row : {-1, 10}) {
    EXPECT_EXIT(cRegisterVar(row, "T", "x"), ExitedWithCode(2), text);
    EXPECT_EXIT(cVarDef(1, row, nullptr), ExitedWithCode(2), text);
    EXPECT_EXIT(cVarRef(ref, nullptr, row, nullptr), ExitedWithCode(2), text);
  }
}

TEST_F(CVarsText, Definitions)
{
  localVarCount[VAR_ASN_HOME] = 1;
  localVarCount[VAR_N] = 2;
  localVarCount[VAR_OK] = 3;
  EXPECT_EQ(text([] { cAsnHomeVarDef(1); }), "ASNHOME *a1 = NULL;\n");
  EXPECT_EQ(text([] { cNVarDef(1); }), "uint32 n2 = 0;\n");
  EXPECT_EQ(text([] { cOkVarDef(1); }), "BOOLE ok3;\n");
  EXPECT_EQ(text([] { cVarDef(1, VAR_OK, "TRUE"); }), "BOOLE ok3 = TRUE;\n");
  EXPECT_EQ(text([] { cVarDef(1, VAR_HOME, nullptr); }), "h0;\n");
  EXPECT_EQ(text([] { cInitAsnHomeVar(1); }), "a1= NULL;\n");
  EXPECT_EQ(text([] { cNVarDef(0); }), "");
}

TEST_F(CVarsText, DefinitionIsOneText)
{
  localVarCount[VAR_ASN_HOME] = 1;
  EXPECT_EQ(pieces([] { cAsnHomeVarDef(1); }), "ASNHOME *a1 = NULL;");
}

TEST_F(CVarsText, References)
{
  for (int row = 0; row < 4; ++row)
    localVarCount[row] = row + 1;
  std::string ref;
  EXPECT_EQ(cAsnHomeVarRef(ref, " &", ","), " &a1,");
  EXPECT_EQ(cHomeVarRef(ref, "*", "->"), "*h2->");
  EXPECT_EQ(cNVarRef(ref, nullptr, "++;\n"), "n3++;\n");
  EXPECT_EQ(cOkVarRef(ref, "!", nullptr), "!ok4");
  EXPECT_EQ(&cVarRef(ref, nullptr, VAR_N, nullptr), &ref);
  EXPECT_EQ(ref, "n3");
  // Counts may go below 0.
  localVarCount[VAR_N] = -1;
  EXPECT_EQ(cNVarRef(ref, nullptr, nullptr), "n-1");
}

TEST_F(CVarsText, CountsMoveOnTheirOwn)
{
  void (*const up[])() = {cIncAsnHomeVarCount, cIncHomeVarCount, cIncNVarCount,
                          cIncOkVarCount};
  void (*const down[])() = {cDecAsnHomeVarCount, cDecHomeVarCount,
                            cDecNVarCount, cDecOkVarCount};
  for (int row = 0; row < 4; ++row) {
    cResetVars();
    up[row]();
    up[row]();
    for (int i = 0; i < localVarRows; ++i)
      EXPECT_EQ(localVarCount[i], i == row ? 2 : 0) << row;
    for (int i = 0; i < 3; ++i)
      down[row]();
    EXPECT_EQ(localVarCount[row], -1);
  }
}

TEST_F(CVarsText, HomeDefinition)
{
  int32_t bar = define("Bar", node(TYP_SEQ, VF_STRU));
  comp(bar, "a", node(TYP_SEQ, VF_STRU));
  start();
  TestType type(module, bar);
  localVarCount[VAR_HOME] = 2;
  EXPECT_EQ(text([&] { cHomeVarDef(1, *type); }), "Bar *h2 =");
  atComp(*type, 0, [](AsnType &a) { cHomeVarDef(1, a); });
  EXPECT_EQ(written(), "struct t_a_Bar *h2 =");
}

// --- blocks -----------------------------------------------------------------

TEST_F(CVarsText, Braces)
{
  wToF(1, "if (x)");
  cOpenBrace(1);
  cOpenBrace(1);
  wToF(1, "y;\n");
  cCloseBrace(1);
  wToF(1, "z;\n");
  cCloseBrace(1);
  wToF(1, "end\n");
  EXPECT_EQ(written(), "if (x){\n"
                       "  {\n"
                       "    y;\n"
                       "  }\n"
                       "  z;\n"
                       "}\n"
                       "end\n");
}

TEST_F(CVarsText, BracesOfNoFile)
{
  cOpenBrace(0);
  EXPECT_EQ(fArr[1].indent, 0);
  cCloseBrace(0);
  EXPECT_EQ(written(), "");
}

// Foo { b Bar }, b in a home of its own; Bar { c Bar } the same.
struct CVarsBlock : FragTrees {
  int32_t foo, bar;
  CVarsBlock()
  {
    bar = define("Bar", node(TYP_SEQ, VF_STRU));
    comp(bar, "c", reference(bar, VF_STRU, {optAsnHome}));
    foo = define("Foo", node(TYP_SEQ, VF_STRU));
    comp(foo, "b", reference(bar, VF_STRU, {optAsnHome}));
    start();
  }
};

TEST_F(CVarsBlock, BindsTheHome)
{
  TestType type(module, foo);
  atComp(*type, 0, [](AsnType &b) {
    cBeginBlock(1, b);
    EXPECT_EQ(localVarCount[VAR_HOME], 1);
    cEndBlock(1);
  });
  EXPECT_EQ(localVarCount[VAR_HOME], 0);
  EXPECT_EQ(written(), "{\n"
                       "  Bar *h1 = (Bar *)home->b_fld->val.stru;\n"
                       "}\n");
}

TEST_F(CVarsBlock, WithinABlock)
{
  TestType type(module, foo);
  atComp(*type, 0, [](AsnType &b) {
    cBeginBlock(1, b);
    pushPath();
    atComp(b, 0, [](AsnType &c) {
      cBeginBlock(1, c);
      EXPECT_EQ(localVarCount[VAR_HOME], 2);
      cEndBlock(1);
    });
    popPath();
    cEndBlock(1);
  });
  EXPECT_EQ(written(), "{\n"
                       "  Bar *h1 = (Bar *)home->b_fld->val.stru;\n"
                       "  {\n"
                       "    Bar *h2 = (Bar *)h1->c_fld->val.stru;\n"
                       "  }\n"
                       "}\n");
}

TEST_F(CVarsBlock, Cut)
{
  TestType type(module, foo);
  atComp(*type, 0, [this](AsnType &b) {
    EXPECT_EQ(pieces([&] {
                cBeginBlock(1, b);
                cEndBlock(1);
              }),
              "{|Bar *h1 =|(Bar *)home->b_fld->val.stru;|}");
  });
}

// --- names ------------------------------------------------------------------

TEST(CSpecialType, Rows)
{
  EXPECT_STREQ(cSpecialType(0), "SKIPPED");
  EXPECT_STREQ(cSpecialType(1), "FRAME_PTR");
  EXPECT_STREQ(cSpecialType(2), "NOBODYUSESTHISTYPE");
  EXPECT_STREQ(cSpecialType(3), "EXTENSIONMARKER");
  EXPECT_EQ(cSpecialType(4), nullptr);
  EXPECT_EQ(cSpecialType(-1), nullptr);
}

TEST(CSpecialType, Register)
{
  const char *before[specialTypeCount];
  for (int i = 0; i < specialTypeCount; ++i)
    before[i] = cSpecialType(i);
  const char *const mine[] = {"W", "X", "Y", "Z"};
  cRegisterSpecialTypes(mine);
  for (int i = 0; i < specialTypeCount; ++i)
    EXPECT_STREQ(cSpecialType(i), mine[i]);
  cRegisterSpecialTypes(before);
  EXPECT_STREQ(cSpecialType(0), "SKIPPED");
}

TEST(CGenerationArgument, Rows)
{
  const struct {
    const char *type;
    const char *name;
  } rows[] = {
      {"", ""},
      {"ASNCODG", "asncodg"},
      {"ASNTSTG", "asntstg"},
      {"ASNUTIG", "asnutig"},
      {"ASNPERG", "asnperg"},
      {"ASNNERG", "asnnerg"},
  };
  for (int i = 0; i < 6; ++i) {
    EXPECT_STREQ(cGetGType(i), rows[i].type);
    EXPECT_STREQ(cGetGName(i), rows[i].name);
  }
  for (int wild : {-1, 6}) {
    EXPECT_STREQ(cGetGType(wild), "");
    EXPECT_STREQ(cGetGName(wild), "");
  }
}
