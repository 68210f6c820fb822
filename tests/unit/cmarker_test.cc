// The extension marker and the control members of structures.

#include "base/strings.h"
#include "cbet/cmarker.h"
#include "support/fragtrees.h"

using testing::ExitedWithCode;

constexpr int perArg = 4;

// Structures with components a and b and the marker as number 2, top-level
// and as the first component of Outer.
struct CMarker : FragTrees {
  int32_t plain(int mainType, std::initializer_list<int> options = {},
                int size = VF_UI8)
  {
    int32_t index = define("Foo", node(mainType, VF_STRU, options, size));
    fill(index);
    return index;
  }
  int32_t inner(int mainType, std::initializer_list<int> options = {},
                std::initializer_list<int> outerOptions = {})
  {
    int32_t outer = define("Outer", node(TYP_SEQ, VF_STRU, outerOptions));
    fill(comp(outer, "in", node(mainType, VF_STRU, options, VF_I32)));
    return outer;
  }
  void fill(int32_t father)
  {
    comp(father, "a", node(TYP_INTEGER, VF_I32));
    comp(father, "b", optional(node(TYP_INTEGER, VF_I32)));
    marker(father);
    comp(father, "c", optional(node(TYP_INTEGER, VF_I32)));
  }
  // A SEQUENCE with the marker behind `ahead` components.
  int32_t wide(int ahead, int size = VF_UI8)
  {
    int32_t index = define("Foo", node(TYP_SEQ, VF_STRU, {}, size));
    for (int i = 0; i < ahead; ++i)
      comp(index, "c" + std::to_string(i), node(TYP_INTEGER, VF_I32));
    marker(index);
    return index;
  }

  // What `write` makes of the structure.
  template <class F>
  std::string of(int32_t record, F write)
  {
    TestType type(module, record);
    write(*type);
    return written();
  }
  template <class F>
  std::string ofInner(int32_t outer, F write)
  {
    TestType type(module, outer);
    atComp(*type, 0, write);
    return written();
  }
  template <class F>
  std::string inHometab(int32_t record, F write)
  {
    TestType type(module, record);
    inEntryFunction(*type);
    write(*type);
    glbGeneratingEntryFunction = false;
    return written();
  }
};

// --- reaching the marker ----------------------------------------------------

// "VALUE|&VALUE|HOME|&HOME".
static void paths(AsnType &type)
{
  std::string path;
  putToF(1, extensionmarkerPath(path, "", type, false, true, "|").c_str());
  putToF(1, extensionmarkerPath(path, "", type, true, true, "|").c_str());
  putToF(1, extensionmarkerPath(path, "", type, false, false, "|").c_str());
  putToF(1, extensionmarkerPath(path, "", type, true, false, "").c_str());
}

struct CMarkerPath : CMarker {};

TEST_F(CMarkerPath, InTheHometab)
{
  int32_t record = plain(TYP_SEQ);
  start();
  EXPECT_EQ(inHometab(record, paths),
            "*hometab [2]->val.extensionmarker|"
            "hometab [2]->val.extensionmarker|hometab [2]|&hometab [2]");
}

TEST_F(CMarkerPath, Field)
{
  int32_t record = plain(TYP_SEQ);
  start();
  EXPECT_EQ(of(record, paths), "home->extensionmarker|&home->extensionmarker|"
                               "home->extensionmarker|&home->extensionmarker");
}

TEST_F(CMarkerPath, FieldOfAnInnerStructure)
{
  int32_t outer = inner(TYP_SET);
  start();
  EXPECT_EQ(ofInner(outer,
                    [](AsnType &type) {
                      std::string path;
                      extensionmarkerPath(path, "<", type, true, false, ">");
                      wToF(1, path.c_str());
                    }),
            "<&home->in_fld.extensionmarker>");
}

TEST_F(CMarkerPath, FieldOfAChoice)
{
  int32_t record = plain(TYP_CHOICE);
  start();
  EXPECT_EQ(of(record,
               [](AsnType &type) {
                 std::string path;
                 extensionmarkerPath(path, nullptr, type, true, true, nullptr);
                 wToF(1, path.c_str());
               }),
            "&home->i1.extensionmarker");
}

