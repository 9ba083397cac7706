#!/usr/bin/env python3
"""What grows is seen, what comes and goes is not."""

import os
import random
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(HERE, "../support")]
from flatness import KB, complaints
from readings import Reading

LONG, SHORT = 24, 6  # clients


def day(clients, heap=lambda client: 0, pages=lambda client: 0, **others):
    """Readings of a program that warms up for a client and is flat but for what is told."""
    noise = random.Random(7)
    return [
        Reading(
            heap=14_000 * KB - (900 * KB if client == 0 else 0) + noise.randint(-40, 40) * KB + heap(client),
            own_memory=18_000 * KB + noise.randint(-10, 10) * 4 * KB + pages(client),
            memory=70_000 * KB + noise.randint(-3000, 3000) * KB,
            **{
                "descriptors": 22,
                "threads": 4,
                "children": 0,
                "on_the_x_server": {"windows": 12, "pixmaps": 16},
                "spoken_objects": 1720 if client % 3 == 2 else None,
                **{name: value(client) for name, value in others.items()},
            },
        )
        for client in range(clients)
    ]


class Flatness(unittest.TestCase):
    def complains(self, readings, of):
        found = list(complaints(readings))
        self.assertEqual(len(found), 1, found)
        self.assertIn(of, found[0])

    def test_a_day_that_is_flat(self):
        for clients in (LONG, SHORT):
            self.assertEqual(list(complaints(day(clients))), [])

    def test_an_object_kept_for_each_client(self):
        for clients, size in ((LONG, 16 * KB), (SHORT, 96 * KB)):
            self.complains(day(clients, heap=lambda client: size * client), "heap")

    def test_pages_written_anew_for_each_client(self):
        for clients, size in ((LONG, 200 * KB), (SHORT, 600 * KB)):
            self.complains(day(clients, pages=lambda client: size * client), "own_memory")

    def test_what_is_kept_once_is_no_growth(self):
        once = day(LONG, heap=lambda client: 300 * KB if client >= 10 else 0)
        self.assertEqual(list(complaints(once)), [])

    def test_what_comes_and_goes_is_no_growth(self):
        now_and_then = day(LONG, heap=lambda client: 300 * KB if client % 4 == 3 else 0)
        self.assertEqual(list(complaints(now_and_then)), [])

    def test_a_single_handle_more(self):
        for name, value in (
            ("descriptors", lambda client: 22 + client // 20),
            ("threads", lambda client: 4 + client // 20),
            ("children", lambda client: client // 20),
            ("on_the_x_server", lambda client: {"windows": 12, "pixmaps": 16 + client // 20}),
            ("spoken_objects", lambda client: 1720 + client // 20),
        ):
            self.complains(day(LONG, **{name: value}), name)


unittest.main()
