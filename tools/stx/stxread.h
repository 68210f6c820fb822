#pragma once
#include "store/records.h"
#include <cstdio>
#include <string>
#include <vector>

// Tree files as far as they can be read. The tool's loader ends the run at
// the first fault; this one says what is wrong and keeps what was good.

// Where the lines about faults go: "stxdump: NAME: text".
struct StxFaults {
  FILE *to = nullptr;  // null: they are only counted
  const char *name = "";
  long count = 0;
};

[[gnu::format(printf, 2, 3)]] void stxFault(StxFaults &faults,
                                            const char *format, ...);

// A string in the octets of the file.
struct StxText {
  size_t offset = 0;   // of its first unit
  uint32_t units = 0;  // without the terminating zero
};

struct StxFile {
  std::string octets;
  size_t headerOctets = 0;  // of the header, 112 unless the file is cut
  bool headerGood = false;  // whole, and of a version that is known
  MNode header;
  std::vector<MNode> imports;
  std::vector<TNode> tNodes;
  std::vector<VNode> vNodes;
  std::vector<TagRec> tagRecs;
  std::vector<SubRec> subRecs;
  std::vector<TedRec> tedRecs;
  std::vector<SNode> sNodes;
  std::vector<StxText> texts[3];  // of kinds 7, 8 and 9
  size_t end = 0;                 // octets read

  // What the records say of each other, by index - 1.
  std::vector<bool> classFields;   // type nodes that are fields of a class
  std::vector<bool> fieldValues;   // values that are fields of an object
  std::vector<bool> typeCarriers;  // values whose `firstChild` is a type
};

// Reads the file's octets; false, with errno set, if that fails. What is no
// regular file is refused with EINVAL: a device may have no end.
bool stxReadOctets(std::string &octets, const char *path);

// Takes the octets apart as far as they go.
void stxParse(StxFile &file, std::string octets, StxFaults &faults);

// Name of a section.
const char *stxKindName(int kind);

// Records of a kind that the header tells of, and that were read.
int64_t stxDeclared(const StxFile &file, int kind);
int64_t stxPresent(const StxFile &file, int kind);

// True if the record was read.
bool stxHas(const StxFile &file, int kind, int64_t index);

// One unit of a string.
uint32_t stxUnit(const StxFile &file, int kind, const StxText &text,
                 uint32_t i);

// What an index of a value or a constraint stands for.
enum StxOperand : int {
  STX_NOTHING,  // not an index, or one whose kind cannot be told
  STX_TYPE,
  STX_VALUE,   // a reference to a value
  STX_VALUES,  // the first value of a chain
  STX_SUB,
  STX_SUBS  // the first constraint of a chain
};

// `firstChild` of a value, `operand1` and `operand2` of a constraint.
int stxFirstChild(const StxFile &file, int32_t value);
int stxOperand1(const SubRec &record);
int stxOperand2(const SubRec &record);

// True if `ref` is the first node of a chain of components, elements,
// members or fields, and not a reference.
bool stxHasComps(const StxFile &file, const TNode &node);

// True if `fieldRef` is the first link of a path.
bool stxHasPath(const TNode &node);

// The kind of the string in a value's payload; 0 if it holds none.
int stxPayloadKind(const VNode &node);
