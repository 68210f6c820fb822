#pragma once
#include "cbet/typefuncinfo.h"
#include "model/asntype.h"
#include <string>

// References to structures as a whole, and the run-time operations on homes.

// A structure or list, resp. the access to a member of it: the "h" variable
// if it lives in a home that one is bound to.
std::string &cStructHomeRef(std::string &text, const char *prefix, bool address,
                            AsnType &type, const char *suffix);
std::string &cStructHomeMemberRef(std::string &text, const char *prefix,
                                  bool address, AsnType &type,
                                  const char *suffix);

// The type has a home that is released behind it.
bool cTypeCanBeFreed(AsnType &type);

// The home that storage is taken from; "NULL" without "MEMORY=".
std::string &cGetHome(std::string &text, const char *prefix, AsnType &type,
                      int gIndex, const char *suffix);

// A new home for the value; scalar formats need not be pushed and popped.
void cCreateHome(int file, AsnType &type, int gIndex);
void cPushHome(int file, AsnType &type, int gIndex);
void cPopHome(int file, AsnType &type, int gIndex);
void cAppendList(int file, AsnType &list, AsnType &comp, int gIndex);
void cFreeAsn(int file, AsnType &type);

// Storage for a component that is a pointer, with the error if there is none.
void cAllocComp(AsnType &comp, TypeFuncInfo &info);
