#include "learner/LearnerData.h"

namespace talvora {

void LearnerData::takePack(const Stores& stores) {
  const TextCatalogue catalogue(stores);
  lists.open(catalogue);
  static_cast<void>(words.carry(catalogue));
}

} // namespace talvora
