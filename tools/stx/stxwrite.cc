// Syntax trees from records. A tree is kept as it will lie in the file, one
// vector a kind; encoding is a walk over the sections with the layouts that
// the loader uses.

#include "stx/stxwrite.h"
#include "base/diag.h"
#include "base/strings.h"
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <unistd.h>

constexpr int32_t defaultDate = 20240101;
constexpr int32_t defaultTime = 120000;

// A string's count has 16 bits, and the terminating zero counts.
constexpr size_t maxEncodedUnits = std::numeric_limits<uint16_t>::max();

// Characters of the module name that a "-PREFIX=" line keeps.
constexpr size_t maxModuleName = 128;

[[noreturn]] static void noRecord(const char *what, int32_t index)
{
  fatalError(FATAL_WRITE_RECORD, formatText("%s %d", what, index).c_str());
}

template <class T>
static T &recordAt(std::vector<T> &records, int32_t index, const char *what)
{
  if (index < 1 || static_cast<size_t>(index) > records.size())
    noRecord(what, index);
  return records[static_cast<size_t>(index) - 1];
}

template <class T>
static int32_t appendRecord(std::vector<T> &records, const T &record)
{
  records.push_back(record);
  return static_cast<int32_t>(records.size());
}

template <class C>
static int32_t appendText(StxStrings<C> &strings,
                          std::basic_string_view<C> text)
{
  if (text.size() >= maxEncodedUnits)
    fatalError(FATAL_WRITE_RECORD, "string too long");
  strings.texts.emplace_back(text);
  int32_t index = static_cast<int32_t>(strings.texts.size());
  strings.indexOf.emplace(strings.texts.back(), index);
  return index;
}

template <class C>
static int32_t internText(StxStrings<C> &strings,
                          std::basic_string_view<C> text)
{
  auto found = strings.indexOf.find(std::basic_string<C>(text));
  return found != strings.indexOf.end() ? found->second
                                        : appendText(strings, text);
}

// Links `added` behind the last record of the chain that begins at `head`.
// A chain that was made cyclic on purpose gets nothing appended.
template <class T>
static void linkBehind(std::vector<T> &records, int32_t &head, int32_t T::*next,
                       StxTails &tails, int32_t owner, int32_t added,
                       const char *what)
{
  StxTail &tail = tails[owner];
  if (head == 0) {
    head = added;
    tail = {head, added};
    return;
  }
  T *last = &recordAt(records, tail.first == head ? tail.last : head, what);
  for (size_t steps = 0; last->*next != 0; ++steps) {
    if (steps == records.size())
      return;
    last = &recordAt(records, last->*next, what);
  }
  last->*next = added;
  tail = {head, added};
}

// Nodes and their strings

StxTree stxNewTree(std::string_view moduleName, std::string_view filePrefix)
{
  StxTree tree;
  tree.header.toolVersion = treeVersionAccepted;
  tree.header.treeVersion = treeVersionAccepted;
  tree.header.moduleName = stxStri(tree, stxName(moduleName));
  tree.header.filePrefix = stxStri(tree, filePrefix);
  stxSetTime(tree, defaultDate, defaultTime);
  stxSetSource(tree, "asn/", std::string(filePrefix) + ".asn");
  return tree;
}

void stxSetTime(StxTree &tree, int32_t date, int32_t time)
{
  tree.header.date = date;
  tree.header.time = time;
}

void stxSetSource(StxTree &tree, std::string_view directory,
                  std::string_view fileName)
{
  tree.header.sourceDirectory = stxStri(tree, directory);
  tree.header.sourceFileName = stxStri(tree, fileName);
}

std::string stxName(std::string_view name)
{
  std::string text(name);
  return convertHyphens(text);
}

// The index of a name as it stands in a tree; an empty one is none.
static int32_t nameIndex(StxTree &tree, std::string_view name)
{
  return name.empty() ? 0 : stxStri(tree, stxName(name));
}

