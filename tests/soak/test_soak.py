#!/usr/bin/env python3
"""Hours of clients at the window, one after the other: what the program holds stays the same.

An hour is three clients of twenty minutes, each with a whole consultation (practice.py); the clock
is put on by twenty minutes from one to the next, and midnight comes before the last. What the
program itself waits, a message or a tick, takes its real time.

usage: test_soak.py NAVARUN PILOTE PICTURES HEAP_PROBE

Two hours; eight with NAVARUN_LONG_TESTS in the environment.
"""

import datetime
import os
import signal
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(HERE, "../end_to_end"), os.path.join(HERE, "../support")]
from desk import end_with_parent
from flatness import CLIENTS_AN_HOUR, complaints, table
from practice import consultation, fill
from soak_day import SoakDay

HOURS = 8 if "NAVARUN_LONG_TESTS" in os.environ else 2
TWENTY_MINUTES = datetime.timedelta(hours=1) / CLIENTS_AN_HOUR
# The last client comes after midnight.
END = datetime.datetime(2026, 11, 22, 0, 30)
BEGIN = END - HOURS * CLIENTS_AN_HOUR * TWENTY_MINUTES


def hours(day):
    """The reading after each client. At the end of each hour everything is compared and counted."""
    day.compare_all()
    for client in range(HOURS * CLIENTS_AN_HOUR):
        day.set_clock(BEGIN + client * TWENTY_MINUTES)
        day.play(consultation(day, client))
        last_of_hour = (client + 1) % CLIENTS_AN_HOUR == 0
        if last_of_hour:
            day.compare_all()
        reading = day.read(count_spoken=last_of_hour)
        print(f"{day.clock:%H:%M} {reading}", flush=True)
        yield reading


def main():
    end_with_parent()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended from outside"))
    with SoakDay("soak", *sys.argv[1:5], BEGIN, fill) as day:
        readings = list(hours(day))
        print(day.told())
        print("the same bytes in both folders:", ", ".join(day.compare_folders()))
    print("\n".join(table(readings)))
    found = list(complaints(readings))
    sys.exit("\n".join(["not flat:", *found]) if found else 0)


main()
