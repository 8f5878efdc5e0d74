#!/usr/bin/env python3
"""Plants includes into a small tree and sees which of them check_layers.py reports."""

import os
import subprocess
import sys
import tempfile
import unittest

CHECK = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../tools/check_layers.py")

# file, what it includes, and the words that the report must hold; None: it is allowed
CASES = {
    "downwards": ("views/map/A.cpp", "card/B.h", None),
    "own room": ("views/map/A.cpp", "views/map/B.h", None),
    "shared by views": ("views/map/A.cpp", "views/common/B.h", None),
    "upwards": ("card/A.h", "gui/B.h", "card is below gui"),
    "upwards by one layer": ("profile/A.cpp", "card/B.h", "profile is below card"),
    "start-up from core": ("core/A.cpp", "core/startup/B.h", "core is below core/startup"),
    "from view to view": ("views/map/A.cpp", "views/graph/B.h", "do not know each other"),
    "platform knows nothing of the program": ("platform/viewlib/A.cpp", "core/B.h", "is below core"),
    "writer without a display": ("export/A.cpp", "platform/tessel/opengl/B.h", "without a display"),
    "test of an upper layer": ("tests/card/A.cpp", "gui/B.h", "card is below gui"),
    "shared parts of tests": ("tests/card/A.cpp", "tests/support/B.h", None),
    "unknown room": ("views/new/A.cpp", "card/B.h", "not in the list of rooms"),
    "include of an unknown room": ("gui/A.cpp", "views/new/B.h", "not in the list of rooms"),
    "indented include": ("card/A.h", "gui/B.h\"\n  # include \"gui/C.h", "gui/C.h"),
}


class CheckLayersTest(unittest.TestCase):
    def run_check(self, root):
        return subprocess.run([sys.executable, CHECK, root], capture_output=True, text=True)

    def test_planted_includes(self):
        for name, (file, included, words) in CASES.items():
            with self.subTest(name), tempfile.TemporaryDirectory() as root:
                path = os.path.join(root, file)
                os.makedirs(os.path.dirname(path))
                with open(path, "w", encoding="utf-8") as source:
                    source.write(f'#include <vector>\n#include "{included}"\n')
                result = self.run_check(root)
                if words is None:
                    self.assertEqual((result.returncode, result.stdout), (0, ""))
                else:
                    self.assertEqual(result.returncode, 1)
                    self.assertIn(words, result.stdout)
                    self.assertTrue(result.stdout.startswith(file + ":"), result.stdout)

    def test_build_folders_do_not_count(self):
        with tempfile.TemporaryDirectory() as root:
            os.makedirs(os.path.join(root, "build/core"))
            with open(os.path.join(root, "build/core/A.cpp"), "w", encoding="utf-8") as source:
                source.write('#include "gui/B.h"\n')
            self.assertEqual(self.run_check(root).returncode, 0)


if __name__ == "__main__":
    unittest.main()
