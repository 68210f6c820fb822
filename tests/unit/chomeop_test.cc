// References to structures, home operations and allocation.

#include "cbet/chomeop.h"
#include "support/fragtrees.h"

constexpr int perArg = 4;

// Foo { i INTEGER, s Bar, l SEQUENCE OF Bar }, where Bar { a INTEGER }.
enum Member : int { INTEGER_COMP, STRUCT_COMP, LIST_COMP };

struct CHomeOp : FragTrees {
  int32_t bar, foo;
  CHomeOp()
  {
    bar = define("Bar", node(TYP_SEQ, VF_STRU));
    comp(bar, "a", node(TYP_INTEGER, VF_I32));
    foo = define("Foo", node(TYP_SEQ, VF_STRU));
    comp(foo, "i", node(TYP_INTEGER, VF_I32));
    comp(foo, "s", reference(bar, VF_STRU));
    int32_t list = comp(foo, "l", node(TYP_SEQOF, VF_LIST, {optHomeElems}));
    comp(list, "", reference(bar, VF_STRU));
  }
  void begin(bool memory)
  {
    start();
    options().memory = memory;
  }
  // What `write` makes of a component.
  template <class F>
  std::string of(int number, F write)
  {
    TestType type(module, foo);
    atComp(*type, number, write);
    return written();
  }
  // The same in the entry function of Foo.
  template <class F>
  std::string inHometab(int number, F write)
  {
    TestType type(module, foo);
    inEntryFunction(*type);
    atComp(*type, number, write, false);
    glbGeneratingEntryFunction = false;
    return written();
  }
};

static void createHome(AsnType &type)
{
  cCreateHome(1, type, perArg);
}
static void pushHome(AsnType &type)
{
  cPushHome(1, type, perArg);
}
static void popHome(AsnType &type)
{
  cPopHome(1, type, perArg);
}
static void freeHome(AsnType &type)
{
  cFreeAsn(1, type);
}

// --- structures as a whole --------------------------------------------------

struct CStructRef : CHomeOp {
  // "REF|&REF|MEMBER|&MEMBER" of a component.
  std::string refs(int number)
  {
    TestType type(module, foo);
    std::string result;
    atComp(*type, number, [&](AsnType &comp_) {
      std::string ref;
      result = cStructHomeRef(ref, "<", false, comp_, ">");
      result += "|" + cStructHomeRef(ref, nullptr, true, comp_, nullptr);
      result += "|" + cStructHomeMemberRef(ref, "<", false, comp_, "x>");
      result += "|" + cStructHomeMemberRef(ref, nullptr, true, comp_, nullptr);
    });
    return result;
  }
};

TEST_F(CStructRef, Plain)
{
  begin(false);
  EXPECT_EQ(refs(STRUCT_COMP),
            "<home->s_fld>|&home->s_fld|<home->s_fld.x>|&home->s_fld.");
  localVarCount[VAR_HOME] = 2;
  EXPECT_EQ(refs(STRUCT_COMP),
            "<h2->s_fld>|&h2->s_fld|<h2->s_fld.x>|&h2->s_fld.");
}

TEST_F(CStructRef, InAHome)
{
  comp(foo, "h", reference(bar, VF_STRU, {optAsnHome}));
  begin(false);
  // Without a variable it is the home itself.
  EXPECT_EQ(refs(3),
            "<home->h_fld>|&home->h_fld|<home->h_fld.x>|&home->h_fld.");
  localVarCount[VAR_HOME] = 1;
  EXPECT_EQ(refs(3), "<*h1>|h1|<h1->x>|&h1->");
  localVarCount[VAR_HOME] = 3;
  EXPECT_EQ(refs(3), "<*h3>|h3|<h3->x>|&h3->");
  // Below 1 the other reference shows what there is.
  localVarCount[VAR_HOME] = -1;
  EXPECT_EQ(refs(3), "<h-1->h_fld>|&h-1->h_fld|<h-1->h_fld.x>|&h-1->h_fld.");
}

TEST_F(CStructRef, AtTheTop)
{
  begin(false);
  TestType type(module, foo);
  std::string ref;
  EXPECT_EQ(cStructHomeRef(ref, nullptr, false, *type, nullptr), "*home");
  EXPECT_EQ(cStructHomeRef(ref, nullptr, true, *type, nullptr), "home");
  EXPECT_EQ(cStructHomeMemberRef(ref, nullptr, false, *type, nullptr),
            "home->");
  EXPECT_EQ(cStructHomeMemberRef(ref, nullptr, true, *type, nullptr),
            "&home->");
}

