// Heads, prototypes and calls of generated functions.

#include "ade/browser.h"
#include "ade/summary.h"
#include "cbet/cfunction.h"
#include "cbet/symboltable.h"
#include "support/fragtrees.h"

constexpr int perArg = 4;  // of the generation arguments

// What emitters write.
static void emitPre(int file, AsnType &)
{
  wToF(file, "<pre>");
}
static void emitHome(int file, AsnType &type)
{
  wToF(file, ("<" + refOf(type) + ">").c_str());
}
static void emitPost(int file, AsnType &)
{
  wToF(file, "<post>");
}
static void declPre(int file, AsnType &)
{
  wToF(file, "pre;\n");
}
static void declHome(int file, AsnType &type)
{
  wToF(file, (refOf(type) + ";\n").c_str());
}
static void declPost(int file, AsnType &)
{
  wToF(file, "post;\n");
}

// Foo { bar Bar }, and Foo again under a name of 60 characters.
struct CFunction : FragTrees {
  int32_t bar, foo, wide;
  const std::string longName = std::string(60, 'F');

  CFunction()
  {
    bar = define("Bar", node(TYP_SEQ, VF_STRU));
    foo = define("Foo", node(TYP_SEQ, VF_STRU));
    comp(foo, "bar", reference(bar, VF_STRU));
    wide = define(longName, node(TYP_SEQ, VF_STRU));
    start();
    options().nameLen = 100;
  }
  void ansiOff() const { options().ansiC = 0; }
  void varno() const { options().definitionCategory = 1; }

  typedef void HeadWriter(int, const char *, int, const CFunctionInfo *,
                          AsnType &);
  std::string head(HeadWriter *writer, int gIndex = perArg,
                   const CFunctionInfo *info = nullptr,
                   const char *prefix = "pe_al") const
  {
    AsnModule own = module;
    TestType type(own, foo);
    return text([&] { writer(1, prefix, gIndex, info, *type); });
  }
  std::string wideHead(HeadWriter *writer) const
  {
    AsnModule own = module;
    TestType type(own, wide);
    return text([&] { writer(1, "pe_al", perArg, nullptr, *type); });
  }
};

// --- normal functions -------------------------------------------------------

TEST_F(CFunction, FourForms)
{
  EXPECT_EQ(head(cFunctionProto),
            "extern void pe_alFoo (ASNG_F(ASNPERG *asnperg) Foo *home);\n");
  EXPECT_EQ(head(cFunctionDef),
            "void pe_alFoo (ASNG_F(ASNPERG *asnperg) Foo *home)\n");
  ansiOff();
  EXPECT_EQ(head(cFunctionProto), "extern void pe_alFoo (/* Foo *home */);\n");
  EXPECT_EQ(head(cFunctionDef), "void pe_alFoo (ASNG_F(asnperg) home)\n"
                                "ASNG_DEF(ASNPERG *asnperg)\n"
                                "Foo *home;\n");
}

// Whether the argument is passed or global is left to the macros.
TEST_F(CFunction, ReentrantMakesNoDifference)
{
  std::string texts[2];
  for (int i = 0; i < 2; ++i) {
    options().reentrant = i == 1;
    for (HeadWriter *writer :
         {cFunctionProto, cFunctionDef, cEntryFunctionProto, cEntryFunctionDef})
      texts[i] += head(writer);
  }
  EXPECT_EQ(texts[0], texts[1]);
}

TEST_F(CFunction, NoGenerationArgument)
{
  for (int none : {0, 6, -1}) {
    options().ansiC = 1;
    EXPECT_EQ(head(cFunctionProto, none),
              "extern void pe_alFoo (Foo *home);\n");
    EXPECT_EQ(head(cFunctionDef, none), "void pe_alFoo (Foo *home)\n");
    ansiOff();
    EXPECT_EQ(head(cFunctionProto, none),
              "extern void pe_alFoo (/* Foo *home */);\n");
    EXPECT_EQ(head(cFunctionDef, none), "void pe_alFoo (home)\nFoo *home;\n");
  }
}

