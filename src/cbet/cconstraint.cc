// Generated checks of constraints.
//
// A leaf's constraints are all checked, a structure's or list's only as far
// as its own node has them: the check of what it refers to stands with that.
// Numbers are tested by their flat set, and only for its gaps, since ranges
// are the encoding's business; so are the sizes of a string whose one
// constraint is a range of sizes.
//
// Everything else becomes conditions that are joined in one "ok" variable,
// which is defined ahead of the first and tested behind the last. A condition
// is begun by `assignOk` before anybody knows whether it can be completed. So
// the comment on what can't be checked may stand in the midst of one, and
// neither the range of a number nor its single value gives C that compiles:
// no generator of the tool gets there, and those who read such code depend on
// the text as it is.

#include "cbet/cconstraint.h"
#include "base/diag.h"
#include "cbet/chome.h"
#include "cbet/clist.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "cbet/valueprint.h"
#include "model/restrstring.h"
#include "model/typequery.h"
#include "model/valuesetbuild.h"

// What is known during one call.
static struct ConstraintCheck {
  int glbFileInd = 0;                // written to; 0: no call
  bool glbOkDefined = false;         // the "ok" variable is there
  bool glbSorry = false;             // the constraint at hand gave no code
  bool glbCheckSizeConstr = false;   // a test of sizes waits for its end
  bool glbIsSizeConstraint = false;  // the last one looked at is a SIZE
} check;

static void writeText(const char *text)
{
  wToF(check.glbFileInd, text);
}

// --- the variable -----------------------------------------------------------

static void writeOkRef()
{
  std::string text;
  writeText(cOkVarRef(text, nullptr, nullptr).c_str());
}

// Begins a condition.
static void assignOk()
{
  if (check.glbOkDefined) {
    writeOkRef();
    writeText(" =");
    writeText(" ");
    writeOkRef();
    writeText(" && ");
    return;
  }
  check.glbOkDefined = true;
  cOpenBrace(check.glbFileInd);
  cIncOkVarCount();
  cOkVarDef(check.glbFileInd);
  writeOkRef();
  writeText(" = ");
}

// Behind the condition of an "if".
static void reportFailure()
{
  cOpenBrace(check.glbFileInd);
  cReportError(check.glbFileInd, "CONSTRAINT_FAIL");
  cCloseBrace(check.glbFileInd);
}

// Tests the variable, and ends its block.
static void checkOk()
{
  if (!check.glbOkDefined)
    return;
  writeText("if (!");
  writeOkRef();
  writeText(")");
  reportFailure();
  cCloseBrace(check.glbFileInd);
  cDecOkVarCount();
}

// --- ranges and single values -----------------------------------------------

static void writeValue(const AsnType &type)
{
  std::string text;
  writeText(cHome(text, nullptr, false, type, false, nullptr).c_str());
}

static void writeNumber(const AsnType &type, const char *prefix,
                        const AsnValue &number)
{
  if (getTypeMainType(type) == TYP_INTEGER)
    printIntegerValueToF(check.glbFileInd, prefix, number, nullptr);
  else
    printDoubleRealValueToF(check.glbFileInd, prefix, number, nullptr);
}

// It is the lower end that decides on the test of the upper one, and the
// bracket that closes was never opened.
static void valueRangeConstr(AsnType &type, AsnValue &lower, bool lowerClosed,
                             AsnValue &upper, bool upperClosed)
{
  int mainType = getTypeMainType(type);
  if (mainType != TYP_INTEGER && mainType != TYP_REAL) {
    check.glbSorry = true;
    return;
  }
  assignOk();
  bool hasLower = !isMinusInfinity(lower);
  if (hasLower) {
    writeNumber(type, nullptr, lower);
    writeText(lowerClosed ? " <= " : " < ");
    writeValue(type);
  }
  if (!isPlusInfinity(lower)) {
    if (hasLower)
      writeText(" && ");
    writeValue(type);
    writeText(upperClosed ? " <=" : " <");
    writeNumber(type, " ", upper);
  }
  putToF(check.glbFileInd, ") ;\n");
}

static void singleBoolean(const AsnType &type, const AsnValue &value)
{
  std::string text;
  writeText(cHome(text, "(", false, type, false, " ==").c_str());
  printBooleanValueToF(check.glbFileInd, " ", value, ");\n");
}

static void singleString(const AsnType &type, const AsnValue &value)
{
  std::string text;
  writeText(cHome(text, "(strcmp (", false, type, true, "st,").c_str());
  printCharacterStringValueToF(check.glbFileInd, " \"", value, "\") == 0);\n");
}

