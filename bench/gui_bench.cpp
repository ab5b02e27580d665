// Filling the profile picker from a database of a thousand rows, with the
// Qt window drawn offscreen: the wait between "Stahl" and the list showing.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "gui/front_end.hpp"
#include "runtime/prompts.hpp"
#include "sections/profile_database.hpp"
#include "shell/program.hpp"

namespace {

const std::string kLarge = std::string(QORVAT_FIXTURES) + "/large.mdb";

class SilentPrompts : public qorvat::Prompts {
 public:
  void message_box(std::string_view, std::string_view) override {}
  std::optional<std::string> input_box(std::string_view, std::string_view, std::string_view) override { return {}; }
  std::optional<std::string> save_dialog(std::string_view, std::string_view) override { return {}; }
  void fault(const qorvat::FaultReport&) override {}
};

void BM_ReadThousandProfileRows(benchmark::State& state) {
  for (auto _ : state) {
    const auto read = qorvat::sections::read_mdb_table(kLarge, "ipe");
    if (!read.ok() || read.table().rows.size() != 1000) state.SkipWithError("large.mdb not readable");
    benchmark::DoNotOptimize(read);
  }
}
BENCHMARK(BM_ReadThousandProfileRows)->Unit(benchmark::kMillisecond);

void BM_StahlFillsThePickerWithThousandRows(benchmark::State& state) {
  const qorvat::DialogRegistry registry = qorvat::make_program_registry();
  SilentPrompts prompts;
  qorvat::Session session(registry, prompts);
  session.profiles_path = kLarge;
  qorvat::gui::GuiFrontEnd front_end(session, [] {});
  front_end.start();
  session.user_click(session.form("Form4")["Command7"]);
  for (auto _ : state) {
    session.user_click(session.form("Form15")["Command5"]);
    QApplication::processEvents();
    if (session.form("Form13")["MSFlexGrid1"].rows() != 1000) state.SkipWithError("grid not filled");
    state.PauseTiming();
    session.user_close("Form13");
    QApplication::processEvents();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_StahlFillsThePickerWithThousandRows)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
