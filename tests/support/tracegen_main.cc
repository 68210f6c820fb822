// A generator without an encoding: the call-backs of its table write their
// own names, the type and its path as comments, so that the order of calls,
// blocks, variables and paths of the engine can be read.
//
//     tracegen [own options] [options of quorven] PREFIX ...
//
//     --kind=N           `genKind`, 2 unless given
//     --ignore=N         `ignoreMode`
//     --gindex=N         `gIndex`, 4 unless given
//     --bit=N            `entryOptionBit`, 2 unless given
//     --teds=N,M         `tedBefore` and `tedAfter`
//     --reverse          `reverseOrder`
//     --paths=default    path call-backs null; =off: not enabled
//     --marker=traverse, --marker=construct
//     --no-control       no `setChoiceControlMember`
//     --no-elems[=NAME]  elements can not be generated, of any list or of that
//                        type or component
//     --no-ignore        no ignore function can be generated
//     --null=NAME,...    call-backs that are null; =all: every one
//     --args=pre,home,post  emitters for the calls of normal functions
//     --errors           own names of the two errors
//     --runs=N           N generators on each module, one behind the other
//     --keep-stamps      but all with the stamps of the first
//     --name=TEXT        of the files, behind the prefix; the kind unless given
//
// Each module has its functions in PREFIX NAME.c and its prototypes in PREFIX
// NAME.h, in the working directory.

#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cfunction.h"
#include "cbet/cgenerate.h"
#include "cbet/chome.h"
#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "driver/extmeta.h"
#include "driver/start.h"
#include "driver/usagetext.h"
#include "model/typequery.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

enum TraceFile : int { fiTrace = 1, fiTraceE = 2 };

// What the own options say.
static struct TraceRun {
  TypeFuncInfo info;
  CFunctionInfo args;
  std::string name;
  int runs = 1;
  bool keepStamps = false;
  bool noElems = false;
  std::string noElemsOf;  // empty: of any list
  bool noIgnore = false;
} traceRun;

// --- call-backs -------------------------------------------------------------

static std::string nameOf(const AsnType &type)
{
  std::string text;
  std::string number = "#" + std::to_string(getTypeCompNbr(type));
  if (isTypeExtensionmarker(type))
    return "marker" + number;
  if (getTypeMainType(type) == TYP_EXTADDGRP)
    return "group" + number;
  if (isElemType(type))
    return "element";
  if (isDefinedType(type))
    return getTypeRef(text, nullptr, type, nullptr);
  return getTypeCompId(text, nullptr, type, number.c_str());
}

static void tellType(int file, const char *name, const AsnType &type)
{
  std::string path;
  cGetPath(path, type);
  std::string line = formatText("/* %s %s \"", name, nameOf(type).c_str());
  putToF(file, (line + path + "\" */\n").c_str());
}

// A text as an argument of a template.
template <size_t size>
struct Name {
  char text[size] = {};
  consteval Name(const char (&from)[size]) { std::copy_n(from, size, text); }
};

template <Name name>
static void tell(AsnType &type, TypeFuncInfo &info)
{
  tellType(info.implFile, name.text, type);
}

template <Name name>
static void tellLoop(int file, AsnType &elem)
{
  tellType(file, name.text, elem);
  wToF(file, "while (more ())");
}

template <Name name>
static void tellArg(int file, AsnType &type)
{
  wToF(file, formatText("%s_%s, ", name.text, nameOf(type).c_str()).c_str());
}

static void defStruct(AsnType &type, TypeFuncInfo &info)
{
  tellType(info.implFile, "defStruct", type);
  cFunctionRef(info.implFile, info.normalFuncPrefix, info.gIndex,
               info.normalFuncArgs, type);
}

static bool canGenerateElems(const AsnType &type)
{
  if (!traceRun.noElems || !isListType(type))
    return true;
  std::string name = nameOf(type);
  return !traceRun.noElemsOf.empty() &&
         name.substr(0, name.find('#')) != traceRun.noElemsOf;
}

static bool canGenerateComponents(AsnType &type, TypeFuncInfo &info)
{
  tellType(info.implFile, "canGenerateComponents", type);
  return canGenerateElems(type);
}

