"""The recipe of vrx_api for Conan 2. It lies among the sources and takes them from there."""
from pathlib import Path
from typing import Any

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, rmdir

required_conan_version = ">=2.1"


class VrxApiConan(ConanFile):
    name = "vrx_api"
    version = "0.2.0"
    description = "Exchange of CAD model data between a host application and a translator process"
    license = "LicenseRef-all-rights-reserved"
    url = "https://vrx-api.example/vrx_api.git"
    homepage = url
    topics = ("cad", "serialization", "ipc")
    package_type = "library"
    settings = "os", "arch", "compiler", "build_type"
    options = {
        "shared": [True, False],
        "fPIC": [True, False],
        "bridge": [True, False],
        "kernel_standin": [True, False],
        "libdeflate": [True, False],
        "tools": [True, False],
    }
    default_options = {
        "shared": True,
        "fPIC": True,
        "bridge": True,
        "kernel_standin": False,
        "libdeflate": True,
        "tools": False,
    }
    implements = ["auto_shared_fpic"]

    def export_sources(self) -> None:
        top = Path(self.recipe_folder).parents[1]
        folders = ("bridge", "cmake", "kernel_standin", "kolt", "mp", "packaging/debian", "tools", "vrx_api")
        for pattern in ("CMakeLists.txt", *(f"{folder}/*" for folder in folders)):
            copy(self, pattern, src=str(top), dst=self.export_sources_folder)

    def layout(self) -> None:
        cmake_layout(self)

    def requirements(self) -> None:
        self.requires("boost/1.86.0", options={"header_only": True})
        self.requires("rapidjson/cci.20230929", transitive_headers=True)
        self.requires("zlib/[>=1.2.11 <2]")
        if self.options.libdeflate:
            self.requires("libdeflate/1.22")

    def build_requirements(self) -> None:
        self.tool_requires("cmake/[>=3.25 <4]")

    def validate(self) -> None:
        check_min_cppstd(self, 17)
        if self.settings.os not in ("Linux", "Windows"):
            raise ConanInvalidConfiguration(f"{self.ref} runs on Linux and Windows only")
        if self.settings.arch not in ("x86_64", "armv8"):
            raise ConanInvalidConfiguration(f"{self.ref} runs on 64-bit systems only")

    def generate(self) -> None:
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["VRX_API_BUILD_BRIDGE"] = bool(self.options.bridge)
        toolchain.cache_variables["VRX_API_BUILD_TOOLS"] = bool(self.options.tools)
        toolchain.cache_variables["VRX_API_KERNEL_STANDIN"] = bool(self.options.kernel_standin)
        toolchain.cache_variables["VRX_API_LIBDEFLATE"] = bool(self.options.libdeflate)
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self) -> None:
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self) -> None:
        CMake(self).install()
        package = Path(self.package_folder)
        copy(self, "copyright", src=str(Path(self.source_folder, "packaging/debian")), dst=str(package / "licenses"))
        # Conan makes such files itself, from what package_info tells.
        rmdir(self, str(package / "lib" / "cmake"))
        rmdir(self, str(package / "lib" / "pkgconfig"))

    def package_info(self) -> None:
        self.cpp_info.set_property("cmake_file_name", "vrx_api")
        library = self._component("vrx_api", "vrx_api", "VRX_API_STATIC")
        library.set_property("pkg_config_name", "vrx_api")
        library.requires = ["boost::headers", "rapidjson::rapidjson", "zlib::zlib"]
        if self.options.libdeflate:
            library.requires.append("libdeflate::libdeflate")
        if self.settings.os == "Windows":
            library.defines.append("BOOST_INTERPROCESS_BOOTSTAMP_IS_SESSION_MANAGER_BASED")
            library.system_libs = ["bcrypt"]
        if self.options.kernel_standin:
            library.requires.append("kernel_standin")
            self._component("kernel_standin", "vrx_kernel_standin", "KERNEL_STANDIN_STATIC")
        if self.options.bridge or self.options.tools:
            bridge = self._component("bridge", "vrx_api_bridge", "VRX_BRIDGE_STATIC")
            bridge.set_property("pkg_config_name", "vrx_api_bridge")
            bridge.requires = ["vrx_api"]

    def _component(self, name: str, file: str, static_macro: str) -> Any:
        component = self.cpp_info.components[name]
        component.set_property("cmake_target_name", f"vrx_api::{name}")
        component.libs = [file]
        component.includedirs = ["include/vrx_api-0.2"]
        if not self.options.shared:
            component.defines.append(static_macro)
        return component
