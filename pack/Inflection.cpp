// The regular rules, and which forms of which word the sources give.
#include "pack/Inflection.h"

#include "pack/StreamText.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace talvora::pack {

namespace {

struct KindName {
  FormKind kind;
  std::string_view text;
};

constexpr std::array<KindName, 10> kindNames = {{
    {FormKind::Present, "hiện tại"},
    {FormKind::Plural, "dạng số nhiều"},
    {FormKind::ThirdPerson, "ngôi thứ ba số ít"},
    {FormKind::Past, "quá khứ"},
    {FormKind::Participle, "quá khứ phân từ"},
    {FormKind::PastAndParticiple, "quá khứ và quá khứ phân từ"},
    {FormKind::PastOrParticiple, "quá khứ hoặc quá khứ phân từ"},
    {FormKind::Ing, "dạng -ing"},
    {FormKind::Comparative, "so sánh hơn"},
    {FormKind::Superlative, "so sánh nhất"},
}};

constexpr ClassSet gradable{WordClass::Adjective, WordClass::Adverb};

bool isVowel(char letter) {
  return std::string_view("aeiou").find(letter) != std::string_view::npos;
}

int vowelGroups(std::string_view word) {
  int groups = 0;
  bool before = false;
  for (const char letter : word) {
    const bool vowel = isVowel(letter) || letter == 'y';
    if (vowel && !before) ++groups;
    before = vowel;
  }
  return groups;
}

bool endsInConsonantY(std::string_view word) {
  return word.size() > 1 && word.back() == 'y' && !isVowel(word[word.size() - 2]);
}

/// Consonant, vowel, consonant at the end: the last one may double.
bool mayDouble(std::string_view word) {
  const std::size_t size = word.size();
  if (size < 3 || std::string_view("aeiouwxy").find(word.back()) != std::string_view::npos) {
    return false;
  }
  const bool afterQ = size > 3 && word[size - 3] == 'u' && word[size - 4] == 'q';
  return isVowel(word[size - 2]) && (!isVowel(word[size - 3]) || afterQ);
}

std::vector<std::string> withS(const std::string& word) {
  for (const std::string_view hiss : {"s", "x", "z", "ch", "sh"}) {
    if (word.ends_with(hiss)) return {word + "es"};
  }
  if (endsInConsonantY(word)) return {word.substr(0, word.size() - 1) + "ies"};
  if (word.ends_with('o')) return {word + "es", word + "s"};
  return {word + "s"};
}

/// The word with an ending that begins with a vowel: "ed", "ing", "er", "est".
std::vector<std::string> withVowelEnding(const std::string& word, std::string_view ending) {
  const std::string tail(ending);
  if (word.ends_with('e')) {
    const bool keepsE = tail == "ing" && (word.ends_with("ee") || word.ends_with("oe") ||
                                          word.ends_with("ye") || word.ends_with("nge"));
    if (word.ends_with("ie") && tail == "ing") return {word.substr(0, word.size() - 2) + "ying"};
    if (keepsE) return {word + tail};
    return {word.substr(0, word.size() - 1) + tail};
  }
  if (endsInConsonantY(word) && tail != "ing")
    return {word.substr(0, word.size() - 1) + "i" + tail};
  if (!mayDouble(word)) {
    return word.ends_with('c') ? std::vector{word + "k" + tail, word + tail}
                               : std::vector{word + tail};
  }
  // A short word must double; undoubled it would be taken for a form of the word that ends in e.
  if (vowelGroups(word) == 1) return {word + word.back() + tail};
  return {word + tail, word + word.back() + tail};
}

/// Adds a form, or one more thing that a form serves for. A rule that knows what a listed past
/// serves for settles it.
void addForm(std::vector<Form>& forms, const std::string& text, FormKind kind) {
  const auto same = [&text](const Form& form) { return form.text == text; };
  const auto found = std::find_if(forms.begin(), forms.end(), same);
  if (found == forms.end()) {
    forms.push_back({text, {kind}});
  } else if (kind == FormKind::PastAndParticiple && found->is(FormKind::PastOrParticiple)) {
    std::replace(found->kinds.begin(), found->kinds.end(), FormKind::PastOrParticiple, kind);
  } else if (found->kinds.size() < 2 && !found->is(kind)) {
    found->kinds.push_back(kind);
  }
}

/// The one verb that no rule and no list of pasts covers.
std::vector<Form> formsOfBe() {
  return {{"am", {FormKind::Present}},  {"is", {FormKind::ThirdPerson}},
          {"are", {FormKind::Present}}, {"was", {FormKind::Past}},
          {"were", {FormKind::Past}},   {"been", {FormKind::Participle}},
          {"being", {FormKind::Ing}}};
}

/// Words that look like a form of another one and are none: no rule can tell.
constexpr std::array<std::pair<std::string_view, std::string_view>, 5> falseForms = {
    {{"foreign", "foreigner"},
     {"live", "liver"},
     {"math", "maths"},
     {"out", "outer"},
     {"own", "owner"}}};

bool isFalseForm(std::string_view base, std::string_view form) {
  return contains(falseForms, std::pair{base, form});
}

FormKind kindOf(std::string_view form, WordClass wordClass) {
  if (wordClass == WordClass::Noun) return FormKind::Plural;
  if (wordClass == WordClass::Adjective || wordClass == WordClass::Adverb) {
    return form.ends_with("st") ? FormKind::Superlative : FormKind::Comparative;
  }
  if (form.ends_with("ing")) return FormKind::Ing;
  return form.ends_with('s') ? FormKind::ThirdPerson : FormKind::PastOrParticiple;
}

bool hasKind(const std::vector<Form>& forms, FormKind kind) {
  return std::any_of(forms.begin(), forms.end(),
                     [kind](const Form& form) { return form.is(kind); });
}

/// The class of a list of forms when they show it together: "better, best", "bet, bet".
std::optional<WordClass> classOfForms(const OwnEntry& entry, ClassSet classes) {
  const auto& forms = entry.block.forms;
  if (forms.size() < 2) return std::nullopt;
  if (forms.back().ends_with("st") && forms.front() != forms.back() && classes.meets(gradable))
    return WordClass::Adjective;
  const bool verb = classes.meets({WordClass::Verb, WordClass::Modal});
  return verb ? std::optional(WordClass::Verb) : std::nullopt;
}

/// The class that a listed irregular form of an entry belongs to: the one that WordNet lists it
/// under, else the one that the forms show, else the first of the entry's classes that has forms.
WordClass classOfForm(const OwnEntry& entry, const std::string& form, const WordNet& wordNet) {
  ClassSet classes;
  for (const Sense& sense : entry.block.senses)
    classes.add(sense.wordClass);
  const auto listed = wordNet.exceptions.find(lower(entry.head));
  if (listed != wordNet.exceptions.end()) {
    for (const ExceptionForm& each : listed->second) {
      if (each.form == form && classes.has(each.wordClass)) return each.wordClass;
    }
  }
  if (const auto shown = classOfForms(entry, classes)) return *shown;
  const auto& senses = entry.block.senses;
  for (const Sense& sense : senses) {
    if (sense.wordClass == WordClass::Modal) return WordClass::Verb;
    if (ClassSet{WordClass::Noun, WordClass::Verb, WordClass::Adjective, WordClass::Adverb}.has(
            sense.wordClass)) {
      return sense.wordClass;
    }
  }
  return gradable.has(senses.front().wordClass) ? senses.front().wordClass : WordClass::Adjective;
}

/// The kinds of a verb's listed pasts by their places: the past, then the participle. One that
/// serves for both says so; among more than two it cannot be told which is which.
FormKind kindOfPast(const std::vector<std::string>& pasts, std::size_t place) {
  if (pasts.size() > 2) return FormKind::PastOrParticiple;
  if (pasts.size() == 1 || pasts[0] == pasts[1]) return FormKind::PastAndParticiple;
  return place == 0 ? FormKind::Past : FormKind::Participle;
}

/// True for the kinds of a verb's past.
bool isPast(FormKind kind) {
  return kind == FormKind::Past || kind == FormKind::Participle ||
         kind == FormKind::PastAndParticiple || kind == FormKind::PastOrParticiple;
}

bool hasPast(const std::vector<Form>& forms) {
  return std::any_of(forms.begin(), forms.end(), [](const Form& form) {
    return std::any_of(form.kinds.begin(), form.kinds.end(), isPast);
  });
}

/// Adds regular forms of one kind that are known words.
class RegularForms {
 public:
  RegularForms(const std::string& base, std::vector<Form>& forms, const KnownWords& known)
      : base_(base), forms_(forms), known_(known) {}

