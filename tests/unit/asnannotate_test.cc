#include "asn2stx/annotate.h"
#include "support/asncompile.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

static TNode &defOf(StxTree &tree, const std::string &name)
{
  return stxTypeAt(tree, typeNamed(tree, name));
}

// The only definition, "A ::= TYPE --$ NOTE".
static TNode annotated(const std::string &type, const std::string &note)
{
  AsnCompiled compiled = compileBody("A ::= " + type + " --$ " + note);
  return defOf(treeOf(compiled), "A");
}

// The lines of a range, "KIND TEXT".
static std::vector<std::string> linesOf(const StxTree &tree, int32_t first,
                                        int32_t last)
{
  std::vector<std::string> lines;
  for (int32_t i = first; i != 0 && i <= last; ++i) {
    const TedRec &ted = tree.tedRecs.at(static_cast<size_t>(i) - 1);
    lines.push_back(std::to_string(ted.tedKind) + " " + striAt(tree, ted.text));
  }
  return lines;
}

// --- representation ---------------------------------------------------------

TEST(AsnAnnotate, FieldAndSize)
{
  TNode node = annotated("INTEGER (0..7)", "field=ui16 size=I32");
  EXPECT_EQ(node.valueField, VF_UI16);
  EXPECT_EQ(node.valueFieldSize, VF_I32);
  node = annotated("INTEGER (0..7)", "hidden");
  EXPECT_EQ(node.valueField, VF_UI8);
  EXPECT_EQ(node.valueFieldSize, 0);
}

TEST(AsnAnnotate, AllFieldsByName)
{
  for (int code = 0; code < VF_COUNT; ++code) {
    std::string name = vfIdName(code);
    if (!name.starts_with("VF_"))
      continue;
    EXPECT_EQ(annotated("NULL", "field=" + name.substr(3)).valueField, code)
        << name;
  }
}

// --- bits -------------------------------------------------------------------

struct BitCase {
  const char *word;
  uint32_t mask;
};

TEST(AsnAnnotate, OptionBits)
{
  static const BitCase cases[] = {
      {"asnhome", 1u << 6},      {"pointer", 1u << 7},
      {"asnhc", 1u << 8},        {"ptrcomps", 1u << 9},
      {"frame", 1u << 10},       {"homelist", 1u << 11},
      {"homeelems", 1u << 12},   {"dynamicarray", 1u << 13},
      {"inherited15", 1u << 15}, {"extmarkerfield", 1u << 17},
  };
  for (const BitCase &row : cases) {
    std::string word = row.word;
    EXPECT_EQ(annotated("NULL", word).nodeOptions, row.mask) << word;
    EXPECT_EQ(annotated("NULL", word + " no-" + word).nodeOptions, 0u) << word;
  }
  // The bit of a linked list is set by its representation.
  EXPECT_EQ(annotated("SET OF NULL", "pointer").nodeOptions,
            1u << optHomeList | 1u << optPointer);
  EXPECT_EQ(annotated("SET OF NULL", "no-homelist").nodeOptions, 0u);
}

TEST(AsnAnnotate, FlagBits)
{
  static const BitCase cases[] = {
      {"optionalcomps", 0x0001}, {"untaggedcomps", 0x0008},
      {"recursive", 0x0020},     {"mandatorycomps", 0x0040},
      {"extensible", 0x0080},    {"automatictags", 0x0100},
      {"ignorable", 0x0800},
  };
  for (const BitCase &row : cases) {
    std::string word = row.word;
    EXPECT_EQ(annotated("NULL", word).nodeFlags, row.mask) << word;
    EXPECT_EQ(annotated("NULL", word + " no-" + word).nodeFlags, 0) << word;
  }
  EXPECT_EQ(annotated("SET { a NULL OPTIONAL }", "no-optionalcomps").nodeFlags,
            NF_AUTOMATIC_TAGS);
}

// --- SKIP and limits --------------------------------------------------------

