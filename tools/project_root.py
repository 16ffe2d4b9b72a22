"""Adds the project's root to the path, so that a script of this folder can import tests.play."""

import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT))
