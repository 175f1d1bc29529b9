"""Objects by the schema, and where the schema comes from."""

import os
import subprocess
import sys
import tempfile
import unittest
from array import array
from pathlib import Path
from unittest import mock

from support import FROZEN, FULL_ROWS, PACKAGE, VRX, encoded, schema

from vrx_reader import Buffer, Capture, Object, Schema, SchemaError, find_schema, numbers, plain


class Objects(unittest.TestCase):
    def test_members(self) -> None:
        one = schema().read({"unit": "mm", "texts": ["a"] * 7, "line": [[1.0, 2.0], [3.0, 4.0]]}, "ExcPMIDimension")
        self.assertEqual((one.unit, one.unit.name, str(one.unit)), ("mm", "mm", "mm"))
        self.assertEqual((one.texts, one.line), (("a",) * 7, ((1.0, 2.0), (3.0, 4.0))))
        self.assertEqual((one.value, one.linked_elements, "unit" in one, "value" in one), (None, [], True, False))
        self.assertIs(one.line, one.line)
        self.assertIsInstance(one, schema().class_of("ExcPMIDimension"))
        self.assertIn("sub_type", dir(one))
        with self.assertRaises(AttributeError):
            one.valeu
        with self.assertRaises(AttributeError):
            one.value = 1.0

    def test_what_the_schema_does_not_know(self) -> None:
        data = {"unit": "ell", "value": "much", "line": [[1.0]], "coord": {"x": 1}, "later": [1], "leaders": 7}
        one = schema().read(data, "ExcPMIDimension")
        self.assertEqual((one.unit, one.value, one.line, one.leaders, one.later), ("ell", "much", [[1.0]], 7, [1]))
        self.assertEqual(plain(one), data)
        self.assertEqual(schema().read([1], "ExcPMIDimension"), [1])

    def test_keys_that_are_no_names_of_attributes(self) -> None:
        one = schema().read({"class": 1, "_data": 2, "a b": 3}, "ExcLog")
        self.assertEqual([one[key] for key in one], [1, 2, 3])
        self.assertEqual(plain(one), {"class": 1, "_data": 2, "a b": 3})

    def test_class_by_other_members(self) -> None:
        for interface, options in (("legacy", "LegacyImportOptionsImpl"), ("connect", "ImportOptionsImpl")):
            message = {"command": "import", "ferrant_interface": interface, "options": {"file": "f"}}
            self.assertEqual(type(schema().read_message(message).options).__name__, options)
        iges = {"operation_type": "import", "format_type": "IGES"}
        command = schema().read_message({"command": "import", "options": {"file": "f", "format_options": [iges, {}]}})
        self.assertEqual([type(each).__name__ for each in command.options.format_options], ["imp::OptionsIGES", "dict"])
        for kind, name in (("circular", "ExcMfgPatternCircular"), ("none", "dict"), ("spiral", "dict")):
            feature = schema().read({"pattern": {"type": kind}}, "ExcMfgFeatureUnclassified")
            self.assertEqual(type(feature.pattern).__name__, name)

    def test_bulk_numbers(self) -> None:
        indices = ([0, 1], [0, 0.5], [1 << 31])
        face = {"vertices": [0.5, 1.0, 2.0], "polygons": [{"indices": each} for each in indices]}
        read = schema().read({**face, "normals": [True]}, "ExcVisuFace")
        self.assertEqual(list(read.vertices), [0.5, 1.0, 2.0])
        # What is no index is not made one.
        self.assertEqual((read.polygons[1].indices, read.normals), ([0, 0.5], [True]))
        self.assertEqual(read.polygons[2].indices, [1 << 31])
        self.assertEqual(plain(read), {**face, "normals": [True]})
        with mock.patch.object(numbers, "numpy", None):
            without = schema().read(face, "ExcVisuFace")
            self.assertEqual((without.vertices, without.normals), (array("d", face["vertices"]), array("d")))
            self.assertEqual(without.polygons[0].indices, array("i", [0, 1]))

    def test_runs_of_another_type(self) -> None:
        """Integers of 64 bits where the schema tells 32 become such, where they fit, and keep their own type else."""
        for last in (7, 1 << 31):
            values = [0] * 50 + [last]
            read = Buffer(encoded({"line_indices": values})).read(schema(), "ExcVisuEdge")
            self.assertEqual(plain(read), {"line_indices": values})
            if numbers.numpy is not None:
                self.assertEqual(read.line_indices.dtype.itemsize, 4 if last == 7 else 8)

    @unittest.skipIf(numbers.numpy is None, "numpy is not there")
    def test_bulk_numbers_of_numpy(self) -> None:
        numpy = numbers.numpy
        buffer = Buffer.from_file(FROZEN / "exc_block_geometry.bin")
        ids = buffer.read(schema(), "exc_block_geometry").acis_body_ids
        self.assertEqual((ids.dtype, ids.tolist()), (numpy.uint64, [7, (1 << 64) - 1]))
        face = schema().read({"vertices": [1.0], "polygons": [{"indices": [2]}]}, "ExcVisuFace")
        arrays = (face.vertices, face.normals, face.polygons[0].indices)
        self.assertEqual([each.dtype for each in arrays], [numpy.float64, numpy.float64, numpy.int32])


