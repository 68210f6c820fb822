// Presence of components in generated code.

#include "base/strings.h"
#include "cbet/cpresence.h"
#include "support/fragtrees.h"

struct CPresence : FragTrees {
  int32_t foo;
  CPresence() { foo = define("Foo", node(TYP_SEQ, VF_STRU, {}, VF_I32)); }

  static TNode integer(int status = TCS_MANDATORY)
  {
    TNode result = node(TYP_INTEGER, VF_I32);
    result.compStatus = status;
    return result;
  }
  // a, b OPTIONAL
  void addTwo()
  {
    comp(foo, "a", integer());
    comp(foo, "b", integer(TCS_OPTIONAL));
  }
  // What `write` makes of the component, whose name is not on the path.
  template <class F>
  std::string of(int number, F write)
  {
    TestType type(module, foo);
    atComp(
        *type, number, [&](AsnType &c) { write(*c.father, c); }, false);
    return written();
  }
  template <class F>
  std::string inHometab(int number, F write)
  {
    TestType type(module, foo);
    inEntryFunction(*type);
    atComp(
        *type, number, [&](AsnType &c) { write(*c.father, c); }, false);
    return written();
  }
};

static void testComp(AsnType &father, AsnType &comp)
{
  cTestComponent(1, father, comp);
}
static void wholeTest(AsnType &father, AsnType &comp)
{
  cBeginTestOptionalComp(1, father, comp);
  wToF(1, "x;\n");
  cEndTestOptionalComp(1, father, comp);
}

// --- optional components ----------------------------------------------------

TEST_F(CPresence, ByMask)
{
  addTwo();
  start();
  EXPECT_EQ(of(1, testComp), "(home->compmask & BITL(1))");
  EXPECT_EQ(of(1, wholeTest), "if ((home->compmask & BITL(1))){\n"
                              "  x;\n"
                              "}\n");
}

TEST_F(CPresence, MandatoryComponent)
{
  addTwo();
  start();
  EXPECT_EQ(of(0, wholeTest), "x;\n");
}

TEST_F(CPresence, ByTheMaskOfAnInnerStructure)
{
  int32_t inner = comp(foo, "in", node(TYP_SET, VF_STRU, {}, VF_UI8));
  comp(inner, "a", integer(TCS_OPTIONAL));
  start();
  TestType type(module, foo);
  atComp(*type, 0, [](AsnType &father) {
    atComp(father, 0, [&](AsnType &c) { cTestOptionalComp(1, father, c); });
  });
  EXPECT_EQ(written(), "(home->in_fld.compmask & BIT(0))");
}

// The test asks the structure even if its mask has no size.
TEST_F(CPresence, ByAMaskWithoutSize)
{
  addTwo();
  at(foo).valueFieldSize = VF_NONE;
  start();
  EXPECT_EQ(of(1, testComp), "(home->compmask & BIT(1))");
}

// A structure in a home is named by the variable that is bound to it.
TEST_F(CPresence, ByTheMaskInABlock)
{
  int32_t inner = comp(foo, "in", node(TYP_SEQ, VF_STRU, {optAsnHome}, VF_UI8));
  comp(inner, "a", integer(TCS_OPTIONAL));
  start();
  localVarCount[VAR_HOME] = 2;
  TestType type(module, foo);
  atComp(*type, 0, [](AsnType &father) {
    atComp(father, 0, [&](AsnType &c) { cTestOptionalComp(1, father, c); });
  });
  EXPECT_EQ(written(), "(h2->compmask & BIT(0))");
}

TEST_F(CPresence, InTheHometab)
{
  addTwo();
  start();
  EXPECT_EQ(inHometab(1, testComp), "(hometab [1])");
  EXPECT_EQ(inHometab(1, wholeTest), "if ((hometab [1])){\n"
                                     "  x;\n"
                                     "}\n");
}

// Only entry functions of VARNO applications have the table.
TEST_F(CPresence, NotInTheHometab)
{
  addTwo();
  start();
  TestType type(module, foo);
  inEntryFunction(*type);
  options().definitionCategory = 0;
  atComp(
      *type, 1, [](AsnType &c) { testComp(*c.father, c); }, false);
  EXPECT_EQ(written(), "(home->compmask & BITL(1))");
}

