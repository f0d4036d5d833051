// Any bytes as the stores of a pack, each as the table and the stream of texts, as items, as
// analyses and as marks of recordings: everything that reads them ends, and nothing leads outside.
#include "exercises/ItemState.h"
#include "exercises/ItemStore.h"
#include "formats/LearnerFiles.h"
#include "formats/PackFiles.h"
#include "formats/Settings.h"
#include "learner/ListPlaces.h"
#include "learner/TextCatalogue.h"
#include "listening/ListeningItems.h"
#include "platform/FatalFailure.h"
#include "platform/Files.h"
#include "platform/scripted/ScriptedMachine.h"
#include "reading/ReadingText.h"
#include "sound/AmthanhThuc.h"
#include "tests/fuzz/Pieces.h"
#include "tests/support/MemoryFiles.h"
#include "text/Text.h"
#include "writing/PTCau.h"
#include "writing/WritingControls.h"

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace talvora;

const std::string Pack = "/pack";

void require(bool holds) {
  if (!holds) std::abort();
}

/// The program's reading half on a machine whose disk is the input.
struct Desk {
  explicit Desk(test::MemoryFiles& files)
      : machine({}, files), form(machine.screen, machine.metrics), controls(form, machine.layout),
        stores(state.places, files), shell(machine.platform, form, controls, state),
        voice(state.places, machine.wave, shell.messages, files) {
    state.places.ThuMuc = Pack;
  }

  ScriptedMachine machine;
  Form form;
  WritingControls controls;
  SharedState state;
  Stores stores;
  Shell shell;
  RecordedVoice voice;
};

/// Whatever has more than a table holds is refused by a failure.
void trying(const std::function<void()>& reading) {
  try {
    reading();
  } catch (const FatalFailure&) {
    return;
  }
}

void readTexts(Desk& desk) {
  ReadingText text(desk.stores, desk.state.text);
  desk.stores.NapViTriBai();
  for (const int number : {1, 2, 3, 14, 407, 408}) {
    trying([&] {
      text.DocBai(number);
      text.DocDich(number);
      const auto length = static_cast<int>(desk.state.text.CauHoi.size());
      for (int at = 0; at <= length; at += 1 + length / 16) {
        const int sentence = text.CauTaiViTri(at);
        require(text.markOf(sentence) >= 0 && text.markOf(sentence) <= length + 1);
        static_cast<void>(text.translationOf(sentence));
      }
    });
  }
}

/// What the learner's words and places are tied to.
void readCatalogue(Desk& desk, test::MemoryFiles& files) {
  const TextCatalogue catalogue(desk.stores);
  require(catalogue.fingerprint().size() == 16);
  // Each is sought among all the texts.
  constexpr std::size_t Some = 20;
  const std::vector<SentencePlace> all = catalogue.all();
  for (std::size_t each = 0; each < all.size(); each += 1 + all.size() / Some) {
    static_cast<void>(catalogue.at(all[each].place));
    static_cast<void>(catalogue.translationOf(all[each]));
  }
  for (const TextKind kind : {TextKind::Reading, TextKind::Speaking}) {
    for (const int number : {1, catalogue.textsOf(kind)})
      static_cast<void>(catalogue.titleOf(kind, number));
  }
  ListPlaces lists(Pack, desk.stores, files);
  lists.open(catalogue);
  lists.store(setting::ReadingCaret, 5, 1);
  ListPlaces(Pack, desk.stores, files).open(catalogue);
}

void readAnalyses(Desk& desk) {
  ItemState item;
  PTCau analysis(desk.state, desk.stores, desk.shell, item);
  for (const int number : {1, 2, 11})
    trying([&] { analysis.NapPhanTich(number); });
  Surface& page = desk.controls.R2;
  page.Text(desk.state.text.VanBanGoc);
  const int length = page.TextLength();
  for (int at = 0; at <= length; at += 1 + length / 16) {
    page.SelStart(at);
    trying([&] { analysis.GiaiTuPT(page); });
  }
}

