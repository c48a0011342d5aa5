"""Plants one defect at a time into the library and runs the tests that could notice; tells what they did not notice.

usage: scripts/mutate [COUNT] [SEED] [--only BEGINNING]...
       scripts/mutate --patch FILE...

COUNT defects (100) are chosen by chance from SEED (1), of sources whose path begins as told. What the compiler refuses,
and what makes no difference to the compiled code, is passed over. --patch plants defects that an earlier run has kept.
"""
import argparse
import collections
import dataclasses
import hashlib
import json
import os
import pathlib
import queue
import re
import shutil
import subprocess
import sys
import threading
import time

import defects
import evidence
import workshop

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORK = ROOT / "build/mutate"
# What settings can be lost by, and what changes most, is looked at more closely.
FOLDERS = {"frame": 2, "dialogs": 2, "review": 2, "pages": 1, "records": 1, "expr": 1}


@dataclasses.dataclass
class Tried:
    path: str
    line: int
    kind: str
    patch: str
    outcome: str = ""  # killed, survived, refused, same, unclear
    by: str = ""
    seconds: float = 0

    def place(self):
        return f"{self.path}:{self.line}"


# In the process that has a display and a Wine prefix.

def serve(number):
    """Does what it is told on its input, one line of JSON each."""
    shop = workshop.Workshop(ROOT, WORK / number, print)
    for line in sys.stdin:
        job = json.loads(line)
        try:
            answer = {"prepare": prepare, "stage": run_stage, "try": try_defect}[job.pop("do")](shop, **job)
        except workshop.Failed as failure:
            answer = {"failure": str(failure)}
        print(json.dumps(answer), flush=True)


def prepare(shop):
    shop.prepare()
    return {}


def run_stage(shop, name):
    began = time.monotonic()
    stage = next(stage for stage in evidence.all_stages() if stage.name() == name)
    found = shop.notices(stage, 1800)
    return {"found": found, "seconds": time.monotonic() - began}


def try_defect(shop, path, text, limits):
    """What became of a source with this text."""
    shop.plant(path, text)
    noticed = stage = None
    try:
        if shop.make(path) is not None:
            return {"outcome": "refused"}
        if shop.is_same():
            return {"outcome": "same"}
        for stage in evidence.stages(path):
            noticed = shop.notices(stage, limits[stage.name()])
            if noticed:
                break
    finally:
        shop.take_out()
    if not noticed:
        return {"outcome": "survived"}
    # A test that fails without the defect too has not noticed it.
    is_test = re.fullmatch(r"[\w/]+\.[\w/]+", noticed)
    again = shop.notices(stage, 600, noticed) if is_test else None
    return {"outcome": "unclear" if again else "killed", "by": noticed}


# In the process that was started.

class Worker:
    def __init__(self, number):
        (WORK / number).mkdir(parents=True, exist_ok=True)
        # Anew: what a test that was stopped left registered in it would fail others.
        shutil.rmtree(WORK / number / "prefix", ignore_errors=True)
        environment = dict(os.environ, PELMAR_VIRTUAL_DISPLAY="1", PELMAR_PROCESSOR=number,
                           WINEPREFIX=str(WORK / number / "prefix"))
        self.process = subprocess.Popen(
            [ROOT / "scripts/wine-session", sys.executable, __file__, "--serve", number], stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, text=True, env=environment)

    def ask(self, do, **job):
        self.process.stdin.write(json.dumps({"do": do, **job}) + "\n")
        self.process.stdin.flush()
        answer = self.process.stdout.readline()
        if not answer:
            sys.exit("mutate: a worker ended")
        answer = json.loads(answer)
        if "failure" in answer:
            sys.exit(f"mutate: {answer['failure']}")
        return answer

    def end(self):
        self.process.stdin.close()
        self.process.wait()


def in_parallel(workers, jobs, do):
    """do(worker, job) for all jobs; a worker takes the next one when it is free."""
    waiting = queue.Queue()
    for job in jobs:
        waiting.put(job)

    def work(worker):
        while True:
            try:
                job = waiting.get_nowait()
            except queue.Empty:
                return
            do(worker, job)

    threads = [threading.Thread(target=work, args=(worker,)) for worker in workers]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()


def build_tests():
    status, output = workshop.run(["cmake", "--preset", "windows"], 600, cwd=ROOT)
    if status == 0:
        status, output = workshop.run(["cmake", "--build", "--preset", "windows"], 3600, cwd=ROOT)
    if status != 0:
        sys.exit(output[-4000:])


def limits_without_defects(workers):
    """How long each stage may take. All must pass first: a test that fails anyway notices nothing."""
    programs = hashlib.sha256()
    for program in sorted((ROOT / "build/windows/bin").glob("*.*")):
        if program.is_file():
            programs.update(workshop.digest(program))
    file = WORK / "limits.json"
    known = json.loads(file.read_text()) if file.exists() else {}
    if known.get("programs") != programs.hexdigest():
        known = {"programs": programs.hexdigest(), "limits": {}}
    limits, failed = known["limits"], []

    def measure(worker, stage):
        for _ in range(2):  # a busy machine may fail a test once
            result = worker.ask("stage", name=stage.name())
            if not result["found"]:
                limits[stage.name()] = 60 + 4 * result["seconds"]
                file.write_text(json.dumps(known))  # what was measured need not be again
                return
        failed.append(f"{stage.name()}: {result['found']}")

    in_parallel(workers, [stage for stage in evidence.all_stages() if stage.name() not in limits], measure)
    if failed:
        sys.exit("mutate: fails without a defect: " + "; ".join(failed))
    return limits


