// The tolerant reader of tree files, and what can be told of a record from
// its codes: which of its indexes leads where.

#include "stx/stxread.h"
#include "base/strings.h"
#include "store/codes.h"
#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <filesystem>

constexpr int version = 213;

void stxFault(StxFaults &faults, const char *format, ...)
{
  ++faults.count;
  if (!faults.to)
    return;
  va_list arguments;
  va_start(arguments, format);
  fprintf(faults.to, "stxdump: %s: ", faults.name);
  vfprintf(faults.to, format, arguments);
  fputc('\n', faults.to);
  va_end(arguments);
}

bool stxReadOctets(std::string &octets, const char *path)
{
  std::error_code error;
  std::filesystem::file_status status = std::filesystem::status(path, error);
  if (std::filesystem::exists(status) &&
      !std::filesystem::is_regular_file(status)) {
    errno = std::filesystem::is_directory(status) ? EISDIR : EINVAL;
    return false;
  }
  FILE *stream = fopen(path, "rb");
  if (!stream)
    return false;
  octets.clear();
  constexpr size_t blockSize = 1 << 16;
  std::string block(blockSize, 0);
  size_t got;
  while ((got = fread(block.data(), 1, blockSize, stream)) > 0)
    octets.append(block, 0, got);
  bool good = !ferror(stream);
  int reason = errno;
  fclose(stream);
  errno = reason;
  return good;
}

const char *stxKindName(int kind)
{
  static const char *const names[storedKinds] = {
      "mNode",  "tNode", "vNode", "tagRec", "subRec",
      "tedRec", "sNode", "stri",  "stri16", "stri32",
  };
  return kind >= 0 && kind < storedKinds ? names[kind] : "?";
}

int64_t stxDeclared(const StxFile &file, int kind)
{
  return std::max(file.header.counts[kind], 0);
}

int64_t stxPresent(const StxFile &file, int kind)
{
  auto size = [](const auto &records) {
    return static_cast<int64_t>(records.size());
  };
  switch (kind) {
  case REC_MNODE:
    return size(file.imports) + 1;
  case REC_TNODE:
    return size(file.tNodes);
  case REC_VNODE:
    return size(file.vNodes);
  case REC_TAG:
    return size(file.tagRecs);
  case REC_SUB:
    return size(file.subRecs);
  case REC_TED:
    return size(file.tedRecs);
  case REC_SNODE:
    return size(file.sNodes);
  case REC_STRI:
    return size(file.texts[0]);
  case REC_STRI16:
    return size(file.texts[1]);
  case REC_STRI32:
    return size(file.texts[2]);
  default:
    return 0;
  }
}

bool stxHas(const StxFile &file, int kind, int64_t index)
{
  return index >= 1 && index <= stxPresent(file, kind);
}

static const uint8_t *octetsAt(const StxFile &file, size_t offset)
{
  return reinterpret_cast<const uint8_t *>(file.octets.data()) + offset;
}

uint32_t stxUnit(const StxFile &file, int kind, const StxText &text, uint32_t i)
{
  const uint8_t *at =
      octetsAt(file, text.offset + static_cast<size_t>(i) * recSize[kind]);
  if (kind == REC_STRI32)
    return littleU32(at);
  return kind == REC_STRI16 ? littleU16(at) : *at;
}

// Sections

// Reads up to `count` records at `file.end`; false if the file is cut. The
// room is by what the file holds, never by what the header claims.
template <class T>
static bool parseRecords(StxFile &file, int kind, int64_t count,
                         std::vector<T> &records, StxFaults &faults)
{
  size_t size = recSize[kind];
  size_t room = (file.octets.size() - file.end) / size;
  size_t wanted = static_cast<size_t>(count);
  records.resize(std::min(room, wanted));
  for (T &record : records) {
    decodeRecord(kind, octetsAt(file, file.end), &record);
    file.end += size;
  }
  if (room >= wanted)
    return true;
  stxFault(faults, "cut: section %s holds %zu of %zu records",
           stxKindName(kind), room, wanted);
  return false;
}