void readItems(Desk& desk) {
  ItemStore items(desk.stores);
  trying([&] { items.DocSoCau(desk.machine.events); });
  for (const int number : {1, 2, 1000, 32767}) {
    require(items.question(number).size() <= 10 * std::size_t{LongestText});
    require(items.answer(number).size() <= 10 * std::size_t{LongestText});
  }
  for (const int section : {0, 1, ItemStore::Sections, ItemStore::Sections + 1})
    require(items.itemsOf(section) >= 0 || items.countOf(section) < 0);
  static_cast<void>(items.bankItemsBefore(limit::Banks));
  ListeningItems heard(desk.stores);
  trying([&] {
    heard.LapBangNghe();
    for (const int number : {0, 1, 2, 9, ListeningItems::Count, ListeningItems::Count + 1})
      static_cast<void>(heard.textsAt(heard.item(number).ViTri));
    Variables variables;
    heard.declare(variables);
    static_cast<void>((*variables.find("CauNghe"))());
  });
}

void readPages(Desk& desk) {
  trying([&] { require(desk.stores.holdPage(packfile::Guide)->bytes().size() <= LongestPage); });
  require(desk.stores.has(packfile::Guide));
  static_cast<void>(desk.stores.readSetting(setting::ReadingCaret));
}

void readMarks(Desk& desk) {
  for (const char* recording : {"1", "2"}) {
    trying([&] {
      desk.voice.MoAm(recording);
      desk.voice.DongAm();
    });
  }
  for (const int recording : {1, 2, 9}) {
    trying([&] {
      desk.voice.NapMoc(recording);
      require(desk.voice.SoMoc >= 0 && desk.voice.SoMoc <= RecordedVoice::MaxMarks);
      desk.voice.PhatCau(1);
      for (const int none : {0, RecordedVoice::MaxMarks + 1})
        trying([&] { desk.voice.PhatCau(none); });
    });
  }
  Variables variables;
  desk.voice.declare(variables);
  for (const char* name : {"DsThieuAm", "BangMoc", "SoMoc"})
    static_cast<void>((*variables.find(name))());
}

} // namespace

// The first piece is the tables, the second the streams, the third the counts and the marks.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  namespace name = packfile;
  fuzz::Pieces pieces({reinterpret_cast<const char*>(data), size});
  const std::string_view contents[] = {pieces.next(), pieces.next(), pieces.next()};
  const std::string_view tables[] = {
      name::ReadingPositions,   name::SpeakingPositions, name::LessonPositions, name::ItemPositions,
      name::ListeningPositions, name::AnalysisPositions, name::SidePositions};
  const std::string_view streams[] = {name::ReadingTexts, name::SpeakingTexts,  name::Lessons,
                                      name::Items,        name::ListeningItems, name::Analyses,
                                      name::Entries,      name::SideEntries};
  test::MemoryFiles files;
  const auto put = [&](std::string_view file, std::string_view content) {
    files.put(pathBelow(Pack, file), bytesOfText(content));
  };
  for (const std::string_view table : tables)
    put(table, contents[0]);
  for (const std::string_view stream : streams)
    put(stream, contents[1]);
  put(name::ItemCounts, contents[2]);
  put(name::Marks, contents[2]);
  put(name::Guide, contents[2]);
  put("sound\\1.wav", contents[2]);
  put(learnerfile::Lists, contents[2]);

  Desk desk(files);
  desk.stores.MoDuLieu();
  for (const int store : {file::TextPositions, file::SpeakingPositions}) {
    desk.stores.ChonKho(store);
    readTexts(desk);
  }
  // It reads every text of both stores, so that only some inputs are taken through it.
  constexpr std::size_t Some = 8;
  const bool hasPlaces = contents[2].find('\t') != std::string_view::npos;
  if (hasPlaces || size % Some == 0) readCatalogue(desk, files);
  readAnalyses(desk);
  readItems(desk);
  readMarks(desk);
  readPages(desk);
  return 0;
}
