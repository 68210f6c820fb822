#pragma once
#include "model/asntype.h"
#include "model/objclassfield.h"
#include <string>

// C names of types, as the generator of their definitions names them, and
// the questions about the value format that choose between names. Every
// builder sets `text` to `prefix`, the name and `suffix`, of which null
// counts as empty, and returns it.

// Bits of the C-GENERATION option that replace C types.
enum CGenerationBit : int {
  CGEN_REAL = 1,
  CGEN_COMMONTIME = 2,
  CGEN_EXTERNAL = 3,
  CGEN_ANY_FUNCTIONS = 5
};

// --- The value format.
bool cIsSimpleType(const AsnType &type);      // a number, BOOLEAN, REAL or NULL
bool cIsPredefinedType(const AsnType &type);  // a C type of the run-time's own
bool cIsFrameType(const AsnType &type);       // handled by the application
bool cIsStaticString(const AsnType &type);
bool cIsDynamicString(const AsnType &type);
bool cIsStaticArray(const AsnType &type);
bool cIsDynamicArray(const AsnType &type);
// An ASNHOME holds a pointer, and the value lies behind it.
bool cIsPtrAsnHomeMember(const AsnType &type);
// The C type has a member for presence, choice or count.
bool cIsControlMember(const AsnType &type);

// The value format, that of frames for a frame type; and its name.
int cGetVF(const AsnType &type);
const char *cGetVFStri(const AsnType &type);

// --- Where a type is defined. Both answers are kept with the type's node;
// finding one may build views, without meta records, and moves no cursor.

// The type is a definition or refers to one by name, instances of
// parameterised types and inline alternatives apart.
bool cIsDefinedBaseType(const AsnType &type);

// The C type stands in the files of the module of the type's node. With
// diagnostics, a selection type of several modules draws a warning.
bool cIsBaseTypeGeneratedInCurrentModule(const AsnType &type);

// True for the fields of object classes that the toolkit knows: all but those
// of variable type.
bool cIsSupportedObjClassField(const AsnObjClassField &field);

// --- Names.

// Name of `type`; an anonymous type is named by its path, inner name first.
std::string &cTypeId(std::string &text, const char *prefix, const AsnType &type,
                     const char *suffix);

// The name for a declaration or a cast.
std::string &cBaseTypeId(std::string &text, const char *prefix,
                         const AsnType &type, const char *suffix);

// The C type of the value format; the type's name for a format without one.
std::string &getPredefinedType(std::string &text, const char *prefix,
                               const AsnType &type, const char *suffix);

// The member of ASNHOME that holds a value; fatal error 13 for a format
// without one.
std::string &cAsnHomeMember(std::string &text, const char *prefix,
                            const AsnType &type, const char *suffix);

// A component's type in its declaration, and where it is referred to.
std::string &cTypeIdForTypeCompDef(std::string &text, const char *prefix,
                                   const AsnType &type, const char *suffix);
std::string &cTypeIdForDefinedTypeCompRef(std::string &text, const char *prefix,
                                          const AsnType &type,
                                          const char *suffix);

// A readable name for a variable of a component's or definition's type.
std::string &cASN1VariableName(std::string &text, const char *prefix,
                               const AsnType &type, const char *suffix);

// Names a type field of a built-in class after the class and the field.
void cUpdateBuiltinTypeFieldType(AsnType &type, const AsnObjClassField &field);
