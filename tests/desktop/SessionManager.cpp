// A session manager for one program: what a desktop does at a log-out, in two steps that a test
// asks for line by line.
//
//   talvora-session-manager
//
// The first line that it writes is where clients find it, for SESSION_MANAGER. Of what it reads,
// "save" has the client store what it has ("saved", once it says so), "die" ends it, and the end of
// input ends the manager.
#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>

#include <array>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include <poll.h>

namespace {

constexpr int LongestError = 256;

SmsConn client = nullptr; // the one that has come, for the callbacks of a library in C

void say(const std::string& what) {
  std::cout << what << std::endl;
}

Status takeId(SmsConn connection, SmPointer, char* before) {
  // A new program gets a new name; one that comes back keeps its own.
  char* const id = before != nullptr ? before : SmsGenerateClientID(connection);
  SmsRegisterClientReply(connection, id);
  client = connection;
  std::free(id); // NOLINT: the library's
  say("client");
  return 1;
}

void letTalk(SmsConn connection, SmPointer, int) {
  SmsInteract(connection);
}

void closeConnection(SmsConn connection, SmPointer, int, char** reasons) {
  SmFreeReasons(0, reasons);
  IceConn const ice = SmsGetIceConnection(connection);
  SmsCleanUp(connection);
  IceSetShutdownNegotiation(ice, False);
  IceCloseConnection(ice);
  client = nullptr;
}

Status welcome(SmsConn, SmPointer, unsigned long* mask, SmsCallbacks* callbacks, char**) {
  *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
          SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
          SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
          SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
  *callbacks = {};
  callbacks->register_client.callback = takeId;
  callbacks->interact_request.callback = letTalk;
  callbacks->interact_done.callback = [](SmsConn, SmPointer, Bool) {};
  callbacks->save_yourself_request.callback = [](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {};
  callbacks->save_yourself_phase2_request.callback = [](SmsConn connection, SmPointer) {
    SmsSaveYourselfPhase2(connection);
  };
  callbacks->save_yourself_done.callback = [](SmsConn, SmPointer, Bool done) {
    say(done != 0 ? "saved" : "not saved");
  };
  callbacks->close_connection.callback = closeConnection;
  callbacks->set_properties.callback = [](SmsConn, SmPointer, int count, SmProp** properties) {
    for (int each = 0; each < count; ++each)
      SmFreeProperty(properties[each]);
    std::free(properties); // NOLINT: the library's
  };
  callbacks->delete_properties.callback = [](SmsConn, SmPointer, int, char**) {};
  callbacks->get_properties.callback = [](SmsConn connection, SmPointer) {
    SmsReturnProperties(connection, 0, nullptr);
  };
  return 1;
}

class Manager {
 public:
  Manager() {
    std::array<char, LongestError> error{};
    char vendor[] = "talvora";
    char release[] = "1";
    const bool ready =
        SmsInitialize(vendor, release, welcome, nullptr, everybody, error.size(), error.data()) !=
            0 &&
        IceListenForConnections(&count_, &listening_, error.size(), error.data()) != 0;
    if (!ready) {
      std::cerr << error.data() << '\n';
      std::exit(1);
    }
    // Programs of this machine only come here, over a socket of this test's own folder.
    for (int each = 0; each < count_; ++each)
      IceSetHostBasedAuthProc(listening_[each], everybody);
    // The library's own answer to a client that has gone would be to end.
    IceSetIOErrorHandler([](IceConn) { client = nullptr; });
  }
  Manager(const Manager&) = delete;
  Manager& operator=(const Manager&) = delete;
  ~Manager() { IceFreeListenObjs(count_, listening_); }

  [[nodiscard]] std::string address() {
    char* const ids = IceComposeNetworkIdList(count_, listening_);
    std::string text(ids);
    std::free(ids); // NOLINT: the library's
    return text;
  }

  /// Serves until the input ends.
  void run() {
    while (true) {
      std::vector<pollfd> watched{{0, POLLIN, 0}};
      for (int each = 0; each < count_; ++each)
        watched.push_back({IceGetListenConnectionNumber(listening_[each]), POLLIN, 0});
      if (connection_ != nullptr) watched.push_back({IceConnectionNumber(connection_), POLLIN, 0});
      if (::poll(watched.data(), watched.size(), -1) < 0) return;
      if (connection_ != nullptr && watched.back().revents != 0) serve();
      for (int each = 0; each < count_; ++each) {
        if (watched[static_cast<std::size_t>(each) + 1].revents != 0) accept(listening_[each]);
      }
      if (watched.front().revents != 0 && !obey()) return;
    }
  }

 private:
  static Bool everybody(char*) { return True; }

  void accept(IceListenObj listening) {
    IceAcceptStatus status = IceAcceptFailure;
    connection_ = IceAcceptConnection(listening, &status);
    if (status != IceAcceptSuccess) connection_ = nullptr;
  }
  void serve() {
    const auto result = IceProcessMessages(connection_, nullptr, nullptr);
    if (result == IceProcessMessagesSuccess) return;
    if (result == IceProcessMessagesIOError) IceCloseConnection(connection_);
    connection_ = nullptr;
  }
  /// False at the end of input.
  static bool obey() {
    std::string line;
    if (!std::getline(std::cin, line)) return false;
    if (client == nullptr) {
      say("no client");
    } else if (line == "save") {
      SmsSaveYourself(client, SmSaveBoth, True, SmInteractStyleAny, False);
    } else if (line == "die") {
      SmsDie(client);
    }
    return true;
  }

  int count_ = 0;
  IceListenObj* listening_ = nullptr;
  IceConn connection_ = nullptr;
};

} // namespace

int main() {
  Manager manager;
  say(manager.address());
  manager.run();
}
