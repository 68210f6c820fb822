// Unknown extensions in decoders: the bitmap of additions of a SEQUENCE, the
// additions that are known, and what becomes of the others: they are skipped,
// or kept in the marker's member.

#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/cmarker.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "model/typequery.h"
#include "per/dec.h"
#include "per/perstruct.h"

// The block stays open until the end of the additions. Mandatory additions
// are tested as well, so no bit is set here.
static void additionField(AsnType &marker, bool readsAdditions)
{
  AsnType *father = getFatherOfTypeComp(marker);
  if (!father || getTypeMainType(*father) != TYP_SEQ)
    return;
  // A second marker stands behind the additions that the first announced.
  if (getTypeCompNbr(marker) != getTypeExtensionmarkerCompNbr(*father))
    return;
  const ExtensionInfo info = getExtensionInfo(*father);
  int32_t additions = info.addMandatoryCount + info.addOptionalCount;
  perRefExtensionBit(fiDec, "if (", ")");
  cOpenBrace(fiDec);
  perDefineExtensionAddField(fiDec, nullptr, info);
  perDefineExtensionAddCount(fiDec);
  printfToF(fiDec, " pd_extensionAddition (%d,", additions);
  perRefExtensionAddField(fiDec, " &", ");\n");
  if (readsAdditions && additions > 0)
    perDefineOpenCtxBuffer(fiDec);
}

void decExtensionAdditionField(AsnType &marker)
{
  additionField(marker, true);
}

void decSkipExtensionAdditionField(AsnType &marker)
{
  additionField(marker, false);
}

void decUnknownExtendedComponents(AsnType &type)
{
  bool isChoice = getTypeMainType(type) == TYP_CHOICE;
  bool keeps = testTypeOption(type, optExtMarkerField);
  if (keeps) {
    if (!isChoice && (testTypeOption(type, optAsnhc) || cIsHometab(type)))
      cInitExtensionmarker(fiDec, type, glbDecTypeFuncInfo->gIndex, false);
    std::string text;
    wToF(fiDec, "pd_SaveExtendedComponents (");
    wToF(fiDec, cRefExtensionmarker(text, nullptr, type, ",").c_str());
  } else {
    wToF(fiDec, "pd_SkipExtendedComponents (");
  }
  if (isChoice) {
    wToF(fiDec, keeps ? " 1);\n" : "1);\n");
    return;
  }
  perRefExtensionAddCount(fiDec, keeps ? " " : nullptr, ");\n");
  cCloseBrace(fiDec);
}

void decSkipUnknownExtendedComponents(AsnType &type)
{
  if (getTypeMainType(type) == TYP_CHOICE)
    wToF(fiDec, "pd_SkipExtendedComponents (1);\n");
}
