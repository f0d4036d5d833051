#include "fronts/KeyHelp.h"

#include "fronts/Links.h"
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

std::u16string_view keyHelp(const Form& form) {
  if (explanationHasLink(form)) return u"Tab: tới bài được nhắc · F10: mở bài";
  if (!hintsAreUp(form)) return {};
  if (hasKeyboard(form, "Rchon")) {
    return u"Shift+mũi tên: chọn nhiều từ · Delete: xóa";
  }
  return u"F10, Shift+F10: chuột trái, phải · Chuột giữa: Enter";
}

std::u16string_view allKeyHelp() {
  return u"F2: gợi ý của trang này\n"
         u"Nút giữa của chuột: như phím Enter\n"
         u"F10: như bấm chuột trái ở con trỏ\n"
         u"Shift+F10: như bấm chuột phải ở con trỏ\n"
         u"Tab: tới bài mà lời giải nhắc đến\n"
         u"Delete: xóa từ khỏi từ vựng của bạn";
}

} // namespace talvora
