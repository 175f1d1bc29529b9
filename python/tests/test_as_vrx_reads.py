"""What the package reads is what `vrx show` tells."""

import unittest
from array import array
from pathlib import Path
from unittest import mock

from support import FROZEN, FULL_ROWS, differs, schema, shown

import vrx_reader
from vrx_reader import numbers


def class_of(path: Path) -> str:
    return path.name.split(".")[0].removesuffix("_2")


class FrozenFiles(unittest.TestCase):
    def expect(self, path: Path, plain: object, typed: object) -> None:
        with self.subTest(path.name):
            # A binary form that is a text alone, vrx shows nowhere.
            told = path.with_suffix(".json") if path.name == "exc_stage_finished.bin" else path
            self.assertEqual(differs(shown("--at", "", told), plain), "")
            self.assertEqual(differs(plain, vrx_reader.plain(typed)), "")

    def test_buffers(self) -> None:
        paths = [path for path in sorted(FROZEN.iterdir()) if path.suffix in (".bin", ".gz", ".zlib")]
        paths = [path for path in paths if ".acis" not in path.name]
        self.assertGreater(len(paths), 20)
        for path in paths:
            buffer = vrx_reader.Buffer.from_file(path)
            self.expect(path, buffer.plain(), buffer.read(schema(), class_of(path)))

    def test_texts(self) -> None:
        paths = sorted(FROZEN.glob("*.json"))
        self.assertGreater(len(paths), 30)
        for path in paths:
            message = vrx_reader.read_message(path, schema=schema())
            if message.kind == "unknown":
                self.expect(path, message.plain, schema().read(message.plain, class_of(path)))
            elif message.plain is not None:
                self.expect(path, message.plain, message.object)
            else:
                self.assertNotEqual(message.buffer_name, "")
            wide = path.read_text(encoding="utf-8").encode("utf-16")
            self.assertEqual(message.json, vrx_reader.read_message(wide).json)

    def test_envelopes_with_their_buffers(self) -> None:
        for path in sorted(FROZEN.glob("*.envelope.json")):
            content = path.with_name(path.name.replace(".envelope.json", ".bin"))
            message = vrx_reader.read_message(path, vrx_reader.Buffer.from_file(content), schema())
            with self.subTest(path.name):
                self.assertEqual(message.object_name, class_of(path))
                if message.bodies is None and message.buffer_name:
                    self.assertEqual(differs(shown("--at", "", content), vrx_reader.plain(message.object)), "")

    def test_bodies(self) -> None:
        bodies = (FROZEN / "exc_block_geometry.acis").read_bytes()
        for name in ("exc_block_geometry.acis", "exc_block_geometry.acis.gz"):
            buffer = vrx_reader.Buffer.from_file(FROZEN / name)
            message = vrx_reader.read_message(FROZEN / "exc_block_geometry.envelope.json", buffer, schema())
            self.assertEqual(message.bodies, bodies)
            self.assertEqual(message.object.acis_body_ids.tolist(), [7, 18446744073709551615])


class WholeCapture(unittest.TestCase):
    def test_messages(self) -> None:
        capture = vrx_reader.Capture(FULL_ROWS, schema())
        for message in capture:
            with self.subTest(message):
                told = shown("--at", str(message.number), FULL_ROWS)
                self.assertEqual(differs(told, message.plain), "")
                self.assertEqual(differs(told, vrx_reader.plain(message.object)), "")
        self.assertEqual((capture.message_count, capture.is_cut, capture.end), (16, False, {"exit_code": 0}))
        self.assertEqual(capture.message(8).bodies, b"bodies")
        nodes = capture.message(11).object.visualization_data.scene_root_nodes
        self.assertIs(type(nodes[0].mesh.faces[0].vertices), array if numbers.numpy is None else numbers.numpy.ndarray)
        with self.assertRaises(IndexError):
            capture.message(17)


def load_tests(loader: unittest.TestLoader, tests: unittest.TestSuite, pattern: str | None) -> unittest.TestSuite:
    """All once more without numpy."""
    suite = unittest.TestSuite([tests])
    for case in (FrozenFiles, WholeCapture):
        without = type(case.__name__ + "WithoutNumpy", (case,), {})
        suite.addTests(loader.loadTestsFromTestCase(mock.patch.object(numbers, "numpy", None)(without)))
    return suite