int32_t stxStri(StxTree &tree, std::string_view text)
{
  return internText(tree.stris, text);
}

int32_t stxStri16(StxTree &tree, std::u16string_view text)
{
  return internText(tree.stris16, text);
}

int32_t stxStri32(StxTree &tree, std::u32string_view text)
{
  return internText(tree.stris32, text);
}

int32_t stxAppendStri(StxTree &tree, std::string_view text)
{
  return appendText(tree.stris, text);
}

int32_t stxAppendStri16(StxTree &tree, std::u16string_view text)
{
  return appendText(tree.stris16, text);
}

int32_t stxAppendStri32(StxTree &tree, std::u32string_view text)
{
  return appendText(tree.stris32, text);
}

int32_t stxType(StxTree &tree, const TNode &node)
{
  return appendRecord(tree.tNodes, node);
}

int32_t stxValue(StxTree &tree, const VNode &node)
{
  return appendRecord(tree.vNodes, node);
}

int32_t stxTag(StxTree &tree, const TagRec &record)
{
  return appendRecord(tree.tagRecs, record);
}

int32_t stxSub(StxTree &tree, const SubRec &record)
{
  return appendRecord(tree.subRecs, record);
}

int32_t stxTed(StxTree &tree, const TedRec &record)
{
  return appendRecord(tree.tedRecs, record);
}

int32_t stxLink(StxTree &tree, const SNode &node)
{
  return appendRecord(tree.sNodes, node);
}

TNode &stxTypeAt(StxTree &tree, int32_t index)
{
  return recordAt(tree.tNodes, index, "type");
}

VNode &stxValueAt(StxTree &tree, int32_t index)
{
  return recordAt(tree.vNodes, index, "value");
}

TagRec &stxTagAt(StxTree &tree, int32_t index)
{
  return recordAt(tree.tagRecs, index, "tag");
}

SubRec &stxSubAt(StxTree &tree, int32_t index)
{
  return recordAt(tree.subRecs, index, "constraint");
}

TedRec &stxTedAt(StxTree &tree, int32_t index)
{
  return recordAt(tree.tedRecs, index, "line");
}

SNode &stxLinkAt(StxTree &tree, int32_t index)
{
  return recordAt(tree.sNodes, index, "link");
}

// True for strings and lists, whose bounds are those of a size.
static bool isSized(int mainType)
{
  switch (mainType) {
  case TYP_BITSTR:
  case TYP_OCTSTR:
  case TYP_SEQOF:
  case TYP_SETOF:
  case TYP_OBJDESCR:
    return true;
  default:
    return mainType >= TYP_NUMSTR && mainType <= TYP_UNISTR;
  }
}

TNode stxNewTNode(int mainType, int valueField)
{
  TNode node;
  node.mainType = static_cast<uint8_t>(mainType);
  node.valueField = static_cast<uint8_t>(valueField);
  node.typeOptions.definiteLength = 255;
  node.typeOptions.skipKind = 255;
  // No bounds known; zeros would say that the only value is 0. A size runs
  // from 0 in any case.
  stxSetBounds(node,
               isSized(mainType) ? 0 : std::numeric_limits<int64_t>::min(),
               std::numeric_limits<int64_t>::max());
  return node;
}

TNode stxNewSynonym(int32_t ref, int32_t refModule)
{
  TNode node = stxNewTNode(TYP_SYNONYM);
  node.ref = ref;
  node.refModule = refModule;
  return node;
}

VNode stxNewVNode(int mainType, int32_t governor)
{
  VNode node;
  node.mainType = static_cast<uint8_t>(mainType);
  node.valueStatus = 2;
  node.governor = governor;
  node.governorModule = 1;
  return node;
}

VNode stxNewInteger(int32_t governor, int64_t value)
{
  VNode node = stxNewVNode(TYP_INTEGER, governor);
  setPayloadInt64(node, stxInt64(value));
  return node;
}

