#!/usr/bin/env python3
"""run.py BUILD [--gates] [FIGURE...]: measures what stands in budgets.py and says how it compares.

Runs the benchmark programs of the build folder, prints a table and writes BUILD/report.html. FIGURE is the
beginning of the names to measure. With --gates only the deterministic figures, and exit status 1 when one is
over its budget; with or without, 1 when something could not be measured, which is said. Called by scripts/bench, which
builds first.
"""

import contextlib
import http.server
import json
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import threading
import time

import budgets
import fonts
import report

PAIRS = 60  # launches of each variant
ROUNDS = 20  # of other programs that are started in turns


class Bench:
    def __init__(self, build, wanted):
        self.bin = build / "bin"
        self.lib = build / "lib"
        self.scratch = pathlib.Path(tempfile.mkdtemp(prefix="scratch-", dir=build))  # on the disk, not in memory
        self.wanted = wanted
        self.rows = []
        self.skipped = []
        os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
        os.environ["XDG_RUNTIME_DIR"] = str(self.folder("run"))
        os.environ["LC_ALL"] = "C.UTF-8"
        os.environ["QT_HASH_SEED"] = "0"  # the same instructions every time
        if os.geteuid() == 0:
            os.environ.setdefault("QTWEBENGINE_DISABLE_SANDBOX", "1")

    def wants(self, *names):
        return any(name.startswith(tuple(self.wanted)) for name in names) if self.wanted else True

    def folder(self, name):
        path = self.scratch / name
        path.mkdir(mode=0o700, exist_ok=True)
        return path

    def say(self, figure, ours, reference=0, size=0):
        self.rows.append({"figure": figure, "size": size, "ours": ours, "reference": reference})

    def skip(self, what, why):
        self.skipped.append(f"{what}: not measured, {why}")

    def run(self, program, *arguments, **options):
        """The program's standard output; its own messages are kept out of the table."""
        command = [self.bin / program, *map(str, arguments)]
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, **options)
        if done.returncode != 0:
            raise RuntimeError(f"{program} ended with status {done.returncode}\n{done.stderr}")
        return done.stdout

    def gather(self, program, *arguments):
        for line in self.run(program, *arguments).splitlines():
            row = json.loads(line)
            if self.wants(row["figure"]):
                self.rows.append(row)


def now():
    return time.clock_gettime_ns(time.CLOCK_MONOTONIC)


def launch_environment(bench, count):
    """An account with `count` fonts and a settings file as after some months of use."""
    home = bench.folder(f"home-{count}")
    settings = home / "com.example.launchhost"
    settings.mkdir(exist_ok=True)
    entries = "".join(f"<key>setting {i}</key><string>value {i}</string>" for i in range(40))
    (settings / "defaults.plist").write_text(
        '<plist version="1.0"><dict><key>Recommender Last Version</key><integer>7</integer>'
        f"{entries}</dict></plist>")
    config = fonts.make(bench.folder(f"fonts-{count}"), count)
    return {**os.environ, "XDG_CONFIG_HOME": str(home), "FONTCONFIG_FILE": str(config)}


def launch(bench, variant, window, environment):
    """[milliseconds, KiB, threads, fsyncs, heavy libraries]"""
    return [float(word) for word in bench.run(f"launch-{variant}", now(), window, env=environment).split()]


def launch_times(bench, window, count, environment):
    for variant in ("bare", "empty", "framework"):
        launch(bench, variant, window, environment)
    samples = {variant: [] for variant in ("bare", "empty", "framework")}
    for i in range(PAIRS):
        for variant in samples if i % 2 else reversed(samples):
            samples[variant].append(launch(bench, variant, window, environment))
    name = f"launch.{window}"
    for figure, variant, column in (("time", "framework", 0), ("empty", "empty", 0), ("memory", "framework", 1)):
        bare = statistics.median(row[column] for row in samples["bare"])
        # Of the pairs: what slows the machine down for a while slows down both.
        added = statistics.median(
            row[column] - other[column] for row, other in zip(samples[variant], samples["bare"]))
        bench.say(f"{name}.{figure}", bare + added, bare, count)