// --- homes ------------------------------------------------------------------

TEST_F(CHomeOp, GetHome)
{
  begin(true);
  TestType type(module, foo);
  std::string home;
  EXPECT_EQ(cGetHome(home, "<", *type, perArg, ">"),
            "<getHomeG (asnperg_asnuti)>");
  EXPECT_EQ(cGetHome(home, nullptr, *type, 3, nullptr),
            "getHomeG (asnutigPtr)");
  EXPECT_EQ(cGetHome(home, nullptr, *type, 0, nullptr), "getHomeG (NULL)");
  options().memory = 0;
  EXPECT_EQ(cGetHome(home, "<", *type, perArg, ">"), "<NULL>");
}

TEST_F(CHomeOp, CanBeFreed)
{
  int32_t marked = define("Marked", node(TYP_SEQ, VF_STRU));
  comp(marked, "h", node(TYP_INTEGER, VF_I32, {optAsnHome}));
  comp(marked, "n", node(TYP_INTEGER, VF_I32));
  comp(marked, "", node(TYP_EXTENSION_MARKER, VF_NONE, {optAsnHome}));
  begin(true);
  auto answers = [this, marked] {
    TestType type(module, marked);
    std::string result;
    for (int i = 0; i < 3; ++i)
      atComp(*type, i, [&](AsnType &comp_) {
        result += cTypeCanBeFreed(comp_) ? '1' : '0';
      });
    return result;
  };
  EXPECT_EQ(answers(), "100");
  options().memory = 0;
  EXPECT_EQ(answers(), "000");
  options().memory = 1;
  TestType type(module, marked);
  EXPECT_FALSE(cTypeCanBeFreed(*type));
  inEntryFunction(*type);
  for (int i = 0; i < 3; ++i)
    atComp(*type, i,
           [&](AsnType &comp_) { EXPECT_EQ(cTypeCanBeFreed(comp_), i < 2); });
  // A type without father is not in the table of one.
  EXPECT_FALSE(cTypeCanBeFreed(*type));
}

TEST_F(CHomeOp, Create)
{
  begin(true);
  EXPECT_EQ(
      of(INTEGER_COMP, createHome),
      "createHome (getHomeG (asnperg_asnuti), &home->i_fld, VF_I32, 0);\n");
  // A pointer member needs storage of its own.
  EXPECT_EQ(of(STRUCT_COMP, createHome),
            "createHome (getHomeG (asnperg_asnuti), &home->s_fld, VF_STRU, "
            "sizeof (Bar));\n");
  EXPECT_EQ(of(LIST_COMP, createHome),
            "createHome (getHomeG (asnperg_asnuti), &home->l_fld, VF_LIST, "
            "0);\n");
}

TEST_F(CHomeOp, CreateWithoutMemory)
{
  begin(false);
  EXPECT_EQ(of(STRUCT_COMP, createHome),
            "createHome (NULL, &home->s_fld, VF_STRU, sizeof (Bar));\n");
  EXPECT_EQ(of(INTEGER_COMP, createHome),
            "createHome (NULL, &home->i_fld, VF_I32, 0);\n");
}

TEST_F(CHomeOp, CreateInTheHometab)
{
  begin(true);
  EXPECT_EQ(inHometab(STRUCT_COMP, createHome),
            "createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_STRU, "
            "sizeof (Bar));\n");
  TestType type(module, foo);
  EXPECT_EQ(text([&] { createHome(*type); }),
            "createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU, "
            "sizeof (Foo));\n");
}

TEST_F(CHomeOp, Push)
{
  begin(true);
  EXPECT_EQ(of(STRUCT_COMP, pushHome),
            "pushHomeG (asnperg_asnuti, home->s_fld);\n");
  EXPECT_EQ(of(LIST_COMP, pushHome),
            "pushHomeG (asnperg_asnuti, home->l_fld);\n");
  EXPECT_EQ(inHometab(STRUCT_COMP, pushHome),
            "pushHomeG (asnperg_asnuti, hometab [1]);\n");
  TestType type(module, foo);
  EXPECT_EQ(text([&] { pushHome(*type); }),
            "pushHomeG (asnperg_asnuti, hometab [0]);\n");
  EXPECT_EQ(text([&] { cPushHome(1, *type, 0); }),
            "pushHomeG (NULL, hometab [0]);\n");
}

