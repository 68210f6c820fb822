#pragma once
#include "asn2stx/parser.h"
#include <string>

// Syntax trees of ASN.1 as short texts to compare with, and the parsing of
// pieces. The texts keep every difference between nodes, for instance
// "union(1, inter(2, 3))", "choice(a, 5)", "{items a=1, 2 | arcs a 5}".
// Annotations are left out.

std::string astText(const AstRef &ref);
std::string astText(const AstType *type);
std::string astText(const AstValue *value);
std::string astText(const AstElem *elem);
std::string astText(const AstConstraint *constraint);  // "(root, ..., added)"
std::string astText(const AstComp *comp);
std::string astText(const AstClass *objectClass);
std::string astText(const AstAssign *assign);
std::string astText(const AstNotes &notes);  // "a b=1"

// A module `M` with these lines between BEGIN and END.
struct AstRun {
  Ast ast;
  AsnErrors errors;

  AstRun() = default;
  explicit AstRun(const std::string &body);

  AstAssign &assign(size_t i) { return *ast.modules.at(0)->assigns.at(i); }
  std::string errorText() const;  // as printed; the file is "f"
};

// The only assignment of such a module; the errors if there are some.
std::string assignText(const std::string &body);
