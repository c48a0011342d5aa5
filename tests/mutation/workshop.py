"""A copy of the tree in which defects are planted, built and tried, one at a time."""
import hashlib
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

WINDOWS_TARGETS = ["PelmarDlgs", "saving_tests"]
NATIVE_TARGETS = ["expr_tests", "record_tests", "review_tests", "help_text_tests"]
NATIVE_FOLDERS = ("frame", "expr", "records", "review")
BUILT = ("*.obj", "*.o", "*.a", "*.dll", "*.exe", "*_tests")
LONGEST_BUILD = 600


class Failed(Exception):
    """Something that should work without a defect does not."""


def run(command, longest, **options):
    """The status of a command, None where it had to be stopped, and what it printed: into a file, as what it leaves
    running in the background would hold a pipe open."""
    with tempfile.TemporaryFile() as output:
        with subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT,
                              start_new_session=True, **options) as process:
            try:
                status = process.wait(longest)
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
                status = None
        output.seek(0)
        return status, output.read().decode(errors="replace")


class Workshop:
    """Runs within scripts/wine-session, which gives it a display and a Wine prefix of its own."""

    def __init__(self, root, folder, say):
        self.root, self.folder, self.say = root, folder, say
        self.tree = folder / "tree"
        self.builds = {"windows": self.tree / "build/windows", "native": self.tree / "build/native"}
        self.pristine = folder / "pristine"
        self.prefix = pathlib.Path(os.environ["WINEPREFIX"])

    # Without a defect.

    def prepare(self):
        self.copy_tree()
        # Quick to compile: what is looked for does not depend on how fast it runs.
        self.configure("windows", "-DCMAKE_CXX_FLAGS_RELEASE=-O0 -DNDEBUG")
        self.configure("native", "-DCMAKE_CXX_FLAGS_RELEASE=-O0")
        for kind, targets in (("native", NATIVE_TARGETS), ("windows", WINDOWS_TARGETS)):
            status, output = self.build(kind, targets, 3600)
            if status != 0:
                raise Failed(output[-4000:])
        self.take_programs()
        self.keep_pristine()
        self.keep_registry()

    def copy_tree(self):
        """What git would take of the tree as it stands; what did not change keeps its time."""
        listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=self.root,
                                check=True, capture_output=True).stdout.decode().split("\0")
        for name in filter(None, listed):
            source, copy = self.root / name, self.tree / name
            if not source.is_file():
                continue
            if copy.exists() and copy.read_bytes() == source.read_bytes():
                continue
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, copy)
        for copy in self.tree.rglob("*"):
            name = copy.relative_to(self.tree)
            if name.parts[0] != "build" and copy.is_file() and str(name) not in listed:
                copy.unlink()

    def configure(self, kind, *settings):
        status, output = run(["cmake", "--preset", kind, *settings], LONGEST_BUILD, cwd=self.tree)
        if status != 0:
            raise Failed(output[-4000:])

    def build(self, kind, targets, longest=LONGEST_BUILD):
        return run(["cmake", "--build", self.builds[kind], "-j1", "--target", *targets], longest, cwd=self.tree)

    def take_programs(self):
        """All other programs are those of the tree's own build."""
        ours = self.builds["windows"] / "bin"
        for source in (self.root / "build/windows/bin").iterdir():
            copy = ours / source.name
            if source.is_dir():
                shutil.copytree(source, copy, dirs_exist_ok=True)
            elif source.name not in ("PelmarDlgs.dll", "saving_tests.exe"):
                copy.unlink(missing_ok=True)
                os.link(source, copy)

    def keep_pristine(self):
        shutil.rmtree(self.pristine, ignore_errors=True)
        for kind, build in self.builds.items():
            for pattern in BUILT:
                for source in build.rglob(pattern):
                    if source.is_file() and source.stat().st_nlink == 1:
                        copy = self.pristine / kind / source.relative_to(build)
                        copy.parent.mkdir(parents=True, exist_ok=True)
                        shutil.copy2(source, copy)

    def keep_registry(self):
        self.end_wine()
        kept = self.folder / "registry"
        kept.mkdir(exist_ok=True)
        for file in self.prefix.glob("*.reg"):
            shutil.copy2(file, kept)
        self.start_wine()

    def start_wine(self):
        subprocess.run(["wineserver", "-p"], check=False, stderr=subprocess.DEVNULL)

    def end_wine(self):
        subprocess.run(["wineserver", "-k"], check=False, stderr=subprocess.DEVNULL)
        subprocess.run(["wineserver", "-w"], check=False, stderr=subprocess.DEVNULL)

    def clean_wine(self):
        """After a program that did not end by itself: what it left running or registered would fail others."""
        self.end_wine()
        for file in (self.folder / "registry").iterdir():
            shutil.copy2(file, self.prefix)
        self.start_wine()

    # With a defect.

    def plant(self, path, text):
        self.planted = self.tree / path
        self.before = self.planted.read_bytes(), self.planted.stat()
        self.began = time.time()
        self.planted.write_bytes(text.encode())

    def take_out(self):
        """Source and outputs as they were, with their times, so that the next defect builds no more than its own."""
        content, state = self.before
        self.planted.write_bytes(content)
        os.utime(self.planted, ns=(state.st_atime_ns, state.st_mtime_ns))
        for kind, build in self.builds.items():
            kept = self.pristine / kind
            for copy in kept.rglob("*"):
                target = build / copy.relative_to(kept)
                if copy.is_file() and target.stat().st_mtime_ns != copy.stat().st_mtime_ns:
                    target.unlink()
                    shutil.copy2(copy, target)

    def make(self, path):
        """Builds what the source goes into; the compiler's words where it refuses."""
        if path.split("/")[0] in NATIVE_FOLDERS:
            status, output = self.build("native", NATIVE_TARGETS)
            if status != 0:
                return output
        status, output = self.build("windows", WINDOWS_TARGETS)
        return output if status != 0 else None

    def is_same(self):
        """Whether the library's code came out as without the defect; the linker's date does not count."""
        for kind, build in self.builds.items():
            kept = self.pristine / kind
            for copy in list(kept.rglob("*.obj")) + list(kept.rglob("*.o")):
                built = build / copy.relative_to(kept)
                if built.stat().st_mtime_ns != copy.stat().st_mtime_ns and digest(built) != digest(copy):
                    return False
        return True

    def names(self, stage):
        """Each run that a stage consists of, as a filter."""
        if not stage.apart:
            return [stage.filter]
        _, output = self.call(stage, ["--gtest_list_tests"], 120)
        suite, found = "", []
        for line in output.splitlines():
            if line.startswith("  "):
                found.append(suite + line.split("#")[0].strip())
            elif re.match(r"^\w+\.$", line.strip()):
                suite = line.strip()
        return found

    def call(self, stage, arguments, longest):
        environment = dict(os.environ, LC_ALL="ru_RU.UTF-8", **dict(stage.environment))
        if stage.native:
            program = self.builds["native"] / "bin" / stage.program
            return run([program, *arguments], longest, env=environment, cwd=self.folder)
        program = self.builds["windows"] / "bin" / (stage.program + ".exe")
        return run([self.tree / "scripts/run-in-wine", program, *arguments], longest, env=environment, cwd=self.folder)

    def notices(self, stage, longest, filter=None):
        """What a stage finds: None, or the test that failed first, or how else the program ended."""
        for each in [filter] if filter else self.names(stage):
            status, output = self.call(stage, [f"--gtest_filter={each}", "--gtest_fail_fast"], longest)
            if status == 0:
                continue
            if status is None or status < 0 or status > 1:
                self.clean_wine()
            failed = re.search(r"^\[  FAILED  \] ([\w./]+)", output, re.MULTILINE)
            if failed:
                return failed.group(1)
            begun = re.findall(r"^\[ RUN      \] ([\w./]+)", output, re.MULTILINE)
            where = f" in {begun[-1]}" if begun else ""
            return ("did not end" if status is None else f"ended with {status}") + where
        return None


def digest(file):
    return hashlib.sha256(file.read_bytes()).digest()
