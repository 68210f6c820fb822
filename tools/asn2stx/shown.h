#pragma once
#include "asn2stx/ast.h"

// Types, values and elements of constraints as messages show them: in quotes,
// by name where they have one, else by their first words.

std::string typeShown(const AstType &type);
std::string valueShown(const AstValue &value);
std::string elemShown(const AstElem &elem);
