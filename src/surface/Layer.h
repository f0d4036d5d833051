// How the controls of the form lie over each other.
#pragma once

namespace talvora {

/// From the back to the front: a plate lies behind the surface that it backs, a text lies over the
/// list that it was opened from, and popups lie over everything that they explain.
enum class Layer {
  ListCard,
  TextList,
  LessonList,
  UnitList,
  WritingList,
  Vocabulary,
  Settings,
  Guide,
  PagePlate,
  PageCard,
  Text,
  ListeningItem,
  FillIn,
  Choice,
  Mistake,
  Dictation,
  ExplanationPlate,
  Explanation,
  FrontCard,
  Ordering,
  WritingTask,
  Lesson,
  LookUpList,
  PopupPlate,
  Popup,
  HintBar,
  Caption,
  LeftCurtain,
  RightCurtain,
  Count
};

} // namespace talvora