TEST_F(CFunction, VoidFormsHaveNoAdditions)
{
  TestType type(module, foo);
  EXPECT_EQ(text([&] { cVoidFunctionProto(1, "x", 1, *type); }),
            "extern void xFoo (ASNG_F(ASNCODG *asncodg) Foo *home);\n");
  EXPECT_EQ(text([&] { cVoidFunctionDef(1, "x", 3, *type); }),
            "void xFoo (ASNG_F(ASNUTIG *asnutig) Foo *home)\n");
}

TEST_F(CFunction, NoPrefix)
{
  EXPECT_EQ(head(cFunctionDef, 0, nullptr, nullptr), "void Foo (Foo *home)\n");
}

TEST_F(CFunction, NoFile)
{
  TestType type(module, foo);
  localVarCount[VAR_N] = 3;
  cFunctionProto(0, "x", perArg, nullptr, *type);
  cFunctionDef(0, "x", perArg, nullptr, *type);
  cVoidFunctionRef(0, "x", perArg, *type);
  EXPECT_EQ(written(), "");
  EXPECT_EQ(localVarCount[VAR_N], 0);
}

TEST_F(CFunction, HeadsGoToColumnZero)
{
  for (HeadWriter *writer :
       {cFunctionProto, cFunctionDef, cEntryFunctionProto, cEntryFunctionDef}) {
    fArr[1].indent = 3;
    EXPECT_NE(head(writer)[0], ' ');
    EXPECT_EQ(fArr[1].indent, 0);
  }
}

TEST_F(CFunction, NoVariableInScopeBehindAHead)
{
  for (uint8_t ansi : {uint8_t(0), uint8_t(1)}) {
    options().ansiC = ansi;
    for (HeadWriter *writer : {cFunctionDef, cEntryFunctionDef}) {
      std::fill_n(localVarCount, localVarRows, -2);
      head(writer);
      for (int count : localVarCount)
        EXPECT_EQ(count, 0);
    }
    for (HeadWriter *writer : {cFunctionProto, cEntryFunctionProto}) {
      localVarCount[VAR_N] = 2;
      head(writer);
      EXPECT_EQ(localVarCount[VAR_N], 2);
    }
  }
}

TEST_F(CFunction, CutOfHeads)
{
  TestType type(module, foo);
  EXPECT_FALSE(
      endsApart([&] { cFunctionProto(1, "pe", perArg, nullptr, *type); }));
  EXPECT_EQ(wideHead(cFunctionProto), "extern void pe_al" + longName +
                                          " (\n"
                                          "  ASNG_F(ASNPERG *asnperg) \n"
                                          "  " +
                                          longName + " *home);\n");
  EXPECT_EQ(wideHead(cFunctionDef), "void pe_al" + longName +
                                        " (\n"
                                        "  ASNG_F(ASNPERG *asnperg) \n"
                                        "  " +
                                        longName + " *home)\n");
  ansiOff();
  EXPECT_EQ(wideHead(cFunctionDef), "void pe_al" + longName +
                                        " (\n"
                                        "  ASNG_F(asnperg) home)\n"
                                        "ASNG_DEF(ASNPERG *asnperg)\n" +
                                        longName + " *home;\n");
}

// --- additions --------------------------------------------------------------

TEST_F(CFunction, ReturnType)
{
  CFunctionInfo info{.returnType = "int"};
  EXPECT_EQ(head(cFunctionProto, 0, &info),
            "extern int pe_alFoo (Foo *home);\n");
  EXPECT_EQ(head(cFunctionDef, 0, &info), "int pe_alFoo (Foo *home)\n");
  EXPECT_EQ(head(cEntryFunctionProto, 0, &info),
            "extern int pe_alFoo (Foo *home);\n");
  EXPECT_EQ(head(cEntryFunctionDef, 0, &info), "int pe_alFoo (Foo *home)\n");
}

