// What the learner owns, as the sections use it.
#pragma once

#include "learner/LearnerWords.h"
#include "learner/ListPlaces.h"
#include "platform/Calendar.h"
#include "platform/FileSystem.h"
#include "stores/Stores.h"

#include <string>

namespace talvora {

struct LearnerData {
  LearnerData(const std::string& folder, Stores& stores, FileSystem& files,
              const Calendar& calendar)
      : words(folder, files, calendar), lists(folder, stores, files) {}

  /// Takes the pack in hand, once its stores are open.
  void takePack(const Stores& stores);

  LearnerWords words;
  ListPlaces lists;
};

} // namespace talvora
