// An exercise item as its source gives it: kind, heading, hints, question, options, explanations.
#pragma once

#include "pack/MarkedLine.h"
#include "pack/Problems.h"

#include <map>
#include <string>
#include <vector>

namespace talvora::pack {

class ItemKind;

/// Where items stand: the headings differ.
enum class ItemPlace { Bank, Lesson };

/// What explains the blanks of fill-in items: the items themselves, or the list of the verb lessons
/// that the program shows for two of the banks.
enum class BlankHelp { Own, VerbLessons };

/// A line of an explanation: text, or a reference to a lesson by its title.
struct ExplanationLine {
  MarkedLine text;       ///< for a reference its title
  bool refersTo = false; ///< the line refers to a lesson
  Where where;
};

using ExplanationLines = std::vector<ExplanationLine>;

/// The lesson that an item is said to practise, by its title.
struct Subject {
  std::string title; ///< empty for none
  Where where;
};

/// An item; texts in the text font's bytes.
struct Item {
  Where where;                    ///< of its first line
  std::string id;                 ///< a name to cite it by; empty for none
  Subject about;                  ///< the lesson it practises
  const ItemKind* kind = nullptr; ///< not null in an item that was read
  int heading = 0;                ///< its code; 0 for none
  std::vector<std::string> hints;
  std::string question; ///< as stored; of an ordering item its sentences
  std::vector<std::string> options;
  int key = 0; ///< number of the right option or the wrong phrase, from 1
  std::vector<std::string> translations;
  ExplanationLines general;
  std::map<int, ExplanationLines> explanations; ///< by number of the blank, option or phrase
};

} // namespace talvora::pack