TEST_F(CFunction, ArgumentsOfPrototypes)
{
  CFunctionInfo info{.protoPreArgs = emitPre, .protoPostArgs = emitPost};
  for (HeadWriter *writer : {cFunctionProto, cEntryFunctionProto}) {
    EXPECT_EQ(head(writer, perArg, &info),
              "extern void pe_alFoo (ASNG_F(ASNPERG *asnperg) "
              "<pre>Foo *home<post>);\n");
  }
  for (HeadWriter *writer : {cFunctionDef, cEntryFunctionDef})
    EXPECT_EQ(head(writer, 0, &info), "void pe_alFoo (Foo *home)\n");
}

// It takes over the generation argument, too.
TEST_F(CFunction, HomeArgumentOfPrototypes)
{
  CFunctionInfo info{.protoPreArgs = emitPre,
                     .protoHomeArg = emitHome,
                     .protoPostArgs = emitPost};
  for (uint8_t ansi : {uint8_t(0), uint8_t(1)}) {
    options().ansiC = ansi;
    EXPECT_EQ(head(cFunctionProto, perArg, &info),
              "extern void pe_alFoo (<pre><Foo><post>);\n");
    EXPECT_EQ(head(cEntryFunctionProto, perArg, &info),
              "extern void pe_alFoo (<pre><Foo><post>);\n");
  }
  info = {.protoHomeArg = emitHome};
  EXPECT_EQ(head(cFunctionProto, perArg, &info),
            "extern void pe_alFoo (<Foo>);\n");
}

TEST_F(CFunction, ArgumentsOfAnsiDefinitions)
{
  CFunctionInfo info{.ansiPreArgs = emitPre, .ansiPostArgs = emitPost};
  for (HeadWriter *writer : {cFunctionDef, cEntryFunctionDef})
    EXPECT_EQ(
        head(writer, perArg, &info),
        "void pe_alFoo (ASNG_F(ASNPERG *asnperg) <pre>Foo *home<post>)\n");
  info.ansiHomeArg = emitHome;
  for (HeadWriter *writer : {cFunctionDef, cEntryFunctionDef})
    EXPECT_EQ(head(writer, perArg, &info),
              "void pe_alFoo (<pre><Foo><post>)\n");
  ansiOff();
  EXPECT_EQ(head(cFunctionDef, 0, &info), "void pe_alFoo (home)\nFoo *home;\n");
}

TEST_F(CFunction, ArgumentsOfOldDefinitions)
{
  CFunctionInfo info{.oldPreArgs = emitPre,
                     .oldPostArgs = emitPost,
                     .oldPreDecl = declPre,
                     .oldPostDecl = declPost};
  for (HeadWriter *writer : {cFunctionDef, cEntryFunctionDef})
    EXPECT_EQ(head(writer, 0, &info), "void pe_alFoo (Foo *home)\n");
  ansiOff();
  for (HeadWriter *writer : {cFunctionDef, cEntryFunctionDef})
    EXPECT_EQ(head(writer, perArg, &info),
              "void pe_alFoo (ASNG_F(asnperg) <pre>home<post>)\n"
              "ASNG_DEF(ASNPERG *asnperg)\n"
              "pre;\n"
              "Foo *home;\n"
              "post;\n");
}

// The declaration of the generation argument goes with the home's name in a
// normal function, with the home's declaration in an entry function.
TEST_F(CFunction, HomeArgumentOfOldDefinitions)
{
  CFunctionInfo info{.oldHomeArg = emitHome};
  ansiOff();
  EXPECT_EQ(head(cFunctionDef, perArg, &info), "void pe_alFoo (<Foo>)\n"
                                               "Foo *home;\n");
  EXPECT_EQ(head(cEntryFunctionDef, perArg, &info),
            "void pe_alFoo (<Foo>)\n"
            "ASNG_DEF(ASNPERG *asnperg)\n"
            "Foo *home;\n");
}

