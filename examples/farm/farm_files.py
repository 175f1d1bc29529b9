"""The files of a run: what is to be imported, what is done, and what killed jobs left."""

import contextlib
import os
import time

import farm_job


def find_files(folder: str, suffixes: tuple[str, ...]) -> tuple[list[str], list[OSError]]:
    """The CAD files below a folder, as paths within it, and the errors of folders that cannot be read."""
    errors: list[OSError] = []
    files = [os.path.relpath(os.path.join(parent, name), folder)
             for parent, _, names in os.walk(folder, onerror=errors.append)
             for name in names if name.lower().endswith(suffixes)]
    return sorted(files), errors


def is_done(folder: str, captures: str, file: str) -> bool:
    """Whether there is a capture that is newer than the file."""
    try:
        capture = os.stat(farm_job.capture_of(captures, file))
        return capture.st_mtime_ns > os.stat(os.path.join(folder, file)).st_mtime_ns
    except OSError:
        return False


def remove_parts(captures: str, run: str = "", seconds: float = 0) -> None:
    """Removes unfinished captures: those of a run, or of all runs, that were not written for so long."""
    newest = time.time() - seconds
    for parent, _, names in os.walk(captures):
        for name in names:
            if name.startswith(farm_job.PART_PREFIX + run) and name.endswith(".part"):
                path = os.path.join(parent, name)
                with contextlib.suppress(FileNotFoundError):
                    if os.stat(path).st_mtime <= newest:
                        os.unlink(path)