static bool parseStrings(StxFile &file, int kind, int64_t count,
                         std::vector<StxText> &texts, StxFaults &faults)
{
  for (int64_t i = 1; i <= count; ++i) {
    size_t left = file.octets.size() - file.end;
    uint32_t units = left < 2 ? 0 : littleU16(octetsAt(file, file.end));
    if (left >= 2 && (units < 1 || units > maxStriUnits)) {
      stxFault(faults, "%s %lld at octet %zu has a bad count of %u units",
               stxKindName(kind), static_cast<long long>(i), file.end, units);
      return false;
    }
    size_t size = static_cast<size_t>(units) * recSize[kind];
    if (left < 2 || left - 2 < size) {
      stxFault(faults, "cut: section %s holds %lld of %lld strings",
               stxKindName(kind), static_cast<long long>(i - 1),
               static_cast<long long>(count));
      return false;
    }
    StxText text{file.end + 2, units - 1};
    // The section still holds together without the zero: read on.
    if (stxUnit(file, kind, text, units - 1) != 0) {
      stxFault(faults, "%s %lld at octet %zu has no zero at its end",
               stxKindName(kind), static_cast<long long>(i), file.end);
      ++text.units;
    }
    texts.push_back(text);
    file.end += 2 + size;
  }
  return true;
}

static bool parseSection(StxFile &file, int kind, StxFaults &faults)
{
  int64_t count = file.header.counts[kind];
  switch (kind) {
  case REC_MNODE:
    return parseRecords(file, kind, std::max<int64_t>(count - 1, 0),
                        file.imports, faults);
  case REC_TNODE:
    return parseRecords(file, kind, count, file.tNodes, faults);
  case REC_VNODE:
    return parseRecords(file, kind, count, file.vNodes, faults);
  case REC_TAG:
    return parseRecords(file, kind, count, file.tagRecs, faults);
  case REC_SUB:
    return parseRecords(file, kind, count, file.subRecs, faults);
  case REC_TED:
    return parseRecords(file, kind, count, file.tedRecs, faults);
  case REC_SNODE:
    return parseRecords(file, kind, count, file.sNodes, faults);
  default:
    return parseStrings(file, kind, count, file.texts[kind - REC_STRI], faults);
  }
}

// False if nothing behind the header can be told.
static bool parseHeader(StxFile &file, StxFaults &faults)
{
  file.headerOctets = std::min<size_t>(file.octets.size(), sizeof(MNode));
  uint8_t padded[sizeof(MNode)] = {};
  std::copy_n(octetsAt(file, 0), file.headerOctets, padded);
  decodeRecord(REC_MNODE, padded, &file.header);
  file.end = file.headerOctets;
  if (file.headerOctets < sizeof(MNode)) {
    stxFault(faults, "cut: %zu of %zu octets of the header", file.headerOctets,
             sizeof(MNode));
    return false;
  }
  if (file.header.treeVersion != version) {
    stxFault(faults, "tree version %d, expected %d", file.header.treeVersion,
             version);
    return false;
  }
  return true;
}

// What the records say of each other

// Marks the records of a chain; one that is marked already has the rest of
// its chain behind it.
template <class T>
static void markChain(const std::vector<T> &records, int64_t first,
                      std::vector<bool> &marks)
{
  while (first >= 1 && first <= static_cast<int64_t>(records.size())) {
    size_t at = static_cast<size_t>(first) - 1;
    if (marks[at])
      return;
    marks[at] = true;
    first = records[at].next;
  }
}

// A field value stands for a type if its governor is a type field: one with
// a name, a positive one, and no set.
static bool hasTypeField(const StxFile &file, const VNode &value)
{
  if (value.governorModule >= 2 || !stxHas(file, REC_TNODE, value.governor))
    return false;
  size_t at = static_cast<size_t>(value.governor) - 1;
  const TNode &governor = file.tNodes[at];
  return file.classFields[at] && governor.identifier > 0 &&
         !(governor.classFlags & CF_SET);
}

static void markRoles(StxFile &file)
{
  file.classFields.assign(file.tNodes.size(), false);
  file.fieldValues.assign(file.vNodes.size(), false);
  file.typeCarriers.assign(file.vNodes.size(), false);
  for (const TNode &node : file.tNodes)
    if (isClassMainType(node.mainType) && stxHasComps(file, node))
      markChain(file.tNodes, node.ref, file.classFields);
  for (const VNode &node : file.vNodes)
    if (isClassMainType(node.mainType))
      markChain(file.vNodes, node.firstChild, file.fieldValues);
  for (size_t i = 0; i < file.vNodes.size(); ++i)
    file.typeCarriers[i] = hasTypeField(file, file.vNodes[i]);
  for (const SubRec &record : file.subRecs)
    if (record.kind == SUB_INCLUDES && stxHas(file, REC_VNODE, record.operand1))
      file.typeCarriers[static_cast<size_t>(record.operand1) - 1] = true;
}

