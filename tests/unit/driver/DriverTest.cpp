// The driver's protocol, command by command, with a program that has empty stores.
#include "driver/Driver.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace talvora {
namespace {

class DriverTest : public testing::Test {
 protected:
  DriverTest() {
    folder.writeEmptyStores();
    folder.write("Yes1", "");
    folder.write("datatu.txt", "a\r\nb\r\n");
    folder.writeIntegers("data.mtd", {7, 3});
  }

  Json send(const std::string& line) { return Json::parse(driver.answer(line)); }
  /// The entries of a kind since the log was last read.
  std::vector<Json> logged(const std::string& what) {
    std::vector<Json> found;
    const Json reply = send(R"({"do":"log"})");
    for (const Json& entry : reply["entries"]) {
      if (entry["what"] == what) found.push_back(entry);
    }
    return found;
  }
  void start() { ASSERT_TRUE(send(R"({"do":"start"})")["running"].get<bool>()); }
  /// Opens the guide, which is a surface with some text.
  void openGuide() {
    start();
    ASSERT_TRUE(send(R"({"do":"click","button":"but9"})")["ok"].get<bool>());
    ASSERT_EQ(send(R"({"do":"state"})")["focus"], "Rcachhoc");
  }

  test::TestFolder folder;
  Driver driver{ScriptedOptions{}, folder.path()};
};

TEST_F(DriverTest, EveryReplyIsOneLineThatBeginsWithOk) {
  start();
  for (const char* command : {R"({"do":"state"})", R"({"do":"log"})", R"({"do":"nothing"})",
                              R"({"do":"surface","name":"R1"})", "{"}) {
    const std::string reply = driver.answer(command);
    EXPECT_EQ(reply.find('\n'), std::string::npos);
    EXPECT_EQ(reply.rfind("{\"ok\":", 0), 0U) << reply;
  }
}

TEST_F(DriverTest, WhatCannotBeUnderstoodIsRefusedAndChangesNothing) {
  openGuide();
  const std::string before =
      driver.answer(R"({"do":"state"})") + driver.answer(R"({"do":"surface","name":"Rcachhoc"})");
  send(R"({"do":"log"})");
  for (const char* command :
       {R"({"do":"jump"})",
        R"({"do":"start"})",
        R"({"do":"click"})",
        R"({"do":"click","button":"but19"})",
        R"({"do":"click","button":"Rcachhoc"})",
        R"({"do":"mouse","surface":"Rcachhoc"})",
        R"({"do":"mouse","surface":"R9","at":0})",
        R"({"do":"mouse","surface":"R1","at":0})",
        R"({"do":"mouse","surface":"but1","at":0})",
        R"({"do":"mouse","surface":"Rcachhoc","at":-1})",
        R"({"do":"mouse","surface":"Rcachhoc","at":100000})",
        R"({"do":"mouse","surface":"Rcachhoc","at":1.5})",
        R"({"do":"mouse","surface":"Rcachhoc","at":0,"button":"middle"})",
        R"({"do":"mouse","surface":"Rcachhoc","at":0,"to":100000})",
        R"({"do":"mouse","surface":"Rcachhoc","at":0,"to":1,"double":true})",
        R"({"do":"mouse","surface":"Rcachhoc","at":0,"button":"right","double":true})",
        R"({"do":"move","surface":"Rcachhoc","x":1})",
        R"({"do":"hover","button":"but1","frames":0})",
        R"({"do":"key"})",
        R"({"do":"key","key":"F7"})",
        R"({"do":"key","key":"a","on":"R1"})",
        R"({"do":"key","key":"a","on":"Frame1"})",
        R"({"do":"key","key":"a","ctrl":"yes"})",
        R"({"do":"type","text":"a\n"})",
        R"({"do":"type","text":"Ā"})",
        R"({"do":"hold","key":"Esc","after":-1,"for":5})",
        R"({"do":"hold","key":"Esc","after":1})",
        R"({"do":"wait","ms":-1})",
        R"({"do":"answer","with":"ok"})",
        R"({"do":"surface","name":"R9"})",
        R"({"do":"get"})",
        R"({"do":"get","names":["Nothing"]})",
        R"({"do":"get","names":[5]})",
        R"({"do":"hover","button":"but1","frames":2000000000})",
        R"({"do":"call","name":"GiaiMaByte","args":[256]})",
        R"({"do":"call","name":"GiaiMaByte","args":[-1]})",
        R"({"do":"call","name":"GiaiMaByte","args":[1.5]})",
        R"({"do":"call","name":"GiaiMaByte","args":[1,2]})",
        R"({"do":"call","name":"GiaiMaByte"})",
        R"({"do":"call","name":"MoRongByte","args":[256]})",
        R"({"do":"call","name":"MoRongByte","args":["a"]})",
        R"({"do":"call","name":"CauTaiViTri","args":[1e300]})",
        R"({"do":"call","name":"TimTu","args":["bank"]})",
        R"({"do":"call","name":"TimTu","args":["bank",1]})",
        R"({"do":"call","name":"Nothing","args":[]})",
        R"({"do":"call","name":"SoTrongTen","args":[5]})",
        R"({"do":"call","name":"SoTrongTen","args":"but5"})"}) {
    const Json reply = send(command);
    EXPECT_FALSE(reply["ok"].get<bool>()) << command;
    EXPECT_FALSE(reply["error"].get<std::string>().empty()) << command;
  }
  EXPECT_EQ(driver.answer(R"({"do":"state"})") +
                driver.answer(R"({"do":"surface","name":"Rcachhoc"})"),
            before);
  EXPECT_EQ(send(R"({"do":"log"})")["entries"].size(), 0U);
}

TEST_F(DriverTest, AProcedureOfAByteTakesNoOtherNumber) {
  for (const std::string name : {"GiaiMaByte", "MoRongByte"}) {
    const auto call = [&](const std::string& number) {
      return send(R"({"do":"call","name":")" + name + R"(","args":[)" + number + "]}");
    };
    EXPECT_TRUE(call("0")["ok"].get<bool>()) << name;
    EXPECT_TRUE(call("255")["ok"].get<bool>()) << name;
    for (const char* number : {"-1", "256", "1.5", "4294967296", "\"1\""}) {
      const Json reply = call(number);
      EXPECT_FALSE(reply["ok"].get<bool>()) << name << ' ' << number;
      EXPECT_TRUE(reply.contains("error")) << name << ' ' << number;
    }
  }
}

TEST_F(DriverTest, ASearchOfItsOwnLeavesNoTrace) {
  start();
  const char* names =
      R"({"do":"get","names":["TimThay","ViTriGan","TimDau","TimCuoi","TuHienTai","NghiaHienTai"]})";
  const std::string before = driver.answer(names);
  EXPECT_EQ(send(R"({"do":"call","name":"TimTu","args":["a",true]})")["result"]["ViTriGan"], 1);
  EXPECT_EQ(driver.answer(names), before);
}

TEST_F(DriverTest, EveryVariableOfTheDictionaryAndTheReadingPageIsKnown) {
  start();
  for (const std::string name : {"Tu",
                                 "ChiSoChu",
                                 "TuHienTai",
                                 "NghiaHienTai",
                                 "TuDaBam",
                                 "TimThay",
                                 "ViTriGan",
                                 "TimDau",
                                 "TimCuoi",
                                 "ThongBaoHD",
                                 "ViTriChuot",
                                 "Phan3",
                                 "Phan6",
                                 "Phan12",
                                 "ViTriCaret",
                                 "ViTriCaretR1",
                                 "TuChon",
                                 "ChuChon",
                                 "DaChonRTD",
                                 "DaNapRTD",
                                 "XemCauTuVung",
                                 "XoaTuKhiDong",
                                 "CauHoi",
                                 "VanBanGoc",
                                 "ViTriCauVan",
                                 "SoCauVanBan",
                                 "ViTriCauTrongFile",
                                 "DichCau",
                                 "CauChon",
                                 "ViTriTieuDe",
                                 "CoDupChuot",
                                 "GiuSpace",
                                 "DangDocCa",
                                 "ViTriGiuSpace",
                                 "LaBaiHuongDan",
                                 "ChoGiai"}) {
    const Json reply = send(R"({"do":"get","names":[")" + name + R"("]})");
    EXPECT_TRUE(reply["ok"].get<bool>()) << name;
  }
}

TEST_F(DriverTest, TablesAreToldFromTheIndexThatTheyAreDeclaredWith) {
  start();
  const auto sizeOf = [&](const std::string& name) {
    return send(R"({"do":"get","names":[")" + name + R"("]})")["values"][name].size();
  };
  EXPECT_EQ(sizeOf("ChiSoChu"), 27U);
  EXPECT_EQ(sizeOf("ViTriCauVan"), 200U);
  EXPECT_EQ(sizeOf("ViTriCauTrongFile"), 2000U);
  EXPECT_EQ(sizeOf("ViTriChuot"), 2U);
}

TEST_F(DriverTest, TheWordsAreRecordsAndTheFirstIsNotUsed) {
  start();
  const Json words = send(R"({"do":"get","names":["Tu"]})")["values"]["Tu"];
  ASSERT_EQ(words.size(), 385084U);
  EXPECT_EQ(words[0], Json::parse(R"({"Chu":"","ViTriNghia":0,"ViTriDanhSach":0})"));
  EXPECT_EQ(words[1], Json::parse(R"({"Chu":"a","ViTriNghia":7,"ViTriDanhSach":3})"));
  EXPECT_EQ(words[385083], words[0]);
}

TEST_F(DriverTest, NothingButReadingAndQueueingIsTakenAheadOfTheStart) {
  EXPECT_FALSE(send(R"({"do":"click","button":"but1"})")["ok"].get<bool>());
  EXPECT_FALSE(send(R"({"do":"key","key":"Esc"})")["ok"].get<bool>());
  EXPECT_FALSE(send(R"({"do":"close"})")["ok"].get<bool>());
  EXPECT_TRUE(send(R"({"do":"answer","with":"no"})")["ok"].get<bool>());
  EXPECT_TRUE(send(R"({"do":"hold","key":"Esc","after":1,"for":5})")["ok"].get<bool>());
  const Json state = send(R"({"do":"state"})");
  EXPECT_TRUE(state["ok"].get<bool>());
  EXPECT_FALSE(state["running"].get<bool>());
}

TEST_F(DriverTest, TheSameCommandsGiveTheSameReplies) {
  Driver twin(ScriptedOptions{}, folder.path());
  for (const char* command :
       {R"({"do":"start"})", R"({"do":"hover","button":"but12"})", R"({"do":"key","key":"Down"})",
        R"({"do":"click","button":"but9"})", R"({"do":"mouse","surface":"Rcachhoc","at":2})",
        R"({"do":"surface","name":"Rcachhoc"})", R"({"do":"log"})", R"({"do":"state"})"}) {
    EXPECT_EQ(driver.answer(command), twin.answer(command));
  }
}

TEST_F(DriverTest, StartEndsOnTheFirstButtonWithThePointerOverIt) {
  start();
  const Json state = send(R"({"do":"state"})");
  EXPECT_EQ(state["focus"], "but1");
  EXPECT_EQ(state["pointer"], Json::array({480, 240}));
  EXPECT_TRUE(state["running"].get<bool>());
  EXPECT_FALSE(state["DangBan"].get<bool>());
}

TEST_F(DriverTest, HoverShowsSoManyPictures) {
  start();
  send(R"({"do":"log"})");
  send(R"({"do":"hover","button":"but3","frames":5})");
  const auto pictures = logged("picture");
  ASSERT_EQ(pictures.size(), 5U);
  EXPECT_EQ(pictures[0]["button"], "but3");
  EXPECT_EQ(pictures[0]["frame"], 14);
  EXPECT_EQ(pictures[2]["frame"], 8);
  send(R"({"do":"hover","button":"but4"})");
  EXPECT_EQ(logged("picture").size(), 20U);
}

TEST_F(DriverTest, AnArrowMovesTheFocusAndThePointerFollows) {
  start();
  send(R"({"do":"log"})");
  send(R"({"do":"key","key":"Down"})");
  EXPECT_EQ(send(R"({"do":"state"})")["focus"], "but2");
  const Json entries = send(R"({"do":"log"})")["entries"];
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_EQ(entries[0]["what"], "pointer");
  EXPECT_EQ(entries[0]["y"], 286);
  // The pointer's arrival is an event of its own and lights the button.
  EXPECT_EQ(entries[1]["what"], "picture");
  EXPECT_EQ(entries[1]["button"], "but2");
}

TEST_F(DriverTest, AQueuedAnswerIsForTheNextQuestionBoxOnly) {
  start();
  send(R"({"do":"answer","with":"no"})");
  EXPECT_TRUE(send(R"({"do":"close"})")["running"].get<bool>());
  const Json reply = send(R"({"do":"close"})");
  EXPECT_TRUE(reply["ok"].get<bool>());
  EXPECT_FALSE(reply["running"].get<bool>());
  EXPECT_EQ(reply["ended"], "quit");
  const auto boxes = logged("box");
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[0]["answer"], "no");
  EXPECT_EQ(boxes[1]["answer"], "yes");
  EXPECT_EQ(boxes[1]["title"], "TALVORA 2.4");
}