  void add(const std::vector<std::string>& candidates, FormKind kind) {
    for (const std::string& candidate : candidates) {
      if (known_.count(lower(candidate)) != 0 && !isFalseForm(base_, candidate))
        addForm(forms_, candidate, kind);
    }
  }

 private:
  const std::string& base_;
  std::vector<Form>& forms_;
  const KnownWords& known_;
};

} // namespace

bool Form::is(FormKind kind) const {
  return contains(kinds, kind);
}

std::string formOf(const Form& form, std::string_view base) {
  std::string text;
  for (const FormKind kind : form.kinds) {
    if (!text.empty()) text += "; ";
    text += ownText(kindNames[static_cast<std::size_t>(kind)].text);
  }
  return text + ownText(" của ") + std::string(base);
}

ClassSet baseClassesOf(const Form& form) {
  ClassSet classes;
  for (const FormKind kind : form.kinds) {
    if (kind == FormKind::Plural) {
      classes.add(WordClass::Noun);
    } else if (kind == FormKind::Comparative || kind == FormKind::Superlative) {
      classes.add(gradable);
      classes.add({WordClass::Determiner, WordClass::Pronoun});
    } else {
      classes.add({WordClass::Verb, WordClass::Modal});
    }
  }
  return classes;
}

Inflections::Inflections(const std::vector<OwnEntry>& own, const WordNet& wordNet,
                         const KnownWords& known)
    : wordNet_(wordNet), known_(known) {
  std::size_t block = 0;
  const OwnEntry* before = nullptr;
  for (const OwnEntry& entry : own) {
    block = before != nullptr && before->head == entry.head ? block + 1 : 0;
    before = &entry;
    if (!entry.block.forms.empty() && !entry.block.senses.empty()) readOwn(entry, block);
  }
}

