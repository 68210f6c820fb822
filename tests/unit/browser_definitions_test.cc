// Nodes of the browser tree for definitions of a module and for cross
// references: their names, files and lines.

#include "ade/browser.h"
#include "ade/summary.h"
#include "base/strings.h"
#include "cbet/symboltable.h"
#include "model/asnvalue.h"
#include "support/objecttrees.h"

using testing::ExitedWithCode;

namespace {

// M is in the file m/m_1.asn, N in n/n_1.asn; lines count through both.
const char modules[] =
    "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
    "IMPORTS Far-Type, FAR, FAR-TI, far-object, far-value FROM N;\n"
    "Own-Type ::= SEQUENCE { a-b BOOLEAN }\n"
    "Alias ::= Own-Type\n"
    "Far-Alias ::= Far-Type\n"
    "OWN-CLASS ::= CLASS { &id INTEGER }\n"
    "ALIAS-CLASS ::= OWN-CLASS\n"
    "FAR-ALIAS ::= FAR\n"
    "TI-CLASS ::= TYPE-IDENTIFIER\n"
    "FAR-TI-ALIAS ::= FAR-TI\n"
    "own-object OWN-CLASS ::= { &id 1 }\n"
    "alias-object OWN-CLASS ::= own-object\n"
    "far-alias FAR ::= far-object\n"
    "Own-Set OWN-CLASS ::= { own-object }\n"
    "own-value INTEGER ::= 5\n"
    "far-copy INTEGER ::= far-value\n"
    "END\n"
    "N DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
    "Far-Type ::= CHOICE { a NULL }\n"  // line 19
    "FAR ::= CLASS { &id INTEGER }\n"
    "FAR-TI ::= TYPE-IDENTIFIER\n"
    "far-object FAR ::= { &id 2 }\n"
    "far-value INTEGER ::= 6\n"
    "END\n";

struct AdeDefinitions : ObjectTrees {
  AdeBrowserNode *root = nullptr;
  std::vector<AdeBrowserNode *> loose;  // nodes that are in no tree

  AdeDefinitions()
  {
    loadModules(modules);
    stxSetSource(tree(0), "m/", "m_1.asn");
    stxSetSource(tree(1), "n/", "n_1.asn");
    loadCompiled();
    adeRecord = {"proj", run.dir.path};
    root = adeBrowserNewProjectTree("Type", nullptr, nullptr);
    g_adeBrowserTree = root;
  }
  ~AdeDefinitions() override
  {
    for (AdeBrowserNode *node : loose)
      adeBrowserInsertSubNode(*root, node, 0);
    adeBrowserDeleteTree(root);
  }

