// The extension marker and the control members of structures.

#include "cbet/cmarker.h"
#include "base/diag.h"
#include "base/strings.h"
#include "cbet/cgenstate.h"
#include "cbet/chome.h"
#include "cbet/chomeop.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/traverse.h"
#include "model/controlmember.h"
#include "model/typeiter.h"
#include "model/typepath.h"
#include "model/typequery.h"
#include <cstring>

static bool isChoice(const AsnType &type)
{
  return getTypeMainType(type) == TYP_CHOICE;
}

// Each component, the marker as well, has a home of its own.
static bool hasHomes(const AsnType &type)
{
  return cIsHometab(type) || testTypeOption(type, optAsnhc);
}

// --- reaching the marker ----------------------------------------------------

// The operator ahead of a home pointer, by what is wanted of it.
static const char *operatorOfHome(bool address, bool full)
{
  if (full)
    return address ? "" : "*";
  return address ? "&" : "";
}

static const char *valueInHome(bool full)
{
  return full ? "->val.extensionmarker" : "";
}

// A later marker changes nothing: the first one is the type's.
static bool isTheMarker(AsnType &father, const AsnType &comp)
{
  return isTypeExtensionmarker(comp) &&
         getTypeCompNbr(comp) == getTypeExtensionmarkerCompNbr(father);
}

static std::string markerReference;  // of the walk to the marker

static void refMarkerHome(AsnType &father, AsnType &comp, int)
{
  if (!isTheMarker(father, comp))
    return;
  if (!testTypeOption(father, optAsnhc))
    fatalError(FATAL_INTERNAL);
  const char *separator = cGetSeparatorInTypePath(comp);
  if (separator)
    addElemToPath(separator);
  addElemToPath("extensionmarker");
  comp.typePathLen = static_cast<uint32_t>(strlen(getPath()));
  cHomeRef(markerReference, nullptr, false, comp, false, nullptr);
  removeElemFromPath();
  if (separator)
    removeElemFromPath();
}

std::string &extensionmarkerPathForAsnhcComp(std::string &text,
                                             const char *prefix, AsnType &type,
                                             bool address, bool full,
                                             const char *suffix)
{
  markerReference.clear();
  forEachTypeComp(type, refMarkerHome);
  text = orEmpty(prefix) + std::string(operatorOfHome(address, full));
  text += markerReference;
  text += valueInHome(full);
  return text += orEmpty(suffix);
}

// A field of the structure itself.
static std::string &refMarkerField(std::string &text, AsnType &type,
                                   bool address)
{
  const char *name = isChoice(type) ? "i1.extensionmarker" : "extensionmarker";
  if (testTypeOption(type, optAsnHome))
    return cStructHomeMemberRef(text, nullptr, address, type, name);
  return cHomeRef(text, nullptr, address, type, true, name);
}

std::string &extensionmarkerPath(std::string &text, const char *prefix,
                                 AsnType &type, bool address, bool full,
                                 const char *suffix)
{
  std::string path;
  if (cIsHometab(type))
    path = formatText("%shometab [%d]%s", operatorOfHome(address, full),
                      getTypeExtensionmarkerCompNbr(type), valueInHome(full));
  else if (testTypeOption(type, optAsnhc))
    extensionmarkerPathForAsnhcComp(path, nullptr, type, address, full,
                                    nullptr);
  else
    refMarkerField(path, type, address);
  return text = orEmpty(prefix) + path + orEmpty(suffix);
}

std::string &cRefExtensionmarker(std::string &text, const char *prefix,
                                 AsnType &type, const char *suffix)
{
  if (!isTypeExtensionmarkerComp(type))
    return text = "";
  return extensionmarkerPath(text, prefix, type, true, true, suffix);
}

// --- testing ----------------------------------------------------------------

static std::string maskTest(AsnType &type, bool present)
{
  int32_t marker = getTypeExtensionmarkerCompNbr(type);
  const char *close = present ? "" : ")";
  if (getNrOfTypeComps(type) <= maskWordComps)
    return formatText("compmask & BIT%s(%d))%s",
                      getVFSize(type) == VF_I32 ? "L" : "", marker, close);
  return formatText("compmask [%d] & BITL(%d))%s", marker / maskWordComps,
                    marker % maskWordComps, close);
}

static void testExtensionmarker(int file, AsnType &type, bool present)
{
  if (!isTypeExtensionmarkerComp(type))
    return;
  std::string text;
  if (hasHomes(type)) {
    wToF(file, extensionmarkerPath(text, present ? "if (" : "if (!", type,
                                   false, false, ")")
                   .c_str());
  } else if (isChoice(type)) {
    printfToF(file, "case %d:\n", getTypeExtensionmarkerCompNbr(type));
    ++fArr[file].indent;
  } else {
    std::string test = maskTest(type, present);
    wToF(file, cStructHomeMemberRef(text, present ? "if (" : "if (!(", false,
                                    type, test.c_str())
                   .c_str());
  }
  cOpenBrace(file);
}

void cBeginTestExtensionmarker(int file, AsnType &type)
{
  testExtensionmarker(file, type, true);
}

void cBeginTestNonexistentExtensionmarker(int file, AsnType &type)
{
  testExtensionmarker(file, type, false);
}

