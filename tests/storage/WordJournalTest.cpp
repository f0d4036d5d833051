// Lines of the side file and of the journal: what is written comes back, what is broken does not.
#include "learner/WordJournal.h"

#include "platform/Files.h"
#include "support/TestFolder.h"
#include "tests/support/FaultyFiles.h"
#include "text/Bytes.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>

#include <sys/stat.h>

namespace talvora {
namespace {

using namespace literals;
using test::FaultyFiles;
using test::TestFolder;

WordRow rowOf(const std::string& word, std::int32_t place, const std::string& sentence) {
  WordRow row;
  row.word = word;
  row.pack = "0123456789abcdef";
  row.where = {
      place < 0 ? TextKind::Speaking : TextKind::Reading, 4, 2, "The bank", sentence, place};
  return row;
}

TEST(WordRow, ComesBackAsItWasWritten) {
  for (const WordRow& row : {rowOf("bank", 17, "It stands by the river. "), rowOf("I'm", -5, ""),
                             rowOf("well-known", 0, "A \"well-known\" man.")}) {
    EXPECT_EQ(rowFrom(lineOf(row)), row);
  }
}

TEST(WordRow, IsWrittenAsPeopleReadIt) {
  WordRow row = rowOf("bank", 17, "");
  row.where.title = "Không tìm thÍy"_bytes;
  EXPECT_EQ(lineOf(row), "bank\t17\t0123456789abcdef\treading\t4\t2\tKhông tìm thấy\t");
  EXPECT_EQ(rowFrom(lineOf(row)), row);
}

TEST(WordRow, HasNoTabsOrLineEndsOfItsOwn) {
  WordRow row = rowOf("bank", 17, "one\ttwo\nthree\rfour");
  const auto back = rowFrom(lineOf(row));
  ASSERT_TRUE(back);
  EXPECT_EQ(back->where.words, "one two three four");
}

TEST(WordRow, IsRefusedWhenItIsNone) {
  const std::string good = lineOf(rowOf("bank", 17, "Here."));
  for (const std::string& line :
       {std::string(), std::string("bank"), good + "\tmore",
        "\t" + good.substr(good.find('\t') + 1), std::string("bank\tx\t0\treading\t1\t1\tT\tS"),
        std::string("bank\t1\t0\tother\t1\t1\tT\tS"),
        std::string("bank\t99999999999\t0\treading\t1\t1\tT\tS"),
        std::string("abcdefghijklmnopqrstu\t1\t0\treading\t1\t1\tT\tS")}) {
    EXPECT_FALSE(rowFrom(line)) << line;
  }
}

TEST(WordRow, AFileOfThemIsReadPastWhatIsBroken) {
  const std::vector<WordRow> rows = {rowOf("bank", 17, "Here."), rowOf("go", 18, "There.")};
  std::string content = fileOf(rows);
  content.insert(content.find('\n') + 1, "\xFF\xFE nonsense\n\n");
  EXPECT_EQ(rowsFrom(content), rows);
}

class Journal : public testing::Test {
 protected:
  static WordDeed added(const std::string& word) {
    return {WordDeed::Kind::Added, rowOf(word, 17, "It stands by the river. ")};
  }
  static WordDeed removed(const std::string& word) {
    return {WordDeed::Kind::Removed, rowOf(word, 17, "It stands by the river. ")};
  }
  /// Lets each call fail by which a deed gets behind the others: each time it is told, and the
  /// journal has the others alone. Gives how many calls there are.
  int failAtEachCall(const std::vector<WordDeed>& others, const WordDeed& deed) {
    const auto begin = [&] {
      std::filesystem::remove(folder.pathOf("words.journal"));
      for (const WordDeed& other : others)
        EXPECT_FALSE(journal.append({other}));
      files.calls = 0;
    };
    begin();
    EXPECT_FALSE(journal.append({deed}));
    const int calls = files.calls;
    for (int call = 1; call <= calls; ++call) {
      begin();
      files.failFrom = files.failTo = call;
      EXPECT_TRUE(journal.append({deed})) << call;
      files.failNever();
      EXPECT_EQ(journal.read(), others) << call;
    }
    return calls;
  }