SubRec stxNewSub(int kind, int32_t operand1, int32_t operand2)
{
  SubRec record;
  record.kind = static_cast<uint8_t>(kind);
  record.operand1 = operand1;
  record.operand2 = operand2;
  return record;
}

SNode stxNewLink(int32_t target, int32_t linkModule)
{
  SNode node;
  node.target = target;
  node.linkModule = linkModule;
  return node;
}

sint64 stxInt64(int64_t value)
{
  uint64_t bits = static_cast<uint64_t>(value);
  return {static_cast<int32_t>(bits >> 32), static_cast<uint32_t>(bits)};
}

void stxSetBounds(TNode &node, int64_t lower, int64_t upper)
{
  node.lowerEndpoint = stxInt64(lower);
  node.upperEndpoint = stxInt64(upper);
}

// Definitions, components, chains

int32_t stxDefineType(StxTree &tree, std::string_view name, TNode node)
{
  node.identifier = nameIndex(tree, name);
  node.compStatus = TCS_HEADER;
  if (tree.header.visibilityMode == 0 || (node.classFlags & CF_VISIBLE))
    ++tree.header.nrVisibleTypes;
  if (node.entryFlags != 0)
    ++tree.header.nrEntryTypes;
  int32_t index = stxType(tree, node);
  linkBehind(tree.tNodes, tree.header.firstType, &TNode::next, tree.typeTails,
             0, index, "type");
  return index;
}

int32_t stxDefineValue(StxTree &tree, std::string_view name, VNode node)
{
  node.identifier = nameIndex(tree, name);
  if (isClassMainType(node.mainType)) {
    if (node.valueFlags & VFL_SET)
      ++tree.header.nrObjectSets;
    else
      ++tree.header.nrObjects;
  }
  int32_t index = stxValue(tree, node);
  linkBehind(tree.vNodes, tree.header.firstValue, &VNode::next, tree.valueTails,
             0, index, "value");
  return index;
}

// The summary bit that a component gives to the node that it stands in.
static uint16_t summaryBit(const TNode &father, const TNode &comp)
{
  if (comp.mainType == TYP_EXTENSION_MARKER)
    return NF_EXTENSIBLE;
  if (isClassMainType(father.mainType))
    return 0;
  if (comp.compStatus == TCS_OPTIONAL)
    return NF_OPTIONAL_COMPS;
  return comp.compStatus == TCS_MANDATORY ? NF_MANDATORY_COMPS : 0;
}

static void countComp(TNode &father, const TNode &comp)
{
  father.nodeFlags |= summaryBit(father, comp);
  ++father.nrComps;
}

// A group that is added with members brings their count and bits along.
static void countGroup(TNode &father, const TNode &group)
{
  father.nrComps += group.nrComps;
  father.nodeFlags |= static_cast<uint16_t>(
      group.nodeFlags & (NF_OPTIONAL_COMPS | NF_MANDATORY_COMPS));
}

static int compStatusIn(const TNode &father, const TNode &comp)
{
  if (comp.compStatus != TCS_MANDATORY)
    return comp.compStatus;
  if (father.mainType == TYP_CHOICE)
    return TCS_CHOICE;
  if (father.mainType == TYP_SEQOF || father.mainType == TYP_SETOF)
    return TCS_MULTIPLE;
  return TCS_MANDATORY;
}

int32_t stxAddComp(StxTree &tree, int32_t father, std::string_view name,
                   TNode node)
{
  // A group's members are of the structure that it stands in.
  auto outer = tree.groupFathers.find(father);
  bool inGroup = outer != tree.groupFathers.end();
  node.identifier = nameIndex(tree, name);
  node.compStatus =
      compStatusIn(stxTypeAt(tree, inGroup ? outer->second : father), node);
  int32_t index = stxType(tree, node);
  TNode &structure = stxTypeAt(tree, father);
  linkBehind(tree.tNodes, structure.ref, &TNode::next, tree.compTails, father,
             index, "type");
  if (structure.refModule == 0)
    structure.refModule = 1;
  if (node.mainType == TYP_EXTADDGRP) {
    countGroup(structure, node);
    tree.groupFathers[index] = father;
    return index;
  }
  countComp(structure, node);
  if (inGroup)
    countComp(stxTypeAt(tree, outer->second), node);
  return index;
}

