#include "gui_test_support.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace qorvat::gui::testing {
namespace {

constexpr int kMaxAnswers = 20;

QtMessageHandler qt_default_handler = nullptr;

// The offscreen platform tells of every raise() and size hint it cannot honour.
void quiet_offscreen_notes(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type == QtWarningMsg && text.startsWith("This plugin does not support")) return;
  qt_default_handler(type, context, text);
}

class QtEnvironment final : public ::testing::Environment {
 public:
  void SetUp() override {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qt_default_handler = qInstallMessageHandler(quiet_offscreen_notes);
    app_ = std::make_unique<QApplication>(argc_, argv_);
    QApplication::setQuitOnLastWindowClosed(false);
  }
  void TearDown() override {
    flush_deferred_deletes();
    app_.reset();
    qInstallMessageHandler(qt_default_handler);
  }

 private:
  int argc_ = 1;
  char name_[10] = "gui_tests";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> app_;
};

[[maybe_unused]] ::testing::Environment* const kQtEnvironment = ::testing::AddGlobalTestEnvironment(new QtEnvironment);

}  // namespace

ModalWatchdog::ModalWatchdog(std::function<void(QWidget&)> answer) : answer_(std::move(answer)) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr) return;
    ++seen_;
    // An answer that fails to close its dialog must not leave the test waiting for ever.
    if (answer_ && seen_ <= kMaxAnswers) {
      answer_(*modal);
      return;
    }
    ADD_FAILURE() << "modal dialog left open: " << modal->windowTitle().toStdString();
    modal->close();
  });
  timer_.start(10);
}

void flush_deferred_deletes() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

}  // namespace qorvat::gui::testing