TEST_F(DriverTest, AfterTheEndOnlyReadingIsTaken) {
  start();
  send(R"({"do":"close"})");
  EXPECT_FALSE(send(R"({"do":"click","button":"but1"})")["ok"].get<bool>());
  EXPECT_FALSE(send(R"({"do":"wait","ms":1})")["ok"].get<bool>());
  EXPECT_TRUE(send(R"({"do":"surface","name":"R1"})")["ok"].get<bool>());
  EXPECT_TRUE(send(R"({"do":"call","name":"SoTrongTen","args":["but12"]})")["ok"].get<bool>());
  EXPECT_FALSE(send(R"({"do":"state"})")["running"].get<bool>());
}

TEST_F(DriverTest, TheFirstRunEndsTheProgram) {
  folder.remove("Yes1");
  const Json reply = send(R"({"do":"start"})");
  EXPECT_TRUE(reply["ok"].get<bool>());
  EXPECT_EQ(reply["ended"], "first-run");
  EXPECT_FALSE(reply.contains("failure"));
}

TEST_F(DriverTest, AMissingStoreIsAReply) {
  folder.remove("data.mtd");
  const Json reply = send(R"({"do":"start"})");
  EXPECT_TRUE(reply["ok"].get<bool>());
  EXPECT_FALSE(reply["running"].get<bool>());
  EXPECT_EQ(reply["ended"], "failure");
  EXPECT_NE(reply["failure"].get<std::string>().find("data.mtd"), std::string::npos);
}

