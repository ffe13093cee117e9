"""Faults of the machine: outputs that can't be written, odd paths, odd inputs, closed streams."""

import json
import os
import shutil
import subprocess
import tempfile
import threading
import unittest

from harness import (BINARY, FAILURE, GOLDEN, LAUNCHER, REPLAY_SDK, WINDOWS, CommandTest, Run,
                     environment_of_run, native)

COMBINED = '{"version":1,"plugins":{"A":{"type":"light","params":{"a":{"type":"bool"}}}}}'
STRIPPED = '{"plugins":{"A":null}}'
DOCUMENTS = {"stripped.json": STRIPPED, "combined.json": COMBINED,
             "left.json": STRIPPED, "right.json": COMBINED}
DIFFERENCES = ":plugins:A different values are null and "
GENH_SOURCE = "HandlerMeta m(1);\n\nreturn m;\n"
GENH_TABLE = b"HDLR\1\0\0\0\0\0\0\0"

# The arguments but for the input and the output; the message for an output that can't be opened;
# that for an input that can't be, and that for one that can't be parsed.
COMMANDS = {
    "dump": ([], "Could not open file", None, None),
    "combine": (["-i", "stripped.json"], "Failed to open the output",
                "Could not open the file - %s", "the given json file has errors inside"),
    "diff": (["-l", "left.json", "-r", "right.json"], "Could not open output file",
             "Could not open left file", "the left given json has errors inside"),
    "genh": (["-i", "combined.json"], "Could not open the INL output file",
             "Could not open the file - %s", "The given json file has errors inside"),
    "genm": (["-i", "combined.json"], "Could not open the INL output file",
             "Could not open input file", "the given json file has errors inside"),
}
READERS = [name for name in COMMANDS if name != "dump"]

posix_only = unittest.skipIf(WINDOWS, "Windows has no such thing")


class MachineTest(CommandTest):
    def setUp(self):
        super().setUp()
        for name, document in DOCUMENTS.items():
            self.write(name, document)
        self.catalogue = self.write("catalogue.json", '{"plugins":{"A":{}}}')
        self.inputs = [*DOCUMENTS, "catalogue.json"]

    def arguments(self, command, output, given=None):
        """The command line with the output and, when given, another first input."""
        options = list(COMMANDS[command][0])
        if given is not None:
            options[1] = given
        return [command, *options, "-o", output]

    def run_command(self, command, output, given=None):
        return self.run_metagen(*self.arguments(command, output, given), catalogue=self.catalogue)

    def assert_failure(self, command, message, output, given=None):
        self.assertEqual(Run(FAILURE, b"", message.encode()),
                         self.run_command(command, output, given))


class Outputs(MachineTest):
    def assert_no_output_opens(self, output):
        for command, (_, message, _, _) in COMMANDS.items():
            with self.subTest(command=command):
                self.assert_failure(command, message, output)
        self.assert_files(*self.inputs)

    def test_in_a_missing_folder(self):
        self.assert_no_output_opens(self.folder / "missing" / "output")

    def test_in_a_folder_that_is_a_file(self):
        self.assert_no_output_opens(self.folder / "stripped.json" / "output")

    @posix_only
    def test_in_a_read_only_folder(self):
        folder = "/sys/kernel"  # read-only for everybody, root included
        if os.geteuid() != 0:
            folder = self.folder / "locked"
            folder.mkdir(mode=0o555)
        self.assert_no_output_opens(f"{folder}/output")

    def test_a_folder(self):
        for name in ("output", "output.inl"):
            (self.folder / name).mkdir()
        self.assert_no_output_opens(self.folder / "output")

    def test_a_name_of_4000_characters(self):
        self.assert_no_output_opens("x" * 4000)

    @posix_only
    def test_on_a_full_device(self):
        # A full device goes unnoticed: the tool checks that files open, and no more.
        for name in ("output", "output.inl", "output.bin"):
            (self.folder / name).symlink_to("/dev/full")
        for command in COMMANDS:
            with self.subTest(command=command):
                run = self.run_command(command, "output")
                self.assertEqual((0, b""), (run.status, run.stderr))

    @posix_only
    def test_a_full_device_for_the_messages(self):
        with open("/dev/full", "wb") as full:
            finished = subprocess.run([str(BINARY), "frobnicate"], stdout=full, check=False,
                                      env=environment_of_run({"QYRA_SDK": REPLAY_SDK}))
        self.assertEqual(FAILURE, finished.returncode)