class Sources(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.file = self.folder / "all.json"
        self.file.write_bytes(subprocess.run([VRX, "schema"], check=True, capture_output=True).stdout)

    def environment(self, **variables: str) -> None:
        patched = mock.patch.dict(os.environ, variables, clear=True)
        patched.start()
        self.addCleanup(patched.stop)

    def test_order(self) -> None:
        (self.folder / "vrx").symlink_to(VRX)
        broken = str(self.folder / "none")
        names = schema().class_names
        self.environment(PATH="", VRX_SCHEMA=broken, VRX=broken)
        self.assertEqual(find_schema(file=self.file).class_names, names)
        self.assertEqual(find_schema(VRX).class_names, names)
        self.environment(PATH="", VRX_SCHEMA=str(self.file), VRX=broken)
        self.assertEqual(find_schema().class_names, names)
        self.environment(PATH="", VRX=VRX)
        self.assertEqual(find_schema().class_names, names)
        self.environment(PATH=str(self.folder))
        self.assertEqual(find_schema().class_names, names)
        self.environment(PATH="")
        with self.assertRaises(SchemaError):
            find_schema()

    def test_of_one_class(self) -> None:
        text = subprocess.run([VRX, "schema", "exc_log"], check=True, capture_output=True).stdout
        self.file.write_bytes(text)
        one = Schema.from_file(self.file)
        self.assertEqual(one.read({"message": "m"}, "ExcLog").message, "m")
        with self.assertRaises(SchemaError):
            one.read({}, "ExcBlock")
        # What it does not tell stays plain.
        kinds = {message.kind: message.object for message in Capture(FULL_ROWS, one)}
        self.assertEqual({key for key, each in kinds.items() if isinstance(each, Object)}, set())

    def test_what_is_no_schema(self) -> None:
        for text in ("", "[]", "{}", '{"$defs": []}', "[" * 100000):
            self.file.write_text(text)
            with self.subTest(text[:20]), self.assertRaises(SchemaError):
                Schema.from_file(self.file)
        for program in (self.folder, self.folder / "none", "/bin/false", "/bin/true"):
            with self.subTest(program), self.assertRaises(SchemaError):
                Schema.from_program(program)


class WithoutNumpy(unittest.TestCase):
    def test_the_package_needs_none(self) -> None:
        program = (
            "import sys; sys.modules['numpy'] = None; import vrx_reader as v\n"
            "for message in v.Capture(sys.argv[1], v.find_schema(sys.argv[2])):\n"
            "    assert v.plain(message.object) == message.plain\n"
            "print(v.find_schema(sys.argv[2]).read({}, 'ExcVisuFace').vertices)"
        )
        done = subprocess.run(
            [sys.executable, "-c", program, FULL_ROWS, VRX],
            env={"PYTHONPATH": str(PACKAGE), "PYTHONDONTWRITEBYTECODE": "1"},
            capture_output=True,
            text=True,
        )
        self.assertEqual((done.stdout, done.stderr), ("array('d')\n", ""))


if __name__ == "__main__":
    unittest.main()
