#pragma once
#include "model/asntype.h"
#include "model/tags.h"
#include <string>

// Names of the run-time's functions for leaf types, tags as C text, and the
// utility context. Builders set `text` to `prefix`, the name and `suffix`, of
// which null counts as empty.

// --- Function names.

// The type's stem; empty for a type without one. Fatal error 13 for an INTEGER
// or ENUMERATED whose format is no integer.
std::string &cBuiltinCFunc(std::string &text, const char *prefix,
                           const AsnType &type, const char *suffix);

// The stem with marks for the layout of a string and the size of its count.
std::string &cBuiltinStringCFunc(std::string &text, const char *prefix,
                                 const AsnType &type, const char *suffix);

// For generators that work on tags: with a mark for the layout, and in the
// first with the tag suffix.
std::string &cBuiltinStringCodCFunc(std::string &text, const char *prefix,
                                    AsnType &type, const char *suffix);
std::string &cBuiltinStringTstCFunc(std::string &text, const char *prefix,
                                    const AsnType &type, const char *suffix);
std::string &cBuiltinCodCFunc(std::string &text, const char *prefix,
                              AsnType &type, const char *suffix);
std::string &cBuiltinAnyCodCFunc(std::string &text, const char *prefix,
                                 AsnType &type, const char *suffix);

// The mark of a type whose innermost tag fits in one octet.
const char *cTagFuncSuff(AsnType &type);

// --- Tags. A number below 31 has a shorter form, of macros for one octet;
// the functions with 32 in their names never use it.
std::string &tagStri(std::string &text, const char *prefix, const AsnTag &tag,
                     bool structured, bool tag32, const char *suffix);
std::string &cTagStri(std::string &text, const char *prefix, const AsnTag &tag,
                      bool structured, const char *suffix);
std::string &cTag32Stri(std::string &text, const char *prefix,
                        const AsnTag &tag, bool structured, const char *suffix);
std::string &cOutermostTag32Stri(std::string &text, const char *prefix,
                                 AsnType &type, bool structured,
                                 const char *suffix);
void cTagToF(int file, const char *prefix, const AsnTag &tag, bool structured,
             const char *suffix);
void cTag32ToF(int file, const char *prefix, const AsnTag &tag, bool structured,
               const char *suffix);
// Nothing for a type without tags.
void cInnermostTagToF(int file, const char *prefix, AsnType &type,
                      bool structured, const char *suffix);
void cInnermostTag32ToF(int file, const char *prefix, AsnType &type,
                        bool structured, const char *suffix);
void cOutermostTag32ToF(int file, const char *prefix, AsnType &type,
                        bool structured, const char *suffix);

// --- The utility context of a generation argument: bare, and in the macro of
// an argument that is the last (`useLast`) or followed by others.
std::string &cRawAsnutigPtr(std::string &text, const char *prefix, int gIndex,
                            const char *suffix);
std::string &cAsnutigPtr(std::string &text, const char *prefix, int gIndex,
                         bool useLast, const char *suffix);
