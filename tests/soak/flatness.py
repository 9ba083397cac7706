"""Whether what a program holds stays the same over hours of work."""

import dataclasses
import itertools
import statistics

KB = 1024
CLIENTS_AN_HOUR = 3
EIGHT_HOURS = 8 * CLIENTS_AN_HOUR


@dataclasses.dataclass(frozen=True)
class Bounds:
    """What may grow, in bytes an hour. Around its level the heap comes and goes by some 40 KB from
    client to client, with the letters and messages that the toolkit keeps for a while, and the
    more clients there are, the less of that is left in the growth."""

    heap: int
    own_memory: int  # follows the heap with its holes; what counts here lies beside the heap


# Eight hours: an object of 12 KB that stays of each client is more than this.
LONG = Bounds(heap=32 * KB, own_memory=512 * KB)
# Four clients after the first two: one of 64 KB.
SHORT = Bounds(heap=192 * KB, own_memory=1536 * KB)


def growth(values):
    """How much a series grows from one value to the next: the median of the slopes between all
    pairs (Theil and Sen). What happens once, or comes and goes, is not taken for growth."""
    pairs = itertools.combinations(enumerate(values), 2)
    return statistics.median((later - earlier) / (j - i) for (i, earlier), (j, later) in pairs)


def settled(readings):
    """Without the first clients: what is shown for the first time is kept by the toolkit, the
    shapes of letters, the styles, the pictures."""
    return readings[max(2, len(readings) // 4) :]


def growths(readings):
    """By an hour, of what is measured in bytes."""
    kept = settled(readings)
    return {
        name: CLIENTS_AN_HOUR * growth([getattr(reading, name) for reading in kept])
        for name in ("heap", "own_memory", "memory")
    }


def complaints(readings):
    """What is not flat, as texts; readings after each client, at rest."""
    by_hour = growths(readings)
    bounds = LONG if len(readings) >= EIGHT_HOURS else SHORT
    for name, most in dataclasses.asdict(bounds).items():
        if by_hour[name] > most:
            yield f"{name} grows by {by_hour[name] / KB:.1f} KB an hour, at most {most / KB:.0f}"
    kept = settled(readings)
    for name in ("descriptors", "threads", "children", "on_the_x_server", "spoken_objects"):
        values = [getattr(reading, name) for reading in kept]
        told = [value for value in values if value is not None]
        if any(value != told[0] for value in told):
            yield f"{name} do not stay the same: {told}"


def table(readings):
    """The readings as lines, and the growths."""
    yield "client     heap   own pages   PSS (KB)  descriptors threads children spoken"
    for client, reading in enumerate(readings, 1):
        yield (
            f"{client:6} {reading.heap / KB:8.1f} {reading.own_memory / KB:11.0f} {reading.memory / KB:10.0f}"
            f" {reading.descriptors:12} {reading.threads:7} {reading.children:8}"
            f" {reading.spoken_objects or '':6}"
        )
    for name, by_hour in growths(readings).items():
        yield f"{name}: {by_hour / KB:+.1f} KB an hour"
