#include "shell/RedPlate.h"

#include "surface/Looks.h"
#include "text/Rounding.h"

namespace talvora {

void fitRedPlate(Surface& plate, const Surface& box, const Measures& measures, PlateRim rim) {
  const double W = measures.RongMH;
  const double H = measures.CaoMH;
  const int left = Round(2 * W / 400);
  const int right = 2 * Round(2 * W / (rim == PlateRim::Even ? 400 : 350)) - left;
  plate.BackColor(look::popup::Plate);
  plate.Text(" ");
  plate.Height(box.Height() + Round(2 * H / 100));
  plate.Width(box.Width() + left + right);
  plate.Top(box.Top() - Round(2 * H / 200));
  plate.Left(box.Left() - left);
  plate.Visible(true);
}

} // namespace talvora
