// Pass 1 over the command line. It is strict: what it finds bad ends the run
// in the usage text, but only after all arguments were looked at.

#include "options/params.h"
#include "base/diag.h"
#include "base/strings.h"
#include "base/textfile.h"
#include "options/optionfile.h"
#include "options/usage.h"
#include "options/validators.h"
#include "store/module.h"
#include <algorithm>
#include <cstring>

static const char treeSuffix[] = ".stx";

// The prefix length of the first prefix, which serves all; 0: none yet.
static uint8_t runPrefixLen;

std::string &optionToUpper(std::string &option)
{
  for (size_t i = 1; i < option.size() && option[i] != '='; ++i)
    option[i] = upperChar(option[i]);
  return option;
}

void argumentIgnored(const char *text, const char *optionFile)
{
  if (verboseEx > 1) {
    fprintf(stderr, "\nWARNING : Argument ignored: %s\n", text);
    if (optionFile)
      fprintf(stderr, "          In option file  : %s\n", optionFile);
  }
  ++cMP->nrWarnings;
}

// The value behind an option's name, or null for another option.
static const char *valueOf(const std::string &option, const char *name)
{
  return startsWith(option.c_str(), name) ? option.c_str() + strlen(name)
                                          : nullptr;
}

bool parseSelectedCmdLineOpts(const char *option, int prefixes)
{
  // The name is raised from the second character on, behind the "-".
  std::string raised = std::string("-") + option;
  optionToUpper(raised).erase(0, 1);
  if (const char *value = valueOf(raised, "S="))
    return directoryOptionOK(stxDir, value);
  if (const char *value = valueOf(raised, "PREFIXLEN="))
    return prefixes > 0 ||
           byteOptionOK(cMP->options.prefixLen, value, 1, 32, nullptr);
  if (valueOf(raised, "VERSION"))
    printVersionAndExit();
  if (const char *value = valueOf(raised, "V="))
    return int32OptionOK(verboseEx, value, 1, 4);
  return true;
}

bool parseCommandLineOption(int, char **vector, int position, int prefixes)
{
  const char *argument = vector[position];
  if (parseSelectedCmdLineOpts(argument + 1, prefixes))
    return true;
  argumentIgnored(argument, nullptr);
  return false;
}

bool validFilePrefix(const ModRec &module, std::string &text)
{
  if (text.ends_with(treeSuffix))
    text.resize(text.size() - strlen(treeSuffix));
  size_t limit = module.options.prefixLen;
  if (limit == 0)
    limit = defaultPrefixLen;
  text.resize(std::min(text.size(), limit));
  return std::all_of(text.begin(), text.end(), [](char c) {
    return isLetterOrDigitChar(c) || c == '-' || c == '_';
  });
}

bool setFilePrefix(ModRec &module, const char *text)
{
  if (runPrefixLen == 0)
    runPrefixLen = module.options.prefixLen;
  if (module.options.prefixLen == 0)
    module.options.prefixLen = runPrefixLen;
  int limit = module.options.prefixLen;

  std::string prefix = text;
  size_t length = prefix.size();
  if (prefix.ends_with(treeSuffix))
    length -= strlen(treeSuffix);
  if (length > static_cast<size_t>(limit) && verboseEx >= 2)
    fprintf(stderr,
            "\nWARNING : File prefix '%s' longer than %d characters.\n"
            "          Truncating it to %d characters.\n"
            "          Check value of the PREFIXLEN option.\n",
            text, limit, limit);
  if (!validFilePrefix(module, prefix)) {
    fprintf(stderr, "\nERROR : Invalid file prefix: %s\n", text);
    setModulePrefixes(module, nullptr, nullptr);
    return false;
  }
  setFileName(prefix, prefix.c_str(), "", true);
  setModulePrefixes(module, prefix.c_str(), prefix.c_str());
  return true;
}

bool parseFilePrefix(const char *text, int &prefixes, const char *optionFile)
{
  if (text[findNonPrint(text, false)] != 0) {
    argumentIgnored(text, optionFile);
    return false;
  }
  ++prefixes;
  ModRec *module = prefixes == 1 ? bOfModRList : appendModRec(true);
  return setFilePrefix(*module, text);
}

// One line of an option file; false if it is bad.
static bool parseLinePartially(const std::string &line, int &prefixes,
                               const char *optionFile)
{
  if (line.empty())
    return true;
  if (line[0] == '-' && !line.starts_with("--")) {
    const char *option = line.c_str() + 1;
    if (parseSelectedCmdLineOpts(option, prefixes))
      return true;
    argumentIgnored(option, optionFile);
    return false;
  }
  if (isLetterOrDigitChar(line[0]) || line[0] == '_')
    return parseFilePrefix(line.c_str(), prefixes, optionFile);
  return true;
}

bool parseOptionFilePartially(const char *name, int &prefixes)
{
  OpenedFile file(openOptionFile(name));
  bool good = true;
  // A read error ends the file here; the option pass reports it.
  for (std::string line; readOptionFileLine(file.get(), line);)
    good &= parseLinePartially(line, prefixes, name);
  return good;
}

void parseCmdLineParams(int count, char **vector)
{
  cMP->options.prefixLen = defaultPrefixLen;
  bool good = true;
  int prefixes = 0;
  for (int i = 1; i < count; ++i) {
    const char *argument = vector[i];
    if (*argument == '+')
      good &= parseOptionFilePartially(argument + 1, prefixes);
    else if (*argument == '-')
      good &= parseCommandLineOption(count, vector, i, prefixes);
    else
      good &= parseFilePrefix(argument, prefixes, nullptr);
  }
  if (!good || !bOfModRList->filePrefix)
    usage();
}

void resetParams()
{
  runPrefixLen = 0;
}
