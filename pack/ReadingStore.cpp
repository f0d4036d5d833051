// Layout of texts and translations in a stream.
#include "pack/ReadingStore.h"

#include "formats/Integers.h"
#include "formats/PackFiles.h"
#include "pack/Message.h"
#include "pack/StreamText.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace talvora::pack {

namespace {

constexpr char lineEnd = '\r';
constexpr char textEnd = '@';
constexpr char sentenceMark = '_';
constexpr std::string_view paragraphBreak = "\r_\t";

std::string layOutTranslation(const ReadingText& text) {
  std::string plain;
  for (const Paragraph& paragraph : text.paragraphs) {
    for (const SentencePair& pair : paragraph)
      plain += sentenceMark + pair.vietnamese;
  }
  return plain + textEnd;
}
ReadingText openText() {
  return {openSlotTitle(),
          {{{"This text is coming soon.",
             ownText("Bài này đang được soạn, mời bạn chọn một bài khác nhé.")}}}};
}

ReadingText textOfSlot(const ReadingSource& source, int slot) {
  const auto text = source.texts.find(slot);
  if (text != source.texts.end()) return text->second;
  const auto heading = source.headings.find(slot);
  return heading != source.headings.end() ? ReadingText{"*" + heading->second, {}} : openText();
}

std::vector<std::string> split(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  while (true) {
    const std::size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, std::min(end, text.size())));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + separator.size());
  }
}

/// Takes a text apart into its title and paragraphs of sentences.
std::optional<ReadingText> textFrom(std::string_view plain, std::string_view translation) {
  if (!plain.ends_with(lineEnd)) return std::nullopt;
  plain.remove_suffix(1);
  const auto paragraphs = split(plain, paragraphBreak);
  const auto translations = split(translation, std::string_view(&sentenceMark, 1));
  ReadingText text{paragraphs.front(), {}};
  std::size_t next = 1;
  for (std::size_t place = 1; place < paragraphs.size(); ++place) {
    Paragraph& paragraph = text.paragraphs.emplace_back();
    for (std::string& english : split(paragraphs[place], " _")) {
      if (next == translations.size()) return std::nullopt;
      paragraph.push_back({std::move(english), translations[next++]});
    }
  }
  return next == translations.size() ? std::optional(text) : std::nullopt;
}

} // namespace

std::string shownText(const ReadingText& text) {
  std::string plain = text.title;
  for (const Paragraph& paragraph : text.paragraphs) {
    plain += paragraphBreak;
    for (std::size_t place = 0; place < paragraph.size(); ++place) {
      if (place > 0) plain += {' ', sentenceMark};
      plain += paragraph[place].english;
    }
  }
  return plain + lineEnd;
}

std::string openSlotTitle() {
  return ownText("(đang soạn)");
}

// Each text's record holds the place just ahead of its first byte: records count from 1, so that
// this is the length of the stream so far.
TextStore compileTexts(const std::vector<ReadingText>& texts) {
  TextStore store;
  for (const ReadingText& text : texts) {
    appendInteger(store.positions, store.stream.size());
    appendStored(store.stream, shownText(text) + textEnd);
  }
  for (const ReadingText& text : texts) {
    appendInteger(store.positions, store.stream.size());
    appendStored(store.stream, layOutTranslation(text));
  }
  appendInteger(store.positions, store.stream.size());
  return store;
}

TextStore compileReadings(const ReadingSource& source, int slots) {
  std::vector<ReadingText> texts;
  for (int slot = 1; slot <= slots; ++slot)
    texts.push_back(textOfSlot(source, slot));
  return compileTexts(texts);
}

ReadingSource decodeReadings(std::string_view positions, std::string_view stream,
                             Problems& problems, int slots) {
  const auto shift = static_cast<std::size_t>(slots);
  ReadingSource source;
  for (int slot = 1; slot <= slots; ++slot) {
    const auto record = static_cast<std::size_t>(slot);
    const auto plain = storedUntil(stream, integerAt(positions, record), textEnd);
    const auto translation = storedUntil(stream, integerAt(positions, record + shift), textEnd);
    auto text = plain && translation ? textFrom(*plain, *translation) : std::nullopt;
    if (!text) {
      problems.add(
          {std::string(slots == ReadingSlots ? packfile::ReadingTexts : packfile::SpeakingTexts)},
          said("text {} cannot be read", slot));
    } else if (text->title.starts_with('*')) {
      source.headings.emplace(slot, text->title.substr(1));
    } else if (text->title != openSlotTitle()) {
      source.texts.emplace(slot, std::move(*text));
    }
  }
  return source;
}

} // namespace talvora::pack
