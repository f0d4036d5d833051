#include "exercises/BackNextLinks.h"

#include "surface/Looks.h"

namespace talvora {

BackNextLinks writeLinks(Surface& surface, Colour gap) {
  BackNextLinks links;
  surface.SelColor(look::Red);
  links.DauBack = surface.SelStart();
  surface.SelText("<Back>");
  links.CuoiBack = surface.SelStart();
  surface.SelColor(gap);
  surface.SelText("    ");
  surface.SelColor(look::Red);
  links.DauNext = surface.SelStart();
  surface.SelText("<Next>");
  links.CuoiNext = surface.SelStart();
  return links;
}

BackNextLinks ThemBackNext(Surface& surface) {
  const Colour before = surface.SelColor();
  surface.SelStart(surface.TextLength());
  surface.SelText('\r');
  surface.SelAlignment(Alignment::Centred);
  const BackNextLinks links = writeLinks(surface, look::Black);
  surface.SelIndent(0);
  surface.SelStart(links.CuoiBack + 2);
  surface.SelColor(before);
  return links;
}

void BackNextLinks::declare(Variables& variables) const {
  variables.add("DauBack", &DauBack);
  variables.add("CuoiBack", &CuoiBack);
  variables.add("DauNext", &DauNext);
  variables.add("CuoiNext", &CuoiNext);
}

} // namespace talvora
