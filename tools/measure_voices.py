#!/usr/bin/python3
"""Measures how far a speech engine keeps like words apart, how loud it is and how fast.

Needs numpy and the engines that are to be measured (Debian: python3-numpy flite espeak-ng festival
festvox-us-slt-hts festvox-kallpc16k festvox-kdlpc16k); one that is not installed is left out.
Distances are those of twelve mel cepstra, aligned in time. Three things are measured of each voice:

  words      the two words of a minimal pair, spoken alone, against each of them at other speeds: a
             pair at 1.0 is told apart no better than one word said twice; four pairs a contrast of
             two sounds, and their median
  found      the word in a sentence, compared with it and with its partner as they are spoken alone:
             how often the right one is the nearer
  items      a heard sentence and a wrong option of the course that differs from it in one word: the
             farthest tenth of a second of the two, against that of the sentence at another speed

"distance" is that of the pairs as it stands. An engine that knows no other speed has no ratios.

docs/voices.md tells what came out, and what these numbers cannot tell: nobody listened."""

import argparse
import shutil
import subprocess
import sys
import tempfile
import wave
from pathlib import Path

import numpy

# By the two sounds that they differ in.
CONTRASTS = {sounds: [pair.split("/") for pair in pairs.split()] for sounds, pairs in {
    "iy/ih": "sheep/ship leave/live seat/sit feel/fill",
    "uw/uh": "fool/full pool/pull suit/soot Luke/look",
    "ae/ah": "cap/cup cat/cut hat/hut bag/bug",
    "eh/ae": "bed/bad pen/pan men/man set/sat",
    "er/ao": "work/walk shirt/short bird/bored fur/four",
    "ow/aa": "coat/cot note/not hope/hop road/rod",
    "aa/ah": "hot/hut lock/luck cop/cup shot/shut",
    "l/r": "light/right lice/rice long/wrong glass/grass",
    "l/n": "low/no light/night lap/nap lock/knock",
    "m/n": "some/sun came/cane mine/nine them/then",
    "ng/n": "sing/sin thing/thin rang/ran sung/sun",
    "th/s": "think/sink thick/sick path/pass mouth/mouse",
    "th/t": "thin/tin three/tree thank/tank bath/bat",
    "dh/d": "they/day then/den those/doze there/dare",
    "p/b": "path/bath cap/cab pear/bear rope/robe",
    "t/d": "seat/seed town/down write/ride heart/hard",
    "k/g": "coat/goat back/bag clock/clog class/glass",
    "sh/ch": "wash/watch ship/chip share/chair cash/catch",
    "sh/s": "ship/sip she/see shell/sell show/so",
    "s/z": "sip/zip price/prize ice/eyes bus/buzz",
    "jh/z": "page/pays rage/rays wage/ways Jew/zoo",
    "f/v": "fan/van leaf/leave safe/save few/view",
    "v/w": "vest/west vine/wine vet/wet veil/whale",
    "v/b": "van/ban vest/best very/berry vote/boat"}.items()}
CARRIERS = ["Please write {} on it.", "She said {} again."]
# With the number of their syllables.
SENTENCES = {"Mrs Hoa opens her shop at six o'clock.": 11, "The last bus to the lake leaves at ten.": 9,
             "My brother works in a hotel near the beach.": 11, "How much is a letter to Canada?": 9,
             "She put the old photo on the kitchen table.": 11,
             "The rain stopped before we reached home.": 9}
SLOW, FAST = 1.25, 0.85
WEAK = 1.5
TENTH = 10  # frames


def flite(voice):
    return lambda text, stretch, path: ["flite", "-voice", voice, "--setf",
                                        f"duration_stretch={stretch}", "-t", text, str(path)]


def espeak(voice):
    return lambda text, stretch, path: ["espeak-ng", "-v", voice, "-s", str(round(165 / stretch)),
                                        "-w", str(path), text]


def festival(voice):
    def command(text, stretch, path):
        source = path.with_suffix(".txt")
        source.write_text(text)
        return ["text2wave", "-eval", f"(voice_{voice})", "-eval",
                f"(Parameter.set 'Duration_Stretch {stretch})", str(source), "-o", str(path)]
    return command


VOICES = {"flite rms": flite("rms"), "flite slt": flite("slt"), "flite awb": flite("awb"),
          "flite kal16": flite("kal16"), "espeak-ng en-gb": espeak("en-gb"),
          "espeak-ng en-us": espeak("en-us"), "espeak-ng en-gb-x-rp": espeak("en-gb-x-rp"),
          "festival slt-hts": festival("cmu_us_slt_arctic_hts"),
          "festival kal": festival("kal_diphone"), "festival ked": festival("ked_diphone")}


