#!/usr/bin/python3
"""Imports a folder of CAD files on many workers of Dask. Each job is one import with a recorder between the host and
the translator; its result is a capture. A second run does what the first has not done."""

import argparse
import contextlib
import logging
import os
import queue
import signal
import sys
import tempfile
import time
import typing
import urllib.parse
import uuid

import dask
import distributed

import farm_arguments
import farm_files
import farm_job
import farm_report
from farm_report import say

ALL_IMPORTED, SOME_FAILED, NOT_STARTED, INTERRUPTED = 0, 1, 3, 130  # 2 is wrong usage


class NotStarted(Exception):
    """The jobs cannot run at all."""


@contextlib.contextmanager
def connected(given: argparse.Namespace) -> typing.Iterator[distributed.Client]:
    """A client of the scheduler that is named, or of one that ends with it."""
    with contextlib.ExitStack() as stack:
        where = given.scheduler
        if where is None:
            limits = {"distributed.scheduler.allowed-failures": 3 if given.worker_deaths is None else
                      given.worker_deaths,
                      "distributed.scheduler.worker-saturation": 1.0}  # a worker that dies has one job only
            stack.enter_context(dask.config.set(limits))
            scratch = stack.enter_context(tempfile.TemporaryDirectory(prefix="farm-", ignore_cleanup_errors=True))
            where = stack.enter_context(distributed.LocalCluster(
                n_workers=given.workers or os.cpu_count(), threads_per_worker=1, processes=True, host="127.0.0.1",
                dashboard_address=None, memory_limit=0, local_directory=scratch, silence_logs="CRITICAL"))
        try:
            client = stack.enter_context(distributed.Client(where, timeout=10, set_as_default=False))
            client.wait_for_workers(1, timeout=given.patience)
        except (OSError, TimeoutError, ValueError) as error:
            raise NotStarted(f"no worker at {where}: {error}") from None
        yield client


def prepare(client: distributed.Client, settings: farm_job.Settings) -> None:
    """Gives the workers their program. Raises NotStarted when one of them cannot do the jobs."""
    client.upload_file(farm_job.__file__)
    lacks = client.run(farm_job.complaints, settings, on_error="return")
    told = {f"{worker}: {what}" for worker, found in lacks.items()
            for what in (found if isinstance(found, list) else [repr(found)])}
    if told:
        raise NotStarted("\n  ".join(["workers cannot do the jobs:", *sorted(told)]))


def clean(client: distributed.Client, settings: farm_job.Settings, seconds: int) -> None:
    """Removes what killed jobs have left in the shared memory of all machines that have a worker."""
    one_of_each = {urllib.parse.urlsplit(worker).hostname: worker for worker in client.scheduler_info()["workers"]}
    results = client.run(farm_job.clean_shared_memory, settings, seconds, workers=list(one_of_each.values()),
                         on_error="return") if one_of_each else {}
    for worker, result in results.items():
        if isinstance(result, BaseException):
            say(f"the shared memory at {worker} is not cleaned: {result}")
        elif result:
            say(f"removed {result} old buffers from shared memory at {worker}")


class Crew:
    """Tells of workers that come and go."""

    def __init__(self, client: distributed.Client) -> None:
        self._client = client
        self._known = set(client.scheduler_info()["workers"])
        self._seen = time.monotonic()

    def look(self) -> float:
        """Returns for how many seconds there was no worker."""
        there = set(self._client.scheduler_info().get("workers", ()))
        for verb, workers in (("is gone", self._known - there), ("has come", there - self._known)):
            for worker in sorted(workers):
                say(f"worker {worker} {verb}")
        self._known = there
        if there:
            self._seen = time.monotonic()
        return time.monotonic() - self._seen


def run_jobs(client: distributed.Client, settings: farm_job.Settings, files: list[str], given: argparse.Namespace,
             report: farm_report.Report) -> bool:
    """Has Dask do all jobs, and reports what comes of them. Returns whether all have come to their end."""
    client.subscribe_topic(settings.run, report.on_event)
    crew = Crew(client)
    jobs = client.map(farm_job.run_job, [settings] * len(files), range(len(files)), files, retries=given.retries,
                      pure=False)
    numbers = {job.key: number for number, job in enumerate(jobs)}
    ended: queue.Queue[distributed.Future] = queue.Queue()
    for job in jobs:
        job.add_done_callback(ended.put)
    looked = time.monotonic()
    while not report.is_complete:
        with contextlib.suppress(queue.Empty):
            job = ended.get(timeout=1)
            if job.status == "finished":
                report.on_end(numbers[job.key], None)
            elif job.status == "error":
                report.on_end(numbers[job.key], job.exception())
            else:
                report.give_up(f"Dask has {job.status} it, as it does when the scheduler is gone")
                return False
        if time.monotonic() - looked >= 1:
            looked = time.monotonic()
            if crew.look() > given.patience:
                client.cancel(jobs)
                report.give_up("there was no worker any more")
                return False
    return True


def farm(given: argparse.Namespace) -> int:
    """Returns the exit code."""
    folder, captures = os.path.abspath(given.folder), os.path.abspath(given.captures)
    if not os.path.isdir(folder):
        raise NotStarted(f"there is no folder {folder}")
    found, errors = farm_files.find_files(folder, given.suffixes)
    if not found and not errors:
        raise NotStarted(f"no file in {folder} ends in {' or '.join(given.suffixes)}")
    os.makedirs(captures, exist_ok=True)
    files = [file for file in found if given.again or not farm_files.is_done(folder, captures, file)]
    settings = farm_job.Settings(
        run="vrx-" + uuid.uuid4().hex, folder=folder, captures=captures,
        programs=os.path.abspath(given.programs) if given.programs else "", host=given.host,
        translator=given.translator, time_limit=given.time_limit)
    farm_files.remove_parts(captures, seconds=given.clean_after)
    report = farm_report.Report(files, given.retries)
    report.failures += [farm_report.Failure(os.path.relpath(error.filename, folder), str(error)) for error in errors]
    is_interrupted = False
    if files:
        with connected(given) as client:
            prepare(client, settings)
            clean(client, settings, given.clean_after)
            try:
                if run_jobs(client, settings, files, given, report):
                    clean(client, settings, given.clean_after)
            except KeyboardInterrupt:
                is_interrupted = True
                report.give_up("interrupted")
        farm_files.remove_parts(captures, settings.run)
    table = report.write_table(captures)
    report.print_table()
    if not report.all_imported:
        say(f"in full: {table}")
    say(report.summary(len(found) - len(files)))
    return INTERRUPTED if is_interrupted else ALL_IMPORTED if report.all_imported else SOME_FAILED


def main() -> int:
    """Returns the exit code."""
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    logging.getLogger("distributed").setLevel(logging.CRITICAL)  # the report tells what became of jobs and workers
    given = farm_arguments.arguments(__doc__ or "")
    try:
        return farm(given)
    except (NotStarted, OSError) as error:
        print(f"import_farm: {farm_report.printable(str(error)) if isinstance(error, OSError) else error}",
              file=sys.stderr)
        return NOT_STARTED
    except KeyboardInterrupt:
        print("import_farm: interrupted", file=sys.stderr)
        return INTERRUPTED


if __name__ == "__main__":
    sys.exit(main())
