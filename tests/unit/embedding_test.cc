// Embedding lines of types: which nodes' lines are written, in which order.

#include "cbet/embedding.h"
#include "cbet/outfile.h"
#include "support/loadedasn.h"

namespace {

typedef void PrintEmbedding(int file, const AsnType &type, int selector);

// Every node has the lines "NAME1" for the places E1 and T1, "NAME2" for E2
// and T2.
constexpr int encoderAhead = 1;
constexpr int encoderBehind = 6;
constexpr int typeAhead = 0;
constexpr int typeBehind = 5;

struct Embedding : LoadedAsn {
  ~Embedding() override { closeF(1); }

  // The annotations of a node.
  static std::string notes(const std::string &name)
  {
    std::string text = "--$";
    for (const char *place : {"E1", "E2", "T1", "T2"})
      text += std::string(" embed=\"") + place + ":" + name + place[1] + "\"";
    return text + "\n";
  }
  std::string read() const
  {
    closeF(1);
    std::string text = run.file("out.c");
    for (char &c : text)
      if (c == '\n')
        c = ' ';
    return text;
  }
  std::string printed(PrintEmbedding *print, const AsnType &type_,
                      int selector) const
  {
    openNamedF(1, run.dir.path.c_str(), "out.c");
    print(1, type_, selector);
    return read();
  }
  // Of a definition.
  std::string of(const std::string &name, PrintEmbedding *print, int selector)
  {
    TestType view(module, type(name));
    return printed(print, *view, selector);
  }
  // Of the first component, or the element.
  std::string inside(const std::string &name, PrintEmbedding *print_,
                     int selector_)
  {
    static const Embedding *self;
    static PrintEmbedding *print;
    static int selector;
    static std::string text;
    self = this;
    print = print_;
    selector = selector_;
    text = "nothing visited";
    TestType view(module, type(name));
    forEachTypeCompOrElem(*view, [](AsnType &, AsnType &comp_, int) {
      text = self->printed(print, comp_, selector);
    });
    return text;
  }
};

// Three nodes: component c refers to A, A to B.
const std::string chain = "T ::= SEQUENCE { c A " + Embedding::notes("c") +
                          "}\nA ::= B " + Embedding::notes("a") +
                          "B ::= INTEGER " + Embedding::notes("b");

TEST_F(Embedding, ComponentFromTheOutsideInAndBack)
{
  load(chain);
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderAhead), "c1 a1 b1 ");
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderBehind), "b2 a2 c2 ");
  // The base's lines for "T" are left out for definitions alone.
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, typeAhead), "c1 a1 b1 ");
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, typeBehind), "b2 a2 c2 ");
}

TEST_F(Embedding, DefinedLeaf)
{
  load(chain);
  EXPECT_EQ(of("A", printTypeEmbeddingOptions, encoderAhead), "a1 b1 ");
  EXPECT_EQ(of("A", printTypeEmbeddingOptions, encoderBehind), "b2 a2 ");
  EXPECT_EQ(of("A", printTypeEmbeddingOptions, typeAhead), "a1 ");
  EXPECT_EQ(of("A", printTypeEmbeddingOptions, typeBehind), "a2 ");
  EXPECT_EQ(of("B", printTypeEmbeddingOptions, encoderAhead), "b1 ");
  EXPECT_EQ(of("B", printTypeEmbeddingOptions, typeAhead), "");
}

TEST_F(Embedding, DefinedStructure)
{
  load("A ::= B " + notes("a") + "B ::= SEQUENCE { x NULL } " + notes("b"));
  EXPECT_EQ(of("A", printTypeEmbeddingOptions, encoderAhead), "a1 ");
  EXPECT_EQ(of("A", printTypeEmbeddingOptions, encoderBehind), "a2 ");
  EXPECT_EQ(of("B", printTypeEmbeddingOptions, encoderAhead), "");
  EXPECT_EQ(of("B", printTypeEmbeddingOptions, encoderBehind), "");
}

TEST_F(Embedding, ComponentOfAStructuredType)
{
  load("T ::= SEQUENCE { c B " + notes("c") +
       "}\n"
       "B ::= SEQUENCE { x NULL } " +
       notes("b"));
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderAhead), "c1 b1 ");
}

TEST_F(Embedding, InlineComponentAndAlternative)
{
  load("T ::= SEQUENCE { c NULL " + notes("c") +
       "}\n"
       "U ::= CHOICE { d NULL " +
       notes("d") +
       "}\n"
       "V ::= SEQUENCE { e NULL OPTIONAL " +
       notes("e") + "}");
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderAhead), "c1 ");
  EXPECT_EQ(inside("U", printTypeEmbeddingOptions, encoderBehind), "d2 ");
  EXPECT_EQ(inside("V", printTypeEmbeddingOptions, encoderAhead), "e1 ");
}

