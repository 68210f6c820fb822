#pragma once
#include "cbet/cgenstate.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/traverse.h"
#include "model/typepath.h"
#include "support/typetrees.h"
#include <string>

// Fragments of generated code from types of hand-made trees. File 1 is open,
// no local variable is in scope, and the type name path is empty.
struct FragTrees : TypeTrees {
  FragTrees()
  {
    clearOutFiles();
    openNamedF(1, dir.path.c_str(), "out.c");
    cInitVars();
    resetPath();
    pushPath();
  }
  ~FragTrees() override
  {
    glbGeneratingEntryFunction = false;
    forEachOpenFile(closeF);
    clearOutFiles();
    resetPath();
    resetStore();
    cInitVars();
  }

  // --- trees

  // A node of a sort with options, by number.
  static TNode node(int mainType, int valueField,
                    std::initializer_list<int> options = {}, int size = VF_NONE)
  {
    TNode result = stxNewTNode(mainType, valueField);
    result.valueFieldSize = static_cast<uint8_t>(size);
    for (int option : options)
      result.nodeOptions |= 1u << option;
    return result;
  }
  static TNode optional(TNode node)
  {
    node.compStatus = TCS_OPTIONAL;
    return node;
  }
  // A reference to a definition, with options of its own.
  static TNode reference(int32_t ref, int valueField = VF_NONE,
                         std::initializer_list<int> options = {})
  {
    TNode result = stxNewSynonym(ref);
    result.valueField = static_cast<uint8_t>(valueField);
    for (int option : options)
      result.nodeOptions |= 1u << option;
    return result;
  }

  // --- the loaded module

  GlobalOptions &options() const { return module.rec->options; }

  // The entry function of the type is being written, in a VARNO application.
  void inEntryFunction(AsnType &type) const
  {
    options().definitionCategory = 1;
    options().nrEntryTypes = 1;
    type.entryFlags |= entryFlagBit;
    glbGeneratingEntryFunction = true;
  }

  // Calls `body` with the component or element of that number, whose name
  // stands on the path meanwhile with `named`.
  template <class F>
  static void atComp(AsnType &father, int number, F body, bool named = true)
  {
    static F *todo;
    static int wanted, visits;
    static bool onPath;
    todo = &body;
    wanted = number;
    onPath = named;
    visits = 0;
    forEachTypeCompOrElem(father, [](AsnType &, AsnType &comp_, int compNbr) {
      if (compNbr != wanted || visits++ > 0)
        return;
      if (onPath)
        addCompNameToPath(comp_);
      (*todo)(comp_);
      if (onPath)
        removeCompNameFromPath(comp_);
    });
    EXPECT_GT(visits, 0) << "no component " << number;
  }

  // --- what is written

  // To file 1 since the last call; its indentation stays.
  std::string written() const
  {
    int indent = fArr[1].indent;
    closeF(1);
    std::string text = readFile(dir.path + "out.c");
    openNamedF(1, dir.path.c_str(), "out.c");
    fArr[1].indent = indent;
    return text;
  }
  template <class F>
  std::string text(F write) const
  {
    write();
    return written();
  }

  // The cut of a fragment: deep inside blocks each text of three characters
  // and more has a line of its own. Lines are joined by "|", without the
  // blanks ahead of them.
  template <class F>
  std::string pieces(F write) const
  {
    constexpr int deep = 40;
    fArr[1].indent = deep;
    write();
    EXPECT_EQ(fArr[1].indent, deep);
    fArr[1].indent = 0;
    std::string result;
    bool atStart = true;
    for (char c : written()) {
      if (c == ' ' && atStart)
        continue;
      atStart = c == '\n';
      result += atStart ? '|' : c;
    }
    if (result.ends_with('|'))
      result.pop_back();
    return result;
  }

  // True if the two characters at the end of a line are a text of their own:
  // too short to move to a new line, they leave what is ahead of them where
  // it is, as long as that ends at the last column.
  template <class F>
  bool endsApart(F write) const
  {
    constexpr size_t lastColumn = 78;
    std::string line = text(write);
    size_t ahead = line.size() - std::string(");\n").size();
    EXPECT_LT(ahead, lastColumn) << line;
    std::string filler(lastColumn - ahead, 'x');
    wToF(1, filler.c_str());
    write();
    return written() == filler + line;
  }
};
