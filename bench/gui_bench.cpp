// The Qt window drawn offscreen: filling the profile picker from a database
// of a thousand rows (the wait between "Stahl" and the list showing), and a
// spectrum plot of 400,000 points painted, scrolled and followed by a cursor.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <cmath>

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

// A response spectrum's shape over 4 s of period, jagged from point to point
// as a computed one is, so every pixel column holds a spread of values.
std::vector<std::pair<double, double>> spectrum_points(std::size_t n) {
  std::vector<std::pair<double, double>> points(n);
  for (std::size_t i = 0; i < n; ++i) {
    const double t = 4.0 * static_cast<double>(i) / static_cast<double>(n);
    const double plateau = t < 0.1 ? 1 + 15 * t : t < 0.5 ? 2.5 : 2.5 * std::pow(0.5 / t, 2.0 / 3.0);
    points[i] = {t, plateau + 0.2 * std::sin(0.37 * static_cast<double>(i))};
  }
  return points;
}

constexpr std::size_t kSpectrumPoints = 400'000;
constexpr qorvat::PictureScale kSpectrumScale{0, 3, 4, -3};

// The seismic dialog's plot: a 900 x 300 pixel container, the plot picture
// inside it (filling it unless sized) and its cursor line.
class SpectrumPlot {
 public:
  SpectrumPlot() {
    qorvat::DialogType type;
    type.name = "Spectrum";
    type.caption = "Spectrum";
    type.add({qorvat::picture_box("picContainer").size(13500, 4500),
              qorvat::picture_box("picNemodar").in("picContainer"), qorvat::line("Line2").in("picNemodar")});
    type.on("picNemodar", qorvat::Event::MouseMove, [](qorvat::Form& me, int) {
      const double t = me["picNemodar"].pointer_x();
      me["Line2"].set_line(t, 0, t, 3);
    });
    registry_.add(std::move(type));
    session_.user_action([&] { session_.show("Spectrum"); });
    QApplication::processEvents();
  }

  qorvat::Session& session() { return session_; }
  qorvat::Control& control(const char* key) { return session_.form("Spectrum")[key]; }
  QWidget& widget(const char* key) { return *front_end_.window("Spectrum")->widget_for(control(key)); }
  qorvat::gui::GuiFrontEnd& front_end() { return front_end_; }

  void draw_spectrum() {
    session_.user_action([&] {
      control("picNemodar").clear_drawing();
      control("picNemodar").set_scale(kSpectrumScale);
      control("picNemodar")
          .draw({qorvat::DrawCommand::Kind::Polyline, 0, 0, 0, 0, "", spectrum_points(kSpectrumPoints),
                 qorvat::colors::kRed});
    });
  }

  // What the plot's slider and scroll bar do: widen the plot, and move it left.
  void stretch_and_scroll(int times, double scrolled) {
    const int width = 13500 * times;
    session_.user_action([&] {
      control("picNemodar").set_size(width, 4500);
      control("picNemodar").set_position(-static_cast<int>(scrolled * (width - 13500)), 0);
    });
  }

  // The scale written again: the plot is worked out anew from the points.
  void invalidate() {
    session_.user_action([&] { control("picNemodar").set_scale(kSpectrumScale); });
  }

 private:
  qorvat::DialogRegistry registry_ = qorvat::make_program_registry();
  SilentPrompts prompts_;
  qorvat::Session session_{registry_, prompts_};
  qorvat::gui::GuiFrontEnd front_end_{session_, [] {}};
};

void BM_DrawSpectrumInTheRuntime(benchmark::State& state) {
  SpectrumPlot plot;
  for (auto _ : state) plot.draw_spectrum();
}
BENCHMARK(BM_DrawSpectrumInTheRuntime)->Unit(benchmark::kMillisecond);

// Worked out from the points and painted: what a new plot or a new scale costs.
void BM_PaintSpectrum(benchmark::State& state) {
  SpectrumPlot plot;
  plot.draw_spectrum();
  for (auto _ : state) {
    plot.invalidate();
    benchmark::DoNotOptimize(plot.widget("picNemodar").grab().toImage());
  }
}
BENCHMARK(BM_PaintSpectrum)->Unit(benchmark::kMillisecond);

// Painted again with nothing changed: what a window coming back into view costs.
void BM_RepaintSpectrum(benchmark::State& state) {
  SpectrumPlot plot;
  plot.draw_spectrum();
  for (auto _ : state) benchmark::DoNotOptimize(plot.widget("picNemodar").grab().toImage());
}
BENCHMARK(BM_RepaintSpectrum)->Unit(benchmark::kMillisecond);

// Ten times wider than its container and scrolled to the middle; the container is painted.
void BM_PaintSpectrumStretchedTenfold(benchmark::State& state) {
  SpectrumPlot plot;
  plot.draw_spectrum();
  plot.stretch_and_scroll(10, 0.5);
  for (auto _ : state) {
    plot.invalidate();
    benchmark::DoNotOptimize(plot.widget("picContainer").grab().toImage());
  }
}
BENCHMARK(BM_PaintSpectrumStretchedTenfold)->Unit(benchmark::kMillisecond);

// The pointer moves over the plot: the routine moves the cursor line and the
// window repaints what changed.
void BM_CursorFollowsThePointer(benchmark::State& state) {
  SpectrumPlot plot;
  plot.draw_spectrum();
  QApplication::processEvents();
  qorvat::Control& picture = plot.control("picNemodar");
  double t = 0;
  for (auto _ : state) {
    t = t > 3.9 ? 0 : t + 0.01;
    plot.front_end().mouse_moved(picture, t, 1);
    QApplication::processEvents();
  }
}
BENCHMARK(BM_CursorFollowsThePointer)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
