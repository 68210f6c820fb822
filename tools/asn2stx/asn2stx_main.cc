// asn2stx: compiles ASN.1 modules to syntax trees. Status 0: all trees are
// written; 1: errors were told and none is; 2: wrong usage.

#include "asn2stx/compile.h"
#include "asn2stx/parser.h"
#include <cstdio>
#include <cstring>

static int fail(const AsnErrors &errors)
{
  asnPrintErrors(errors, stderr);
  return 1;
}

static int compile(const Asn2StxOptions &options)
{
  Ast ast;
  AsnErrors errors;
  for (const std::string &file : options.files)
    parseAsnFile(ast, errors, file);
  if (!errors.errors.empty())
    return fail(errors);
  std::vector<CompiledTree> trees;
  if (!compileModules(ast, options, errors, trees) ||
      !writeTrees(trees, options.directory, errors))
    return fail(errors);
  return 0;
}

int main(int count, char **vector)
{
  std::vector<std::string> arguments(vector + 1, vector + count);
  for (const std::string &argument : arguments) {
    if (argument == "--help") {
      fputs(asn2stxUsage, stdout);
      return 0;
    }
  }
  Asn2StxOptions options;
  std::string message;
  if (!parseAsn2StxOptions(arguments, options, message)) {
    fprintf(stderr, "asn2stx: %s\n%s", message.c_str(), asn2stxUsage);
    return 2;
  }
  return compile(options);
}