static void singleValueConstr(AsnType &type, AsnValue &value)
{
  int mainType = getTypeMainType(type);
  bool isNumber = mainType == TYP_INTEGER || mainType == TYP_ENUM;
  bool isKnown =
      mainType == TYP_BOOLEAN || isNumber || isRestrCharStringType(type);
  if (!isKnown || getVF(type) == VF_LIST) {
    check.glbSorry = true;
    return;
  }
  assignOk();
  if (mainType == TYP_BOOLEAN)
    singleBoolean(type, value);
  else if (mainType == TYP_BMPSTR)
    check.glbSorry = true;
  else if (!isNumber)
    singleString(type, value);
}

// --- permitted alphabets ----------------------------------------------------

// The code of the one character of a string; false for any other value.
static bool onlyCharacter(const AsnValue &value, uint32_t &code)
{
  int mainType = getValueMainType(value);
  bool isString = (mainType >= TYP_NUMSTR && mainType <= TYP_UNISTR) ||
                  mainType == TYP_OBJDESCR;
  if (!isString)
    return false;
  RestrCharStri stri;
  makeRestrCharStri(value.baseModRec, value.base, stri);
  if (stri.length != 1)
    return false;
  switch (stri.mainType) {
  case TYP_BMPSTR:
    code = stri.text16[0];
    break;
  case TYP_UNISTR:
    code = stri.text32[0];
    break;
  default:
    code = static_cast<unsigned char>(stri.text[0]);
    break;
  }
  return true;
}

// The character strings whose characters have an order.
static bool isOrderedString(int mainType)
{
  switch (mainType) {
  case TYP_NUMSTR:
  case TYP_PRISTR:
  case TYP_VISSTR:
  case TYP_IA5STR:
  case TYP_BMPSTR:
  case TYP_UNISTR:
    return true;
  default:
    return false;
  }
}

static void constructRangeCharacters(AsnType &type, AsnValue &lower,
                                     bool lowerClosed, AsnValue &upper,
                                     bool upperClosed)
{
  uint32_t first = 0, last = 0;
  if (getValueMainType(lower) != getValueMainType(upper) || !lowerClosed ||
      !upperClosed || !isOrderedString(getTypeMainType(type)) ||
      !onlyCharacter(lower, first) || !onlyCharacter(upper, last)) {
    check.glbSorry = true;
    return;
  }
  // The last one may be the highest of its kind.
  for (uint64_t code = first; code <= last; ++code)
    printfToF(check.glbFileInd, "%c", static_cast<int>(code & 0xFF));
}

static void constructAllowedCharacters(AsnType &type,
                                       AsnConstraint *constraint);

static void allowedCharactersOfOperand(AsnType &type, AsnConstraint &operand,
                                       int)
{
  constructAllowedCharacters(type, &operand);
}

static void allowedCharactersOfValue(AsnType &, AsnValue &value)
{
  putCharacterStringValueToF(check.glbFileInd, nullptr, value, nullptr);
}

// Of the operands of a union the last one decides whether there is a comment.
// Null is a contained subtype without constraints, which allows more than can
// be listed.
static void constructAllowedCharacters(AsnType &type, AsnConstraint *constraint)
{
  check.glbSorry = false;
  switch (constraint ? getConstraintKind(*constraint) : 0) {
  case SUB_UNION:
    forUnionConstraint(type, *constraint, allowedCharactersOfOperand);
    break;
  case SUB_RANGE:
    forValueRangeConstraint(type, *constraint, constructRangeCharacters);
    break;
  case SUB_ALPHABET:
    forPermittedAlphabetConstraint(type, *constraint,
                                   constructAllowedCharacters);
    break;
  case SUB_SINGLE_VALUE:
    forSingleValueConstraint(type, *constraint, allowedCharactersOfValue);
    break;
  case SUB_INCLUDES:
    forContainedSubtypeConstraint(type, *constraint,
                                  constructAllowedCharacters);
    break;
  default:
    check.glbSorry = true;
    break;
  }
}

// The whole string must consist of the characters.
static void alphabetConstr(AsnType &type, AsnConstraint *constraint)
{
  bool isStatic = cIsStaticString(type);
  if (!isStatic && !cIsDynamicString(type)) {
    check.glbSorry = true;
    return;
  }
  const char *zero = getVFSize(type) == VF_NONE ? "0" : "";
  std::string text;
  assignOk();
  printfToF(check.glbFileInd,
            isStatic ? "(staChrStrStrspn%s (" : "(dynChrStrStrspn%s (", zero);
  writeText(cHome(text, nullptr, true, type, false, ",").c_str());
  writeText(" \"");
  constructAllowedCharacters(type, constraint);
  putToF(check.glbFileInd, "\") ==");
  writeText(cGetSize(text, " ", type, true, ");\n").c_str());
}

// --- sizes ------------------------------------------------------------------

static void writeInt64(const char *prefix, sint64 number)
{
  int64ToF(check.glbFileInd, prefix, number, nullptr);
}

