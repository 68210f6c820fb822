// Control members of generated C structures.

#include "model/controlmember.h"
#include "base/strings.h"
#include "model/typequery.h"

static bool isMasked(int mainType)
{
  return mainType == TYP_SEQ || mainType == TYP_SET;
}

static bool isMaskArray(const AsnType &type)
{
  return isMasked(type.base.mainType) && type.base.nrComps > maskWordComps;
}

// The member by sort, without prefix and reference.
static std::string memberText(const AsnType &type, bool isOptional,
                              int32_t compNbr, const char *maskText,
                              const char *maskArrayText,
                              const char *choiceText, const char *listText,
                              const char *stringText)
{
  int mainType = type.base.mainType;
  if (isMasked(mainType)) {
    // A SET's mask tells of mandatory components as well.
    if (!isOptional && mainType == TYP_SEQ)
      return "";
    if (isMaskArray(type))
      return formatText("compmask [%d]%s", compNbr / maskWordComps,
                        orEmpty(maskArrayText));
    return std::string("compmask") + orEmpty(maskText);
  }
  if (isListType(type))
    return std::string("n") + orEmpty(listText);
  if (mainType == TYP_CHOICE)
    return std::string("choice") + orEmpty(choiceText);
  if (mainType == TYP_BITSTR || mainType == TYP_OCTSTR ||
      isRestrCharStringType(type))
    return std::string("n") + orEmpty(stringText);
  return "";
}

std::string &getControlMemberOper(std::string &text, const char *prefix,
                                  const char *reference, const AsnType &type,
                                  bool isOptional, int32_t compNbr,
                                  const char *maskText,
                                  const char *maskArrayText,
                                  const char *choiceText,
                                  const char *listText,
                                  const char *stringText)
{
  std::string member = memberText(type, isOptional, compNbr, maskText,
                                  maskArrayText, choiceText, listText,
                                  stringText);
  if (member.empty())
    return text = member;
  return text = orEmpty(prefix) + std::string(orEmpty(reference)) + member;
}

std::string &getControlMemberDef(std::string &text, const AsnType &type)
{
  bool isArray = isMaskArray(type);
  int32_t nrComps = type.base.nrComps;
  int valueField = isArray ? VF_I32 : getVFSize(type);
  if (valueField == VF_NONE)
    return text = "";
  std::string prefix = std::string(targetLangType(valueField)) + " ";
  // The number of words stands where an index would.
  return getControlMemberOper(text, prefix.c_str(), nullptr, type, true,
                              nrComps + maskWordComps - 1, nullptr, nullptr,
                              nullptr, nullptr, nullptr);
}

std::string &getControlMemberIni(std::string &text, const char *reference,
                                 const AsnType &type)
{
  if (!isMaskArray(type))
    return getControlMemberOper(text, nullptr, reference, type, true, 0,
                                " = 0;\n", nullptr, " = -1;\n", " = 0;\n",
                                " = 0;\n");
  std::string chained;
  int32_t words = (type.base.nrComps + maskWordComps - 1) / maskWordComps;
  for (int32_t i = 0; i < words; ++i)
    chained += formatText("%scompmask [%d] = ", orEmpty(reference), i);
  return text = chained + "0;\n";
}

struct ControlOperator {
  const char *mask;
  const char *choice;
};

static const ControlOperator controlOperators[] = {
    {"|= ", "= "}, {"& ", "== "}, {"&= ~", "= "}, {"| ", "?!?"}, {"& ~", "?!?"},
};

const char *getControlMemberRawOper(const AsnType &type, int operation)
{
  if (operation < CONTROL_SET || operation > CONTROL_AND_NOT)
    return "?!?";
  const ControlOperator &row = controlOperators[operation];
  return type.base.mainType == TYP_CHOICE ? row.choice : row.mask;
}

