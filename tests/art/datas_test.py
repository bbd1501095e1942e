"""The data folder as delivered: pictures of the right size, sounds that are safe to play and well levelled."""
import array
import math
import pathlib
import struct
import unittest
import wave

DATAS = pathlib.Path(__file__).parents[2] / "datas"
RATE = 44100
FAMILIES = {"": (10, .030, .120), ".vic": (4, .6, 1.8), ".def": (4, .4, 1.2)}  # count, shortest, longest


def names(ending):
    return [f"{i}{ending}" for i in range(1, FAMILIES[ending][0] + 1)]


def samples(name):
    with wave.open(str(DATAS / name)) as sound:
        assert sound.getparams()[:3] == (1, 2, RATE), f"{name} is not mono, 16 bits, 44.1 kHz"
        frames = sound.readframes(sound.getnframes())
    assert struct.unpack("<4sI", (DATAS / name).read_bytes()[:8]) == (b"RIFF", len(frames) + 36)
    return [sample / 32768 for sample in array.array("h", frames)]


def peak(part):
    return max(map(abs, part))


def decibels(level):
    return 20 * math.log10(level)


class Sounds(unittest.TestCase):
    def test_each_is_safe_to_play(self):
        for ending, (_, shortest, longest) in FAMILIES.items():
            for name in names(ending):
                with self.subTest(name):
                    sound = samples(name)
                    self.assertTrue(shortest <= len(sound) / RATE <= longest)
                    self.assertTrue(-20 <= decibels(peak(sound)) <= -3)
                    five_ms = RATE // 200
                    self.assertGreaterEqual(peak(sound[:five_ms]), .1 * peak(sound), "starts late")
                    self.assertLessEqual(max(abs(sound[0]), abs(sound[-1])), .002, "clicks")
                    self.assertLessEqual(peak(sound[:8]), .1 * peak(sound) + .01, "starts with a step")
                    self.assertLessEqual(peak(sound[-five_ms // 5:]), .01, "is cut off")

    def test_each_family_is_levelled_and_has_no_twins(self):
        for ending, (count, *_) in FAMILIES.items():
            sounds = [samples(name) for name in names(ending)]
            levels = [decibels(math.sqrt(sum(s * s for s in sound) / len(sound))) for sound in sounds]
            self.assertLessEqual(max(levels) - min(levels), 3, ending)
            self.assertEqual(len(set(map(tuple, sounds))), count)


class Files(unittest.TestCase):
    def test_pictures_fill_the_page_and_are_opaque(self):
        for name in range(11, 17):
            png = (DATAS / str(name)).read_bytes()
            self.assertEqual(png[1:4] + png[16:24], b"PNG" + struct.pack(">II", 640, 480))
            self.assertIn(png[25], (2, 3))
            self.assertNotIn(b"tRNS", png)

    def test_counters_are_delivered_as_a_zeroed_record(self):
        zero = b"\2\0\0\0"
        self.assertEqual((DATAS / "18").read_bytes(), zero + b" " * 10 + 3 * zero + bytes(94))

    def test_weighs_little_and_holds_nothing_else(self):
        files = list(DATAS.iterdir())
        self.assertEqual(len(files), 6 + 6 + 1 + 18)
        self.assertLess(sum(file.stat().st_size for file in files), 1_500_000)


if __name__ == "__main__":
    unittest.main()
