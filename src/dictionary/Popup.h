// The popup beside the pointer: a dictionary entry in its colours, or the translation of a
// sentence.
#pragma once

#include "dictionary/DictionaryControls.h"
#include "dictionary/EntryMarkup.h"
#include "shell/Shell.h"
#include "sound/Speech.h"
#include "surface/Form.h"
#include "surface/State.h"

#include <functional>
#include <string>
#include <string_view>

namespace talvora {

/// What a popup shows, and where.
struct PopupContent {
  std::string text;           ///< a head word, "~" and its entry; or what stands in for them
  std::size_t headLength = 0; ///< of the head word, which stands out
  std::string message;        ///< shown in the place of the text, where there is one
  SurfacePoint pointer;       ///< beside which it stands, twips on its surface
};

class Popup {
 public:
  Popup(Form& form, DictionaryControls& controls, SharedState& state, Shell& shell, Speech& speech)
      : form_(form), controls_(controls), state_(state), shell_(shell), speech_(speech) {}

  void HienNghia(const PopupContent& content);
  /// Fits the red plate behind the popup, and moves both up or left by as much as they would leave
  /// the form.
  void VeKhung();
  /// Takes the popup down, ends speech, and gives the focus back.
  void DongNghia();
  /// Writes a message, wrapped and in the colours of a message, and sizes the popup to it; its
  /// place and the red plate are left to `VeKhung`.
  void writeMessage(const std::string& message);

  void declare(Variables& variables) const;

  /// What stands in for the entry while `XemCauTuVung` is set; set by the vocabulary.
  std::function<void(const std::string& text)> VeCauTuVung = [](const std::string&) {};

  bool XemCauTuVung = false; ///< the sentence of a vocabulary word is to be shown

 private:
  void place(SurfacePoint pointer);
  void VeNghia(const PopupContent& content);
  void VeMucTu(const PopupContent& content);
  void VeThongBao(const std::string& message);
  void CoHopNghia();
  /// Right edge of the text that messages belong to, in twips.
  [[nodiscard]] int rightOfText() const;
  /// Height of so many lines of text, in twips.
  [[nodiscard]] int heightOf(int lines) const;

  Form& form_;
  DictionaryControls& controls_;
  SharedState& state_;
  Shell& shell_;
  Speech& speech_;
};

/// A message cut so that its first line fits a width.
struct WrappedMessage {
  std::string firstLine;
  int lines = 1;
};

/// Cuts a message at blanks into more and more lines until the first of them fits `room`, in twips.
/// A single word that does not fit stays as it is.
[[nodiscard]] WrappedMessage wrapMessage(const std::string& message, double room,
                                         const std::function<int(std::string_view)>& widthOf);

} // namespace talvora