class Paths(MachineTest):
    def assert_handled(self, folder, name):
        """Every command reads from and writes to files of that name in that folder."""
        folder.mkdir(parents=True)
        for document in DOCUMENTS:
            shutil.copy(self.folder / document, folder / (name + document))
        run = self.run_command("genh", folder / name, folder / (name + "combined.json"))
        self.assertEqual(Run(0, b"", b""), run)
        self.assert_text_file(folder / (name + ".inl"), GENH_SOURCE)
        self.assert_binary_file(folder / (name + ".bin"), GENH_TABLE)
        self.assertEqual(0, self.run_command("genm", folder / name,
                                             folder / (name + "combined.json")).status)
        self.assertTrue((folder / (name + ".bin")).read_bytes().startswith(b"META"))
        self.assertEqual(0, self.run_command("combine", folder / name,
                                             folder / (name + "stripped.json")).status)
        self.assert_text_file(folder / name, '{"plugins":{}}')
        self.assertEqual(0, self.run_command("diff", folder / name,
                                             folder / (name + "left.json")).status)
        self.assertTrue((folder / name).read_text("utf-8").startswith(DIFFERENCES))
        self.assertEqual(Run(0, b"", b""), self.run_command("dump", folder / name))
        self.assert_text_file(folder / name, '{"plugins":{"A":{"type":null,"params":{}}}}')

    def test_with_odd_characters(self):
        names = ["with blank ", "100%s %n", "\u00fc\u6771\u4eac \U0001f4f7", "'single'", "-o"]
        if not WINDOWS:
            names += ['"double"', "line\nfeed", "back\\slash", "*?<>|"]
        for name in names:
            with self.subTest(name=name):
                self.assert_handled(self.folder / f"in {name} out" / "x", f"a{name}b")

    @posix_only
    def test_of_4000_characters(self):
        room = 4000 - len(str(self.folder))
        folder = self.folder.joinpath(*["d" * 199] * (room // 200))
        self.assertGreater(len(str(folder)), 3700)
        self.assert_handled(folder / "x", "a")

    @posix_only
    def test_longer_than_the_system_takes(self):
        for command in READERS:
            message = COMMANDS[command][2]
            path = "/".join(["d" * 200] * 25)
            if "%s" in message:
                message = message % path
            self.assert_failure(command, message, "output", given=path)


class Inputs(MachineTest):
    def assert_unparsable(self, content, commands=READERS):
        given = self.write("given.json", content)
        for command in commands:
            with self.subTest(command=command, size=len(content)):
                self.assert_failure(command, COMMANDS[command][3], "output", given=given)

    def test_an_empty_one(self):
        self.assert_unparsable(b"")

    def test_a_folder(self):
        for command in READERS:
            message = COMMANDS[command][2]
            if "%s" in message:
                message = message % native(self.folder)
            self.assert_failure(command, message, "output", given=self.folder)
        self.assert_files(*self.inputs)

    def test_one_cut_off_at_any_byte(self):
        for length in range(1, len(COMBINED), 20 if LAUNCHER else 1):
            self.assert_unparsable(COMBINED[:length].encode())

    def test_a_binary_one(self):
        self.assert_unparsable(bytes(range(256)) * 100)

    @unittest.skipIf(LAUNCHER, "takes long through a launcher")
    def test_a_gigabyte_of_blanks(self):
        with open(self.folder / "given.json", "wb") as file:
            for _ in range(1024):
                file.write(b" " * 2 ** 20)
        self.assert_failure("diff", COMMANDS["diff"][3], "output", given="given.json")

    @posix_only
    def test_a_pipe(self):
        pipe = self.folder / "pipe"
        os.mkfifo(pipe)
        for command, document in (("genh", COMBINED), ("combine", STRIPPED)):
            writer = threading.Thread(target=pipe.write_text, args=(document + " " * 300_000,))
            writer.start()
            self.assertEqual(0, self.run_command(command, "output", given=pipe).status)
            writer.join()
        self.assert_text_file("output.inl", GENH_SOURCE)
        self.assert_text_file("output", '{"plugins":{}}')


@posix_only
class ClosedStreams(MachineTest):
    """What would be printed is lost, and goes to no output in place of the closed stream."""

    def run_without(self, streams, *arguments, **options):
        def close():
            for number in streams:
                os.close(number)

        finished = subprocess.run(
            [str(BINARY), *arguments], cwd=self.folder, preexec_fn=close, check=False, timeout=300,
            env=environment_of_run({"QYRA_SDK": REPLAY_SDK,
                                    "QYRA_REPLAY_CATALOGUE": self.catalogue}), **options)
        return finished.returncode

    def test_a_summary_does_not_end_up_in_the_document(self):
        for streams in ([1], [0, 1], [1, 2], [0, 1, 2]):
            with self.subTest(streams=streams):
                self.assertEqual(0, self.run_without(streams, *self.arguments("combine", "output")))
                self.assert_text_file("output", '{"plugins":{}}')

    def test_a_message_does_not_end_up_in_the_document(self):
        self.write("bad.json", "{")
        for streams in ([2], [1, 2], [0, 2], [0, 1, 2]):
            with self.subTest(streams=streams):
                arguments = self.arguments("genm", "output", given="bad.json")
                self.assertEqual(FAILURE, self.run_without(streams, *arguments))
                self.assert_text_file("output.inl", "")
                self.assert_text_file("output.bin", "")

    def test_a_reader_that_went_away(self):
        # The summary, of which nobody reads a line, is longer than any buffer on its way.
        names = [f"Plugin{number}" for number in range(5_000)]
        self.write("catalogue.json", json.dumps({"plugins": dict.fromkeys(names, {})}))
        self.write("stripped.json", json.dumps({"plugins": dict.fromkeys(names)}))
        reader, writer = os.pipe()
        os.close(reader)
        with open(writer, "wb") as closed:
            status = self.run_without([], *self.arguments("combine", "output"), stdout=closed)
        self.assertEqual(0, status)
        self.assert_text_file("output", '{"plugins":{}}')


class NothingElseIsWritten(MachineTest):
    def test_only_the_named_outputs_appear(self):
        self.folder = self._temporary_folder()
        for name, document in DOCUMENTS.items():
            self.write(name, document)
        with tempfile.TemporaryDirectory() as home:
            values = {"HOME": home, "TMPDIR": home, "TEMP": home, "TMP": home}
            if LAUNCHER:
                values = {}  # the launcher's own places
            for command in COMMANDS:
                run = self.run_metagen(*self.arguments(command, command), environment=values,
                                       catalogue=self.catalogue)
                self.assertEqual(0, run.status, run)
            self.assertEqual([], os.listdir(home))
        self.assert_files(*DOCUMENTS, "combine", "diff", "dump", "genh.inl", "genh.bin",
                          "genm.inl", "genm.bin")

    def test_a_document_is_only_read(self):
        # Whatever looks like a path, a command or a format in a document is text.
        hostile = ('{"version":1,"plugins":{"$(touch x)":{"params":{"`touch y`":{"type":"string",'
                   '"defaultValue":"%s%n../../z"},"f":{"type":"string","handler":'
                   '"FileBrowserHandler","handlerinfo":{"loadMode":"1"},"defaultValue":'
                   '"/etc/passwd"}},"userData":{}}}}')
        given = self.write("given.json", hostile)
        for command in ("genh", "genm", "combine"):
            self.assertEqual(0, self.run_command(command, command, given).status)
        self.assert_files(*self.inputs, "given.json", "combine", "genh.inl", "genh.bin",
                          "genm.inl", "genm.bin")


class TwoRuns(MachineTest):
    def test_give_the_same_bytes(self):
        given = GOLDEN / "combine" / "bundled" / "combined.json"
        for name in ("first", "second"):
            self.assertEqual(0, self.run_command("genm", name, given).status)
        for end in (".inl", ".bin"):
            self.assertEqual((self.folder / f"first{end}").read_bytes(),
                             (self.folder / f"second{end}").read_bytes())


if __name__ == "__main__":
    unittest.main()
