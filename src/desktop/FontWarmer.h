// Makes the letters of the pages ready ahead of their first use.
#pragma once

#include "desktop/LetterAtlas.h"
#include "platform/TextStyle.h"
#include "reading/ReadingControls.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <vector>

namespace talvora {

/// The styles that the next pages are mostly written in: those of the popup, which a click waits
/// for, of the text as soon as its list is open, and of the hint bar.
[[nodiscard]] std::vector<CharStyle> stylesOf(const ReadingControls& controls);

/// Loads faces, shapes the Vietnamese letters and has Qt draw their pictures in the scale of the
/// screen, a few letters at a time, so that no click waits for that.
class FontWarmer final : public QObject {
 public:
  /// Large letters become pictures of the atlas, which lives as long as this does.
  explicit FontWarmer(LetterAtlas& letters);

  /// Goes from style to style in the order given; those that are ready already cost nothing.
  void warm(std::vector<CharStyle> styles, double pixelsPerTwip);
  /// All that is left, at once.
  void finish();

 private:
  void step();
  /// Has pictures made of letters in the style that is being made ready.
  void draw(const QString& letters);

  LetterAtlas& atlas_;
  std::vector<CharStyle> styles_; ///< to be made ready
  std::vector<CharStyle> ready_;  ///< in this scale
  QString letters_;
  double scale_ = 0;
  std::size_t style_ = 0;
  qsizetype letter_ = 0;
  QTimer pace_;
};

} // namespace talvora