TEST_F(CMarkerPath, FieldInABlock)
{
  int32_t outer = inner(TYP_SEQ, {optAsnHome});
  start();
  localVarCount[VAR_HOME] = 1;
  EXPECT_EQ(ofInner(outer, paths), "h1->extensionmarker|&h1->extensionmarker|"
                                   "h1->extensionmarker|&h1->extensionmarker");
}

TEST_F(CMarkerPath, Home)
{
  int32_t record = plain(TYP_SEQ, {optAsnhc});
  start();
  EXPECT_EQ(of(record, paths), "*home->extensionmarker->val.extensionmarker|"
                               "home->extensionmarker->val.extensionmarker|"
                               "home->extensionmarker|&home->extensionmarker");
  EXPECT_STREQ(getPath(), "");
}

TEST_F(CMarkerPath, HomeOfAnInnerStructure)
{
  int32_t outer = inner(TYP_SEQ, {optAsnhc});
  start();
  EXPECT_EQ(ofInner(outer,
                    [](AsnType &type) {
                      std::string path;
                      extensionmarkerPath(path, "<", type, true, false, ">");
                      wToF(1, path.c_str());
                      EXPECT_STREQ(getPath(), ".in_fld");
                    }),
            "<&home->in_fld.extensionmarker>");
}

TEST_F(CMarkerPath, HomeOfAStructureByPointer)
{
  int32_t outer = inner(TYP_SEQ, {optAsnhc, optPointer});
  start();
  EXPECT_EQ(ofInner(outer,
                    [](AsnType &type) {
                      std::string path;
                      extensionmarkerPath(path, "<", type, false, false, ">");
                      wToF(1, path.c_str());
                      EXPECT_STREQ(getPath(), ".in_fld");
                    }),
            "<home->in_fld->extensionmarker>");
}

TEST_F(CMarkerPath, HomesAreNeeded)
{
  int32_t record = plain(TYP_SEQ);
  start();
  TestType type(module, record);
  std::string path;
  EXPECT_EXIT(extensionmarkerPathForAsnhcComp(path, "", *type, true, true, ""),
              ExitedWithCode(2), "");
}

TEST_F(CMarkerPath, FirstOfTwoMarkers)
{
  int32_t record = plain(TYP_SEQ, {optAsnhc});
  marker(record);
  start();
  EXPECT_EQ(inHometab(record, paths),
            "*hometab [2]->val.extensionmarker|"
            "hometab [2]->val.extensionmarker|hometab [2]|&hometab [2]");
}

static void refer(AsnType &type)
{
  std::string path = "old";
  cRefExtensionmarker(path, "<", type, ">");
  wToF(1, path.c_str());
}

TEST_F(CMarkerPath, Reference)
{
  int32_t sequence = plain(TYP_SEQ);
  int32_t set = plain(TYP_SET, {optAsnhc});
  int32_t choice = plain(TYP_CHOICE);
  start();
  EXPECT_EQ(of(sequence, refer), "<&home->extensionmarker>");
  EXPECT_EQ(of(set, refer), "<home->extensionmarker->val.extensionmarker>");
  EXPECT_EQ(of(choice, refer), "<&home->i1.extensionmarker>");
}

TEST_F(CMarkerPath, NoReferenceWithoutAMarker)
{
  int32_t closed = define("Closed", node(TYP_SEQ, VF_STRU));
  comp(closed, "a", node(TYP_INTEGER, VF_I32));
  int32_t enumeration = define("Open", node(TYP_ENUM, VF_UI8));
  stxAddNamedNumber(tree, enumeration, "a", 0);
  stxAddNamedMarker(tree, enumeration);
  start();
  EXPECT_EQ(of(closed, refer), "");
  EXPECT_EQ(of(enumeration, refer), "");
}

// --- testing ----------------------------------------------------------------

struct CMarkerTest : CMarker {};

static void testPresent(AsnType &type)
{
  cBeginTestExtensionmarker(1, type);
  wToF(1, "x;\n");
  cEndTestExtensionmarker(1, type);
}
static void testAbsent(AsnType &type)
{
  cBeginTestNonexistentExtensionmarker(1, type);
  wToF(1, "x;\n");
  cEndTestExtensionmarker(1, type);
}

