#pragma once
#include "store/modrec.h"
#include <string>

// Fix records: how one ASN.1 name becomes an identifier of generated C, by
// options for all names of a sort in a module, for a named definition, or on
// the node itself. The "ENTRY=" option uses the same mechanism.

// A row of the naming options: the prefix of their names and the sort.
struct NameOption {
  const char *prefix;
  int kind;
};

// The sorts in the order in which an option's name is tried.
extern const NameOption nameOptPref[9];

// True for a naming option (without its "-"); `row` may be null.
bool isNamingOption(const char *text, const NameOption **row);

// True if the naming option is well-formed; `letter` is set to the character
// behind the prefix: "C", "P", "N" or "S".
bool parseNamingOption(const char *text, const char *&letter);

// The category and the symbol name of an entry option, from behind its type
// name on; true if they are well-formed.
bool parseEntryOption(const char *text, const char *&category,
                      const char *&name);

// Splits a value: a type name up to a ":", if there is a record and a ":",
// and the rest; without them the type name is null.
void splitFixOptionIntoParts(const FixRec *record, const char *value,
                             const char *&typeName, int32_t &length,
                             const char *&rest);

// The record behind the head for a type name of `length` characters, which
// is followed by ":" in its text; appended if there is none.
FixRec *findFixRecByEntryTypeName(FixRec &head, const char *typeName,
                                  int32_t length);

// Store the parts of an option; false for an unknown letter.
bool updateEntryOption(FixRec &record, const char *category, const char *name);
bool updateNamingOption(FixRec &record, char letter, const char *value);

// Applies a naming or entry option (without its "-") with its value to the
// head of its sort; with a null record it is only checked. The texts must
// live until the process ends.
bool getFixOpt(FixRec *record, const char *option, const char *value);

// The head for a sort of names; 3 and 9 share one.
FixRec &fixRecForKind(GlobalOptions &options, int kind);

// TED range (last 0: none with naming options) and identifier of the current
// node, a value for the kinds 3, 4 and 9 and a type otherwise.
void getTedRecAndCompIdByKind(int kind, TedRange &range, int32_t &identifier);

// Fills the destination with the naming of the current node; a node without
// identifier gives an empty record.
void getFixRec(FixRec &destination, int kind);

// Length of the common start of two names, "-" and "_" being equal.
size_t compareNames(const char *a, const char *b);

// The record behind the head whose name is all of `name`; null if none.
FixRec *findGlbFixRecByName(const FixRec &head, const char *name);

// Makes a record from its parts; a null name takes the id, of which at most
// `maximum` characters count.
void initFixRec(FixRec &destination, const char *id, const char *pref,
                const char *name, const char *suff, const char *conv,
                int32_t maximum);
void copyFixRec(FixRec &destination, const FixRec &source, const char *id,
                int32_t maximum);

// The identifier after conversion.
std::string &pFixRec(std::string &text, const FixRec &record);

// The identifier that the record gives, between `before` and `after`; the
// ASN.1 name as it stands if the record has no other.
std::string &printFixRec(std::string &text, const char *before,
                         const FixRec &record, const char *after);

// Length of what the record gives, and 0 if two records give the same.
size_t countFixRec(const FixRec &record);
int compareFixRec(const FixRec &a, const FixRec &b);

// The ASN.1 name of a main type with "-" turned to "_", and blanks too if
// asked for.
std::string &asnTypeName(std::string &text, const char *before, int mainType,
                         bool blanksToo, const char *after);
