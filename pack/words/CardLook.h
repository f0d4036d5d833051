// How a card looks in a flash-card program: the sides of the card and their style.
#pragma once

#include <string_view>

namespace talvora::pack {

/// The side that asks, the side that answers, and the style of both. Names in doubled braces are
/// those of the card's fields; a field that is empty leaves its part out.
inline constexpr std::string_view CardQuestion = R"(<div class="word">{{Từ}}</div>
<div class="sentence">{{Câu}}</div>
{{Tiếng của từ}})";

inline constexpr std::string_view CardAnswer = R"(<div class="word">{{Từ}}</div>
<div class="base">{{Dạng gốc}} <span class="sound">{{Phiên âm}}</span></div>
<div class="senses">{{Nghĩa}}</div>
<hr id="answer">
<div class="sentence">{{Câu}}</div>
{{#Dịch}}<div class="translation">{{Dịch}}</div>{{/Dịch}}
{{#Bài}}<div class="title">{{Bài}}</div>{{/Bài}}
{{Tiếng của câu}})";

// The colours are those of the program's pages: text, headings, the mark of a word, the page.
inline constexpr std::string_view CardStyle = R"(.card {
  font-family: Lato, "Noto Sans", sans-serif;
  font-size: 20px;
  line-height: 1.32;
  text-align: center;
  color: #000075;
  background-color: #fdfbf4;
}
.word { font-size: 32px; font-weight: bold; color: #713939; }
.base { margin-top: 6px; }
.sound { font-size: 18px; }
.senses { margin: 12px auto; max-width: 30em; text-align: left; }
.sentence { margin: 12px auto; max-width: 30em; }
.sentence b { color: #ff0000; }
.translation { font-style: italic; }
.title { margin-top: 14px; font-size: 14px; color: #713939; }
.nightMode.card { color: #d7dcff; background-color: #23232b; }
.nightMode .word, .nightMode .title { color: #e0b0a8; }
.nightMode .sentence b { color: #ff7a7a; }
)";

} // namespace talvora::pack
