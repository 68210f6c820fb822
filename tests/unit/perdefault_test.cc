// References to components with DEFAULT values, and the texts of their values.

#include "cbet/cgenstate.h"
#include "cbet/cvars.h"
#include "model/typeiter.h"
#include "model/valueiter.h"
#include "per/perdefault.h"
#include "support/fragtrees.h"
#include "support/loadedasn.h"
#include "support/writtentext.h"

namespace {

struct PerDefault : FragTrees {
  // `plain` and inside a larger test.
  static void expectRef(AsnType &comp, const char *plain, const char *nested)
  {
    std::string text;
    EXPECT_EQ(perDefaultRef(text, "if (", comp, "!=", false), plain);
    EXPECT_EQ(perDefaultRef(text, "(", comp, "!=", true), nested);
  }
  static TNode extensibleEnum(std::initializer_list<int> options = {})
  {
    TNode result = node(TYP_ENUM, VF_I8, options);
    result.nodeFlags |= extensibleBit;
    return result;
  }
  static constexpr uint32_t extensibleBit = 0x0080;
};

TEST_F(PerDefault, InTheStructure)
{
  int32_t seq = define("T", node(TYP_SEQ, VF_STRU));
  comp(seq, "a", node(TYP_INTEGER, VF_I32));
  comp(seq, "b", extensibleEnum());
  start();
  TestType view(module, seq);
  atComp(*view, 0, [&](AsnType &a) {
    EXPECT_EQ(perDefaultHome(a), DEFAULT_IN_STRUCTURE);
    expectRef(a, "if (home->a_fld != ", "(home->a_fld != ");
    // A variable of a structure around does not matter.
    cIncHomeVarCount();
    EXPECT_EQ(perDefaultHome(a), DEFAULT_IN_STRUCTURE);
    expectRef(a, "if (h1->a_fld != ", "(h1->a_fld != ");
    cDecHomeVarCount();
  });
  atComp(*view, 1, [&](AsnType &b) {
    expectRef(b, "if (home->b_fld.value != ", "(home->b_fld.value != ");
  });
}

// Bound to a variable, even if the components have homes.
TEST_F(PerDefault, InALocalHome)
{
  int32_t seq = define("T", node(TYP_SEQ, VF_STRU, {optAsnHome}));
  comp(seq, "a", node(TYP_INTEGER, VF_I32, {optAsnHome}));
  start();
  TestType view(module, seq);
  cIncHomeVarCount();
  cIncHomeVarCount();
  atComp(*view, 0, [&](AsnType &a) {
    EXPECT_EQ(perDefaultHome(a), DEFAULT_IN_LOCAL_HOME);
    expectRef(a, "if (h2->a_fld != ", "(h2->a_fld != ");
  });
}

// Without a variable the structure is named from its home in a larger test.
TEST_F(PerDefault, InAHomeWithoutVariable)
{
  int32_t seq = define("T", node(TYP_SEQ, VF_STRU, {optAsnHome}));
  comp(seq, "a", node(TYP_INTEGER, VF_I32));
  start();
  TestType view(module, seq);
  atComp(*view, 0, [&](AsnType &a) {
    EXPECT_EQ(perDefaultHome(a), DEFAULT_IN_STRUCTURE);
    expectRef(a, "if (home->a_fld != ", "(((T *)*home->val.stru)->a_fld != ");
  });
}

TEST_F(PerDefault, InItsOwnHome)
{
  int32_t seq = define("T", node(TYP_SEQ, VF_STRU));
  comp(seq, "a", node(TYP_INTEGER, VF_I32, {optAsnHome}));
  comp(seq, "b", extensibleEnum({optAsnHome}));
  int32_t homes = define("U", node(TYP_SEQ, VF_STRU, {optAsnhc}));
  comp(homes, "a", node(TYP_BOOLEAN, VF_BOOL));
  start();
  TestType view(module, seq);
  atComp(*view, 0, [&](AsnType &a) {
    EXPECT_EQ(perDefaultHome(a), DEFAULT_IN_OWN_HOME);
    expectRef(a, "if (home->a_fld->val.i32 != ", "(home->a_fld->val.i32 != ");
  });
  atComp(*view, 1, [&](AsnType &b) {
    expectRef(b, "if (home->b_fld->val.xenum.value != ",
              "(home->b_fld->val.xenum.value != ");
  });
  TestType structure(module, homes);
  atComp(*structure, 0, [&](AsnType &a) {
    EXPECT_EQ(perDefaultHome(a), DEFAULT_IN_OWN_HOME);
    expectRef(a, "if (home->a_fld->val.bool != ", "(home->a_fld->val.bool != ");
  });
}

// The table of homes goes ahead of all else.
TEST_F(PerDefault, InATableOfHomes)
{
  int32_t seq = define("T", node(TYP_SEQ, VF_STRU, {optAsnhc, optAsnHome}));
  comp(seq, "a", node(TYP_BOOLEAN, VF_BOOL));
  comp(seq, "b", node(TYP_INTEGER, VF_I32));
  start();
  TestType view(module, seq);
  inEntryFunction(*view);
  atComp(*view, 1, [&](AsnType &b) {
    EXPECT_EQ(perDefaultHome(b), DEFAULT_IN_HOMETAB);
    expectRef(b, "if (hometab [1]->val.i32 != ", "(hometab [1]->val.i32 != ");
  });
}

// --- values

struct PerDefaultValue : LoadedAsn {
  // The text for the first component of T, which has a DEFAULT value.
  std::string textOf(const std::string &comp)
  {
    load("T ::= SEQUENCE { a " + comp + " }");
    TestType view(module, type("T"));
    return writtenText([&](int) {
      forEachTypeComp(*view, [](AsnType &, AsnType &a, int) {
        forDefaultValue(a, [](AsnType &c, AsnValue &value) {
          perDefaultValueToF(1, "if (x != ", c, value, ")");
        });
      });
    });
  }
};

TEST_F(PerDefaultValue, Supported)
{
  EXPECT_EQ(textOf("INTEGER DEFAULT -5"), "if (x != -5)");
  EXPECT_EQ(textOf("INTEGER { five(5) } DEFAULT five"), "if (x != 5)");
  EXPECT_EQ(textOf("BOOLEAN DEFAULT TRUE"), "if (x != TRUE)");
  EXPECT_EQ(textOf("BOOLEAN DEFAULT FALSE"), "if (x != FALSE)");
  EXPECT_EQ(textOf("ENUMERATED { b(3), c(7) } DEFAULT c"), "if (x != 7)");
}

// The reference is left out; the text stops the compiler.
TEST_F(PerDefaultValue, NotSupported)
{
  const char *text = "?!?:ERROR in code generation with DEFAULT values\n"
                     "?!?:Unsupported type for DEFAULT value\n";
  EXPECT_EQ(textOf("NULL DEFAULT NULL"), text);
  EXPECT_EQ(textOf("OCTET STRING DEFAULT '00'H"), text);
}

// One text, which no line break cuts.
TEST_F(PerDefaultValue, OnePiece)
{
  load("T ::= SEQUENCE { a INTEGER DEFAULT 3 }");
  TestType view(module, type("T"));
  EXPECT_EQ(brokenTexts([&](int) {
              forEachTypeComp(*view, [](AsnType &, AsnType &a, int) {
                forDefaultValue(a, [](AsnType &c, AsnValue &value) {
                  perDefaultValueToF(1, "if (x != ", c, value, ")");
                });
              });
            }),
            std::set<std::string>{"if (x != 3)"});
}

}  // namespace
