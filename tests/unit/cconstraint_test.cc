// Generated checks of constraints.

#include "cbet/cconstraint.h"
#include "cbet/cvars.h"
#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "model/infvalue.h"
#include "support/fragtrees.h"
#include "support/loadedasn.h"
#include "support/stringvalues.h"

namespace {

constexpr char comment[] = "/* WARNING: Unimplemented type constraint. */\n";

struct CConstraint : LoadedAsn {
  ~CConstraint() override { closeF(1); }

  void loadText(const std::string &body)
  {
    load(body);
    cSetErrorReportingFunctionFormat("error (%s);\n");
    verboseEx = 1;
  }

  // What the check of a definition is, at an indentation.
  std::string writtenFor(const std::string &name, int indent)
  {
    TestType view(module, type(name));
    openNamedF(1, run.dir.path.c_str(), "out.c");
    fArr[1].indent = indent;
    cCheckConstraints(1, *view);
    EXPECT_EQ(fArr[1].indent, indent);
    EXPECT_EQ(localVarCount[VAR_OK], 0);
    closeF(1);
    return run.file("out.c");
  }
  // Of T.
  std::string check(const std::string &body)
  {
    loadText(body);
    return writtenFor("T", 0);
  }
  std::string checkOf(const std::string &notation)
  {
    return check("T ::= " + notation + "\n");
  }
  // The same, with what goes to stderr at a level ahead of it.
  std::string warned(const std::string &notation, int level)
  {
    loadText("T ::= " + notation + "\n");
    verboseEx = level;
    testing::internal::CaptureStderr();
    std::string text = writtenFor("T", 0);
    return testing::internal::GetCapturedStderr() + text;
  }
  // The cut: deep inside blocks each text of three characters and more has a
  // line of its own; "|" stands for the line ends.
  std::string pieces(const std::string &notation)
  {
    loadText("T ::= " + notation + "\n");
    std::string result;
    bool atStart = true;
    for (char c : writtenFor("T", 40)) {
      if (c == ' ' && atStart)
        continue;
      atStart = c == '\n';
      result += atStart ? '|' : c;
    }
    return result;
  }
};

// The whole check around conditions, each of which ends its line.
std::string block(const std::string &conditions)
{
  return "{\n  BOOLE ok1;\n" + conditions +
         "  if (!ok1){\n    error (CONSTRAINT_FAIL);\n  }\n}\n";
}

// A check with one condition.
std::string condition(const std::string &text)
{
  return block("  ok1 = " + text + "\n");
}

// --- which types ------------------------------------------------------------

TEST_F(CConstraint, NothingToCheck)
{
  EXPECT_EQ(checkOf("BOOLEAN"), "");
  EXPECT_EQ(checkOf("SEQUENCE { a BOOLEAN (TRUE) }"), "");
  EXPECT_EQ(checkOf("SEQUENCE OF BOOLEAN (TRUE)"), "");
}

TEST_F(CConstraint, SkippedAndFrames)
{
  EXPECT_EQ(checkOf("BOOLEAN (TRUE) --$ skip"), "");
  EXPECT_EQ(checkOf("BOOLEAN (TRUE) --$ frame"), "");
  EXPECT_EQ(checkOf("BOOLEAN (TRUE) --$ pointer"),
            condition("(*home == TRUE);"));
  EXPECT_EQ(checkOf("SEQUENCE (SIZE (2)) OF BOOLEAN --$ frame"), "");
}

TEST_F(CConstraint, DefaultReport)
{
  load("T ::= BOOLEAN (TRUE)");
  EXPECT_EQ(writtenFor("T", 0),
            "{\n"
            "  BOOLE ok1;\n"
            "  ok1 = (*home == TRUE);\n"
            "  if (!ok1){\n"
            "    reportError (ASNG_F(asncodg) CONSTRAINT_FAIL);\n"
            "  }\n"
            "}\n");
}

TEST_F(CConstraint, NoFile)
{
  loadText("T ::= BOOLEAN (TRUE)");
  TestType view(module, type("T"));
  cCheckConstraints(0, *view);
  EXPECT_EQ(localVarCount[VAR_OK], 0);
}

// A leaf has all constraints of its chain, the base's first.
TEST_F(CConstraint, LeafHasThoseOfItsBase)
{
  EXPECT_EQ(check("B ::= BOOLEAN (TRUE)\nT ::= B"),
            condition("(*home == TRUE);"));
  EXPECT_EQ(check("B ::= BOOLEAN (TRUE)\nT ::= B (FALSE)"),
            block("  ok1 = (*home == TRUE);\n"
                  "  ok1 = ok1 && (*home == FALSE);\n"));
}

TEST_F(CConstraint, ListHasItsOwnOnly)
{
  const std::string base = "B ::= SEQUENCE (SIZE (2)) OF NULL --$ field=list\n";
  EXPECT_EQ(check(base + "T ::= B"), "");
  EXPECT_EQ(check(base + "T ::= B (SIZE (3))"),
            condition("(listLen (home) == 3);"));
}

// --- joined conditions ------------------------------------------------------

TEST_F(CConstraint, SerialConditions)
{
  EXPECT_EQ(checkOf("BOOLEAN (TRUE) (FALSE) (TRUE)"),
            block("  ok1 = (*home == TRUE);\n"
                  "  ok1 = ok1 && (*home == FALSE);\n"
                  "  ok1 = ok1 && (*home == TRUE);\n"));
}

TEST_F(CConstraint, VariableInsideAnother)
{
  loadText("T ::= BOOLEAN (TRUE) (FALSE)");
  openNamedF(1, run.dir.path.c_str(), "out.c");
  cIncOkVarCount();
  TestType view(module, type("T"));
  cCheckConstraints(1, *view);
  EXPECT_EQ(localVarCount[VAR_OK], 1);
  cDecOkVarCount();
  closeF(1);
  EXPECT_EQ(run.file("out.c"), "{\n"
                               "  BOOLE ok2;\n"
                               "  ok2 = (*home == TRUE);\n"
                               "  ok2 = ok2 && (*home == FALSE);\n"
                               "  if (!ok2){\n"
                               "    error (CONSTRAINT_FAIL);\n"
                               "  }\n"
                               "}\n");
}

// Nothing is left over from the check before.
TEST_F(CConstraint, ChecksInARow)
{
  loadText("T ::= BOOLEAN (TRUE)");
  const std::string text = condition("(*home == TRUE);");
  EXPECT_EQ(writtenFor("T", 0), text);
  EXPECT_EQ(writtenFor("T", 0), text);
}

TEST_F(CConstraint, CutOfTheVariable)
{
  EXPECT_EQ(pieces("BOOLEAN (TRUE) (FALSE)"),
            "{|BOOLE ok1;|ok1|= |(*home ==|TRUE);|"
            "ok1 = |ok1|&& |(*home ==|FALSE);|"
            "if (!|ok1){|error (CONSTRAINT_FAIL);|}|}|");
}

// --- numbers ----------------------------------------------------------------

TEST_F(CConstraint, IntegerWithoutGaps)
{
  EXPECT_EQ(checkOf("INTEGER (1..5)"), "");
  EXPECT_EQ(checkOf("INTEGER (7)"), "");
  EXPECT_EQ(checkOf("INTEGER (1..3 | 4..5)"), "");
}

TEST_F(CConstraint, IntegerWithGaps)
{
  EXPECT_EQ(checkOf("INTEGER (1..2 | 5..6 | 9)"),
            "if ((2 < *home && *home < 5) || (6 < *home && *home < 9)){\n"
            "  error (CONSTRAINT_FAIL);\n"
            "}\n");
}

TEST_F(CConstraint, Enumerated)
{
  const std::string base = "B ::= ENUMERATED {a (0), b (1), c (2)}\n";
  EXPECT_EQ(check(base + "T ::= B (a | c)"), "if ((0 < *home && *home < 2)){\n"
                                             "  error (CONSTRAINT_FAIL);\n"
                                             "}\n");
  EXPECT_EQ(check(base + "T ::= B (b | c)"), "");
  EXPECT_EQ(checkOf("ENUMERATED {a (0), b (4)}"), "");
}

TEST_F(CConstraint, RealRange)
{
  EXPECT_EQ(checkOf("REAL (1.5..2.5)"),
            condition("15.00000000E-1 <= *home && *home <= 25.00000000E-1) ;"));
  EXPECT_EQ(checkOf("REAL (1.5<..<2.5)"),
            condition("15.00000000E-1 < *home && *home < 25.00000000E-1) ;"));
  EXPECT_EQ(checkOf("REAL (1.5<..2.5)"),
            condition("15.00000000E-1 < *home && *home <= 25.00000000E-1) ;"));
}

TEST_F(CConstraint, RealRangeWithoutLowerEnd)
{
  EXPECT_EQ(checkOf("REAL (MIN..2.5)"),
            condition("*home <= 25.00000000E-1) ;"));
  EXPECT_EQ(checkOf("REAL (MIN<..<2.5)"),
            condition("*home < 25.00000000E-1) ;"));
}

// It is asked of the lower end alone whether it is beyond all numbers.
TEST_F(CConstraint, RealRangeWithoutUpperEnd)
{
  EXPECT_EQ(checkOf("REAL (1.5..MAX)"),
            condition("15.00000000E-1 <= *home && *home <= DBL_MAX) ;"));
  EXPECT_EQ(checkOf("REAL (MIN..MAX)"), condition("*home <= DBL_MAX) ;"));
  EXPECT_EQ(checkOf("REAL (PLUS-INFINITY..PLUS-INFINITY)"),
            condition("DBL_MAX <= *home) ;"));
}

TEST_F(CConstraint, CutOfARange)
{
  EXPECT_EQ(pieces("REAL (1.5..<2.5)"),
            "{|BOOLE ok1;|ok1|= |15.00000000E-1|<= |*home|&& |*home <|"
            "25.00000000E-1) ;|if (!|ok1){|error (CONSTRAINT_FAIL);|}|}|");
}

TEST_F(CConstraint, OtherConstraintsOfReals)
{
  EXPECT_EQ(checkOf("REAL (1.5)"), comment);
}

// --- single values ----------------------------------------------------------

TEST_F(CConstraint, SingleString)
{
  EXPECT_EQ(checkOf("IA5String (\"ab c\")"),
            condition("(strcmp (home->st, \"ab c\") == 0);"));
  EXPECT_EQ(checkOf("GraphicString (\"x\")"),
            condition("(strcmp (home->st, \"x\") == 0);"));
  EXPECT_EQ(checkOf("ObjectDescriptor (\"x\")"),
            condition("(strcmp (home->st, \"x\") == 0);"));
}

// The text of wide characters is empty.
TEST_F(CConstraint, SingleUniversalString)
{
  EXPECT_EQ(checkOf("UniversalString (\"x\")"),
            condition("(strcmp (home->st, \"\") == 0);"));
}

TEST_F(CConstraint, CutOfASingleString)
{
  EXPECT_EQ(pieces("IA5String (\"ab c\")"),
            "{|BOOLE ok1;|ok1|= |(strcmp (home->st,|\"ab c\") == 0);|"
            "if (!|ok1){|error (CONSTRAINT_FAIL);|}|}|");
}

// The condition is begun by then.
TEST_F(CConstraint, SingleBmpString)
{
  EXPECT_EQ(checkOf("BMPString (\"x\")"),
            block(std::string("  ok1 = ") + comment));
}

TEST_F(CConstraint, SingleValueOfASegmentedString)
{
  EXPECT_EQ(checkOf("IA5String (\"x\") --$ field=list"), comment);
}

TEST_F(CConstraint, SingleValueOfOthers)
{
  EXPECT_EQ(checkOf("OCTET STRING ('00'H)"), comment);
  EXPECT_EQ(checkOf("NULL (NULL)"), comment);
  EXPECT_EQ(checkOf("OBJECT IDENTIFIER ({1 2})"), comment);
}

// --- permitted alphabets ----------------------------------------------------

// A condition that a string has these characters only.
std::string allowed(const std::string &characters)
{
  return condition("(dynChrStrStrspn (home, \"" + characters +
                   "\") == dynStrLen (home));");
}

// The same, with the comment behind it.
std::string allowedWithComment(const std::string &characters)
{
  std::string text = allowed(characters);
  return text.insert(text.find("  if ("), std::string("  ") + comment);
}

const char dynamicString[] = " --$ field=dyns size=i32";

struct CConstraintAlphabet : CConstraint {
  std::string from(const std::string &set,
                   const std::string &string = "IA5String")
  {
    return checkOf(string + " (FROM (" + set + "))" + dynamicString);
  }
};

TEST_F(CConstraintAlphabet, Functions)
{
  EXPECT_EQ(checkOf("IA5String (FROM (\"ab\")) --$ field=dyns size=i32"),
            condition("(dynChrStrStrspn (home, \"ab\") == dynStrLen (home));"));
  EXPECT_EQ(checkOf("IA5String (FROM (\"ab\")) --$ field=stas size=i32"),
            condition("(staChrStrStrspn (home, \"ab\") == staStrLen (home));"));
  EXPECT_EQ(
      checkOf("IA5String (FROM (\"ab\")) --$ field=dyns size=none"),
      condition("(dynChrStrStrspn0 (home, \"ab\") == dynStrLen (home));"));
  EXPECT_EQ(
      checkOf("IA5String (SIZE (4) ^ FROM (\"ab\")) --$ field=stas0 size=none"),
      condition("(staChrStrStrspn0 (home, \"ab\") == 4);"));
}

TEST_F(CConstraintAlphabet, SegmentedString)
{
  EXPECT_EQ(checkOf("IA5String (FROM (\"ab\")) --$ field=list"), comment);
}

TEST_F(CConstraintAlphabet, Range)
{
  EXPECT_EQ(from("\"a\"..\"e\""), allowed("abcde"));
  EXPECT_EQ(from("\"a\"..\"a\""), allowed("a"));
}

TEST_F(CConstraintAlphabet, RangeByType)
{
  EXPECT_EQ(from("\"1\"..\"3\"", "NumericString"), allowed("123"));
  EXPECT_EQ(from("\"1\"..\"3\"", "PrintableString"), allowed("123"));
  EXPECT_EQ(from("\"1\"..\"3\"", "VisibleString"), allowed("123"));
  EXPECT_EQ(from("\"1\"..\"3\"", "BMPString"), allowed("123"));
  EXPECT_EQ(from("\"1\"..\"3\"", "UniversalString"), allowed("123"));
  // What has no order; the text is begun by then.
  EXPECT_EQ(from("\"1\"..\"3\"", "TeletexString"), allowedWithComment(""));
  EXPECT_EQ(from("\"1\"..\"3\"", "VideotexString"), allowedWithComment(""));
  EXPECT_EQ(from("\"1\"..\"3\"", "GraphicString"), allowedWithComment(""));
  EXPECT_EQ(from("\"1\"..\"3\"", "GeneralString"), allowedWithComment(""));
}

TEST_F(CConstraintAlphabet, RangeWithOtherEnds)
{
  EXPECT_EQ(from("\"a\"<..\"c\""), allowedWithComment(""));
  EXPECT_EQ(from("\"a\"..<\"c\""), allowedWithComment(""));
  EXPECT_EQ(from("MIN..\"c\""), allowedWithComment(""));
  EXPECT_EQ(from("\"a\"..MAX"), allowedWithComment(""));
  EXPECT_EQ(from("MIN..MAX"), allowedWithComment(""));
}

TEST_F(CConstraintAlphabet, SingleValue)
{
  EXPECT_EQ(from("\"xya\""), allowed("xya"));
  EXPECT_EQ(from("\"x\"", "TeletexString"), allowed("x"));
}

TEST_F(CConstraintAlphabet, Union)
{
  EXPECT_EQ(from("\"a\"..\"c\" | \"x%\" | \"0\"..\"2\""), allowed("abcx%012"));
}

TEST_F(CConstraintAlphabet, WithinAnother)
{
  EXPECT_EQ(from("FROM (\"a\"..\"c\")"), allowed("abc"));
}

TEST_F(CConstraintAlphabet, ContainedSubtype)
{
  const std::string t =
      std::string("T ::= IA5String (FROM (S | \"0\"))") + dynamicString + "\n";
  EXPECT_EQ(check(t + "S ::= IA5String (FROM (\"xy\"))"), allowed("xy0"));
  EXPECT_EQ(check(t + "S ::= IA5String (\"xyz\")"), allowed("xyz0"));
}

TEST_F(CConstraintAlphabet, ContainedSubtypeWithoutAlphabet)
{
  const std::string t =
      std::string("T ::= IA5String (FROM (S))") + dynamicString + "\n";
  EXPECT_EQ(check(t + "S ::= IA5String"), allowedWithComment(""));
  EXPECT_EQ(check(t + "S ::= IA5String (SIZE (1))"), allowedWithComment(""));
}

TEST_F(CConstraintAlphabet, OtherConstraints)
{
  EXPECT_EQ(from("\"abc\" ^ \"b\""), allowedWithComment(""));
  EXPECT_EQ(from("\"abc\" EXCEPT \"b\""), allowedWithComment(""));
}

// Each operand begins anew.
TEST_F(CConstraintAlphabet, LastOperandDecides)
{
  EXPECT_EQ(from("\"x\" | \"a\"..<\"c\""), allowedWithComment("x"));
  EXPECT_EQ(from("\"a\"..<\"c\" | \"x\""), allowed("x"));
}

// No line is broken between the quotes, nor ahead of them.
TEST_F(CConstraintAlphabet, Cut)
{
  EXPECT_EQ(pieces("IA5String (FROM (\"uvw\" | \"a\"..\"d\"))" +
                   std::string(dynamicString)),
            "{|BOOLE ok1;|ok1|= |(dynChrStrStrspn (|home, \"uvwabcd\") ==|"
            "dynStrLen (home));|if (!|ok1){|error (CONSTRAINT_FAIL);|}|}|");
}

// --- sizes ------------------------------------------------------------------

TEST_F(CConstraint, OneSizeOfAString)
{
  for (const char *notation :
       {"OCTET STRING (SIZE (1..5))", "BIT STRING (SIZE (3))",
        "IA5String (SIZE (2..MAX))", "BMPString (SIZE (0..3))"})
    EXPECT_EQ(checkOf(notation), "") << notation;
}

// The alphabet is tested, the size goes with the length.
TEST_F(CConstraint, SizeAndAlphabet)
{
  EXPECT_EQ(
      checkOf("IA5String (SIZE (1..5)) (FROM (\"a\"..\"c\")) "
              "--$ field=stas size=i8"),
      condition("(staChrStrStrspn (home, \"abc\") == staStrLen (home));"));
}

TEST_F(CConstraint, SizesInAChain)
{
  EXPECT_EQ(check("B ::= OCTET STRING (SIZE (1..5))\nT ::= B (SIZE (2..3))"),
            "");
}

TEST_F(CConstraint, SizesOfAString)
{
  EXPECT_EQ(
      checkOf("OCTET STRING (SIZE (1 | 3..5 | 8)) --$ field=stas size=i8"),
      block("  ok1 = ((staStrLen (home) == 1) || (3 <= staStrLen (home) && "
            "staStrLen (home)\n"
            "    <= 5) || (staStrLen (home) == 8));\n"));
  EXPECT_EQ(checkOf("BIT STRING (SIZE (1 | 3)) --$ field=stas size=i8"),
            condition("((staStrLen (home) == 1) || (staStrLen (home) == 3));"));
}

TEST_F(CConstraint, SimpleSizeOfAList)
{
  const std::string list = ") OF NULL --$ field=list";
  EXPECT_EQ(checkOf("SEQUENCE (SIZE (2..10)" + list),
            condition("(listLen (home) >= 2);"));
  EXPECT_EQ(checkOf("SET (SIZE (2..MAX)" + list),
            condition("(listLen (home) >= 2);"));
  EXPECT_EQ(checkOf("SET (SIZE (2)" + list),
            condition("(listLen (home) == 2);"));
  EXPECT_EQ(checkOf("SEQUENCE (SIZE (0..10)" + list), "");
  EXPECT_EQ(checkOf("SEQUENCE (SIZE (0)" + list), "");
}

TEST_F(CConstraint, SizeOfAnArray)
{
  EXPECT_EQ(checkOf("SEQUENCE (SIZE (2)) OF NULL --$ field=stru size=i8"),
            condition("(staArrLen (home) == 2);"));
  // What counts the elements, not what the type allows.
  EXPECT_EQ(checkOf("SEQUENCE (SIZE (2)) OF NULL --$ field=stru size=none"),
            condition("(n0 == 2);"));
}

TEST_F(CConstraint, SizesOfAList)
{
  const std::string list = ") OF NULL --$ field=list";
  EXPECT_EQ(checkOf("SEQUENCE (SIZE (1 | 3)" + list),
            condition("((listLen (home) == 1) || (listLen (home) == 3));"));
  EXPECT_EQ(checkOf("SEQUENCE (SIZE (0..1 | 3..MAX)" + list),
            condition("((0 <= listLen (home) && listLen (home) <= 1) || "
                      "(3 <= listLen (home)));"));
}

// The sizes of the chain are one range, those of the constraint are two: each
// begins a condition, and one end serves both.
TEST_F(CConstraint, SizesWithinOneRange)
{
  EXPECT_EQ(check("B ::= SEQUENCE (SIZE (1..5)) OF NULL --$ field=list\n"
                  "T ::= B (SIZE (1 | 3))"),
            block("  ok1 = (listLen (home) == 1ok1 = ok1 && "
                  "(listLen (home) == 3);\n"));
}

TEST_F(CConstraint, CutOfASimpleSize)
{
  EXPECT_EQ(pieces("SEQUENCE (SIZE (100..MAX)) OF NULL --$ field=list"),
            "{|BOOLE ok1;|ok1|= |(listLen (home) >=|100);|"
            "if (!|ok1){|error (CONSTRAINT_FAIL);|}|}|");
}

TEST_F(CConstraint, CutOfSizes)
{
  EXPECT_EQ(
      pieces("SEQUENCE (SIZE (100..200 | 300 | 400..MAX)) OF NULL "
             "--$ field=list"),
      "{|BOOLE ok1;|ok1|= ((|100|<= |listLen (home)|&& |listLen (home)|<= |200)"
      "||| (|listLen (home)|== |300)||| (|400|<= |listLen (home)));|"
      "if (!|ok1){|error (CONSTRAINT_FAIL);|}|}|");
}

// No condition is begun, but one is ended.
TEST_F(CConstraint, NoSizeAtAll)
{
  EXPECT_EQ(checkOf("SEQUENCE (SIZE ((1..2) ^ (5..6))) OF NULL --$ field=list"),
            ");\n");
}

// --- what can't be checked --------------------------------------------------

TEST_F(CConstraint, Unimplemented)
{
  EXPECT_EQ(checkOf("BOOLEAN (TRUE | FALSE)"), comment);
  EXPECT_EQ(checkOf("BOOLEAN (CONSTRAINED BY {})"), comment);
  EXPECT_EQ(checkOf("SEQUENCE { a BOOLEAN } (WITH COMPONENTS {a (TRUE)})"),
            comment);
  EXPECT_EQ(check("B ::= SEQUENCE OF BOOLEAN\n"
                  "T ::= B (WITH COMPONENT (TRUE))"),
            comment);
}

TEST_F(CConstraint, UnimplementedAmongOthers)
{
  EXPECT_EQ(checkOf("BOOLEAN (TRUE | FALSE) (TRUE)"),
            comment + condition("(*home == TRUE);"));
}

// One for the constraint, and one for those that it ends.
TEST_F(CConstraint, UnimplementedAtTheEnd)
{
  EXPECT_EQ(checkOf("BOOLEAN (TRUE) (TRUE | FALSE)"),
            block(std::string("  ok1 = (*home == TRUE);\n  ") + comment + "  " +
                  comment));
}

TEST_F(CConstraint, Warning)
{
  const std::string text = "out.c:1: warning: Unimplemented type constraint.\n";
  const std::string line = warned("BOOLEAN (TRUE | FALSE)", 2);
  EXPECT_EQ(line, run.dir.path + text + comment);
  EXPECT_EQ(warned("BOOLEAN (TRUE | FALSE)", 4), run.dir.path + text + comment);
  EXPECT_EQ(warned("BOOLEAN (TRUE | FALSE)", 1), comment);
  EXPECT_EQ(warned("BOOLEAN (TRUE)", 4), condition("(*home == TRUE);"));
}

// The line is the one behind the comment's.
TEST_F(CConstraint, WarningCountsLines)
{
  EXPECT_EQ(warned("BMPString (\"x\")", 2),
            run.dir.path +
                "out.c:3: warning: Unimplemented type constraint.\n" +
                block(std::string("  ok1 = ") + comment));
}

// --- constraints that no text gives -----------------------------------------

struct CConstraintTrees : FragTrees {
  const char *errorFormat = g_errorReportingFunctionFormat;

