#include "exercises/Exercises.h"

namespace talvora {

void Exercises::declare(Variables& variables) const {
  store.declare(variables);
  scoring.declare(variables);
  item.declare(variables);
  box.declare(variables);
  run.declare(variables);
}

} // namespace talvora