// Items are no literals: status 0 keeps them out of the values.
static int32_t addItem(StxTree &tree, int32_t type, VNode node)
{
  node.valueStatus = 0;
  int32_t index = stxValue(tree, node);
  linkBehind(tree.vNodes, stxTypeAt(tree, type).namedNumbers, &VNode::next,
             tree.numberTails, type, index, "value");
  return index;
}

int32_t stxAddNamedNumber(StxTree &tree, int32_t type, std::string_view name,
                          int64_t value)
{
  VNode node = stxNewInteger(type, value);
  node.identifier = nameIndex(tree, name);
  return addItem(tree, type, node);
}

int32_t stxAddNamedMarker(StxTree &tree, int32_t type)
{
  stxTypeAt(tree, type).nodeFlags |= NF_EXTENSIBLE;
  return addItem(tree, type, stxNewVNode(TYP_EXTENSION_MARKER, type));
}

int32_t stxAddChild(StxTree &tree, int32_t father, std::string_view name,
                    VNode node)
{
  node.identifier = nameIndex(tree, name);
  int32_t index = stxValue(tree, node);
  linkBehind(tree.vNodes, stxValueAt(tree, father).firstChild, &VNode::next,
             tree.childTails, father, index, "value");
  return index;
}

int32_t stxAddTag(StxTree &tree, int32_t type, int32_t tagClass,
                  int32_t tagNumber, int32_t tagMode)
{
  TagRec record;
  record.tagClass = tagClass;
  record.tagNumber = tagNumber;
  record.tagMode = tagMode;
  int32_t index = stxTag(tree, record);
  linkBehind(tree.tagRecs, stxTypeAt(tree, type).firstTag, &TagRec::nextTag,
             tree.tagTails, type, index, "tag");
  return index;
}

int32_t stxChainSubs(StxTree &tree, const std::vector<int32_t> &subs)
{
  for (size_t i = 0; i < subs.size(); ++i)
    stxSubAt(tree, subs[i]).nextSub = i + 1 < subs.size() ? subs[i + 1] : 0;
  return subs.empty() ? 0 : subs.front();
}

int32_t stxChainLinks(StxTree &tree, const std::vector<int32_t> &links)
{
  for (size_t i = 0; i < links.size(); ++i)
    stxLinkAt(tree, links[i]).nextLink =
        i + 1 < links.size() ? links[i + 1] : 0;
  return links.empty() ? 0 : links.front();
}

// Imports, option lines

int32_t stxImport(StxTree &tree, std::string_view moduleName,
                  std::string_view filePrefix, bool usesDeclarations)
{
  MNode entry;
  entry.toolVersion = tree.header.toolVersion;
  entry.treeVersion = tree.header.treeVersion;
  entry.date = tree.header.date;
  entry.time = tree.header.time;
  entry.moduleName = stxStri(tree, stxName(moduleName));
  entry.filePrefix = stxStri(tree, filePrefix);
  entry.tagDefaultAndUse = usesDeclarations ? 0x10 : 0;
  tree.imports.push_back(entry);
  return static_cast<int32_t>(tree.imports.size()) + 1;
}