TEST_F(CMarkerTest, InTheHometab)
{
  int32_t record = plain(TYP_CHOICE);
  start();
  EXPECT_EQ(inHometab(record, testPresent), "if (hometab [2]){\n  x;\n}\n");
  EXPECT_EQ(inHometab(record, testAbsent), "if (!hometab [2]){\n  x;\n}\n");
}

TEST_F(CMarkerTest, ByHome)
{
  int32_t record = plain(TYP_CHOICE, {optAsnhc});
  start();
  EXPECT_EQ(of(record, testPresent), "if (home->extensionmarker){\n  x;\n}\n");
  EXPECT_EQ(of(record, testAbsent), "if (!home->extensionmarker){\n  x;\n}\n");
}

TEST_F(CMarkerTest, ByMask)
{
  int32_t sequence = plain(TYP_SEQ);
  int32_t outer = inner(TYP_SET);
  start();
  EXPECT_EQ(of(sequence, testPresent),
            "if (home->compmask & BIT(2)){\n  x;\n}\n");
  EXPECT_EQ(of(sequence, testAbsent),
            "if (!(home->compmask & BIT(2))){\n  x;\n}\n");
  EXPECT_EQ(ofInner(outer, testPresent),
            "if (home->in_fld.compmask & BITL(2)){\n  x;\n}\n");
  EXPECT_EQ(ofInner(outer, testAbsent),
            "if (!(home->in_fld.compmask & BITL(2))){\n  x;\n}\n");
}

TEST_F(CMarkerTest, ByMaskInABlock)
{
  int32_t outer = inner(TYP_SEQ, {optAsnHome});
  start();
  localVarCount[VAR_HOME] = 1;
  EXPECT_EQ(ofInner(outer, testPresent),
            "if (h1->compmask & BITL(2)){\n  x;\n}\n");
}

TEST_F(CMarkerTest, ByMaskInWords)
{
  int32_t full = wide(31);
  int32_t above = wide(32);
  int32_t far = wide(70);
  start();
  EXPECT_EQ(of(full, testPresent), "if (home->compmask & BIT(31)){\n  x;\n}\n");
  EXPECT_EQ(of(above, testPresent),
            "if (home->compmask [1] & BITL(0)){\n  x;\n}\n");
  EXPECT_EQ(of(far, testAbsent),
            "if (!(home->compmask [2] & BITL(6))){\n  x;\n}\n");
}

TEST_F(CMarkerTest, CaseOfAChoice)
{
  int32_t record = plain(TYP_CHOICE);
  start();
  for (auto test : {testPresent, testAbsent})
    EXPECT_EQ(of(record, test), "case 2:\n"
                                "  {\n"
                                "    x;\n"
                                "  }\n"
                                "  break;\n");
  EXPECT_EQ(fArr[1].indent, 0);
}

TEST_F(CMarkerTest, NothingWithoutAMarker)
{
  int32_t closed = define("Closed", node(TYP_SEQ, VF_STRU));
  comp(closed, "a", node(TYP_INTEGER, VF_I32));
  int32_t sized = define("Sized", node(TYP_SEQOF, VF_STRU));
  comp(sized, "", node(TYP_INTEGER, VF_I32));
  at(sized).nodeFlags |= NF_EXTENSIBLE;
  start();
  for (int32_t record : {closed, sized}) {
    EXPECT_EQ(of(record, testPresent), "x;\n");
    EXPECT_EQ(of(record, testAbsent), "x;\n");
  }
}

TEST_F(CMarkerTest, Cut)
{
  int32_t sequence = plain(TYP_SEQ);
  int32_t homes = plain(TYP_SEQ, {optAsnhc});
  start();
  TestType first(module, sequence);
  EXPECT_EQ(pieces([&] { testAbsent(*first); }),
            "if (!(home->compmask & BIT(2))){|x;|}");
  TestType second(module, homes);
  EXPECT_EQ(pieces([&] { testPresent(*second); }),
            "if (home->extensionmarker){|x;|}");
}

// --- initialising -----------------------------------------------------------

struct CMarkerInit : CMarker {};

static void initSingle(AsnType &type)
{
  cInitExtensionmarker(1, type, perArg, true);
}
static void initEach(AsnType &type)
{
  cInitExtensionmarkerMult(1, type, perArg);
}

