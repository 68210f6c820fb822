#pragma once
#include "model/asntype.h"
#include <string>

// Control members of generated C structures: the presence mask of a SEQUENCE
// or SET ("compmask"), the index of a CHOICE ("choice"), the count of a list
// or string ("n"). All texts are empty for a type without one.

enum ControlOper : int {
  CONTROL_SET = 0,
  CONTROL_TEST = 1,
  CONTROL_CLEAR = 2,
  CONTROL_OR = 3,
  CONTROL_AND_NOT = 4
};

// Components up to which the mask is one word; beyond, it is an array of
// words of 32.
constexpr int32_t maskWordComps = 32;

// The member behind `prefix` and `reference`, followed by the text for its
// sort. A SEQUENCE has a mask only for optional components; `compNbr`
// selects the word of a mask array.
std::string &getControlMemberOper(std::string &text, const char *prefix,
                                  const char *reference, const AsnType &type,
                                  bool isOptional, int32_t compNbr,
                                  const char *maskText,
                                  const char *maskArrayText,
                                  const char *choiceText,
                                  const char *listText,
                                  const char *stringText);

// The declaration, and the initialisation.
std::string &getControlMemberDef(std::string &text, const AsnType &type);
std::string &getControlMemberIni(std::string &text, const char *reference,
                                 const AsnType &type);

// The C operator of an operation.
const char *getControlMemberRawOper(const AsnType &type, int operation);

// One operation for a component.
std::string &getControlMemberRaw(std::string &text, const char *prefix,
                                 const char *reference, int operation,
                                 const AsnType &type, const AsnType &comp,
                                 int32_t compNbr, const char *suffix);
std::string &getControlMemberRawSet(std::string &text, const char *prefix,
                                    const char *reference,
                                    const AsnType &type, const AsnType &comp,
                                    int32_t compNbr, const char *suffix);
std::string &getControlMemberRawTst(std::string &text, const char *prefix,
                                    const char *reference,
                                    const AsnType &type, const AsnType &comp,
                                    int32_t compNbr, const char *suffix);
std::string &getControlMemberRawClr(std::string &text, const char *prefix,
                                    const char *reference,
                                    const AsnType &type, const AsnType &comp,
                                    int32_t compNbr, const char *suffix);
std::string &getControlMemberRawOr(std::string &text, const char *prefix,
                                   const char *reference, const AsnType &type,
                                   const AsnType &comp, int32_t compNbr,
                                   const char *suffix);
std::string &getControlMemberRawAndNot(std::string &text, const char *prefix,
                                       const char *reference,
                                       const AsnType &type,
                                       const AsnType &comp, int32_t compNbr,
                                       const char *suffix);

// As statements.
std::string &getControlMemberSet(std::string &text, const char *reference,
                                 const AsnType &type, const AsnType &comp,
                                 int32_t compNbr);
std::string &getControlMemberClr(std::string &text, const char *reference,
                                 const AsnType &type, const AsnType &comp,
                                 int32_t compNbr);
// As a condition in parentheses.
std::string &getControlMemberTst(std::string &text, const char *prefix,
                                 const char *reference, const AsnType &type,
                                 const AsnType &comp, int32_t compNbr,
                                 const char *suffix);