// What follows the member for a component; empty for types that keep no
// account of components.
static std::string tailOf(const AsnType &type, int operation, int32_t compNbr)
{
  const char *oper = getControlMemberRawOper(type, operation);
  int mainType = type.base.mainType;
  if (mainType == TYP_CHOICE)
    return formatText(" %s%d", oper,
                      operation == CONTROL_CLEAR ? -1 : compNbr);
  if (!isMasked(mainType))
    return "";
  if (isMaskArray(type))
    return formatText(" %sBITL(%d)", oper, compNbr % maskWordComps);
  return formatText(" %sBIT%s(%d)", oper, getVFSize(type) == VF_I32 ? "L" : "",
                    compNbr);
}

std::string &getControlMemberRaw(std::string &text, const char *prefix,
                                 const char *reference, int operation,
                                 const AsnType &type, const AsnType &comp,
                                 int32_t compNbr, const char *suffix)
{
  std::string tail = tailOf(type, operation, compNbr);
  if (tail.empty())
    return text = tail;
  tail += orEmpty(suffix);
  bool isOptional = isOptionalTypeComp(comp) || isTypeExtensionmarker(comp);
  return getControlMemberOper(text, prefix, reference, type, isOptional,
                              compNbr, tail.c_str(), tail.c_str(),
                              tail.c_str(), nullptr, nullptr);
}

std::string &getControlMemberRawSet(std::string &text, const char *prefix,
                                    const char *reference,
                                    const AsnType &type, const AsnType &comp,
                                    int32_t compNbr, const char *suffix)
{
  return getControlMemberRaw(text, prefix, reference, CONTROL_SET, type, comp,
                             compNbr, suffix);
}

std::string &getControlMemberRawTst(std::string &text, const char *prefix,
                                    const char *reference,
                                    const AsnType &type, const AsnType &comp,
                                    int32_t compNbr, const char *suffix)
{
  return getControlMemberRaw(text, prefix, reference, CONTROL_TEST, type,
                             comp, compNbr, suffix);
}

std::string &getControlMemberRawClr(std::string &text, const char *prefix,
                                    const char *reference,
                                    const AsnType &type, const AsnType &comp,
                                    int32_t compNbr, const char *suffix)
{
  return getControlMemberRaw(text, prefix, reference, CONTROL_CLEAR, type,
                             comp, compNbr, suffix);
}

std::string &getControlMemberRawOr(std::string &text, const char *prefix,
                                   const char *reference, const AsnType &type,
                                   const AsnType &comp, int32_t compNbr,
                                   const char *suffix)
{
  return getControlMemberRaw(text, prefix, reference, CONTROL_OR, type, comp,
                             compNbr, suffix);
}

std::string &getControlMemberRawAndNot(std::string &text, const char *prefix,
                                       const char *reference,
                                       const AsnType &type,
                                       const AsnType &comp, int32_t compNbr,
                                       const char *suffix)
{
  return getControlMemberRaw(text, prefix, reference, CONTROL_AND_NOT, type,
                             comp, compNbr, suffix);
}

std::string &getControlMemberSet(std::string &text, const char *reference,
                                 const AsnType &type, const AsnType &comp,
                                 int32_t compNbr)
{
  return getControlMemberRawSet(text, "", reference, type, comp, compNbr,
                                ";\n");
}

std::string &getControlMemberClr(std::string &text, const char *reference,
                                 const AsnType &type, const AsnType &comp,
                                 int32_t compNbr)
{
  return getControlMemberRawClr(text, "", reference, type, comp, compNbr,
                                ";\n");
}

std::string &getControlMemberTst(std::string &text, const char *prefix,
                                 const char *reference, const AsnType &type,
                                 const AsnType &comp, int32_t compNbr,
                                 const char *suffix)
{
  std::string open = orEmpty(prefix) + std::string("(");
  std::string close = ")" + std::string(orEmpty(suffix));
  return getControlMemberRawTst(text, open.c_str(), reference, type, comp,
                                compNbr, close.c_str());
}