static bool canGenerateIgnoreComponents(AsnType &type, TypeFuncInfo &info)
{
  tellType(info.implFile, "canGenerateIgnoreComponents", type);
  return canGenerateElems(type);
}

static bool canGenerateIgnoreFunc(AsnType &type, TypeFuncInfo &info)
{
  tellType(info.implFile, "canGenerateIgnoreFunc", type);
  return !traceRun.noIgnore;
}

// --- the table --------------------------------------------------------------

template <class Group, class CallBack>
struct Row {
  const char *name;
  CallBack *Group::*member;
  CallBack *callBack;
};

template <class Group>
using TypeRow = Row<Group, TypeFuncCallBack>;

template <Name name, class Group>
static constexpr TypeRow<Group> row(TypeFuncCallBack *Group::*member)
{
  return {name.text, member, tell<name>};
}

static const TypeRow<TypeFuncInfo> tableRows[] = {
    row<"additionalNormalFunc">(&TypeFuncInfo::additionalNormalFunc),
    row<"beforeNormalFunc">(&TypeFuncInfo::beforeNormalFunc),
    row<"struPrefix">(&TypeFuncInfo::struPrefix),
    row<"isComp">(&TypeFuncInfo::isComp),
    row<"compPrefix">(&TypeFuncInfo::compPrefix),
    row<"skip">(&TypeFuncInfo::skip),
    row<"frame">(&TypeFuncInfo::frame),
    row<"leaf">(&TypeFuncInfo::leaf),
    {"defStruct", &TypeFuncInfo::defStruct, defStruct},
    row<"builtinCompPrefix">(&TypeFuncInfo::builtinCompPrefix),
    row<"builtinCompPostfix">(&TypeFuncInfo::builtinCompPostfix),
    row<"compPostfix">(&TypeFuncInfo::compPostfix),
    row<"struPostfix">(&TypeFuncInfo::struPostfix),
    row<"afterNormalFunc">(&TypeFuncInfo::afterNormalFunc),
    row<"beforeEntryFunc">(&TypeFuncInfo::beforeEntryFunc),
    row<"entryPrefix">(&TypeFuncInfo::entryPrefix),
    row<"entryPostfix">(&TypeFuncInfo::entryPostfix),
    row<"afterEntryFunc">(&TypeFuncInfo::afterEntryFunc),
    row<"additionGroupPrefix">(&TypeFuncInfo::additionGroupPrefix),
    row<"additionGroupPostfix">(&TypeFuncInfo::additionGroupPostfix),
    row<"pushPath">(&TypeFuncInfo::pushPath),
    row<"pushElem">(&TypeFuncInfo::pushElem),
    row<"popPath">(&TypeFuncInfo::popPath),
    row<"entryPushPath">(&TypeFuncInfo::entryPushPath),
    row<"entryPopPath">(&TypeFuncInfo::entryPopPath),
};

static const TypeRow<SkipFuncs> skipRows[] = {
    row<"skipFunc">(&SkipFuncs::skipFunc),
    row<"skipMoreElems">(&SkipFuncs::skipMoreElems),
    row<"skipIsExtraElems">(&SkipFuncs::skipIsExtraElems),
};

static const TypeRow<IgnoreFuncs> ignoreRows[] = {
    row<"skipIgnorePrefix">(&IgnoreFuncs::skipIgnorePrefix),
    row<"skipStruPrefix">(&IgnoreFuncs::skipStruPrefix),
    row<"skipIsComp">(&IgnoreFuncs::skipIsComp),
    row<"skipCompPrefix">(&IgnoreFuncs::skipCompPrefix),
    row<"skipLeaf">(&IgnoreFuncs::skipLeaf),
    row<"skipDefStruct">(&IgnoreFuncs::skipDefStruct),
    row<"skipCompPostfix">(&IgnoreFuncs::skipCompPostfix),
    row<"skipIsExtraElems1">(&IgnoreFuncs::skipIsExtraElems1),
    row<"skipStruPostfix">(&IgnoreFuncs::skipStruPostfix),
    row<"skipIgnorePostfix">(&IgnoreFuncs::skipIgnorePostfix),
    row<"skipIgnoreAllExtAddComps">(&IgnoreFuncs::skipIgnoreAllExtAddComps),
};