TEST_F(CFunction, HomeDeclarationOfOldDefinitions)
{
  CFunctionInfo info{
      .oldPreDecl = declPre, .oldHomeDecl = declHome, .oldPostDecl = declPost};
  ansiOff();
  EXPECT_EQ(head(cFunctionDef, perArg, &info),
            "void pe_alFoo (ASNG_F(asnperg) home)\n"
            "ASNG_DEF(ASNPERG *asnperg)\n"
            "pre;\nFoo;\npost;\n");
  EXPECT_EQ(head(cEntryFunctionDef, perArg, &info),
            "void pe_alFoo (ASNG_F(asnperg) home)\n"
            "pre;\nFoo;\npost;\n");
}

// --- entry functions --------------------------------------------------------

TEST_F(CFunction, EntryOfAPlainApplication)
{
  for (uint8_t ansi : {uint8_t(0), uint8_t(1)})
    for (int gIndex : {0, perArg}) {
      options().ansiC = ansi;
      EXPECT_EQ(head(cEntryFunctionProto, gIndex),
                head(cFunctionProto, gIndex));
      EXPECT_EQ(head(cEntryFunctionDef, gIndex), head(cFunctionDef, gIndex));
    }
}

TEST_F(CFunction, EntryOfAVarnoApplication)
{
  varno();
  EXPECT_EQ(head(cEntryFunctionProto, perArg, nullptr, "pec"),
            "extern void pecFoo (ASNG_F(ASNPERG *asnperg) "
            "ASNHOME **hometab);\n");
  EXPECT_EQ(head(cEntryFunctionDef, perArg, nullptr, "pec"),
            "void pecFoo (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)\n");
  EXPECT_EQ(head(cEntryFunctionDef, 0, nullptr, "pec"),
            "void pecFoo (ASNHOME **hometab)\n");
  // Normal functions have their home everywhere.
  EXPECT_EQ(head(cFunctionDef, 0), "void pe_alFoo (Foo *home)\n");
}

TEST_F(CFunction, OldEntryOfAVarnoApplication)
{
  varno();
  ansiOff();
  EXPECT_EQ(head(cEntryFunctionProto, perArg, nullptr, "pec"),
            "extern void pecFoo (/* ASNHOME **hometab */);\n");
  EXPECT_EQ(head(cEntryFunctionDef, perArg, nullptr, "pec"),
            "void pecFoo (ASNG_F(asnperg) hometab)\n"
            "ASNG_DEF(ASNPERG *asnperg)\n"
            "ASNHOME **hometab;\n");
  EXPECT_EQ(head(cEntryFunctionDef, 0, nullptr, "pec"),
            "void pecFoo (hometab)\n"
            "ASNHOME **hometab;\n");
}

TEST_F(CFunction, CutOfEntryHeads)
{
  varno();
  EXPECT_EQ(wideHead(cEntryFunctionDef),
            "void pe_al" + longName +
                " (\n"
                "  ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)\n");
}

// --- the writer of heads ----------------------------------------------------

// Fields of a head that have defaults of their own.
static CFuncHead headOf(const char *name)
{
  CFuncHead result;
  result.nameBody = name;
  result.tail = ";\n";
  return result;
}

TEST_F(CFunction, GenerationArgumentAlone)
{
  TestType type(module, foo);
  CFuncHead head_ = headOf("f");
  EXPECT_EQ(text([&] { cFunc(1, *type, head_); }), "void f ();\n");
  head_.gName = "asnperg";
  EXPECT_EQ(text([&] { cFunc(1, *type, head_); }),
            "void f (ASNG_L(asnperg));\n");
  head_.gType = "ASNPERG";
  EXPECT_EQ(text([&] { cFunc(1, *type, head_); }),
            "void f (ASNG_L(ASNPERG *asnperg));\n");
  head_.postArgs = emitPost;
  EXPECT_EQ(text([&] { cFunc(1, *type, head_); }),
            "void f (ASNG_L(ASNPERG *asnperg)<post>);\n");
}

TEST_F(CFunction, ResultType)
{
  TestType type(module, foo);
  CFunctionInfo info{.returnType = "int"};
  CFuncHead head_ = headOf("f");
  head_.info = &info;
  EXPECT_EQ(text([&] { cFunc(1, *type, head_); }), "int f ();\n");
  head_.resultType = "long";
  EXPECT_EQ(text([&] { cFunc(1, *type, head_); }), "long f ();\n");
  head_.prefixText = "static ";
  EXPECT_EQ(text([&] { cFunc(1, *type, head_); }), "static long f ();\n");
}