TEST_F(Embedding, ElementCountsAsComponent)
{
  load("L ::= SEQUENCE OF " + notes("e") + " B\nB ::= INTEGER " + notes("b"));
  EXPECT_EQ(inside("L", printTypeEmbeddingOptions, encoderAhead), "e1 b1 ");
  EXPECT_EQ(inside("L", printTypeEmbeddingOptions, typeBehind), "b2 e2 ");
}

TEST_F(Embedding, BaseWithoutLines)
{
  load("T ::= SEQUENCE { c A " + notes("c") + "}\nA ::= B " + notes("a") +
       "B ::= INTEGER");
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderAhead), "c1 a1 ");
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderBehind), "a2 c2 ");
  EXPECT_EQ(inside("T", printBaseTypeEmbeddingOptions, encoderAhead), "");
}

TEST_F(Embedding, OnlyTheBaseHasLines)
{
  load("T ::= SEQUENCE { c A }\nA ::= B\nB ::= INTEGER " + notes("b"));
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderAhead), "b1 ");
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderBehind), "b2 ");
  EXPECT_EQ(inside("T", printLocalTypeEmbeddingOptions, encoderAhead), "");
}

TEST_F(Embedding, NoLines)
{
  load("T ::= SEQUENCE { c A }\nA ::= [1] INTEGER");
  for (PrintEmbedding *print :
       {printTypeEmbeddingOptions, printLocalTypeEmbeddingOptions,
        printBaseTypeEmbeddingOptions}) {
    EXPECT_EQ(inside("T", print, encoderAhead), "");
    EXPECT_EQ(of("A", print, encoderBehind), "");
  }
}

TEST_F(Embedding, TagsBetweenTheLines)
{
  load("T ::= SEQUENCE { c [1] EXPLICIT A " + notes("c") +
           "}\nA ::= [2] EXPLICIT B " + notes("a") + "B ::= [3] INTEGER " +
           notes("b"),
       "EXPLICIT TAGS");
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderAhead), "c1 a1 b1 ");
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderBehind), "b2 a2 c2 ");
  EXPECT_EQ(inside("T", printLocalTypeEmbeddingOptions, encoderBehind), "c2 ");
}

TEST_F(Embedding, LocalLines)
{
  load(chain);
  EXPECT_EQ(inside("T", printLocalTypeEmbeddingOptions, encoderAhead), "c1 ");
  EXPECT_EQ(of("A", printLocalTypeEmbeddingOptions, encoderBehind), "a2 ");
  EXPECT_EQ(of("A", printLocalTypeEmbeddingOptions, typeAhead), "a1 ");
  EXPECT_EQ(of("B", printLocalTypeEmbeddingOptions, typeAhead), "b1 ");
  EXPECT_EQ(of("T", printLocalTypeEmbeddingOptions, encoderAhead), "");
}

TEST_F(Embedding, LinesOfTheBase)
{
  load(chain);
  EXPECT_EQ(inside("T", printBaseTypeEmbeddingOptions, encoderAhead), "b1 ");
  EXPECT_EQ(of("A", printBaseTypeEmbeddingOptions, encoderBehind), "b2 ");
  EXPECT_EQ(of("B", printBaseTypeEmbeddingOptions, typeAhead), "b1 ");
}

TEST_F(Embedding, OtherPlacesAndNoPlace)
{
  load(chain);
  // Places of "D", "A" and "P", and none.
  for (int selector : {2, 7, 3, 8, 4, 9, -1, 10})
    for (PrintEmbedding *print :
         {printTypeEmbeddingOptions, printLocalTypeEmbeddingOptions,
          printBaseTypeEmbeddingOptions})
      EXPECT_EQ(inside("T", print, selector), "") << selector;
}

// The lines of a node stand in its own module.
TEST_F(Embedding, BaseInAnotherModule)
{
  loadModules("M DEFINITIONS AUTOMATIC TAGS ::= BEGIN IMPORTS B FROM N;\n"
              "T ::= SEQUENCE { c B " +
              notes("c") +
              "}\nEND\n"
              "N DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
              "X ::= NULL " +
              notes("x") + "B ::= INTEGER " + notes("b") + "END\n");
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderAhead), "c1 b1 ");
  EXPECT_EQ(inside("T", printTypeEmbeddingOptions, encoderBehind), "b2 c2 ");
  EXPECT_EQ(inside("T", printBaseTypeEmbeddingOptions, encoderAhead), "b1 ");
}

TEST_F(Embedding, NoFile)
{
  load(chain);
  TestType view(module, type("A"));
  printTypeEmbeddingOptions(0, *view, encoderAhead);
  printTypeEmbeddingOptions(1, *view, encoderAhead);
  openNamedF(1, run.dir.path.c_str(), "out.c");
  EXPECT_EQ(read(), "");
}

}  // namespace
