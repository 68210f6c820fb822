#pragma once
#include "asn2stx/compile.h"

// Annotations: notes in the text that change records.

// The prefix that a module's notes give, or null.
const AsnAnnotation *prefixNote(const AstNotes &notes);

// Notes on a module, a type node (definition, component, element, field) and
// a value node (definition, enumeration item). Called when representations
// have been chosen, in the order of the nodes. Unknown words are errors.
void annotateModule(Compilation &c, int module, const AstNotes &notes);
void annotateType(Compilation &c, int module, int32_t node,
                  const AstNotes &notes);
void annotateValue(Compilation &c, int module, int32_t node,
                   const AstNotes &notes);
