// Types, values and elements of constraints in messages.

#include "asn2stx/shown.h"
#include <iterator>

// By AstTypeKind; null: the type shows a name of its own.
static const char *const typeWords[] = {
    "BOOLEAN",            // AT_BOOLEAN
    "INTEGER",            // AT_INTEGER
    "ENUMERATED",         // AT_ENUMERATED
    "REAL",               // AT_REAL
    "BIT STRING",         // AT_BIT_STRING
    "OCTET STRING",       // AT_OCTET_STRING
    "NULL",               // AT_NULL
    "OBJECT IDENTIFIER",  // AT_OBJECT_IDENTIFIER
    "RELATIVE-OID",       // AT_RELATIVE_OID
    "EXTERNAL",           // AT_EXTERNAL
    "EMBEDDED PDV",       // AT_EMBEDDED_PDV
    "CHARACTER STRING",   // AT_CHARACTER_STRING
    "NumericString",      // AT_NUMERIC_STRING
    "PrintableString",    // AT_PRINTABLE_STRING
    "TeletexString",      // AT_TELETEX_STRING
    "T61String",          // AT_T61_STRING
    "VideotexString",     // AT_VIDEOTEX_STRING
    "IA5String",          // AT_IA5_STRING
    "GraphicString",      // AT_GRAPHIC_STRING
    "VisibleString",      // AT_VISIBLE_STRING
    "ISO646String",       // AT_ISO646_STRING
    "GeneralString",      // AT_GENERAL_STRING
    "UniversalString",    // AT_UNIVERSAL_STRING
    "BMPString",          // AT_BMP_STRING
    "UTF8String",         // AT_UTF8_STRING
    "ObjectDescriptor",   // AT_OBJECT_DESCRIPTOR
    "UTCTime",            // AT_UTC_TIME
    "GeneralizedTime",    // AT_GENERALIZED_TIME
    "SEQUENCE",           // AT_SEQUENCE
    "SET",                // AT_SET
    "CHOICE",             // AT_CHOICE
    "SEQUENCE OF",        // AT_SEQUENCE_OF
    "SET OF",             // AT_SET_OF
    "ANY",                // AT_ANY
    nullptr,              // AT_SELECTION
    nullptr,              // AT_REFERENCE
    nullptr,              // AT_FIELD
    "INSTANCE OF",        // AT_INSTANCE_OF
};
static_assert(std::size(typeWords) == AT_COUNT);

static std::string withFields(const AstRef &ref,
                              const std::vector<std::string> &fields)
{
  std::string text = ref.name;
  for (const std::string &field : fields)
    text += (text.empty() ? "&" : ".&") + field;
  return text;
}

std::string typeShown(const AstType &type)
{
  if (type.kind == AT_SELECTION) {
    const AstType *choice = type.element;
    bool isNamed = choice && !choice->ref.name.empty();
    return asnQuoted(type.elementName +
                     (isNamed ? " < " + choice->ref.name : ""));
  }
  const char *words = typeWords[type.kind];
  return asnQuoted(words ? words : withFields(type.ref, type.fields));
}

std::string valueShown(const AstValue &value)
{
  switch (value.kind) {
  case AV_NULL:
    return asnQuoted("NULL");
  case AV_BOOLEAN:
    return asnQuoted(value.isTrue ? "TRUE" : "FALSE");
  case AV_INTEGER:
  case AV_REAL:
    return asnQuoted(value.text);
  case AV_PLUS_INFINITY:
    return asnQuoted("PLUS-INFINITY");
  case AV_MINUS_INFINITY:
    return asnQuoted("MINUS-INFINITY");
  case AV_NOT_A_NUMBER:
    return asnQuoted("NOT-A-NUMBER");
  case AV_BSTRING:
    return asnQuoted("'" + value.text + "'B");
  case AV_HSTRING:
    return asnQuoted("'" + value.text + "'H");
  case AV_CSTRING:
    return asnQuoted(value.text);
  case AV_REFERENCE:
  case AV_FIELD:
    return asnQuoted(withFields(value.ref, value.fields));
  case AV_CHOICE:
    return asnQuoted(value.name + " :");
  case AV_TYPED:
    return value.type ? typeShown(*value.type) : asnQuoted(":");
  case AV_CONTAINING:
    return asnQuoted("CONTAINING");
  case AV_BRACES:
    if (!value.braces->arcs.empty() && !value.braces->arcs[0].ref.name.empty())
      return asnQuoted(value.braces->arcs[0].ref.name);
    [[fallthrough]];
  default:
    return asnQuoted("{");
  }
}

// By AstElemKind; null: what stands in the element is shown.
static const char *const elemWords[] = {
    nullptr,            // AE_VALUE
    nullptr,            // AE_RANGE
    "SIZE",             // AE_SIZE
    "FROM",             // AE_FROM
    nullptr,            // AE_TYPE
    "|",                // AE_UNION
    "^",                // AE_INTERSECTION
    "EXCEPT",           // AE_EXCEPT
    "ALL EXCEPT",       // AE_ALL_EXCEPT
    "WITH COMPONENT",   // AE_WITH_COMPONENT
    "WITH COMPONENTS",  // AE_WITH_COMPONENTS
    "CONTAINING",       // AE_CONTAINING
    "ENCODED BY",       // AE_ENCODED_BY
    "CONSTRAINED BY",   // AE_CONSTRAINED_BY
    "PATTERN",          // AE_PATTERN
    "SETTINGS",         // AE_SETTINGS
    "{",                // AE_TABLE
};
static_assert(std::size(elemWords) == AE_COUNT);

std::string elemShown(const AstElem &elem)
{
  if (elem.type && elem.kind == AE_TYPE)
    return typeShown(*elem.type);
  const AstValue *value = elem.kind == AE_RANGE ? elem.lower : elem.value;
  if (!elemWords[elem.kind])
    return value ? valueShown(*value) : asnQuoted("MIN");
  return asnQuoted(elemWords[elem.kind]);
}
