// The least that a Qt program does for what a learner does: the limit that the tutor is held
// against. An empty window as large as the screen; Return fills it with a page of text, "b" shows a
// list, Down moves the mark in it, a click shows a card of text, Escape leaves the empty window.
// Everything is painted at once, in one go, and nothing is looked up.
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

namespace {

constexpr int LineHeight = 33;
constexpr int LetterSize = 25;
constexpr int ListLines = 20;
constexpr int CardLines = 10;
const QRect CardPlace(300, 250, 760, CardLines* LineHeight + 40);
const QRect ListPlace(40, 60, 500, ListLines* LineHeight);

enum class Picture { Empty, Page, List };

class LeastWindow final : public QWidget {
 public:
  LeastWindow() {
    setAttribute(Qt::WA_OpaquePaintEvent);
    QFont letters = font();
    letters.setPixelSize(LetterSize);
    setFont(letters);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    if (picture_ == Picture::Page) {
      paintLines(painter, rect().adjusted(40, 60, -40, 0), height() / LineHeight - 3);
    } else if (picture_ == Picture::List) {
      painter.fillRect(lineOfList(mark_), Qt::lightGray);
      paintList(painter, event->rect());
    }
    if (card_) {
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setBrush(QColor(0xFFFFF8E0));
      painter.drawRoundedRect(CardPlace, 12, 12);
      paintLines(painter, CardPlace.adjusted(20, 20, -20, 0), CardLines);
    }
  }
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
    case Qt::Key_Return:
      show(Picture::Page);
      break;
    case Qt::Key_B:
      show(Picture::List);
      break;
    case Qt::Key_Escape:
      card_ = false;
      show(Picture::Empty);
      break;
    case Qt::Key_Down:
      update(lineOfList(mark_));
      mark_ = (mark_ + 1) % ListLines;
      update(lineOfList(mark_));
      break;
    default:
      break;
    }
  }
  void mousePressEvent(QMouseEvent*) override {
    card_ = true;
    update(CardPlace.adjusted(-1, -1, 1, 1));
  }

 private:
  void show(Picture picture) {
    picture_ = picture;
    update();
  }
  static QRect lineOfList(int line) {
    return {ListPlace.left(), ListPlace.top() + line * LineHeight, ListPlace.width(), LineHeight};
  }
  static void paintLines(QPainter& painter, QRect place, int count) {
    for (int line = 0; line < count; ++line) {
      painter.drawText(
          QPoint(place.left(), place.top() + (line + 1) * LineHeight - 8),
          QStringLiteral("%1 A thing that is met every day, by nearly everybody.").arg(line + 1));
    }
  }
  static void paintList(QPainter& painter, QRect where) {
    for (int line = 0; line < ListLines; ++line) {
      const QRect place = lineOfList(line);
      if (place.intersects(where)) {
        painter.drawText(place.adjusted(10, 0, 0, 0), Qt::AlignVCenter,
                         QStringLiteral("word number %1").arg(line + 1));
      }
    }
  }

  Picture picture_ = Picture::Empty;
  bool card_ = false;
  int mark_ = 0;
};

} // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  LeastWindow window;
  window.showFullScreen();
  return QApplication::exec();
}
