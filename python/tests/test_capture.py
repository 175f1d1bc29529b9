"""The frames of captures: whole ones, cut ones, damaged ones."""

import io
import random
import tempfile
import unittest
from pathlib import Path

from support import documented_capture, frame, header

from vrx_reader import Capture, DamageError, FormatError, FrameKind, LimitError, Limits, ReaderError, read_frames


def places_of_frames(data: bytes) -> list[int]:
    return [each.offset for each in read_frames(io.BytesIO(data))]


class Captures(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = Path(folder.name) / "c.vrxcap"

    def capture(self, data: bytes, **words: object) -> Capture:
        self.path.write_bytes(data)
        return Capture(self.path, **words)  # type: ignore[arg-type]

    def test_documented_example(self) -> None:
        frames = list(read_frames(io.BytesIO(documented_capture())))
        self.assertEqual([each.kind for each in frames], [1, 2, 4, 5, 3, 6, 7])
        self.assertEqual((frames[2].names, frames[2].content, frames[2].time), (["b1"], b"\1\2\3", 0.002))
        self.assertEqual([frames[1].text, frames[4].text], ["{}", "[]"])
        capture = self.capture(documented_capture())
        self.assertEqual((capture.start, capture.end, capture.is_cut, capture.message_count), ({}, {}, False, 2))
        self.assertEqual((capture.missing, capture.unloaded), ({"b2"}, {"b1"}))

    def test_cut_anywhere_gives_all_frames_before(self) -> None:
        data = documented_capture()
        places = [*places_of_frames(data), len(data)]
        for size in range(16, len(data)):
            reader = read_frames(io.BytesIO(data[:size]))
            whole = sum(place <= size for place in places[1:])
            self.assertEqual(len(list(reader)), whole, size)
            self.assertEqual(reader.is_cut, size not in places, size)
            self.assertTrue(self.capture(data[:size]).is_cut, size)
        for size in range(16):
            with self.assertRaises(FormatError):
                self.capture(data[:size])

    def test_damage_anywhere_is_told_with_its_frame(self) -> None:
        data = documented_capture()
        places = places_of_frames(data)
        for place in range(len(data)):
            bad = bytearray(data)
            bad[place] ^= 0x40
            offset = max((each for each in places if each <= place), default=0)
            try:
                capture = self.capture(bytes(bad))
                # A size that leads behind the end of the file looks like a cut.
                self.assertTrue(capture.is_cut and 12 <= place - offset < 20, place)
            except DamageError as damage:
                self.assertEqual(damage.offset, offset, place)
            except FormatError:
                self.assertLess(place, 8)
        bad = bytearray(data)
        bad[places[4] + 20] ^= 1
        capture = self.capture(bytes(bad), allow_damage=True)
        self.assertEqual(capture.damage.offset, places[4])  # type: ignore[union-attr]
        self.assertEqual([each.text for each in capture], ["{}"])

    def test_frames_of_a_wrong_form(self) -> None:
        wrong = [(1, b"{"), (1, b"\xff"), (2, b"{"), (4, b""), (4, b"\2\0\0\0b\0"), (5, b"b"), (6, b"\1\0\0\0b\0\1")]
        for kind, payload in wrong:
            with self.subTest(kind=kind, payload=payload), self.assertRaises(DamageError) as raised:
                self.capture(header() + frame(1, b"{}") + frame(kind, payload))
            self.assertEqual(raised.exception.offset, 16 + 26)

    def test_versions_and_kinds_of_later_ones(self) -> None:
        capture = self.capture(header(minor=9) + frame(77, b"?") + frame(2, b"7\0") + frame(7, b"{}"))
        self.assertEqual([each.plain for each in capture], [7])
        for head in (header(major=2), b"\x89PNG\r\n\x1a\n" + header()[8:]):
            with self.assertRaises(FormatError):
                self.capture(head)

    def test_buffers_belong_to_the_next_message_that_names_them(self) -> None:
        envelope = '{"exchange_object_name":"n","binary":true,"exchange_object_data":"b"}'.encode("utf-16-le")
        name = b"\1\0\0\0b\0"
        first, second = b"\4\0\0\0" + bytes(8), b"\3\0\0\0" + bytes(8)
        frames = [frame(4, name + first), frame(3, envelope, 2500000), frame(4, name + second), frame(3, envelope)]
        frames += [frame(5, b"b\0"), frame(3, envelope)]
        frames += [frame(9, b"ab"), frame(9, b"c"), frame(8, b"d"), frame(6, name)]
        capture = self.capture(header() + b"".join(frames))
        self.assertEqual([each.plain for each in capture], [[], {}, None])
        self.assertEqual([each.was_unloaded for each in capture], [True, True, True])
        self.assertEqual((capture.message(1).time, capture.message(1).sender), (2.5, "translator"))
        self.assertEqual((capture.strays, capture.end), ({"host": b"d", "translator": b"abc"}, None))
        self.assertTrue(capture.is_cut)

    def test_a_size_is_no_promise(self) -> None:
        head = (4).to_bytes(4, "little") + bytes(8) + (1 << 62).to_bytes(8, "little")
        self.assertTrue(self.capture(header() + head + bytes(1000)).is_cut)
        with self.assertRaises(LimitError):
            self.capture(header() + frame(8, bytes(5000)), limits=Limits(content_bytes=4999))

    def test_no_bytes_lead_to_another_exception(self) -> None:
        source = random.Random(7)
        for _ in range(2000):
            kinds = [source.choice([*FrameKind]) for _ in range(3)]
            data = header() + b"".join(frame(kind, source.randbytes(source.randrange(12))) for kind in kinds)
            try:
                for message in self.capture(data):
                    self.assertIn(message.kind, ("unknown", "envelope"))
            except ReaderError:
                pass


if __name__ == "__main__":
    unittest.main()
