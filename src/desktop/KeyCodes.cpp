#include "desktop/KeyCodes.h"

#include "fronts/MouseKeys.h"
#include "platform/Input.h"
#include "text/Bytes.h"

namespace talvora {

int keyCodeOf(const QKeyEvent& event) {
  switch (event.key()) {
  case Qt::Key_Backspace:
    return key::Backspace;
  case Qt::Key_Tab:
  case Qt::Key_Backtab:
    return key::Tab;
  case Qt::Key_Return:
  case Qt::Key_Enter:
    return key::Enter;
  case Qt::Key_Shift:
    return key::Shift;
  case Qt::Key_Control:
    return key::Ctrl;
  case Qt::Key_Alt:
    return key::Alt;
  case Qt::Key_Escape:
    return key::Esc;
  case Qt::Key_PageUp:
    return key::PgUp;
  case Qt::Key_PageDown:
    return key::PgDn;
  case Qt::Key_End:
    return key::End;
  case Qt::Key_Home:
    return key::Home;
  case Qt::Key_Left:
    return key::Left;
  case Qt::Key_Up:
    return key::Up;
  case Qt::Key_Right:
    return key::Right;
  case Qt::Key_Down:
    return key::Down;
  case Qt::Key_Delete:
    return key::Delete;
  case Qt::Key_Menu:
    return key::Menu;
  default:
    break;
  }
  if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F12) {
    constexpr int F1 = 112;
    return F1 + event.key() - Qt::Key_F1;
  }
  // Qt's codes of letters, digits and marks are their capitals' own.
  return event.key() < 0x100 ? event.key() : 0;
}

int shiftOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? shift::Shift : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? shift::Ctrl : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? shift::Alt : 0);
}

char characterOf(const QKeyEvent& event) {
  switch (event.key()) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
    return '\r';
  case Qt::Key_Escape:
    return chr(key::Esc);
  case Qt::Key_Backspace:
    return chr(key::Backspace);
  case Qt::Key_Tab:
  case Qt::Key_Backtab:
    return '\t';
  default:
    break;
  }
  if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) return '\0';
  const QString text = event.text();
  if (text.size() != 1) return '\0';
  const char16_t unit = text.front().unicode();
  // English is typed, and the window asks for no input method: a Telex or VNI keyboard that the
  // learner has on for other programs composes nothing here, so that "aa" stays two letters. A
  // letter beyond the single-byte range has no key in the program.
  return unit >= 0x20 && unit <= 0xFF ? chr(unit) : '\0';
}

} // namespace talvora
