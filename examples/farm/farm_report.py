"""What a run tells: a line for each job that ends, and a table of what failed and why."""

import csv
import dataclasses
import os
import sys
import time
import typing

import distributed
import farm_job

TABLE = "failures.csv"
COLUMNS = ("file", "reason", "exit_code", "tries", "seconds", "worker", "text")


def printable(text: str) -> str:
    """Without control characters, and without bytes that are no text."""
    return "".join(letter if letter.isprintable() else letter.encode("unicode_escape").decode() for letter in text)


def say(text: str) -> None:
    """Prints a line at once."""
    print(printable(text).encode(sys.stdout.encoding, "backslashreplace").decode(sys.stdout.encoding), flush=True)


@dataclasses.dataclass
class Failure:
    """A line of the table."""

    file: str
    reason: str
    exit_code: int | None = None
    tries: int = 0
    seconds: float = 0
    worker: str = ""
    text: str = ""


class Report:
    """Hears of the jobs of a run, by their numbers."""

    def __init__(self, files: list[str], retries: int) -> None:
        self.failures: list[Failure] = []
        self._given_up: list[Failure] = []
        self._files = files
        self._retries = retries
        self._tries = [0] * len(files)
        self._failed_tries = [0] * len(files)
        self._done: dict[int, dict[str, typing.Any]] = {}
        self._open = set(range(len(files)))
        self._started = time.monotonic()

    @property
    def all_imported(self) -> bool:
        """Whether nothing has failed up to now."""
        return not self.failures and not self._given_up

    @property
    def is_complete(self) -> bool:
        """Whether all jobs have ended."""
        return not self._open

    def on_event(self, event: tuple[float, dict[str, typing.Any]]) -> None:
        """A worker tells of a job. Dask calls it in a thread of its own, before it tells that the job has ended."""
        message = event[1]
        number = message["number"]
        if message["what"] == "begins":
            self._tries[number] += 1
        elif message["what"] == "done":
            self._done[number] = message
        else:
            self._failed_tries[number] += 1
            if self._failed_tries[number] <= self._retries:
                say(f"{'again':>26}  {self._files[number]}: {message['reason']}")

    def on_end(self, number: int, error: BaseException | None) -> None:
        """A job has ended, with an error if it made no capture."""
        self._open.discard(number)
        if error is None:
            done = self._done[number]
            self._line("imported", done["seconds"], f"{self._files[number]}, {done['size']} bytes, {done['worker']}")
        elif isinstance(error, farm_job.ImportFailed):
            self._fail(Failure(self._files[number], error.reason, error.exit_code, self._tries[number], error.seconds,
                               error.worker, error.text))
        elif isinstance(error, distributed.KilledWorker):
            reason = f"{error.allowed_failures + 1} workers died while they had it"
            self._fail(Failure(self._files[number], reason, None, self._tries[number], 0, str(error.last_worker)))
        else:
            self._fail(Failure(self._files[number], f"{type(error).__name__}: {error}", None, self._tries[number]))

    def give_up(self, reason: str) -> None:
        """Those that have not ended will not do so. They are in the file of the table only."""
        self._given_up = [Failure(self._files[number], reason, None, self._tries[number])
                          for number in sorted(self._open)]
        self._open.clear()
        say(f"{len(self._given_up)} files are given up: {reason}")

    def write_table(self, folder: str) -> str:
        """Writes what failed into the folder, also when that is nothing. Returns the path."""
        path = os.path.join(folder, TABLE)
        part = f"{path}.{os.getpid()}.part"
        with open(part, "w", encoding="utf-8", errors="surrogateescape", newline="") as file:
            writer = csv.writer(file, lineterminator="\n")
            writer.writerow(COLUMNS)
            for failure in self.failures + self._given_up:
                row = dataclasses.asdict(failure)
                row["seconds"] = f"{failure.seconds:.1f}"
                writer.writerow([row[column] for column in COLUMNS])
        os.replace(part, path)
        return path

    def print_table(self) -> None:
        """The same for people, if there is anything: of the text the last line only."""
        if not self.failures:
            return
        rows = [("FILE", "REASON", "TRIES", "SECONDS", "LAST WORDS")]
        rows += [(printable(failure.file), printable(failure.reason), str(failure.tries), f"{failure.seconds:.1f}",
                  printable(failure.text.rpartition("\n")[2])) for failure in self.failures]
        widths = [max(map(len, column)) for column in zip(*rows)]
        for row in rows:
            say("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())

    def summary(self, skipped: int) -> str:
        """How many there were of what, and the time since the jobs began."""
        failed = len(self.failures)
        return (f"{len(self._done)} imported, {skipped} done before, {failed} failed, "
                f"{len(self._given_up)} given up, {time.monotonic() - self._started:.1f} s")

    def _fail(self, failure: Failure) -> None:
        self.failures.append(failure)
        self._line("FAILED", failure.seconds, f"{failure.file}: {failure.reason}")

    def _line(self, verdict: str, seconds: float, text: str) -> None:
        total = len(self._files)
        count = f"[{total - len(self._open):>{len(str(total))}}/{total}]"
        say(f"{count:>9} {seconds:>6.1f} s {verdict:>8}  {text}")
