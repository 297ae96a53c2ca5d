import os
import re

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load, rmdir

required_conan_version = ">=2.0"


class KvEngineR(ConanFile):
    """Builds the clone that this recipe stands in."""

    name = "kv_engine_r"
    description = "Value classes that a broadcast ingest and playout engine and its clients exchange"
    license = "LicenseRef-all-rights-reserved"
    topics = ("broadcast", "timecode", "media")
    package_type = "shared-library"
    settings = "os", "arch", "compiler", "build_type"
    default_options = {"boost/*:header_only": True}

    @property
    def _root(self):
        return os.path.join(self.recipe_folder, "..", "..")

    def set_version(self):
        text = load(self, os.path.join(self._root, "CMakeLists.txt"))
        self.version = re.search(r"^ *VERSION ([0-9.]+)$", text, re.M)[1]

    def export_sources(self):
        for pattern in ("CMakeLists.txt", "cmake/*", "core/*", "include/*", "src/*"):
            copy(self, pattern, src=self._root, dst=self.export_sources_folder)

    def layout(self):
        cmake_layout(self)

    def requirements(self):
        # Nothing of it is in the headers.
        self.requires("boost/[>=1.74 <2]", headers=True, libs=False, visible=False)

    def validate(self):
        check_min_cppstd(self, 20)
        if self.settings.os not in ("Linux", "Windows") or self.settings.arch not in ("x86_64", "armv8"):
            raise ConanInvalidConfiguration("64-bit Linux or Windows is needed")
        if self.settings.compiler not in ("gcc", "clang"):
            raise ConanInvalidConfiguration("GCC or Clang is needed, on Windows that of MinGW-w64")

    def generate(self):
        toolchain = CMakeToolchain(self)
        boost = self.dependencies["boost"].cpp_info
        toolchain.cache_variables["kv_boost_ROOT"] = boost.includedirs[0].replace("\\", "/")
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        copy(self, "copyright", src=os.path.join(self.source_folder, "cmake", "package"),
             dst=os.path.join(self.package_folder, "licenses"))
        CMake(self).install()
        # Conan writes its own.
        rmdir(self, os.path.join(self.package_folder, "lib", "cmake"))
        rmdir(self, os.path.join(self.package_folder, "lib", "pkgconfig"))

    def package_info(self):
        self.cpp_info.set_property("cmake_file_name", "kv_Engine_r")
        for name, library in (("core", "kv_Core_r"), ("engine", "kv_Engine_r")):
            component = self.cpp_info.components[name]
            component.set_property("cmake_target_name", f"Korvane::{library}")
            component.set_property("pkg_config_name", library)
            component.libs = [library]
            component.includedirs = ["include/kv_Engine_r"]
        self.cpp_info.components["engine"].requires = ["core"]
