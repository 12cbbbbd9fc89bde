"""Grids that are closed, collected, copied, or called from where they do not belong."""

import copy
import gc
import pickle
import subprocess
import sys
import textwrap
import threading
import unittest
import weakref
from typing import Any, Callable, List

import vornix
from support import GridTest


def in_thread(function: Callable[[], Any]) -> Any:
    """What a function gives, or raises, on another thread."""
    results: List[Any] = []

    def run() -> None:
        try:
            results.append(function())
        except BaseException as error:
            results.append(error)

    thread = threading.Thread(target=run)
    thread.start()
    thread.join()
    return results[0]


class TestClosing(GridTest):
    def test_a_closed_grid_raises_error_5(self) -> None:
        host = self.g.host
        self.g.close()
        for use in (
            lambda: self.g.Rows,
            lambda: self.g.Text[0, 0],
            lambda: self.g.Refresh(),
            lambda: self.g.host.log,
            lambda: host.click(),
            lambda: host.child("scrV"),
            lambda: host.save(),
            lambda: self.g.on("Click", print),
            lambda: self.g.texts(0),
            lambda: self.g.LoadFromArray([["a"]]),
            lambda: self.g.invoke("Rows"),
        ):
            self.fails(5, use)
        with self.raises(5):
            self.g.Rows = 3
        self.assertEqual(repr(self.g), "<vornix.Grid closed>")
        self.g.close()

    def test_a_form_that_closes_leaves_the_container(self) -> None:
        self.g.host.close()
        self.fails(5, lambda: self.g.Rows)
        self.assertEqual(repr(self.g), "<vornix.Grid closed>")
        self.assertEqual(self.g.host.message_boxes, [])
        self.g.host.close()

    def test_with(self) -> None:
        with vornix.Grid(100, 100) as g:
            self.assertEqual(g.Rows, 1)
        self.assertEqual(repr(g), "<vornix.Grid closed>")

    def test_closing_inside_a_handler(self) -> None:
        def handler(e: vornix.events.KeyDown) -> None:
            self.g.close()
            self.fails(5, lambda: self.g.Rows)

        self.g.on("KeyDown", handler)
        try:
            self.g.host.key_down(65)
        except vornix.AutomationError as error:
            self.assertEqual(error.number, 5)
        self.assertEqual(repr(self.g), "<vornix.Grid closed>")

    def test_closing_the_form_inside_a_handler(self) -> None:
        self.g.on("KeyDown", lambda e: self.g.host.close())
        self.g.host.key_down(65)
        self.fails(5, lambda: self.g.Rows)

    def test_deleting_the_last_name_inside_a_handler(self) -> None:
        grids = [vornix.Grid(100, 100)]
        ended = weakref.ref(grids[0])

        def handler(e: object) -> None:
            grids.clear()
            gc.collect()

        grids[0].on("KeyDown", handler)
        self.assertEqual(grids[0].host.key_down(65), 65)
        gc.collect()
        self.assertIsNone(ended())

    def test_an_exception_out_of_a_handler_that_closed(self) -> None:
        def handler(e: object) -> None:
            self.g.close()
            raise LookupError

        self.g.on("KeyDown", handler)
        with self.assertRaises(LookupError):
            self.g.host.key_down(65)


