// The ignore traversal where runs of the decoder do not lead: tables of
// call-backs that leave some out, both modes, and damaged SKIP kinds.

#include "cbet/cgenerate.h"
#include "cbet/ignore.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "support/loadedasn.h"

using testing::ExitedWithCode;

namespace {

std::string walk;  // what was called, in order

// The component's name behind the call; a definition has none.
void note(const char *call, const AsnType &type)
{
  std::string name;
  if (getFatherOfTypeComp(type) && !isTypeExtensionmarker(type) &&
      !isElemType(type))
    getTypeCompId(name, ":", type, nullptr);
  walk += (walk.empty() ? "" : " ") + std::string(call) + name;
}

bool refuseAll(AsnType &, TypeFuncInfo &)
{
  return false;
}

bool refuseNumbers(AsnType &type, TypeFuncInfo &)
{
  return getTypeMainType(type) != TYP_INTEGER;
}

struct Ignore : LoadedAsn {
  TypeFuncInfo info;

  Ignore()
  {
    cInitTypeFuncInfo(info);
    info.genKind = GEN_CONSTRUCT;
    info.ignoreMode = IGNORE_TRAVERSE;
    info.skip = [](AsnType &type, TypeFuncInfo &) { note("error", type); };
    info.skipFuncs.skipFunc = [](AsnType &type, TypeFuncInfo &) {
      note("skip", type);
    };
    IgnoreFuncs &funcs = info.ignoreFuncs;
    funcs.skipIgnorePrefix = [](AsnType &type, TypeFuncInfo &) {
      std::string name;
      walk += getDefTypeId(name, walk.empty() ? "" : " ", type, "{");
    };
    funcs.skipIgnorePostfix = [](AsnType &, TypeFuncInfo &) { walk += " }"; };
    funcs.skipStruPrefix = [](AsnType &type, TypeFuncInfo &) {
      note("<", type);
    };
    funcs.skipStruPostfix = [](AsnType &, TypeFuncInfo &) { walk += " >"; };
    funcs.skipIsComp = [](AsnType &type, TypeFuncInfo &) { note("is", type); };
    funcs.skipCompPrefix = [](AsnType &, TypeFuncInfo &) { walk += " ("; };
    funcs.skipCompPostfix = [](AsnType &, TypeFuncInfo &) { walk += " )"; };
    funcs.skipLeaf = [](AsnType &type, TypeFuncInfo &) { note("leaf", type); };
    funcs.skipDefStruct = [](AsnType &type, TypeFuncInfo &) {
      note("call", type);
    };
    funcs.skipIgnoreAllExtAddComps = [](AsnType &type, TypeFuncInfo &) {
      note("additions", type);
    };
    glbInfo = &info;
    walk.clear();
  }
  ~Ignore() override { glbInfo = nullptr; }

