// The COMBINE option, and the groups of modules that it forms.

#include "options/combine.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "options/params.h"
#include "store/module.h"
#include <algorithm>
#include <cstring>

static bool isStrictList(const std::vector<std::string> &names)
{
  std::vector<std::string> sorted = names;
  std::sort(sorted.begin(), sorted.end());
  bool different =
      std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end();
  return names.size() >= 2 && different &&
         std::all_of(names.begin(), names.end(), [](std::string name) {
           ModRec nobody;
           return validFilePrefix(nobody, name);
         });
}

bool parseCombineOption(const char *text, std::vector<std::string> &names,
                        bool strict)
{
  names.clear();
  char separator = ':';
  for (bool more = true; more; separator = ',') {
    const char *end = strchr(text, separator);
    more = end;
    std::string name = end ? std::string(text, end) : std::string(text);
    if (name.empty())
      return false;
    text += name.size() + 1;
    names.push_back(name);
  }
  return !strict || isStrictList(names);
}

bool combineOptionOK(std::string &field, const char *text)
{
  std::vector<std::string> names;
  if (*text && !parseCombineOption(text, names, false))
    return false;
  field = text;
  return true;
}

// Names are compared in the length to which prefixes are cut.
static bool namesModule(const std::string &name, const ModRec *module,
                        size_t prefixLen)
{
  return module && module->generationPrefix &&
         strncmp(name.c_str(), module->generationPrefix, prefixLen) == 0;
}

void checkCombinedModules(ModRec &module)
{
  module.combined.clear();
  if (module.options.combine.empty())
    return;
  std::vector<std::string> names;
  parseCombineOption(module.options.combine.c_str(), names, false);
  size_t prefixLen = module.options.prefixLen;
  for (const std::string &name : names) {
    if (namesModule(name, &module, prefixLen)) {
      module.combined.push_back(&module);
      continue;
    }
    PicRec *import = module.firstImport;
    while (import && !namesModule(name, import->module, prefixLen))
      import = import->next;
    if (import)
      module.combined.push_back(import->module);
  }
}