TEST_F(CMarkerInit, Field)
{
  int32_t sequence = plain(TYP_SEQ, {optExtMarkerField});
  int32_t choice = plain(TYP_CHOICE, {optExtMarkerField});
  int32_t homes = plain(TYP_SEQ, {optExtMarkerField, optAsnhc});
  start();
  const char *text = "initExtensionmarker (&home->extensionmarker);\n";
  EXPECT_EQ(of(sequence, initSingle), text);
  EXPECT_EQ(of(sequence, initEach), "");
  EXPECT_EQ(of(choice, initSingle), "");
  EXPECT_EQ(of(choice, initEach),
            "initExtensionmarker (&home->i1.extensionmarker);\n");
  EXPECT_EQ(of(homes, initSingle), "");
  EXPECT_EQ(inHometab(sequence, initSingle), "");
}

TEST_F(CMarkerInit, FieldInAHome)
{
  int32_t sequence = plain(TYP_SEQ, {optExtMarkerField});
  int32_t homes = plain(TYP_SET, {optExtMarkerField, optAsnhc});
  start();
  EXPECT_EQ(of(homes, initEach),
            "createHome (NULL, &home->extensionmarker, VF_STRU, "
            "sizeof (EXTENSIONMARKER));\n"
            "initExtensionmarker (home->extensionmarker->val.extensionmarker)"
            ";\n");
  EXPECT_EQ(inHometab(sequence, initEach),
            "createHome (NULL, &hometab [2], VF_STRU, "
            "sizeof (EXTENSIONMARKER));\n"
            "initExtensionmarker (hometab [2]->val.extensionmarker);\n");
}

TEST_F(CMarkerInit, NoField)
{
  int32_t sequence = plain(TYP_SEQ);
  int32_t choice = plain(TYP_CHOICE);
  int32_t homes = plain(TYP_SEQ, {optAsnhc});
  start();
  for (int32_t record : {sequence, choice, homes})
    EXPECT_EQ(of(record, initSingle), "") << record;
  EXPECT_EQ(of(sequence, initEach), "");
  EXPECT_EQ(of(choice, initEach), "");
  EXPECT_EQ(of(homes, initEach),
            "createHome (NULL, &home->extensionmarker, VF_NULL, 0);\n");
  EXPECT_EQ(inHometab(sequence, initSingle), "");
  EXPECT_EQ(inHometab(sequence, initEach),
            "createHome (NULL, &hometab [2], VF_NULL, 0);\n");
  options().memory = 1;
  EXPECT_EQ(of(homes, initEach),
            "createHome (getHomeG (asnperg_asnuti), &home->extensionmarker, "
            "VF_NULL, 0);\n");
}

TEST_F(CMarkerInit, MultIsTheSameWithoutSingle)
{
  int32_t homes = plain(TYP_SET, {optExtMarkerField, optAsnhc});
  start();
  EXPECT_EQ(of(homes, initEach), of(homes, [](AsnType &type) {
              cInitExtensionmarker(1, type, perArg, false);
            }));
}

TEST_F(CMarkerInit, Cut)
{
  int32_t sequence = plain(TYP_SEQ, {optExtMarkerField});
  int32_t homes = plain(TYP_SEQ, {optExtMarkerField, optAsnhc});
  int32_t without = plain(TYP_SEQ, {optAsnhc});
  start();
  options().memory = 1;
  TestType first(module, sequence);
  auto init = [&] { initSingle(*first); };
  EXPECT_EQ(pieces(init), "initExtensionmarker (|&home->extensionmarker);");
  EXPECT_TRUE(endsApart(init));
  TestType second(module, homes);
  EXPECT_EQ(pieces([&] { initEach(*second); }),
            "createHome (|getHomeG (asnperg_asnuti),|&home->extensionmarker,|"
            "VF_STRU,|sizeof (EXTENSIONMARKER));|initExtensionmarker (|"
            "home->extensionmarker->val.extensionmarker);");
  TestType third(module, without);
  EXPECT_EQ(pieces([&] { initEach(*third); }),
            "createHome (|getHomeG (asnperg_asnuti),|&home->extensionmarker,|"
            "VF_NULL,|0);");
}

