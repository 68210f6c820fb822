#pragma once

struct AsnType;

// Warnings about a type: a line with the source path, the definition's line
// and where the type stands, then the text on a line of its own, indented in
// the second form. The third adds " not yet supported, sorry.".
void typeWarning(const AsnType &type, const char *text);
void indTypeWarning(const AsnType &type, const char *text);
void notYetSupported(const AsnType &type, const char *text);