def valgrind_number(bench, tool, marker, variant, window, environment):
    command = ["valgrind", *tool, bench.bin / f"launch-{variant}", "0", window]
    said = subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, env=environment).stderr
    line = next(line for line in said.splitlines() if marker in line)
    return int(line.split(marker)[1].split()[0].replace(",", ""))


def launch_counts(bench, window, count, environment):
    callgrind = ["--tool=callgrind", "--callgrind-out-file=/dev/null"], "Collected :"
    memcheck = ["--tool=memcheck", "--leak-check=no", "--undef-value-errors=no"], "total heap usage:"
    # The toolkit's own work varies, by some millions with many fonts: the least of three is what it takes.
    numbers = {(kind, variant): min(valgrind_number(bench, *tool, variant, window, environment)
                                    for _ in range(3))
               for kind, tool in (("instructions", callgrind), ("allocations", memcheck))
               for variant in ("bare", "empty", "framework")}
    name = f"launch.{window}"
    millions = {variant: numbers["instructions", variant] / 1e6 for variant in ("bare", "empty", "framework")}
    bench.say(f"{name}.instructions", millions["framework"], millions["bare"], count)
    bench.say(f"{name}.empty.instructions", millions["empty"], millions["bare"], count)
    bench.say(f"{name}.allocations", numbers["allocations", "framework"], numbers["allocations", "bare"], count)


def measure_launch(bench, gates):
    for count in (130, 500, 1000, 2000) if not gates else (130,):  # more fonts do not give the same every time
        environment = launch_environment(bench, count)
        for window in ("window", "plain"):
            if not gates:
                launch_times(bench, window, count, environment)
            if count not in (130, 2000):
                continue
            if shutil.which("valgrind"):
                launch_counts(bench, window, count, environment)
            elif count == 130:
                bench.skip(f"launch.{window}.instructions and allocations", "there is no valgrind")
    bare, ours = (launch(bench, variant, "window", environment) for variant in ("bare", "framework"))
    for column, name in ((2, "threads"), (3, "fsyncs"), (4, "libraries")):
        bench.say(f"launch.{name}", ours[column], bare[column])


def measure_sizes(bench):
    for name, file in (("library", "libwrenvale.so"), ("net", "wrenvale/libwrenvale-net.so"),
                       ("webview", "wrenvale/libwrenvale-webview.so")):
        stripped = bench.scratch / "stripped"
        subprocess.run(["strip", "-o", stripped, bench.lib / file], check=True)
        bench.say(f"size.{name}", stripped.stat().st_size / 1000)


def measure_service(bench):
    """Each figure is of a process of its own, since the first time is what counts."""
    said = {}
    for i in range(ROUNDS):
        for line in bench.run("benchmark-service", bench.folder(f"service-{i}")).splitlines():
            row = json.loads(line)
            said.setdefault((row["figure"], row["size"]), []).append((row["ours"], row["reference"]))
    for (figure, size), pairs in said.items():
        bench.say(figure, *(statistics.median(column) for column in zip(*pairs)), size)


def measure_rate(bench):
    times = {"framework": [], "dialog": []}
    for i in range(ROUNDS):
        for which, taken in times.items():
            taken.append(float(bench.run("benchmark-rate", bench.folder(f"rate-{which}-{i}"), which)))
    bench.say("rate.shown", *(statistics.median(taken) for taken in times.values()))


class Vendor(http.server.BaseHTTPRequestHandler):
    """Never answers what is asked for at launch; its page shows the window at once."""

    def do_GET(self):
        if ".json" in self.path:
            time.sleep(10)
            return
        self.send_response(200)
        self.send_header("Content-Type", "text/html")
        self.end_headers()
        self.wfile.write(b"<!DOCTYPE html><title>x</title><script>Recommender.showWindow()</script>")

    def log_message(self, *_):
        pass


@contextlib.contextmanager
def vendor(port):
    with http.server.ThreadingHTTPServer(("127.0.0.1", port), Vendor) as server:
        server.daemon_threads = True
        threading.Thread(target=server.serve_forever, daemon=True).start()
        yield
        server.shutdown()