class TestThreads(GridTest):
    def test_a_call_from_another_thread_is_error_5(self) -> None:
        for use in (
            lambda: self.g.Rows,
            lambda: self.g.Text[0, 0],
            lambda: self.g.host.clear_log(),
            lambda: self.g.on("Click", print),
            lambda: self.g.texts(0),
            lambda: self.g.close(),
        ):
            error = in_thread(use)
            self.assertIsInstance(error, vornix.AutomationError)
            self.assertEqual(error.number, 5)
        self.assertEqual(self.g.Rows, 4)

    def test_the_repr_on_another_thread(self) -> None:
        self.assertEqual(in_thread(lambda: repr(self.g)), "<vornix.Grid of another thread>")
        host = self.g.host
        child = host.child("scrV")
        whose = " of another thread's grid>"
        self.assertEqual(in_thread(lambda: repr(host)), "<vornix.host.Host" + whose)
        self.assertEqual(in_thread(lambda: repr(child)), "<vornix.host.Child 'scrV'" + whose)
        self.assertIn("x", repr(child))
        self.g.close()
        for thing in (self.g, host, child):
            self.assertIn("closed", repr(thing))
            self.assertIn("closed", in_thread(lambda: repr(thing)))

    def test_two_threads_with_a_grid_each(self) -> None:
        def work() -> int:
            with vornix.Grid(200, 100) as g:
                g.LoadFromArray([[str(row) for row in range(2000)]] * 3)
                return len(set(g.texts(2, 1)))

        results: List[Any] = []
        threads = [threading.Thread(target=lambda: results.append(work())) for _ in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(results, [2000] * 4)

    def test_a_grid_that_outlives_its_thread(self) -> None:
        grids: List[vornix.Grid] = []
        in_thread(lambda: grids.append(vornix.Grid(100, 100)))
        self.fails(5, lambda: grids[0].Rows)
        grids.clear()
        gc.collect()

    def test_a_grid_collected_on_another_thread(self) -> None:
        grids = [vornix.Grid(100, 100)]
        ended = weakref.ref(grids[0])
        in_thread(lambda: (grids.clear(), gc.collect()))
        self.assertIsNone(ended())
        self.assertEqual(self.g.Rows, 4)


class TestCollection(unittest.TestCase):
    def test_a_handler_that_holds_its_grid_is_collected(self) -> None:
        def make() -> "weakref.ref[vornix.Grid]":
            g = vornix.Grid(100, 100)
            g.on("Click", lambda e: g.Rows)
            return weakref.ref(g)

        ended = make()
        gc.collect()
        self.assertIsNone(ended())

    def test_a_grid_without_handlers_needs_no_collector(self) -> None:
        gc.disable()
        self.addCleanup(gc.enable)
        ended = weakref.ref(vornix.Grid(100, 100))
        self.assertIsNone(ended())

    def test_a_host_keeps_its_container(self) -> None:
        host = vornix.Grid(100, 100).host
        gc.collect()
        self.assertEqual(host.pixel(500, 500), 0xFFFFFFFF)

    def test_a_property_keeps_its_grid(self) -> None:
        text = vornix.Grid(100, 100).Text
        gc.collect()
        text[0, 0] = "kept"
        self.assertEqual(text[0, 0], "kept")

    def test_many_grids_come_and_go(self) -> None:
        for _ in range(50):
            g = vornix.Grid(50, 50)
            g.on("Click", g.host.log.append)
            del g


class TestCopies(GridTest):
    def test_grids_cannot_be_copied_or_pickled(self) -> None:
        things = [self.g, self.g.host, self.g.host.child("scrV"), self.g._session]
        for thing in (*things, vornix.Surface(2, 2)):
            for use in (copy.copy, copy.deepcopy, pickle.dumps):
                with self.assertRaises(TypeError):
                    use(thing)  # type: ignore[operator]


class TestShutdown(unittest.TestCase):
    def run_program(self, program: str) -> None:
        done = subprocess.run(
            [sys.executable, "-X", "dev", "-c", textwrap.dedent(program)],
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            universal_newlines=True,
        )
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "done\n", ""))

    def test_with_a_live_grid(self) -> None:
        self.run_program(
            """
            import vornix
            g = vornix.Grid()
            g.on("Click", lambda e: g.Rows)
            h = g.host
            font, picture = g.Font, vornix.Picture.from_rgba(1, 1, bytes(4))
            g.Picture = picture
            surface = vornix.Surface(3, 3)
            print("done")
            """
        )

    def test_with_a_grid_of_another_thread(self) -> None:
        self.run_program(
            """
            import threading, vornix
            grids = []
            thread = threading.Thread(target=lambda: grids.append(vornix.Grid()))
            thread.start()
            thread.join()
            print("done")
            """
        )

    def test_with_a_grid_in_a_module_that_is_torn_down(self) -> None:
        self.run_program(
            """
            import sys, types, vornix
            module = sys.modules["holder"] = types.ModuleType("holder")
            module.grid = vornix.Grid()
            module.grid.on("Click", lambda e: None)
            class Late:
                def __del__(self, grid=module.grid):
                    try:
                        grid.Rows
                    except BaseException:
                        pass
            module.late = Late()
            print("done")
            """
        )


if __name__ == "__main__":
    unittest.main()
