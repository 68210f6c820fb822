// Lists in generated code: initialisation, sizes, loops, bounds.

#include "base/strings.h"
#include "cbet/clist.h"
#include "cbet/errorformat.h"
#include "store/codes.h"
#include "support/fragtrees.h"

// Sorts of lists, as components of Foo.
enum Sort : int { STATIC, STATIC_0, DYNAMIC, DYNAMIC_0, LINKED };

struct CList : FragTrees {
  int32_t foo;
  const char *errorFormat = g_errorReportingFunctionFormat;

  CList()
  {
    cSetErrorReportingFunctionFormat("error (%s);\n");
    foo = define("Foo", node(TYP_SEQ, VF_STRU));
    list(foo, "s", node(TYP_SEQOF, VF_STRU, {}, VF_UI16));
    list(foo, "z", node(TYP_SEQOF, VF_STRU));
    list(foo, "d", node(TYP_SETOF, VF_STRU, {optDynamicArray}, VF_UI16));
    list(foo, "y", node(TYP_SETOF, VF_STRU, {optDynamicArray}));
    list(foo, "l", node(TYP_SEQOF, VF_LIST, {optHomeElems}, VF_UI16));
  }
  ~CList() override { g_errorReportingFunctionFormat = errorFormat; }

  // A list of up to 5 INTEGER.
  int32_t list(int32_t father, const char *name, TNode node_, int64_t upper = 5)
  {
    stxSetBounds(node_, 0, upper);
    int32_t index = comp(father, name, node_);
    comp(index, "", node(TYP_INTEGER, VF_I32));
    return index;
  }
  // What `write` makes of the component.
  template <class F>
  std::string of(int sort, F write)
  {
    TestType type(module, foo);
    atComp(*type, sort, write);
    return written();
  }
  template <class F>
  std::string piecesOf(int sort, F write)
  {
    TestType type(module, foo);
    std::string result;
    atComp(*type, sort,
           [&](AsnType &comp_) { result = pieces([&] { write(comp_); }); });
    return result;
  }
  template <class F>
  bool endsApartOf(int sort, F write)
  {
    TestType type(module, foo);
    bool result = false;
    atComp(*type, sort,
           [&](AsnType &comp_) { result = endsApart([&] { write(comp_); }); });
    return result;
  }
};

// --- initialisation ---------------------------------------------------------

static void initList(AsnType &list)
{
  cInitList(1, list);
}

TEST_F(CList, Init)
{
  start();
  EXPECT_EQ(of(STATIC, initList), "staArrInit (&home->s_fld);\n");
  EXPECT_EQ(of(STATIC_0, initList), "staArr0Init (&home->z_fld);\n");
  EXPECT_EQ(of(DYNAMIC, initList), "dynArrInit (&home->d_fld);\n");
  EXPECT_EQ(of(DYNAMIC_0, initList), "dynArr0Init (&home->y_fld);\n");
  EXPECT_EQ(of(LINKED, initList), "listInit (&home->l_fld);\n");
}

TEST_F(CList, InitIsThreeTexts)
{
  start();
  EXPECT_EQ(piecesOf(LINKED, initList), "listInit (|&home->l_fld);");
  EXPECT_EQ(piecesOf(STATIC_0, initList), "staArr0Init (|&home->z_fld);");
  EXPECT_TRUE(endsApartOf(LINKED, initList));
}

// A list that lives in a home is named by the variable that is bound to it.
TEST_F(CList, InitInABlock)
{
  list(foo, "h", node(TYP_SEQOF, VF_LIST, {optAsnHome}, VF_UI16));
  start();
  localVarCount[VAR_HOME] = 1;
  EXPECT_EQ(of(5, initList), "listInit (h1);\n");
}

TEST_F(CList, InitOfADefinition)
{
  int32_t mine = define("Mine", node(TYP_SEQOF, VF_STRU, {}, VF_UI8));
  start();
  TestType type(module, mine);
  EXPECT_EQ(text([&] { cInitList(1, *type); }), "staArrInit (home);\n");
}

