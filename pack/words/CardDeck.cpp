#include "pack/words/CardDeck.h"

#include "pack/ZipFile.h"
#include "pack/words/CardLook.h"
#include "pack/words/Database.h"
#include "pack/words/StableId.h"

#include <nlohmann/json.hpp>

#include <set>

namespace talvora::pack {

namespace {

using Json = nlohmann::json;

// Numbers by which a flash-card program knows our kind of note and our deck again. They never
// change: another number would be another deck.
constexpr std::int64_t noteKind = 1763769600001;
constexpr std::int64_t deckNumber = 1763769600002;
/// The release of the database's form that every importer reads.
constexpr std::int64_t databaseForm = 11;
/// What is to be learnt is counted from here: 2020-01-01, 04:00 UTC.
constexpr std::int64_t collectionStart = 1577851200;
constexpr std::int64_t msOfSecond = 1000;
constexpr std::int64_t notSynchronised = -1;
constexpr char fieldEnd = '\x1f';

// The tables and columns are those of the published form.
constexpr const char* tables = R"(
CREATE TABLE col (id integer PRIMARY KEY, crt integer NOT NULL, mod integer NOT NULL,
  scm integer NOT NULL, ver integer NOT NULL, dty integer NOT NULL, usn integer NOT NULL,
  ls integer NOT NULL, conf text NOT NULL, models text NOT NULL, decks text NOT NULL,
  dconf text NOT NULL, tags text NOT NULL);
CREATE TABLE notes (id integer PRIMARY KEY, guid text NOT NULL, mid integer NOT NULL,
  mod integer NOT NULL, usn integer NOT NULL, tags text NOT NULL, flds text NOT NULL,
  sfld integer NOT NULL, csum integer NOT NULL, flags integer NOT NULL, data text NOT NULL);
CREATE TABLE cards (id integer PRIMARY KEY, nid integer NOT NULL, did integer NOT NULL,
  ord integer NOT NULL, mod integer NOT NULL, usn integer NOT NULL, type integer NOT NULL,
  queue integer NOT NULL, due integer NOT NULL, ivl integer NOT NULL, factor integer NOT NULL,
  reps integer NOT NULL, lapses integer NOT NULL, left integer NOT NULL, odue integer NOT NULL,
  odid integer NOT NULL, flags integer NOT NULL, data text NOT NULL);
CREATE TABLE revlog (id integer PRIMARY KEY, cid integer NOT NULL, usn integer NOT NULL,
  ease integer NOT NULL, ivl integer NOT NULL, lastIvl integer NOT NULL, factor integer NOT NULL,
  time integer NOT NULL, type integer NOT NULL);
CREATE TABLE graves (usn integer NOT NULL, oid integer NOT NULL, type integer NOT NULL);
CREATE INDEX ix_notes_usn ON notes (usn);
CREATE INDEX ix_notes_csum ON notes (csum);
CREATE INDEX ix_cards_usn ON cards (usn);
CREATE INDEX ix_cards_nid ON cards (nid);
CREATE INDEX ix_cards_sched ON cards (did, queue, due);
CREATE INDEX ix_revlog_usn ON revlog (usn);
CREATE INDEX ix_revlog_cid ON revlog (cid);
)";

Json fieldList() {
  Json fields = Json::array();
  for (const std::string_view name : CardFieldNames) {
    fields.push_back({{"name", name},
                      {"ord", fields.size()},
                      {"font", "Lato"},
                      {"size", 20},
                      {"rtl", false},
                      {"sticky", false},
                      {"media", Json::array()}});
  }
  return fields;
}

Json kindsOfNotes(std::int64_t seconds) {
  const Json side = {{"name", DeckName},   {"ord", 0},    {"qfmt", CardQuestion},
                     {"afmt", CardAnswer}, {"bqfmt", ""}, {"bafmt", ""},
                     {"did", nullptr}};
  const Json needed = Json::array({Json::array({0, "any", Json::array({WordField})})});
  const Json kind = {{"id", noteKind},
                     {"name", DeckName},
                     {"type", 0},
                     {"mod", seconds},
                     {"usn", notSynchronised},
                     {"sortf", WordField},
                     {"did", deckNumber},
                     {"tmpls", Json::array({side})},
                     {"flds", fieldList()},
                     {"css", CardStyle},
                     {"latexPre", ""},
                     {"latexPost", ""},
                     {"req", needed},
                     {"tags", Json::array()},
                     {"vers", Json::array()}};
  return {{std::to_string(noteKind), kind}};
}

Json deckNamed(std::int64_t number, std::string_view name, std::int64_t seconds) {
  const Json nothing = Json::array({0, 0});
  return {{"id", number},
          {"name", name},
          {"mod", seconds},
          {"usn", notSynchronised},
          {"conf", 1},
          {"desc", ""},
          {"dyn", 0},
          {"collapsed", false},
          {"extendNew", 10},
          {"extendRev", 50},
          {"newToday", nothing},
          {"revToday", nothing},
          {"lrnToday", nothing},
          {"timeToday", nothing}};
}

Json decks(std::int64_t seconds) {
  return {{"1", deckNamed(1, "Default", seconds)},
          {std::to_string(deckNumber), deckNamed(deckNumber, DeckName, seconds)}};
}

Json waysOfLearning() {
  const Json fresh = {{"bury", true},      {"delays", {1, 10}}, {"initialFactor", 2500},
                      {"ints", {1, 4, 7}}, {"order", 1},        {"perDay", 20},
                      {"separate", true}};
  const Json again = {{"bury", true},    {"ease4", 1.3},  {"fuzz", 0.05}, {"ivlFct", 1},
                      {"maxIvl", 36500}, {"minSpace", 1}, {"perDay", 200}};
  const Json forgotten = {
      {"delays", {10}}, {"leechAction", 0}, {"leechFails", 8}, {"minInt", 1}, {"mult", 0}};
  const Json way = {{"id", 1},          {"name", "Default"}, {"mod", 0},          {"usn", 0},
                    {"autoplay", true}, {"replayq", true},   {"maxTaken", 60},    {"timer", 0},
                    {"new", fresh},     {"rev", again},      {"lapse", forgotten}};
  return {{"1", way}};
}

Json settings() {
  return {{"activeDecks", {1}}, {"addToCur", true},       {"collapseTime", 1200},
          {"curDeck", 1},       {"curModel", noteKind},   {"dueCounts", true},
          {"estTimes", true},   {"newBury", true},        {"newSpread", 0},
          {"nextPos", 1},       {"sortBackwards", false}, {"sortType", "noteFld"},
          {"timeLim", 0}};
}

void addCollection(Database& database, std::int64_t seconds) {
  const std::int64_t now = seconds * msOfSecond;
  database.add("col",
               {std::int64_t{1}, collectionStart, now, now, databaseForm, std::int64_t{0},
                std::int64_t{0}, std::int64_t{0}, settings().dump(), kindsOfNotes(seconds).dump(),
                decks(seconds).dump(), waysOfLearning().dump(), std::string("{}")});
}

/// Numbers for notes that are the same for a word in every deck; no two words of a deck share one.
class NoteNumbers {
 public:
  std::int64_t of(const std::string& id) {
    constexpr int digits = 10; // Forty bits keep the number below what importers count with.
    constexpr int base = 16;
    std::int64_t number = noteKind + std::stoll(id.substr(0, digits), nullptr, base);
    while (!taken_.insert(number).second)
      ++number;
    return number;
  }

