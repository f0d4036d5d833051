// The pages of the sections, as the shell knows them: what each section says once of its surfaces.
// The shell names none of them.
#pragma once

#include "shell/Controls.h"
#include "surface/Form.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// Font size of a surface from the start on, against the screen class's own.
enum class FontStep { AsItIs, Smaller, Same, Larger };

/// Where a surface stands until it is first shown.
enum class Parked { WhereItIs, BelowTheScreen, BelowAndBeside };

/// Which of the two shared carets is a page's: the text's, or the list's behind it.
enum class SharedCaret { None, OfText, OfList };

/// A hint of the bar: two lines, or three; a line that is empty is not there.
struct Hint {
  std::array<std::string_view, 3> lines;
  std::function<bool()> holds = {}; ///< empty when it always does
};

struct Page {
  Surface& surface;
  bool textFont = false; ///< "x1" from the start
  FontStep font = FontStep::AsItIs;
  bool bold = false;
  Parked parked = Parked::WhereItIs;
  std::optional<Colour> paper = {}; ///< back colour from the start
  /// Under which surface's name the pointer's part in it is kept; empty where none is kept from the
  /// start.
  std::string_view pointerName = {};
  SharedCaret caret = SharedCaret::None;
  /// The page explains another one, over which it stands.
  bool explains = false;
  /// The card on which the page stands when it was opened over another page; null when it never is.
  const Control* cardOverPage = nullptr;
  /// In the order in which they are asked; the first that holds counts.
  std::vector<Hint> hints = {};
};

class Pages {
 public:
  explicit Pages(Form& form) : form_(form) {}

  /// Throws std::logic_error when the surface or its shared caret is taken.
  void add(Page page);
  /// Throws std::logic_error naming a surface of the form that nobody has added, or when a layer of
  /// the form is nobody's. For the start.
  void check() const;

  [[nodiscard]] const std::vector<Page>& all() const noexcept { return pages_; }
  /// What a surface's section has said of it; null when nobody has.
  [[nodiscard]] const Page* find(const Surface& surface) const noexcept;

  /// The page whose caret is kept as the text's or the list's; null when there is none.
  [[nodiscard]] Surface* withCaret(SharedCaret caret) const noexcept;
  /// Whether a page stands over another one, from which it was opened.
  [[nodiscard]] bool pageOverPage() const noexcept;
  /// Gives the keyboard to the foremost page that explains nothing; does nothing without one.
  void focusForemost();
  /// Gives the keyboard to an explanation that stands behind a popup, unless a page covers it.
  void focusExplanationBehind(const Surface& popup);

 private:
  Form& form_;
  std::vector<Page> pages_;
};

} // namespace talvora
