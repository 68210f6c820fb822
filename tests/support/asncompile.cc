#include "support/asncompile.h"
#include "asn2stx/parser.h"
#include "base/strings.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <tuple>

AsnCompiled compileAsn(const std::string &text, const Asn2StxOptions &options)
{
  AsnCompiled compiled;
  Ast ast;
  AsnErrors errors;
  parseAsnText(ast, errors, "t.asn", text);
  compiled.good = errors.errors.empty() &&
                  compileModules(ast, options, errors, compiled.trees);
  std::stable_sort(errors.errors.begin(), errors.errors.end(),
                   [](const AsnError &a, const AsnError &b) {
                     return std::tie(a.pos.line, a.pos.column) <
                            std::tie(b.pos.line, b.pos.column);
                   });
  for (const AsnError &error : errors.errors)
    compiled.errors.push_back(formatText("%d:%d: %s", error.pos.line,
                                         error.pos.column, error.text.c_str()));
  return compiled;
}

AsnCompiled compileBody(const std::string &body, const Asn2StxOptions &options,
                        const std::string &tags)
{
  return compileAsn("M DEFINITIONS " + tags + " ::= BEGIN\n" + body + "\nEND\n",
                    options);
}

std::string errorOf(const std::string &body)
{
  AsnCompiled compiled = compileBody(body);
  EXPECT_FALSE(compiled.good);
  EXPECT_TRUE(compiled.trees.empty());
  if (compiled.errors.size() == 1)
    return compiled.errors[0];
  return std::to_string(compiled.errors.size()) + " errors";
}

StxTree &treeOf(AsnCompiled &compiled, size_t number)
{
  static StxTree none;
  for (const std::string &error : compiled.errors)
    ADD_FAILURE() << error;
  if (number < compiled.trees.size())
    return compiled.trees[number].tree;
  ADD_FAILURE() << "no tree " << number;
  return none = StxTree{};
}

std::string striAt(const StxTree &tree, int32_t index)
{
  size_t at = static_cast<size_t>(index) - 1;
  return index > 0 && at < tree.stris.texts.size() ? tree.stris.texts[at] : "";
}

static const TNode &typeAt(const StxTree &tree, int32_t index)
{
  return tree.tNodes.at(static_cast<size_t>(index) - 1);
}

static const VNode &valueAt(const StxTree &tree, int32_t index)
{
  return tree.vNodes.at(static_cast<size_t>(index) - 1);
}

static int32_t typeInChain(const StxTree &tree, int32_t index,
                           const std::string &name)
{
  while (index != 0 &&
         striAt(tree, std::abs(typeAt(tree, index).identifier)) != name)
    index = typeAt(tree, index).next;
  return index;
}

static int32_t valueInChain(const StxTree &tree, int32_t index,
                            const std::string &name)
{
  while (index != 0 && striAt(tree, valueAt(tree, index).identifier) != name)
    index = valueAt(tree, index).next;
  return index;
}

int32_t typeNamed(const StxTree &tree, const std::string &name)
{
  return typeInChain(tree, tree.header.firstType, name);
}

int32_t valueNamed(const StxTree &tree, const std::string &name)
{
  return valueInChain(tree, tree.header.firstValue, name);
}

int32_t compNamed(const StxTree &tree, int32_t type, const std::string &name)
{
  return typeInChain(tree, typeAt(tree, type).ref, name);
}

int32_t itemNamed(const StxTree &tree, int32_t type, const std::string &name)
{
  return valueInChain(tree, typeAt(tree, type).namedNumbers, name);
}

std::vector<int32_t> compsOf(const StxTree &tree, int32_t type)
{
  std::vector<int32_t> comps;
  for (int32_t i = typeAt(tree, type).ref; i != 0; i = typeAt(tree, i).next)
    comps.push_back(i);
  return comps;
}

std::vector<int32_t> childrenOf(const StxTree &tree, int32_t value)
{
  std::vector<int32_t> children;
  for (int32_t i = valueAt(tree, value).firstChild; i != 0;
       i = valueAt(tree, i).next)
    children.push_back(i);
  return children;
}