class Engine:
    """One voice; what it has said once it does not say again."""

    def __init__(self, command, folder):
        self.command, self.folder, self.said, self.heard = command, folder, {}, {}

    def speak(self, text, stretch=1.0):
        if (text, stretch) not in self.said:
            path = Path(self.folder, "said.wav")
            subprocess.run(self.command(text, stretch, path), check=True, capture_output=True)
            with wave.open(str(path)) as recording:
                rate = recording.getframerate()
                samples = numpy.frombuffer(recording.readframes(recording.getnframes()), dtype="<i2")
            samples = samples.astype(float) / 32768
            loud = numpy.flatnonzero(numpy.abs(samples) > 0.01)
            self.said[text, stretch] = samples[loud[0]:loud[-1] + 1], rate
        return self.said[text, stretch]

    def has_speeds(self):
        """Whether the engine speaks slower when it is asked to; festival's HTS voice does not."""
        sentence = next(iter(SENTENCES))
        return len(self.speak(sentence)[0]) != len(self.speak(sentence, SLOW)[0])

    def cepstra(self, text, stretch=1.0):
        if (text, stretch) not in self.heard:
            self.heard[text, stretch] = cepstra(*self.speak(text, stretch))
        return self.heard[text, stretch]


def cepstra(samples, rate):
    """Twelve mel cepstra every 10 ms, of windows of 25 ms and up to 8 kHz."""
    size, step, filters = int(0.025 * rate), int(0.010 * rate), 26
    samples = numpy.append(samples[0], samples[1:] - 0.97 * samples[:-1])
    if len(samples) < size:
        samples = numpy.pad(samples, (0, size - len(samples)))
    starts = range(0, len(samples) - size + 1, step)
    frames = numpy.array([samples[at:at + size] * numpy.hamming(size) for at in starts])
    power = numpy.abs(numpy.fft.rfft(frames, 1024)) ** 2
    mel = numpy.linspace(0, 2595 * numpy.log10(1 + 8000 / 700), filters + 2)
    bins = (700 * (10 ** (mel / 2595) - 1) / rate * 1024).astype(int)
    bank = numpy.zeros((filters, power.shape[1]))
    for at in range(filters):
        low, middle, high = bins[at], bins[at + 1], bins[at + 2]
        for bin_ in range(low, min(high, power.shape[1])):
            bank[at, bin_] = ((bin_ - low) / max(middle - low, 1) if bin_ < middle
                              else (high - bin_) / max(high - middle, 1))
    energy = numpy.log(power @ bank.T + 1e-10)
    angles = numpy.pi / filters * (numpy.arange(filters) + 0.5)
    return energy @ numpy.array([numpy.cos(n * angles) for n in range(1, 13)]).T


def aligned(left, right, anywhere=False):
    """The costs along the best path through `right`; `anywhere` lets it begin and end within."""
    cost = numpy.linalg.norm(left[:, None] - right[None, :], axis=2).tolist()
    rows, columns = len(cost), len(cost[0])
    total = [[0.0] * columns for _ in range(rows)]
    for i in range(rows):
        above, here, price = total[i - 1], total[i], cost[i]
        for j in range(columns):
            if i == 0:
                before = here[j - 1] if j > 0 and not anywhere else 0.0
            else:
                before = above[j]
                if j > 0:
                    before = min(before, here[j - 1], above[j - 1])
            here[j] = before + price[j]
    i, j = rows - 1, columns - 1
    if anywhere:
        j = min(range(columns), key=total[i].__getitem__)
    path = [cost[i][j]]
    while i > 0 or (j > 0 and not anywhere):
        ways = [(total[a][b], a, b) for a, b in ((i - 1, j - 1), (i - 1, j), (i, j - 1))
                if a >= 0 and b >= 0]
        _, i, j = min(ways)
        path.append(cost[i][j])
    return numpy.array(path[::-1])


def distance(left, right):
    return aligned(left, right).mean()


def farthest(left, right):
    """The mean of the tenth of a second in which the two lie farthest apart."""
    path = aligned(left, right)
    window = min(TENTH, len(path))
    return numpy.convolve(path, numpy.ones(window) / window, "valid").max()


def level(samples, rate):
    """Decibels of full scale, of the windows of 20 ms in which somebody speaks."""
    size = rate // 50
    powers = [numpy.mean(samples[at:at + size] ** 2) for at in range(0, len(samples) - size, size)]
    return 10 * numpy.log10(numpy.mean([power for power in powers if power > 1e-4] or [1e-10]))


def raw_distances(engine):
    return [distance(engine.cepstra(first), engine.cepstra(second))
            for pairs in CONTRASTS.values() for first, second in pairs]