TEST(AsnAnnotate, SkipKinds)
{
  for (const char *note : {"skip", "skip=ignore"}) {
    TNode node = annotated("NULL", note);
    EXPECT_EQ(node.nodeOptions, 1u << optSkip) << note;
    EXPECT_EQ(node.typeOptions.skipKind, 0) << note;
    EXPECT_EQ(node.nodeFlags, NF_IGNORABLE) << note;
  }
  TNode node = annotated("NULL", "skip=error");
  EXPECT_EQ(node.nodeOptions, 1u << optSkip);
  EXPECT_EQ(node.typeOptions.skipKind, 1);
  EXPECT_EQ(node.nodeFlags, 0);
}

// A later word overrides an earlier one.
TEST(AsnAnnotate, LastSkipCounts)
{
  TNode node = annotated("NULL", "skip=ignore skip=error");
  EXPECT_EQ(node.typeOptions.skipKind, 1);
  EXPECT_EQ(node.nodeFlags & NF_IGNORABLE, 0);
}

// What is ignored is known only when all annotations of all modules are.
TEST(AsnAnnotate, SkipReachesReferencesAndComponents)
{
  AsnCompiled compiled = compileAsn(
      "N DEFINITIONS ::= BEGIN IMPORTS Bad, Gone FROM M; Ref ::= Bad\n"
      "RefGone ::= Gone END\n"
      "M DEFINITIONS ::= BEGIN\n"
      "S ::= SEQUENCE { b Bad, g Gone }\n"
      "Bad ::= NULL --$ skip=error\n"
      "Gone ::= SEQUENCE { d Deep, ... } --$ skip=ignore\n"
      "Deep ::= INTEGER\n"
      "Kept ::= INTEGER END");
  StxTree &importing = treeOf(compiled, 0);
  StxTree &tree = treeOf(compiled, 1);
  EXPECT_EQ(defOf(importing, "Ref").typeOptions.skipKind, 1);
  EXPECT_EQ(defOf(importing, "RefGone").typeOptions.skipKind, 0);
  int32_t s = typeNamed(tree, "S");
  EXPECT_EQ(stxTypeAt(tree, compNamed(tree, s, "b")).typeOptions.skipKind, 1);
  EXPECT_EQ(stxTypeAt(tree, compNamed(tree, s, "g")).typeOptions.skipKind, 0);
  EXPECT_TRUE(defOf(tree, "Deep").nodeFlags & NF_IGNORABLE);
  EXPECT_FALSE(defOf(tree, "Kept").nodeFlags & NF_IGNORABLE);
  EXPECT_FALSE(defOf(tree, "Bad").nodeFlags & NF_IGNORABLE);
  std::vector<int32_t> comps = compsOf(tree, typeNamed(tree, "Gone"));
  ASSERT_EQ(comps.size(), 2u);
  EXPECT_TRUE(stxTypeAt(tree, comps[0]).nodeFlags & NF_IGNORABLE);
  EXPECT_FALSE(stxTypeAt(tree, comps[1]).nodeFlags & NF_IGNORABLE);
}

TEST(AsnAnnotate, LimitOfLists)
{
  AsnCompiled compiled =
      compileBody("A ::= SEQUENCE OF E --$ limit=0x10 limitaction=ignore\n"
                  "E ::= SEQUENCE { x NULL }\n"
                  "B ::= SEQUENCE OF F --$ limit=2147483647 limitaction=error\n"
                  "F ::= NULL");
  StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "A").typeOptions.sizeLimit, 16);
  EXPECT_EQ(defOf(tree, "A").typeOptions.limitAction, 0);
  EXPECT_EQ(defOf(tree, "B").typeOptions.sizeLimit, 2147483647);
  EXPECT_EQ(defOf(tree, "B").typeOptions.limitAction, 1);
  EXPECT_TRUE(defOf(tree, "E").nodeFlags & NF_IGNORABLE);
  EXPECT_FALSE(defOf(tree, "F").nodeFlags & NF_IGNORABLE);
  EXPECT_FALSE(defOf(tree, "A").nodeFlags & NF_IGNORABLE);
}

TEST(AsnAnnotate, DefiniteLength)
{
  EXPECT_EQ(annotated("NULL", "definitelen=0").typeOptions.definiteLength, 0);
  EXPECT_EQ(annotated("NULL", "definitelen=7").typeOptions.definiteLength, 7);
  EXPECT_EQ(annotated("NULL", "hidden").typeOptions.definiteLength,
            TypeOptions{}.definiteLength);
}

