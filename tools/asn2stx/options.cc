// The command line. Options with names of the tool's catalogue go through
// the catalogue itself, so that what is saved into a tree is what the tool
// will accept of it.

#include "asn2stx/options.h"
#include "base/strings.h"
#include "options/catalogue.h"
#include "options/fixrec.h"
#include "options/params.h"
#include "options/validators.h"
#include "store/module.h"
#include <ctime>

const char asn2stxUsage[] =
    "usage: asn2stx [-o DIR] [options] FILE.asn ...\n"
    "\n"
    "Compiles ASN.1 modules, one syntax tree each.\n"
    "\n"
    "  -o DIR                  write the trees there\n"
    "  -PREFIX=MODULE:PREFIX   prefix of a module's files\n"
    "  -PREFIXLEN=N            length of prefixes, 5 unless given\n"
    "  -ENTRY=TYPE[:PDU|:SDU|:OCTAL[:SYMBOL]]\n"
    "                          entry functions for a type\n"
    "  -NAME=VALUE             any option of the tool's catalogue\n"
    "  -BEO=QUORVEN=...        an option for the back-end\n"
    "  --union-of-additions    constraints: root and additions as one union\n"
    "  --second-marker         write a second extension marker as a node\n"
    "  --stamp=YYYYMMDD:HHMMSS stamp of the trees instead of the time\n"
    "  --help                  this text\n";

bool backEndLine(const std::string &line)
{
  return startsWith(line.c_str(), "-BEO=");
}

bool entryCategory(const std::string &word, uint8_t &category)
{
  if (strCaseComp(word.c_str(), "PDU") == 0 || word.empty()) {
    category = word.empty() ? 0 : 1;
    return true;
  }
  if (strCaseComp(word.c_str(), "SDU") == 0) {
    category = 2;
    return true;
  }
  int number = 0;
  for (char c : word) {
    if (c < '0' || c > '7' || (number = number * 8 + (c - '0')) > 255)
      return false;
  }
  category = static_cast<uint8_t>(number);
  return true;
}

std::string backEndOption(const std::string &text)
{
  static const std::string block = "-BEO=", own = "QUORVEN=";
  std::string line = text;
  if (line.starts_with("//"))
    return block + line;
  auto raise = [&](size_t from, const char *ends) {
    size_t end = line.find_first_of(ends, from);
    for (size_t i = from; end != std::string::npos && i < end; ++i)
      line[i] = upperChar(line[i]);
    return end == std::string::npos ? line.size() : end + 1;
  };
  if (!line.starts_with("-")) {
    line = block + own + line;
  } else if (strCaseComp(line.substr(0, block.size()).c_str(), block.c_str()) !=
             0) {
    line = block + own + line.substr(1);
  }
  size_t at = raise(0, "=");
  bool isOwn =
      strCaseComp(line.substr(at, own.size()).c_str(), own.c_str()) == 0;
  // Another program's block is that program's.
  if (isOwn)
    raise(raise(at, "="), "=:");
  return line;
}

// The parts of a value between its ":".
static std::vector<std::string> partsOf(const std::string &value)
{
  std::vector<std::string> parts(1);
  for (char c : value) {
    if (c == ':')
      parts.emplace_back();
    else
      parts.back() += c;
  }
  return parts;
}

static bool takePrefix(Asn2StxOptions &options, const std::string &value)
{
  std::vector<std::string> parts = partsOf(value);
  if (parts.size() < 2 || parts.size() > 3 || parts[0].empty() ||
      parts[1].empty())
    return false;
  // Files are named by the last part.
  options.prefixes.emplace_back(parts[0],
                                parts.back().empty() ? parts[1] : parts.back());
  return true;
}

static bool takeEntry(Asn2StxOptions &options, const std::string &value)
{
  std::vector<std::string> parts = partsOf(value);
  EntryOption entry;
  entry.type = parts[0];
  if (entry.type.empty() || parts.size() > 3 ||
      (parts.size() > 1 && !entryCategory(parts[1], entry.category)))
    return false;
  options.entries.push_back(entry);
  return true;
}

// The value of an option if it has that name, else null.
static const char *valueOf(const std::string &option, const char *name)
{
  return startsWith(option.c_str(), name)
             ? option.c_str() + std::string(name).size()
             : nullptr;
}

// Applies an option of the catalogue to the scratch module and saves it.
static bool takeCatalogue(Asn2StxOptions &options, ModRec &scratch,
                          const std::string &line)
{
  // Texts of naming options are pointed at, so they are interned.
  const char *text = internStri(line) + 1;
  if (!pass3GlobalOptionOK(scratch, 0, TED_FRONT_END, text))
    return false;
  options.saved.push_back(line);
  options.catalogue = scratch.options;
  return true;
}

// One option with a single "-".
static bool takeOption(Asn2StxOptions &options, ModRec &scratch,
                       const std::string &argument)
{
  std::string line = argument;
  optionToUpper(line);
  if (backEndLine(line)) {
    options.saved.push_back(backEndOption(line));
    return true;
  }
  if (const char *value = valueOf(line, "-PREFIX=")) {
    options.saved.push_back(line);
    return takePrefix(options, value);
  }
  if (const char *value = valueOf(line, "-PREFIXLEN=")) {
    uint8_t length = 0;
    bool good = byteOptionOK(length, value, 1, 32, nullptr);
    if (good)
      options.prefixLength = length;
    return good;
  }
  if (const char *value = valueOf(line, "-ENTRY="))
    if (!takeEntry(options, value))
      return false;
  // An entry without category is nothing to save.
  if (valueOf(line, "-ENTRY=") && line.find(':') == std::string::npos)
    return true;
  return takeCatalogue(options, scratch, line);
}

static bool takeStamp(Asn2StxOptions &options, const std::string &value)
{
  std::vector<std::string> parts = partsOf(value);
  return parts.size() == 2 &&
         int32OptionOK(options.date, parts[0].c_str(), 0, 99991231) &&
         digitStriOptionOK(parts[1], std::string(parts[1]).c_str(), 6, 6) &&
         (options.time = std::stoi(parts[1])) <= 235959;
}

// One option with "--".
static bool takeLongOption(Asn2StxOptions &options, const std::string &argument)
{
  if (argument == "--union-of-additions")
    options.unionOfAdditions = true;
  else if (argument == "--second-marker")
    options.secondMarker = true;
  else if (const char *value = valueOf(argument, "--stamp="))
    return takeStamp(options, value);
  else
    return false;
  return true;
}

static void stampNow(Asn2StxOptions &options)
{
  StampRec now;
  getTimeStamp(now);
  options.date = now.date;
  options.time = now.time;
}

bool parseAsn2StxOptions(const std::vector<std::string> &arguments,
                         Asn2StxOptions &options, std::string &message)
{
  // The catalogue works on a module; it lives as long as the process.
  static ModRec scratch;
  deleteFixRecs(scratch.options);
  initMetaRec(scratch.options);
  stampNow(options);
  options.catalogue = scratch.options;
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string &argument = arguments[i];
    bool good = true;
    if (argument == "-o") {
      good = ++i < arguments.size() &&
             directoryOptionOK(options.directory, arguments[i].c_str());
    } else if (argument.starts_with("--")) {
      good = takeLongOption(options, argument);
    } else if (argument.starts_with("-")) {
      good = takeOption(options, scratch, argument);
    } else {
      options.files.push_back(argument);
    }
    if (!good) {
      message = "bad option " + asnQuoted(argument);
      return false;
    }
  }
  if (options.files.empty()) {
    message = "no ASN.1 file is named";
    return false;
  }
  return true;
}