def words_apart(engine):
    """The ratio of each pair, by contrast."""
    ratios = {}
    for sounds, pairs in CONTRASTS.items():
        ratios[sounds] = {}
        for first, second in pairs:
            same = numpy.mean([distance(engine.cepstra(word), engine.cepstra(word, stretch))
                               for word in (first, second) for stretch in (SLOW, FAST)])
            apart = distance(engine.cepstra(first), engine.cepstra(second))
            ratios[sounds][f"{first}/{second}"] = apart / max(same, 1e-6)
    return ratios


def words_found(engine):
    found = []
    for pair, *_ in CONTRASTS.values():
        for carrier in CARRIERS:
            for right, wrong in (pair, pair[::-1]):
                sentence = engine.cepstra(carrier.format(right))
                near, far = (aligned(engine.cepstra(word), sentence, anywhere=True).mean()
                             for word in (right, wrong))
                found.append(near < far)
    return found


def items_of(folder, count):
    """Pairs of a heard sentence and an option that differs from it in one word, spread evenly."""
    pairs, heard = [], ""
    for file in sorted(Path(folder).glob("unit-*.txt")):
        for line in file.read_text(encoding="utf-8").splitlines():
            if line[:1].isdigit() and ": " in line:
                heard = line.split(": ", 1)[1]
            if line.startswith("- "):
                left, right = heard.split(), line[2:].split()
                if len(left) == len(right) and sum(a != b for a, b in zip(left, right)) == 1:
                    pairs.append((heard, line[2:]))
    return pairs[::max(1, len(pairs) // count)][:count]


def items_apart(engine, items):
    return {f"{heard} | {option}":
            farthest(engine.cepstra(heard), engine.cepstra(option)) /
            max(farthest(engine.cepstra(heard), engine.cepstra(heard, SLOW)), 1e-6)
            for heard, option in items}


def tell(name, engine, items, verbose):
    found = words_found(engine)
    contrasts, sentences, apart, weak, far = {}, {}, "-", "-", "-"
    if engine.has_speeds():
        contrasts = words_apart(engine)
        medians = {sounds: numpy.median(list(pairs.values())) for sounds, pairs in contrasts.items()}
        sentences = items_apart(engine, items)
        apart = f"{numpy.median(list(medians.values())):.2f}"
        weak = ", ".join(f"{sounds} {value:.2f}" for value, sounds in
                         sorted((value, sounds) for sounds, value in medians.items() if value < WEAK))
        far = (f"{numpy.median(list(sentences.values())):.2f}, "
               f"{sum(value < 1 for value in sentences.values())} of {len(sentences)} under 1")
    said = [engine.speak(sentence) for sentence in SENTENCES]
    rates = [count * rate / len(samples) for count, (samples, rate) in zip(SENTENCES.values(), said)]
    levels = [level(samples, rate) for samples, rate in said]
    print(f"{name} | {said[0][1] // 1000} kHz | {numpy.median(raw_distances(engine)):.1f} | "
          f"{apart} | {weak or 'none'} | {100 * numpy.mean(found):.0f} % of {len(found)} | {far} | "
          f"{min(rates):.1f}-{max(rates):.1f} | {min(levels):.1f} to {max(levels):.1f}", flush=True)
    if verbose:
        for sounds, pairs in contrasts.items():
            each = ", ".join(f"{pair} {ratio:.2f}" for pair, ratio in pairs.items())
            print(f"    {medians[sounds]:.2f} {sounds}: {each}")
        for item, value in sorted(sentences.items(), key=lambda pair: pair[1]):
            print(f"    {value:.2f} {item}")


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("voices", nargs="*", help="of: " + ", ".join(VOICES) + "; all by default")
    parser.add_argument("--items", type=int, default=40, help="items of the course (40)")
    parser.add_argument("--verbose", action="store_true", help="each contrast, pair and item")
    given = parser.parse_args()
    for name in given.voices:
        if name not in VOICES:
            parser.error(f"no voice \"{name}\"")
    items = items_of(Path(__file__).parents[1] / "content" / "listening", given.items)
    print("voice | samples a second | distance, median | contrasts, median | contrasts under 1.5 | "
          "found | items, median | syllables a second | level, dBFS", flush=True)
    with tempfile.TemporaryDirectory() as folder:
        for name in given.voices or VOICES:
            program = VOICES[name]("x", 1.0, Path(folder, "x.wav"))[0]
            if shutil.which(program) is None:
                print(f"{name} | {program} is not installed", file=sys.stderr)
                continue
            try:
                tell(name, Engine(VOICES[name], folder), items, given.verbose)
            except (subprocess.CalledProcessError, IndexError) as failure:
                print(f"{name} | cannot be measured: {failure}", file=sys.stderr)
    return 0


if __name__ == "__main__":
    sys.exit(main())
