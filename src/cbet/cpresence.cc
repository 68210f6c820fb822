// Presence of components in generated code.

#include "cbet/cpresence.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cgenstate.h"
#include "cbet/chome.h"
#include "cbet/chomeop.h"
#include "cbet/cmarker.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/traverse.h"
#include "model/controlmember.h"
#include "model/typeiter.h"
#include "model/typequery.h"

// --- optional components ----------------------------------------------------

void cBeginTestOptionalComp(int file, AsnType &father, AsnType &comp)
{
  if (!isOptionalExtensionAdditionComponentOrGroup(comp))
    return;
  wToF(file, "if (");
  cTestComponent(file, father, comp);
  wToF(file, ")");
  cOpenBrace(file);
}

void cEndTestOptionalComp(int file, AsnType &, AsnType &comp)
{
  if (isOptionalExtensionAdditionComponentOrGroup(comp))
    cCloseBrace(file);
}

void cTestComponent(int file, AsnType &father, AsnType &comp)
{
  if (getTypeMainType(comp) == TYP_EXTADDGRP)
    cTestOptionalGroup(file, father, comp);
  else
    cTestOptionalComp(file, father, comp);
}

// The component's own home tells. Outside the walk that visits the component
// its name is not on the path, and the reference would be the father's.
static std::string &testOfHome(std::string &text, AsnType &comp)
{
  bool isNamed = comp.typePathLen > 0;
  if (!isNamed)
    addCompNameToPath(comp);
  cHomeRef(text, nullptr, false, comp, false, nullptr);
  if (!isNamed) {
    removeCompNameFromPath(comp);
    comp.typePathLen = 0;
  }
  return text;
}

void cTestOptionalComp(int file, AsnType &father, AsnType &comp)
{
  std::string text, reference;
  int32_t compNbr = getTypeCompNbr(comp);
  if (cIsHometab(father)) {
    printfToF(file, "(hometab [%d])", compNbr);
    return;
  }
  if (testTypeOption(father, optAsnhc)) {
    testOfHome(text, comp);
  } else {
    cStructHomeMemberRef(reference, nullptr, false, father, nullptr);
    getControlMemberTst(text, "", reference.c_str(), father, comp, compNbr, "");
  }
  wToF(file, text.c_str());
}

// Of the walk over the members of a group; such walks do not nest.
static struct GroupTest {
  int file = 0;
  bool isFirst = true;
} groupTest;

static void testMember(AsnType &father, AsnType &comp, int)
{
  if (!groupTest.isFirst)
    wToF(groupTest.file, " || ");
  groupTest.isFirst = false;
  cTestOptionalComp(groupTest.file, father, comp);
}

void cTestOptionalGroup(int file, AsnType &father, AsnType &group)
{
  groupTest = {file, true};
  forEachAdditionGroupComp(father, group, testMember);
}

// --- components of a SET ----------------------------------------------------

void cBeginTestDuplicateSetComp(int file, AsnType &comp)
{
  cTestControlMember(file, comp);
  cOpenBrace(file);
}

void cEndTestDuplicateSetComp(int file)
{
  cCloseBrace(file);
}

// Of the walk over the mandatory components.
static struct MissingTest {
  int file = 0;
  int32_t word = -1;  // of the mask that is tested, -1: none yet
  std::string mask;
} missingTest;

static void pickMandatoryComp(AsnType &father, AsnType &comp, int compNbr)
{
  if (getTypeCompStatus(comp) != TCS_MANDATORY || isTypeExtensionmarker(comp))
    return;
  int file = missingTest.file;
  int32_t word = compNbr / maskWordComps;
  if (word == missingTest.word) {
    wToF(file, "|");
  } else {
    if (missingTest.word >= 0)
      putToF(file, ")) || (");
    missingTest.word = word;
    wToF(file, missingTest.mask.c_str());
    if (getNrOfTypeComps(father) > maskWordComps)
      printfToF(file, "[%d]", word);
    wToF(file, " & (");
  }
  printfToF(file, "BIT%s(%d)", getVFSize(father) == VF_I32 ? "L" : "",
            compNbr % maskWordComps);
}

static void pickMandatoryComps(int file, AsnType &type, const std::string &mask)
{
  missingTest = {file, -1, mask};
  wToF(file, "if ((");
  forEachTypeComp(type, pickMandatoryComp);
  wToF(file, ")))");
}

static int bitsOfMask(const AsnType &type)
{
  switch (getVFSize(type)) {
  case VF_UI8:
  case VF_I8:
    return 8;
  case VF_UI16:
  case VF_I16:
    return 16;
  default:
    return 32;
  }
}

// All bits of the components are wanted; those above them are shifted out.
static void testOneWord(int file, const AsnType &type, const std::string &mask)
{
  int bits = bitsOfMask(type);
  int32_t nrComps = getNrOfTypeComps(type);
  if (bits == nrComps) {
    printfToF(file, "if (%s)", mask.c_str());
    return;
  }
  // A short word is as long as an int in an expression.
  bool isShort = bits < 32;
  std::string cast = isShort ? formatText("(sint%d)", bits) : "";
  printfToF(file, "if (%s%s(%s) << %d%s)", cast.c_str(), isShort ? "(" : "",
            mask.c_str(), bits - nrComps, isShort ? ")" : "");
}

// The last test reads the word behind the mask, and shifts by the whole width
// if the components fill their words. Generated decoders have always done so.
static void testWords(int file, const AsnType &type, const std::string &mask)
{
  int32_t nrComps = getNrOfTypeComps(type);
  int32_t words = (nrComps + maskWordComps - 1) / maskWordComps;
  int32_t rest = maskWordComps - nrComps % maskWordComps;
  printfToF(file, "if (%s [0]", mask.c_str());
  for (int32_t word = 1; word < words; ++word)
    printfToF(file, " || %s [%d]", mask.c_str(), word);
  printfToF(file, " || ((%s [%d]) << %d))", mask.c_str(), words, rest);
}

void cBeginTestMissingSetMandatoryComps(int file, AsnType &type)
{
  if (!isMandatoryTypeComps(type))
    return;
  std::string mask = "~compmask";
  if (cIsControlMember(type))
    cHomeRef(mask, "~", false, type, true, "compmask");
  if (isOptionalTypeComps(type))
    pickMandatoryComps(file, type, mask);
  else if (getNrOfTypeComps(type) <= maskWordComps)
    testOneWord(file, type, mask);
  else
    testWords(file, type, mask);
  cOpenBrace(file);
}

void cEndTestMissingSetMandatoryComps(int file, AsnType &type)
{
  if (isMandatoryTypeComps(type))
    cCloseBrace(file);
}
