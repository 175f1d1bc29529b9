#!/usr/bin/env python3
"""Runs the methods of packaging/conan/conanfile.py for all its options, with small things in place of Conan's own.

usage: packaging/trials/conan_recipe.py VRX_API_PC LINKAGE
What the recipe tells of all components must be what VRX_API_PC tells, a file of pkg-config from a build with the
kernel's stand-in whose libraries are of this LINKAGE: static or dynamic.
"""
import itertools
import sys
from collections import defaultdict
from pathlib import Path
from types import ModuleType, SimpleNamespace
from typing import Any
from unittest.mock import MagicMock

recipes = Path(__file__).parents[1] / "conan"


class Component(SimpleNamespace):
    def __init__(self) -> None:
        super().__init__(libs=[], defines=[], requires=[], includedirs=[], system_libs=[], properties={})

    def set_property(self, name: str, value: str) -> None:
        self.properties[name] = value


class Base:
    """What a recipe has from Conan while it runs."""

    def __init__(self, system: str, options: dict[str, bool]) -> None:
        self.options = SimpleNamespace(**options)
        self.settings = SimpleNamespace(os=system, arch="x86_64")
        self.ref = "vrx_api"
        self.recipe_folder = str(recipes)
        self.required: list[str] = []
        self.cpp_info = Component()
        self.cpp_info.components = defaultdict(Component)

    def requires(self, reference: str, **_: Any) -> None:
        self.required.append(reference.partition("/")[0])

    def tool_requires(self, reference: str) -> None:
        pass


def load(path: Path) -> ModuleType:
    """Runs the recipe's text; what it imports from Conan takes any call."""
    for name in ("conan", "conan.errors", "conan.tools", "conan.tools.build", "conan.tools.cmake", "conan.tools.files"):
        sys.modules[name] = MagicMock()
    sys.modules["conan"].ConanFile = Base
    sys.modules["conan.errors"].ConanInvalidConfiguration = ValueError
    module = ModuleType(path.stem)
    exec(compile(path.read_text(encoding="utf-8"), str(path), "exec"), module.__dict__)
    return module


def check(recipe: Any) -> None:
    """Components stand only on each other and on packages that are required, and each of these is used."""
    recipe.validate()
    recipe.requirements()
    recipe.build_requirements()
    recipe.generate()
    recipe.package_info()
    components = recipe.cpp_info.components
    used = set()
    for component in components.values():
        for name in component.requires:
            package, colons, _ = name.partition("::")
            assert package in (recipe.required if colons else components), f"{name} is not there"
            used.add(package)
    assert set(recipe.required) <= used, f"{set(recipe.required) - used} is required but no component uses it"


def main() -> None:
    words = Path(sys.argv[1]).read_text(encoding="utf-8").split()
    recipe_class = load(recipes / "conanfile.py").VrxApiConan
    load(recipes / "test_package" / "conanfile.py")
    names = list(recipe_class.default_options)
    for system, values in itertools.product(("Linux", "Windows"), itertools.product((True, False), repeat=len(names))):
        check(recipe_class(system, dict(zip(names, values))))
    try:
        recipe_class("Macos", recipe_class.default_options).validate()
    except ValueError:
        pass
    else:
        sys.exit("the recipe takes a system on which the library does not run")

    everything = dict.fromkeys(names, True) | {"shared": sys.argv[2] == "dynamic"}
    recipe = recipe_class("Linux", everything)
    recipe.package_info()
    components = recipe.cpp_info.components.values()
    definitions = {definition for c in components for definition in c.defines}
    assert definitions == {w[2:] for w in words if w.startswith("-D")}, "definitions differ"
    libraries = {lib for c in components for lib in c.libs} - {"vrx_api_bridge"}
    assert libraries == {w[2:] for w in words if w.startswith("-l")}, "libraries differ"
    folder = next(w for w in words if w.startswith("includedir=")).rpartition("}/")[2]
    assert {d for c in components for d in c.includedirs} == {folder}, "folders of headers differ"


main()
