#include "pack/texts/OwnText.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "pack/texts/SentenceCutter.h"
#include "text/CharClass.h"
#include "text/GlyphMap.h"
#include "text/Text.h"

#include <algorithm>
#include <system_error>

namespace talvora::pack {

namespace {

constexpr std::string_view titleMarks = "_`@|*";
constexpr std::string_view titleOpener = "title: ";
constexpr std::size_t longestTitle = 60;

/// A title within what a line of the list shows.
std::string shownTitle(std::string title) {
  if (title.size() <= longestTitle) return title;
  const std::size_t blank = title.rfind(' ', longestTitle);
  return title.substr(0, blank == std::string::npos ? longestTitle : blank) + "...";
}

/// "my-story_2" as "my story 2".
std::string titleOfName(const std::filesystem::path& file) {
  std::string title = file.stem().string();
  std::replace_if(
      title.begin(), title.end(), [](char each) { return each == '_' || each == '-'; }, ' ');
  return title;
}

bool hasLetters(std::string_view sentence) {
  return std::any_of(sentence.begin(), sentence.end(), [](char each) { return Letters.has(each); });
}

/// Cuts chapters into texts.
class Cutter {
 public:
  explicit Cutter(std::string bookTitle) : bookTitle_(std::move(bookTitle)) {}

  void read(const BroughtChapter& chapter) {
    const std::size_t first = texts_.size();
    begin();
    for (const std::string& paragraph : chapter.paragraphs) {
      const auto sentences = sentencesIn(trim(letters_.bytesOf(paragraph)));
      newParagraph_ = true;
      for (const std::string& sentence : sentences) {
        // Without a letter there is nothing to click on, and F6 could not move it.
        if (hasLetters(sentence)) add(sentence);
      }
    }
    nameFrom(first, chapter.title);
  }

  OwnTextsFromFile finish() { return {std::move(texts_), letters_.lost()}; }

 private:
  void begin() {
    texts_.emplace_back();
    sentences_ = 0;
    lettersOfText_ = 0;
    newParagraph_ = true;
  }

  void add(const std::string& sentence) {
    if (sentences_ == MostOwnSentences || lettersOfText_ + sentence.size() > MostOwnLetters)
      begin();
    if (newParagraph_) texts_.back().paragraphs.emplace_back();
    newParagraph_ = false;
    texts_.back().paragraphs.back().push_back({sentence, ""});
    ++sentences_;
    lettersOfText_ += sentence.size();
  }

  /// Names the texts of a chapter; of several each has its number.
  void nameFrom(std::size_t first, const std::string& chapterTitle) {
    if (texts_.back().paragraphs.empty()) texts_.pop_back();
    const std::string name = chapterTitle.empty() ? bookTitle_ : chapterTitle;
    LooseText titles(titleMarks);
    const std::string title = shownTitle(std::string(trim(titles.bytesOf(name))));
    const std::size_t parts = texts_.size() - first;
    for (std::size_t part = 1; part <= parts; ++part) {
      const std::string number = parts == 1 ? "" : " (" + std::to_string(part) + ")";
      texts_[first + part - 1].title = title + number;
    }
  }

  std::string bookTitle_;
  LooseText letters_{StreamMarks};
  std::vector<ReadingText> texts_;
  std::size_t sentences_ = 0;
  std::size_t lettersOfText_ = 0;
  bool newParagraph_ = true;
};

/// Comments may stand ahead of the title.
bool hasTitle(std::string_view text) {
  return text.starts_with(titleOpener) ||
         text.find("\n" + std::string(titleOpener)) != std::string_view::npos;
}

bool isTranslated(std::string_view text) {
  return hasTitle(text) || text.find("\n= ") != std::string_view::npos;
}

/// A text that is a source already; its title may be missing.
OwnTextsFromFile readTranslated(const std::string& text, const std::filesystem::path& file,
                                Problems& problems) {
  const std::string source =
      hasTitle(text) ? text : std::string(titleOpener) + titleOfName(file) + "\n" + text;
  return {{parseReadingText(source, file.string(), problems, Translated::WhereGiven)}, {}};
}

/// The offset of the first byte that is no UTF-8, from 0.
std::optional<std::size_t> badByte(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    if (!nextCodePoint(text, at)) return start;
  }
  return std::nullopt;
}

std::vector<BroughtChapter> chaptersOf(const std::filesystem::path& file, const std::string& text,
                                       Problems& problems) {
  const std::string ending = lower(file.extension().string());
  if (ending == ".epub") return chaptersOfBook(text, file.string(), problems);
  return ending == ".srt" ? chaptersOfSubtitles(text, file.string(), problems)
                          : chaptersOfPlainText(text);
}

} // namespace

OwnTextsFromFile ownTextsFromFile(const std::filesystem::path& file, Problems& problems) {
  std::error_code error;
  const auto size = std::filesystem::file_size(file, error);
  if (!error && size > LargestTextFile) {
    problems.add({file.string()}, said("the file is too large"));
    return {};
  }
  const bool isBook = lower(file.extension().string()) == ".epub";
  const std::string text = isBook ? readSource(file, problems) : readText(file, problems);
  const auto bad = isBook ? std::nullopt : badByte(text);
  if (bad) problems.add({file.string()}, said("byte {}: not valid UTF-8", *bad));
  if (!problems.none()) return {};
  if (!isBook && isTranslated(text)) return readTranslated(text, file, problems);
  Cutter cutter(titleOfName(file));
  for (const BroughtChapter& chapter : chaptersOf(file, text, problems))
    cutter.read(chapter);
  OwnTextsFromFile made = cutter.finish();
  if (made.texts.empty() && problems.none())
    problems.add({file.string()}, said("there are no sentences"));
  return made;
}

} // namespace talvora::pack
