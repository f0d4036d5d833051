// A dictionary on a scripted machine, with word files that the test writes.
#pragma once

#include "dictionary/Dictionary.h"
#include "platform/scripted/ScriptedMachine.h"
#include "program/ProgramControls.h"
#include "sound/AmthanhThuc.h"
#include "support/TestFolder.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::test {

/// A line of the word list and the entry that belongs to it.
struct Word {
  std::string line;
  std::string entry; ///< without its character 13
};

/// The words with the 26 letter lines among them, each section sorted by its normal forms.
[[nodiscard]] std::vector<Word> withLetterLines(const std::vector<Word>& words);

/// Writes datatu.txt, data.mtd and data.avt.
void writeWordFiles(const TestFolder& folder, const std::vector<Word>& lines,
                    std::string_view lineEnd = "\r\n");

class DictionaryRun {
 public:
  /// Everything stands as after a start-up with these words.
  explicit DictionaryRun(const std::vector<Word>& words);

  /// Looks a word up as a click on it does.
  void lookUp(const std::string& word);
  /// Reads the text of an entry off the popup after a look-up.
  [[nodiscard]] std::string shown() { return controls.RHD.Text(); }
  /// A whole key stroke on the look-up list.
  void key(int keyCode, char character);
  void type(std::string_view text);
  /// The texts that were spoken.
  [[nodiscard]] std::vector<std::string> spoken() const;

  TestFolder folder;
  ScriptedMachine machine;
  Form form;
  ProgramControls controls;
  SharedState state;
  Stores stores;
  Shell shell;
  RecordedVoice voice;
  Speech speech;
  Dictionary dictionary;

 private:
  /// The pages of a reading text and of its list, which the program's sections add.
  void addTextPages();
};

} // namespace talvora::test
