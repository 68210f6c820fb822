// Errors in ASN.1 text: collected by every step, printed once.

#include "asn2stx/diagnose.h"
#include "base/strings.h"
#include <algorithm>
#include <tuple>

static bool isSamePlace(const AsnPos &a, const AsnPos &b)
{
  return a.file == b.file && a.line == b.line && a.column == b.column;
}

void asnError(AsnErrors &errors, AsnPos pos, const char *format, ...)
{
  if (errors.errors.size() >= maxAsnErrors)
    return;
  // One fault often trips several steps at the same token.
  if (pos.line > 0 && std::any_of(errors.errors.begin(), errors.errors.end(),
                                  [&](const AsnError &error) {
                                    return isSamePlace(error.pos, pos);
                                  }))
    return;
  va_list arguments;
  va_start(arguments, format);
  std::string text = formatTextV(format, arguments);
  va_end(arguments);
  errors.errors.push_back({pos, std::move(text)});
}

std::string asnQuoted(std::string_view name)
{
  constexpr size_t maxShown = 64;
  std::string text = "\"";
  for (char c : name.substr(0, maxShown))
    text += isPrintableChar(c) ? c : '?';
  return text += name.size() > maxShown ? "...\"" : "\"";
}

void asnPrintErrors(const AsnErrors &errors, FILE *out)
{
  std::vector<AsnError> sorted = errors.errors;
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const AsnError &a, const AsnError &b) {
                     return std::tie(a.pos.file, a.pos.line, a.pos.column) <
                            std::tie(b.pos.file, b.pos.line, b.pos.column);
                   });
  for (const AsnError &error : sorted) {
    size_t file = static_cast<size_t>(error.pos.file);
    const char *name =
        file < errors.files.size() ? errors.files[file].c_str() : "";
    if (error.pos.line > 0)
      fprintf(out, "%s:%d:%d: error: %s\n", name, error.pos.line,
              error.pos.column, error.text.c_str());
    else
      fprintf(out, "%s: error: %s\n", name, error.text.c_str());
  }
}
