"""What a worker does: one job is one recorded import. Workers get this file from the farm, so it stands alone."""

import contextlib
import dataclasses
import json
import os
import shutil
import stat
import struct
import subprocess
import tempfile
import time
import typing
import uuid

import distributed

KILL_AFTER = 10  # seconds that a host has to end after it was asked to
LAST_BYTES = 1500  # of what an import says; Dask cuts long errors
PART_PREFIX = ".farm-"

# See docs/capture_format.md.
CAPTURE_MAGIC = b"\x89VRX\r\n\x1a\n"
CAPTURE_HEADER = 16
FRAME_HEAD = struct.Struct("<IQQ")
FRAME_CHECKSUM = 4
END_FRAME = 7


@dataclasses.dataclass(frozen=True)
class Settings:
    """What all jobs of a run have in common. The folders are absolute paths, the same on all machines."""

    run: str  # an id
    folder: str
    captures: str
    programs: str  # a folder that is searched before PATH, or empty
    host: str
    translator: tuple[str, ...]
    time_limit: float


class ImportFailed(Exception):
    """A try that made no capture."""

    def __init__(self, reason: str, exit_code: int | None = None, seconds: float = 0, text: str = "",
                 worker: str = "") -> None:
        super().__init__(reason, exit_code, seconds, text, worker)  # all of it is what a copy is made from
        self.reason = reason
        self.exit_code = exit_code
        self.seconds = seconds
        self.text = text
        self.worker = worker


def program(settings: Settings, name: str) -> str:
    """The path of a program. Raises ImportFailed when this machine does not have it."""
    places = [settings.programs] if settings.programs else []
    found = shutil.which(name, path=os.pathsep.join(places + [os.environ.get("PATH", os.defpath)]))
    if found is None:
        raise ImportFailed(f"there is no program {name}")
    return found


def complaints(settings: Settings) -> list[str]:
    """What this machine lacks for the jobs."""
    found = []
    for name in ("setpriv", "timeout", "vrx", settings.host, settings.translator[0]):
        try:
            program(settings, name)
        except ImportFailed as failure:
            found.append(failure.reason)
    if not os.path.isdir(settings.folder):
        found.append(f"there is no folder {settings.folder}")
    if not os.access(settings.captures, os.W_OK | os.X_OK):
        found.append(f"{settings.captures} is no folder in which it may write")
    return found


def clean_shared_memory(settings: Settings, seconds: int) -> int:
    """Removes the buffers that no living process has open and that are older than that. Returns how many they were."""
    ended = subprocess.run([program(settings, "vrx"), "clean", "--json", "--older-than", f"{seconds}s"],
                           stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, check=True)
    return sum(buffer["removed"] for buffer in json.loads(ended.stdout))


def run_job(settings: Settings, number: int, file: str) -> None:
    """Makes the capture of a file. Tells of each try in an event. Raises ImportFailed, upon which Dask tries again."""
    worker = distributed.get_worker()

    def tell(what: str, **more: typing.Any) -> None:
        worker.log_event(settings.run, {"number": number, "what": what, "worker": worker.address, **more})

    started = time.monotonic()
    tell("begins")
    try:
        size = import_file(settings, file)
    except (ImportFailed, OSError) as error:
        failure = error if isinstance(error, ImportFailed) else ImportFailed(str(error))
        failure = ImportFailed(failure.reason, failure.exit_code, time.monotonic() - started, failure.text,
                               worker.address)
        tell("failed", reason=failure.reason.encode("utf-8", "backslashreplace").decode())
        raise failure from None
    tell("done", seconds=time.monotonic() - started, size=size)


def import_file(settings: Settings, file: str) -> int:
    """Returns the size of the capture. It gets its name when it is whole; its time is that of the import's start."""
    source = os.path.join(settings.folder, file)
    if not stat.S_ISREG(os.stat(source).st_mode):
        raise ImportFailed("it is no regular file")
    with open(source, "rb"):
        pass  # it can be read
    target = capture_of(settings.captures, file)
    os.makedirs(os.path.dirname(target), exist_ok=True)
    part = os.path.join(os.path.dirname(target), f"{PART_PREFIX}{settings.run}-{uuid.uuid4().hex}.part")
    try:
        with open(part, "wb"):
            started = os.stat(part).st_mtime_ns  # by the clock of the folder
        record(settings, source, part)
        publish(part, target, started)
        return os.path.getsize(target)
    finally:
        with contextlib.suppress(FileNotFoundError):
            os.unlink(part)


def capture_of(captures: str, file: str) -> str:
    """The path of a file's capture."""
    return os.path.join(captures, file + ".vrxcap")


def record(settings: Settings, source: str, part: str) -> None:
    """Runs the host with a recorder as its translator. It ends with this worker, however that ends."""
    command = ["setpriv", "--pdeathsig", "TERM", "timeout", "-k", str(KILL_AFTER), str(settings.time_limit),
               program(settings, settings.host), source,
               program(settings, "vrx"), "record", "--force", "-o", part, "--",
               program(settings, settings.translator[0]), *settings.translator[1:]]
    started = time.monotonic()
    with tempfile.TemporaryFile() as said:
        code = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=said,
                              check=False).returncode
        length = said.seek(0, os.SEEK_END)
        said.seek(max(0, length - LAST_BYTES))
        text = said.read().decode("utf-8", "backslashreplace").strip()
    if code != 0:
        is_late = time.monotonic() - started >= settings.time_limit
        reason = (f"not done in {settings.time_limit:g} s" if is_late else
                  f"exit code {code}" if code > 0 else f"the host was ended by signal {-code}")
        raise ImportFailed(reason, code, text=text)
    if not is_whole(part):
        raise ImportFailed("the host is content, but the capture is not whole", code, text=text)


def is_whole(path: str) -> bool:
    """Whether a capture goes up to its last frame."""
    with open(path, "rb") as capture:
        size = os.fstat(capture.fileno()).st_size
        if capture.read(len(CAPTURE_MAGIC)) != CAPTURE_MAGIC:
            return False
        kind, place = 0, CAPTURE_HEADER
        while place < size:
            capture.seek(place)
            head = capture.read(FRAME_HEAD.size)
            if len(head) < FRAME_HEAD.size:
                return False
            kind, _, payload = FRAME_HEAD.unpack(head)
            place += FRAME_HEAD.size + payload + FRAME_CHECKSUM
        return kind == END_FRAME and place == size


def publish(part: str, target: str, modified: int) -> None:
    """Gives a capture its name. It is on the disk then, so that a power cut leaves no empty file of that name."""
    with open(part, "rb") as capture:
        os.fsync(capture.fileno())
    os.utime(part, ns=(modified, modified))
    os.replace(part, target)
