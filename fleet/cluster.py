"""Runs parts on Dask. It checks the program on each worker, distributes the parts, and collects their outcomes."""
# Dask is mostly untyped.
# mypy: allow-untyped-calls

import asyncio
import concurrent.futures
import contextlib
import functools
import logging
import os
import queue
from collections.abc import Callable, Iterator, Sequence

import dask.config
import distributed
import ostrel_part
import ostrel_program
from distributed import Client, Future, LocalCluster
from distributed.diagnostics.plugin import UploadFile
from ostrel_part import Job, Outcome, Part
from progress import Failed

_SECONDS_TO_CONNECT = 10
_SECONDS_BETWEEN_LOOKS = 0.2


@contextlib.contextmanager
def connect(address: str | None, jobs: int) -> Iterator[Client]:
    """connect yields a client of the scheduler at the address. If there is no address, it starts a cluster in this
    process, whose tasks run ostrel-check as separate processes."""
    # A timer of a closed cluster logs errors that do not concern the user.
    logging.getLogger("asyncio").setLevel(logging.CRITICAL)
    if address is None:
        # The profiler would sample the running tasks a hundred times a second.
        with dask.config.set({"distributed.worker.profile.enabled": False}), \
                LocalCluster(n_workers=1, threads_per_worker=jobs, processes=False, memory_limit=0,
                             dashboard_address="127.0.0.1:0") as cluster, Client(cluster) as client:
            yield client
        return
    try:
        client = Client(address, timeout=_SECONDS_TO_CONNECT)
    except (OSError, ValueError) as error:
        raise Failed(f"the scheduler at {address} cannot be reached: {error}") from error
    try:
        for module in ostrel_program, ostrel_part:
            client.register_worker_plugin(UploadFile(module.__file__), module.__name__)
        yield client
    finally:
        client.close(timeout=2)


def require_program(client: Client, job: Job) -> None:
    """require_program checks the identity of the program on each worker before anything is judged."""
    try:
        client.wait_for_workers(1, timeout=_SECONDS_TO_CONNECT)
    except (TimeoutError, asyncio.TimeoutError) as error:
        raise Failed("the scheduler has no workers") from error
    answers = client.run(ostrel_program.identity_of, job.program, on_error="return")
    wrong = [f"{address}: " + (str(answer) if isinstance(answer, Exception) else
                               f"{job.program} is {answer}, not {job.identity}")
             for address, answer in sorted(answers.items()) if answer != job.identity]
    if wrong:
        raise Failed("\n".join(wrong))


def judge_all(client: Client, job: Job, parts: Sequence[Part], tell: Callable[[Part, Outcome], None],
              look: Callable[[int], None]) -> None:
    """judge_all judges the parts, and calls tell with each outcome and, meanwhile, look with the number of workers."""
    keys = {f"judge-{part.name}-{os.path.basename(part.file)}-{job.number}": part for part in parts}
    finished: queue.SimpleQueue[Future] = queue.SimpleQueue()
    futures = client.map(functools.partial(ostrel_part.judge, job), parts, key=list(keys), pure=False)
    try:
        for future in futures:
            future.add_done_callback(finished.put)
        while keys:
            try:
                future = finished.get(timeout=_SECONDS_BETWEEN_LOOKS)
            except queue.Empty:
                look(len(client.scheduler_info()["workers"]))
                if client.status != "running":
                    raise Failed("the connection to the scheduler was lost") from None
                continue
            part = keys.pop(future.key)
            outcome = _outcome_of(future, part)
            tell(part, outcome)
            if outcome.kind == "stop":
                raise Failed(outcome.problem)
            future.release()
    except BaseException:
        _stop(client, job, futures)
        raise


def _outcome_of(future: Future, part: Part) -> Outcome:
    if future.cancelled():
        raise Failed("the connection to the scheduler was lost")
    try:
        outcome = future.result()
    except (asyncio.CancelledError, concurrent.futures.CancelledError) as error:
        raise Failed("the connection to the scheduler was lost") from error
    except distributed.scheduler.KilledWorker as error:
        return Outcome("missing",
                       f"{part.file}: every worker that judged it died; the last one was {error.last_worker}")
    except Exception as error:
        return Outcome("missing", f"{part.file}: {type(error).__name__}: {error}")
    return Outcome(**outcome)


def _stop(client: Client, job: Job, futures: Sequence[Future]) -> None:
    """_stop stops all parts on the workers, which outlive the run, before the runner removes incomplete results."""
    with contextlib.suppress(Exception):
        client.cancel(futures)
        client.run(ostrel_program.abandon, job.number, on_error="ignore")