def sources(beginnings):
    for folder in FOLDERS:
        for file in sorted((ROOT / folder).glob("*.*")):
            path = str(file.relative_to(ROOT))
            if file.suffix in (".cpp", ".h") and (not beginnings or path.startswith(tuple(beginnings))):
                yield defects.Source(path, file.read_text(encoding="utf-8"))


def from_chance(count, seed, beginnings):
    """Defects as texts of their sources, many more than COUNT, for those that are passed over."""
    for defect in defects.chosen(list(sources(beginnings)), FOLDERS, 10 * count, seed):
        text = (ROOT / defect.path).read_text(encoding="utf-8")
        yield Tried(defect.path, defect.line(text), defect.kind, defect.patch(text)), defect.planted_in(text)


def from_patches(files):
    for file in files:
        patch = pathlib.Path(file).read_text(encoding="utf-8")
        path = re.search(r"^--- a/(\S+)", patch, re.MULTILINE).group(1)
        line = int(re.search(r"^@@ -(\d+)", patch, re.MULTILINE).group(1))
        copy = WORK / "patched"
        shutil.copy(ROOT / path, copy)
        subprocess.run(["patch", "-s", copy, file], check=True)
        yield Tried(path, line, "patch", patch), copy.read_text(encoding="utf-8")


def try_all(workers, chosen, count, limits):
    done, lock = [], threading.Lock()
    chosen = iter(chosen)

    def work(worker):
        while True:
            with lock:
                enough = sum(tried.outcome in ("killed", "survived", "unclear") for tried in done) >= count
                job = None if enough else next(chosen, None)
            if not job:
                return
            tried, text = job
            began = time.monotonic()
            answer = worker.ask("try", path=tried.path, text=text, limits=limits)
            tried.outcome, tried.by = answer["outcome"], answer.get("by", "")
            tried.seconds = time.monotonic() - began
            with lock:
                done.append(tried)
                tell(tried)

    in_parallel(workers, range(len(workers)), lambda worker, _: work(worker))
    return done


def tell(tried):
    by = f" by {tried.by}" if tried.by else ""
    print(f"{tried.outcome}{by}: {tried.kind} at {tried.place()} ({tried.seconds:.0f} s)", flush=True)
    if tried.outcome in ("survived", "unclear"):
        kept = WORK / tried.outcome / f"{tried.place().replace('/', '_').replace(':', '_')}_{tried.kind}.diff"
        kept.parent.mkdir(exist_ok=True)
        kept.write_text(tried.patch, encoding="utf-8")
        print("".join("    " + line for line in tried.patch.splitlines(True)[3:]), flush=True)


def summarise(done, seconds):
    table = collections.defaultdict(collections.Counter)
    for tried in done:
        table[tried.path.split("/")[0]][tried.outcome] += 1
        table["all"][tried.outcome] += 1
    for folder, outcomes in table.items():
        print(f"{folder}: {outcomes['killed']} killed, {outcomes['survived']} survived, {outcomes['unclear']} unclear"
              f" ({outcomes['refused']} refused by the compiler, {outcomes['same']} without a difference)")
    print(f"{seconds / 60:.0f} minutes; what survived is in {WORK.relative_to(ROOT)}/survived")
    return table["all"]["survived"] + table["all"]["unclear"]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("count", nargs="?", type=int, default=100)
    parser.add_argument("seed", nargs="?", type=int, default=1)
    parser.add_argument("--only", action="append", default=[])
    parser.add_argument("--patch", nargs="+")
    parser.add_argument("--serve", help=argparse.SUPPRESS)
    arguments = parser.parse_args()
    if arguments.serve:
        return serve(arguments.serve)

    build_tests()
    workers = [Worker(str(number + 1)) for number in range(os.cpu_count() or 1)]
    in_parallel(workers, range(len(workers)), lambda worker, _: worker.ask("prepare"))
    limits = limits_without_defects(workers)
    for outcome in ("survived", "unclear"):
        if not arguments.patch:
            shutil.rmtree(WORK / outcome, ignore_errors=True)
    print("mutate: ready", flush=True)
    began = time.monotonic()
    if arguments.patch:
        chosen, count = from_patches(arguments.patch), len(arguments.patch)
    else:
        chosen, count = from_chance(arguments.count, arguments.seed, arguments.only), arguments.count
    done = try_all(workers, chosen, count, limits)
    for worker in workers:
        worker.end()
    return 1 if summarise(done, time.monotonic() - began) else 0


if __name__ == "__main__":
    sys.exit(main())
