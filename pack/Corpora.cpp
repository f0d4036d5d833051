// Gathering the running words.
#include "pack/Corpora.h"

#include "pack/ClickedWords.h"
#include "pack/CourseItems.h"
#include "pack/Message.h"
#include "pack/Recordings.h"
#include "pack/StreamText.h"

#include <algorithm>
#include <iterator>

namespace talvora::pack {

namespace {

/// Collects the words of one corpus.
class Collector {
 public:
  explicit Collector(std::string_view name, CorpusLanguage language = CorpusLanguage::Right)
      : corpus_{name, {}, language} {}

  void add(std::string_view text) { take(clickedWords(text)); }
  void add(const MarkedLine& line) { take(clickedWords(line)); }

  void addLines(std::string_view text) {
    while (!text.empty()) {
      const std::size_t end = std::min(text.find('\r'), text.size());
      add(text.substr(0, end));
      text.remove_prefix(std::min(end + 1, text.size()));
    }
  }

  void add(const ReadingText& text) {
    add(std::string_view(text.title));
    for (const Paragraph& paragraph : text.paragraphs) {
      for (const SentencePair& pair : paragraph)
        add(std::string_view(pair.english));
    }
  }

  void add(const ExplanationLines& lines) {
    for (const ExplanationLine& line : lines) {
      if (!line.refersTo) add(line.text);
    }
  }

  void add(const Item& item) {
    addLines(item.question);
    for (const std::string& option : item.options)
      add(std::string_view(option));
    for (const std::string& hint : item.hints)
      add(std::string_view(hint));
    add(item.general);
    for (const auto& [number, lines] : item.explanations)
      add(lines);
  }

  // The remarks are Vietnamese; what they say of English words stands between quotation marks.
  void addQuoted(std::string_view text) {
    constexpr std::string_view marks = "\"\x93\x94";
    while (true) {
      const std::size_t opening = text.find_first_of(marks);
      if (opening == std::string_view::npos) return;
      const std::size_t closing = text.find_first_of(marks, opening + 1);
      if (closing == std::string_view::npos) return;
      add(text.substr(opening + 1, closing - opening - 1));
      text.remove_prefix(closing + 1);
    }
  }

  [[nodiscard]] Corpus takeCorpus() { return std::move(corpus_); }

 private:
  void take(std::vector<std::string> words) {
    std::move(words.begin(), words.end(), std::back_inserter(corpus_.words));
  }

  Corpus corpus_;
};

enum class Recorded { No, Yes };

Corpus readingsOf(std::string_view name, const ReadingSource& readings, Recorded recorded) {
  Collector collector(name);
  for (const auto& [slot, text] : readings.texts) {
    if ((slot >= FirstRecordedText) == (recorded == Recorded::Yes)) collector.add(text);
  }
  return collector.takeCorpus();
}

Corpus speakingOf(const ReadingSource& speaking) {
  Collector collector(toSay("speaking texts"));
  for (const auto& [slot, text] : speaking.texts)
    collector.add(text);
  return collector.takeCorpus();
}

Corpus listeningOf(const ListeningSource& listening) {
  Collector collector(toSay("listening items"));
  for (const auto& [unit, questions] : listening.units) {
    for (const ListeningQuestion& question : questions) {
      collector.add(std::string_view(question.right));
      for (const std::string& wrong : question.wrong)
        collector.add(std::string_view(wrong));
    }
  }
  return collector.takeCorpus();
}

Corpus analysesOf(const AnalysisSource& analyses) {
  Collector collector(toSay("analyses"));
  for (const auto& [number, stretches] : analyses.analyses) {
    for (const AnalysisEntry& stretch : stretches) {
      collector.add(std::string_view(stretch.field(AnalysisField::Word)));
      collector.add(std::string_view(stretch.field(AnalysisField::Needed)));
      for (const std::string& field : stretch.fields)
        collector.addQuoted(field);
    }
  }
  return collector.takeCorpus();
}

Corpus lessonsOf(const LessonSource& lessons) {
  Collector collector(toSay("lessons"));
  for (const auto& [slot, lesson] : lessons.lessons) {
    for (const MarkedLine& line : lesson.lines) {
      if (!line.text.starts_with("Sai:")) collector.add(line);
    }
  }
  return collector.takeCorpus();
}

Corpus itemsOf(std::string_view name, const std::vector<Item>& items) {
  Collector collector(name, CorpusLanguage::WithMistakes);
  for (const Item& item : items)
    collector.add(item);
  return collector.takeCorpus();
}

Corpus lessonItemsOf(const ExerciseSource& exercises) {
  Collector collector(toSay("items of lessons"), CorpusLanguage::WithMistakes);
  for (const auto& [slot, items] : exercises.lessons) {
    for (const Item& item : items)
      collector.add(item);
  }
  return collector.takeCorpus();
}

Corpus dictionaryOf(const std::vector<OwnEntry>& own) {
  Collector collector(toSay("the dictionary itself"));
  for (const OwnEntry& entry : own) {
    for (const Sense& sense : entry.block.senses) {
      collector.add(std::string_view(sense.example).substr(0, sense.example.find(" = ")));
      collector.add(std::string_view(sense.pattern));
    }
    for (const FixedPhrase& phrase : entry.block.phrases)
      collector.add(std::string_view(phrase.english));
  }
  return collector.takeCorpus();
}

} // namespace

std::vector<Corpus> corporaOf(const Content& content) {
  std::vector<Corpus> corpora = {readingsOf(toSay("reading texts"), content.readings, Recorded::No),
                                 readingsOf(toSay("scripts"), content.readings, Recorded::Yes),
                                 speakingOf(content.speaking),
                                 listeningOf(content.listening),
                                 analysesOf(content.analyses),
                                 lessonsOf(content.lessons),
                                 lessonItemsOf(content.exercises)};
  for (std::size_t bank = 0; bank < BankCount; ++bank)
    corpora.push_back(itemsOf(BankNames[bank], content.exercises.banks[bank]));
  corpora.push_back(dictionaryOf(content.words.own));
  return corpora;
}

} // namespace talvora::pack
