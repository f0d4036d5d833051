// An empty full-screen Qt window that tells when its first picture is painted: the peer of the
// start-up benchmark. "--trace FILE" as the tutor has it.
#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QWidget>

#include <fstream>

namespace {

class EmptyWindow final : public QWidget {
 public:
  explicit EmptyWindow(const QString& trace) : trace_(trace.toStdString()) {}

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter(this).fillRect(event->rect(), Qt::white);
    QTimer::singleShot(0, this, [this] { trace_ << "painted" << std::endl; });
  }

 private:
  std::ofstream trace_;
};

} // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  EmptyWindow window(QApplication::arguments().back());
  window.showFullScreen();
  return QApplication::exec();
}
