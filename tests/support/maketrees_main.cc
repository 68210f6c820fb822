// The syntax trees of the golden cases, by name.
//
//     maketrees OUTDIR NAME...     writes them as OUTDIR/PREFIX.stx
//     maketrees --list
//
// Each recipe names its module's prefix; what a case is about stands in the
// recipe, so that its expectation can be worked out from here.

#include "stx/stxwrite.h"
#include <cstdio>
#include <cstring>

// A module with the entry type PDU: an INTEGER.
static StxTree oneEntry(const char *moduleName, const char *prefix)
{
  StxTree tree = stxNewTree(moduleName, prefix);
  TNode pdu = stxNewTNode(TYP_INTEGER, VF_I32);
  pdu.entryFlags = 0x4C;  // entry functions of encoder and decoder
  stxDefineType(tree, "PDU", pdu);
  return tree;
}

static StxTree withLines(StxTree tree, uint8_t kind,
                         std::initializer_list<const char *> lines)
{
  for (const char *line : lines)
    stxGlobalOption(tree, kind, line);
  return tree;
}

// SEQUENCE { a INTEGER (0..7), b BOOLEAN OPTIONAL }
static std::string demo()
{
  StxTree tree = stxNewTree("Demo-Protocol", "demo");
  TNode pdu = stxNewTNode(TYP_SEQ, VF_STRU);
  pdu.entryFlags = 0x4C;
  pdu.valueFieldSize = VF_I8;
  int32_t type = stxDefineType(tree, "PDU", pdu);
  TNode a = stxNewTNode(TYP_INTEGER, VF_UI8);
  stxSetBounds(a, 0, 7);
  stxAddComp(tree, type, "a", a);
  TNode b = stxNewTNode(TYP_BOOLEAN, VF_BOOL);
  b.compStatus = TCS_OPTIONAL;
  stxAddComp(tree, type, "b", b);
  return stxEncode(tree);
}

static std::string abc()
{
  return stxEncode(oneEntry("Abc-Def", "abc"));
}

static std::string xyz()
{
  return stxEncode(oneEntry("Xyz", "xyz"));
}

// Neither entry nor visible types.
static std::string empty()
{
  return stxEncode(stxNewTree("Empty", "empty"));
}

// A module whose name is as long as the header's line is wide.
static std::string longname()
{
  std::string name = "L";
  name += std::string(69, 'o') + "ng";
  return stxEncode(oneEntry(name.c_str(), "long"));
}

// Directories, an info text of 61 characters and the files' directories.
static std::string dirs()
{
  std::string info = "-INFO=" + std::string(60, 'i') + "!";
  return stxEncode(withLines(oneEntry("Dirs", "dirs"), TED_FRONT_END,
                             {"-C=src", "-H=inc/", info.c_str()}));
}

// An info text that makes the header longer than what a stream holds back.
static std::string biginfo()
{
  std::string info = "-INFO=" + std::string(30000, 'i');
  return stxEncode(
      withLines(oneEntry("Biginfo", "bigin"), TED_FRONT_END, {info.c_str()}));
}

// The generated files go where there is no directory.
static std::string nodir()
{
  return stxEncode(
      withLines(oneEntry("Nodir", "nodir"), TED_FRONT_END, {"-C=nowhere"}));
}

// "top" imports declarations from "left" and "right", and "right" from
// "left"; "left" and "right" import "base", and "top" takes nothing from
// "base".
static std::string base()
{
  return stxEncode(oneEntry("Base", "base"));
}

static std::string left()
{
  StxTree tree = oneEntry("Left", "left");
  stxImport(tree, "Base", "base", true);
  return stxEncode(tree);
}

static std::string right()
{
  StxTree tree = oneEntry("Right", "right");
  stxImport(tree, "Base", "base", true);
  stxImport(tree, "Left", "left", true);
  return stxEncode(tree);
}

static std::string top()
{
  StxTree tree = oneEntry("Top", "top");
  stxImport(tree, "ISO8824", "", true);
  stxImport(tree, "Right", "right", true);
  stxImport(tree, "Left", "left", true);
  stxImport(tree, "Base", "base", false);
  return stxEncode(tree);
}

// Two modules that import each other.
static std::string cyca()
{
  StxTree tree = oneEntry("Cyc-A", "cyca");
  stxImport(tree, "Cyc-B", "cycb", true);
  return stxEncode(tree);
}

static std::string cycb()
{
  StxTree tree = oneEntry("Cyc-B", "cycb");
  stxImport(tree, "Cyc-A", "cyca", true);
  return stxEncode(tree);
}

// Imports from a module without types, which imports "abc" itself.
static std::string via()
{
  StxTree tree = oneEntry("Via", "via");
  stxImport(tree, "Hollow", "hollo", true);
  return stxEncode(tree);
}

static std::string hollow()
{
  StxTree tree = stxNewTree("Hollow", "hollo");
  stxImport(tree, "Abc-Def", "abc", true);
  return stxEncode(tree);
}

// Imports what isn't there.
static std::string lost()
{
  StxTree tree = oneEntry("Lost", "lost");
  stxImport(tree, "Gone", "gone", true);
  return stxEncode(tree);
}

// Imports what is no tree.
static std::string outer()
{
  StxTree tree = oneEntry("Outer", "outer");
  stxImport(tree, "Old", "old", true);
  return stxEncode(tree);
}

