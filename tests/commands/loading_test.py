"""Where the SDK's library is looked for, and what is said when it can't be used."""

import shutil
import unittest

from harness import FAILURE, LAUNCHER, LOAD_FAILURE, TEST_LIBRARIES, WINDOWS, CommandTest
from sdk_library import ENTRY_POINTS, LIBRARY, LIBRARY_NAME, library_without, missing_message

SEPARATOR = "\\" if WINDOWS else "/"


class LoadingTest(CommandTest):
    """Libraries are told apart by the catalogue beside them: each knows one class."""

    def place_library(self, folder, class_name, name=LIBRARY_NAME):
        """A copy of the replay SDK in the folder, whose one class has the name."""
        catalogue = f'{{"plugins":{{"{class_name}":{{"type":null,"params":{{}}}}}}}}'
        self.write(f"{folder}/catalogue.json", catalogue)
        shutil.copy(LIBRARY, self.folder / folder / name)
        return self.folder / folder

    def assert_loads(self, class_name, appsdk_bin=None, sdk=None, **others):
        environment = {"QYRA_APPSDK_BIN": appsdk_bin, "QYRA_SDK": sdk, **others}
        self.assert_run(["dump", "-o", "out.json"], environment=environment)
        expected = f'{{"plugins":{{"{class_name}":{{"type":null,"params":{{}}}}}}}}'
        self.assert_text_file("out.json", expected)

    def assert_loads_nothing(self, appsdk_bin=None, sdk=None):
        self.assert_run(["dump", "-o", "nothing.json"], status=FAILURE, stdout=LOAD_FAILURE,
                        environment={"QYRA_APPSDK_BIN": appsdk_bin, "QYRA_SDK": sdk})
        self.assertFalse((self.folder / "nothing.json").exists())

    def native_text(self, path):
        """The path as a text that more can be appended to."""
        if WINDOWS and LAUNCHER:
            return "Z:" + str(path).replace("/", "\\")
        return str(path)

    def test_appsdk_bin_names_the_librarys_folder(self):
        self.assert_loads("A", appsdk_bin=self.place_library("first", "A"))

    def test_sdk_names_the_root_above_the_bin_folder(self):
        self.place_library("root/bin", "B")
        self.assert_loads("B", sdk=self.folder / "root")

    def test_trailing_separators_do_not_matter(self):
        folder = self.native_text(self.place_library("root/bin", "A"))
        root = self.native_text(self.folder / "root")
        for end in (SEPARATOR, SEPARATOR * 3, "/", "//"):
            with self.subTest(end=end):
                self.assert_loads("A", appsdk_bin=folder + end)
                self.assert_loads("A", sdk=root + end)

    def test_separators_only_are_passed_over(self):
        root = self.place_library("root/bin", "B").parent
        for value in ("\\\\", "/", "/\\/"):
            with self.subTest(value=value):
                self.assert_loads("B", appsdk_bin=value, sdk=root)
                self.assert_loads_nothing(appsdk_bin=value, sdk=value)

    def test_an_empty_variable_is_passed_over(self):
        root = self.place_library("root/bin", "B").parent
        self.assert_loads("B", appsdk_bin="", sdk=root)

    def test_a_folder_without_the_library_is_passed_over(self):
        root = self.place_library("root/bin", "B").parent
        (self.folder / "empty").mkdir()
        self.assert_loads("B", appsdk_bin=self.folder / "empty", sdk=root)
        self.assert_loads("B", appsdk_bin=self.folder / "missing", sdk=root)

    def test_a_file_that_is_no_library_is_passed_over(self):
        root = self.place_library("root/bin", "B").parent
        self.write(f"broken/{LIBRARY_NAME}", "no library")
        self.assert_loads("B", appsdk_bin=self.folder / "broken", sdk=root)

    def test_appsdk_bin_comes_before_sdk(self):
        root = self.place_library("root/bin", "B").parent
        self.assert_loads("A", appsdk_bin=self.place_library("first", "A"), sdk=root)

    def test_appsdk_bin_is_not_a_root(self):
        self.assert_loads_nothing(appsdk_bin=self.place_library("root/bin", "B").parent)

    def test_sdk_is_not_the_librarys_folder(self):
        self.assert_loads_nothing(sdk=self.place_library("first", "A"))

    def test_the_systems_search_comes_last(self):
        # Windows searches the current folder, Linux the folders of this variable.
        folder = self.place_library("." if WINDOWS else "system", "S")
        search = {} if WINDOWS else {"LD_LIBRARY_PATH": folder}
        self.assert_loads("S", **search)
        self.assert_loads("S", appsdk_bin=self.folder / "missing", sdk="", **search)
        root = self.place_library("root/bin", "B").parent
        self.assert_loads("B", sdk=root, **search)

    @unittest.skipIf(WINDOWS, "Windows searches the current folder")
    def test_the_current_folder_is_not_searched(self):
        self.place_library(".", "S")
        self.assert_loads_nothing()

    @unittest.skipIf(WINDOWS, "the name of the library there")
    def test_a_port_may_keep_the_librarys_name(self):
        folder = self.place_library("first", "A", name="QyraSDKLibrary.dll")
        self.assert_loads("A", appsdk_bin=folder)
        # The platform's own name comes first.
        self.write(f"first/{LIBRARY_NAME}", "no library")
        self.assert_loads("A", appsdk_bin=folder)
        self.write("first/QyraSDKLibrary.dll", "no library")
        (self.folder / "first" / LIBRARY_NAME).unlink()
        self.assert_loads_nothing(appsdk_bin=folder)

    def test_folders_may_have_any_name(self):
        folder = self.place_library("an SDK \u00fc \u6771\u4eac 100%", "A")
        self.assert_loads("A", appsdk_bin=folder)

    def test_nothing_found(self):
        self.assert_loads_nothing()

    def test_a_missing_entry_point_is_named(self):
        for name in ENTRY_POINTS:
            with self.subTest(name=name):
                library = self.write(f"bin/{LIBRARY_NAME}", library_without(name))
                self.assert_run(["dump", "-o", "base.json"], status=FAILURE,
                                stdout=missing_message(library, name),
                                environment={"QYRA_SDK": self.folder})
        self.assert_files(f"bin/{LIBRARY_NAME}")

    def test_it_is_named_before_the_command_is_looked_at(self):
        library = self.write(f"bin/{LIBRARY_NAME}", library_without(ENTRY_POINTS[-1]))
        self.assert_run(["frobnicate"], status=FAILURE,
                        stdout=missing_message(library, ENTRY_POINTS[-1]),
                        environment={"QYRA_SDK": self.folder})

    def test_a_missing_entry_point_ends_the_search(self):
        library = self.write(f"first/{LIBRARY_NAME}", library_without(ENTRY_POINTS[-1]))
        root = self.place_library("root/bin", "B").parent
        self.assert_run(["dump", "-o", "base.json"], status=FAILURE,
                        stdout=missing_message(library, ENTRY_POINTS[-1]),
                        environment={"QYRA_APPSDK_BIN": library.parent, "QYRA_SDK": root})

    def test_a_library_that_lacks_one_that_it_needs_is_passed_over(self):
        root = self.place_library("root/bin", "B").parent
        (self.folder / "first").mkdir()
        shutil.copy(TEST_LIBRARIES / "dependent_sdk" / "bin" / LIBRARY_NAME, self.folder / "first")
        self.assert_loads("B", appsdk_bin=self.folder / "first", sdk=root)

    def test_libraries_that_the_library_needs_are_found_beside_it(self):
        # It has no entry points: that the first is missed shows that it was loaded.
        root = TEST_LIBRARIES / "dependent_sdk"
        run = self.run_metagen("diff", environment={"QYRA_SDK": root})
        self.assertEqual(FAILURE, run.status)
        self.assertTrue(run.stdout.startswith(b"Qyra_incrementModuleReferenceCounter ["), run)


if __name__ == "__main__":
    unittest.main()
