#pragma once
#include "asn2stx/diagnose.h"
#include "store/modrec.h"
#include <string>
#include <utility>
#include <vector>

// The command line.

// "-ENTRY=Type:category:symbol".
struct EntryOption {
  std::string type;      // as written
  uint8_t category = 0;  // 0 none, 1 PDU, 2 SDU, or the number given
};

// Entry flags of a definition with functions of encoder and decoder.
constexpr uint8_t entryOfBoth = 0x4C;

struct Asn2StxOptions {
  std::string directory;           // of the trees, "/" at its end or empty
  std::vector<std::string> files;  // ASN.1

  // "-PREFIX=Module:prefix": module as written, prefix.
  std::vector<std::pair<std::string, std::string>> prefixes;
  size_t prefixLength = 5;

  std::vector<EntryOption> entries;

  // Lines that are saved into every tree, with their leading "-" and the
  // name in capitals; those of `backEndLine` are for the back-end.
  std::vector<std::string> saved;

  // What the options of the catalogue come to; it chooses representations.
  GlobalOptions catalogue;

  bool unionOfAdditions = false;  // constraints: root and additions as one
  bool secondMarker = false;      // as a node, in the order of the text
  int date = 0;                   // YYYYMMDD, stamp of all trees of the run
  int time = 0;                   // HHMMSS
};

// True for a line of a back-end's block, "-BEO=...".
bool backEndLine(const std::string &line);

// The line of a back-end option: in the tool's own block unless one is named,
// names in capitals; "//text" is a comment.
std::string backEndOption(const std::string &text);

// Reads the arguments behind the program's name. False, with the reason in
// `message`, for a command line that is not understood.
bool parseAsn2StxOptions(const std::vector<std::string> &arguments,
                         Asn2StxOptions &options, std::string &message);

// The category that stands for a word of "ENTRY=" or of an annotation: PDU,
// SDU or an octal number up to 377; false for another.
bool entryCategory(const std::string &word, uint8_t &category);

extern const char asn2stxUsage[];