// --- sizes ------------------------------------------------------------------

struct CListSize : CList {
  // "CONSTANT|COUNTED" of a component of that format.
  std::string sizes(int mainType, int valueField, int size,
                    std::initializer_list<int> nodeOptions = {})
  {
    TNode node_ = node(mainType, valueField, nodeOptions, size);
    stxSetBounds(node_, 0, 7);
    tree = stxNewTree("M", "m");
    stxImport(tree, "N", "n", true);
    int32_t father = define("Foo", node(TYP_SEQ, VF_STRU));
    comp(father, "x", node_);
    start();
    localVarCount[VAR_N] = 2;
    TestType type(module, father);
    std::string constant, counted;
    atComp(*type, 0, [&](AsnType &comp_) {
      cGetSize(constant, "<", comp_, true, ">");
      cGetSize(counted, "<", comp_, false, ">");
      cSizeToF(1, "<", comp_, true, ">");
      cSizeToF(1, "<", comp_, false, ">");
    });
    std::string both = constant + "|" + counted;
    // The writer frames what there is not, too.
    EXPECT_EQ(written(), both == "|" ? "<><>" : constant + counted);
    return both;
  }
};

TEST_F(CListSize, OfStrings)
{
  for (int format : {VF_STAS0, VF_DYNS0, VF_BMPSTR0})
    EXPECT_EQ(sizes(TYP_OCTSTR, format, VF_NONE), "<7>|<n2>") << format;
  for (int format : {VF_STAS8, VF_STAS16, VF_STAS})
    EXPECT_EQ(sizes(TYP_OCTSTR, format, VF_UI8),
              "<staStrLen (&home->x_fld)>|<staStrLen (&home->x_fld)>")
        << format;
  for (int format :
       {VF_DYNS8, VF_DYNS16, VF_DYNS, VF_BMPSTR8, VF_BMPSTR16, VF_BMPSTR})
    EXPECT_EQ(sizes(TYP_OCTSTR, format, VF_UI8),
              "<dynStrLen (&home->x_fld)>|<dynStrLen (&home->x_fld)>")
        << format;
}

TEST_F(CListSize, OfLinkedLists)
{
  for (int size : {VF_NONE, VF_UI32})
    EXPECT_EQ(sizes(TYP_SEQOF, VF_LIST, size),
              "<listLen (&home->x_fld)>|<listLen (&home->x_fld)>");
}

TEST_F(CListSize, OfArrays)
{
  EXPECT_EQ(sizes(TYP_SEQOF, VF_STRU, VF_NONE), "<7>|<n2>");
  EXPECT_EQ(sizes(TYP_SEQOF, VF_STRU, VF_NONE, {optDynamicArray}), "<7>|<n2>");
  for (int size : {VF_UI8, VF_UI16, VF_UI32, VF_I8, VF_I16, VF_I32}) {
    EXPECT_EQ(sizes(TYP_SEQOF, VF_STRU, size),
              "<staArrLen (&home->x_fld)>|<staArrLen (&home->x_fld)>")
        << size;
    EXPECT_EQ(sizes(TYP_SEQOF, VF_STRU, size, {optDynamicArray}),
              "<dynArrLen (&home->x_fld)>|<dynArrLen (&home->x_fld)>")
        << size;
  }
  EXPECT_EQ(sizes(TYP_SEQOF, VF_STRU, VF_UI64), "|");
  EXPECT_EQ(sizes(TYP_SEQOF, VF_STRU, VF_BOOL), "|");
}

TEST_F(CListSize, OfOtherFormats)
{
  for (int format = VF_NONE; format < VF_COUNT; ++format) {
    bool isString =
        (format >= VF_STAS0 && format <= VF_DYNS) || format >= VF_BMPSTR0;
    if (isString || format == VF_LIST || format == VF_STRU)
      continue;
    EXPECT_EQ(sizes(TYP_INTEGER, format, VF_NONE), "|") << format;
  }
}

