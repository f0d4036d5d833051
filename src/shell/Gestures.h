// Behaviour that every text surface shares: what a mouse move does, what Esc closes first, what
// every key release cleans up, and the reminder on a section's first opening.
#pragma once

#include "platform/Desk.h"
#include "shell/Controls.h"
#include "shell/HintBar.h"
#include "shell/Pages.h"
#include "shell/UpwardCalls.h"
#include "surface/Rows.h"
#include "surface/State.h"

#include <functional>
#include <map>
#include <set>
#include <string>

namespace talvora {

/// What Esc closes first.
enum class CloseRank {
  Writing,
  Ordering,
  HintBar,
  LookUpList,
  LinkedLesson,
  Explanation,
  Popup,
  Mistake,
  Choice,
  FillIn,
  Count
};

class Gestures {
 public:
  Gestures(Controls& controls, const Pages& pages, const Measures& measures, WordAtHand& atHand,
           HintBar& hints, const UpwardCalls& upward, Clipboard& clipboard);

  /// Stores where the pointer came in, and takes the hint bar away once it has left that place.
  void pointerMoved(Surface& surface, SurfacePoint at);
  /// The pointer counts as having come in at the stored point: the hint bar goes once it leaves.
  void pointerCameIn(const Surface& surface) { stateOf(surface) = PointerState::PointStored; }
  /// Whether a point lies more than a twelfth of the screen from the stored one, in either axis.
  [[nodiscard]] bool isFar(SurfacePoint at) const;
  /// The whole pointer rule of a text: `pointerMoved`, then `RoiChuot`.
  void followPointer(Surface& surface, SurfacePoint at);
  /// The pointer left the word at hand: beyond a twelfth of the screen the word and its popup go.
  void RoiChuot(Surface& surface, SurfacePoint at);

  /// Closes the top thing that is open; false when nothing was.
  bool DongPhu(Surface& surface);
  /// What `DongPhu` does when that surface is the top thing; it is given the surface that asked.
  /// Where a condition is given, the surface counts only while it holds.
  /// Throws std::logic_error when the rank is taken.
  void onClose(
      CloseRank rank, const Surface& surface, std::function<void(Surface& asking)> action,
      std::function<bool()> holds = [] { return true; });

  /// What every key release begins with: nothing copied stays on the clipboard.
  void keyReleased();

  /// The F2 reminder, once for each section, while its surface has not been moved over.
  void remindOnFirstOpening(int section, const Surface& surface);

  void declare(Variables& variables) const;

  /// Throws std::logic_error when a rank is nobody's. For the start.
  void check() const { closingRows_.check("closing"); }

 private:
  enum class PointerState { NotMovedOver = 0, PointStored = 1, BarTakenAway = 2 };
  struct ClosingRow {
    const Surface* surface;
    std::function<void(Surface&)> action;
    std::function<bool()> holds;
  };

  /// Pages may share theirs.
  [[nodiscard]] PointerState& stateOf(const Surface& surface);

  const Pages& pages_;
  const Measures& measures_;
  WordAtHand& atHand_;
  const CurrentWord& word_;
  HintBar& hints_;
  const UpwardCalls& upward_;
  Clipboard& clipboard_;
  Rows<CloseRank, ClosingRow> closingRows_;
  std::map<std::string, PointerState> TrangThaiChuot_;
  std::set<int> reminded_;
};

} // namespace talvora
