"""Texts, binary forms and buffers: their values, their limits, and what is none of them."""

import gzip
import os
import random
import tempfile
import tracemalloc
import unittest
import uuid
import zlib
from pathlib import Path
from unittest import mock

from support import FROZEN, encoded, sized, tagged

from vrx_reader import Buffer, FormatError, LimitError, Limits, ReaderError, numbers, plain, read_message
from vrx_reader.binary import decode_binary
from vrx_reader.numbers import is_run
from vrx_reader.text import parse_json

DEEP = 200_000


class Binary(unittest.TestCase):
    def test_runs_of_numbers(self) -> None:
        self.try_runs_of_numbers()
        with mock.patch.object(numbers, "numpy", None):
            self.try_runs_of_numbers()

    def try_runs_of_numbers(self) -> None:
        ends = {6: (-(1 << 31), (1 << 31) - 1), 7: (0, (1 << 32) - 1), 8: (-(1 << 63), 7), 9: (0, (1 << 64) - 1)}
        for tag, some in {**ends, 10: (-0.1, 1e300)}.items():
            for count in (1, 8, 500):
                values = list(some) * count
                data = sized(4, b"".join(tagged(tag, each) for each in values))
                self.assertEqual(decode_binary(data), values)
                bulk = decode_binary(data, bulk=True)
                self.assertEqual((list(bulk), is_run(bulk)), (values, count == 500))
                # One of another kind, and of the same size, among them.
                other, number = {6: (7, 1 << 31), 7: (6, -5), 8: (9, 1 << 63), 9: (8, -5), 10: (9, 1 << 63)}[tag]
                mixed = sized(4, data[12:] + tagged(other, number))
                self.assertEqual(decode_binary(mixed, bulk=True), [*values, number])

    def test_strings_keep_lone_surrogates_and_nul(self) -> None:
        value = {"a\ud800\0": "\udc00b\U0001f600\ud83d", "": [None, True, False, {}, [], ""]}
        self.assertEqual(decode_binary(encoded(value)), value)

    def test_of_a_name_twice_the_first_counts(self) -> None:
        twice = sized(3, encoded("a") + encoded(1) + encoded("a") + encoded([2]))
        self.assertEqual(decode_binary(twice), {"a": 1})
        self.assertEqual(list(parse_json('{"a":1,"b":3,"a":[2]}').items()), [("a", 1), ("b", 3)])

    def test_cut_anywhere(self) -> None:
        data = (FROZEN / "exc_block_visualization.bin").read_bytes()
        for size in range(0, len(data), 3):
            with self.assertRaises(FormatError):
                decode_binary(data[:size])

    def test_no_bytes_lead_to_another_exception(self) -> None:
        source = random.Random(3)
        data = (FROZEN / "exc_block_mechanical_data.bin").read_bytes()[:4000]
        whole = sized(3, data[12:])
        refused = 0
        for _ in range(2000):
            bad = bytearray(whole)
            for _ in range(source.randrange(1, 4)):
                bad[source.randrange(len(bad))] = source.choice([0, 1, 3, 4, 5, 10, 255])
            try:
                decode_binary(bytes(bad))
            except ReaderError:
                refused += 1
        self.assertGreater(refused, 100)

    def test_wrong_forms(self) -> None:
        behind_end = (b"\3\0\0\0" + b"\xff" * 8, b"\5\0\0\0" + b"\xff" * 8, sized(4, sized(4, b"")[:-1]))
        # They end within their container, but not within the data.
        behind_end += (sized(4, sized(4, encoded("ab")[:-2]) + b"b\0"), sized(4, sized(3, b"")[:-1]) + b"\0")
        for data in (b"", b"\1", b"\x0b\0\0\0", sized(3, encoded(1) * 2), sized(3, encoded("a")), *behind_end):
            with self.subTest(data), self.assertRaises(FormatError):
                decode_binary(data)

    def test_a_string_without_an_end_does_not_take_forever(self) -> None:
        with self.assertRaises(FormatError):
            parse_json('"' + '[\\"' * 500_000)

    def test_depth(self) -> None:
        data = b""
        for level in range(100):
            data = sized(4, data) if level % 2 else sized(3, encoded("k") + (data or encoded(1)))
        decode_binary(data)
        with self.assertRaises(LimitError):
            decode_binary(sized(4, data))
        # Without limits it is deep, but neither the stack nor Python's limit ends it.
        deep = b"".join((b"\4\0\0\0" + (12 * (DEEP - 1 - i)).to_bytes(8, "little")) for i in range(DEEP))
        value = plain(decode_binary(deep, Limits(depth=DEEP)))
        for _ in range(DEEP - 1):
            value = value[0]
        self.assertEqual(value, [])

    def test_count_of_values(self) -> None:
        few = Limits(values=1000)
        decode_binary(encoded([1.0] * 999), few)
        decode_binary(encoded([1.0] * 5000), few, bulk=True)
        for value in ([1.0] * 1000, [None] * 1000, [{"": ""}] * 334, [[1.0] * 9] * 100):
            with self.assertRaises(LimitError):
                decode_binary(encoded(value), few)