def exit_takes(bench, program, when, i):
    environment = {**os.environ, "XDG_CONFIG_HOME": str(bench.folder(f"exit-{program}-{when}-{i}"))}
    process = subprocess.Popen([bench.bin / program, when], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                               env=environment)
    quits = int(process.stdout.readline())
    status = process.wait()
    if status != 0:
        raise RuntimeError(f"{program} ended with status {status}")
    return (now() - quits) / 1e6


def measure_exit(bench, port):
    with vendor(port):
        cases = (("bare", "exit-bare", "after"), ("hanging", "exit-framework", "after"),
                 ("shown", "exit-framework", "shown"))
        times = {name: [] for name, *_ in cases}
        for i in range(ROUNDS):
            for name, program, when in cases:
                times[name].append(exit_takes(bench, program, when, i))
    middle = {name: statistics.median(taken) for name, taken in times.items()}
    bench.say("exit.hanging", middle["hanging"], middle["bare"])
    bench.say("exit.shown", middle["shown"], middle["bare"])


def measure_kit(bench):
    for count in (1000, 5000, 17000):  # 17,000 candidates are the 16 MiB that hosts take
        document = bench.scratch / "recommender_US_en.JSON"
        document.write_text(bench.run("recommend_benchmark", "--document", count))
        parse = next(row["reference"] for row in map(json.loads, bench.run("recommend_benchmark", count).splitlines())
                     if row["figure"] == "recommend.parse")
        for command, arguments in (("check", [document]),
                                   ("preview", [document, "--bundle-id", "com.example.phototool", "--build", "1204"])):
            times = []
            for _ in range(5):
                start = now()
                bench.run("wrenvale", command, *arguments)
                times.append((now() - start) / 1e6)
            bench.say(f"kit.{command}", statistics.median(times), parse / 1e3, count)


def measure(bench, gates, port):
    def when(names, measures):
        if not bench.wants(*names):
            return
        print(f"  {names[0].split('.')[0]} ...", file=sys.stderr, flush=True)
        try:
            measures()
        except (RuntimeError, OSError, ValueError, StopIteration, subprocess.CalledProcessError) as error:
            bench.skip(names[0], error)

    when(["size.library", "size.net", "size.webview"], lambda: measure_sizes(bench))
    when(["launch.window", "launch.plain", "launch.threads"], lambda: measure_launch(bench, gates))
    when(["settings.open", "settings.write"], lambda: bench.gather("benchmark-settings", bench.folder("settings")))
    if gates:
        return
    when(["launch.work", "reset", "trigger"], lambda: measure_service(bench))
    applications = bench.folder("data") / "applications"
    applications.mkdir()
    (applications / "there.desktop").touch()
    when(["installed", "encrypt"], lambda: bench.gather("benchmark-system", bench.folder("data")))
    when(["recommend"], lambda: bench.gather("recommend_benchmark"))
    when(["rate"], lambda: measure_rate(bench))
    when(["exit"], lambda: measure_exit(bench, port))
    when(["kit"], lambda: measure_kit(bench))
    when(["welcome", "bridge"], lambda: bench.gather("benchmark-welcome"))


def vendor_port(build):
    for line in (build / "CMakeCache.txt").read_text().splitlines():
        if line.startswith("WRENVALE_VENDOR_BASE:"):
            return int(line.rsplit(":", 1)[1].strip("/"))
    raise RuntimeError("the build names no vendor base with a port")


def main():
    gates = "--gates" in sys.argv
    build, *wanted = [argument for argument in sys.argv[1:] if argument != "--gates"]
    build = pathlib.Path(build).resolve()
    bench = Bench(build, wanted)
    measure(bench, gates, vendor_port(build))
    shutil.rmtree(bench.scratch, ignore_errors=True)
    figures = [figure for figure in budgets.FIGURES if figure.gate or not gates]
    over = report.print_table(figures, bench.rows)
    for line in bench.skipped:
        print(line)
    if not gates:
        page = build / "report.html"
        page.write_text(report.page(figures, bench.rows, bench.skipped), encoding="utf-8")
        print(f"\n{page}")
    if bench.skipped:
        sys.exit("bench: not everything could be measured")
    if gates and over:
        sys.exit("bench: " + "; ".join(over))


if __name__ == "__main__":
    main()
