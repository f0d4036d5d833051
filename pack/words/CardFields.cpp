#include "pack/words/CardFields.h"

namespace talvora::pack {

namespace {

std::string escaped(std::string_view text) {
  std::string html;
  for (const char character : text) {
    switch (character) {
    case '&':
      html += "&amp;";
      break;
    case '<':
      html += "&lt;";
      break;
    case '>':
      html += "&gt;";
      break;
    case '"':
      html += "&quot;";
      break;
    default:
      html += character;
    }
  }
  return html;
}

std::string markedHtml(const WordCard& card) {
  const MarkedSentence parts = markedSentence(card.sentence, card.word);
  if (parts.word.empty()) return escaped(card.sentence);
  return escaped(parts.before) + "<b>" + escaped(parts.word) + "</b>" + escaped(parts.after);
}

std::string soundMark(const std::string& name) {
  return name.empty() ? "" : "[sound:" + name + "]";
}

std::string joined(const std::vector<std::string>& lines, std::string_view between) {
  std::string text;
  for (const std::string& line : lines) {
    if (!text.empty()) text += between;
    text += line;
  }
  return text;
}

} // namespace

Fields htmlFieldsOf(const SpokenCard& spoken) {
  const WordCard& card = spoken.card;
  std::vector<std::string> senses;
  for (const std::string& sense : card.senses)
    senses.push_back(escaped(sense));
  return {escaped(card.word),
          escaped(card.base),
          escaped(card.pronunciation),
          joined(senses, "<br>"),
          markedHtml(card),
          escaped(card.translation),
          escaped(card.title),
          soundMark(spoken.wordSound),
          soundMark(spoken.sentenceSound)};
}

Fields plainFieldsOf(const SpokenCard& spoken) {
  const WordCard& card = spoken.card;
  return {card.word,           card.base,        card.pronunciation, joined(card.senses, "; "),
          card.sentence,       card.translation, card.title,         spoken.wordSound,
          spoken.sentenceSound};
}

} // namespace talvora::pack
