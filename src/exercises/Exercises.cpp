#include "exercises/Exercises.h"

#include "exercises/ItemKindTable.h"

namespace talvora {

Exercises::Exercises(Form& form, ExerciseControls& controls, SharedState& state, Stores& stores,
                     Shell& shell, PageServices pageServices, VanPham& lessons, Random& random)
    : store(stores), scoring(form, state.places, state.measures), answer(controls, item, kinds),
      box(form, controls, state, shell, pageServices, item, answer, kinds, lessons.page()),
      units(controls, state, stores, shell, scoring), words(controls, state, shell, pageServices),
      ordering(controls, state, stores, shell, pageServices, random, item.links),
      services{controls, state, shell, words, item, answer, box, ordering, runCalls},
      run(form, services, kinds, store, scoring, units, lessons, random) {
  addItemKinds(kinds, services);
  ordering.run.BaiTuChon = [&lessons] { return lessons.BaiTuChon; };
  ordering.run.SoCauChay = [this] { return run.SoCauChay(); };
  ordering.run.CauKeTiep = [this] { run.CauKeTiep(); };
  ordering.run.ThoatBT = [this](Surface& surface) { run.ThoatBT(surface); };
  ordering.run.clearChuCu = [this] { item.ChuCu.clear(); };
  ordering.run.BoChonBai = [this, &lessons] {
    lessons.BoChonBai();
    scoring.ChuPhu();
  };
}

void Exercises::declare(Variables& variables) const {
  store.declare(variables);
  scoring.declare(variables);
  item.declare(variables);
  box.declare(variables);
  run.declare(variables);
}

} // namespace talvora
