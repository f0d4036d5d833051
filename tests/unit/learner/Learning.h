// A learner at the program, with a pack and a folder of their own that outlive it.
#pragma once

#include "learner/VocabularyFile.h"
#include "support/ProgramRun.h"
#include "support/TestFolder.h"
#include "tests/support/FaultyFiles.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace talvora::test {

using Texts = std::vector<std::string>;

inline StoredText bankText(int slot) {
  return {slot, "Our town\r_\tThe old bank stands. _A river runs here.\r", "_Mot._Hai."};
}

inline std::string record(const std::string& word, std::int32_t place) {
  std::string bytes = paddedWord(word);
  for (int shift = 0; shift < 32; shift += 8)
    bytes += static_cast<char>(static_cast<std::uint32_t>(place) >> shift & 0xFFU);
  return bytes;
}

/// Every write fails from now on.
inline void fillDisk(FaultyFiles& files) {
  files.counts = [](const std::string& call, const std::string&) { return call == "write"; };
  files.failAlways();
}

/// No file of a name can be read from now on.
inline void hideContent(FaultyFiles& files, const std::string& name) {
  files.looksCount = true;
  files.counts = [name](const std::string& call, const std::string& path) {
    return call == "read" && path.ends_with("/" + name);
  };
  files.failAlways(std::errc::io_error);
}

/// Nothing may be written from now on.
inline void forbidWriting(FaultyFiles& files) {
  files.readOnly = true;
  files.failAlways(std::errc::read_only_file_system);
}

/// A program on a pack and a learner's folder that outlive it.
class Learning {
 public:
  Learning(const TestFolder& pack, const TestFolder& own) : run({pack.path(), own.path()}) {}

  void openText(const std::string& title = "Our town") {
    run.clickButton(1);
    run.controls().RDOS.Visible(false);
    Surface& R1 = run.controls().R1;
    R1.SelStart(static_cast<int>(R1.Text().find(title)));
    R1.releaseMouse(MouseButton::Left, shift::None, {});
  }
  void add(const std::string& word) {
    Surface& R2 = run.controls().R2;
    run.click(R2, static_cast<int>(R2.Text().find(word)) + 1);
    run.key(key::Enter);
  }
  void leaveText() {
    while (run.controls().R1.Visible() || run.controls().R2.Visible())
      run.key(key::Esc);
  }
  /// Takes a word of the text and goes back to the menu.
  void take(const std::string& word) {
    openText();
    add(word);
    leaveText();
  }
  void openList() { run.clickButton(2); }
  void leaveList() {
    while (run.controls().Rchon.Visible())
      run.key(key::Esc);
  }
  /// Deletes the first word of the list that is open.
  void removeFirstShown() {
    Surface& Rchon = run.controls().Rchon;
    run.machine.boxes.answer(BoxAnswer::Yes);
    Rchon.SelStart(0);
    Rchon.SelLength(static_cast<int>(Rchon.Text().find('\r')));
    Rchon.releaseMouse(MouseButton::Left, shift::None, {});
  }
  /// Deletes the first word and goes back to the menu.
  void removeFirst() {
    openList();
    removeFirstShown();
    leaveList();
  }
  /// The sentence that the list shows for its first word; the list stays open.
  [[nodiscard]] std::string sentenceOfFirst() {
    openList();
    run.doubleClick(run.controls().Rchon, 3);
    return run.text("ChuoiCau");
  }
  [[nodiscard]] Texts words() {
    openList();
    Texts words;
    std::string word;
    for (const char each : run.controls().Rchon.Text()) {
      if (each == '\r') words.push_back(std::exchange(word, {}));
      if (each == '\t') word.clear();
      if (each != '\r' && each != '\t') word += each;
    }
    leaveList();
    return words;
  }
  [[nodiscard]] Texts boxes() const {
    Texts texts;
    for (const LogEntry& entry : run.machine.log.entries()) {
      if (entry.what == "box") texts.push_back(std::get<std::string>(*entry.find("text")));
    }
    return texts;
  }

  ProgramRun run;
};

/// The same, started.
class Started : public Learning {
 public:
  Started(const TestFolder& pack, const TestFolder& own) : Learning(pack, own) { run.start(); }
};

class WithLearnersFolder : public testing::Test {
 protected:
  WithLearnersFolder() {
    ProgramRun writer;
    writer.writeTexts({bankText(4)});
    std::filesystem::copy(writer.folder.path(), pack.path(),
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::overwrite_existing);
    own.write("Yes1", "");
  }
  /// Writes the pack anew.
  void writeTexts(const std::vector<StoredText>& texts) {
    ProgramRun writer;
    writer.writeTexts(texts);
    for (const char* name : {"data.vt", "data.av"})
      pack.write(name, writer.folder.read(name));
  }
  /// Puts something in the list's place that cannot be read.
  void hideList() {
    std::filesystem::remove(own.pathOf("data.c"));
    std::filesystem::create_directory(own.pathOf("data.c"));
  }
  void bringListBack(const std::string& records) {
    std::filesystem::remove(own.pathOf("data.c"));
    own.write("data.c", records);
  }
  /// A run in which a word is taken.
  void liveTaking(const std::string& word) { Started(pack, own).take(word); }
  /// A run that is killed when words have been taken and their text is still open.
  void dieTaking(const Texts& words) {
    Started learning(pack, own);
    learning.openText();
    for (const std::string& word : words)
      learning.add(word);
  }
  /// The words at the next start.
  Texts wordsNextTime() { return Started(pack, own).words(); }

  TestFolder pack;
  TestFolder own;
};

} // namespace talvora::test