void Inflections::readOwn(const OwnEntry& entry, std::size_t block) {
  std::vector<Form> forms;
  std::vector<std::string> pasts;
  for (const std::string& form : entry.block.forms) {
    const auto alternatives = alternativesOf(form);
    const FormKind kind =
        kindOf(alternatives.front(), classOfForm(entry, alternatives.front(), wordNet_));
    if (kind == FormKind::PastOrParticiple) {
      pasts.push_back(form);
      continue;
    }
    for (const std::string& alternative : alternatives)
      addForm(forms, alternative, kind);
  }
  for (std::size_t place = 0; place < pasts.size(); ++place) {
    for (const std::string& past : alternativesOf(pasts[place]))
      addForm(forms, past, kindOfPast(pasts, place));
  }
  for (Form& form : forms) {
    // "got" and "got/gotten": what is the past and a participle says both in one.
    if (form.is(FormKind::Past) && form.is(FormKind::Participle))
      form.kinds = {FormKind::PastAndParticiple};
    form.block = block;
    own_[entry.head].push_back(std::move(form));
  }
}

/// Adds the irregular forms of the database, as far as our own source lists none of the kind.
void Inflections::addListed(std::vector<Form>& forms, const std::string& base,
                            ClassSet classes) const {
  const auto listed = wordNet_.exceptions.find(lower(base));
  if (listed == wordNet_.exceptions.end()) return;
  const std::vector<Form> own = forms;
  const bool pastGiven = hasPast(own);
  for (const ExceptionForm& each : listed->second) {
    // "might" is the past of "may" and never a participle: auxiliaries have none.
    const bool auxiliary = each.wordClass == WordClass::Verb && classes.has(WordClass::Modal);
    const FormKind listedKind = kindOf(each.form, each.wordClass);
    const FormKind kind = auxiliary && isPast(listedKind) ? FormKind::Past : listedKind;
    const bool already = std::any_of(own.begin(), own.end(),
                                     [&each](const Form& form) { return form.text == each.form; });
    if (!(classes.has(each.wordClass) || auxiliary) || already || hasKind(own, kind)) continue;
    if (!(isPast(kind) && pastGiven)) addForm(forms, each.form, kind);
  }
}

std::vector<Form> Inflections::formsOf(const std::string& base, ClassSet classes) const {
  if (base == "be" && classes.has(WordClass::Verb)) return formsOfBe();
  const auto own = own_.find(base);
  std::vector<Form> forms = own != own_.end() ? own->second : std::vector<Form>{};
  const bool pluralGiven = hasKind(forms, FormKind::Plural);
  const bool degreeGiven = hasKind(forms, FormKind::Comparative);
  const bool pastGiven = hasPast(forms);
  addListed(forms, base, classes);
  if (base.size() < 2) return forms;
  RegularForms regular(base, forms, known_);
  if (classes.has(WordClass::Noun) && !pluralGiven) regular.add(withS(base), FormKind::Plural);
  if (classes.has(WordClass::Verb)) {
    regular.add(withS(base), FormKind::ThirdPerson);
    if (!pastGiven) regular.add(withVowelEnding(base, "ed"), FormKind::PastAndParticiple);
    regular.add(withVowelEnding(base, "ing"), FormKind::Ing);
  }
  // What is a preposition too has degrees only where they are listed: "offer" is no more of "off".
  const bool takesDegrees = classes.meets(gradable) && !classes.has(WordClass::Preposition);
  if (takesDegrees && !degreeGiven && vowelGroups(base) <= 2) {
    regular.add(withVowelEnding(base, "er"), FormKind::Comparative);
    regular.add(withVowelEnding(base, "est"), FormKind::Superlative);
  }
  return forms;
}

std::string Inflections::pluralOf(const std::string& noun) const {
  for (const Form& form : formsOf(noun, {WordClass::Noun})) {
    if (form.is(FormKind::Plural)) return form.text;
  }
  return {};
}

} // namespace talvora::pack