  // What the call makes of a definition.
  template <class F>
  std::string walkOf(const std::string &name, F call)
  {
    walk.clear();
    TestType view(module, type(name));
    call(*view);
    return walk;
  }
  std::string skipped(const std::string &name)
  {
    return walkOf(name, skipIgnore);
  }
  std::string generated(const std::string &name)
  {
    return walkOf(name, genFuncForIgnorable);
  }
  std::string referred(const std::string &name)
  {
    return walkOf(name, handleReferredIgnorableType);
  }
};

// --- attributes -------------------------------------------------------------

TEST_F(Ignore, Attributes)
{
  load("T ::= SEQUENCE { a NULL } --$ ignorable\n"
       "U ::= SEQUENCE { a NULL }\n"
       "L --$ limit=3 -- ::= SEQUENCE OF NULL\n"
       "S --$ skip=ignore -- ::= SEQUENCE { a NULL }\n"
       "N --$ skip=ignore -- ::= NULL\n");
  TestType t(module, type("T"));
  TestType u(module, type("U"));
  TestType l(module, type("L"));
  EXPECT_TRUE(cIsIgnorable(*t));
  EXPECT_FALSE(cIsIgnorable(*u));
  EXPECT_TRUE(cIsSizeLimit(*l));
  EXPECT_FALSE(cIsSizeLimit(*t));
}

// SKIP makes a leaf of a structure; here it is not looked at, and stays.
TEST_F(Ignore, LeavesWithoutSkip)
{
  load("S --$ skip=ignore -- ::= SEQUENCE { a NULL }\n"
       "N --$ skip=ignore -- ::= NULL\n"
       "U ::= SEQUENCE { a NULL }\n");
  TestType s(module, type("S"));
  TestType n(module, type("N"));
  TestType u(module, type("U"));
  EXPECT_TRUE(isLeafType(*s));
  EXPECT_FALSE(isNonSkippedLeafType(*s));
  EXPECT_TRUE(isLeafType(*s));
  EXPECT_TRUE(testTypeOption(*s, optSkip));
  EXPECT_TRUE(isNonSkippedLeafType(*n));
  EXPECT_FALSE(isNonSkippedLeafType(*u));
  EXPECT_FALSE(testTypeOption(*u, optSkip));
}

// --- SKIP kinds -------------------------------------------------------------

TEST_F(Ignore, SkipByKind)
{
  load("T --$ skip=ignore -- ::= BOOLEAN\n"
       "E --$ skip=error -- ::= BOOLEAN\n");
  EXPECT_EQ(walkOf("T", skipType), "leaf");
  EXPECT_EQ(walkOf("E", skipType), "error");
  info.ignoreMode = IGNORE_SKIP_FUNCS;
  EXPECT_EQ(walkOf("T", skipType), "skip");
  EXPECT_EQ(walkOf("E", skipType), "error");
  info.skip = nullptr;
  EXPECT_EQ(walkOf("E", skipType), "");
}

TEST_F(Ignore, UnknownSkipKind)
{
  compiled = compileBody("T --$ skip=ignore -- ::= BOOLEAN\n");
  TNode &node = stxTypeAt(treeOf(compiled), type("T"));
  ASSERT_EQ(node.typeOptions.skipKind, 0);
  node.typeOptions.skipKind = 2;
  loadCompiled();
  TestType view(module, type("T"));
  EXPECT_EXIT(skipType(*view), ExitedWithCode(2),
              "Unknown SKIP option value\\.");
}

// A type without the option holds another number.
TEST_F(Ignore, SkipKindOfOtherTypes)
{
  load("T ::= BOOLEAN\n");
  TestType view(module, type("T"));
  EXPECT_EXIT(skipType(*view), ExitedWithCode(2),
              "Unknown SKIP option value\\.");
}

// --- in place ---------------------------------------------------------------

TEST_F(Ignore, LeafStructureAndCall)
{
  load("T ::= SEQUENCE { a BOOLEAN, b U, c SEQUENCE { d NULL }, e N }\n"
       "U ::= SEQUENCE { f NULL }\n"
       "N ::= NULL\n");
  EXPECT_EQ(skipped("N"), "leaf");
  EXPECT_EQ(skipped("U"), "call");
  info.ignoreMode = IGNORE_SKIP_FUNCS;
  EXPECT_EQ(skipped("U"), "skip");
}

TEST_F(Ignore, ComponentsOfAFunction)
{
  load("T ::= SEQUENCE { a BOOLEAN, b U, c SEQUENCE { d NULL } } "
       "--$ ignorable\n"
       "U ::= SEQUENCE { f NULL }\n");
  EXPECT_EQ(generated("T"), "T{ < is:a ( leaf:a ) is:b ( call:b ) "
                            "is:c ( <:c is:d ( leaf:d ) > ) > }");
}

const char extensible[] =
    "T ::= SEQUENCE { a NULL, ..., b NULL, [[ c NULL ]] } --$ ignorable\n";

TEST_F(Ignore, AdditionsAtTheMarker)
{
  load(extensible);
  EXPECT_EQ(generated("T"), "T{ < is:a ( leaf:a ) additions > }");
}

// Without the call-back all are walked, the marker among them.
TEST_F(Ignore, AdditionsOneByOne)
{
  load("T ::= SEQUENCE { a NULL, ..., b NULL } --$ ignorable\n");
  info.ignoreFuncs.skipIgnoreAllExtAddComps = nullptr;
  info.ignoreFuncs.canGenerateIgnoreComponents = refuseAll;
  EXPECT_EQ(generated("T"),
            "T{ < is:a ( leaf:a ) is ( leaf ) is:b ( leaf:b ) > }");
}

TEST_F(Ignore, NoComponents)
{
  load(extensible);
  info.ignoreFuncs.canGenerateIgnoreComponents = refuseAll;
  EXPECT_EQ(generated("T"), "T{ < > }");
}

TEST_F(Ignore, SecondMarker)
{
  options.secondMarker = true;
  load("T ::= SEQUENCE { a NULL, ..., b NULL, ..., c NULL } --$ ignorable\n");
  EXPECT_EQ(generated("T"), "T{ < is:a ( leaf:a ) additions > }");
}

// The element of a list is no addition, however the size is bounded.
TEST_F(Ignore, ElementsOfExtensibleSize)
{
  load("T ::= SEQUENCE (SIZE (1..3, ...)) OF NULL --$ ignorable\n");
  EXPECT_EQ(generated("T"), "T{ < is ( leaf ) > }");
}

TEST_F(Ignore, CallBacksThatAreNull)
{
  load(extensible);
  info.ignoreFuncs = {};
  EXPECT_EQ(generated("T"), "");
}

// --- functions --------------------------------------------------------------

TEST_F(Ignore, FunctionOfIgnorableTypesOnce)
{
  load("T ::= SEQUENCE { a NULL } --$ ignorable\n"
       "U ::= SEQUENCE { a NULL }\n");
  EXPECT_EQ(generated("U"), "");
  EXPECT_EQ(generated("T"), "T{ < is:a ( leaf:a ) > }");
  EXPECT_EQ(generated("T"), "");
  EXPECT_EQ(referred("T"), "");
}

TEST_F(Ignore, FunctionOfALeaf)
{
  load("T ::= ENUMERATED { a } --$ ignorable\n");
  EXPECT_EQ(generated("T"), "T{ leaf }");
}

TEST_F(Ignore, NoFunctionsWithoutTheWalk)
{
  load("T ::= SEQUENCE { a NULL } --$ ignorable\n");
  info.ignoreMode = IGNORE_SKIP_FUNCS;
  EXPECT_EQ(generated("T"), "");
  EXPECT_EQ(referred("T"), "");
  // The question is open for the generator that has them.
  info.ignoreMode = IGNORE_TRAVERSE;
  EXPECT_EQ(referred("T"), "T{ < is:a ( leaf:a ) > }");
}

// The question is answered although there is no function.
TEST_F(Ignore, FunctionThatIsRefused)
{
  load("T ::= INTEGER --$ ignorable\n");
  info.ignoreFuncs.canGenerateIgnoreFunc = refuseNumbers;
  EXPECT_EQ(generated("T"), "");
  info.ignoreFuncs.canGenerateIgnoreFunc = nullptr;
  EXPECT_EQ(generated("T"), "");
}

TEST_F(Ignore, QuestionOfATypeThatIsNotIgnorable)
{
  compiled = compileBody("T ::= SEQUENCE { a NULL }\n");
  loadCompiled();
  EXPECT_EQ(referred("T"), "");
  // Settled for the run, whatever the flag says from now on.
  walk.clear();
  TestType view(module, type("T"));
  view->base.nodeFlags |= NF_IGNORABLE;
  genFuncForIgnorable(*view);
  handleReferredIgnorableType(*view);
  EXPECT_EQ(walk, "");
}

TEST_F(Ignore, ReferredTypesFirst)
{
  load("T ::= SEQUENCE { a U, b V, c U } --$ ignorable\n"
       "U ::= SEQUENCE { d V } --$ ignorable\n"
       "V ::= SEQUENCE { e NULL } --$ ignorable\n"
       "W ::= SEQUENCE { f NULL }\n");
  EXPECT_EQ(referred("T"),
            "V{ < is:e ( leaf:e ) > } U{ < is:d ( call:d ) > } "
            "T{ < is:a ( call:a ) is:b ( call:b ) is:c ( call:c ) > }");
  EXPECT_EQ(referred("W"), "");
}

// Inside an inline structure the flag of the definition decides.
TEST_F(Ignore, ReferredFromInside)
{
  load("T ::= SEQUENCE { a SEQUENCE { b U } --$ ignorable\n } --$ ignorable\n"
       "U ::= SEQUENCE { c NULL } --$ ignorable\n"
       "L ::= SEQUENCE OF V --$ ignorable\n"
       "V ::= SEQUENCE { d NULL } --$ ignorable\n");
  EXPECT_EQ(referred("T"), "U{ < is:c ( leaf:c ) > } "
                           "T{ < is:a ( <:a is:b ( call:b ) > ) > }");
  EXPECT_EQ(referred("L"), "V{ < is:d ( leaf:d ) > } L{ < is ( call ) > }");
}

TEST_F(Ignore, SynonymHasTheFunctionOfItsTarget)
{
  load("S ::= R --$ ignorable\n"
       "R ::= T --$ ignorable\n"
       "T ::= SEQUENCE { a NULL } --$ ignorable\n");
  EXPECT_EQ(referred("S"), "T{ < is:a ( leaf:a ) > }");
  EXPECT_EQ(referred("T"), "");
}

TEST_F(Ignore, Recursion)
{
  load("T ::= SEQUENCE { a T OPTIONAL, b U } --$ ignorable\n"
       "U ::= CHOICE { c T, d NULL } --$ ignorable\n");
  EXPECT_EQ(referred("T"), "U{ < is:c ( call:c ) is:d ( leaf:d ) > } "
                           "T{ < is:a ( call:a ) is:b ( call:b ) > }");
  EXPECT_EQ(referred("U"), "");
}

TEST_F(Ignore, TypesOfOtherModules)
{
  loadModules("M DEFINITIONS ::= BEGIN IMPORTS U FROM N;\n"
              "T ::= SEQUENCE { a U } --$ ignorable\n"
              "S ::= U --$ ignorable\nEND\n"
              "N DEFINITIONS ::= BEGIN\n"
              "U ::= SEQUENCE { b NULL } --$ ignorable\nEND\n");
  EXPECT_EQ(referred("T"), "T{ < is:a ( call:a ) > }");
  EXPECT_EQ(referred("S"), "");
}

}  // namespace
