// The exercises as the program uses them: one of each of their modules, wired to each other.
#pragma once

#include "exercises/ExplanationBox.h"
#include "exercises/ItemKinds.h"
#include "exercises/ItemPage.h"
#include "exercises/ItemState.h"
#include "exercises/ItemStore.h"
#include "exercises/ModelAnswer.h"
#include "exercises/Run.h"
#include "exercises/Scoring.h"
#include "exercises/UnitList.h"
#include "exercises/XepTu.h"
#include "lessons/VanPham.h"
#include "platform/Random.h"

namespace talvora {

struct Exercises {
  Exercises(Form& form, ExerciseControls& controls, SharedState& state, Stores& stores,
            Shell& shell, PageServices pageServices, VanPham& lessons, Random& random);
  Exercises(const Exercises&) = delete;
  Exercises& operator=(const Exercises&) = delete;

  void declare(Variables& variables) const;

  ItemStore store;
  Scoring scoring;
  ItemState item;
  ItemKinds kinds;
  ModelAnswer answer;
  ExplanationBox box;
  UnitList units;
  WordHelp words;
  XepTu ordering;
  RunCalls runCalls;
  ItemServices services;
  Run run;
};

} // namespace talvora