  CConstraintTrees() { cSetErrorReportingFunctionFormat("error (%s);\n"); }
  ~CConstraintTrees() override { g_errorReportingFunctionFormat = errorFormat; }

  // The check of a definition.
  std::string check(const TNode &node_, int32_t constraint)
  {
    int32_t record = ConstraintTrees::define(node_, constraint);
    start();
    TestType view(module, record);
    return text([&] { cCheckConstraints(1, *view); });
  }
  // Of a number with components, whose constraints are not read as a set.
  std::string checkNumber(int mainType, int32_t constraint)
  {
    TNode number = node(mainType, VF_I32);
    number.nrComps = 1;
    return check(number, constraint);
  }
  // Of a string whose alphabet is a range.
  std::string checkAlphabet(const VNode &lower, const VNode &upper,
                            int mainType = TYP_IA5STR)
  {
    int32_t range_ = sub(SUB_RANGE, string(lower), string(upper), 32 | 64);
    return check(node(mainType, VF_DYNS, {}, VF_I32),
                 sub(SUB_ALPHABET, range_));
  }
  int32_t string(VNode value_)
  {
    value_.governor = governor(value_.mainType);
    return stxValue(tree, value_);
  }
  int32_t governor(int mainType)
  {
    return stxType(tree, stxNewTNode(mainType));
  }
};

TEST_F(CConstraintTrees, IntegerRange)
{
  EXPECT_EQ(checkNumber(TYP_INTEGER, range(1, 5)),
            condition("1 <= *home && *home <= 5) ;"));
  EXPECT_EQ(checkNumber(TYP_INTEGER, range(1, 5, 0)),
            condition("1 < *home && *home < 5) ;"));
  EXPECT_EQ(checkNumber(TYP_INTEGER, fromMin(5)), condition("*home <= 5) ;"));
}

// The text of the largest number is the first of the infinite texts.
TEST_F(CConstraintTrees, IntegerRangeWithoutUpperEnd)
{
  EXPECT_EQ(checkNumber(TYP_INTEGER, toMax(1)),
            condition("1 <= *home && *home <= " + infValueStri[0] + ") ;"));
}

TEST_F(CConstraintTrees, RangeOfOthers)
{
  EXPECT_EQ(checkNumber(TYP_ENUM, range(1, 5)), comment);
  EXPECT_EQ(check(node(TYP_BOOLEAN, VF_BOOL), range(0, 1)), comment);
}

// There is no gap to name, but the set is no range.
TEST_F(CConstraintTrees, EnumerationWithoutItems)
{
  EXPECT_EQ(check(node(TYP_ENUM, VF_UI8), range(1, 5)),
            "if (){\n  error (CONSTRAINT_FAIL);\n}\n");
}

// The test of the variable follows on the line of its value.
TEST_F(CConstraintTrees, SingleNumber)
{
  for (int mainType : {TYP_INTEGER, TYP_ENUM})
    EXPECT_EQ(checkNumber(mainType, single(3)), "{\n"
                                                "  BOOLE ok1;\n"
                                                "  ok1 = if (!ok1){\n"
                                                "    error (CONSTRAINT_FAIL);\n"
                                                "  }\n"
                                                "}\n");
}

TEST_F(CConstraintTrees, KindsWithoutCheck)
{
  for (int kind = 0; kind <= 25; ++kind) {
    bool isWalked = kind == SUB_CATENATED ||
                    (kind >= SUB_RANGE && kind <= SUB_SINGLE_VALUE);
    bool isPassedOver = kind == SUB_TABLE || kind == SUB_HIDDEN;
    if (isWalked)
      continue;
    EXPECT_EQ(check(node(TYP_NULL, VF_NULL), sub(kind)),
              isPassedOver ? "" : comment)
        << kind;
  }
}

TEST_F(CConstraintTrees, PassedOverAmongOthers)
{
  int32_t value_ =
      sub(SUB_SINGLE_VALUE,
          stxValue(tree, stxNewVNode(TYP_BOOLEAN, governor(TYP_BOOLEAN))));
  EXPECT_EQ(
      check(node(TYP_BOOLEAN, VF_BOOL),
            set(SUB_CATENATED, {sub(SUB_TABLE), value_, sub(SUB_HIDDEN)})),
      condition("(*home == FALSE);"));
}

TEST_F(CConstraintTrees, Component)
{
  TNode size = node(TYP_OCTSTR, VF_STAS8, {}, VF_I8);
  size.firstConstraint = sub(SUB_SIZE, set(SUB_UNION, {single(1), single(4)}));
  int32_t foo = define("Foo", node(TYP_SEQ, VF_STRU));
  comp(foo, "x", size);
  start();
  TestType view(module, foo);
  EXPECT_EQ(text([&] {
              atComp(*view, 0,
                     [](AsnType &comp_) { cCheckConstraints(1, comp_); });
            }),
            condition("((staStrLen (&home->x_fld) == 1) || "
                      "(staStrLen (&home->x_fld) == 4));"));
}

TEST_F(CConstraintTrees, RangeOfCharacters)
{
  EXPECT_EQ(
      checkAlphabet(leaf8(tree, TYP_IA5STR, "x"), leaf8(tree, TYP_IA5STR, "z")),
      allowed("xyz"));
  // Upside down: there is none.
  EXPECT_EQ(
      checkAlphabet(leaf8(tree, TYP_IA5STR, "z"), leaf8(tree, TYP_IA5STR, "x")),
      allowed(""));
  EXPECT_EQ(checkAlphabet(leaf8(tree, TYP_IA5STR, "\xFE"),
                          leaf8(tree, TYP_IA5STR, "\xFF")),
            allowed("\xFE\xFF"));
}

TEST_F(CConstraintTrees, RangeOfOtherStrings)
{
  EXPECT_EQ(checkAlphabet(leaf8(tree, TYP_IA5STR, "xx"),
                          leaf8(tree, TYP_IA5STR, "z")),
            allowedWithComment(""));
  EXPECT_EQ(checkAlphabet(leaf8(tree, TYP_IA5STR, "x"),
                          leaf8(tree, TYP_IA5STR, "zz")),
            allowedWithComment(""));
  EXPECT_EQ(
      checkAlphabet(leaf8(tree, TYP_IA5STR, "x"), leaf8(tree, TYP_PRISTR, "z")),
      allowedWithComment(""));
  EXPECT_EQ(
      checkAlphabet(leaf8(tree, TYP_IA5STR, ""), leaf8(tree, TYP_IA5STR, "z")),
      allowedWithComment(""));
}

// Of wide characters the lowest octet is written.
TEST_F(CConstraintTrees, RangeOfWideCharacters)
{
  EXPECT_EQ(checkAlphabet(leaf16(tree, u"\x4161"), leaf16(tree, u"\x4163"),
                          TYP_BMPSTR),
            allowed("abc"));
  EXPECT_EQ(checkAlphabet(leaf32(tree, U"\x10461"), leaf32(tree, U"\x10463"),
                          TYP_UNISTR),
            allowed("abc"));
}

}  // namespace
