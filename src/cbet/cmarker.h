#pragma once
#include "model/asntype.h"
#include <string>

// The extension marker of a structure, whose member holds what a decoder did
// not understand, and the control members of structures.

// --- Reaching the marker: `address` asks for a pointer, `full` for the value
// behind the home.
std::string &extensionmarkerPath(std::string &text, const char *prefix,
                                 AsnType &type, bool address, bool full,
                                 const char *suffix);

// The same where components have homes of their own; fatal error 13 elsewhere.
std::string &extensionmarkerPathForAsnhcComp(std::string &text,
                                             const char *prefix, AsnType &type,
                                             bool address, bool full,
                                             const char *suffix);

// Pointer to the value; empty for a type without a marker.
std::string &cRefExtensionmarker(std::string &text, const char *prefix,
                                 AsnType &type, const char *suffix);

// --- The block for a marker that is there, resp. not; nothing for a type
// without one. In a CHOICE it is one more case.
void cBeginTestExtensionmarker(int file, AsnType &type);
void cBeginTestNonexistentExtensionmarker(int file, AsnType &type);
void cEndTestExtensionmarker(int file, AsnType &type);

// --- Initialising and freeing. `single` tells of the place: once ahead of the
// components, or at the marker.
void cInitExtensionmarker(int file, AsnType &type, int gIndex, bool single);
void cInitExtensionmarkerMult(int file, AsnType &type, int gIndex);
void cFreeAsnExtensionmarker(int file, AsnType &type);

// --- The father's control member for a component: the statement, and the
// head of a test that it is set, resp. not.
void cSetControlMember(int file, AsnType &comp);
void cTestControlMember(int file, AsnType &comp);
void cNegTestControlMember(int file, AsnType &comp);

// --- The type's control member for its marker: statement, condition and
// statement. Nothing where components have homes of their own.
enum ExtensionmarkerOper : int {
  MARKER_SET = 0,
  MARKER_TEST = 1,
  MARKER_CLEAR = 2
};
extern int glbExtensionmarkerOper;  // of the call in progress

void cSetExtensionmarkerControlMember(int file, AsnType &type);
void cTestExtensionmarkerControlMember(int file, AsnType &type);
void cClearExtensionmarkerControlMember(int file, AsnType &type);
