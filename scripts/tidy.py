"""Runs clang-tidy on every source of the project that the host build compiles, two at a time.

usage: tidy.py BUILD-FOLDER
Flags are those of the compilation database. Left out are generated files and tests, which take most of the time and
whose findings are mostly the test framework's macros.
"""

import concurrent.futures
import json
import os
import subprocess
import sys
from pathlib import Path


def files(build: Path) -> list[str]:
    top = Path.cwd()
    listed = json.loads((build / "compile_commands.json").read_text())
    found = {entry["file"] for entry in listed}
    others = (build.resolve(), top / "tests")
    return sorted(
        name for name in found if Path(name).is_relative_to(top) and not any(map(Path(name).is_relative_to, others))
    )


def run(build: Path, name: str) -> tuple[str, int, str]:
    command = ["clang-tidy", "--quiet", "-p", str(build), name]
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    return name, done.returncode, done.stdout


def main() -> int:
    build = Path(sys.argv[1])
    worst = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count() or 1) as pool:
        for name, status, output in pool.map(lambda name: run(build, name), files(build)):
            if status != 0:
                print(f"{name}:\n{output}")
                worst = 1
    return worst


if __name__ == "__main__":
    sys.exit(main())