// --- entries and visibility -------------------------------------------------

TEST(AsnAnnotate, Entries)
{
  struct EntryCase {
    const char *note;
    int flags;
    int category;
  };
  static const EntryCase cases[] = {
      {"entry", 0x4C, 0},
      {"entry=PDU", 0x4C, 1},
      {"entry=sdu", 0x4C, 2},
      {"entry=377", 0x4C, 255},
      {"entrybits=0x05", 5, 0},
      {"entrybits=255", 255, 0},
      {"entry=PDU entrybits=0", 0, 1},
  };
  for (const EntryCase &row : cases) {
    TNode node = annotated("NULL", row.note);
    EXPECT_EQ(node.entryFlags, row.flags) << row.note;
    EXPECT_EQ(node.entryCategory, row.category) << row.note;
  }
}

// The header is counted behind the annotations.
TEST(AsnAnnotate, CountsOfTheHeader)
{
  const char *body = "A ::= NULL --$ visible entry=PDU\n"
                     "B ::= NULL --$ visible\n"
                     "C ::= NULL";
  AsnCompiled all = compileBody(body);
  EXPECT_EQ(treeOf(all).header.nrVisibleTypes, 3);
  EXPECT_EQ(treeOf(all).header.nrEntryTypes, 1);
  AsnCompiled some =
      compileAsn(std::string("M DEFINITIONS ::= BEGIN --$ visibility=1\n") +
                 body + "\nEND");
  EXPECT_EQ(treeOf(some).header.visibilityMode, 1);
  EXPECT_EQ(treeOf(some).header.nrVisibleTypes, 2);
}

TEST(AsnAnnotate, VisibleAndHidden)
{
  AsnCompiled compiled = compileBody("A ::= NULL --$ visible\n"
                                     "B ::= NULL --$ hidden\n"
                                     "v INTEGER ::= 1 --$ visible\n"
                                     "w INTEGER ::= 1 --$ hidden");
  StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "A").classFlags, uint32_t{CF_VISIBLE});
  EXPECT_EQ(defOf(tree, "A").hidden, 0);
  EXPECT_EQ(defOf(tree, "B").classFlags, 0u);
  EXPECT_EQ(defOf(tree, "B").hidden, 1);
  const VNode &v = stxValueAt(tree, valueNamed(tree, "v"));
  const VNode &w = stxValueAt(tree, valueNamed(tree, "w"));
  EXPECT_EQ(v.valueFlags & VFL_VISIBLE, VFL_VISIBLE);
  EXPECT_EQ(v.hidden, 0);
  EXPECT_EQ(w.valueFlags & VFL_VISIBLE, 0);
  EXPECT_EQ(w.hidden, 1);
}

// --- lines ------------------------------------------------------------------

TEST(AsnAnnotate, LinesOfTypesAndValues)
{
  AsnCompiled compiled =
      compileBody("A ::= NULL --$ option=\"-TPREF=x\" beo=\"FUNC:f\"\n"
                  "B ::= SEQUENCE { a NULL --$ embed=\"E1:int i;\"\n }\n"
                  "v INTEGER ::= 1 --$ option=\"VPREF=y\" beo=\"//a b\"");
  StxTree &tree = treeOf(compiled);
  const TNode &a = defOf(tree, "A");
  EXPECT_THAT(linesOf(tree, a.firstTed, a.lastTed),
              ElementsAre("3 -TPREF=x", "2 -BEO=QUORVEN=FUNC:f"));
  EXPECT_TRUE(a.nodeOptions & (1u << optNaming));
  const TNode &comp = stxTypeAt(tree, defOf(tree, "B").ref);
  ASSERT_EQ(linesOf(tree, comp.firstTed, comp.lastTed).size(), 1u);
  EXPECT_THAT(linesOf(tree, comp.firstTed, comp.lastTed)[0],
              testing::EndsWith(" -E1:int i;"));
  EXPECT_TRUE(comp.nodeOptions & (1u << optEmbedding));
  EXPECT_EQ(defOf(tree, "B").firstTed, 0);
  const VNode &v = stxValueAt(tree, valueNamed(tree, "v"));
  EXPECT_THAT(linesOf(tree, v.firstTed, v.lastTed),
              ElementsAre("3 -VPREF=y", "2 -BEO=//a b"));
}