void stxParse(StxFile &file, std::string octets, StxFaults &faults)
{
  file = StxFile{};
  file.octets = std::move(octets);
  file.headerGood = parseHeader(file, faults);
  bool good = file.headerGood;
  for (int kind = 0; good && kind < storedKinds; ++kind) {
    if (file.header.counts[kind] < 0) {
      stxFault(faults, "section %s has a count of %d", stxKindName(kind),
               file.header.counts[kind]);
      good = false;
    } else {
      good = parseSection(file, kind, faults);
    }
  }
  markRoles(file);
}

int stxFirstChild(const StxFile &file, int32_t value)
{
  size_t at = static_cast<size_t>(value) - 1;
  const VNode &node = file.vNodes[at];
  if (file.typeCarriers[at])
    return STX_TYPE;
  // The class is in another tree: whether it is a type or a value is there.
  if (file.fieldValues[at] && node.governorModule >= 2)
    return STX_NOTHING;
  if (node.mainType == TYP_SYNONYM)
    return STX_VALUE;
  switch (node.mainType) {
  case TYP_BITSTR:
  case TYP_SEQ:
  case TYP_SEQOF:
  case TYP_SET:
  case TYP_SETOF:
  case TYP_CHOICE:
  case TYP_EMB_PDV:
  case TYP_OBJID:
  case TYP_CHASTR:
  case TYP_EXTERNAL:
  case TYP_EXTERNAL_1994:
  case TYP_INSTANCE_OF:
  case TYP_CLASS:
  case TYP_TYPE_ID:
  case TYP_ABSTR_STX:
    return STX_VALUES;
  default:
    break;
  }
  bool isString = stxPayloadKind(node) != 0 && node.mainType != TYP_OCTSTR;
  return isString ? STX_VALUES : STX_NOTHING;
}

int stxOperand1(const SubRec &record)
{
  switch (record.kind) {
  case SUB_UNION:
  case SUB_INTERSECTION:
  case SUB_CATENATED:
  case SUB_EXCEPT:
  case SUB_WITH_COMPONENTS:
    return STX_SUBS;
  case SUB_ALL_EXCEPT:
  case SUB_ALPHABET:
  case SUB_SIZE:
  case SUB_WITH_COMPONENT:
    return STX_SUB;
  case SUB_RANGE:
  case SUB_SINGLE_VALUE:
  case SUB_INCLUDES:
    return STX_VALUE;
  default:
    return STX_NOTHING;
  }
}

int stxOperand2(const SubRec &record)
{
  return record.kind == SUB_RANGE ? STX_VALUE : STX_NOTHING;
}

bool stxHasComps(const StxFile &file, const TNode &node)
{
  switch (node.mainType) {
  case TYP_SEQ:
  case TYP_SEQOF:
  case TYP_SET:
  case TYP_SETOF:
  case TYP_CHOICE:
  case TYP_EMB_PDV:
  case TYP_CHASTR:
  case TYP_EXTERNAL:
  case TYP_EXTERNAL_1994:
  case TYP_INSTANCE_OF:
  case TYP_CLASS:
  case TYP_TYPE_ID:
  case TYP_ABSTR_STX:
  case TYP_EXTADDGRP:
    break;
  default:
    return false;
  }
  if (node.ref == 0 || node.refModule >= 2)
    return false;
  // An instantiated node refers to the definition that it was made from.
  if (!stxHas(file, REC_TNODE, node.ref))
    return true;
  int32_t status = file.tNodes[static_cast<size_t>(node.ref) - 1].compStatus;
  return status != TCS_HEADER && status != -TCS_HEADER;
}

bool stxHasPath(const TNode &node)
{
  return node.mainType == TYP_SELECTION || node.mainType == TYP_ANY ||
         node.mainType == TYP_FIELDLIST;
}

int stxPayloadKind(const VNode &node)
{
  switch (node.mainType) {
  case TYP_BITSTR:
  case TYP_OCTSTR:
  case TYP_OBJID:
  case TYP_OBJDESCR:
  case TYP_GENTIME:
  case TYP_UTCTIME:
    return REC_STRI;
  case TYP_BMPSTR:
    return REC_STRI16;
  case TYP_UNISTR:
    return REC_STRI32;
  default:
    return node.mainType >= TYP_NUMSTR && node.mainType <= TYP_GENSTR ? REC_STRI
                                                                      : 0;
  }
}
