"""The figures that the benchmarks say, and what each may be at the most."""

import dataclasses


@dataclasses.dataclass(frozen=True)
class Figure:
    name: str
    title: str
    unit: str
    reference: str = ""  # what ours is compared with; none when the budget is for ours alone
    kind: str = "ratio"  # ratio: ours / reference; added: ours - reference; absolute: ours
    budget: object = None  # a number, or one for each size; none for what is only reported
    gate: bool = False  # deterministic: a change may not land that breaks it
    size: str = ""  # what its sizes count

    def value(self, row):
        if self.kind == "ratio":
            return row["ours"] / row["reference"] if row["reference"] else float("inf")
        return row["ours"] - row["reference"] if self.kind == "added" else row["ours"]

    def limit(self, size):
        return self.budget.get(size) if isinstance(self.budget, dict) else self.budget

    def holds(self, row):
        """Whether the row is within its budget; nothing when it has none."""
        limit = self.limit(row["size"])
        return None if limit is None else self.value(row) <= limit


def _launch(name, title, milliseconds, instructions):
    """The launch of one host; sizes count the fonts of the system, 0 is the empty library."""
    bare = "the same host without"
    return [
        Figure(f"{name}.time", f"{title}: time", "ms", bare, "added", milliseconds, size="fonts"),
        Figure(f"{name}.instructions", f"{title}: instructions", "M", bare, "added", instructions, True, "fonts"),
        Figure(f"{name}.allocations", f"{title}: allocations", "", bare, "added", 450, True, "fonts"),
        Figure(f"{name}.memory", f"{title}: resident memory", "KiB", bare, "added", 1024, size="fonts"),
        Figure(f"{name}.empty", f"{title}: time of an empty library", "ms", bare, "added", size="fonts"),
        Figure(f"{name}.empty.instructions", f"{title}: instructions of an empty library", "M", bare, "added",
               size="fonts"),
    ]


FIGURES = [
    *_launch("launch.window", "launch with a window", 1.0, 2.0),
    *_launch("launch.plain", "launch without a window", 0.5, 1.5),
    Figure("launch.threads", "launch: threads before the first turn", "", "the same host without", "added", 0, True),
    Figure("launch.fsyncs", "launch: fsync before the first turn", "", "the same host without", "added", 0, True),
    Figure("launch.libraries", "launch: heavy libraries mapped before the first turn", "", "the same host without",
           "added", 0, True),
    Figure("launch.work", "main thread: work at launch", "us", kind="absolute", budget=50),
    Figure("trigger.declines", "main thread: a trigger that declines", "us", "an empty call", "added", 5,
           size="builds on record"),
    Figure("reset.loaded", "reset check, module loaded", "ms", "the bare HTTP library", budget=1.5),
    Figure("reset.first", "reset check, module loading included", "ms", "the bare HTTP library, loaded", "added"),
    Figure("reset.cpu", "reset check: processor time in the background of a launch", "ms", kind="absolute", budget=15),
    Figure("recommend.list", "recommend: text to list", "us", "nlohmann-json", budget=1 / 6, size="candidates"),
    Figure("recommend.parse", "recommend: text to list, beside the parse", "us", "the bare parse",
           budget={100000: 4}, size="candidates"),
    Figure("recommend.memory", "recommend: peak memory", "documents", "the bare parse", "absolute", {100000: 3},
           size="candidates"),
    Figure("settings.open", "settings: open and read one", "us", "libplist", budget={2000: 1.0, 200000: 0.6},
           size="bytes"),
    Figure("settings.write", "settings: a durable write", "us", "the same bytes by hand",
           budget={2000: 1.15, 200000: 1.6}, size="bytes"),
    Figure("settings.writes", "settings: writes for changes in a row", "", kind="absolute", budget=3, gate=True,
           size="changes"),
    Figure("installed.present", "is it installed: present", "us", "stat in the same folders", budget=1.5),
    Figure("installed.absent", "is it installed: absent", "us", "stat in the same folders", budget=1.5),
    Figure("installed.many", "is it installed: many questions", "ms", "stat in the same folders", "absolute", 5,
           size="questions"),
    Figure("encrypt", "encryption, key import included", "us", "OpenSSL from raw numbers", budget=1.3),
    Figure("welcome.shown", "welcome window: trigger to shown", "ms", "a bare engine, loaded then", budget=1.1),
    Figure("welcome.linked", "welcome window: start of the process to shown", "ms", "a bare engine, linked"),
    Figure("welcome.busy", "welcome window: main thread busy in a row", "ms", "a bare engine, loaded then", "added", 60),
    Figure("welcome.memory", "welcome window: memory", "MiB", "before the first window", "added", size="windows"),
    Figure("bridge.call", "a call of the page's: median", "ms", kind="absolute", budget=0.3),
    Figure("bridge.call99", "a call of the page's: 99 of 100", "ms", kind="absolute", budget=1),
    Figure("bridge.list", "a list for the page: main thread busy in a row", "ms", kind="absolute", budget=20,
           size="candidates"),
    Figure("rate.shown", "rate window: trigger to first frame", "ms", "a dialog with as many widgets", budget=1.3),
    Figure("exit.hanging", "exit while a download hangs", "ms", "exit without", "added", 60),
    Figure("exit.shown", "exit with the welcome window shown", "ms", "exit without", "added", 100),
    Figure("size.library", "size, stripped: libwrenvale.so", "KB", kind="absolute", budget=700, gate=True),
    Figure("size.net", "size, stripped: the net module", "KB", kind="absolute", budget=200, gate=True),
    Figure("size.webview", "size, stripped: the web view module", "KB", kind="absolute", budget=200, gate=True),
    Figure("kit.check", "wrenvale check", "ms", "the bare parse", "absolute", {1000: 50, 17000: 255},
           size="candidates"),
    Figure("kit.preview", "wrenvale preview", "ms", "the bare parse", "absolute", {1000: 50, 17000: 255},
           size="candidates"),
]
