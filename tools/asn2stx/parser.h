#pragma once
#include "asn2stx/ast.h"

// Reads ASN.1 modules (X.680 to X.683, and what X.208 writes otherwise) into
// an `Ast`. Errors are collected; after one, reading goes on with the next
// assignment, and what was wrong is not in the tree.

// Reads the modules in `text`; `name` is the file's name in messages.
void parseAsnText(Ast &ast, AsnErrors &errors, const std::string &name,
                  std::string text);

// Reads the file. One that cannot be read is an error on line 0, printed
// without a place.
void parseAsnFile(Ast &ast, AsnErrors &errors, const std::string &name);

// For text whose meaning a definition elsewhere decides (defined syntax,
// actual parameters): read what `tokens` begin with and move `tokens.first`
// behind it. They give null, with an error reported, if it is not there.
AstType *parseTypeAt(Ast &ast, AsnErrors &errors, AstTokens &tokens);
AstValue *parseValueAt(Ast &ast, AsnErrors &errors, AstTokens &tokens);

// A set in its braces, of values or objects.
AstConstraint *parseSetAt(Ast &ast, AsnErrors &errors, AstTokens &tokens);

// The first of the tokens; TOK_END if none is left.
const Token &tokenAt(const Ast &ast, const AstTokens &tokens);
AsnPos tokenPosAt(const Ast &ast, const AstTokens &tokens);