TEST_F(CFunction, NullTail)
{
  TestType type(module, foo);
  CFuncHead head_ = headOf("f");
  head_.tail = nullptr;
  EXPECT_EQ(text([&] { cFunc(1, *type, head_); }), "void f ()");
}

// --- calls ------------------------------------------------------------------

struct CFunctionCall : CFunction {
  std::string call(int gIndex, const CFunctionInfo *info = nullptr)
  {
    TestType type(module, foo);
    atComp(*type, 0, [=](AsnType &comp_) {
      cFunctionRef(1, "pe_al", gIndex, info, comp_);
    });
    return written();
  }
};

TEST_F(CFunctionCall, OfAComponent)
{
  EXPECT_EQ(call(perArg), "pe_alBar (ASNG_F(asnperg) &home->bar_fld);\n");
  EXPECT_EQ(call(0), "pe_alBar (&home->bar_fld);\n");
  EXPECT_EQ(call(9), "pe_alBar (&home->bar_fld);\n");
}

TEST_F(CFunctionCall, WithoutAdditions)
{
  TestType type(module, foo);
  EXPECT_EQ(text([&] { cVoidFunctionRef(1, "x", perArg, *type); }),
            "xFoo (ASNG_F(asnperg) home);\n");
}

TEST_F(CFunctionCall, Additions)
{
  CFunctionInfo info{.refPreArgs = emitPre, .refPostArgs = emitPost};
  EXPECT_EQ(call(perArg, &info),
            "pe_alBar (ASNG_F(asnperg)<pre> &home->bar_fld<post>);\n");
  info.refHomeArg = emitHome;
  EXPECT_EQ(call(perArg, &info),
            "pe_alBar (ASNG_F(asnperg)<pre><bar><post>);\n");
}

TEST_F(CFunctionCall, Cut)
{
  TestType type(module, foo);
  atComp(*type, 0, [this](AsnType &comp_) {
    auto call_ = [&] { cVoidFunctionRef(1, "pe_al", perArg, comp_); };
    EXPECT_EQ(pieces(call_), "pe_alBar (|ASNG_F(asnperg)|&home->bar_fld);");
    EXPECT_TRUE(endsApart(call_));
  });
}

// --- functions for an ANY ---------------------------------------------------

// Foo { kind Int, any ANY DEFINED BY kind }.
struct CAnyFunction : FragTrees {
  int32_t foo, any;
  CAnyFunction()
  {
    foo = define("Foo", node(TYP_SEQ, VF_STRU));
    comp(foo, "kind", node(TYP_INTEGER, VF_I32));
    comp(foo, "any", node(TYP_ANY, VF_ANY));
    any = define("Any", node(TYP_ANY, VF_ANY));
    start();
  }
};

TEST_F(CAnyFunction, Prototype)
{
  TestType type(module, any);
  auto proto = [&](int gIndex) {
    return text([&] { cAnyFunctionProto(1, "anyPec", gIndex, *type); });
  };
  EXPECT_EQ(proto(perArg), "extern void anyPecAny (ASNG_F(ASNPERG *asnperg) "
                           "ANY *, BYTE_TYPE *);\n");
  EXPECT_EQ(proto(0), "extern void anyPecAny (ANY *, BYTE_TYPE *);\n");
  options().ansiC = 0;
  EXPECT_EQ(proto(perArg),
            "extern void anyPecAny (/* ANY *, BYTE_TYPE * */);\n");
}

TEST_F(CAnyFunction, Call)
{
  TestType type(module, foo);
  atComp(*type, 1, [](AsnType &comp_) {
    cAnyFunctionRef(1, "x", perArg, comp_, nullptr);
    cAnyFunctionRef(1, "x", 0, comp_, nullptr);
  });
  EXPECT_EQ(written(), "xany_Foo (ASNG_F(asnperg) &home->any_fld, NULL);\n"
                       "xany_Foo ( &home->any_fld, NULL);\n");
}

