#pragma once

struct AsnType;

// Writes the start of a C statement, "if (...)" or "else if (...)", that
// compares a tag variable (null: "tag") with the type's outermost tag; with
// those of all alternatives for a CHOICE without a tag of its own, and with
// the end of contents for another type without one.
void printIfTagForBER(int file, AsnType &type, const char *tagVariable,
                      bool elseIf, bool notEqual);