TEST_F(DriverTest, ALeftClickPutsTheCaretWhereItIsAimed) {
  openGuide();
  const Json reply = send(R"({"do":"mouse","surface":"Rcachhoc","at":3})");
  EXPECT_GT(reply["x"].get<int>(), 0);
  EXPECT_EQ(send(R"({"do":"surface","name":"Rcachhoc"})")["selStart"], 3);
}

TEST_F(DriverTest, ADragSelects) {
  openGuide();
  send(R"({"do":"mouse","surface":"Rcachhoc","at":1,"to":4})");
  const Json surface = send(R"({"do":"surface","name":"Rcachhoc"})");
  EXPECT_EQ(surface["selStart"], 1);
  EXPECT_EQ(surface["selText"], "uid");
}

TEST_F(DriverTest, ADoubleClickSelectsTheWordUnderThePointer) {
  openGuide();
  send(R"({"do":"mouse","surface":"Rcachhoc","at":2,"double":true})");
  EXPECT_EQ(send(R"({"do":"surface","name":"Rcachhoc"})")["selText"], "guide");
}

TEST_F(DriverTest, ThePointerStandsOnTheScreenWhereTheCharacterIs) {
  openGuide();
  const Json reply = send(R"({"do":"mouse","surface":"Rcachhoc","at":2})");
  const Json surface = send(R"({"do":"surface","name":"Rcachhoc"})");
  const Json pointer = send(R"({"do":"state"})")["pointer"];
  // The caption strip takes what the form's 11,174 twips leave of the screen's height.
  const int strip = 768 * 15 - 11174;
  EXPECT_EQ(pointer[0], (surface["left"].get<int>() + reply["x"].get<int>()) / 15);
  EXPECT_EQ(pointer[1], (surface["top"].get<int>() + reply["y"].get<int>() + strip) / 15);
}