// Puts the three pieces of a "-PREFIX=" line into the strings, as they stand
// after cutting; an empty piece is the one before it. A text of more than
// three pieces is no option, and nothing looks it up.
static void putPrefixPieces(StxTree &tree, std::string_view pieces)
{
  std::string part[3];
  size_t number = 0;
  for (char c : pieces) {
    if (c != ':')
      part[number] += c;
    else if (++number == std::size(part))
      return;
  }
  if (part[0].empty())
    return;
  if (part[1].empty())
    part[1] = part[0];
  if (part[2].empty())
    part[2] = part[1];
  stxStri(tree, stxName(part[0].substr(0, maxModuleName)));
  stxStri(tree, part[1].substr(0, tree.prefixLength));
  stxStri(tree, part[2].substr(0, tree.prefixLength));
}

// Appends a line and makes it the last of the range.
static int32_t extendRange(StxTree &tree, int32_t &first, int32_t &last,
                           uint8_t tedKind, std::string_view line)
{
  int32_t end = static_cast<int32_t>(tree.tedRecs.size());
  if (last != 0 && last != end)
    noRecord("line range interrupted at", last + 1);
  TedRec record;
  record.tedKind = tedKind;
  record.text = stxStri(tree, line);
  int32_t index = stxTed(tree, record);
  if (last == 0)
    first = index;
  last = index;
  return index;
}

int32_t stxGlobalOption(StxTree &tree, uint8_t tedKind, std::string_view line)
{
  constexpr std::string_view prefixOption = "-PREFIX=";
  int32_t index = extendRange(tree, tree.header.firstGlobalTed,
                              tree.header.lastGlobalTed, tedKind, line);
  if (line.starts_with(prefixOption))
    putPrefixPieces(tree, line.substr(prefixOption.size()));
  return index;
}

int32_t stxNodeTed(StxTree &tree, int32_t type, uint8_t tedKind,
                   std::string_view line)
{
  TNode &node = stxTypeAt(tree, type);
  if (tedKind == TED_EMBEDDING)
    node.nodeOptions |= 1u << optEmbedding;
  if (tedKind == TED_FRONT_END)
    node.nodeOptions |= 1u << optNaming;
  return extendRange(tree, node.firstTed, node.lastTed, tedKind, line);
}

int32_t stxValueTed(StxTree &tree, int32_t value, uint8_t tedKind,
                    std::string_view line)
{
  VNode &node = stxValueAt(tree, value);
  if (tedKind == TED_FRONT_END)
    node.valueFlags |= VFL_NAMING;
  return extendRange(tree, node.firstTed, node.lastTed, tedKind, line);
}

// The file

template <class T>
static void encodeSection(std::string &octets, int kind,
                          const std::vector<T> &records)
{
  uint8_t buffer[sizeof(T)];
  for (const T &record : records) {
    encodeRecord(kind, &record, buffer);
    octets.append(reinterpret_cast<const char *>(buffer), sizeof buffer);
  }
}

static void putLittle(std::string &octets, uint32_t value, size_t width)
{
  for (size_t i = 0; i < width; ++i)
    octets += static_cast<char>(value >> 8 * i);
}

template <class C>
static void encodeStrings(std::string &octets, const StxStrings<C> &strings)
{
  for (const std::basic_string<C> &text : strings.texts) {
    putLittle(octets, static_cast<uint32_t>(text.size()) + 1, 2);
    for (C unit : text)
      putLittle(octets, static_cast<uint32_t>(unit), sizeof(C));
    putLittle(octets, 0, sizeof(C));
  }
}

static size_t countOf(const StxTree &tree, int kind)
{
  switch (kind) {
  case REC_MNODE:
    return 1 + tree.imports.size();
  case REC_TNODE:
    return tree.tNodes.size();
  case REC_VNODE:
    return tree.vNodes.size();
  case REC_TAG:
    return tree.tagRecs.size();
  case REC_SUB:
    return tree.subRecs.size();
  case REC_TED:
    return tree.tedRecs.size();
  case REC_SNODE:
    return tree.sNodes.size();
  case REC_STRI:
    return tree.stris.texts.size();
  case REC_STRI16:
    return tree.stris16.texts.size();
  case REC_STRI32:
    return tree.stris32.texts.size();
  default:
    return 0;
  }
}

