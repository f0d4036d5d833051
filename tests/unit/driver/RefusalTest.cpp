// Commands with a field that is missing, of another type, or out of range: each is refused and
// leaves the program as it was, ahead of the start, while it runs, and after its end.
#include "driver/Driver.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace talvora {
namespace {

/// A command that is understood, and what each of its fields may be.
struct Understood {
  Json command;
  std::vector<std::string> required;
  std::vector<std::string> optional;
};

const std::vector<Understood>& commands() {
  static const std::vector<Understood> all = {
      {{{"do", "click"}, {"button", "but6"}}, {"button"}, {}},
      {{{"do", "mouse"}, {"surface", "Rcachhoc"}, {"at", 1}},
       {"surface", "at"},
       {"button", "double", "ctrl", "to"}},
      {{{"do", "move"}, {"surface", "Rcachhoc"}, {"x", 5}, {"y", 5}}, {"surface", "x", "y"}, {}},
      {{{"do", "hover"}, {"button", "but2"}}, {"button"}, {"frames"}},
      {{{"do", "key"}, {"key", "Home"}}, {"key"}, {"ctrl", "shift", "on"}},
      {{{"do", "keydown"}, {"key", "Home"}}, {"key"}, {"ctrl", "shift", "on"}},
      {{{"do", "keyup"}, {"key", "Home"}}, {"key"}, {"ctrl", "shift", "on"}},
      {{{"do", "type"}, {"text", "a"}}, {"text"}, {"on"}},
      {{{"do", "hold"}, {"key", "Esc"}, {"after", 1}, {"for", 1}}, {"key", "after", "for"}, {}},
      {{{"do", "wait"}, {"ms", 1}}, {"ms"}, {}},
      {{{"do", "answer"}, {"with", "no"}}, {"with"}, {}},
      {{{"do", "surface"}, {"name", "R1"}}, {"name"}, {}},
      {{{"do", "get"}, {"names", Json::array({"ThuMuc"})}}, {"names"}, {}},
      {{{"do", "call"}, {"name", "SoTrongTen"}, {"args", Json::array({"but7"})}},
       {"name", "args"},
       {}},
  };
  return all;
}

/// Values that no field of any command takes.
const std::vector<Json>& strangers() {
  static const std::vector<Json> all = {nullptr,
                                        1.5,
                                        -1e300,
                                        4294967296,
                                        -2147483649,
                                        "",
                                        "no such thing",
                                        "\u0100",
                                        Json::object(),
                                        Json::array({Json::array()}),
                                        Json::array({nullptr})};
  return all;
}

class Refusal : public testing::Test {
 protected:
  Refusal() {
    folder.writeEmptyStores();
    folder.write("Yes1", "");
  }

  Json send(const Json& command) { return Json::parse(driver.answer(command.dump())); }
  void expectRefused(const Json& command) {
    const Json reply = send(command);
    EXPECT_EQ(reply["ok"], false) << command.dump();
    EXPECT_FALSE(reply.value("error", "").empty()) << command.dump();
  }
  /// All that can be seen of the program without changing it.
  std::string picture() {
    std::string all = driver.answer(R"({"do":"state"})");
    for (const char* name : {"R1", "RDOS", "RHD", "Rcachhoc", "but2", "but6"}) {
      all += driver.answer(Json{{"do", "surface"}, {"name", name}}.dump());
    }
    return all;
  }
  void expectEveryBrokenCommandRefused() {
    send({{"do", "log"}});
    const std::string before = picture();
    for (const auto& [command, required, optional] : commands()) {
      for (const std::string& field : required) {
        Json lacking = command;
        lacking.erase(field);
        expectRefused(lacking);
      }
      std::vector<std::string> fields = required;
      fields.insert(fields.end(), optional.begin(), optional.end());
      for (const std::string& field : fields) {
        for (const Json& stranger : strangers()) {
          Json strange = command;
          strange[field] = stranger;
          // Typing nothing, or a text of any letters, is understood.
          if (field == "text" && stranger.is_string() && stranger != "\u0100") continue;
          expectRefused(strange);
        }
      }
    }
    EXPECT_EQ(picture(), before);
    EXPECT_TRUE(send({{"do", "log"}})["entries"].empty());
  }

  test::TestFolder folder;
  Driver driver{ScriptedOptions{}, folder.path()};
};

TEST_F(Refusal, AheadOfTheStart) {
  expectEveryBrokenCommandRefused();
}

TEST_F(Refusal, WhileASectionIsOpen) {
  send({{"do", "start"}});
  send({{"do", "click"}, {"button", "but9"}});
  ASSERT_EQ(send({{"do", "state"}})["focus"], "Rcachhoc");
  expectEveryBrokenCommandRefused();
}

TEST_F(Refusal, AfterTheEnd) {
  send({{"do", "start"}});
  send({{"do", "close"}});
  expectEveryBrokenCommandRefused();
  for (const char* name : {"start", "close"})
    expectRefused({{"do", name}});
  for (const auto& [command, required, optional] : commands()) {
    const bool reads =
        command["do"] == "surface" || command["do"] == "get" || command["do"] == "call";
    EXPECT_EQ(send(command)["ok"], reads) << command.dump();
  }
}

TEST_F(Refusal, OfNumbersBeyondTheirRange) {
  send({{"do", "start"}});
  send({{"do", "click"}, {"button", "but9"}});
  const std::string before = picture();
  const Json mouse = {{"do", "mouse"}, {"surface", "Rcachhoc"}, {"at", 0}};
  for (const int caret : {-1, 7, 2147483647}) {
    for (const char* field : {"at", "to"}) {
      Json command = mouse;
      command[field] = caret;
      expectRefused(command);
    }
  }
  for (const int frames : {-1, 0, 2147483647}) {
    expectRefused({{"do", "hover"}, {"button", "but2"}, {"frames", frames}});
  }
  expectRefused({{"do", "move"}, {"surface", "Rcachhoc"}, {"x", 2147483647}, {"y", 0}});
  expectRefused({{"do", "wait"}, {"ms", -1}});
  expectRefused({{"do", "hold"}, {"key", "Esc"}, {"after", 0}, {"for", -1}});
  EXPECT_EQ(picture(), before);
}

TEST_F(Refusal, PureProceduresAnswerAheadOfTheStartToo) {
  const std::vector<Json> calls = {{{"name", "GiaiMaByte"}, {"args", Json::array({255})}},
                                   {{"name", "MoRongByte"}, {"args", Json::array({188})}},
                                   {{"name", "ChuanHoaTu"}, {"args", Json::array({""})}},
                                   {{"name", "KhoangChuCai"}, {"args", Json::array({-5})}},
                                   {{"name", "TimTu"}, {"args", Json::array({"bank", true})}},
                                   {{"name", "RutGonDuoi"}, {"args", Json::array({"going"})}},
                                   {{"name", "LaTiengAnh"}, {"args", Json::array({""})}},
                                   {{"name", "CoSoVaChu"}, {"args", Json::array({"a1"})}},
                                   {{"name", "TimBaiHoc"}, {"args", Json::array({""})}},
                                   {{"name", "TonTaiFile"}, {"args", Json::array({""})}},
                                   {{"name", "TimTuD"}, {"args", Json::array({""})}},
                                   {{"name", "CauTaiViTri"}, {"args", Json::array({-2147483647})}}};
  for (Json call : calls) {
    call["do"] = "call";
    const Json reply = send(call);
    EXPECT_EQ(reply["ok"], true) << reply.dump();
    EXPECT_TRUE(reply.contains("result")) << reply.dump();
  }
}

} // namespace
} // namespace talvora