TEST_F(CListSize, WriterIsOneText)
{
  start();
  EXPECT_EQ(piecesOf(STATIC,
                     [](AsnType &list) {
                       wToF(1, "xxx");
                       cSizeToF(1, "if (", list, false, " >=");
                     }),
            "xxx|if (staArrLen (&home->s_fld) >=");
}

TEST_F(CListSize, NullTexts)
{
  start();
  std::string size;
  TestType type(module, foo);
  atComp(*type, LINKED,
         [&](AsnType &list) { cGetSize(size, nullptr, list, true, nullptr); });
  EXPECT_EQ(size, "listLen (&home->l_fld)");
}

// An array in a home is a structure; a string there is a value.
TEST_F(CListSize, InABlock)
{
  list(foo, "h", node(TYP_SEQOF, VF_STRU, {optAsnHome}, VF_UI8));
  list(foo, "g", node(TYP_SEQOF, VF_LIST, {optAsnHome}, VF_UI8));
  start();
  localVarCount[VAR_HOME] = 1;
  EXPECT_EQ(of(5, [](AsnType &l) { cSizeToF(1, nullptr, l, true, nullptr); }),
            "staArrLen (h1)");
  EXPECT_EQ(of(6, [](AsnType &l) { cSizeToF(1, nullptr, l, true, nullptr); }),
            "listLen (&h1->g_fld->val.list)");
}

// The limit of a list, not the bound of its type, sizes it.
TEST_F(CListSize, Limit)
{
  TNode node_ = node(TYP_SEQOF, VF_STRU);
  node_.typeOptions.sizeLimit = 3;
  list(foo, "x", node_);
  start();
  EXPECT_EQ(of(5, [](AsnType &l) { cSizeToF(1, nullptr, l, true, nullptr); }),
            "3");
}

TEST_F(CListSize, NoBound)
{
  TNode node_ = node(TYP_SEQOF, VF_STRU);
  int32_t index = comp(foo, "x", node_);
  at(index).lowerEndpoint = {};
  at(index).upperEndpoint = i64max();
  start();
  EXPECT_EQ(of(5, [](AsnType &l) { cSizeToF(1, nullptr, l, true, nullptr); }),
            "2147483647");
}