TEST(AsnAnnotate, WordsOfModules)
{
  AsnCompiled compiled = compileAsn(
      "M DEFINITIONS ::= BEGIN --$ prefix=abc visibility=2 option=\"-C=src\"\n"
      "--$ beo=\"PERCOD=1:1\" beo=\"-BEO=OTHER=x\"\n"
      "END\nN DEFINITIONS ::= BEGIN END");
  StxTree &tree = treeOf(compiled, 0);
  EXPECT_EQ(compiled.trees.at(0).prefix, "abc");
  EXPECT_EQ(striAt(tree, tree.header.filePrefix), "abc");
  EXPECT_EQ(tree.header.visibilityMode, 2);
  EXPECT_THAT(
      linesOf(tree, tree.header.firstGlobalTed, tree.header.lastGlobalTed),
      ElementsAre("3 -C=src", "2 -BEO=QUORVEN=PERCOD=1:1", "2 -BEO=OTHER=x"));
  StxTree &other = treeOf(compiled, 1);
  EXPECT_EQ(compiled.trees.at(1).prefix, "n");
  EXPECT_EQ(other.header.visibilityMode, 0);
  EXPECT_EQ(other.header.firstGlobalTed, 0);
}

// --- what a note belongs to -------------------------------------------------

TEST(AsnAnnotate, ElementsItemsAndOwners)
{
  AsnCompiled compiled =
      compileBody("L ::= SEQUENCE OF --$ asnhome -- INTEGER --$ pointer\n"
                  "E ::= ENUMERATED { a, --$ hidden\n b }");
  StxTree &tree = treeOf(compiled);
  const TNode &list = defOf(tree, "L");
  EXPECT_FALSE(list.nodeOptions & (1u << optAsnHome));
  EXPECT_TRUE(list.nodeOptions & (1u << optPointer));
  EXPECT_EQ(stxTypeAt(tree, list.ref).nodeOptions, 1u << optAsnHome);
  int32_t e = typeNamed(tree, "E");
  EXPECT_EQ(stxValueAt(tree, itemNamed(tree, e, "a")).hidden, 1);
  EXPECT_EQ(stxValueAt(tree, itemNamed(tree, e, "b")).hidden, 0);
}

// --- errors -----------------------------------------------------------------

// The note stands on line 2, from column 11 where its word begins.
TEST(AsnAnnotate, BadNotesOnTypes)
{
  struct BadCase {
    const char *note;
    const char *error;
  };
  static const BadCase cases[] = {
      {"nonsense", "unknown annotation \"nonsense\""},
      {"no-nonsense", "unknown annotation \"no-nonsense\""},
      {"no-skip", "unknown annotation \"no-skip\""},
      {"prefix=x", "unknown annotation \"prefix\""},
      {"field", "annotation \"field\" needs a value"},
      {"field=", "annotation \"field\" needs a value"},
      {"field=i7", "bad value \"i7\" of annotation \"field\""},
      {"size", "annotation \"size\" needs a value"},
      {"size=x", "bad value \"x\" of annotation \"size\""},
      {"skip=maybe", "bad value \"maybe\" of annotation \"skip\""},
      {"limit", "annotation \"limit\" needs a value"},
      {"limit=0", "bad value \"0\" of annotation \"limit\""},
      {"limit=-1", "bad value \"-1\" of annotation \"limit\""},
      {"limit=2147483648", "bad value \"2147483648\" of annotation \"limit\""},
      {"limit=1x", "bad value \"1x\" of annotation \"limit\""},
      {"limit=0x", "bad value \"0x\" of annotation \"limit\""},
      {"limitaction", "annotation \"limitaction\" needs a value"},
      {"limitaction=no", "bad value \"no\" of annotation \"limitaction\""},
      {"definitelen=256", "bad value \"256\" of annotation \"definitelen\""},
      {"entry=PDQ", "bad value \"PDQ\" of annotation \"entry\""},
      {"entry=400", "bad value \"400\" of annotation \"entry\""},
      {"entry=8", "bad value \"8\" of annotation \"entry\""},
      {"entrybits=256", "bad value \"256\" of annotation \"entrybits\""},
      {"option", "annotation \"option\" needs a value"},
      {"beo", "annotation \"beo\" needs a value"},
      {"embed=x", "bad value \"x\" of annotation \"embed\""},
      {"embed=E1x", "bad value \"E1x\" of annotation \"embed\""},
      {"embed=E1", "bad value \"E1\" of annotation \"embed\""},
  };
  for (const BadCase &row : cases)
    EXPECT_EQ(errorOf(std::string("A ::= --$") + " " + row.note + "\nNULL"),
              std::string("2:11: ") + row.error);
}

