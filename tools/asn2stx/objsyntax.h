#pragma once
#include "asn2stx/ast.h"

// Objects as their class wants them written: X.681 (2002) clauses 10 and 11.

// The settings of an object in braces, in the order of the text: in defined
// syntax if the class has one, in default syntax otherwise. Null, with the
// offending word reported, if they do not match. They are good until the same
// braces are read for another class.
const std::vector<AstSetting> *objectSettings(Ast &ast, AsnErrors &errors,
                                              const AstClass &objectClass,
                                              AstBraces &braces);

// Reports what is wrong with the syntax that a class defines: fields that it
// does not have or names twice, and fields that no object could set.
void checkSyntax(AsnErrors &errors, const AstClass &objectClass);

// The field of this name; null: none.
const AstField *fieldNamed(const AstClass &objectClass,
                           const std::string &name);

// A field as messages show it, with its "&".
std::string fieldShown(const std::string &name);