// The size of a string is sent with its length. That a list is not too long
// is tested where its elements are added.
static void simpleSizeConstr(AsnType &type, const Int64Pair &segment, int)
{
  if (!isListType(type) || i64iszero(segment.lower)) {
    check.glbCheckSizeConstr = false;
    return;
  }
  std::string text;
  bool isFixed = i64cmp(segment.lower, segment.upper) == 0;
  assignOk();
  writeText(cGetSize(text, "(", type, false, isFixed ? " ==" : " >=").c_str());
  writeInt64(" ", segment.lower);
}

static void sizeConstr(AsnType &type, const Int64Pair &segment, int index)
{
  std::string size;
  cGetSize(size, nullptr, type, false, nullptr);
  if (index == 0) {
    assignOk();
    writeText("(");
  } else {
    writeText(" || ");
  }
  writeText("(");
  if (i64cmp(segment.lower, segment.upper) == 0) {
    writeText(size.c_str());
    writeText(" ==");
    writeText(" ");
    writeInt64(nullptr, segment.lower);
  } else {
    writeInt64(nullptr, segment.lower);
    writeText(" <=");
    writeText(" ");
    writeText(size.c_str());
    if (!i64ismax(segment.upper)) {
      writeText(" &&");
      writeText(" ");
      writeText(size.c_str());
      writeText(" <=");
      writeText(" ");
      writeInt64(nullptr, segment.upper);
    }
  }
  writeText(")");
}

static void checkSize(AsnType &type, AsnConstraint &constraint)
{
  check.glbCheckSizeConstr = true;
  forInt64SizeConstraintValueSet(
      type, constraint,
      isSimpleSizeConstraintValueSet(type) ? simpleSizeConstr : sizeConstr);
  if (check.glbCheckSizeConstr)
    writeText(");\n");
}

// --- one constraint ---------------------------------------------------------

static void warnUnimplemented()
{
  writeText("/* WARNING: Unimplemented type constraint. */\n");
  if (verboseEx <= 1)
    return;
  std::string name;
  nameOfF(name, nullptr, check.glbFileInd, nullptr);
  fprintf(stderr, "%s:%d: warning: Unimplemented type constraint.\n",
          name.c_str(), linesInF(check.glbFileInd));
}

// Serial constraints that end in one without a check have two comments, of
// that one and of the whole.
static void checkConstraint(AsnType &type, AsnConstraint *constraint)
{
  check.glbSorry = false;
  switch (getConstraintKind(*constraint)) {
  case SUB_CATENATED:
    forEachCatenatedConstraint(type, *constraint, checkConstraint);
    break;
  case SUB_RANGE:
    forValueRangeConstraint(type, *constraint, valueRangeConstr);
    break;
  case SUB_ALPHABET:
    forPermittedAlphabetConstraint(type, *constraint, alphabetConstr);
    break;
  case SUB_SIZE:
    checkSize(type, *constraint);
    break;
  case SUB_SINGLE_VALUE:
    forSingleValueConstraint(type, *constraint, singleValueConstr);
    break;
  case SUB_TABLE:
  case SUB_HIDDEN:
    break;
  default:
    check.glbSorry = true;
    break;
  }
  if (check.glbSorry)
    warnUnimplemented();
}

// --- a type -----------------------------------------------------------------

static void lookForSize(AsnType &, AsnConstraint *constraint)
{
  check.glbIsSizeConstraint = getConstraintKind(*constraint) == SUB_SIZE;
}

static bool isOnlyOneSimpleSizeConstraint(AsnType &type)
{
  if (!isSimpleSizeConstraintValueSet(type) ||
      getNrOfTypeConstraints(type) != 1)
    return false;
  check.glbIsSizeConstraint = false;
  forEachTypeConstraint(type, lookForSize);
  return check.glbIsSizeConstraint;
}

static void checkLeaf(AsnType &type)
{
  int mainType = getTypeMainType(type);
  if (mainType == TYP_INTEGER || mainType == TYP_ENUM) {
    if (cCheckIntegerValueSet(check.glbFileInd, type))
      reportFailure();
    return;
  }
  bool hasLength = mainType == TYP_BITSTR || mainType == TYP_OCTSTR ||
                   isRestrCharStringType(type);
  if (!hasLength || !isOnlyOneSimpleSizeConstraint(type))
    forEachTypeConstraint(type, checkConstraint);
}

void cCheckConstraints(int file, AsnType &type)
{
  if (testTypeOption(type, optSkip) || testTypeOption(type, optFrame))
    return;
  check = ConstraintCheck{};
  check.glbFileInd = file;
  if (isLeafType(type)) {
    if (isConstraints(type))
      checkLeaf(type);
  } else if (isLocalTypeConstraints(type)) {
    forEachLocalTypeConstraint(type, checkConstraint);
  }
  checkOk();
  check = ConstraintCheck{};
}
