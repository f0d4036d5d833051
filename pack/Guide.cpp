// Rich text of the guide.
#include "pack/Guide.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "text/Bytes.h"

#include <algorithm>
#include <array>

namespace talvora::pack {

namespace {

/// A kind of line: what opens it in the source, and the paragraph in rich text.
struct LineKind {
  std::string_view opener;
  std::string_view before;
  std::string_view after;
};

// The longer openers stand first; the last kind takes every line.
constexpr std::array<LineKind, 4> lineKinds = {{
    {"## ", R"(\pard\ql\b\cf2\fs46 )", R"(\b0\cf1\fs40\par)"},
    {"# ", R"(\pard\qc\b\cf2\fs56 )", R"(\b0\cf1\fs40\par)"},
    {"- ", R"(\pard\ql\pnlvlblt\li360 )", R"(\par)"},
    {"", R"(\pard\ql )", R"(\par)"},
}};

/// A span inside a line, opened and closed by the same two marks.
struct SpanKind {
  std::string_view mark;
  std::string_view on;
  std::string_view off;
};

constexpr std::array<SpanKind, 2> spanKinds = {{{"**", "\\b ", "\\b0 "}, {"//", "\\i ", "\\i0 "}}};

/// Writes the stretches of one line, switching spans where their marks stand.
class LineWriter {
 public:
  LineWriter(std::string& rtf, Problems& problems) : rtf_(rtf), problems_(problems) {}

  void write(std::string_view text, const Where& where) {
    std::size_t from = 0;
    for (std::size_t at = 0; at < text.size();) {
      const SpanKind* span = spanAt(text.substr(at));
      if (span == nullptr) {
        ++at;
        continue;
      }
      writeStretch(text, from, at, where);
      toggle(*span);
      at += span->mark.size();
      from = at;
    }
    writeStretch(text, from, text.size(), where);
    if (open_[0] || open_[1])
      problems_.add(where, said("a ** or // span of this line is not closed"));
  }

 private:
  static const SpanKind* spanAt(std::string_view text) {
    for (const SpanKind& span : spanKinds) {
      if (text.starts_with(span.mark)) return &span;
    }
    return nullptr;
  }

  void writeStretch(std::string_view text, std::size_t from, std::size_t to, const Where& where) {
    const auto ahead = text.substr(0, from);
    const auto letters = std::count_if(ahead.begin(), ahead.end(), [](char byte) {
      return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80;
    });
    const Where place{where.file, where.line, where.column + static_cast<int>(letters)};
    appendRichText(rtf_, sourceText(text.substr(from, to - from), place, "", problems_));
  }

  void toggle(const SpanKind& span) {
    bool& open = open_[static_cast<std::size_t>(&span - spanKinds.data())];
    open = !open;
    rtf_ += open ? span.on : span.off;
  }

  std::string& rtf_;
  Problems& problems_;
  std::array<bool, 2> open_{};
};

} // namespace

std::string richTextOpening() {
  return R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\fnil x1;}})"
         R"({\colortbl;\red0\green0\blue117;\red113\green57\blue57;\red0\green0\blue255;})"
         "\n\\f0\\fs40\\cf1\n";
}

void appendRichText(std::string& rtf, std::string_view bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  for (const char byte : bytes) {
    const auto code = static_cast<std::size_t>(asc(byte));
    if (byte == '\\' || byte == '{' || byte == '}') {
      rtf += {'\\', byte};
    } else if (code >= 128) {
      rtf += {'\\', '\'', digits[code / 16], digits[code % 16]};
    } else {
      rtf += byte;
    }
  }
}

std::string compileGuide(std::string_view text, const std::string& file, Problems& problems) {
  std::string rtf = richTextOpening();
  for (const SourceLine& line : linesOf(text)) {
    if (line.text.empty()) continue;
    const auto kind =
        std::find_if(lineKinds.begin(), lineKinds.end(),
                     [&line](const LineKind& each) { return line.text.starts_with(each.opener); });
    rtf += kind->before;
    const int column = static_cast<int>(kind->opener.size()) + 1;
    LineWriter(rtf, problems)
        .write(line.text.substr(kind->opener.size()), {file, line.number, column});
    rtf += kind->after;
    rtf += '\n';
  }
  return rtf + "}\n";
}

} // namespace talvora::pack
