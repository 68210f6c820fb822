// Calls that keep an application's path through a value.

#include "cbet/cpath.h"
#include "support/fragtrees.h"

// Foo { bar INTEGER, list, array, pick CHOICE { one, two }, ..., [[six]] }.
struct CPath : FragTrees {
  int32_t foo;
  CPath()
  {
    foo = define("Foo", node(TYP_SEQ, VF_STRU));
    comp(foo, "bar", node(TYP_INTEGER, VF_I32));
    int32_t list = comp(foo, "list", node(TYP_SEQOF, VF_LIST));
    comp(list, "", node(TYP_INTEGER, VF_I32));
    int32_t array = comp(foo, "array", node(TYP_SEQOF, VF_STRU));
    comp(array, "", node(TYP_INTEGER, VF_I32));
    int32_t pick = comp(foo, "pick", node(TYP_CHOICE, VF_STRU));
    comp(pick, "one", node(TYP_INTEGER, VF_I32));
    comp(pick, "two", node(TYP_SEQ, VF_STRU, {optAsnhc}));
    marker(foo);
    int32_t group = comp(foo, "", TYP_EXTADDGRP);
    comp(group, "six", optional(node(TYP_INTEGER, VF_I32)));
    start();
    options().pushPath = 1;
  }
  template <class F>
  std::string of(int number, F write)
  {
    TestType type(module, foo);
    atComp(*type, number, write);
    return written();
  }
};

static void pushComp(AsnType &comp)
{
  cPushPath(1, comp);
}
static void popComp(AsnType &comp)
{
  cPopPath(1, comp);
}
static void pushList(AsnType &list)
{
  cPushElem(1, list);
}
template <int number, void (*write)(AsnType &)>
static void ofInner(AsnType &father)
{
  CPath::atComp(father, number, write);
}

TEST_F(CPath, Entry)
{
  TestType type(module, foo);
  EXPECT_EQ(text([&] { cPushEntryPath(1, *type); }),
            "pushPath (ASNG_F(asncodg) \"Foo\");\n");
  EXPECT_EQ(text([&] { cPopEntryPath(1, *type); }),
            "popPath (ASNG_F(asncodg) 4);\n");
}

TEST_F(CPath, Component)
{
  EXPECT_EQ(of(0, pushComp), "pushPath (ASNG_F(asncodg) \"bar_fld\");\n");
  EXPECT_EQ(of(0, popComp), "popPath (ASNG_F(asncodg) 8);\n");
}

TEST_F(CPath, Alternative)
{
  EXPECT_EQ(of(3, ofInner<0, pushComp>),
            "pushPath (ASNG_F(asncodg) \"i1.one_fld\");\n");
  EXPECT_EQ(of(3, ofInner<0, popComp>), "popPath (ASNG_F(asncodg) 11);\n");
  // The option is asked of the alternative, not of the CHOICE.
  EXPECT_EQ(of(3, ofInner<1, pushComp>),
            "pushPath (ASNG_F(asncodg) \"two_fld\");\n");
  EXPECT_EQ(of(3, ofInner<1, popComp>), "popPath (ASNG_F(asncodg) 8);\n");
}

// It has no name of its own.
TEST_F(CPath, AdditionGroup)
{
  EXPECT_EQ(of(5, pushComp), "pushPath (ASNG_F(asncodg) \"_fld\");\n");
  EXPECT_EQ(of(5, popComp), "popPath (ASNG_F(asncodg) 5);\n");
}

TEST_F(CPath, Element)
{
  localVarCount[VAR_N] = 2;
  EXPECT_EQ(of(1, pushList),
            "pushElem (ASNG_F(asncodg) listLen (&home->list_fld));\n");
  EXPECT_EQ(of(2, pushList), "pushElem (ASNG_F(asncodg) n2);\n");
  EXPECT_EQ(of(1, ofInner<0, popComp>), "popPath (ASNG_F(asncodg) 0);\n");
  EXPECT_EQ(of(2, ofInner<0, popComp>), "popPath (ASNG_F(asncodg) 0);\n");
}

TEST_F(CPath, NothingUnlessAskedFor)
{
  options().pushPath = 0;
  TestType type(module, foo);
  cPushEntryPath(1, *type);
  cPopEntryPath(1, *type);
  atComp(*type, 0, pushComp);
  atComp(*type, 0, popComp);
  atComp(*type, 1, pushList);
  atComp(*type, 2, pushList);
  atComp(*type, 1, ofInner<0, popComp>);
  EXPECT_EQ(written(), "");
}

// The literal is never moved to a new line.
TEST_F(CPath, Cut)
{
  TestType type(module, foo);
  EXPECT_EQ(pieces([&] { cPushEntryPath(1, *type); }),
            "pushPath (ASNG_F(asncodg) \"Foo\");");
  EXPECT_EQ(pieces([&] { cPopEntryPath(1, *type); }),
            "popPath (ASNG_F(asncodg) 4);");
  atComp(*type, 0, [this](AsnType &comp_) {
    EXPECT_EQ(pieces([&] { cPushPath(1, comp_); }),
              "pushPath (ASNG_F(asncodg) \"bar_fld\");");
  });
  atComp(*type, 1, [this](AsnType &list) {
    auto push = [&] { cPushElem(1, list); };
    EXPECT_EQ(pieces(push),
              "pushElem (ASNG_F(asncodg) |listLen (&home->list_fld));");
    EXPECT_TRUE(endsApart(push));
  });
}

TEST_F(CPath, TextAheadMovesToANewLine)
{
  wToF(1, std::string(60, 'x').c_str());
  EXPECT_EQ(of(0, pushComp), std::string(60, 'x') +
                                 "\n  pushPath (ASNG_F(asncodg) "
                                 "\"bar_fld\");\n");
}