class Texts(unittest.TestCase):
    def test_encodings(self) -> None:
        text = '{"name": "ä\U0001f600"}'
        for encoding in ("utf-8", "utf-8-sig", "utf-16", "utf-16-le", "utf-16-be"):
            self.assertEqual(read_message(text.encode(encoding)).json, {"name": "ä\U0001f600"})
        lone = '["\ud800"]\0 nobody reads this'.encode("utf-16-le", "surrogatepass")
        self.assertEqual(read_message(lone).plain, ["\ud800"])

    def test_numbers(self) -> None:
        wide = ["-9223372036854775808", "18446744073709551615", "18446744073709551616", "1" + "0" * 5000]
        told = parse_json(f"[1, 1.0, {', '.join(wide)}]")
        self.assertEqual([type(each) for each in told], [int, float, int, int, float, float])

    def test_what_is_no_json(self) -> None:
        strings = (b'["\t"]', b'"\\ud8"', b"\xff")
        for data in (b"", b"{", b"[1,]", b"[NaN]", b"[-Infinity]", b"[\0", b"{}x", b"[01]", *strings):
            with self.subTest(data), self.assertRaises(FormatError):
                read_message(data).json
        self.assertEqual(read_message(b"{").kind, "unknown")

    def test_limits(self) -> None:
        strings = '["' + "[" * 500 + '\\"' + "{" * 500 + '"]'
        self.assertEqual(len(parse_json(strings)[0]), 1001)
        parse_json("[" * 100 + "]" * 100)
        deep = "[" * DEEP + "]" * DEEP
        for text, limits in (("[" * 101 + "]" * 101, Limits()), (deep, Limits()), (deep, Limits(depth=DEEP))):
            with self.assertRaises(LimitError):
                parse_json(text, limits)
        for limits in (Limits(values=9), Limits(text_bytes=19)):
            with self.assertRaises(LimitError):
                read_message(b"[0,0,0,0,0,0,0,0,0,0]", limits=limits).json


class Buffers(unittest.TestCase):
    def test_a_bomb_takes_no_more_memory_than_the_limit(self) -> None:
        bomb = zlib.compress(bytes(256 << 20), 1)
        tracemalloc.start()
        self.addCleanup(tracemalloc.stop)
        for content in (bomb, gzip.compress(bomb + bytes(64 << 20), 1)):
            tracemalloc.reset_peak()
            before = tracemalloc.get_traced_memory()[0]
            with self.assertRaises(LimitError):
                Buffer(content, limits=Limits(content_bytes=4 << 20)).data
            self.assertLess(tracemalloc.get_traced_memory()[1] - before, 32 << 20)
        with self.assertRaises(LimitError):
            Buffer(bytes(11), limits=Limits(content_bytes=10))

    def test_damaged_and_cut_streams(self) -> None:
        data = random.Random(1).randbytes(5000)
        for whole in (gzip.compress(data), zlib.compress(data), gzip.compress(data, 0)):
            self.assertEqual(Buffer(whole + b"behind it").data, data)
            for bad in (whole[:-1], whole[:50], whole[:-6] + bytes([whole[-6] ^ 1]) + whole[-5:]):
                with self.assertRaises(FormatError):
                    Buffer(bad).data

    def test_shared_memory(self) -> None:
        name = str(uuid.uuid4())
        path = Path("/dev/shm") / name
        with self.assertRaises(FileNotFoundError):
            Buffer.from_shared_memory(name)
        self.addCleanup(path.unlink)
        path.write_bytes(gzip.compress(encoded({"message": "m"})))
        self.assertEqual(Buffer.from_shared_memory(name).plain(), {"message": "m"})
        self.assertTrue(path.exists())
        with self.assertRaises(LimitError):
            Buffer.from_shared_memory(name, Limits(content_bytes=5))
        for wrong in ("", ".", "..", "../etc/passwd", "a/b", "a\0", "\ud800"):
            with self.subTest(wrong), self.assertRaises(FormatError):
                Buffer.from_shared_memory(wrong)

    def test_what_stands_in_the_folder_and_is_no_buffer(self) -> None:
        with tempfile.TemporaryDirectory(dir="/dev/shm") as folder:
            (Path(folder) / "target").write_bytes(b"secret")
            name = Path(folder).name + "-link"
            os.symlink(Path(folder) / "target", f"/dev/shm/{name}")
            self.addCleanup(os.unlink, f"/dev/shm/{name}")
            with self.assertRaises(OSError):
                Buffer.from_shared_memory(name)
        pipe = str(uuid.uuid4())
        os.mkfifo(f"/dev/shm/{pipe}")
        self.addCleanup(os.unlink, f"/dev/shm/{pipe}")
        with self.assertRaises(FormatError):
            Buffer.from_shared_memory(pipe)


if __name__ == "__main__":
    unittest.main()
