// The driver of the engine: what it gives back, what it keeps while it runs,
// and what it leaves behind.

#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/traverse.h"
#include "model/typeiter.h"
#include "model/typepath.h"
#include "model/typequery.h"
#include "support/loadedasn.h"

using testing::ExitedWithCode;

namespace {

// File 1 takes all text; call-backs append what they see to `seen`.
struct CGenerate : LoadedAsn {
  TypeFuncInfo info;
  static std::string seen;

  CGenerate()
  {
    cInitTypeFuncInfo(info);
    info.implFile = 1;
    info.genKind = GEN_TRAVERSE_FREE;
    info.entryOptionBit = 2;
    info.normalFuncPrefix = "n";
    info.entryFuncPrefix = "e";
    seen.clear();
  }
  ~CGenerate() override
  {
    closeF(1);
    clearOutFiles();
    resetPath();
    cInitVars();
    glbGeneratingEntryFunction = false;
    glbEntryType = nullptr;
  }
  // A VARNO application in which nothing is visible.
  void varno() const
  {
    module.rec->options.definitionCategory = 1;
    module.rec->visibilityMode = 1;
  }
  int generate()
  {
    openNamedF(1, run.dir.path.c_str(), "out.c");
    resetStamps();
    initStamps();
    int passed = cGenerateTypeFunctions(module, info);
    closeF(1);
    return passed;
  }
  std::string written() const { return run.file("out.c"); }
  int32_t stampOf(const std::string &name)
  {
    TestType view(module, type(name));
    return getTypeStamp(*view);
  }
};

std::string CGenerate::seen;

static void tell(const std::string &text)
{
  CGenerate::seen += text + ' ';
}

// --- the result -------------------------------------------------------------

TEST_F(CGenerate, TypesPassed)
{
  load("A ::= NULL B ::= SEQUENCE { a NULL } C ::= B");
  EXPECT_EQ(generate(), 3);
}

TEST_F(CGenerate, TypesPassedOfEntriesAlone)
{
  loadModules("M DEFINITIONS ::= BEGIN --$ visibility=1\n"
              "A ::= NULL --$ entry\n"
              "B ::= NULL\n"
              "C ::= SEQUENCE { a B } --$ visible\n"
              "END");
  EXPECT_EQ(generate(), 2);
}

TEST_F(CGenerate, NoTypesPassed)
{
  loadModules("M DEFINITIONS ::= BEGIN --$ visibility=1\nA ::= NULL END");
  EXPECT_EQ(generate(), 0);
  EXPECT_EQ(written(), "");
}

// --- state ------------------------------------------------------------------

TEST_F(CGenerate, StateOfARunBefore)
{
  load("A ::= SEQUENCE { a NULL }");
  TypeFuncInfo other;
  AsnType unknown;
  glbInfo = &other;
  glbGeneratingEntryFunction = true;
  glbEntryType = &unknown;
  info.struPrefix = [](AsnType &, TypeFuncInfo &table) {
    tell(&table == glbInfo ? "own" : "foreign");
    tell(glbGeneratingEntryFunction ? "entry" : "normal");
    tell(glbEntryType ? "type" : "none");
  };
  generate();
  EXPECT_EQ(seen, "own normal none ");
}

TEST_F(CGenerate, WhoseEntryFunction)
{
  load("A ::= B --$ entry\nB ::= SEQUENCE { a NULL } --$ entry");
  auto look = [](AsnType &type, TypeFuncInfo &) {
    tell(cIsGeneratingEntryFuncForThisType(type) ? "its" : "not-its");
    AsnType copy;
    tell(cIsGeneratingEntryFuncForThisType(copy) ? "copy" : "no-copy");
  };
  info.beforeEntryFunc = info.entryPrefix = info.entryPostfix =
      info.afterEntryFunc = info.struPrefix = look;
  generate();
  const std::string normal = "not-its no-copy ";
  const std::string entry = "not-its no-copy its no-copy its no-copy "
                            "not-its no-copy ";
  EXPECT_EQ(seen, normal + entry + entry);
}

TEST_F(CGenerate, HometabAsksForAnEntryFunctionOfAnEntry)
{
  load("A ::= SEQUENCE { b B } --$ entry\nB ::= SEQUENCE { a NULL }");
  varno();
  TestType a(module, type("A"));
  TestType b(module, type("B"));
  EXPECT_FALSE(cIsHometab(*a));
  glbGeneratingEntryFunction = true;
  EXPECT_TRUE(cIsHometab(*a));
  EXPECT_FALSE(cIsHometab(*b));
  module.rec->options.nrEntryTypes = 0;
  EXPECT_FALSE(cIsHometab(*a));
  module.rec->options.nrEntryTypes = 1;
  module.rec->options.definitionCategory = 0;
  EXPECT_FALSE(cIsHometab(*a));
}

TEST_F(CGenerate, Stamps)
{
  load("Leaf ::= NULL Part ::= SEQUENCE { a NULL }\n"
       "Inline ::= SEQUENCE { a Part } --$ entry\n"
       "Alias ::= Part");
  varno();
  module.rec->options.generate = 1;
  info.struPrefix = [](AsnType &type, TypeFuncInfo &) {
    tell(getBaseTypeStamp(type) == stampGIP ? "going" : "handled");
  };
  generate();
  // The code of an inline structure is written behind its mark.
  EXPECT_EQ(seen, "going handled ");
  EXPECT_EQ(stampOf("Part"), stampGAD);
  EXPECT_EQ(stampOf("Inline"), stampGHD);
  // Neither asked for nor referred to.
  EXPECT_LT(stampOf("Leaf"), stampGHD);
  EXPECT_LT(stampOf("Alias"), stampGHD);
}

TEST_F(CGenerate, AliasStampsItsBase)
{
  load("Alias ::= Part Part ::= SEQUENCE { a NULL }");
  generate();
  EXPECT_EQ(stampOf("Part"), stampGAD);
  EXPECT_LT(stampOf("Alias"), stampGHD);
}

// --- entry information ------------------------------------------------------

static std::string entryFieldsOf(const AsnType &type)
{
  return std::to_string(type.entryFlags) + "," +
         std::to_string(type.entryCategory) + "," +
         std::to_string(type.base.entryFlags) + "/" +
         std::to_string(getModuleOfType(type)->rec->options.nrEntryTypes);
}

static void tellEntryFields(AsnType &type, TypeFuncInfo &)
{
  tell(entryFieldsOf(type));
}

// An alias lends its entry fields to its base while the base's code is
// written; its copy of the base has those of the base.
TEST_F(CGenerate, EntryInformationOfAnAlias)
{
  load("A ::= B --$ entrybits=0x45\nB ::= SEQUENCE { a NULL }");
  varno();
  module.rec->options.generate = 1;
  info.struPrefix = info.struPostfix = [](AsnType &base, TypeFuncInfo &) {
    tellEntryFields(base, *glbInfo);
    tell(cIsHometab(base) ? "hometab" : "home");
  };
  info.afterEntryFunc = tellEntryFields;
  generate();
  EXPECT_EQ(seen, "69,0,0/1 hometab 69,0,0/1 hometab 69,0,0/1 ");
}

TEST_F(CGenerate, EntryInformationOfAnEntryItself)
{
  load("B ::= SEQUENCE { a NULL } --$ entrybits=0x44");
  varno();
  module.rec->options.generate = 1;
  info.struPrefix = info.afterEntryFunc = tellEntryFields;
  generate();
  EXPECT_EQ(seen, "68,0,68/1 68,0,68/1 ");
}

// The base is an entry as well: it has its own fields back behind the code.
TEST_F(CGenerate, EntryInformationGoesBack)
{
  load("A ::= B --$ entrybits=0x45\n"
       "B ::= SEQUENCE { a NULL } --$ entrybits=0x47");
  varno();
  module.rec->options.generate = 1;
  info.struPrefix = tellEntryFields;
  generate();
  EXPECT_EQ(seen, "69,0,71/2 71,0,71/2 ");
}

// In another module the count of entries is made 1 for as long as that, so
// that the base passes for an entry.
TEST_F(CGenerate, EntryInformationOverTheModuleBorder)
{
  for (int32_t entries : {0, 3}) {
    seen.clear();
    loadModules("M DEFINITIONS ::= BEGIN --$ prefix=m\n"
                "IMPORTS B FROM N; A ::= B --$ entrybits=0x44\nEND\n"
                "N DEFINITIONS ::= BEGIN --$ prefix=n\n"
                "B ::= SEQUENCE { a NULL } END");
    varno();
    AsnModule other = LoadedRun::module("n");
    other.rec->options.definitionCategory = 1;
    other.rec->options.nrEntryTypes = entries;
    module.rec->options.generate = 1;
    info.struPrefix = [](AsnType &base, TypeFuncInfo &) {
      tellEntryFields(base, *glbInfo);
      tell(cIsHometab(base) ? "hometab" : "home");
    };
    generate();
    EXPECT_EQ(seen, entries == 0 ? "68,0,0/1 hometab " : "68,0,0/3 hometab ");
    EXPECT_EQ(other.rec->options.nrEntryTypes, entries);
  }
}

// --- which functions --------------------------------------------------------

TEST_F(CGenerate, SeparateNormalFunctions)
{
  load("Seq ::= SEQUENCE { a NULL } Leaf ::= NULL List ::= SEQUENCE OF NULL\n"
       "Homes ::= SEQUENCE { a NULL } --$ asnhc\n"
       "Skip ::= SEQUENCE { a NULL } --$ skip\n"
       "Choice ::= CHOICE { a NULL } Alias ::= Seq");
  auto separate = [&](const char *name) {
    TestType view(module, type(name));
    return isSeparateNormalFunction(*view);
  };
  EXPECT_TRUE(separate("Seq"));
  EXPECT_TRUE(separate("Choice"));
  varno();
  EXPECT_FALSE(separate("Seq"));
  EXPECT_FALSE(separate("Choice"));
  EXPECT_FALSE(separate("Alias"));
  for (const char *name : {"Leaf", "List", "Homes", "Skip"})
    EXPECT_TRUE(separate(name)) << name;
}

// The reference and the end of the call move to a new line as one.
TEST_F(CGenerate, CutOfTheCallInAnEntryFunction)
{
  const std::string name = "F" + std::string(29, 'f');
  load(name + " ::= SEQUENCE { a NULL } --$ entry asnhc");
  info.gIndex = 4;
  const std::string call = "  n" + name + " (ASNG_F(asnperg) ";
  generate();
  EXPECT_NE(written().find(call + "home);\n"), std::string::npos);
  varno();
  generate();
  EXPECT_NE(written().find(call + "\n    (" + name + " *)hometab);\n"),
            std::string::npos);
}

TEST_F(CGenerate, FunctionsOfThisModule)
{
  loadModules("M DEFINITIONS ::= BEGIN --$ prefix=m\n"
              "IMPORTS B, P FROM N; Own ::= NULL Alias ::= B\n"
              "Instance ::= P { NULL } END\n"
              "N DEFINITIONS ::= BEGIN --$ prefix=n\n"
              "B ::= NULL P { T } ::= SEQUENCE { a T } END");
  auto own = [&](const char *name) {
    TestType view(module, type(name));
    return isFuncGeneratedInThisModuleFile(*view);
  };
  EXPECT_TRUE(own("Own"));
  EXPECT_TRUE(own("Instance"));
  EXPECT_FALSE(own("Alias"));
}

// --- damage -----------------------------------------------------------------

// It is a synonym of itself, and what it refers to has no end.
TEST_F(CGenerate, SynonymThatWasLeftUnbound)
{
  load("A ::= NULL S ::= SEQUENCE { u U } U ::= A");
  int32_t record = type("U");
  readRec(module.rec, REC_TNODE, record);
  tNode.ref = 0;
  writeRec(module.rec, REC_TNODE, record);
  EXPECT_EXIT(generate(), ExitedWithCode(2), "Syntax tree inconsistent");
}

TEST_F(CGenerate, SynonymsOfSynonyms)
{
  std::string text = "T0 ::= SEQUENCE { a NULL } ";
  for (int i = 1; i < 50; ++i)
    text += "T" + std::to_string(i) + " ::= T" + std::to_string(i - 1) + " ";
  load(text);
  EXPECT_EQ(generate(), 50);
}

// --- the table --------------------------------------------------------------

// The base is found again from inside itself; its inline types are entered
// for the search of the alias and for the function of the base.
TEST_F(CGenerate, InlineTypesOfEachFunctionCountAfresh)
{
  for (const char *mark : {"", " --$ recursive\n"}) {
    seen.clear();
    load(std::string("A ::= T --$ entry\nT ::= SEQUENCE { a SEQUENCE {") +
         mark +
         " b SEQUENCE { c SEQUENCE { d SEQUENCE "
         "{ e T OPTIONAL } } } } }");
    varno();
    module.rec->options.generate = 1;
    info.beforeNormalFunc =
        info.beforeEntryFunc = [](AsnType &t, TypeFuncInfo &) {
          std::string name;
          seen += getDefTypeId(name, nullptr, t, " ");
        };
    EXPECT_EQ(generate(), 1);
    EXPECT_EQ(seen, "T A ");
  }
}

// Around a function stand the lines of the definition, at a component those
// of its own node.
TEST_F(CGenerate, EmbeddingLinesOfAComponent)
{
  load("S ::= SEQUENCE { d Part --$ embed=\"E1:x\"\n}\n"
       "Part ::= SEQUENCE { a NULL } --$ embed=\"E1:y\"\n");
  glbInfo = &info;
  openNamedF(1, run.dir.path.c_str(), "out.c");
  TestType view(module, type("S"));
  forEachTypeComp(*view, [](AsnType &, AsnType &comp, int) {
    printCodeTEDs(comp, true, 1);
    putToF(1, "-\n");
    printCodeTEDs(comp, false, 1);
  });
  closeF(1);
  glbInfo = nullptr;
  EXPECT_EQ(written(), "y\n-\nx\n");
}

TEST(TypeFuncInfo, Cleared)
{
  TypeFuncInfo table;
  table.funcFamily = 5;
  table.genKind = GEN_CONSTRUCT;
  table.implFile = 3;
  table.leaf = tellEntryFields;
  table.skipFuncs.skipFunc = tellEntryFields;
  table.ignoreFuncs.skipLeaf = tellEntryFields;
  table.setChoiceControlMember = false;
  table.reverseOrder = table.pushPathEnabled = table.markerOnTraverse = true;
  table.duplicateCompError = "X";
  table.tedBefore = 3;
  table.tedAfter = 8;
  cInitTypeFuncInfo(table);
  EXPECT_EQ(table.tedBefore, 0);
  EXPECT_EQ(table.tedAfter, 0);
  EXPECT_TRUE(table.setChoiceControlMember);
  EXPECT_EQ(table.funcFamily, 0);
  EXPECT_EQ(table.genKind, GEN_CONSTRUCT_CHECKED);
  EXPECT_EQ(table.implFile, 0);
  EXPECT_EQ(table.leaf, nullptr);
  EXPECT_EQ(table.skipFuncs.skipFunc, nullptr);
  EXPECT_EQ(table.ignoreFuncs.skipLeaf, nullptr);
  EXPECT_FALSE(table.reverseOrder);
  EXPECT_FALSE(table.pushPathEnabled);
  EXPECT_FALSE(table.markerOnTraverse);
  EXPECT_EQ(table.duplicateCompError, nullptr);
}

}  // namespace
