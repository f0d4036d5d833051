#include "desktop/RunningProgram.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>

namespace talvora {

namespace {

constexpr int PatienceMs = 2000;
const QByteArray Answer = QByteArrayLiteral("raised\n");

/// A socket's path must be short and lie where sockets can, which a stick is not: so it is named
/// after the learner's folder, in the folder of what runs.
QString socketOf(const std::string& learner) {
  const QString folder = QDir(QString::fromStdString(learner)).canonicalPath();
  const QByteArray hash =
      QCryptographicHash::hash(QFile::encodeName(folder), QCryptographicHash::Sha1).toHex();
  QString place = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (place.isEmpty()) place = QDir::tempPath();
  return place + QStringLiteral("/talvora-") + QString::fromLatin1(hash.left(16));
}

} // namespace

RaiseCalls::RaiseCalls(const std::string& learner, std::function<void()> raise) {
  const QString socket = socketOf(learner);
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  QObject::connect(&server_, &QLocalServer::newConnection, [this, raise = std::move(raise)] {
    while (QLocalSocket* const caller = server_.nextPendingConnection()) {
      raise();
      QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
      caller->write(Answer);
      caller->disconnectFromServer();
    }
  });
  // Whoever left a socket there is dead: the folder's lock is ours.
  QLocalServer::removeServer(socket);
  server_.listen(socket);
}

bool raiseRunningProgram(const std::string& learner) {
  QLocalSocket socket;
  socket.connectToServer(socketOf(learner));
  return socket.waitForConnected(PatienceMs) && socket.waitForReadyRead(PatienceMs) &&
         socket.readAll() == Answer;
}

} // namespace talvora
