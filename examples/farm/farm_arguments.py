"""What the command line of the farm says."""

import argparse
import shlex
import typing
import urllib.parse

import farm_report

MARGIN = 60  # seconds by which nothing of a living job is ever too old


def arguments(description: str) -> argparse.Namespace:
    """Those of the command line. Ends the program when they are wrong."""
    parser = argparse.ArgumentParser(
        description=description, epilog="exit codes: 0 all is imported, 1 some files failed, 2 wrong usage, 3 the jobs "
        "cannot run, 130 interrupted")
    parser.add_argument("folder", help="with CAD files, also in folders below")
    parser.add_argument("captures", help="the folder for captures, made as needed: FILE.vrxcap in the same order of "
                        f"folders, and {farm_report.TABLE}")
    parser.add_argument("--scheduler", type=address, metavar="ADDRESS",
                        help="of a running dask scheduler, as tcp://host:8786; without it workers are started here")
    parser.add_argument("--workers", type=positive(int), metavar="N",
                        help="how many to start on this machine; default: as many as it has processors")
    parser.add_argument("--time-limit", type=positive(float), default=600, metavar="SECONDS",
                        help="for one import; default: 600")
    parser.add_argument("--retries", type=positive(int, 0), default=1, metavar="N",
                        help="how often an import that failed is tried again; default: 1")
    parser.add_argument("--worker-deaths", type=positive(int, 0), metavar="N",
                        help="how many workers may die with a job before it has failed; default: 3; "
                        "with --scheduler it is that scheduler's affair")
    parser.add_argument("--patience", type=positive(float), default=60, metavar="SECONDS",
                        help="how long to wait while there is no worker; default: 60")
    parser.add_argument("--again", action="store_true", help="imports also what is done")
    parser.add_argument("--suffixes", default=".step,.stp,.iges,.igs", metavar="LIST",
                        help="how the names of CAD files end; default: %(default)s")
    parser.add_argument("--programs", default="", metavar="FOLDER",
                        help="where vrx, the host and the translator are; default: PATH of the workers")
    parser.add_argument("--host", default="cad_reader", metavar="PROGRAM",
                        help="is started as PROGRAM FILE TRANSLATOR...; default: cad_reader")
    parser.add_argument("--translator", default="cad_translator", metavar="COMMAND",
                        help="the translator with its arguments, quoted as for a shell; default: cad_translator")
    parser.add_argument("--clean-after", type=positive(int), metavar="SECONDS",
                        help="the age from which shared memory and unfinished captures that nobody uses are removed; "
                        f"at least the time limit and {MARGIN}; default: 3600 or that")
    given = parser.parse_args()
    least = int(given.time_limit) + MARGIN
    if given.clean_after is not None and given.clean_after < least:
        parser.error(f"--clean-after {given.clean_after} is less than the time limit and {MARGIN}")
    given.clean_after = given.clean_after or max(3600, least)
    if given.scheduler and (given.workers is not None or given.worker_deaths is not None):
        parser.error("--workers and --worker-deaths are for workers on this machine, without --scheduler")
    try:
        given.translator = tuple(shlex.split(given.translator))
    except ValueError as error:
        parser.error(f"--translator: {error}")
    if not given.translator:
        parser.error("--translator is empty")
    given.suffixes = tuple(suffix.lower() for suffix in given.suffixes.split(",") if suffix)
    if not given.suffixes:
        parser.error("--suffixes is empty")
    return given


def address(text: str) -> str:
    """Reads the address of a scheduler."""
    parts = urllib.parse.urlsplit(text)
    if parts.scheme not in ("tcp", "tls") or not parts.hostname or parts.port is None:
        raise ValueError(text)
    return text


def positive(kind: type, least: float | None = None) -> typing.Callable[[str], typing.Any]:
    """Reads a number that is more than zero, or no less than the least."""
    def read(text: str) -> typing.Any:
        value = kind(text)
        if not (value > 0 if least is None else value >= least) or value == float("inf"):
            raise argparse.ArgumentTypeError(f"{text} is too small or too large")
        return value
    read.__name__ = "number"
    return read