std::string stxEncode(const StxTree &tree)
{
  std::vector<MNode> mNodes = {tree.header};
  for (int kind = 0; kind < storedKinds; ++kind)
    mNodes[0].counts[kind] = static_cast<int32_t>(countOf(tree, kind));
  mNodes.insert(mNodes.end(), tree.imports.begin(), tree.imports.end());

  std::string octets;
  octets.reserve(stxOffset(
      tree, REC_STRI32, static_cast<int32_t>(countOf(tree, REC_STRI32)) + 1));
  encodeSection(octets, REC_MNODE, mNodes);
  encodeSection(octets, REC_TNODE, tree.tNodes);
  encodeSection(octets, REC_VNODE, tree.vNodes);
  encodeSection(octets, REC_TAG, tree.tagRecs);
  encodeSection(octets, REC_SUB, tree.subRecs);
  encodeSection(octets, REC_TED, tree.tedRecs);
  encodeSection(octets, REC_SNODE, tree.sNodes);
  encodeStrings(octets, tree.stris);
  encodeStrings(octets, tree.stris16);
  encodeStrings(octets, tree.stris32);
  return octets;
}

// Octets of the first `count` strings.
template <class C>
static size_t stringOctets(const StxStrings<C> &strings, size_t count)
{
  size_t octets = 0;
  for (size_t i = 0; i < count; ++i)
    octets += 2 + (strings.texts[i].size() + 1) * sizeof(C);
  return octets;
}

// Octets of the first `count` records or strings of a section.
static size_t sectionOctets(const StxTree &tree, int kind, size_t count)
{
  switch (kind) {
  case REC_STRI:
    return stringOctets(tree.stris, count);
  case REC_STRI16:
    return stringOctets(tree.stris16, count);
  case REC_STRI32:
    return stringOctets(tree.stris32, count);
  default:
    return count * recSize[kind];
  }
}

size_t stxOffset(const StxTree &tree, int kind, int32_t index)
{
  size_t offset = 0;
  if (kind < 0 || kind >= storedKinds)
    noRecord("record kind", kind);
  if (index < 1 || static_cast<size_t>(index) > countOf(tree, kind) + 1)
    noRecord("offset of record", index);
  for (int k = 0; k < kind; ++k)
    offset += sectionOctets(tree, k, countOf(tree, k));
  return offset + sectionOctets(tree, kind, static_cast<size_t>(index) - 1);
}

bool stxWrite(const StxTree &tree, const char *path)
{
  return stxWriteOctets(stxEncode(tree), path);
}

// Writes and closes; errno is that of the first failure.
static bool writeAll(const std::string &octets, const char *path)
{
  FILE *stream = fopen(path, "wb");
  if (!stream)
    return false;
  bool good =
      fwrite(octets.data(), 1, octets.size(), stream) == octets.size() &&
      fflush(stream) == 0;
  int reason = errno;
  if (fclose(stream) != 0 && good) {
    good = false;
    reason = errno;
  }
  errno = reason;
  return good;
}

bool stxWriteOctets(const std::string &octets, const char *path)
{
  std::error_code ignored;
  std::filesystem::path target(path);
  std::filesystem::file_status status =
      std::filesystem::status(target, ignored);
  // A device or a pipe is written to; a name in its place would replace it.
  if (std::filesystem::exists(status) &&
      !std::filesystem::is_regular_file(status))
    return writeAll(octets, path);
  if (std::filesystem::is_symlink(target, ignored))
    target = std::filesystem::weakly_canonical(target, ignored);

  std::string part =
      formatText("%s.%ld.part", target.c_str(), static_cast<long>(getpid()));
  if (writeAll(octets, part.c_str()) &&
      rename(part.c_str(), target.c_str()) == 0)
    return true;
  int reason = errno;
  remove(part.c_str());
  errno = reason;
  return false;
}