TEST(AsnAnnotate, BadNotesOnValuesAndModules)
{
  EXPECT_EQ(errorOf("v INTEGER ::= 1 --$ field=i8"),
            "2:21: unknown annotation \"field\"");
  EXPECT_EQ(errorOf("v INTEGER ::= 1 --$ option"),
            "2:21: annotation \"option\" needs a value");
  EXPECT_EQ(errorOf("v INTEGER ::= 1 --$ beo="),
            "2:21: annotation \"beo\" needs a value");
  // Ahead of the first assignment it is the module's.
  EXPECT_EQ(errorOf("--$ visibility=3\nA ::= NULL"),
            "2:5: bad value \"3\" of annotation \"visibility\"");
  EXPECT_EQ(errorOf("--$ field=i8\nA ::= NULL"),
            "2:5: unknown annotation \"field\"");
  EXPECT_EQ(errorOf("--$ option\nA ::= NULL"),
            "2:5: annotation \"option\" needs a value");
}

TEST(AsnAnnotate, SeveralErrorsInARun)
{
  AsnCompiled compiled = compileBody("A ::= NULL --$ x y\nB ::= NULL --$ size");
  EXPECT_THAT(compiled.errors,
              ElementsAre("2:16: unknown annotation \"x\"",
                          "2:18: unknown annotation \"y\"",
                          "3:16: annotation \"size\" needs a value"));
  EXPECT_THAT(compiled.trees, IsEmpty());
}

TEST(AsnAnnotate, EntriesBelowDefinitionsCount)
{
  AsnCompiled compiled = compileBody("A ::= SEQUENCE { --$ entry\n"
                                     "  a NULL --$ entry\n"
                                     "}\n"
                                     "B ::= NULL");
  EXPECT_EQ(treeOf(compiled).header.nrEntryTypes, 2);
}

TEST(AsnAnnotate, NamingOptionsAreRaised)
{
  AsnCompiled compiled = compileBody("A ::= NULL --$ option=\"tpref=x_Y\"");
  StxTree &tree = treeOf(compiled);
  const TNode &node = defOf(tree, "A");
  EXPECT_THAT(linesOf(tree, node.firstTed, node.lastTed),
              ElementsAre("3 -TPREF=x_Y"));
}

TEST(AsnAnnotate, NotIgnorable)
{
  const std::string body = "A ::= SEQUENCE { a NULL, b B } --$ skip=ignore\n"
                           "B ::= BOOLEAN --$ ";
  AsnCompiled marked = compileBody(body + "visible");
  EXPECT_TRUE(defOf(treeOf(marked), "B").nodeFlags & NF_IGNORABLE);
  AsnCompiled cleared = compileBody(body + "no-ignorable");
  EXPECT_TRUE(defOf(treeOf(cleared), "A").nodeFlags & NF_IGNORABLE);
  EXPECT_FALSE(defOf(treeOf(cleared), "B").nodeFlags & NF_IGNORABLE);
}

TEST(AsnAnnotate, BackEndLineOfAModule)
{
  AsnCompiled compiled =
      compileAsn("M DEFINITIONS ::= BEGIN\n"
                 "--$ beo=\"-C=src\" option=\"-C=obj\"\nEND\n");
  const StxTree &tree = treeOf(compiled);
  EXPECT_THAT(
      linesOf(tree, tree.header.firstGlobalTed, tree.header.lastGlobalTed),
      ElementsAre("2 -BEO=QUORVEN=C=src", "3 -C=obj"));
}