TEST_F(CHomeOp, Pop)
{
  begin(true);
  EXPECT_EQ(of(STRUCT_COMP, popHome), "popHomeG (asnperg_asnuti);\n");
  EXPECT_EQ(inHometab(LIST_COMP, popHome), "popHomeG (asnperg_asnuti);\n");
}

TEST_F(CHomeOp, PushAndPopByFormat)
{
  begin(true);
  TestType type(module, foo);
  for (int format = VF_NONE; format < VF_COUNT; ++format) {
    type->base.valueField = static_cast<uint8_t>(format);
    pushHome(*type);
    std::string pushed = written();
    popHome(*type);
    bool isScalar = (format >= 1 && format <= 16) || format == 23 ||
                    format == 27 || format == 28;
    EXPECT_EQ(pushed.empty(), isScalar) << format;
    EXPECT_EQ(written().empty(), isScalar) << format;
  }
}

TEST_F(CHomeOp, Append)
{
  begin(true);
  localVarCount[VAR_ASN_HOME] = 1;
  auto append = [](AsnType &list) {
    forTypeElem(list, [](AsnType &father, AsnType &elem) {
      cAppendList(1, father, elem, perArg);
    });
  };
  EXPECT_EQ(
      of(LIST_COMP, append),
      "appendList (getHomeG (asnperg_asnuti), &home->l_fld, &a1, VF_STRU,\n"
      "  sizeof (Bar));\n");
  options().memory = 0;
  EXPECT_EQ(of(LIST_COMP, append),
            "appendList (NULL, &home->l_fld, &a1, VF_STRU, sizeof (Bar));\n");
}

TEST_F(CHomeOp, AppendAScalar)
{
  int32_t list = comp(foo, "x", node(TYP_SETOF, VF_LIST, {optHomeElems}));
  comp(list, "", node(TYP_BOOLEAN, VF_BOOL));
  begin(false);
  localVarCount[VAR_ASN_HOME] = 2;
  auto append = [](AsnType &list_) {
    forTypeElem(list_, [](AsnType &father, AsnType &elem) {
      cAppendList(1, father, elem, perArg);
    });
  };
  EXPECT_EQ(of(3, append),
            "appendList (NULL, &home->x_fld, &a2, VF_BOOL, 0);\n");
}

TEST_F(CHomeOp, Cut)
{
  begin(true);
  TestType type(module, foo);
  localVarCount[VAR_ASN_HOME] = 1;
  atComp(*type, STRUCT_COMP, [this](AsnType &comp_) {
    EXPECT_EQ(pieces([&] { createHome(comp_); }),
              "createHome (|getHomeG (asnperg_asnuti),|&home->s_fld,|VF_STRU,|"
              "sizeof (Bar));");
    EXPECT_EQ(pieces([&] { pushHome(comp_); }),
              "pushHomeG (|asnperg_asnuti,|home->s_fld);");
    EXPECT_TRUE(endsApart([&] { pushHome(comp_); }));
    EXPECT_EQ(pieces([&] { popHome(comp_); }), "popHomeG (|asnperg_asnuti);");
    EXPECT_TRUE(endsApart([&] { popHome(comp_); }));
    EXPECT_EQ(pieces([&] { freeHome(comp_); }),
              "freeAsn (|&home->s_fld,|FREE_STG);");
  });
  atComp(*type, INTEGER_COMP, [this](AsnType &comp_) {
    EXPECT_EQ(pieces([&] { createHome(comp_); }),
              "createHome (|getHomeG (asnperg_asnuti),|&home->i_fld,|VF_I32,|"
              "0);");
  });
  atComp(*type, LIST_COMP, [this](AsnType &list) {
    atComp(list, 0, [&](AsnType &elem) {
      EXPECT_EQ(pieces([&] { cAppendList(1, list, elem, perArg); }),
                "appendList (|getHomeG (asnperg_asnuti),|&home->l_fld,|&a1,|"
                "VF_STRU,|sizeof (Bar));");
    });
  });
}

// --- freeing ----------------------------------------------------------------

struct CFreeAsn : CHomeOp {};