static const Row<TypeFuncInfo, TypeFuncPredicate> predicateRows[] = {
    {"canGenerateComponents", &TypeFuncInfo::canGenerateComponents,
     canGenerateComponents},
};

static const Row<IgnoreFuncs, TypeFuncPredicate> ignorePredicateRows[] = {
    {"canGenerateIgnoreFunc", &IgnoreFuncs::canGenerateIgnoreFunc,
     canGenerateIgnoreFunc},
    {"canGenerateIgnoreComponents", &IgnoreFuncs::canGenerateIgnoreComponents,
     canGenerateIgnoreComponents},
};

static const Row<TypeFuncInfo, ElemLoopCallBack> loopRows[] = {
    {"constructElemLoop", &TypeFuncInfo::constructElemLoop,
     tellLoop<"constructElemLoop">},
};

static const Row<SkipFuncs, ElemLoopCallBack> skipLoopRows[] = {
    {"skipElemLoop", &SkipFuncs::skipElemLoop, tellLoop<"skipElemLoop">},
};

static const Row<IgnoreFuncs, ElemLoopCallBack> ignoreLoopRows[] = {
    {"skipConstructElemLoop", &IgnoreFuncs::skipConstructElemLoop,
     tellLoop<"skipConstructElemLoop">},
};

// Applies `change` to each row of each group with the group that it is in.
template <class F>
static void forEachRow(TypeFuncInfo &info, F change)
{
  auto all = [&](const auto &rows, auto &group) {
    for (const auto &one : rows)
      change(one, group);
  };
  all(tableRows, info);
  all(predicateRows, info);
  all(loopRows, info);
  all(skipRows, info.skipFuncs);
  all(skipLoopRows, info.skipFuncs);
  all(ignoreRows, info.ignoreFuncs);
  all(ignorePredicateRows, info.ignoreFuncs);
  all(ignoreLoopRows, info.ignoreFuncs);
}

static void fillTable(TypeFuncInfo &info)
{
  cInitTypeFuncInfo(info);
  forEachRow(info, [](const auto &one, auto &group) {
    group.*one.member = one.callBack;
  });
  info.implFile = fiTrace;
  info.protoFile = fiTraceE;
  info.genKind = GEN_TRAVERSE_FREE;
  info.tedBefore = info.tedAfter = -1;
  info.entryOptionBit = 2;
  info.gIndex = 4;
  info.pushPathEnabled = true;
  info.normalFuncPrefix = "norm";
  info.entryFuncPrefix = "entry";
}

// --- options ----------------------------------------------------------------

[[noreturn]] static void badOption(const std::string &option)
{
  fprintf(stderr, "tracegen: unknown option %s\n", option.c_str());
  exit(1);
}

static std::vector<std::string> wordsOf(const std::string &list)
{
  std::vector<std::string> words(1);
  for (char c : list) {
    if (c == ',')
      words.emplace_back();
    else
      words.back() += c;
  }
  return words;
}

static void clearCallBack(const std::string &name)
{
  bool found = false;
  forEachRow(traceRun.info, [&](const auto &one, auto &group) {
    if (name != "all" && name != one.name)
      return;
    group.*one.member = nullptr;
    found = true;
  });
  if (!found)
    badOption("--null=" + name);
}

static void setArgs(const std::string &name)
{
  traceRun.info.normalFuncArgs = &traceRun.args;
  if (name == "pre")
    traceRun.args.refPreArgs = tellArg<"pre">;
  else if (name == "home")
    traceRun.args.refHomeArg = tellArg<"home">;
  else if (name == "post")
    traceRun.args.refPostArgs = tellArg<"post">;
  else
    badOption("--args=" + name);
}

static void setPaths(const std::string &value)
{
  if (value == "off") {
    traceRun.info.pushPathEnabled = false;
  } else if (value == "default") {
    for (const char *name :
         {"pushPath", "pushElem", "popPath", "entryPushPath", "entryPopPath"})
      clearCallBack(name);
  } else {
    badOption("--paths=" + value);
  }
}

static void setMarker(const std::string &value)
{
  if (value == "traverse")
    traceRun.info.markerOnTraverse = true;
  else if (value == "construct")
    traceRun.info.markerOnConstruct = true;
  else
    badOption("--marker=" + value);
}