// --- freeing ----------------------------------------------------------------

static void freeMarker(AsnType &type)
{
  cFreeAsnExtensionmarker(1, type);
}

struct CMarkerFree : CMarker {};

TEST_F(CMarkerFree, Home)
{
  int32_t record = plain(TYP_SEQ, {optAsnhc});
  int32_t outer = inner(TYP_SEQ, {optAsnhc});
  int32_t choice = plain(TYP_CHOICE);
  start();
  EXPECT_EQ(of(record, freeMarker),
            "freeAsn (&home->extensionmarker, FREE_STG);\n");
  EXPECT_EQ(ofInner(outer, freeMarker),
            "freeAsn (&home->in_fld.extensionmarker, FREE_STG);\n");
  EXPECT_EQ(inHometab(choice, freeMarker),
            "freeAsn (&hometab [2], FREE_STG);\n");
}

TEST_F(CMarkerFree, Nothing)
{
  int32_t sequence = plain(TYP_SEQ, {optExtMarkerField});
  int32_t closed = define("Closed", node(TYP_SEQ, VF_STRU, {optAsnhc}));
  comp(closed, "a", node(TYP_INTEGER, VF_I32));
  start();
  EXPECT_EQ(of(sequence, freeMarker), "");
  EXPECT_EQ(of(closed, freeMarker), "");
}

TEST_F(CMarkerFree, Cut)
{
  int32_t record = plain(TYP_SEQ, {optAsnhc});
  start();
  TestType type(module, record);
  EXPECT_EQ(pieces([&] { freeMarker(*type); }),
            "freeAsn (|&home->extensionmarker,|FREE_STG);");
}

// --- control member of a component ------------------------------------------

static void setMember(AsnType &comp)
{
  cSetControlMember(1, comp);
}
static void testMember(AsnType &comp)
{
  cTestControlMember(1, comp);
}
static void negTestMember(AsnType &comp)
{
  cNegTestControlMember(1, comp);
}

struct CCompMember : CMarker {
  // The three texts, joined by "|".
  std::string texts(int32_t record, int number)
  {
    TestType type(module, record);
    atComp(*type, number, setMember);
    std::string result = written();
    for (auto write : {testMember, negTestMember}) {
      atComp(*type, number, write);
      result += "|" + written();
    }
    return result;
  }
};

TEST_F(CCompMember, OfASequence)
{
  int32_t record = plain(TYP_SEQ);
  start();
  EXPECT_EQ(texts(record, 1), "home->compmask |= BIT(1);\n|"
                              "if (home->compmask & BIT(1))|"
                              "if (!(home->compmask & BIT(1)))");
  EXPECT_EQ(texts(record, 0), "||");
}

TEST_F(CCompMember, OfAChoice)
{
  int32_t record = plain(TYP_CHOICE);
  start();
  EXPECT_EQ(texts(record, 3), "home->choice = 3;\n|"
                              "if (home->choice == 3)|"
                              "if (!(home->choice == 3))");
}

TEST_F(CCompMember, OfAStructureInABlock)
{
  int32_t outer = inner(TYP_SEQ, {optAsnHome});
  start();
  localVarCount[VAR_HOME] = 1;
  EXPECT_EQ(ofInner(outer, [](AsnType &type) { atComp(type, 1, setMember); }),
            "h1->compmask |= BITL(1);\n");
}

// The mask is a local variable.
TEST_F(CCompMember, OfAStructureWithoutMember)
{
  int32_t set = define("S", node(TYP_SET, VF_STRU, {}, VF_UI8));
  comp(set, "a", node(TYP_INTEGER, VF_I32));
  int32_t homes = plain(TYP_SEQ, {optAsnhc});
  int32_t unsized = plain(TYP_SEQ, {}, VF_NONE);
  start();
  EXPECT_EQ(texts(set, 0), "compmask |= BIT(0);\n|"
                           "if (compmask & BIT(0))|"
                           "if (!(compmask & BIT(0)))");
  for (int32_t record : {homes, unsized})
    EXPECT_EQ(texts(record, 1), "compmask |= BIT(1);\n|"
                                "if (compmask & BIT(1))|"
                                "if (!(compmask & BIT(1)))");
}

