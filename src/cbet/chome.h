#pragma once
#include "model/asntype.h"
#include <string>

// References to the value at hand in generated code: from the function's
// argument "home", a local home pointer or the table of homes, along the
// type name path. `address` asks for a pointer to the value; `member` for a
// reference that a member's name can follow at once. Builders set `text` to
// `prefix`, the reference and `suffix`, of which null counts as empty.

// Inside an element function of an array the value is reached through the
// iterator: "iter" stands where "home" would. Whoever writes such a function
// sets it for as long.
extern bool glbIterHome;

// The type's path as it was when its view was built, without leading "->" or
// "."; empty if there is none.
std::string &cGetPath(std::string &text, const AsnType &type);

std::string &cHomeRef(std::string &text, const char *prefix, bool address,
                      const AsnType &type, bool member, const char *suffix);

// The value inside a component's ASNHOME; with `cast` a member's name can
// follow.
std::string &cAsnHomeCompRef(std::string &text, const char *prefix,
                             bool address, const AsnType &type, bool cast,
                             const char *suffix);
// Writes it, as one text.
void cAsnHomeCompRefToF(int file, const char *prefix, bool address,
                        const AsnType &type, bool cast, const char *suffix);

// One of the two, by where the component's value lives.
std::string &cHome(std::string &text, const char *prefix, bool address,
                   const AsnType &type, bool member, const char *suffix);

// The component `type` of its father, which classifies an ANY.
std::string &cAnyDefinedByClassifierTypeHome(std::string &text,
                                             const char *prefix, bool address,
                                             const AsnType &type,
                                             const char *suffix);