static void setTeds(const std::string &value)
{
  std::vector<std::string> words = wordsOf(value);
  traceRun.info.tedBefore = atoi(words.front().c_str());
  traceRun.info.tedAfter = atoi(words.back().c_str());
}

static bool applyFlag(const std::string &name)
{
  if (name == "--reverse")
    traceRun.info.reverseOrder = true;
  else if (name == "--no-control")
    traceRun.info.setChoiceControlMember = false;
  else if (name == "--no-elems")
    traceRun.noElems = true;
  else if (name == "--no-ignore")
    traceRun.noIgnore = true;
  else if (name == "--keep-stamps")
    traceRun.keepStamps = true;
  else
    return false;
  return true;
}

static void applyErrors()
{
  traceRun.info.duplicateCompError = "TWICE";
  traceRun.info.tooManyElemsError = "TOO_MANY";
}

struct NumberOption {
  const char *name;
  void (*set)(int number);
};

static const NumberOption numberOptions[] = {
    {"--kind", [](int number) { traceRun.info.genKind = number; }},
    {"--ignore", [](int number) { traceRun.info.ignoreMode = number; }},
    {"--gindex", [](int number) { traceRun.info.gIndex = number; }},
    {"--bit",
     [](int number) {
       traceRun.info.entryOptionBit = static_cast<uint32_t>(number);
     }},
    {"--runs", [](int number) { traceRun.runs = number; }},
};

static void setNoElems(const std::string &value)
{
  traceRun.noElems = true;
  traceRun.noElemsOf = value;
}

static void setName(const std::string &value)
{
  traceRun.name = value;
}

struct TextOption {
  const char *name;
  void (*set)(const std::string &value);
};

static const TextOption textOptions[] = {
    {"--name", setName},     {"--teds", setTeds},        {"--paths", setPaths},
    {"--marker", setMarker}, {"--no-elems", setNoElems},
};

static bool applyValue(const std::string &name, const std::string &value)
{
  for (const NumberOption &option : numberOptions) {
    if (name == option.name) {
      option.set(atoi(value.c_str()));
      return true;
    }
  }
  for (const TextOption &option : textOptions) {
    if (name == option.name) {
      option.set(value);
      return true;
    }
  }
  return false;
}

static void applyOption(const std::string &option)
{
  size_t equals = option.find('=');
  std::string name = option.substr(0, equals);
  if (equals == std::string::npos) {
    if (name == "--errors")
      applyErrors();
    else if (!applyFlag(name))
      badOption(option);
    return;
  }
  std::string value = option.substr(equals + 1);
  if (name == "--null") {
    for (const std::string &word : wordsOf(value))
      clearCallBack(word);
  } else if (name == "--args") {
    for (const std::string &word : wordsOf(value))
      setArgs(word);
  } else if (!applyValue(name, value)) {
    badOption(option);
  }
}

// --- a run ------------------------------------------------------------------

static void traceModule(AsnModule &module)
{
  std::string name;
  getModulePrefix(name, nullptr, module,
                  (traceRun.name.empty() ? std::to_string(traceRun.info.genKind)
                                         : traceRun.name)
                      .c_str());
  openNamedF(fiTrace, nullptr, (name + ".c").c_str());
  openNamedF(fiTraceE, nullptr, (name + ".h").c_str());
  resetStamps();
  for (int run = 0; run < traceRun.runs; ++run) {
    if (run == 0 || !traceRun.keepStamps)
      initStamps();
    int passed = cGenerateTypeFunctions(module, traceRun.info);
    printfToF(fiTrace, "\n/* passed %d */\n", passed);
  }
  closeF(fiTrace);
  closeF(fiTraceE);
}

int main(int count, char **vector)
{
  fillTable(traceRun.info);
  std::vector<char *> rest;
  for (int i = 0; i < count; ++i) {
    if (i > 0 && strncmp(vector[i], "--", 2) == 0)
      applyOption(vector[i]);
    else
      rest.push_back(vector[i]);
  }
  rest.push_back(nullptr);
  initExtMeta();
  cInitCBET(static_cast<int>(rest.size()) - 1, rest.data(), "QUORVEN", 101, 3,
            quorvenUsage);
  cSetErrorReportingFunctionFormat("report (%s);\n");
  forEachModule(traceModule);
  return 0;
}
