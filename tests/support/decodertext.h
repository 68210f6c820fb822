#pragma once
#include "base/strings.h"
#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "driver/meta.h"
#include "per/decoder.h"
#include "per/variant.h"
#include "store/stamp.h"
#include "support/loadedasn.h"
#include "support/tempdir.h"
#include <string>

// The decoders of annotated ASN.1, without the rest of a run. The files of
// decoders, their prototypes and encoders are open.
struct DecoderText : LoadedAsn {
  TempDir output;
  int variant = perGetEncodingVariant();

  DecoderText() { perSetEncodingVariant(VARIANT_ALIGNED); }
  ~DecoderText() override
  {
    forEachOpenFile(closeF);
    clearOutFiles();
    fiDec = fiDecE = fiEnc = 0;
    perSetEncodingVariant(variant);
  }

  void load(const std::string &body)
  {
    LoadedAsn::load(body);
    openFiles();
  }
  void loadCompiled()
  {
    LoadedAsn::loadCompiled();
    openFiles();
  }

  // Generates the decoders of the loaded module.
  void generate() { generatePERDecodingFunctions(module); }

  // What a file got since the last call; its indentation stays.
  std::string written(int file) const
  {
    int indent = fArr[file].indent;
    closeF(file);
    std::string text = readFile(nameOf(file));
    open(file);
    fArr[file].indent = static_cast<int16_t>(indent);
    return text;
  }
  std::string decoders() const { return written(fiDec); }
  std::string encoders() const { return written(fiEnc); }

private:
  // The start of a run closes what is open; the tool then names the function
  // for errors.
  void openFiles()
  {
    cSetErrorReportingFunctionFormat("asnPERError (ASNG_F(asnperg) %s);\n");
    resetStamps();
    clearOutFiles();
    fiDec = open(1);
    fiDecE = open(2);
    fiEnc = open(3);
  }
  std::string nameOf(int file) const
  {
    return output.path + "out" + std::to_string(file);
  }
  int open(int file) const
  {
    openNamedF(file, "", nameOf(file).c_str());
    return file;
  }
};
