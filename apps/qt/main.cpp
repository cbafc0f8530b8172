#include <QApplication>
#include <QStringList>

#include "main_window.h"

// pellam-setup [JOB.zpd]: opens the job, or starts a new one.
int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("pellam-setup");
  const QStringList args = QApplication::arguments();
  pellam::qt::MainWindow window;
  window.show();
  window.start(args.size() > 1 ? args.at(1) : QString());
  return QApplication::exec();
}
