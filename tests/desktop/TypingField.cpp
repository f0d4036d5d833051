// A field that a typing method may write into, beside the tutor, which lets none: whether the
// method is at work is to be seen here.
//
//   talvora-typing-field FILE
//
// What stands in the field is written to the file with every change; the Enter key ends it.
#include <QApplication>
#include <QFile>
#include <QLineEdit>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  if (argc < 2) return 2;
  const QString path = QString::fromLocal8Bit(argv[1]);
  const auto write = [&](const QString& text) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) file.write(text.toUtf8() + '\n');
  };
  QLineEdit field;
  QObject::connect(&field, &QLineEdit::textChanged, write);
  QObject::connect(&field, &QLineEdit::returnPressed, &application, [] { QApplication::quit(); });
  field.show();
  field.activateWindow();
  field.setFocus();
  write({});
  return QApplication::exec();
}
