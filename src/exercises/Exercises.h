// The exercises as the program uses them: one of each of their modules, wired to each other.
#pragma once

#include "exercises/ExplanationBox.h"
#include "exercises/ItemPage.h"
#include "exercises/ItemState.h"
#include "exercises/ItemStore.h"
#include "exercises/ModelAnswer.h"
#include "exercises/Run.h"
#include "exercises/Scoring.h"
#include "exercises/UnitList.h"
#include "lessons/VanPham.h"
#include "platform/Random.h"

namespace talvora {

struct Exercises {
  Exercises(Form& form, Controls& controls, SharedState& state, Stores& stores, Shell& shell,
            PageServices pageServices, VanPham& lessons, Random& random)
      : store(stores), scoring(form, state.places, state.measures), answer(controls, item),
        box(form, controls, state, shell, pageServices, item, answer, lessons.page()),
        units(controls, state, stores, shell, scoring),
        words(controls, state, shell, pageServices), services{controls, state,  shell, words,
                                                              item,     answer, box,   runCalls},
        run(form, services, store, scoring, units, lessons, random) {}
  Exercises(const Exercises&) = delete;
  Exercises& operator=(const Exercises&) = delete;

  void declare(Variables& variables) const;

  ItemStore store;
  Scoring scoring;
  ItemState item;
  ModelAnswer answer;
  ExplanationBox box;
  UnitList units;
  WordHelp words;
  RunCalls runCalls;
  ItemServices services;
  Run run;
};

} // namespace talvora
