#pragma once
#include "store/codes.h"
#include "store/records.h"
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// Builds a syntax tree record by record and writes its file. Indexes count
// from 1, 0 means none; an index without a record behind it is fatal error
// 10. The functions keep chains, counts and TED ranges right, but any record
// can be changed behind their back: what is written is what the records say.
//
// A reference to a record is good until the next record of its kind is
// appended.

// Strings of one width; `indexOf` finds the first of equal ones.
template <class C>
struct StxStrings {
  std::vector<std::basic_string<C>> texts;
  std::unordered_map<std::basic_string<C>, int32_t> indexOf;
};

// The end of a chain by the index of its owner, so that appending takes no
// walk. Good as long as the chain still begins where it did.
struct StxTail {
  int32_t first = 0;
  int32_t last = 0;
};
typedef std::unordered_map<int32_t, StxTail> StxTails;

struct StxTree {
  MNode header;                // `counts` are set on encoding
  std::vector<MNode> imports;  // module number 2 first
  std::vector<TNode> tNodes;
  std::vector<VNode> vNodes;
  std::vector<TagRec> tagRecs;
  std::vector<SubRec> subRecs;
  std::vector<TedRec> tedRecs;
  std::vector<SNode> sNodes;
  StxStrings<char> stris;
  StxStrings<char16_t> stris16;
  StxStrings<char32_t> stris32;

  // Characters that are left of a prefix in a "-PREFIX=" line.
  size_t prefixLength = 5;

  StxTails typeTails;  // of the top-level chain, by 0
  StxTails valueTails;
  StxTails compTails;
  StxTails numberTails;
  StxTails tagTails;
  StxTails childTails;
  std::unordered_map<int32_t, int32_t> groupFathers;  // by addition group
};

// A tree with versions 213, a fixed time of writing, the source
// "asn/PREFIX.asn" and every definition visible.
StxTree stxNewTree(std::string_view moduleName, std::string_view filePrefix);
void stxSetTime(StxTree &tree, int32_t date, int32_t time);
void stxSetSource(StxTree &tree, std::string_view directory,
                  std::string_view fileName);

// The name with "_" for "-", as names stand in a tree.
std::string stxName(std::string_view name);

// The index of a string, appended if the tree has no equal one. More than
// 65534 characters are fatal error 10: the file has no place for the count.
int32_t stxStri(StxTree &tree, std::string_view text);
int32_t stxStri16(StxTree &tree, std::u16string_view text);
int32_t stxStri32(StxTree &tree, std::u32string_view text);

// The same, appended even if there is an equal one.
int32_t stxAppendStri(StxTree &tree, std::string_view text);
int32_t stxAppendStri16(StxTree &tree, std::u16string_view text);
int32_t stxAppendStri32(StxTree &tree, std::u32string_view text);

// Appends a record as it is; gives its index.
int32_t stxType(StxTree &tree, const TNode &node);
int32_t stxValue(StxTree &tree, const VNode &node);
int32_t stxTag(StxTree &tree, const TagRec &record);
int32_t stxSub(StxTree &tree, const SubRec &record);
int32_t stxTed(StxTree &tree, const TedRec &record);
int32_t stxLink(StxTree &tree, const SNode &node);

TNode &stxTypeAt(StxTree &tree, int32_t index);
VNode &stxValueAt(StxTree &tree, int32_t index);
TagRec &stxTagAt(StxTree &tree, int32_t index);
SubRec &stxSubAt(StxTree &tree, int32_t index);
TedRec &stxTedAt(StxTree &tree, int32_t index);
SNode &stxLinkAt(StxTree &tree, int32_t index);

// Records as a good tree has them: a type without SKIP or size limit, and
// without bounds but that of a size, which is never below 0; a reference to a
// type; a literal (status 2) governed by a type of module 1; a constraint; a
// link to a type, or to a value by its negated index.
TNode stxNewTNode(int mainType, int valueField = VF_NONE);
TNode stxNewSynonym(int32_t ref, int32_t refModule = 1);
VNode stxNewVNode(int mainType, int32_t governor);
VNode stxNewInteger(int32_t governor, int64_t value);
SubRec stxNewSub(int kind, int32_t operand1 = 0, int32_t operand2 = 0);
SNode stxNewLink(int32_t target, int32_t linkModule = 1);

sint64 stxInt64(int64_t value);
void stxSetBounds(TNode &node, int64_t lower, int64_t upper);

// Appends a top-level definition: names it, gives it status TCS_HEADER and
// counts it as visible and, by its entry flags, as an entry.
int32_t stxDefineType(StxTree &tree, std::string_view name, TNode node);

// Appends a top-level value, object or set; objects and object sets are
// counted.
int32_t stxDefineValue(StxTree &tree, std::string_view name, VNode node);

// Appends a component, alternative, element or class field; an empty name
// leaves the node without one. Status 0 becomes TCS_CHOICE in a CHOICE, and
// in a group of one, and TCS_MULTIPLE in a list. Of the father, `nrComps` and the summary bits for
// optional and mandatory components and the marker are kept. A group's
// members count for the group and for the structure that it stands in, the
// group itself does not count. A COMPONENTS OF entry counts as one: its
// flattened count is the caller's.
int32_t stxAddComp(StxTree &tree, int32_t father, std::string_view name,
                   TNode node);

// Appends an enumeration item, named number or named bit, or the marker
// among enumeration items, which makes the type extensible.
int32_t stxAddNamedNumber(StxTree &tree, int32_t type, std::string_view name,
                          int64_t value);
int32_t stxAddNamedMarker(StxTree &tree, int32_t type);

// Appends a component, element, segment or field value to a value.
int32_t stxAddChild(StxTree &tree, int32_t father, std::string_view name,
                    VNode node);

// Appends a tag to a type's chain; a mode of 1 is explicit.
int32_t stxAddTag(StxTree &tree, int32_t type, int32_t tagClass,
                  int32_t tagNumber, int32_t tagMode);

// Links the records in this order and gives the first; 0 for none.
int32_t stxChainSubs(StxTree &tree, const std::vector<int32_t> &subs);
int32_t stxChainLinks(StxTree &tree, const std::vector<int32_t> &links);

// Appends an import entry, with the tree's own versions and time; gives its
// module number.
int32_t stxImport(StxTree &tree, std::string_view moduleName,
                  std::string_view filePrefix, bool usesDeclarations);

// Appends a line, "-" included, to the range of the module, of a type or of
// a value. A range is extended only while it is the end of the TED section:
// fatal error 10 otherwise. Node ranges set the option bit of their kind. A
// module's "-PREFIX=" line brings the strings that its reader looks up.
int32_t stxGlobalOption(StxTree &tree, uint8_t tedKind, std::string_view line);
int32_t stxNodeTed(StxTree &tree, int32_t type, uint8_t tedKind,
                   std::string_view line);
int32_t stxValueTed(StxTree &tree, int32_t value, uint8_t tedKind,
                    std::string_view line);

// The octets of the file.
std::string stxEncode(const StxTree &tree);

// Where a record or string begins in the file; an index of count + 1 gives
// the end of the section.
size_t stxOffset(const StxTree &tree, int kind, int32_t index);

// Writes the file; false, with errno set and the path as it was, if that
// fails.
bool stxWrite(const StxTree &tree, const char *path);
bool stxWriteOctets(const std::string &octets, const char *path);
