#include "desktop/RunningProgram.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

namespace talvora {

namespace {

constexpr timeval Patience{2, 0};
constexpr int MostWaiting = 8; // calls that nobody has answered yet
const QByteArray Answer = QByteArrayLiteral("raised\n");

/// A socket's path must be short and lie where sockets can, which a stick is not: so it is named
/// after the learner's folder, in the folder of what runs.
QByteArray socketOf(const std::string& learner) {
  const QString folder = QDir(QString::fromStdString(learner)).canonicalPath();
  const QByteArray hash =
      QCryptographicHash::hash(QFile::encodeName(folder), QCryptographicHash::Sha1).toHex();
  QString place = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (place.isEmpty()) place = QDir::tempPath();
  return QFile::encodeName(place + QStringLiteral("/talvora-") +
                           QString::fromLatin1(hash.left(16)));
}

/// Nothing when the path is too long for a socket.
std::optional<sockaddr_un> addressOf(const QByteArray& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= static_cast<qsizetype>(sizeof(address.sun_path))) return std::nullopt;
  std::copy(path.begin(), path.end(), address.sun_path);
  return address;
}

const sockaddr* plain(const sockaddr_un& address) {
  return reinterpret_cast<const sockaddr*>(&address);
}

/// True when a socket listens there, for this user alone.
bool listens(int socket, const QByteArray& path) {
  const auto address = addressOf(path);
  return socket >= 0 && address && ::bind(socket, plain(*address), sizeof(*address)) == 0 &&
         ::chmod(path.constData(), S_IRUSR | S_IWUSR) == 0 && ::listen(socket, MostWaiting) == 0;
}

bool isAnswered(int socket, const QByteArray& path) {
  const auto address = addressOf(path);
  ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &Patience, sizeof(Patience));
  ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &Patience, sizeof(Patience));
  if (!address || ::connect(socket, plain(*address), sizeof(*address)) != 0) return false;
  std::array<char, 16> bytes{};
  const ssize_t got = ::recv(socket, bytes.data(), bytes.size(), 0);
  return got > 0 && Answer == QByteArray(bytes.data(), got);
}

} // namespace

RaiseCalls::RaiseCalls(const std::string& learner, std::function<void()> raise)
    : path_(socketOf(learner)), raise_(std::move(raise)),
      socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
  // Whoever left a socket there is dead: the folder's lock is ours.
  ::unlink(path_.constData());
  if (!listens(socket_, path_)) return;
  calls_ = std::make_unique<QSocketNotifier>(socket_, QSocketNotifier::Read);
  QObject::connect(calls_.get(), &QSocketNotifier::activated, [this] { answer(); });
}

RaiseCalls::~RaiseCalls() {
  if (socket_ < 0) return;
  if (calls_) ::unlink(path_.constData());
  calls_.reset();
  ::close(socket_);
}

void RaiseCalls::answer() const {
  for (int caller = 0; (caller = ::accept4(socket_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
    raise_();
    // A caller that has gone no longer needs to know.
    static_cast<void>(
        ::send(caller, Answer.constData(), static_cast<std::size_t>(Answer.size()), MSG_NOSIGNAL));
    ::close(caller);
  }
}

bool raiseRunningProgram(const std::string& learner) {
  const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (socket < 0) return false;
  const bool answered = isAnswered(socket, socketOf(learner));
  ::close(socket);
  return answered;
}

} // namespace talvora