TEST_F(DriverTest, AKeyOnAControlGivesItTheFocusFirst) {
  start();
  send(R"({"do":"answer","with":"no"})");
  send(R"({"do":"key","key":"Esc","on":"but5"})");
  EXPECT_EQ(send(R"({"do":"state"})")["focus"], "but5");
  EXPECT_EQ(logged("box").size(), 1U);
}

TEST_F(DriverTest, RunsAndParagraphsCoverTheText) {
  openGuide();
  const Json surface = send(R"({"do":"surface","name":"Rcachhoc"})");
  const int length = static_cast<int>(surface["text"].get<std::string>().size());
  int reached = 0;
  for (const Json& run : surface["runs"]) {
    EXPECT_EQ(run["from"], reached);
    reached = run["to"].get<int>();
  }
  EXPECT_EQ(reached, length);
  const Json& paragraphs = surface["paragraphs"];
  EXPECT_EQ(paragraphs.front()["from"], 0);
  EXPECT_EQ(paragraphs.back()["to"], length);
}

TEST_F(DriverTest, ATextThatEndsALineHasAnEmptyLastParagraph) {
  openGuide();
  const Json surface = send(R"({"do":"surface","name":"Rcachhoc"})");
  ASSERT_EQ(surface["text"].get<std::string>().back(), '\r');
  const Json& last = surface["paragraphs"].back();
  EXPECT_EQ(last["from"], last["to"]);
}

TEST_F(DriverTest, ButtonsHaveAPictureToCompare) {
  start();
  const Json one = send(R"({"do":"surface","name":"but4"})");
  const Json other = send(R"({"do":"surface","name":"but5"})");
  const Json lit = send(R"({"do":"surface","name":"but1"})");
  EXPECT_EQ(one["picture"], other["picture"]);
  EXPECT_NE(one["picture"], lit["picture"]);
  EXPECT_EQ(one["tabIndex"], 4);
}

TEST_F(DriverTest, WaitingLetsVirtualTimePass) {
  start();
  send(R"({"do":"wait","ms":1234})");
  EXPECT_EQ(send(R"({"do":"state"})")["clock_ms"], 1234);
  EXPECT_TRUE(logged("sleep").empty());
}

TEST_F(DriverTest, ReadingTheLogEmptiesIt) {
  start();
  EXPECT_FALSE(send(R"({"do":"log"})")["entries"].empty());
  EXPECT_TRUE(send(R"({"do":"log"})")["entries"].empty());
}

} // namespace
} // namespace talvora