  static std::string symbol(int32_t number)
  {
    return number ? getSymbol(*adeBrowserSymbolTable, number) : "-";
  }
  static std::string told(const AdeBrowserNode &node)
  {
    return symbol(node.name) + " " + symbol(node.directory) + " " +
           symbol(node.file) + " " + std::to_string(node.line) + " " +
           symbol(node.kind) + " " + symbol(node.extra1) + " " +
           symbol(node.extra2);
  }
  // The same of a new node.
  std::string made(AdeBrowserNode *node)
  {
    EXPECT_EQ(node->level, 0u);
    loose.push_back(node);
    return told(*node);
  }
  std::string madeOfType(const char *name)
  {
    TestType view(module, type(name));
    return made(adeBrowserNewTypeNode(*view, "k", "x1", "x2"));
  }
  std::string madeOfClass(const char *name)
  {
    return made(adeBrowserNewClassNode(objClass(name), "k", "x1", "x2"));
  }
  std::string madeOfObject(const char *name)
  {
    return made(adeBrowserNewObjectNode(object(name), "k", "x1", "x2"));
  }
  std::string madeOfValue(const char *name)
  {
    readRec(module.rec, REC_VNODE, value(name));
    AsnValue *view = newAsnValue(&module, &module);
    getValuePath(nullptr, *view, FIX_VALUE);
    std::string text = made(adeBrowserNewValueNode(*view, "k", "x1", "x2"));
    delAsnValue(view);
    return text;
  }
  AdeBrowserNode *definitionOf(const char *name)
  {
    TestType view(module, type(name));
    return adeBrowserFindOrCreateXRefDefinitionNode(*view, "x1", nullptr);
  }
  void select(const char *name)
  {
    TestType view(module, type(name));
    adeBrowserSelectTypeNode(*view);
  }
};

TEST_F(AdeDefinitions, Type)
{
  EXPECT_EQ(madeOfType("Own_Type"), "Own-Type m/ m_1.asn 3 k x1 x2");
}

TEST_F(AdeDefinitions, SynonymStandsAtItsBase)
{
  EXPECT_EQ(madeOfType("Alias"), "Alias m/ m_1.asn 3 k x1 x2");
}

TEST_F(AdeDefinitions, TypeWithBaseInAnotherModule)
{
  EXPECT_EQ(madeOfType("Far_Alias"), "Far-Alias n/ n_1.asn 19 k x1 x2");
  EXPECT_EQ(madeOfType("Own_Type"), "Own-Type m/ m_1.asn 3 k x1 x2");
}

TEST_F(AdeDefinitions, Component)
{
  TestType view(module, compNamed(tree(), type("Own_Type"), "a_b"));
  EXPECT_EQ(made(adeBrowserNewTypeNode(*view, nullptr, nullptr, nullptr)),
            "a-b m/ m_1.asn 3 - - -");
}

TEST_F(AdeDefinitions, Class)
{
  EXPECT_EQ(madeOfClass("OWN_CLASS"), "OWN-CLASS m/ m_1.asn 6 k x1 x2");
  EXPECT_EQ(madeOfClass("ALIAS_CLASS"), "ALIAS-CLASS m/ m_1.asn 6 k x1 x2");
}

TEST_F(AdeDefinitions, ClassWithBaseInAnotherModule)
{
  EXPECT_EQ(madeOfClass("FAR_ALIAS"), "FAR-ALIAS n/ n_1.asn 20 k x1 x2");
  EXPECT_EQ(madeOfClass("OWN_CLASS"), "OWN-CLASS m/ m_1.asn 6 k x1 x2");
}

TEST_F(AdeDefinitions, PredefinedClass)
{
  EXPECT_EQ(madeOfClass("TI_CLASS"), "TI-CLASS m/ m_1.asn 9 k x1 x2");
  TNode &alias = node(type("FAR_TI_ALIAS"));
  alias.mainType = TYP_SYNONYM;
  alias.ref = typeNamed(tree(1), "FAR_TI");
  alias.refModule = 2;
  loadCompiled();
  EXPECT_EQ(madeOfClass("FAR_TI_ALIAS"), "FAR-TI-ALIAS n/ n_1.asn 21 k x1 x2");
}

TEST_F(AdeDefinitions, ObjectInItsOwnModule)
{
  EXPECT_EQ(madeOfObject("own_object"), "own-object m/ m_1.asn 11 k x1 x2");
  EXPECT_EQ(madeOfObject("alias_object"), "alias-object m/ m_1.asn 11 k x1 x2");
}

// The line is that of the base all the same.
TEST_F(AdeDefinitions, ObjectWithBaseInAnotherModule)
{
  EXPECT_EQ(madeOfObject("far_alias"), "far-alias m/ m_1.asn 22 k x1 x2");
}

// A set's base is its class.
TEST_F(AdeDefinitions, ObjectSet)
{
  EXPECT_EQ(
      made(adeBrowserNewObjectSetNode(objectSet("Own_Set"), "k", "x1", "x2")),
      "Own-Set m/ m_1.asn 6 k x1 x2");
}

TEST_F(AdeDefinitions, Value)
{
  EXPECT_EQ(madeOfValue("own_value"), "own-value m/ m_1.asn 15 k x1 x2");
  EXPECT_EQ(madeOfValue("far_copy"), "far-copy m/ m_1.asn 23 k x1 x2");
}

TEST_F(AdeDefinitions, XRefDefinition)
{
  AdeBrowserNode *node = definitionOf("Own_Type");
  EXPECT_EQ(told(*node), "Own-Type m/ m_1.asn 3 Definition x1 -");
  EXPECT_EQ(node->level, 2u);
  EXPECT_EQ(told(*root->firstChild), "M m/ m_1.asn 1 ASN.1 module - -");
  EXPECT_EQ(root->firstChild->firstChild, node);
  EXPECT_EQ(definitionOf("Own_Type"), node);
  EXPECT_EQ(node->next, nullptr);
  EXPECT_EQ(root->firstChild->next, nullptr);
}

TEST_F(AdeDefinitions, XRefDefinitionsStandOnLinesOfTheirOwn)
{
  EXPECT_EQ(told(*definitionOf("Far_Alias")),
            "Far-Alias m/ m_1.asn 5 Definition x1 -");
  EXPECT_EQ(told(*definitionOf("Alias")), "Alias m/ m_1.asn 4 Definition x1 -");
  // Sorted.
  EXPECT_EQ(symbol(root->firstChild->firstChild->name), "Alias");
}

TEST_F(AdeDefinitions, XRefDefinitionOfWhatTheTreeHas)
{
  AdeBrowserNode *mod = adeBrowserNewModuleNode(module, "k", nullptr, nullptr);
  adeBrowserInsertSubNode(*root, mod, 1);
  AdeBrowserNode *node = adeBrowserNewNode("Own-Type", nullptr, nullptr, 9,
                                           "ASN.1 type", nullptr, nullptr);
  adeBrowserInsertSubNode(*mod, node, 1);
  EXPECT_EQ(definitionOf("Own_Type"), node);
  EXPECT_EQ(told(*node), "Own-Type - - 9 ASN.1 type - -");
}

TEST_F(AdeDefinitions, XRefDefinitionLeavesTheCurrentNode)
{
  TestType view(module, type("Alias"));
  readRec(module.rec, REC_TNODE, type("OWN_CLASS"));
  adeBrowserFindOrCreateXRefDefinitionNode(*view, nullptr, nullptr);
  EXPECT_EQ(recJustRead[REC_TNODE].index, type("OWN_CLASS"));
  EXPECT_EQ(tNode.line, 6);
}

TEST_F(AdeDefinitions, XRefUsage)
{
  TestType view(module, type("Own_Type"));
  EXPECT_EQ(made(adeBrowserNewXRefUsageNode(*view, 42, nullptr, "x2")),
            "Own-Type m/ m_1.asn 42 Usage - x2");
  TestType farView(module, type("Far_Alias"));
  EXPECT_EQ(made(adeBrowserNewXRefUsageNode(*farView, 7, "x1", nullptr)),
            "Far-Alias m/ m_1.asn 7 Usage x1 -");
  EXPECT_EQ(root->firstChild, nullptr);
}

TEST_F(AdeDefinitions, SelectMakesANodeOnce)
{
  g_adeModuleNode = root;
  select("Own_Type");
  AdeBrowserNode *node = g_adeTypeNode;
  ASSERT_NE(node, nullptr);
  EXPECT_EQ(told(*node), "Own-Type m/ m_1.asn 3 ASN.1 type - -");
  select("Alias");
  EXPECT_EQ(root->firstChild, g_adeTypeNode);
  EXPECT_EQ(root->firstChild->next, node);
  select("Own_Type");
  EXPECT_EQ(g_adeTypeNode, node);
  EXPECT_EQ(node->next, nullptr);
}

TEST_F(AdeDefinitions, SelectDoesNothingWithoutSideFilesOrModule)
{
  select("Own_Type");
  EXPECT_EQ(g_adeTypeNode, nullptr);
  g_adeModuleNode = root;
  adeRecord.prefix.clear();
  select("Own_Type");
  EXPECT_EQ(g_adeTypeNode, nullptr);
  EXPECT_EQ(root->firstChild, nullptr);
}

TEST_F(AdeDefinitions, FunctionsKeepTheirOrder)
{
  g_adeModuleNode = root;
  select("Own_Type");
  adeBrowserAddFunctionNode("b()", "d/", "f.c", 5, "function");
  adeBrowserAddFunctionNode("a()", nullptr, "f.ext", 6, "extern");
  const AdeBrowserNode *first = g_adeTypeNode->firstChild;
  EXPECT_EQ(told(*first), "b() d/ f.c 5 function - -");
  EXPECT_EQ(told(*first->next), "a() - f.ext 6 extern - -");
  EXPECT_EQ(first->level, 2u);
  EXPECT_EQ(first->next->next, nullptr);
}

TEST_F(AdeDefinitions, FunctionsWithoutATypeAreLeftOut)
{
  g_adeModuleNode = root;
  adeBrowserAddFunctionNode("b()", "d/", "f.c", 5, "function");
  EXPECT_EQ(root->firstChild, nullptr);
  select("Own_Type");
  adeRecord.prefix.clear();
  adeBrowserAddFunctionNode("b()", "d/", "f.c", 5, "function");
  EXPECT_EQ(g_adeTypeNode->firstChild, nullptr);
}

}  // namespace