TEST_F(CPresence, ByHome)
{
  addTwo();
  at(foo).nodeOptions |= 1u << optAsnhc;
  start();
  TestType type(module, foo);
  // In the walk the name is there; elsewhere the test puts it there.
  for (bool onPath : {true, false}) {
    atComp(
        *type, 1,
        [&](AsnType &c) {
          std::string before = getPath();
          uint32_t length = c.typePathLen;
          wholeTest(*type, c);
          EXPECT_EQ(getPath(), before);
          EXPECT_EQ(c.typePathLen, length);
        },
        onPath);
    EXPECT_EQ(written(), "if (home->b_fld){\n"
                         "  x;\n"
                         "}\n")
        << onPath;
    EXPECT_STREQ(getPath(), "");
  }
}

TEST_F(CPresence, Cut)
{
  addTwo();
  start();
  TestType type(module, foo);
  atComp(*type, 1, [&](AsnType &c) {
    EXPECT_EQ(pieces([&] { wholeTest(*type, c); }),
              "if (|(home->compmask & BITL(1))){|x;|}");
    EXPECT_TRUE(endsApart([&] {
      cBeginTestOptionalComp(1, *type, c);
      --fArr[1].indent;
    }));
  });
}

// --- addition groups --------------------------------------------------------

struct CGroupPresence : CPresence {
  // a, ..., [[b OPTIONAL, c OPTIONAL]], [[d, e OPTIONAL]]
  CGroupPresence()
  {
    comp(foo, "a", integer());
    marker(foo);
    int32_t first = comp(foo, "", TYP_EXTADDGRP);
    comp(first, "b", integer(TCS_OPTIONAL));
    comp(first, "c", integer(TCS_OPTIONAL));
    int32_t second = comp(foo, "", TYP_EXTADDGRP);
    comp(second, "d", integer());
    comp(second, "e", integer(TCS_OPTIONAL));
  }
};

TEST_F(CGroupPresence, AnyMember)
{
  start();
  EXPECT_EQ(of(2, wholeTest), "if ((home->compmask & BITL(2)) || "
                              "(home->compmask & BITL(3))){\n"
                              "  x;\n"
                              "}\n");
}

TEST_F(CGroupPresence, WithAMandatoryMember)
{
  start();
  EXPECT_EQ(of(4, wholeTest), "x;\n");
}

TEST_F(CGroupPresence, InTheHometab)
{
  start();
  EXPECT_EQ(inHometab(2, testComp), "(hometab [2]) || (hometab [3])");
}

TEST_F(CGroupPresence, ByHomes)
{
  at(foo).nodeOptions |= 1u << optAsnhc;
  start();
  EXPECT_EQ(of(2, testComp), "home->b_fld || home->c_fld");
  EXPECT_STREQ(getPath(), "");
}

TEST_F(CGroupPresence, Cut)
{
  start();
  TestType type(module, foo);
  atComp(
      *type, 2,
      [&](AsnType &c) {
        EXPECT_EQ(pieces([&] { wholeTest(*type, c); }),
                  "if (|(home->compmask & BITL(2))||| |"
                  "(home->compmask & BITL(3))){|x;|}");
      },
      false);
}

// --- components of a SET ----------------------------------------------------

struct CSetPresence : CPresence {
  // A SET with components that are mandatory ("m"), optional ("o") or the
  // marker (".").
  void define_(const std::string &comps, int size)
  {
    foo = define("S", node(TYP_SET, VF_STRU, {}, size));
    for (size_t i = 0; i < comps.size(); ++i) {
      std::string name = "c" + std::to_string(i);
      if (comps[i] == '.')
        marker(foo);
      else
        comp(foo, name,
             integer(comps[i] == 'o' ? TCS_OPTIONAL : TCS_MANDATORY));
    }
  }
  std::string missing(const std::string &comps, int size)
  {
    tree = stxNewTree("M", "m");
    stxImport(tree, "N", "n", true);
    define_(comps, size);
    start();
    return missingNow();
  }
  // The test alone.
  std::string missingNow()
  {
    TestType type(module, foo);
    cBeginTestMissingSetMandatoryComps(1, *type);
    wToF(1, "x;\n");
    cEndTestMissingSetMandatoryComps(1, *type);
    std::string text = written();
    const std::string body = "{\n  x;\n}\n";
    if (!text.ends_with(body))
      return text;
    return text.substr(0, text.size() - body.size());
  }
};

TEST_F(CSetPresence, Duplicate)
{
  define_("mo", VF_I32);
  start();
  auto test = [](AsnType &, AsnType &c) {
    cBeginTestDuplicateSetComp(1, c);
    wToF(1, "x;\n");
    cEndTestDuplicateSetComp(1);
  };
  EXPECT_EQ(of(0, test), "if (home->compmask & BITL(0)){\n"
                         "  x;\n"
                         "}\n");
}

