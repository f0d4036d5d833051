// How long surfaces take to be written and to take a long list. Each limit, where one is set,
// stands in the label of its benchmark; the peers are the plain standard containers.
#include "platform/scripted/FixedLayout.h"
#include "surface/Surface.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace talvora;

constexpr int ColouredCharacters = 3000;
constexpr int ListLines = 385'082;

/// Nobody looks at what is measured.
class NoHost final : public ControlHost {
 public:
  void giveFocus(Control&) override {}
  [[nodiscard]] bool hasFocus(const Control&) const noexcept override { return false; }
  void focusNeighbour(Control&, int) override {}
  void controlChanged(Control&, ControlChange) override {}
};

struct Bench {
  Bench() {
    surface.Width(9000);
    surface.Height(6000);
  }

  NoHost host;
  FixedLayout layout;
  Surface surface{"R", host, layout};
};

/// Lines of 3 to 18 characters: about 4.5 MB.
const std::string& list() {
  static const std::string text = [] {
    std::mt19937 random(1);
    std::string lines;
    for (int line = 0; line < ListLines; ++line) {
      lines.append(3 + random() % 16 / 2 + random() % 8, static_cast<char>('a' + random() % 26));
      lines += "\r";
    }
    return lines;
  }();
  return text;
}

/// The list as a file, gone with the run.
class ListFile {
 public:
  ListFile() { std::ofstream(path(), std::ios::binary) << list(); }
  [[nodiscard]] std::string path() const { return (folder_.path() / "list").string(); }

 private:
  test::TemporaryFolder folder_;
};

Colour colourOf(int character) {
  return character % 7 < 3 ? 255 : static_cast<Colour>(0xFF0000 + character % 5);
}

void writeColouredCharacters(benchmark::State& state) {
  for (auto _ : state) {
    Bench bench;
    for (int each = 0; each < ColouredCharacters; ++each) {
      bench.surface.SelColor(colourOf(each));
      bench.surface.SelText('a');
    }
    benchmark::DoNotOptimize(bench.surface.TextLength());
  }
  state.SetLabel("3,000 coloured characters; limit 2 ms");
}

void writeColouredCharactersPeer(benchmark::State& state) {
  struct Span {
    int from;
    int to;
    CharStyle style;
  };
  for (auto _ : state) {
    std::string text;
    std::vector<Span> spans;
    for (int each = 0; each < ColouredCharacters; ++each) {
      const Colour colour = colourOf(each);
      text += 'a';
      if (spans.empty() || spans.back().style.color != colour) {
        CharStyle style;
        style.color = colour;
        spans.push_back({each, each, style});
      }
      ++spans.back().to;
    }
    benchmark::DoNotOptimize(text.data());
    benchmark::DoNotOptimize(spans.data());
  }
  state.SetLabel("peer: a string and a list of spans");
}

// In the middle of a long text, a character costs what it costs in a short one.
void writeInsideTheLongList(benchmark::State& state) {
  Bench bench;
  bench.surface.Text(list());
  bench.surface.SelStart(bench.surface.TextLength() / 2);
  bench.surface.SelText('a');
  for (auto _ : state) {
    bench.surface.SelColor(255);
    bench.surface.SelText('a');
  }
  state.SetLabel("one coloured character inside 385,082 lines");
}

void writeInsideTheLongListPeer(benchmark::State& state) {
  std::string text = list();
  for (auto _ : state) {
    text.insert(text.size() / 2, 1, 'a');
    benchmark::DoNotOptimize(text.data());
  }
  state.SetLabel("peer: std::string::insert, one character, no colours");
}

void setTheLongList(benchmark::State& state) {
  const std::string& text = list();
  for (auto _ : state) {
    Bench bench;
    bench.surface.Text(text);
    benchmark::DoNotOptimize(bench.surface.paragraphOf(bench.surface.TextLength() / 2));
  }
  state.SetLabel("385,082 lines and the first look for a paragraph; limit 5 ms");
}

void setTheLongListAgain(benchmark::State& state) {
  const std::string& text = list();
  Bench bench;
  for (auto _ : state) {
    bench.surface.Text(text);
    benchmark::DoNotOptimize(bench.surface.paragraphOf(bench.surface.TextLength() / 2));
  }
  state.SetLabel("the same on a surface that held it before; limit 5 ms");
}

void setTheLongListPeer(benchmark::State& state) {
  const std::string& text = list();
  for (auto _ : state) {
    const std::string copy = text;
    std::vector<int> starts = {0};
    for (const char* at = copy.data();;) {
      const auto left = static_cast<std::size_t>(copy.data() + copy.size() - at);
      at = static_cast<const char*>(std::memchr(at, '\r', left));
      if (at == nullptr) break;
      starts.push_back(static_cast<int>(++at - copy.data()));
    }
    benchmark::DoNotOptimize(starts.data());
  }
  state.SetLabel("peer: a copied string, memchr and a list of places");
}

void loadTheLongList(benchmark::State& state) {
  const ListFile file;
  for (auto _ : state) {
    Bench bench;
    bench.surface.LoadFile(MappedFile::open(file.path()));
    benchmark::DoNotOptimize(bench.surface.paragraphOf(bench.surface.TextLength() / 2));
  }
  state.SetLabel("a mapped file of 385,082 lines");
}

void placeTheCaretInTheLongList(benchmark::State& state) {
  Bench bench;
  bench.surface.Text(list());
  std::mt19937 random(1);
  for (auto _ : state) {
    bench.surface.SelStart(static_cast<int>(random() % list().size()));
    benchmark::DoNotOptimize(bench.surface.scroll());
  }
  state.SetLabel("the caret anywhere in 385,082 lines, and the scrolling that follows");
}

BENCHMARK(writeColouredCharacters)->Unit(benchmark::kMillisecond);
BENCHMARK(writeColouredCharactersPeer)->Unit(benchmark::kMillisecond);
BENCHMARK(writeInsideTheLongList)->Unit(benchmark::kNanosecond);
BENCHMARK(writeInsideTheLongListPeer)->Unit(benchmark::kNanosecond);
BENCHMARK(setTheLongList)->Unit(benchmark::kMillisecond);
BENCHMARK(setTheLongListAgain)->Unit(benchmark::kMillisecond);
BENCHMARK(setTheLongListPeer)->Unit(benchmark::kMillisecond);
BENCHMARK(loadTheLongList)->Unit(benchmark::kMillisecond);
BENCHMARK(placeTheCaretInTheLongList)->Unit(benchmark::kMicrosecond);

} // namespace
