// How soon a person sees the form, and how long a maximal job takes to open in it.
//   pellam_qt_bench paint [JOB.zpd]  prints the wall clock (ns) of the window's first paint,
//                                    every list filled; first_paint.sh subtracts the start.
//   pellam_qt_bench bare             the same for an empty QMainWindow holding one QTabWidget:
//                                    the floor the app's first paint is measured against.
//   pellam_qt_bench open [N]         saves a maximal room-combine and station-link job and
//                                    prints the median of N opens, drawn, in milliseconds.
//   pellam_qt_bench maximal DIR      saves a maximal job of every mode into DIR as
//                                    MaximalModeN.zpd, for pictures of the longest lists.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMessageBox>
#include <QTabWidget>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "component/job_files.h"
#include "form_view.h"
#include "main_window.h"
#include "maximal_job.h"

namespace {

using namespace pellam;

class FirstPaint final : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !done_) {
      done_ = true;
      const auto now = std::chrono::system_clock::now().time_since_epoch();
      std::printf("%lld\n", static_cast<long long>(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()));
      QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  bool done_ = false;
};

int paint(const QString& job) {
  // A data folder of its own, so that no recovery copy of a real session is offered.
  const QString data = QDir::temp().filePath(QStringLiteral("pellam-qt-bench-data-%1").arg(QCoreApplication::applicationPid()));
  int result = 0;
  {
    qt::MainWindow window(nullptr, data);
    FirstPaint watch;
    window.start(job);
    window.form().installEventFilter(&watch);
    window.show();
    result = QApplication::exec();
  }
  QDir(data).removeRecursively();
  return result;
}

int bare() {
  QMainWindow window;
  auto* tabs = new QTabWidget;
  tabs->addTab(new QWidget, QStringLiteral("Board Setup"));
  window.setCentralWidget(tabs);
  FirstPaint watch;
  tabs->installEventFilter(&watch);
  window.show();
  return QApplication::exec();
}

// A question would stop the run; say what it was and answer it.
void answerQuestions(QTimer& timer) {
  QObject::connect(&timer, &QTimer::timeout, [] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      std::fprintf(stderr, "message: %s\n", box->text().toLocal8Bit().constData());
      box->defaultButton() ? box->defaultButton()->click() : box->buttons().front()->click();
    }
  });
  timer.start(50);
}

int open(int runs) {
  namespace fs = std::filesystem;
  const fs::path folder = fs::temp_directory_path() / ("pellam-qt-bench-" + std::to_string(QCoreApplication::applicationPid()));
  fs::create_directories(folder);
  qt::MainWindow window(nullptr, QString::fromStdString((folder / "data").string()));
  window.show();
  window.start({});
  QTimer answer;
  answerQuestions(answer);
  for (int mode : {3, 5}) {
    bench::fillMaximalJob(window.session(), mode);
    // What a recovery copy costs the interface thread: packing the job's files.
    std::vector<double> pack;
    for (int i = 0; i < runs; ++i) {
      QElapsedTimer timer;
      timer.start();
      const auto files = component::RecoveryFiles(window.session(), (folder / "copy.txt").string());
      pack.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(pack.begin(), pack.end());
    std::printf("recovery copy of a maximal mode-%d job, packing: median %.2f ms of %d\n", mode, pack[pack.size() / 2], runs);
    const std::string zpd =
        component::SaveJobSequence(window.session(), (folder / "Max.txt").string(), "Directory Not Found");
    std::vector<double> ms;
    for (int i = 0; i < runs; ++i) {
      QElapsedTimer timer;
      timer.start();
      window.openJob(QString::fromStdString(zpd));
      window.repaint();
      ms.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(ms.begin(), ms.end());
    std::printf("open maximal mode-%d job: median %.1f ms of %d\n", mode, ms[ms.size() / 2], runs);
  }
  fs::remove_all(folder);
  return 0;
}

int saveMaximal(const QString& dir) {
  qt::MainWindow window(nullptr, QDir(dir).filePath("app-data"));
  window.start({});
  QTimer answer;
  answerQuestions(answer);
  for (int mode = 1; mode <= 5; ++mode) {
    bench::fillMaximalJob(window.session(), mode);
    const std::string job = QDir(dir).filePath(QStringLiteral("MaximalMode%1.txt").arg(mode)).toStdString();
    if (component::SaveJobSequence(window.session(), job, "Directory Not Found").empty()) return 1;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  const QStringList args = QApplication::arguments();
  if (args.size() > 2 && args[1] == "maximal") return saveMaximal(args[2]);
  if (args.size() > 1 && args[1] == "bare") return bare();
  if (args.size() > 1 && args[1] == "open") return open(args.size() > 2 ? args[2].toInt() : 21);
  return paint(args.size() > 2 ? args[2] : QString());
}
