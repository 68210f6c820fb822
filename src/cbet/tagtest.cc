// Tests of tags in generated C.

#include "cbet/tagtest.h"
#include "cbet/outfile.h"
#include "model/tags.h"
#include "model/typeiter.h"
#include <string>

// The test that is being written; call-backs have no other way to it.
static struct TagTest {
  int file = 0;
  std::string variable;
  bool notEqual = false;
  bool first = true;  // no term so far
  std::string line;   // not written yet
} tagTest;

// Alternatives that are entered at this moment.
static int choiceNesting;

static void addTerm(const char *tag)
{
  if (!tagTest.first) {
    // The joints are the wrong way round; whoever uses the text counts on it.
    tagTest.line += tagTest.notEqual ? " ||" : " &&";
    wToF(tagTest.file, tagTest.line.c_str());
    tagTest.line = " ";
  }
  tagTest.first = false;
  tagTest.line += tagTest.variable;
  tagTest.line += tagTest.notEqual ? " != " : " == ";
  tagTest.line += tag;
}

static void ifTagEqual(AsnType &, const AsnTag &tag, int)
{
  std::string text;
  addTerm(getTagStri(text, nullptr, tag, false, nullptr).c_str());
}

static bool isUntaggedChoice(const AsnType &type)
{
  return getNrOfTags(type) == 0 && type.base.mainType == TYP_CHOICE;
}

static void ifChoiceTag(AsnType &, AsnType &alternative, int)
{
  WalkNesting nesting(choiceNesting, alternative.baseModRec);
  if (isUntaggedChoice(alternative))
    forEachTypeComp(alternative, ifChoiceTag);
  else
    forOutermostTag(alternative, ifTagEqual);
}

static bool hasNoTagOfItsOwn(const AsnType &type)
{
  int mainType = type.base.mainType;
  return getNrOfTags(type) == 0 &&
         (mainType == TYP_ANY || mainType == TYP_OPEN ||
          mainType == TYP_FIELDLIST);
}

void printIfTagForBER(int file, AsnType &type, const char *tagVariable,
                      bool elseIf, bool notEqual)
{
  tagTest = {.file = file,
             .variable = tagVariable ? tagVariable : "tag",
             .notEqual = notEqual,
             .line = elseIf ? "else if (" : "if ("};
  if (isUntaggedChoice(type))
    forEachTypeComp(type, ifChoiceTag);
  else if (hasNoTagOfItsOwn(type))
    addTerm("EOC_TAG");
  else
    forOutermostTag(type, ifTagEqual);
  tagTest.line += ")";
  wToF(file, tagTest.line.c_str());
}