TEST_F(CCompMember, Cut)
{
  int32_t record = plain(TYP_SEQ);
  start();
  TestType type(module, record);
  const struct {
    void (*write)(AsnType &);
    const char *text;
  } cases[] = {
      {setMember, "xxx|home->compmask |= BIT(1);"},
      {testMember, "xxx|if (home->compmask & BIT(1))"},
      {negTestMember, "xxx|if (!(home->compmask & BIT(1)))"},
  };
  for (const auto &c : cases) {
    atComp(*type, 1, [&](AsnType &comp_) {
      auto behindText = [&] {
        wToF(1, "xxx");
        c.write(comp_);
      };
      EXPECT_EQ(pieces(behindText), c.text);
    });
  }
}

// --- control member of the marker -------------------------------------------

struct CMarkerMember : CMarker {
  int oper = glbExtensionmarkerOper;
  ~CMarkerMember() override { glbExtensionmarkerOper = oper; }
};

static void allOfMarker(AsnType &type)
{
  cSetExtensionmarkerControlMember(1, type);
  EXPECT_EQ(glbExtensionmarkerOper, 0);
  cTestExtensionmarkerControlMember(1, type);
  EXPECT_EQ(glbExtensionmarkerOper, 1);
  wToF(1, "\n");
  cClearExtensionmarkerControlMember(1, type);
  EXPECT_EQ(glbExtensionmarkerOper, 2);
}

TEST_F(CMarkerMember, OfASequence)
{
  int32_t record = plain(TYP_SEQ);
  start();
  EXPECT_EQ(of(record, allOfMarker), "home->compmask |= BIT(2);\n"
                                     "(home->compmask & BIT(2))\n"
                                     "home->compmask &= ~BIT(2);\n");
}

TEST_F(CMarkerMember, OfAChoice)
{
  int32_t record = plain(TYP_CHOICE);
  start();
  EXPECT_EQ(of(record, allOfMarker), "home->choice = 2;\n"
                                     "(home->choice == 2)\n"
                                     "home->choice = -1;\n");
}

TEST_F(CMarkerMember, InWords)
{
  int32_t record = wide(40);
  start();
  EXPECT_EQ(of(record, allOfMarker), "home->compmask [1] |= BITL(8);\n"
                                     "(home->compmask [1] & BITL(8))\n"
                                     "home->compmask [1] &= ~BITL(8);\n");
}

TEST_F(CMarkerMember, InABlock)
{
  int32_t outer = inner(TYP_SET, {optAsnHome});
  start();
  localVarCount[VAR_HOME] = 1;
  EXPECT_EQ(ofInner(outer, allOfMarker), "h1->compmask |= BITL(2);\n"
                                         "(h1->compmask & BITL(2))\n"
                                         "h1->compmask &= ~BITL(2);\n");
}

TEST_F(CMarkerMember, FirstOfTwoMarkers)
{
  int32_t record = plain(TYP_SEQ);
  marker(record);
  start();
  EXPECT_EQ(
      of(record,
         [](AsnType &type) { cSetExtensionmarkerControlMember(1, type); }),
      "home->compmask |= BIT(2);\n");
}

TEST_F(CMarkerMember, NothingForHomes)
{
  int32_t record = plain(TYP_SEQ, {optAsnhc});
  start();
  TestType type(module, record);
  cSetExtensionmarkerControlMember(1, *type);
  cTestExtensionmarkerControlMember(1, *type);
  cClearExtensionmarkerControlMember(1, *type);
  EXPECT_EQ(written(), "");
}

TEST_F(CMarkerMember, NothingWithoutAMarker)
{
  int32_t closed = define("Closed", node(TYP_SEQ, VF_STRU, {}, VF_UI8));
  comp(closed, "a", optional(node(TYP_INTEGER, VF_I32)));
  start();
  EXPECT_EQ(of(closed, allOfMarker), "\n");
}

TEST_F(CMarkerMember, Cut)
{
  int32_t record = plain(TYP_SEQ);
  start();
  TestType type(module, record);
  EXPECT_EQ(pieces([&] { allOfMarker(*type); }),
            "home->compmask |= BIT(2);|(home->compmask & BIT(2))|"
            "home->compmask &= ~BIT(2);");
}
