// The regular rules, and which forms of which word the sources give.
#include "pack/Inflection.h"

#include "pack/StreamText.h"
#include "text/Text.h"

#include <algorithm>
#include <array>

namespace talvora::pack {

namespace {

struct KindName {
  FormKind kind;
  std::string_view text;
};

constexpr std::array<KindName, 9> kindNames = {{
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

/// Adds a form, or one more thing that a form serves for.
void addForm(std::vector<Form>& forms, const std::string& text, FormKind kind) {
  const auto same = [&text](const Form& form) { return form.text == text; };
  const auto found = std::find_if(forms.begin(), forms.end(), same);
  if (found == forms.end()) {
    forms.push_back({text, {kind}});
  } else if (found->kinds.size() < 2 && !found->is(kind)) {
    found->kinds.push_back(kind);
  }
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

/// The class that a listed irregular form of an entry belongs to: the one that WordNet lists it
/// under, else the first of the entry's classes that has forms.
WordClass classOfForm(const OwnEntry& entry, const std::string& form, const WordNet& wordNet) {
  ClassSet classes;
  for (const Sense& sense : entry.senses)
    classes.add(sense.wordClass);
  const auto listed = wordNet.exceptions.find(lower(entry.head));
  if (listed != wordNet.exceptions.end()) {
    for (const ExceptionForm& each : listed->second) {
      if (each.form == form && classes.has(each.wordClass)) return each.wordClass;
    }
  }
  for (const Sense& sense : entry.senses) {
    if (sense.wordClass == WordClass::Modal) return WordClass::Verb;
    if (ClassSet{WordClass::Noun, WordClass::Verb, WordClass::Adjective, WordClass::Adverb}.has(
            sense.wordClass)) {
      return sense.wordClass;
    }
  }
  return gradable.has(entry.senses.front().wordClass) ? entry.senses.front().wordClass
                                                      : WordClass::Adjective;
}

/// Adds regular forms of one kind that are known words.
class RegularForms {
 public:
  RegularForms(std::vector<Form>& forms, const KnownWords& known) : forms_(forms), known_(known) {}

  void add(const std::vector<std::string>& candidates, FormKind kind) {
    for (const std::string& candidate : candidates) {
      if (known_.count(lower(candidate)) != 0) addForm(forms_, candidate, kind);
    }
  }

 private:
  std::vector<Form>& forms_;
  const KnownWords& known_;
};

} // namespace

bool Form::is(FormKind kind) const {
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
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
  for (const OwnEntry& entry : own) {
    if (!entry.forms.empty() && !entry.senses.empty()) readOwn(entry);
  }
}

// A verb lists its past and then its participle; a single form serves for both.
void Inflections::readOwn(const OwnEntry& entry) {
  std::vector<Form>& forms = own_[entry.head];
  std::vector<std::string> pasts;
  for (const std::string& form : entry.forms) {
    const FormKind kind = kindOf(form, classOfForm(entry, form, wordNet_));
    if (kind == FormKind::PastOrParticiple) {
      pasts.push_back(form);
    } else {
      addForm(forms, form, kind);
    }
  }
  for (std::size_t place = 0; place < pasts.size(); ++place) {
    const FormKind kind = pasts.size() == 1  ? FormKind::PastAndParticiple
                          : pasts.size() > 2 ? FormKind::PastOrParticiple
                          : place == 0       ? FormKind::Past
                                             : FormKind::Participle;
    addForm(forms, pasts[place], kind);
  }
}

std::vector<Form> Inflections::formsOf(const std::string& base, ClassSet classes) const {
  const auto own = own_.find(base);
  std::vector<Form> forms = own != own_.end() ? own->second : std::vector<Form>{};
  const bool pluralGiven = hasKind(forms, FormKind::Plural);
  const bool degreeGiven = hasKind(forms, FormKind::Comparative);
  const auto listed = wordNet_.exceptions.find(lower(base));
  if (listed != wordNet_.exceptions.end()) {
    for (const ExceptionForm& each : listed->second) {
      const bool already = std::any_of(
          forms.begin(), forms.end(), [&each](const Form& form) { return form.text == each.form; });
      if (classes.has(each.wordClass) && !already) {
        addForm(forms, each.form, kindOf(each.form, each.wordClass));
      }
    }
  }
  if (base.size() < 2) return forms;
  RegularForms regular(forms, known_);
  if (classes.has(WordClass::Noun) && !pluralGiven) regular.add(withS(base), FormKind::Plural);
  if (classes.has(WordClass::Verb)) {
    regular.add(withS(base), FormKind::ThirdPerson);
    regular.add(withVowelEnding(base, "ed"), FormKind::PastAndParticiple);
    regular.add(withVowelEnding(base, "ing"), FormKind::Ing);
  }
  if (classes.meets(gradable) && !degreeGiven && vowelGroups(base) <= 2) {
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
