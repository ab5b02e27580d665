// Costs of the work done on every keystroke and button press: reading and
// writing field numbers, and a user road through the menu and a selector.

#include <benchmark/benchmark.h>

#include <sstream>

#include "cli/script_runner.hpp"
#include "runtime/value_rules.hpp"
#include "shell/program.hpp"

namespace {

void BM_ReadAndWriteField(benchmark::State& state) {
  double x = 0.0;
  for (auto _ : state) {
    x = qorvat::val(" 1234.56789e-1 kg");
    benchmark::DoNotOptimize(qorvat::rounded_text(x * 3.1416, 2));
  }
}
BENCHMARK(BM_ReadAndWriteField);

void BM_MenuSelectorRoad(benchmark::State& state) {
  const qorvat::DialogRegistry registry = qorvat::make_program_registry();
  const std::string road =
      "click Form4.Command2\nclick Form28.Option8\nclick Form28.Command1\nclose Form10\nclose Form28\n";
  for (auto _ : state) {
    std::ostringstream out;
    qorvat::cli::ScriptRunner runner(registry, out);
    std::istringstream script(road);
    benchmark::DoNotOptimize(runner.run(script));
  }
}
BENCHMARK(BM_MenuSelectorRoad);

}  // namespace