static const SubRec &subAt(const StxTree &tree, int32_t index)
{
  return tree.subRecs.at(static_cast<size_t>(index) - 1);
}

std::vector<int32_t> operandsOf(const StxTree &tree, int32_t sub)
{
  std::vector<int32_t> operands;
  for (int32_t i = subAt(tree, sub).operand1; i != 0;
       i = subAt(tree, i).nextSub)
    operands.push_back(i);
  return operands;
}

int64_t asInt64(sint64 number)
{
  return static_cast<int64_t>(
      static_cast<uint64_t>(static_cast<uint32_t>(number.high)) << 32 |
      number.low);
}

static std::string endText(int64_t number)
{
  if (number == std::numeric_limits<int64_t>::min())
    return "min";
  return number == std::numeric_limits<int64_t>::max() ? "max"
                                                       : std::to_string(number);
}

std::string boundsOf(const StxTree &tree, int32_t type)
{
  const TNode &node = typeAt(tree, type);
  return endText(asInt64(node.lowerEndpoint)) + ".." +
         endText(asInt64(node.upperEndpoint));
}

int64_t integerAt(const StxTree &tree, int32_t value)
{
  return asInt64(payloadInt64(valueAt(tree, value)));
}

// A value in a constraint: a number, a string, or the name of what a
// reference leads to.
static std::string valueText(const StxTree &tree, int32_t index)
{
  const VNode &node = valueAt(tree, index);
  if (node.mainType == TYP_INTEGER)
    return std::to_string(integerAt(tree, index));
  if (node.mainType == TYP_SYNONYM)
    return striAt(tree, valueAt(tree, node.firstChild).identifier);
  if (node.mainType == TYP_BOOLEAN)
    return payloadBool(node) ? "TRUE" : "FALSE";
  return "\"" + striAt(tree, payloadStri(node)) + "\"";
}

static std::string rangeText(const StxTree &tree, const SubRec &sub)
{
  std::string lower = sub.operand1 ? valueText(tree, sub.operand1) : "min";
  std::string upper = sub.operand2 ? valueText(tree, sub.operand2) : "max";
  return (sub.subFlags & 0x20 ? "[" : "(") + lower + "," + upper +
         (sub.subFlags & 0x40 ? "]" : ")");
}

static std::string operandsText(const StxTree &tree, int32_t index)
{
  std::string text;
  for (int32_t operand : operandsOf(tree, index))
    text += (text.empty() ? "" : " ") + constraintText(tree, operand);
  return "(" + text + ")";
}

std::string constraintText(const StxTree &tree, int32_t index)
{
  const SubRec &sub = subAt(tree, index);
  switch (sub.kind) {
  case SUB_UNION:
    return "union" + operandsText(tree, index);
  case SUB_INTERSECTION:
    return "intersection" + operandsText(tree, index);
  case SUB_CATENATED:
    return "serial" + operandsText(tree, index);
  case SUB_EXCEPT:
    return "except" + operandsText(tree, index);
  case SUB_ALL_EXCEPT:
    return "allExcept(" + constraintText(tree, sub.operand1) + ")";
  case SUB_RANGE:
    return rangeText(tree, sub);
  case SUB_ALPHABET:
    return "from(" + constraintText(tree, sub.operand1) + ")";
  case SUB_SIZE:
    return "size(" + constraintText(tree, sub.operand1) + ")";
  case SUB_SINGLE_VALUE:
    return valueText(tree, sub.operand1);
  case SUB_INCLUDES:
    return "includes " +
           striAt(
               tree,
               typeAt(tree, valueAt(tree, sub.operand1).firstChild).identifier);
  case SUB_WITH_COMPONENT:
    return "component(" + constraintText(tree, sub.operand1) + ")";
  case SUB_WITH_COMPONENTS:
    return "components" + operandsText(tree, index);
  default:
    return "kind" + std::to_string(sub.kind);
  }
}

std::string constraintOf(const StxTree &tree, int32_t type)
{
  int32_t sub = typeAt(tree, type).firstConstraint;
  return sub == 0 ? "" : constraintText(tree, sub);
}