TEST_F(CAnyFunction, CallWithClassifier)
{
  TestType type(module, foo);
  atComp(*type, 1, [&](AsnType &comp_) {
    AsnType *own = comp_.father;
    AsnType *kind = firstTypeComp(*own, true, 0);
    ASSERT_TRUE(kind);
    cAnyFunctionRef(1, "x", perArg, comp_, kind);
    delAsnType(kind);
  });
  EXPECT_EQ(written(), "xany_Foo (ASNG_F(asnperg) &home->any_fld,"
                       " (BYTE_TYPE *)(&home->kind));\n");
}

TEST_F(CAnyFunction, Cut)
{
  TestType type(module, foo);
  atComp(*type, 1, [this](AsnType &comp_) {
    EXPECT_EQ(pieces([&] { cAnyFunctionRef(1, "x", perArg, comp_, nullptr); }),
              "xany_Foo (|ASNG_F(asnperg)|&home->any_fld,|NULL);");
  });
}

// --- the tree of what was generated -----------------------------------------

struct CFunctionNode : CFunction {
  AdeRecord saved = adeRecord;
  AdeBrowserNode *outerNode = g_adeTypeNode;

  CFunctionNode()
  {
    adeRecord = {"proj", dir.path};
    g_adeTypeNode = adeBrowserNewNode("Foo", nullptr, nullptr, 0, "ASN.1 type",
                                      nullptr, nullptr);
  }
  ~CFunctionNode() override
  {
    adeBrowserDeleteTree(g_adeTypeNode);
    g_adeTypeNode = outerNode;
    adeRecord = saved;
  }
  static std::string symbol(int32_t index)
  {
    return index ? getSymbol(*adeBrowserSymbolTable, index) : "";
  }
  // The nodes below the type: "name|directory|file|line|kind".
  static std::vector<std::string> functions()
  {
    std::vector<std::string> result;
    for (const AdeBrowserNode *n = g_adeTypeNode->firstChild; n; n = n->next)
      result.push_back(symbol(n->name) + "|" + symbol(n->directory) + "|" +
                       symbol(n->file) + "|" + std::to_string(n->line) + "|" +
                       symbol(n->kind));
    return result;
  }
};

TEST_F(CFunctionNode, OfEachHead)
{
  TestType type(module, foo);
  wToF(1, "one\ntwo\n");
  cFunctionProto(1, "pe", perArg, nullptr, *type);
  cFunctionDef(1, "pe", perArg, nullptr, *type);
  cEntryFunctionDef(1, "pec", perArg, nullptr, *type);
  EXPECT_EQ(functions(), (std::vector<std::string>{
                             "peFoo()|" + dir.path + "|out.c|3|extern",
                             "peFoo()|" + dir.path + "|out.c|4|function",
                             "pecFoo()|" + dir.path + "|out.c|5|function"}));
}

TEST_F(CFunctionNode, NotForCalls)
{
  TestType type(module, foo);
  cVoidFunctionRef(1, "pe", perArg, *type);
  EXPECT_EQ(functions(), std::vector<std::string>());
}

TEST_F(CFunctionNode, NotWithoutAFile)
{
  TestType type(module, foo);
  cFunctionDef(0, "pe", perArg, nullptr, *type);
  EXPECT_EQ(functions(), std::vector<std::string>());
}

TEST_F(CFunctionNode, NotWhileInactive)
{
  TestType type(module, foo);
  adeRecord = {};
  cFunctionDef(1, "pe", perArg, nullptr, *type);
  EXPECT_EQ(functions(), std::vector<std::string>());
}

TEST_F(CFunctionNode, NotWithoutAType)
{
  TestType type(module, foo);
  AdeBrowserNode *current = g_adeTypeNode;
  g_adeTypeNode = nullptr;
  cFunctionDef(1, "pe", perArg, nullptr, *type);
  g_adeTypeNode = current;
  EXPECT_NE(written(), "");
  EXPECT_EQ(functions(), std::vector<std::string>());
}
