// Runs of the tool inside a test.

#include "support/loadedrun.h"
#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "driver/meta.h"
#include "driver/quorven.h"
#include "driver/start.h"
#include "driver/usagetext.h"
#include "model/infvalue.h"
#include "options/params.h"
#include "per/variant.h"
#include "store/treestore.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

StxTree emptyTree(const char *moduleName, const char *prefix)
{
  StxTree tree = stxNewTree(moduleName, prefix);
  stxSetTime(tree, 20030201, 40506);
  return tree;
}

StxTree smallTree(const char *moduleName, const char *prefix)
{
  StxTree tree = emptyTree(moduleName, prefix);
  stxDefineType(tree, "Flag", stxNewTNode(TYP_BOOLEAN));
  return tree;
}

static std::string contentOf(FILE *stream)
{
  std::string text;
  rewind(stream);
  for (int c = getc(stream); c != EOF; c = getc(stream))
    text += static_cast<char>(c);
  fclose(stream);
  return text;
}

ProcessResult runApart(const std::function<int()> &body)
{
  // Nothing that waits in a buffer may be written twice.
  fflush(nullptr);
  FILE *out = tmpfile();
  FILE *err = tmpfile();
  pid_t child = fork();
  if (child == 0) {
    dup2(fileno(out), STDOUT_FILENO);
    dup2(fileno(err), STDERR_FILENO);
    exit(body());
  }
  int status = 0;
  waitpid(child, &status, 0);
  ProcessResult result;
  result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  result.out = contentOf(out);
  result.err = contentOf(err);
  return result;
}

// No death test takes this for an ending of the tool: the tool never aborts.
[[noreturn]] static void giveUp(const char *what, const std::string &name)
{
  fprintf(stderr, "%s %s\n", what, name.c_str());
  abort();
}

// Drops modules and files, and sets what the start leaves alone.
static void forgetRun()
{
  for (OutFile &file : fArr)
    if (file.fp)
      fclose(file.fp);
  clearOutFiles();
  fiEnc = fiDec = fiEncE = fiDecE = fiDef = 0;
  resetStore();
  resetParams();
  stxDir.clear();
  perSetEncodingVariant(0);
}

LoadedRun::LoadedRun()
    : treeFileSuffix(g_adeTreeFileSuffix),
      errorFormat(g_errorReportingFunctionFormat)
{
  std::copy_n(infValueStri, std::size(infinite), infinite);
  forgetRun();
  backendName.clear();
  backendVersion = backendPatchLevel = backendVerbosity = 0;
  backendUsage = nullptr;
  verboseEx = 3;
  timeStamp = {};
  adeRecord = {};
}

LoadedRun::~LoadedRun()
{
  forgetRun();
  backendName = backend;
  backendVersion = version;
  backendPatchLevel = patchLevel;
  backendUsage = usageLines;
  backendVerbosity = verbosity;
  verboseEx = level;
  timeStamp = stamp;
  adeRecord = ade;
  g_adeTreeFileSuffix = treeFileSuffix;
  g_errorReportingFunctionFormat = errorFormat;
  std::copy_n(infinite, std::size(infinite), infValueStri);
}

std::string LoadedRun::file(const std::string &fileName) const
{
  return readFile(path(fileName));
}

bool LoadedRun::has(const std::string &fileName) const
{
  return fileExists(path(fileName));
}

void LoadedRun::add(const StxTree &tree, const char *prefix) const
{
  std::string target = path(prefix) + ".stx";
  if (!stxWrite(tree, target.c_str()))
    giveUp("can not write", target);
}

void LoadedRun::saveDirectories(StxTree &tree) const
{
  stxGlobalOption(tree, TED_FRONT_END, "-C=" + dir.path);
  stxGlobalOption(tree, TED_FRONT_END, "-H=" + dir.path);
}

// Calls `f` with an argument vector that may be written to.
template <class F>
static auto withArguments(const std::string &directory,
                          const std::vector<std::string> &arguments, F f)
{
  std::vector<std::string> texts = {"quorven", "-S=" + directory};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char *> vector;
  for (std::string &text : texts)
    vector.push_back(text.data());
  vector.push_back(nullptr);
  return f(static_cast<int>(texts.size()), vector.data());
}

void LoadedRun::load(const std::vector<std::string> &arguments) const
{
  withArguments(dir.path, arguments, [](int count, char **vector) {
    cInitCBET(count, vector, "QUORVEN", 101, 3, quorvenUsage);
  });
  timeStamp.date = 20240309;
  timeStamp.time = 70509;
}

ProcessResult LoadedRun::run(const std::vector<std::string> &arguments) const
{
  return runApart(
      [&] { return withArguments(dir.path, arguments, quorven_main); });
}

AsnModule LoadedRun::module(const char *prefix)
{
  AsnModule module;
  for (ModRec *rec = bOfModRList; rec; rec = rec->next) {
    if (rec->generationPrefix && std::string(prefix) == rec->generationPrefix) {
      initAsnModule(module, *rec);
      return module;
    }
  }
  giveUp("no module", prefix);
}

std::string headOf(const char *moduleName, const char *fileName)
{
  std::string text =
      "/****************************************************************\n"
      " * Processed by QUORVEN 1.01.3 on 09.03.2024 at 7:05.09\n"
      " * Syntax file processed by ZELK 2.13 on 01.02.2003 at 4:05.06\n"
      " * ASN.1 module = ";
  text += moduleName;
  text += "\n * FILE = ";
  text += fileName;
  return text + "\n ****************************************************"
                "************/\n";
}

std::string includeOf(const char *guard, const char *fileName)
{
  return std::string("\n#ifndef ") + guard + "\n#include \"" + fileName +
         "\"\n#endif\n";
}
