#include "fronts/KeptLayout.h"

#include <functional>
#include <string_view>

namespace talvora {

namespace {

std::uint64_t mixed(std::uint64_t hash, std::uint64_t value) {
  return (hash ^ value) * 0x9E3779B97F4A7C15U;
}

} // namespace

/// Paragraphs of one text that look different in another way still lie together; few do.
std::uint64_t ParagraphCopy::hashOf(const ParagraphView& view) {
  std::uint64_t hash = std::hash<std::string_view>{}(view.text);
  hash = mixed(hash, static_cast<std::uint64_t>(view.width));
  hash = mixed(hash, std::hash<double>{}(view.style.indent));
  for (const StyleRun& run : view.runs) {
    hash = mixed(hash, static_cast<std::uint64_t>(run.from));
    hash = mixed(hash, run.style->color);
    hash = mixed(hash, std::hash<double>{}(run.style->font.size));
  }
  return hash;
}

ParagraphCopy::ParagraphCopy(const ParagraphView& view, std::uint64_t hash)
    : hash_(hash), text_(view.text), style_(view.style), defaultFont_(view.defaultFont),
      width_(view.width) {
  for (const StyleRun& run : view.runs) {
    runStarts_.push_back(run.from);
    styles_.push_back(*run.style);
  }
}

bool ParagraphCopy::isOf(const ParagraphView& view) const {
  if (text_ != view.text || width_ != view.width || style_ != view.style ||
      defaultFont_ != view.defaultFont || styles_.size() != view.runs.size()) {
    return false;
  }
  for (std::size_t run = 0; run < styles_.size(); ++run) {
    if (runStarts_[run] != view.runs[run].from || styles_[run] != *view.runs[run].style)
      return false;
  }
  return true;
}

} // namespace talvora