 private:
  std::set<std::int64_t> taken_;
};

void addNote(Database& database, const SpokenCard& card, std::int64_t number, std::int64_t place,
             std::int64_t seconds) {
  const Fields fields = htmlFieldsOf(card);
  std::string joined;
  for (const std::string& field : fields) {
    if (&field != &fields.front()) joined += fieldEnd;
    joined += field;
  }
  const std::string& word = fields[WordField];
  constexpr std::int64_t none = 0;
  database.add("notes", {number, card.card.id, noteKind, seconds, notSynchronised, std::string(),
                         joined, word, std::int64_t{fieldSum(word)}, none, std::string()});
  database.add("cards", {number, number, deckNumber, none, seconds, notSynchronised, none, none,
                         place, none, none, none, none, none, none, none, none, std::string()});
}

} // namespace

std::string deckOf(const std::vector<SpokenCard>& cards, const std::vector<SoundClip>& sounds,
                   std::int64_t seconds) {
  Database database;
  database.run(tables);
  database.run("BEGIN");
  addCollection(database, seconds);
  NoteNumbers numbers;
  std::int64_t place = 0;
  for (const SpokenCard& card : cards)
    addNote(database, card, numbers.of(card.card.id), ++place, seconds);
  database.run("COMMIT");

  std::vector<ZipEntry> entries = {{"collection.anki2", database.bytes()}};
  Json names = Json::object();
  for (const SoundClip& sound : sounds) {
    const std::string number = std::to_string(names.size());
    names[number] = sound.name;
    entries.push_back({number, sound.bytes});
  }
  entries.push_back({"media", names.dump()});
  return zipOf(entries);
}

} // namespace talvora::pack