TEST_F(CFreeAsn, InTheHometab)
{
  begin(true);
  EXPECT_EQ(inHometab(LIST_COMP, freeHome),
            "freeAsn (&hometab [2], FREE_STG);\n");
  TestType type(module, foo);
  inEntryFunction(*type);
  EXPECT_EQ(text([&] { freeHome(*type); }),
            "freeAsn (&hometab [0], FREE_STG);\n");
}

TEST_F(CFreeAsn, WithoutHometab)
{
  begin(true);
  TestType type(module, foo);
  EXPECT_EQ(text([&] { freeHome(*type); }), "freeAsn (home, FREE_STG);\n");
}

TEST_F(CFreeAsn, MemberOfTheFather)
{
  comp(foo, "x", node(TYP_INTEGER, VF_I32, {optAsnHome}));
  begin(true);
  EXPECT_EQ(of(3, freeHome), "freeAsn (&home->x_fld, FREE_STG);\n");
  // Behind an inline structure in its home the component is a fresh start,
  // but its place is the father's.
  TestType type(module, foo);
  atComp(*type, 3, [](AsnType &comp_) {
    comp_.typePathLen = 0;
    cFreeAsn(1, comp_);
  });
  EXPECT_EQ(written(), "freeAsn (&home->x_fld, FREE_STG);\n");
}

TEST_F(CFreeAsn, MemberOfAnInnerFather)
{
  int32_t inner = comp(foo, "in", node(TYP_SET, VF_STRU));
  comp(inner, "x", node(TYP_INTEGER, VF_I32, {optAsnHome}));
  begin(true);
  EXPECT_EQ(of(3, [](AsnType &father) { atComp(father, 0, freeHome); }),
            "freeAsn (&home->in_fld.x_fld, FREE_STG);\n");
}

// The place is the component's own reference.
TEST_F(CFreeAsn, ComponentItself)
{
  int32_t choice = comp(foo, "c", node(TYP_CHOICE, VF_STRU));
  comp(choice, "x", node(TYP_INTEGER, VF_I32, {optAsnHome}));
  begin(true);
  EXPECT_EQ(of(INTEGER_COMP, freeHome), "freeAsn (&home->i_fld, FREE_STG);\n");
  auto freeInner = [](AsnType &comp_) {
    atComp(comp_, 0, [](AsnType &inner) {
      inner.typePathLen = 0;
      cFreeAsn(1, inner);
    });
  };
  EXPECT_EQ(of(3, freeInner), "freeAsn (home, FREE_STG);\n");
}

// A CHOICE as well, if its alternatives have a home each.
TEST_F(CFreeAsn, MemberOfHomes)
{
  int32_t choice = comp(foo, "c", node(TYP_CHOICE, VF_STRU, {optAsnhc}));
  comp(choice, "x", node(TYP_INTEGER, VF_I32));
  begin(true);
  auto freeInner = [](AsnType &comp_) {
    atComp(comp_, 0, [](AsnType &inner) {
      inner.typePathLen = 0;
      cFreeAsn(1, inner);
    });
  };
  EXPECT_EQ(of(3, freeInner), "freeAsn (&home->c_fld.x_fld, FREE_STG);\n");
}

// --- allocation -------------------------------------------------------------

struct CAllocComp : CHomeOp {
  TypeFuncInfo info;
  CAllocComp()
  {
    comp(foo, "p", reference(bar, VF_STRU, {optPointer}));
    info.implFile = 1;
    info.gIndex = perArg;
  }
};

TEST_F(CAllocComp, Text)
{
  begin(false);
  auto alloc = [this](AsnType &comp_) { cAllocComp(comp_, info); };
  EXPECT_EQ(of(3, alloc), "if (!(home->p_fld = (Bar *)allocAsn (NULL, MB_STG, "
                          "sizeof (Bar)))){\n"
                          "  reportFatalError (LACK_OF_MEMORY);\n"
                          "}\n");
}

TEST_F(CAllocComp, Cut)
{
  begin(true);
  TestType type(module, foo);
  atComp(*type, 3, [this](AsnType &comp_) {
    EXPECT_EQ(pieces([&] { cAllocComp(comp_, info); }),
              "if (!(home->p_fld =|(Bar *)|allocAsn (|"
              "getHomeG (asnperg_asnuti),|MB_STG,|sizeof (Bar)))){|"
              "reportFatalError (LACK_OF_MEMORY);|}");
  });
}