// Written by and for another version.
static std::string old()
{
  StxTree tree = oneEntry("Old", "old");
  tree.header.toolVersion = tree.header.treeVersion = 201;
  return stxEncode(tree);
}

// Written for another version only.
static std::string newer()
{
  StxTree tree = oneEntry("Newer", "newer");
  tree.header.treeVersion = 212;
  return stxEncode(tree);
}

// Ends within the last string.
static std::string cut()
{
  std::string octets = stxEncode(oneEntry("Cut", "cut"));
  octets.pop_back();
  return octets;
}

// A header that promises two thousand million type nodes.
static std::string absurd()
{
  std::string octets = stxEncode(oneEntry("Absurd", "absrd"));
  octets.replace(40, 4, "\xff\xff\xff\x7f", 4);
  return octets;
}

// A text of some length.
static std::string foreign()
{
  std::string text;
  for (int i = 0; i < 40; ++i)
    text += "This is not a tree.\n";
  return text;
}

// A module name that is no string of the tree: the index is beyond the count.
static std::string noname()
{
  StxTree tree = oneEntry("Noname", "nonam");
  tree.header.moduleName = 1000;
  return stxEncode(tree);
}

// An option line whose text is no string of the tree.
static std::string wildted()
{
  StxTree tree = oneEntry("Wildted", "wted");
  stxGlobalOption(tree, TED_FRONT_END, "-XREF=no");
  stxTedAt(tree, 1).text = 77777;
  return stxEncode(tree);
}

// Back-end options in the tree: one good of each form, one for another tool,
// one unknown.
static std::string saved()
{
  return stxEncode(withLines(oneEntry("Saved", "saved"), TED_BACK_END,
                             {"-BEO=QUORVEN=PERCOD=2:2", "-BERFUNCPREF=yes",
                              "-BEO=OTHER=X", "-BEO=QUORVEN=COLOUR=red"}));
}

// Once bad, always bad: the lines of other passes behind a bad line go with
// it until a line is good again.
static std::string sticky()
{
  return stxEncode(
      withLines(oneEntry("Sticky", "stick"), TED_BACK_END,
                {"-PREFIX=Sticky:stick:stick", "-BEO=QUORVEN=COLOUR=red",
                 "-V=3", "-PREFIXLEN=7", "-VERBOSE=terse", "-V=3"}));
}

// Front-end options under scopes: the second INFO= is for another module.
static std::string scoped()
{
  return stxEncode(withLines(oneEntry("Scoped", "scope"), TED_FRONT_END,
                             {"-BEGIN-SCOPE=other:scope", "-INFO=ours",
                              "-END-SCOPE", "-BEGIN-SCOPE=other",
                              "-INFO=theirs", "-END-SCOPE", "-ID: x"}));
}

// The import "Abc-Def" has the prefix "abc" in the tree, and "-PREFIX="
// agrees; another line names a module that nobody imports.
static std::string prefixed()
{
  StxTree tree = withLines(oneEntry("Prefixed", "pref"), TED_FRONT_END,
                           {"-PREFIX=Abc-Def:adf:abc", "-PREFIX=Unused:un"});
  stxImport(tree, "Abc-Def", "abc", true);
  return stxEncode(tree);
}

struct Recipe {
  const char *name;
  const char *prefix;  // of the file
  std::string (*make)();
};

static const Recipe recipes[] = {
    {"demo", "demo", demo},
    {"abc", "abc", abc},
    {"xyz", "xyz", xyz},
    {"empty", "empty", empty},
    {"longname", "long", longname},
    {"dirs", "dirs", dirs},
    {"nodir", "nodir", nodir},
    {"base", "base", base},
    {"left", "left", left},
    {"right", "right", right},
    {"top", "top", top},
    {"cyca", "cyca", cyca},
    {"cycb", "cycb", cycb},
    {"via", "via", via},
    {"hollow", "hollo", hollow},
    {"lost", "lost", lost},
    {"outer", "outer", outer},
    {"old", "old", old},
    {"newer", "newer", newer},
    {"cut", "cut", cut},
    {"absurd", "absrd", absurd},
    {"foreign", "forei", foreign},
    {"noname", "nonam", noname},
    {"wildted", "wted", wildted},
    {"saved", "saved", saved},
    {"sticky", "stick", sticky},
    {"scoped", "scope", scoped},
    {"prefixed", "pref", prefixed},
    {"biginfo", "bigin", biginfo},
};

static int writeRecipe(const char *directory, const char *name)
{
  for (const Recipe &recipe : recipes) {
    if (strcmp(recipe.name, name) != 0)
      continue;
    std::string path = std::string(directory) + "/" + recipe.prefix + ".stx";
    if (stxWriteOctets(recipe.make(), path.c_str()))
      return 0;
    perror(path.c_str());
    return 1;
  }
  fprintf(stderr, "maketrees: no tree is called %s\n", name);
  return 1;
}

int main(int count, char **vector)
{
  if (count == 2 && strcmp(vector[1], "--list") == 0) {
    for (const Recipe &recipe : recipes)
      puts(recipe.name);
    return 0;
  }
  if (count < 3) {
    fputs("usage: maketrees OUTDIR NAME... | --list\n", stderr);
    return 2;
  }
  int status = 0;
  for (int i = 2; i < count; ++i)
    status |= writeRecipe(vector[1], vector[i]);
  return status;
}
