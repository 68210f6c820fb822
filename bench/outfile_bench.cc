// The column logic: fragments as the generators write them.

#include "cbet/outfile.h"
#include <benchmark/benchmark.h>

static void writeBench(benchmark::State &state)
{
  openNamedF(1, "/dev/", "null");
  fArr[1].indent = 2;
  for (auto _ : state) {
    wToF(1, "pe_sint32_cwn_al_le255 (");
    wToF(1, "ASNG_F(asnperg)");
    wToF(1, " home->a_fld");
    wToF(1, ", 0, 7, 3);\n");
  }
  state.SetItemsProcessed(state.iterations() * 4);
  closeF(1);
  clearOutFiles();
}
BENCHMARK(writeBench);