  TestFolder folder;
  FaultyFiles files;
  WordJournal journal{folder.pathOf("words.journal"), files};
};

using Deeds = std::vector<WordDeed>;

TEST_F(Journal, HoldsTheDeedsInTheirOrder) {
  EXPECT_EQ(journal.read(), Deeds{});
  EXPECT_FALSE(journal.append({added("bank")}));
  EXPECT_FALSE(journal.append({added("go"), removed("bank")}));
  EXPECT_EQ(journal.read(), (Deeds{added("bank"), added("go"), removed("bank")}));
  EXPECT_FALSE(journal.clear());
  EXPECT_EQ(journal.read(), Deeds{});
  EXPECT_FALSE(journal.append({added("go")}));
  EXPECT_EQ(journal.read(), Deeds{added("go")});
}

TEST_F(Journal, CutOffAnywhereKeepsEveryDeedThatIsWhole) {
  EXPECT_FALSE(journal.append({added("bank")}));
  const std::size_t whole = folder.read("words.journal").size();
  EXPECT_FALSE(journal.append({added("go")}));
  const std::string content = folder.read("words.journal");
  for (std::size_t length = 0; length < content.size() - 1; ++length) {
    folder.write("words.journal", content.substr(0, length));
    const auto left = journal.read();
    EXPECT_EQ(left, length < whole - 1 ? Deeds{} : Deeds{added("bank")}) << length;
    // What comes behind half a line is whole.
    EXPECT_FALSE(journal.append({added("river")}));
    ASSERT_FALSE(journal.read()->empty());
    EXPECT_EQ(journal.read()->back(), added("river")) << length;
  }
}

TEST_F(Journal, WordsThatWereDeletedTogetherAreGoneTogetherOrStay) {
  EXPECT_FALSE(journal.append({added("bank"), added("go"), added("river")}));
  const std::string before = folder.read("words.journal");
  EXPECT_FALSE(journal.append({removed("bank"), removed("go"), removed("river")}));
  const std::string content = folder.read("words.journal");
  EXPECT_EQ(journal.read()->size(), 6U);
  for (std::size_t length = before.size(); length < content.size() - 1; ++length) {
    folder.write("words.journal", content.substr(0, length));
    EXPECT_EQ(journal.read()->size(), 3U) << length;
    // Nor does a later deletion take the half one along.
    EXPECT_FALSE(journal.append({removed("river")}));
    EXPECT_EQ(journal.read(), (Deeds{added("bank"), added("go"), added("river"), removed("river")}))
        << length;
  }
}

TEST_F(Journal, ADeedWhoseBytesHaveChangedCountsForNothing) {
  EXPECT_FALSE(journal.append({added("bank")}));
  const std::string content = folder.read("words.journal");
  for (std::size_t at = 1; at + 1 < content.size(); ++at) {
    std::string changed = content;
    changed[at] = static_cast<char>(changed[at] ^ 1);
    folder.write("words.journal", changed);
    EXPECT_EQ(journal.read(), Deeds{}) << at;
  }
}

TEST_F(Journal, AFailureAtAnyCallLeavesItAsItWas) {
  EXPECT_GE(failAtEachCall({added("bank")}, added("go")), 3);
}

TEST_F(Journal, ALookThatFailsAddsNothing) {
  files.looksCount = true;
  EXPECT_GE(failAtEachCall({added("bank")}, added("go")), 3);
}

TEST_F(Journal, OneThatCannotBeMadeIsTold) {
  files.looksCount = true;
  EXPECT_GE(failAtEachCall({}, added("bank")), 3);
}

TEST_F(Journal, OneThatCannotBeReadIsNoEmptyOne) {
  EXPECT_EQ(journal.read(), Deeds{}) << "there is none";
  EXPECT_FALSE(journal.append({added("bank")}));
  files.looksCount = true;
  files.failAlways(std::errc::io_error);
  EXPECT_EQ(journal.read(), std::nullopt);
  files.failNever();
  EXPECT_EQ(journal.read(), Deeds{added("bank")});
}

TEST_F(Journal, IsNotKeptInAFolder) {
  std::filesystem::create_directory(folder.pathOf("words.journal"));
  EXPECT_TRUE(journal.append({added("bank")}));
  folder.remove("words.journal");
  ASSERT_EQ(::mkfifo(folder.pathOf("words.journal").c_str(), 0600), 0);
  EXPECT_EQ(journal.append({added("bank")}), std::errc::invalid_argument);
}

TEST_F(Journal, AClearingThatFailsIsToldAndKeepsItOrEmptiesIt) {
  EXPECT_FALSE(journal.clear()) << "there is none";
  EXPECT_FALSE(journal.append({added("bank")}));
  files.looksCount = true;
  files.calls = 0;
  EXPECT_FALSE(journal.clear());
  const int calls = files.calls;
  EXPECT_GE(calls, 4) << "looked at, opened, emptied, synced";
  EXPECT_FALSE(journal.clear()) << "it is empty";
  for (int call = 1; call <= calls; ++call) {
    files.looksCount = false;
    EXPECT_FALSE(journal.append({added("bank")}));
    files.looksCount = true;
    files.calls = 0;
    files.failFrom = files.failTo = call;
    EXPECT_TRUE(journal.clear()) << call;
    files.failNever();
    EXPECT_EQ(journal.read(), call == calls ? Deeds{} : Deeds{added("bank")}) << call;
    EXPECT_FALSE(journal.clear());
  }
}

TEST_F(Journal, OneThatMayNotBeWrittenIsTakenAwayToBeCleared) {
  EXPECT_FALSE(journal.append({added("bank")}));
  files.counts = [](const std::string& call, const std::string&) { return call == "open"; };
  for (const std::errc forbidden :
       {std::errc::permission_denied, std::errc::operation_not_permitted,
        std::errc::read_only_file_system}) {
    files.failAlways(forbidden);
    EXPECT_FALSE(journal.clear());
    EXPECT_EQ(journal.read(), Deeds{});
    files.failNever();
    EXPECT_FALSE(journal.append({added("go")}));
  }
}

TEST_F(Journal, OneWhoseFolderCouldNotBeSyncedIsSyncedWithItsNextDeed) {
  files.counts = [](const std::string& call, const std::string&) { return call == "syncFolder"; };
  files.failFrom = files.failTo = 1;
  EXPECT_TRUE(journal.append({added("bank")}));
  EXPECT_FALSE(journal.append({added("bank")}));
  EXPECT_EQ(files.calls, 2);
}

/// A line of the journal with the check that belongs to it, whatever it says.
std::string checked(const std::string& text) {
  std::uint32_t sum = 2166136261U;
  for (const char byte : text)
    sum = (sum ^ static_cast<unsigned char>(byte)) * 16777619U;
  char digits[9];
  std::snprintf(digits, sizeof digits, "%08x", sum);
  return digits + ("\t" + text) + "\n";
}

TEST_F(Journal, ALineThatSaysNothingKnownCountsForNothing) {
  const std::string row = lineOf(rowOf("bank", 17, "Here."));
  for (const std::string& text : {"?\t" + row, "+" + row, "+x" + row, std::string("+\tno row"),
                                  std::string("+\t"), std::string("+")}) {
    folder.write("words.journal", checked(text));
    EXPECT_EQ(journal.read(), Deeds{}) << text;
  }
  folder.write("words.journal", checked("+\t" + row));
  EXPECT_EQ(journal.read()->size(), 1U) << "the test's own check is right";
  folder.write("words.journal", "12345678 no tab behind the check");
  EXPECT_EQ(journal.read(), Deeds{});
}

TEST_F(Journal, ADeletionAheadOfANewWordIsWhole) {
  EXPECT_FALSE(journal.append({removed("bank"), added("go")}));
  EXPECT_EQ(journal.read(), (Deeds{removed("bank"), added("go")}));
}

} // namespace
} // namespace talvora