TEST_F(CListSize, TooLargeABound)
{
  list(foo, "x", node(TYP_SEQOF, VF_STRU), 0x80000000LL);
  start();
  verboseEx = 2;
  testing::internal::CaptureStderr();
  EXPECT_EQ(of(5, [](AsnType &l) { cSizeToF(1, nullptr, l, true, nullptr); }),
            "0");
  EXPECT_NE(testing::internal::GetCapturedStderr().find(
                "** Size constraint upper bound > MAXINT32\n"),
            std::string::npos);
  testing::internal::CaptureStderr();
  of(STATIC_0, [](AsnType &l) { cSizeToF(1, nullptr, l, true, nullptr); });
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

// --- counting ---------------------------------------------------------------

static void incListSize(AsnType &list)
{
  cIncListSize(1, list);
}

TEST_F(CList, IncSize)
{
  start();
  localVarCount[VAR_N] = 1;
  EXPECT_EQ(of(STATIC, incListSize), "incStaArrLen (&home->s_fld);\n");
  EXPECT_EQ(of(STATIC_0, incListSize), "n1++;\n");
  EXPECT_EQ(of(DYNAMIC, incListSize), "incDynArrLen (&home->d_fld);\n");
  EXPECT_EQ(of(DYNAMIC_0, incListSize), "n1++;\n");
  EXPECT_EQ(of(LINKED, incListSize), "incListLen (&home->l_fld);\n");
}

TEST_F(CList, IncSizeOfALinkedListWithoutMember)
{
  list(foo, "x", node(TYP_SEQOF, VF_LIST));
  start();
  localVarCount[VAR_N] = 3;
  EXPECT_EQ(of(5, incListSize), "n3++;\n");
}

TEST_F(CList, IncSizeOfNoList)
{
  comp(foo, "x", node(TYP_OCTSTR, VF_STAS8, {}, VF_UI8));
  start();
  EXPECT_EQ(of(5, incListSize), "");
}

TEST_F(CList, IncSizeIsThreeTexts)
{
  start();
  EXPECT_EQ(piecesOf(LINKED, incListSize), "incListLen (|&home->l_fld);");
  EXPECT_TRUE(endsApartOf(LINKED, incListSize));
  EXPECT_TRUE(endsApartOf(DYNAMIC, incListSize));
}

// --- for loops --------------------------------------------------------------

// A whole loop around "x;".
template <int reverse>
static void forLoop(AsnType &list)
{
  forTypeElem(list, [](AsnType &father, AsnType &elem) {
    cBeginForLoop(1, father, elem, reverse);
    wToF(1, "x;\n");
    cEndForLoop(1, father);
  });
}

TEST_F(CList, ForLoopOverAnArray)
{
  start();
  EXPECT_EQ(of(STATIC_0, forLoop<0>), "{\n"
                                      "  uint32 n1 = 0;\n"
                                      "  for (n1 = 0; n1 < 5; n1++){\n"
                                      "    x;\n"
                                      "  }\n"
                                      "}\n");
  EXPECT_EQ(of(DYNAMIC, forLoop<0>),
            "{\n"
            "  uint32 n1 = 0;\n"
            "  for (n1 = 0; n1 < dynArrLen (&home->d_fld); n1++){\n"
            "    x;\n"
            "  }\n"
            "}\n");
  EXPECT_EQ(localVarCount[VAR_N], 0);
}

TEST_F(CList, ForLoopOverAnArrayInReverse)
{
  start();
  EXPECT_EQ(of(STATIC, forLoop<1>),
            "{\n"
            "  uint32 n1 = 0;\n"
            "  for (n1 = staArrLen (&home->s_fld); n1 > 0;){\n"
            "    n1--;\n"
            "    x;\n"
            "  }\n"
            "}\n");
  // Only 1 lowers the counter.
  EXPECT_EQ(of(STATIC_0, forLoop<2>), "{\n"
                                      "  uint32 n1 = 0;\n"
                                      "  for (n1 = 5; n1 > 0;){\n"
                                      "    x;\n"
                                      "  }\n"
                                      "}\n");
}

TEST_F(CList, ForLoopOverALinkedList)
{
  start();
  EXPECT_EQ(of(LINKED, forLoop<0>),
            "{\n"
            "  ASNHOME *a1 = NULL;\n"
            "  for (a1 = firstListItem (&home->l_fld); a1; "
            "a1 = nextListItem (a1)){\n"
            "    x;\n"
            "  }\n"
            "}\n");
  EXPECT_EQ(of(LINKED, forLoop<1>),
            "{\n"
            "  ASNHOME *a1 = NULL;\n"
            "  for (a1 = lastListItem (&home->l_fld); a1; "
            "a1 = prevListItem (a1)){\n"
            "    x;\n"
            "  }\n"
            "}\n");
  EXPECT_EQ(localVarCount[VAR_ASN_HOME], 0);
  EXPECT_EQ(localVarCount[VAR_N], 0);
}

TEST_F(CList, ForLoopScope)
{
  start();
  of(STATIC, [](AsnType &list) {
    cBeginForLoop(1, list, list, 0);
    EXPECT_EQ(localVarCount[VAR_N], 1);
    EXPECT_EQ(localVarCount[VAR_ASN_HOME], 0);
    cEndForLoop(1, list);
  });
  of(LINKED, [](AsnType &list) {
    cBeginForLoop(1, list, list, 0);
    EXPECT_EQ(localVarCount[VAR_N], 0);
    EXPECT_EQ(localVarCount[VAR_ASN_HOME], 1);
    cEndForLoop(1, list);
  });
}

// The size of the inner list is told by the outer counter.
TEST_F(CList, ForLoopInAForLoop)
{
  TNode outer = node(TYP_SEQOF, VF_STRU);
  stxSetBounds(outer, 0, 2);
  int32_t index = comp(foo, "x", outer);
  list(index, "", node(TYP_SEQOF, VF_STRU, {}, VF_UI8), 3);
  start();
  EXPECT_EQ(of(5,
               [](AsnType &list_) {
                 cBeginForLoop(1, list_, list_, 0);
                 atComp(list_, 0, forLoop<0>);
                 cEndForLoop(1, list_);
               }),
            "{\n"
            "  uint32 n1 = 0;\n"
            "  for (n1 = 0; n1 < 2; n1++){\n"
            "    {\n"
            "      uint32 n2 = 0;\n"
            "      for (n2 = 0; n2 < staArrLen (&home->x_fld.elem [n1]); "
            "n2++){\n"
            "        x;\n"
            "      }\n"
            "    }\n"
            "  }\n"
            "}\n");
}

// The inner list is the value in the outer list's item.
TEST_F(CList, ForLoopInALinkedList)
{
  int32_t index = comp(foo, "x", node(TYP_SEQOF, VF_LIST, {optHomeElems}));
  int32_t mine = define("Mine", node(TYP_SEQOF, VF_LIST, {optHomeElems}));
  comp(mine, "", node(TYP_INTEGER, VF_I32));
  comp(index, "", reference(mine, VF_LIST));
  start();
  EXPECT_EQ(
      of(5,
         [](AsnType &list_) {
           cBeginForLoop(1, list_, list_, 0);
           atComp(list_, 0, forLoop<0>);
           cEndForLoop(1, list_);
         }),
      "{\n"
      "  ASNHOME *a1 = NULL;\n"
      "  for (a1 = firstListItem (&home->x_fld); a1; a1 = nextListItem (a1)){\n"
      "    {\n"
      "      ASNHOME *a2 = NULL;\n"
      "      for (a2 = firstListItem (&a1->val.list); a2; "
      "a2 = nextListItem (a2)){\n"
      "        x;\n"
      "      }\n"
      "    }\n"
      "  }\n"
      "}\n");
}

// The head of the loop over the component, by its first item.
static std::string firstItemIn(const std::string &loop)
{
  size_t start = loop.find("ListItem (");
  return loop.substr(start, loop.find(';', start) - start);
}

TEST_F(CList, ForLoopOverAnInlineListInALinkedList)
{
  int32_t index = comp(foo, "x", node(TYP_SEQOF, VF_LIST, {optHomeElems}));
  list(index, "", node(TYP_SEQOF, VF_LIST, {optHomeElems}));
  start();
  localVarCount[VAR_HOME] = 1;
  EXPECT_EQ(
      firstItemIn(of(5, [](AsnType &list_) { atComp(list_, 0, forLoop<0>); })),
      "ListItem (h1)");
}

TEST_F(CList, ForLoopOverAListInAHomeStructure)
{
  int32_t mine = define("Mine", node(TYP_SEQOF, VF_LIST));
  comp(mine, "", node(TYP_INTEGER, VF_I32));
  comp(foo, "x", reference(mine, VF_LIST));
  at(foo).nodeOptions |= 1u << optAsnhc;
  start();
  // An inline list is a structure, one with a name is a value in the home.
  EXPECT_EQ(firstItemIn(of(LINKED, forLoop<0>)), "ListItem (&home->l_fld)");
  EXPECT_EQ(firstItemIn(of(5, forLoop<0>)),
            "ListItem (&home->x_fld->val.list)");
}

TEST_F(CList, ForLoopOverAListInTheHometab)
{
  int32_t mine = define("Mine", node(TYP_SEQOF, VF_LIST));
  comp(mine, "", node(TYP_INTEGER, VF_I32));
  comp(foo, "x", reference(mine, VF_LIST));
  start();
  auto firstItemOf = [this](int number) {
    TestType type(module, foo);
    inEntryFunction(*type);
    atComp(*type, number, forLoop<0>, false);
    return firstItemIn(written());
  };
  EXPECT_EQ(firstItemOf(LINKED), "ListItem (home)");
  EXPECT_EQ(firstItemOf(5), "ListItem (&hometab [5]->val.list)");
}

TEST_F(CList, CutOfForLoops)
{
  start();
  EXPECT_EQ(piecesOf(STATIC, forLoop<0>),
            "{|uint32 n1 = 0;|"
            "for (n1 = 0; n1 < |staArrLen (&home->s_fld);|n1++){|x;|}|}");
  EXPECT_EQ(piecesOf(STATIC, forLoop<1>),
            "{|uint32 n1 = 0;|"
            "for (n1 = |staArrLen (&home->s_fld);|n1 > 0;){|n1--;|x;|}|}");
  EXPECT_EQ(piecesOf(LINKED, forLoop<0>),
            "{|ASNHOME *a1 = NULL;|"
            "for (a1 =|firstListItem (&home->l_fld);|a1;|a1 =|"
            "nextListItem (a1)){|x;|}|}");
}

// --- while loops ------------------------------------------------------------

static void whileLoop(AsnType &list)
{
  cBeginWhileLoop(1, list, nullptr, "more");
  wToF(1, "x;\n");
  cEndWhileLoop(1, list, nullptr);
}

TEST_F(CList, WhileLoop)
{
  start();
  EXPECT_EQ(of(STATIC, whileLoop), "{\n"
                                   "  uint32 n1 = 0;\n"
                                   "  while (more){\n"
                                   "    x;\n"
                                   "    incStaArrLen (&home->s_fld);\n"
                                   "    n1++;\n"
                                   "  }\n"
                                   "}\n");
  EXPECT_EQ(of(DYNAMIC_0, whileLoop), "{\n"
                                      "  uint32 n1 = 0;\n"
                                      "  while (more){\n"
                                      "    x;\n"
                                      "    n1++;\n"
                                      "  }\n"
                                      "}\n");
  EXPECT_EQ(of(LINKED, whileLoop), "{\n"
                                   "  ASNHOME *a1 = NULL;\n"
                                   "  while (more){\n"
                                   "    x;\n"
                                   "    incListLen (&home->l_fld);\n"
                                   "  }\n"
                                   "}\n");
  EXPECT_EQ(localVarCount[VAR_N], 0);
  EXPECT_EQ(localVarCount[VAR_ASN_HOME], 0);
}

TEST_F(CList, CutOfWhileLoops)
{
  start();
  EXPECT_EQ(piecesOf(DYNAMIC_0, whileLoop),
            "{|uint32 n1 = 0;|while (|more){|x;|n1++;|}|}");
}

// --- upper bound ------------------------------------------------------------

template <void (*check)(int, AsnType &)>
static void checkElem(AsnType &list)
{
  localVarCount[VAR_N] = 1;
  forTypeElem(list, [](AsnType &, AsnType &elem) { check(1, elem); });
}

static void withAction(int file, AsnType &elem)
{
  cCheckListUpperBoundWithActionAndBreak(file, elem, "act;\n");
}

TEST_F(CList, UpperBound)
{
  start();
  EXPECT_EQ(of(STATIC, checkElem<cCheckListUpperBound>),
            "if (staArrLen (&home->s_fld) >= 5){\n"
            "  error (AM_FAIL);\n"
            "}\n");
  EXPECT_EQ(of(LINKED, checkElem<cCheckListUpperBoundWithBreak>),
            "if (listLen (&home->l_fld) >= 5){\n"
            "  break;\n"
            "}\n");
  EXPECT_EQ(of(STATIC_0, checkElem<withAction>), "if (n1 >= 5){\n"
                                                 "  act;\n"
                                                 "  break;\n"
                                                 "}\n");
}

TEST_F(CList, UpperBoundOfALongCount)
{
  list(foo, "x", node(TYP_SEQOF, VF_STRU, {}, VF_I32), 70000);
  list(foo, "y", node(TYP_SEQOF, VF_STRU, {}, VF_UI32), 70000);
  start();
  EXPECT_EQ(of(5, checkElem<cCheckListUpperBoundWithBreak>),
            "if (staArrLen (&home->x_fld) >= 70000L){\n"
            "  break;\n"
            "}\n");
  EXPECT_EQ(of(6, checkElem<cCheckListUpperBoundWithBreak>),
            "if (staArrLen (&home->y_fld) >= 70000){\n"
            "  break;\n"
            "}\n");
}

TEST_F(CList, NoUpperBound)
{
  int32_t index = list(foo, "x", node(TYP_SEQOF, VF_STRU, {}, VF_UI16));
  at(index).upperEndpoint = i64max();
  // A limit alone is none.
  at(index).typeOptions.sizeLimit = 3;
  start();
  EXPECT_EQ(of(5, checkElem<cCheckListUpperBound>), "");
  EXPECT_EQ(of(5, checkElem<cCheckListUpperBoundWithBreak>), "");
  EXPECT_EQ(of(5, checkElem<withAction>), "");
}

TEST_F(CList, LimitBelowTheUpperBound)
{
  int32_t index = list(foo, "x", node(TYP_SEQOF, VF_STRU, {}, VF_UI16));
  at(index).typeOptions.sizeLimit = 3;
  start();
  EXPECT_EQ(of(5, checkElem<cCheckListUpperBoundWithBreak>),
            "if (staArrLen (&home->x_fld) >= 3){\n"
            "  break;\n"
            "}\n");
}

TEST_F(CList, TooLargeAnUpperBound)
{
  list(foo, "x", node(TYP_SEQOF, VF_STRU, {}, VF_UI16), 0x80000000LL);
  start();
  verboseEx = 2;
  testing::internal::CaptureStderr();
  EXPECT_EQ(of(5, checkElem<cCheckListUpperBound>),
            "if (staArrLen (&home->x_fld) >= 2147483648){\n"
            "  error (AM_FAIL);\n"
            "}\n");
  EXPECT_NE(testing::internal::GetCapturedStderr().find(
                "** Size constraint upper bound > MAXINT32\n"),
            std::string::npos);
  testing::internal::CaptureStderr();
  of(STATIC_0, checkElem<cCheckListUpperBound>);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(CList, CutOfUpperBounds)
{
  start();
  EXPECT_EQ(piecesOf(STATIC, checkElem<cCheckListUpperBound>),
            "if (staArrLen (&home->s_fld) >=|5){|error (AM_FAIL);|}");
}

// --- gaps of value sets -----------------------------------------------------

struct CValueSet : FragTrees {
  // The test of an INTEGER component of Foo; "-" if there is none.
  std::string check(int32_t constraint, int valueField = VF_I32)
  {
    TNode node_ = node(TYP_INTEGER, valueField);
    node_.firstConstraint = constraint;
    return checkOf(node_);
  }
  std::string checkOf(const TNode &node_)
  {
    int32_t foo = define("Foo", node(TYP_SEQ, VF_STRU));
    comp(foo, "x", node_);
    return checkComp(foo);
  }
  std::string checkComp(int32_t foo)
  {
    start();
    TestType type(module, foo);
    bool result = false;
    atComp(*type, 0,
           [&](AsnType &comp_) { result = cCheckIntegerValueSet(1, comp_); });
    std::string text = written();
    EXPECT_EQ(result, !text.empty());
    return result ? text : "-";
  }
  int32_t ranges(std::vector<std::pair<int, int>> bounds)
  {
    std::vector<int32_t> operands;
    for (auto [lower, upper] : bounds)
      operands.push_back(range(lower, upper));
    return set(SUB_UNION, operands);
  }
};

TEST_F(CValueSet, ThreeSegments)
{
  EXPECT_EQ(check(ranges({{1, 2}, {5, 6}, {9, 9}})),
            "if ((2 < home->x_fld && home->x_fld < 5) || "
            "(6 < home->x_fld && \n"
            "  home->x_fld < 9))");
}

TEST_F(CValueSet, TwoSegments)
{
  EXPECT_EQ(check(ranges({{-7, -1}, {5, 6}})),
            "if ((-1 < home->x_fld && home->x_fld < 5))");
}

TEST_F(CValueSet, FourSegments)
{
  EXPECT_EQ(check(ranges({{1, 1}, {3, 3}, {5, 5}, {7, 7}})),
            "if ((1 < home->x_fld && home->x_fld < 3) || "
            "(3 < home->x_fld && \n"
            "  home->x_fld < 5) || (5 < home->x_fld && home->x_fld < 7))");
}

TEST_F(CValueSet, NumbersOf64Bits)
{
  int32_t constraint =
      set(SUB_UNION, {range(0, 4294967296), range(4294967300, 4294967301)});
  EXPECT_EQ(check(constraint, VF_I64),
            "if ((4294967296 < home->x_fld && home->x_fld < 4294967300))");
}

TEST_F(CValueSet, NoGap)
{
  EXPECT_EQ(check(range(1, 9)), "-");
}

TEST_F(CValueSet, NoConstraint)
{
  EXPECT_EQ(check(0), "-");
}

// No number is left, which counts as no constraint at all.
TEST_F(CValueSet, EmptyIntersection)
{
  EXPECT_EQ(check(set(SUB_INTERSECTION, {single(1), single(2)})), "-");
}

// One range is the only set without a condition; no segment is none.
TEST_F(CValueSet, EmptySet)
{
  EXPECT_EQ(checkOf(node(TYP_ENUM, VF_UI8)), "if ()");
}

TEST_F(CValueSet, OtherTypes)
{
  EXPECT_EQ(checkOf(node(TYP_BOOLEAN, VF_BOOL)), "if ()");
}

TEST_F(CValueSet, OfAnEnumeration)
{
  int32_t foo = define("Foo", node(TYP_SEQ, VF_STRU));
  int32_t enumeration = comp(foo, "x", node(TYP_ENUM, VF_UI8));
  stxAddNamedNumber(tree, enumeration, "a", 1);
  stxAddNamedNumber(tree, enumeration, "b", 4);
  EXPECT_EQ(checkComp(foo), "if ((1 < home->x_fld && home->x_fld < 4))");
}

TEST_F(CValueSet, OfAnExtensibleEnumeration)
{
  int32_t foo = define("Foo", node(TYP_SEQ, VF_STRU));
  int32_t enumeration = comp(foo, "x", node(TYP_ENUM, VF_UI8));
  stxAddNamedNumber(tree, enumeration, "a", 1);
  stxAddNamedNumber(tree, enumeration, "b", 4);
  stxAddNamedMarker(tree, enumeration);
  EXPECT_EQ(checkComp(foo),
            "if ((1 < home->x_fld.value && home->x_fld.value < 4))");
}

TEST_F(CValueSet, Cut)
{
  int32_t foo = define("Foo", node(TYP_SEQ, VF_STRU));
  TNode node_ = node(TYP_INTEGER, VF_I32);
  node_.firstConstraint = ranges({{1, 2}, {5, 6}, {9, 9}});
  comp(foo, "x", node_);
  start();
  TestType type(module, foo);
  atComp(*type, 0, [this](AsnType &comp_) {
    EXPECT_EQ(pieces([&] { cCheckIntegerValueSet(1, comp_); }),
              "if (|(2 < home->x_fld|&& |home->x_fld < 5) || "
              "(6 < home->x_fld|&& |home->x_fld < 9))");
  });
}
