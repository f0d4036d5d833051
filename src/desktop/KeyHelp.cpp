#include "desktop/KeyHelp.h"

#include "desktop/Links.h"
#include "surface/Surface.h"

namespace talvora {

namespace {

/// The hint bar, called up, stands at the top; words and blanks have it elsewhere.
bool hintsAreUp(const Form& form) {
  const Control* const bar = form.find("RDOS");
  return bar != nullptr && bar->Visible() && bar->Top() == 0;
}

bool explanationHasLink(const Form& form) {
  const auto* const box = as<Surface>(form.find("RHDBT"));
  return box != nullptr && box->Visible() && nextLessonLink(*box, -1) >= 0;
}

bool hasKeyboard(const Form& form, const char* name) {
  const Control* const page = form.ActiveControl();
  return page != nullptr && page->Name() == name;
}

} // namespace

QString keyHelp(const Form& form) {
  if (explanationHasLink(form)) return QStringLiteral("Tab: tới bài được nhắc · F10: mở bài");
  if (!hintsAreUp(form)) return {};
  if (hasKeyboard(form, "Rchon")) {
    return QStringLiteral("Shift+mũi tên: chọn nhiều từ · Delete: xóa");
  }
  return QStringLiteral("F10, Shift+F10: chuột trái, phải · Chuột giữa: Enter");
}

QString allKeyHelp() {
  return QStringLiteral("F2: gợi ý của trang này\n"
                        "Nút giữa của chuột: như phím Enter\n"
                        "F10: như bấm chuột trái ở con trỏ\n"
                        "Shift+F10: như bấm chuột phải ở con trỏ\n"
                        "Tab: tới bài mà lời giải nhắc đến\n"
                        "Delete: xóa từ khỏi từ vựng của bạn");
}

} // namespace talvora