void cEndTestExtensionmarker(int file, AsnType &type)
{
  if (!isTypeExtensionmarkerComp(type))
    return;
  cCloseBrace(file);
  if (!isChoice(type) || hasHomes(type))
    return;
  wToF(file, "break;\n");
  --fArr[file].indent;
}

// --- initialising and freeing -----------------------------------------------

static void createHomeForExtensionmarker(int file, AsnType &type, int gIndex)
{
  std::string text;
  wToF(file, "createHome (");
  wToF(file, cGetHome(text, nullptr, type, gIndex, ",").c_str());
  wToF(file, extensionmarkerPath(text, " ", type, true, false, ",").c_str());
  if (testTypeOption(type, optExtMarkerField)) {
    wToF(file, " VF_STRU,");
    printfToF(file, " sizeof (%s));\n", cSpecialType(SPECIAL_EXTENSION_MARKER));
  } else {
    wToF(file, " VF_NULL,");
    wToF(file, " 0);\n");
  }
}

static void initMarkerField(int file, AsnType &type)
{
  std::string text;
  wToF(file, "initExtensionmarker (");
  extensionmarkerPath(text, nullptr, type, true, true, nullptr);
  wToF(file, text.c_str());
  wToF(file, ");\n");
}

// A field of a structure is initialised once, ahead of its components; one in
// a home or in the union of a CHOICE when it comes to be.
void cInitExtensionmarker(int file, AsnType &type, int gIndex, bool single)
{
  bool isAlone = hasHomes(type);
  if (isAlone && !single)
    createHomeForExtensionmarker(file, type, gIndex);
  bool isSingle = !isAlone && !isChoice(type);
  if (testTypeOption(type, optExtMarkerField) && isSingle == single)
    initMarkerField(file, type);
}

void cInitExtensionmarkerMult(int file, AsnType &type, int gIndex)
{
  cInitExtensionmarker(file, type, gIndex, false);
}

void cFreeAsnExtensionmarker(int file, AsnType &type)
{
  if (!isTypeExtensionmarkerComp(type) || !hasHomes(type))
    return;
  std::string text;
  wToF(file, "freeAsn (");
  if (cIsHometab(type)) {
    printfToF(file, "&hometab [%d],", getTypeExtensionmarkerCompNbr(type));
  } else {
    cHomeRef(text, nullptr, true, type, false, nullptr);
    bool isAddress = !text.empty() && text[0] == '&';
    text = isAddress ? text + ".extensionmarker,"
                     : "&" + text + "->extensionmarker,";
    wToF(file, text.c_str());
  }
  wToF(file, " FREE_STG);\n");
}

// --- control member of a component ------------------------------------------

// Without a member in the structure the mask is a local variable.
static std::string &refOfFather(std::string &text, AsnType &father)
{
  if (!cIsControlMember(father))
    return text = "";
  return cStructHomeMemberRef(text, nullptr, false, father, nullptr);
}

void cSetControlMember(int file, AsnType &comp)
{
  std::string text, reference;
  AsnType &father = *getFatherOfTypeComp(comp);
  refOfFather(reference, father);
  getControlMemberSet(text, reference.c_str(), father, comp,
                      getTypeCompNbr(comp));
  wToF(file, text.c_str());
}

static void testControlMember(int file, const char *prefix, AsnType &comp,
                              const char *suffix)
{
  std::string text, reference;
  AsnType &father = *getFatherOfTypeComp(comp);
  refOfFather(reference, father);
  getControlMemberTst(text, prefix, reference.c_str(), father, comp,
                      getTypeCompNbr(comp), suffix);
  wToF(file, text.c_str());
}

void cTestControlMember(int file, AsnType &comp)
{
  testControlMember(file, "if ", comp, nullptr);
}

void cNegTestControlMember(int file, AsnType &comp)
{
  testControlMember(file, "if (!", comp, ")");
}

// --- control member of the marker -------------------------------------------

int glbExtensionmarkerOper;
static int markerFile;  // of the walk to the marker

static void operMarker(AsnType &father, AsnType &comp, int compNbr)
{
  if (!isTheMarker(father, comp))
    return;
  std::string text, reference;
  cStructHomeMemberRef(reference, nullptr, false, father, nullptr);
  const char *ref = reference.c_str();
  if (glbExtensionmarkerOper == MARKER_SET)
    getControlMemberSet(text, ref, father, comp, compNbr);
  else if (glbExtensionmarkerOper == MARKER_TEST)
    getControlMemberTst(text, "", ref, father, comp, compNbr, "");
  else
    getControlMemberClr(text, ref, father, comp, compNbr);
  wToF(markerFile, text.c_str());
}

static void markerControlMember(int file, AsnType &type, int oper)
{
  if (testTypeOption(type, optAsnhc))
    return;
  glbExtensionmarkerOper = oper;
  markerFile = file;
  forEachTypeComp(type, operMarker);
}

void cSetExtensionmarkerControlMember(int file, AsnType &type)
{
  markerControlMember(file, type, MARKER_SET);
}

void cTestExtensionmarkerControlMember(int file, AsnType &type)
{
  markerControlMember(file, type, MARKER_TEST);
}

void cClearExtensionmarkerControlMember(int file, AsnType &type)
{
  markerControlMember(file, type, MARKER_CLEAR);
}