// Without OPTIONAL components the mask is a local variable.
TEST_F(CSetPresence, DuplicateByTheLocalMask)
{
  define_("mm", VF_UI8);
  start();
  EXPECT_EQ(of(1,
               [](AsnType &, AsnType &c) {
                 cBeginTestDuplicateSetComp(1, c);
                 cEndTestDuplicateSetComp(1);
               }),
            "if (compmask & BIT(1)){\n}\n");
}

TEST_F(CSetPresence, MissingFillsTheMask)
{
  std::string eight(8, 'm');
  for (int size : {VF_UI8, VF_I8})
    EXPECT_EQ(missing(eight, size), "if (~compmask)");
  for (int size : {VF_UI16, VF_I16})
    EXPECT_EQ(missing(eight + eight, size), "if (~compmask)");
  for (int size : {VF_UI32, VF_I32})
    EXPECT_EQ(missing(eight + eight + eight + eight, size), "if (~compmask)");
}

TEST_F(CSetPresence, MissingInPartOfTheMask)
{
  for (int size : {VF_UI8, VF_I8})
    EXPECT_EQ(missing("mmm", size), "if ((sint8)((~compmask) << 5))");
  for (int size : {VF_UI16, VF_I16})
    EXPECT_EQ(missing("mmm", size), "if ((sint16)((~compmask) << 13))");
  for (int size : {VF_UI32, VF_I32})
    EXPECT_EQ(missing("mmm", size), "if ((~compmask) << 29)");
}

// The last word that is tested lies behind the mask.
TEST_F(CSetPresence, MissingInWords)
{
  EXPECT_EQ(missing(std::string(33, 'm'), VF_UI32),
            "if (~compmask [0] || ~compmask [1] || ((~compmask [2]) << 31))");
  EXPECT_EQ(missing(std::string(64, 'm'), VF_UI32),
            "if (~compmask [0] || ~compmask [1] || ((~compmask [2]) << 32))");
  EXPECT_EQ(missing(std::string(65, 'm'), VF_UI32),
            "if (~compmask [0] || ~compmask [1] || ~compmask [2]\n"
            "  || ((~compmask [3]) << 31))");
}

TEST_F(CSetPresence, MissingAmongOptionalComps)
{
  EXPECT_EQ(missing("mom", VF_UI8), "if ((~home->compmask & (BIT(0)|BIT(2))))");
  EXPECT_EQ(missing("om", VF_I32), "if ((~home->compmask & (BITL(1))))");
  // The marker is no mandatory component.
  EXPECT_EQ(missing("mo.m", VF_UI8),
            "if ((~home->compmask & (BIT(0)|BIT(3))))");
}

TEST_F(CSetPresence, MissingAmongOptionalCompsOfALocalMask)
{
  EXPECT_EQ(missing("mo", VF_NONE), "if ((~compmask & (BIT(0))))");
}

TEST_F(CSetPresence, MissingAmongOptionalCompsInWords)
{
  std::string comps =
      "m" + std::string(31, 'o') + "mm" + std::string(30, 'o') + "o" + "m";
  EXPECT_EQ(missing(comps, VF_I32),
            "if ((~home->compmask[0] & (BITL(0))) || (~home->compmask[1] & "
            "(BITL(0)|BITL(1))) || (\n"
            "  ~home->compmask[2] & (BITL(1))))");
}

TEST_F(CSetPresence, NothingMandatory)
{
  EXPECT_EQ(missing("oo", VF_UI8), "x;\n");
}

TEST_F(CSetPresence, MissingIsInBlocks)
{
  define_("m", VF_UI8);
  start();
  TestType type(module, foo);
  cBeginTestMissingSetMandatoryComps(1, *type);
  EXPECT_EQ(fArr[1].indent, 1);
  cEndTestMissingSetMandatoryComps(1, *type);
  EXPECT_EQ(fArr[1].indent, 0);
  EXPECT_EQ(written(), "if ((sint8)((~compmask) << 7)){\n}\n");
}

// What joins two words stays on the line.
TEST_F(CSetPresence, CutOfMissing)
{
  define_("mom" + std::string(30, 'o') + "m", VF_UI32);
  start();
  TestType type(module, foo);
  EXPECT_EQ(pieces([&] {
              cBeginTestMissingSetMandatoryComps(1, *type);
              cEndTestMissingSetMandatoryComps(1, *type);
            }),
            "if ((|~home->compmask|[0]|& (|BIT(0)||BIT(2))) || (|"
            "~home->compmask|[1]|& (|BIT(1)|))){|}");
}
